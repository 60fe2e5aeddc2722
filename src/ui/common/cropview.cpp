#include "cropview.h"

#include "style.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QWheelEvent>
#include <cmath>

namespace {

constexpr double ZoomStep = 1.1; // of one notch of the wheel, or one press of a key
constexpr int Margin = 20;       // pixels around the frame, where the rest of the picture is seen
constexpr QRgb Ground = qRgb(36, 36, 36);

} // namespace

CropView::CropView(QWidget *parent)
    : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void CropView::setPicture(const QImage &picture)
{
    mPicture = picture;
    mDragging = false;
    mGeometry.setPicture(picture.size());
    changed();
    showCursor(false);
}

void CropView::setTarget(QSize pixels)
{
    mTarget = pixels;
    mGeometry.setTarget(pixels);
    changed();
}

void CropView::setWhole(bool whole)
{
    mGeometry.setWhole(whole);
    changed();
    showCursor(false);
}

void CropView::setHint(const QString &hint)
{
    mHint = hint;
    update();
}

QRectF CropView::share() const
{
    const QRectF rect = crop();
    if (rect.isEmpty())
        return {};
    return {rect.x() / mPicture.width(), rect.y() / mPicture.height(), rect.width() / mPicture.width(),
            rect.height() / mPicture.height()};
}

QImage CropView::result() const
{
    return croppedPicture(mPicture, crop(), mTarget);
}

void CropView::setZoom(double zoom)
{
    mGeometry.setZoom(zoom);
    changed();
}

void CropView::changed()
{
    update();
    emit sigChanged();
}

void CropView::showCursor(bool dragging)
{
    if (!hasPicture() || isWhole())
        unsetCursor();
    else
        setCursor(dragging ? Qt::ClosedHandCursor : Qt::OpenHandCursor);
}

QSize CropView::sizeHint() const
{
    return {420, 320};
}

QSize CropView::minimumSizeHint() const
{
    return {160, 120};
}

QRectF CropView::frame() const
{
    const QSizeF room(std::max(1, width() - 2 * Margin), std::max(1, height() - 2 * Margin));
    QRectF rect({}, QSizeF(mTarget).scaled(room, Qt::KeepAspectRatio));
    rect.moveCenter(QRectF(this->rect()).center());
    return rect;
}

double CropView::scale() const
{
    return frame().width() / crop().width();
}

void CropView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), QColor(Ground));
    if (hasPicture() && !mTarget.isEmpty()) {
        drawPicture(painter);
    } else {
        painter.setPen(QColor(160, 160, 160));
        painter.drawText(rect().adjusted(Margin, Margin, -Margin, -Margin),
                         Qt::AlignCenter | Qt::TextWordWrap, mHint);
    }
    painter.setPen(QColor(hasFocus() ? Style::Highlight : Style::InactiveCell));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void CropView::drawPicture(QPainter &painter) const
{
    const QRectF opening = frame();
    const QRectF part = crop();
    const double factor = scale();
    const QRectF place(opening.topLeft() - part.topLeft() * factor, QSizeF(mPicture.size()) * factor);
    painter.fillRect(opening, Qt::black);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, mPicture, QRectF(mPicture.rect()));
    QPainterPath outside;
    outside.addRect(rect());
    QPainterPath inside;
    inside.addRect(opening);
    painter.fillPath(outside - inside, QColor(36, 36, 36, 180));
    painter.setPen(QPen(Qt::white, 1));
    painter.drawRect(opening.adjusted(-1, -1, 0, 0));
}

void CropView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || !hasPicture())
        return;
    mDragging = true;
    mDragged = event->localPos();
    showCursor(true);
}

void CropView::mouseMoveEvent(QMouseEvent *event)
{
    if (!mDragging)
        return;
    mGeometry.moveBy((mDragged - event->localPos()) / scale());
    mDragged = event->localPos();
    changed();
}

void CropView::mouseReleaseEvent(QMouseEvent *)
{
    mDragging = false;
    showCursor(false);
}

void CropView::wheelEvent(QWheelEvent *event)
{
    if (!hasPicture() || isWhole()) {
        event->ignore();
        return;
    }
    constexpr double notch = 120; // eighths of a degree
    const QPointF fixed = crop().topLeft() + (event->position() - frame().topLeft()) / scale();
    mGeometry.setZoom(zoom() * std::pow(ZoomStep, event->angleDelta().y() / notch), fixed);
    changed();
}

void CropView::keyPressEvent(QKeyEvent *event)
{
    const int step = (event->modifiers() & Qt::ShiftModifier) ? 10 : 1;
    switch (event->key()) {
    case Qt::Key_Left:
        return moveBy({double(-step), 0});
    case Qt::Key_Right:
        return moveBy({double(step), 0});
    case Qt::Key_Up:
        return moveBy({0, double(-step)});
    case Qt::Key_Down:
        return moveBy({0, double(step)});
    case Qt::Key_Plus:
    case Qt::Key_Equal: // plus without Shift on many keyboards
        return setZoom(zoom() * ZoomStep);
    case Qt::Key_Minus:
        return setZoom(zoom() / ZoomStep);
    default:
        QWidget::keyPressEvent(event);
    }
}

/// The picture goes where the arrow points, as it does when it is dragged.
void CropView::moveBy(QPointF targetPixels)
{
    if (!hasPicture() || mTarget.isEmpty())
        return;
    mGeometry.moveBy(-targetPixels * (crop().width() / mTarget.width()));
    changed();
}
