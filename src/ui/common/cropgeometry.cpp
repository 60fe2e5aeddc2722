#include "cropgeometry.h"

#include <QPainter>
#include <algorithm>

void CropGeometry::setPicture(QSize picture)
{
    mPicture = picture;
    mMiddle = {mPicture.width() / 2, mPicture.height() / 2};
    mZoom = 1;
}

void CropGeometry::setTarget(QSize target)
{
    mTarget = target;
    keepInside();
}

void CropGeometry::setWhole(bool whole)
{
    mWhole = whole;
}

QRectF CropGeometry::crop() const
{
    if (mPicture.isEmpty() || mTarget.isEmpty())
        return {};
    QRectF rect({}, cropSize());
    rect.moveCenter(mWhole ? QPointF(mPicture.width() / 2, mPicture.height() / 2) : mMiddle);
    return rect;
}

QSizeF CropGeometry::cropSize() const
{
    if (mWhole)
        return mTarget.scaled(mPicture, Qt::KeepAspectRatioByExpanding);
    return mTarget.scaled(mPicture, Qt::KeepAspectRatio) / mZoom;
}

void CropGeometry::setZoom(double zoom, QPointF fixed)
{
    if (mWhole)
        return;
    const double next = std::clamp(zoom, 1.0, MaxZoom);
    mMiddle = fixed + (mMiddle - fixed) * (mZoom / next);
    mZoom = next;
    keepInside();
}

void CropGeometry::moveBy(QPointF distance)
{
    if (mWhole)
        return;
    mMiddle += distance;
    keepInside();
}

void CropGeometry::keepInside()
{
    if (mPicture.isEmpty() || mTarget.isEmpty())
        return;
    const QSizeF half = mTarget.scaled(mPicture, Qt::KeepAspectRatio) / (2 * mZoom);
    // Rounding may leave the half a trifle above the middle: no clamp, which needs ordered limits.
    const auto within = [](double value, double least, double most) {
        return std::max(least, std::min(value, most));
    };
    mMiddle.setX(within(mMiddle.x(), half.width(), mPicture.width() - half.width()));
    mMiddle.setY(within(mMiddle.y(), half.height(), mPicture.height() - half.height()));
}

QImage croppedPicture(const QImage &picture, const QRectF &crop, QSize target)
{
    if (picture.isNull() || crop.isEmpty() || target.isEmpty())
        return {};
    // The painter looks at four pixels for each one that it draws: a picture that shrinks to less than half
    // of its size is averaged first.
    const QRect part = crop.toAlignedRect().intersected(picture.rect());
    const double shrink = target.width() / crop.width();
    QImage source = picture.copy(part);
    if (shrink < 0.5) {
        const QSize twice = (QSizeF(part.size()) * shrink * 2).toSize().expandedTo({1, 1});
        source = source.scaled(twice, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    const double growX = target.width() / crop.width();
    const double growY = target.height() / crop.height();
    const QRectF place((part.x() - crop.x()) * growX, (part.y() - crop.y()) * growY, part.width() * growX,
                       part.height() * growY);
    QImage result(target, QImage::Format_RGB32);
    result.fill(Qt::black);
    QPainter painter(&result);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, source, QRectF(source.rect()));
    return result;
}
