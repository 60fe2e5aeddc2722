#include "pictureuploadvideo.h"

#include "base/paths.h"
#include "ui_editor/galleryvideo.h"

#include <QCoreApplication>
#include <QDir>
#include <QPainter>

using vorlinmodel::ConversionError;
using vorlinmodel::VideoFit;
using vorlinmodel::VideoSettings;

namespace {

OpenedVideo opened(const QString &path, const std::atomic<bool> &cancelled)
{
    const GalleryFrameResult look = galleryFirstFrame(path, cancelled);
    OpenedVideo video{.path = path, .frame = look.frame, .size = {}};
    video.size = videoSize(look.frame);
    video.durationMs = videoDurationMs(look.frame);
    if (look.frame.isNull()) {
        const QString named = look.error == ConversionError::NoTool ? vorlindesk::Paths::ffmpegTool() : path;
        video.problem = withAdvice(look.error, vorlinmodel::conversionFailure(look.error, named).reason);
    }
    return video;
}

QString minutes(qint64 ms)
{
    const qint64 seconds = ms / 1000;
    return QStringLiteral("%1:%2").arg(seconds / 60).arg(seconds % 60, 2, 10, QLatin1Char('0'));
}

QString pixels(QSize size)
{
    return QCoreApplication::translate("PictureUploadVideo", "%1 x %2 pixels")
        .arg(size.width())
        .arg(size.height());
}

} // namespace

VideoReader::VideoReader(QObject *parent)
    : QObject(parent)
{}

void VideoReader::open(const QString &path)
{
    mTask.start([this, path](const std::atomic<bool> &cancelled) {
        const OpenedVideo video = opened(path, cancelled);
        return [this, video] {
            emit sigOpened(video);
        };
    });
}

QString videoFacts(const OpenedVideo &video, const VideoSettings &settings)
{
    constexpr double bytesPerMegabyte = 1024 * 1024;
    QStringList lines{pixels(video.size)};
    if (video.durationMs > 0)
        lines.first() += QStringLiteral(", ") + minutes(video.durationMs);
    lines.append(QCoreApplication::translate("PictureUploadVideo",
                                             "On the key: %1, at most %2 frames a second and %3 MB")
                     .arg(pixels(settings.size))
                     .arg(vorlinmodel::MaxVideoFrameRate)
                     .arg(double(settings.byteLimit) / bytesPerMegabyte, 0, 'f', 1));
    const qint64 longest = longestVideoMs(settings);
    // A slower video may be longer; the rate is not known before it is converted.
    if (video.durationMs > longest)
        lines.append(QCoreApplication::translate("PictureUploadVideo", "Maybe too long: about %1 fit.")
                         .arg(minutes(longest)));
    return lines.join(QLatin1Char('\n'));
}

QImage fittedFrame(const QImage &frame, const VideoSettings &settings)
{
    if (frame.isNull())
        return {};
    QSize size = settings.size;
    if (settings.fit != VideoFit::Stretch)
        size = frame.size().scaled(size, settings.fit == VideoFit::Cover ? Qt::KeepAspectRatioByExpanding
                                                                         : Qt::KeepAspectRatio);
    QRect place({}, size.expandedTo({1, 1}));
    place.moveCenter(QRect({}, settings.size).center());
    QImage result(settings.size, QImage::Format_RGB32);
    result.fill(Qt::black);
    QPainter(&result).drawImage(place.topLeft(),
                                frame.scaled(place.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    return result;
}

QString withAdvice(ConversionError error, const QString &problem)
{
    if (error == ConversionError::NoTool)
        return problem + QLatin1Char('\n') +
               QCoreApplication::translate(
                   "PictureUploadVideo",
                   "Install vorlindesk again, or copy the program ffmpeg to this place.");
    if (error == ConversionError::TooLong)
        return problem + QLatin1Char('\n') +
               QCoreApplication::translate("PictureUploadVideo",
                                           "Tick \"Leave out what does not fit\" to use its beginning.");
    return problem;
}
