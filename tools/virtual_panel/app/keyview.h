/// A key of the panel made ready to be drawn.
#pragma once

#include "model/keyface.h"
#include "panel_model/panelstate.h"

#include <QImage>
#include <QVector>

/// The pictures of a video: every JPEG file in it (motion JPEG, bare or in a container), or the one picture
/// that it is. Only the picture that was asked for last is held decoded: ten minutes of a merged key would
/// fill the memory.
class VideoPlayer
{
public:
    VideoPlayer() = default;
    explicit VideoPlayer(const QByteArray &video);

    int frames() const { return mStarts.size(); }
    /// The picture at @p time (ms), round and round; at the rate of an AVI file, else at 12 a second. Null
    /// when there is none, or it is damaged.
    QImage frame(qint64 time) const;

private:
    QByteArray mVideo;
    QVector<int> mStarts; ///< byte offsets
    qint64 mMicrosecondsPerFrame = 1000 * 1000 / 12;
    mutable int mDecoded = -1; ///< index of mFrame
    mutable QImage mFrame;
};

/// Decodes the picture once, and draws the face as often as needed.
class KeyView
{
public:
    KeyView() = default;
    /// An empty face for a key without function.
    explicit KeyView(const PanelKey &key);

    /// @param time in ms since any moment; moves effects and videos.
    QImage face(const QSize &size, qint64 time) const;

    bool isMoving() const { return mVideo.frames() > 1 || vorlinmodel::isMovingEffect(mFace.imageEffects); }
    bool isLatched() const { return mLatched; }

private:
    vorlinmodel::KeyFace mFace;
    VideoPlayer mVideo;
    bool mLatched = false;
};
