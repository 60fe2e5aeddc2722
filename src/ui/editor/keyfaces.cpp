#include "keyfaces.h"

#include "model/functionids.h"
#include "model/ifunctionmanager.h"
#include "ui_common/knownpicture.h"
#include "videoframes.h"

#include <QFileInfo>
#include <QImageReader>

namespace {

constexpr int CacheSize = 64 * 1024;    // KiB of decoded pictures
constexpr int LargestQuick = 512 * 512; // pixels: 5 ms to decode
constexpr int LargestShown = 640;       // pixels a side that are kept of a large picture: cells are smaller

/// Reads the head alone.
bool takesLong(const QString &path)
{
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    return qint64(size.width()) * size.height() > LargestQuick;
}

} // namespace

KeyFaces::KeyFaces(const vorlinmodel::IFunctionManager &store, QObject *parent)
    : QObject(parent)
    , mStore(store)
    , mPictures(CacheSize)
    , mpVideoFrames(new VideoFrames(this))
{
    connect(mpVideoFrames, &VideoFrames::sigFrameReady, this, &KeyFaces::sigFaceReady);
    connect(&mReader, &PictureReader::sigOpened, this,
            [this](const OpenedPicture &picture) { onDecoded(picture.view); });
}

KeyFaces::~KeyFaces() = default;

vorlinmodel::KeyFace KeyFaces::face(const vorlinmodel::key_id_t &key)
{
    vorlinmodel::KeyFace face;
    const auto record = mStore.getKeyAttribute(key);
    if (!record || record->mFId == 0)
        return face;
    if (record->mFId == vorlinmodel::VIDEO_FID)
        face.picture = mpVideoFrames->firstFrame(record->defaultImage);
    if (face.picture.isNull())
        face.picture = picture(mStore.getDisplayImage(key));
    face.title = record->strTitle;
    face.titleFontSize = record->titleFontSize;
    face.titleColour = record->titleColour;
    face.titleAlignment = record->titleAlignment;
    face.imageEffects = record->imageEffects;
    return face;
}

bool KeyFaces::shows(const vorlinmodel::key_id_t &key, const QString &path) const
{
    const auto record = mStore.getKeyAttribute(key);
    if (!record || record->mFId == 0)
        return false;
    return mStore.getDisplayImage(key) == path ||
           (record->mFId == vorlinmodel::VIDEO_FID && record->defaultImage == path);
}

QImage KeyFaces::picture(const QString &path)
{
    if (path.isEmpty())
        return {};
    const QFileInfo file(path);
    if (!file.isFile()) // opening a pipe would wait for its other end
        return {};
    const Decoded *known = mPictures.object(path);
    if (known && known->modified == file.lastModified() && known->size == file.size())
        return known->image;
    if (!takesLong(path))
        return keep(path, {file.lastModified(), file.size(),
                           anyPicture(path, {LargestShown, LargestShown}, Qt::KeepAspectRatio)});
    if (!mWaiting.contains(path)) {
        mWaiting.append(path);
        decodeNext();
    }
    return known ? known->image : QImage();
}

QImage KeyFaces::keep(const QString &path, Decoded decoded)
{
    const int cost = 1 + int(decoded.image.sizeInBytes() / 1024);
    const QImage image = decoded.image;
    mPictures.insert(path, std::make_unique<Decoded>(std::move(decoded)).release(), cost); // which owns it
    return image;
}

void KeyFaces::decodeNext()
{
    if (mReader.isBusy() || mWaiting.isEmpty())
        return;
    const QFileInfo file(mWaiting.first());
    mBeingDecoded = {file.lastModified(), file.size(), {}};
    mReader.open(file.filePath(), LargestShown);
}

/// Also a failure is kept: it is not tried over and over.
void KeyFaces::onDecoded(const QImage &picture)
{
    const QString path = mWaiting.takeFirst();
    mBeingDecoded.image = picture;
    keep(path, std::exchange(mBeingDecoded, {}));
    decodeNext();
    if (!picture.isNull())
        emit sigFaceReady(path);
}
