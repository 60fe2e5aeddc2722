#include "choicebox.h"

#include "style.h"

#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QWheelEvent>

ChoiceBox::ChoiceBox(QWidget *parent)
    : QComboBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
}

void ChoiceBox::paintEvent(QPaintEvent *)
{
    constexpr qreal halfWidth = 3.5; // pixels
    QStylePainter painter(this);
    painter.setPen(palette().color(QPalette::Text));
    QStyleOptionComboBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    const QRect field =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    option.currentText = fontMetrics().elidedText(option.currentText, Qt::ElideRight, field.width());
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);

    const QPointF tip(width() - 9, height() / 2.0 + halfWidth / 2);
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
