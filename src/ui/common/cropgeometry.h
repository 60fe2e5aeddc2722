/// Which part of a picture goes on a key, as numbers alone.
#pragma once

#include <QImage>
#include <QPointF>
#include <QRectF>
#include <QSize>

/// A rectangle of the target's proportions over a picture. It stays within the picture, or, when the whole
/// picture is wanted, is the smallest one around it. Plain value; all lengths in pixels of the picture.
class CropGeometry
{
public:
    static constexpr double MaxZoom = 16;

    void setPicture(QSize picture); ///< starts anew: the middle, as much of it as there can be
    void setTarget(QSize target);   ///< only its proportions count; the middle and the zoom stay
    void setWhole(bool whole);      ///< zooming and moving wait until it is off again
    bool isWhole() const { return mWhole; }

    QRectF crop() const;                  ///< empty without a picture or target
    double zoom() const { return mZoom; } ///< 1 (as much as there can be) to MaxZoom
    /// Zooms so that the point @p fixed keeps its place in the rectangle, as far as the edges allow.
    void setZoom(double zoom, QPointF fixed);
    void setZoom(double zoom) { setZoom(zoom, mMiddle); }
    void moveBy(QPointF distance);

private:
    QSizeF cropSize() const;
    void keepInside();

    QSizeF mPicture;
    QSizeF mTarget;
    QPointF mMiddle;
    double mZoom = 1;
    bool mWhole = false;
};

/// @return the part @p crop of @p picture in exactly @p target pixels, smoothed; what lies beyond the picture
/// or is transparent becomes black, as the LCD shows what is not lit. Null without a picture.
QImage croppedPicture(const QImage &picture, const QRectF &crop, QSize target);
