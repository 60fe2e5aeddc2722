/// One picture that spreads over all keys of a layout.
#pragma once

#include <QImage>
#include <QSize>

namespace vorlinmodel {

/// Pixels of all LCDs side by side, the gaps between them left out: 450 x 252.
QSize panelPixelSize();

/// @return the part of @p panel that the logical key of @p mask shows, at keyPixelSize(mask). A picture of
/// another size is brought to panelPixelSize() before. Null when there is no picture, or the mask is empty.
QImage backgroundPiece(const QImage &panel, quint32 mask);

} // namespace vorlinmodel
