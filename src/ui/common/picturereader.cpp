#include "picturereader.h"

#include "cropgeometry.h"
#include "model/picturecheck.h"

#include <QFile>
#include <QImageReader>
#include <algorithm>
#include <cmath>

namespace {

/// Ends in the middle when the work is cancelled: decoding a large picture takes seconds, and decoders know
/// no other way to be stopped.
class CancellableFile : public QFile
{
public:
    CancellableFile(const QString &path, const std::atomic<bool> &cancelled)
        : QFile(path)
        , mCancelled(cancelled)
    {}

protected:
    qint64 readData(char *data, qint64 length) override
    {
        return mCancelled ? -1 : QFile::readData(data, length);
    }

private:
    const std::atomic<bool> &mCancelled;
};

/// A picture in a file that has been checked.
class PictureSource
{
public:
    PictureSource(const QString &path, const std::atomic<bool> &cancelled)
        : mFile(path, cancelled)
    {
        if (mFile.open(QIODevice::ReadOnly))
            mReader.setDevice(&mFile);
        mReader.setDecideFormatFromContent(true);
        mReader.setAutoTransform(true);
    }

    QSize size() const ///< upright
    {
        const bool turned = mReader.transformation() & QImageIOHandler::TransformationRotate90;
        return turned ? mReader.size().transposed() : mReader.size();
    }
    bool moves() const { return mReader.imageCount() > 1; }

    /// Reads it with at most @p side pixels a side, made smaller while it is decoded.
    QImage read(int side)
    {
        const QSize full = mReader.size();
        if (std::max(full.width(), full.height()) > side)
            mReader.setScaledSize(full.scaled(side, side, Qt::KeepAspectRatio).expandedTo({1, 1}));
        return mReader.read();
    }

private:
    CancellableFile mFile;
    QImageReader mReader;
};

QString problemOf(vorlinmodel::ConversionError error, const QString &path)
{
    return vorlinmodel::conversionFailure(error, path).reason;
}

QImage cropped(const QString &path, const QRectF &share, QSize target, const std::atomic<bool> &cancelled)
{
    PictureSource source(path, cancelled);
    const QSizeF full = source.size();
    // No more than what croppedPicture() looks at: a camera's picture takes a gigabyte.
    const double needed = 2 * std::max(target.width() / (share.width() * full.width()),
                                       target.height() / (share.height() * full.height()));
    const double side = std::max(full.width(), full.height()) * std::min(1.0, needed);
    const QImage picture = source.read(int(std::ceil(side)));
    const QRectF crop(share.x() * picture.width(), share.y() * picture.height(),
                      share.width() * picture.width(), share.height() * picture.height());
    return croppedPicture(picture, crop, target);
}

} // namespace

OpenedPicture openPicture(const QString &path, int side, const std::atomic<bool> &cancelled)
{
    OpenedPicture result{.path = path, .view = {}, .size = {}};
    const vorlinmodel::PictureCheck check = vorlinmodel::checkPicture(path);
    result.video = check.video;
    if (check.error != vorlinmodel::ConversionError::None) {
        result.problem = problemOf(check.error, path);
    } else if (!check.video) {
        PictureSource source(path, cancelled);
        result.size = source.size();
        result.moves = source.moves();
        result.view = source.read(side);
        if (result.view.isNull())
            result.problem = problemOf(vorlinmodel::ConversionError::Damaged, path);
    }
    return result;
}

PictureReader::PictureReader(QObject *parent)
    : QObject(parent)
{}

void PictureReader::open(const QString &path, int side)
{
    mTask.start([=, this](const std::atomic<bool> &cancelled) {
        const OpenedPicture picture = openPicture(path, side, cancelled);
        return [this, picture] {
            emit sigOpened(picture);
        };
    });
}

void PictureReader::crop(const QString &path, const QRectF &share, QSize target)
{
    mTask.start([=, this](const std::atomic<bool> &cancelled) {
        const QImage picture = cropped(path, share, target, cancelled);
        const QString problem =
            picture.isNull() ? problemOf(vorlinmodel::ConversionError::NotReadable, path) : QString();
        return [=, this] {
            emit sigCropped(picture, problem);
        };
    });
}
