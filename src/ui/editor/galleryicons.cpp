#include "galleryicons.h"

#include <QPainter>
#include <QPainterPath>

namespace {

QIcon drawn(void (*draw)(QPainter &painter))
{
    constexpr int side = 20; // of the icon, in the units of draw
    QIcon icon;
    for (const int scale : {1, 2, 3}) {
        QPixmap pixmap(side * scale, side * scale);
        pixmap.setDevicePixelRatio(scale);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        draw(painter);
        icon.addPixmap(pixmap);
    }
    return icon;
}

void drawPlus(QPainter &painter)
{
    painter.setPen(QPen(Qt::white, 2, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(10, 4), QPointF(10, 16));
    painter.drawLine(QPointF(4, 10), QPointF(16, 10));
}

void drawSelectAll(QPainter &painter)
{
    painter.setPen(QPen(Qt::white, 1.5, Qt::DotLine));
    painter.drawRect(QRectF(3, 3, 14, 14));
    painter.setPen(QPen(Qt::white, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF({{6.5, 10}, {9, 12.5}, {13.5, 7.5}}));
}

void drawBin(QPainter &painter)
{
    painter.setPen(QPen(Qt::white, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawLine(QPointF(3.5, 5.5), QPointF(16.5, 5.5));
    painter.drawPolyline(QPolygonF({{7.5, 5}, {7.5, 3}, {12.5, 3}, {12.5, 5}}));
    painter.drawPolyline(QPolygonF({{5, 6}, {6, 17}, {14, 17}, {15, 6}}));
    painter.drawLine(QPointF(8.5, 8.5), QPointF(8.8, 14));
    painter.drawLine(QPointF(11.5, 8.5), QPointF(11.2, 14));
}

} // namespace

void GalleryIcons::drawFilm(QPainter &painter, const QRect &area, const QColor &colour)
{
    constexpr int holes = 4;
    const qreal side = area.width();
    const qreal edge = side / 5; // the strip with the holes, left and right
    const qreal hole = side / (2 * holes + 1);
    QPainterPath film;
    film.setFillRule(Qt::OddEvenFill);
    film.addRoundedRect(QRectF(0, 0, side, side), side / 10, side / 10);
    for (int i = 0; i < holes; ++i) {
        const qreal top = hole * (2 * i + 1);
        film.addRect(QRectF(edge / 4, top, edge / 2, hole));
        film.addRect(QRectF(side - edge * 3 / 4, top, edge / 2, hole));
    }
    film.addPolygon(QPolygonF({{side * 0.4, side * 0.3},
                               {side * 0.7, side * 0.5},
                               {side * 0.4, side * 0.7},
                               {side * 0.4, side * 0.3}})); // as on a play button
    painter.fillPath(film.translated(area.topLeft()), colour);
}

void GalleryIcons::drawCross(QPainter &painter, const QRect &area, const QColor &colour)
{
    painter.setPen(QPen(colour, 2, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(area.topLeft(), area.bottomRight());
    painter.drawLine(area.topRight(), area.bottomLeft());
}

QIcon GalleryIcons::tool(Tool tool)
{
    switch (tool) {
    case Tool::Add:
        return drawn(drawPlus);
    case Tool::SelectAll:
        return drawn(drawSelectAll);
    case Tool::Delete:
        break;
    }
    return drawn(drawBin);
}
