#include "keyfaces.h"

#include "model/functionids.h"
#include "model/ifunctionmanager.h"
#include "ui_common/knownpicture.h"
#include "videoframes.h"

#include <QFileInfo>

namespace {

constexpr int CacheSize = 64 * 1024; // KiB of decoded pictures
constexpr int LargestShown = 1024;   // pixels a side that are kept of a large picture: cells are smaller

QImage decoded(const QString &path)
{
    return anyPicture(path, {LargestShown, LargestShown}, Qt::KeepAspectRatio);
}

} // namespace

KeyFaces::KeyFaces(const vorlinmodel::IFunctionManager &store, QObject *parent)
    : QObject(parent)
    , mStore(store)
    , mPictures(CacheSize)
    , mpVideoFrames(new VideoFrames(this))
{
    connect(mpVideoFrames, &VideoFrames::sigFrameReady, this, &KeyFaces::sigFaceReady);
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
    auto fresh = std::make_unique<Decoded>(Decoded{file.lastModified(), file.size(), decoded(path)});
    QImage image = fresh->image;
    const int cost = 1 + int(image.sizeInBytes() / 1024);
    mPictures.insert(path, fresh.release(), cost); // which owns it
    return image;
}
