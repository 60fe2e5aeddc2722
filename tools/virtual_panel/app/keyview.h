/// A key of the panel made ready to be drawn.
#pragma once

#include "model/keyface.h"
#include "panel_model/panelstate.h"

#include <QImage>
#include <QVector>

/// Decodes picture and video once, and draws the face as often as needed.
class KeyView
{
public:
    KeyView() = default;
    /// An empty face for a key without function.
    explicit KeyView(const PanelKey &key);

    /// @param time in ms since any moment; moves effects and videos.
    QImage face(const QSize &size, qint64 time) const;

    bool isMoving() const { return mFrames.size() > 1 || vorlinmodel::isMovingEffect(mFace.imageEffects); }
    bool isLatched() const { return mLatched; }

private:
    vorlinmodel::KeyFace mFace;
    QVector<QImage> mFrames;
    bool mLatched = false;
};

/// The pictures of a video: every JPEG file in @p video (motion JPEG, bare or in a container), at most 900,
/// or the one picture that it is.
QVector<QImage> videoFrames(const QByteArray &video);
