#include "keyview.h"

#include "model/avifile.h"
#include "model/keypicture.h"
#include "wire/textcodec.h"

VideoPlayer::VideoPlayer(const QByteArray &video)
    : mVideo(video)
{
    static const QByteArray jpegStart = QByteArrayLiteral("\xFF\xD8\xFF");
    for (int start = video.indexOf(jpegStart); start >= 0;
         start = video.indexOf(jpegStart, start + jpegStart.size()))
        mStarts << start;
    if (mStarts.isEmpty() && !video.isEmpty())
        mStarts << 0; // a picture of another kind
    const auto info = vorlinmodel::readAviInfo(video.left(vorlinmodel::AviHeadSize), video.size());
    if (info && info->microsecondsPerFrame > 0)
        mMicrosecondsPerFrame = info->microsecondsPerFrame;
}

QImage VideoPlayer::frame(qint64 time) const
{
    if (mStarts.isEmpty())
        return {};
    const int index = static_cast<int>(time * 1000 / mMicrosecondsPerFrame % mStarts.size());
    if (index != mDecoded) {
        const int start = mStarts.at(index);
        const int end = index + 1 < mStarts.size() ? mStarts.at(index + 1) : mVideo.size();
        mFrame = vorlinmodel::decodePicture(mVideo.mid(start, end - start));
        mDecoded = index;
    }
    return mFrame;
}

KeyView::KeyView(const PanelKey &key)
    : mLatched(key.latched)
{
    mFace.picture = vorlinmodel::decodePicture(key.picture);
    mFace.title = TextCodec::fromGbk(key.record.title);
    mFace.titleFontSize = key.record.titleFontSize;
    mFace.titleColour = QColor(key.record.red, key.record.green, key.record.blue);
    mFace.titleAlignment = key.record.titleAlignment;
    mFace.imageEffects = key.record.imageEffects;
    if (key.record.functionId == vorlinmodel::VIDEO_FID)
        mVideo = VideoPlayer(key.video);
}

QImage KeyView::face(const QSize &size, qint64 time) const
{
    vorlinmodel::KeyFace face = mFace;
    const QImage frame = mVideo.frame(time);
    if (!frame.isNull())
        face.picture = frame;
    const double phase = static_cast<double>(time % vorlinmodel::EffectRoundMs) / vorlinmodel::EffectRoundMs;
    return vorlinmodel::renderKeyFace(face, size, phase);
}
