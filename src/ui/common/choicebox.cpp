#include "choicebox.h"

#include "style.h"

#include <QPainter>
#include <QWheelEvent>

ChoiceBox::ChoiceBox(QWidget *parent)
    : QComboBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
}

void ChoiceBox::paintEvent(QPaintEvent *event)
{
    constexpr qreal halfWidth = 3.5; // pixels
    QComboBox::paintEvent(event);
    const QPointF tip(width() - 9, height() / 2.0 + halfWidth / 2);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(isEnabled() ? QColor(Qt::white) : QColor(Style::InactiveCell), 1.5));
    painter.drawPolyline(
        QPolygonF({tip + QPointF(-halfWidth, -halfWidth), tip, tip + QPointF(halfWidth, -halfWidth)}));
}

void ChoiceBox::wheelEvent(QWheelEvent *event)
{
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}
