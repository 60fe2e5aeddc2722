#include "keypicturelabel.h"

#include <QBitmap>
#include <QPainter>

namespace {

constexpr qreal CornerRadius = 10;

void drawMark(QPainter &painter, const QRect &area, const QColor &colour)
{
    constexpr int diameter = 10;
    constexpr int margin = 6; // clear of the rounded corner
    painter.setPen(QPen(QColor(0, 0, 0, 160), 1.5));
    painter.setBrush(colour);
    painter.drawEllipse(QRectF(area.right() + 1 - margin - diameter, margin, diameter, diameter));
}

void drawFocusFrame(QPainter &painter, const QRect &area)
{
    painter.setPen(QPen(Qt::white, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(area).adjusted(1, 1, -1, -1), CornerRadius - 1, CornerRadius - 1);
}

} // namespace

QPixmap roundedKeyPixmap(const QImage &image, const QSize &size, qreal scale)
{
    QPixmap pixmap = QPixmap::fromImage(image.scaled(size, Qt::IgnoreAspectRatio, Qt::FastTransformation));
    QBitmap mask(size);
    mask.fill(Qt::color0);
    QPainter painter(&mask);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::color1);
    painter.drawRoundedRect(mask.rect(), CornerRadius * scale, CornerRadius * scale);
    painter.end();
    pixmap.setMask(mask);
    pixmap.setDevicePixelRatio(scale);
    return pixmap;
}

void KeyPictureLabel::setMark(const QColor &colour)
{
    if (mMark == colour)
        return;
    mMark = colour;
    update();
}

void KeyPictureLabel::setFocusFrame(bool shown)
{
    mHasFocusFrame = shown;
    update();
}

/// The style sheet's background and border have been painted before.
void KeyPictureLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QPixmap picture = pixmap(Qt::ReturnByValue);
    if (!picture.isNull())
        painter.drawPixmap(rect(), picture);
    painter.setRenderHint(QPainter::Antialiasing);
    if (mHasFocusFrame)
        drawFocusFrame(painter, rect());
    if (mMark.isValid())
        drawMark(painter, rect(), mMark);
}
