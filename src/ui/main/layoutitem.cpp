#include "layoutitem.h"

#include <QApplication>
#include <QPainter>
#include <QPainterPath>

namespace {

constexpr int Margin = 8; // pixels
constexpr int LineGap = 2;
constexpr int MarkSide = 14;
constexpr QRgb AsideColour = qRgb(170, 170, 170);
constexpr QRgb PendingColour = qRgb(255, 190, 90);

void drawHouse(QPainter &painter, const QRectF &place)
{
    const QPointF middle = place.center();
    QPainterPath house;
    house.addPolygon(QPolygonF({QPointF(middle.x(), place.top()), QPointF(place.right(), middle.y()),
                                QPointF(place.left(), middle.y())}));
    house.addRect(QRectF(place.left() + 2, middle.y(), place.width() - 4, place.height() / 2));
    painter.fillPath(house, Qt::white);
}

void drawDot(QPainter &painter, const QRectF &place)
{
    constexpr qreal radius = 4;
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(PendingColour));
    painter.drawEllipse(place.center(), radius, radius);
}

/// @return the left end of what is drawn.
int drawMarks(QPainter &painter, const QRect &inside, const QModelIndex &index)
{
    QRect place(inside.right() - MarkSide + 1, inside.center().y() - MarkSide / 2, MarkSide, MarkSide);
    if (index.data(LayoutItemDelegate::HomeRole).toBool()) {
        drawHouse(painter, place);
        place.translate(-MarkSide - LineGap, 0);
    }
    if (index.data(LayoutItemDelegate::PendingRole).toBool()) {
        drawDot(painter, place);
        place.translate(-MarkSide - LineGap, 0);
    }
    return place.right();
}

} // namespace

void LayoutItemDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                               const QModelIndex &index) const
{
    QStyleOptionViewItem background = option;
    initStyleOption(&background, index);
    background.text.clear();
    background.widget->style()->drawControl(QStyle::CE_ItemViewItem, &background, painter, option.widget);

    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const QRect inside = option.rect.adjusted(Margin, Margin, -Margin, -Margin);
    QRect line = inside;
    line.setRight(drawMarks(*painter, inside, index) - LineGap);
    line.setHeight(option.fontMetrics.height());
    QString name = index.data(Qt::DisplayRole).toString().simplified();
    if (index.data(ChangedRole).toBool())
        name.prepend(QStringLiteral("* "));
    painter->setPen(Qt::white);
    painter->drawText(line, Qt::AlignLeft | Qt::AlignVCenter,
                      option.fontMetrics.elidedText(name, Qt::ElideRight, line.width()));
    line.translate(0, line.height() + LineGap);
    painter->setPen(option.state & QStyle::State_Selected ? QColor(Qt::white) : QColor(AsideColour));
    painter->drawText(line, Qt::AlignLeft | Qt::AlignVCenter, index.data(KeysRole).toString());
    painter->restore();
}

QSize LayoutItemDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const
{
    return {0, 2 * option.fontMetrics.height() + LineGap + 2 * Margin};
}
