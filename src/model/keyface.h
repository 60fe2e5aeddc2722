/// What a key of the panel shows: its picture with the title over it, as the panel draws it.
#pragma once

#include "model/functionids.h"

#include <QColor>
#include <QImage>
#include <QSize>
#include <QString>

namespace vorlinmodel {

struct KeyFace
{
    QImage picture;         ///< any size; null shows the dark key alone
    QString title;          ///< may have several lines
    int titleFontSize = 16; ///< points; below 1 counts as 16
    QColor titleColour{0, 255, 0};
    int titleAlignment = AlignBottom;
    int imageEffects = NoEffect;
};

/// Length of one round of the moving effects (zooming and marquee).
constexpr int EffectRoundMs = 4000;

/// True for an effect that moves, so that the face has to be drawn again and again.
bool isMovingEffect(int imageEffects);

/// Draws @p face in @p size pixels: 90 x 84, or more for a merged key. The same face gives the same pixels on
/// every screen: sizes in points count at 96 dots per inch.
/// @param phase where in its round a moving effect stands, 0 to 1; a still picture of it is drawn with 0.
QImage renderKeyFace(const KeyFace &face, const QSize &size, double phase = 0);

/// The same face, as a key of @p size panel pixels shows it, drawn sharply at @p target pixels: picture and
/// title grow together. With @p target equal to @p size these are the panel's own pixels.
QImage renderKeyFace(const KeyFace &face, const QSize &size, double phase, const QSize &target);

} // namespace vorlinmodel
