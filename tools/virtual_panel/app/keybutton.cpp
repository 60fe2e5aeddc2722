#include "keybutton.h"

#include "style.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

namespace {
constexpr int FullBrightness = 100;
constexpr int DarkestShade = 225; // of 255: at brightness 0 the picture can still be made out
constexpr int Rim = 5;            // pixels of key cap around the LCD
} // namespace

KeyButton::KeyButton(int key, QWidget *parent)
    : QWidget(parent)
    , mKey(key)
{
    setObjectName(QStringLiteral("key%1").arg(key));
    setAccessibleName(QStringLiteral("Key %1").arg(key));
    setCursor(Qt::PointingHandCursor);
}

void KeyButton::show(const QImage &face, int brightness, bool latched)
{
    mFace = face;
    mBrightness = qBound(0, brightness, FullBrightness);
    mLatched = latched;
    mPowered = true;
    update();
}

void KeyButton::showDark()
{
    mPowered = false;
    update();
}

void KeyButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const int sink = mDown ? 2 : 0;
    const QRectF cap = QRectF(rect()).adjusted(sink + 0.5, sink + 0.5, -sink - 0.5, -sink - 0.5);
    painter.setPen(QPen(borderColour(), mLatched || mHovered ? 2 : 1));
    painter.setBrush(QColor(12, 12, 13));
    painter.drawRoundedRect(cap, PanelStyle::KeyRadius + 2, PanelStyle::KeyRadius + 2);

    const QRectF lcd = cap.adjusted(Rim, Rim, -Rim, -Rim);
    QPainterPath clip;
    clip.addRoundedRect(lcd, PanelStyle::KeyRadius - 2, PanelStyle::KeyRadius - 2);
    painter.setClipPath(clip);
    painter.fillRect(lcd, QColor(5, 5, 6));
    if (!mPowered)
        return;
    painter.drawImage(lcd, mFace);
    painter.fillRect(lcd, QColor(0, 0, 0, DarkestShade * (FullBrightness - mBrightness) / FullBrightness));
}

QColor KeyButton::borderColour() const
{
    if (mLatched && mPowered)
        return QColor(96, 211, 120);
    return mHovered ? PanelStyle::Highlight : QColor(70, 70, 72);
}

void KeyButton::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    mDown = true;
    update();
    emit sigPressed(mKey);
}

void KeyButton::mouseReleaseEvent(QMouseEvent *)
{
    mDown = false;
    update();
}

void KeyButton::enterEvent(QEvent *)
{
    mHovered = true;
    update();
}

void KeyButton::leaveEvent(QEvent *)
{
    mHovered = false;
    update();
}
