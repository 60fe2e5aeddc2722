/// A picture behind a frame of a key's shape: what is in the frame goes on the key.
#pragma once

#include "ui_common/cropgeometry.h"

#include <QWidget>

/// Dragging moves the picture; the wheel and the keys plus and minus zoom; the arrow keys move it by a pixel
/// of the target, with Shift by ten.
class CropView : public QWidget
{
    Q_OBJECT
public:
    explicit CropView(QWidget *parent = nullptr);

    void setPicture(const QImage &picture); ///< null: none; starts with the middle of the picture
    void setTarget(QSize pixels);           ///< the shape of the frame and the size of result()
    /// The whole picture with dark edges, which cannot be moved; else the frame is filled.
    void setWhole(bool whole);
    void setHint(const QString &hint); ///< shown while there is no picture

    bool hasPicture() const { return !mPicture.isNull(); }
    bool isWhole() const { return mGeometry.isWhole(); }
    QRectF crop() const { return mGeometry.crop(); } ///< in pixels of the picture; empty without one
    QRectF share() const;  ///< the same, the picture being 0 to 1 in both directions
    QImage result() const; ///< exactly the target's size; null without a picture

    double zoom() const { return mGeometry.zoom(); } ///< 1 to CropGeometry::MaxZoom
    void setZoom(double zoom);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void sigChanged(); ///< picture, target or crop

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QRectF frame() const;
    double scale() const; ///< screen pixels for one of the picture
    void moveBy(QPointF targetPixels);
    void changed();
    void showCursor(bool dragging);
    void drawPicture(QPainter &painter) const;

    QImage mPicture;
    QSize mTarget;
    CropGeometry mGeometry;
    QString mHint;
    QPointF mDragged; ///< where the mouse was last
    bool mDragging = false;
};
