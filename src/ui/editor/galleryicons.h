/// The small marks of the gallery, drawn at any size.
#pragma once

#include <QIcon>
#include <QRect>

class QColor;
class QPainter;

namespace GalleryIcons {

void drawFilm(QPainter &painter, const QRect &area, const QColor &colour);  ///< a strip with holes
void drawCross(QPainter &painter, const QRect &area, const QColor &colour); ///< for what cannot be read

enum class Tool { Add, SelectAll, Delete };
QIcon tool(Tool tool);

} // namespace GalleryIcons
