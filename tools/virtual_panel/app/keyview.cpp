#include "keyview.h"

#include "model/keypicture.h"
#include "wire/textcodec.h"

static constexpr int FramesPerSecond = 12;

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
        mFrames = videoFrames(key.video);
}

QImage KeyView::face(const QSize &size, qint64 time) const
{
    vorlinmodel::KeyFace face = mFace;
    if (!mFrames.isEmpty())
        face.picture = mFrames.at(static_cast<int>(time * FramesPerSecond / 1000 % mFrames.size()));
    const double phase = static_cast<double>(time % vorlinmodel::EffectRoundMs) / vorlinmodel::EffectRoundMs;
    return vorlinmodel::renderKeyFace(face, size, phase);
}

QVector<QImage> videoFrames(const QByteArray &video)
{
    constexpr int maxFrames = 900;
    static const QByteArray jpegStart = QByteArrayLiteral("\xFF\xD8\xFF");
    QVector<QImage> frames;
    int start = video.indexOf(jpegStart);
    while (start >= 0 && frames.size() < maxFrames) {
        const int next = video.indexOf(jpegStart, start + jpegStart.size());
        const QImage frame = vorlinmodel::decodePicture(video.mid(start, next < 0 ? -1 : next - start));
        if (!frame.isNull())
            frames << frame;
        start = next;
    }
    const QImage picture = frames.isEmpty() ? vorlinmodel::decodePicture(video) : QImage();
    if (!picture.isNull())
        frames << picture;
    return frames;
}
