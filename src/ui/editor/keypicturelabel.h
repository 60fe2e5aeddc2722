/// The picture of a key with its rounded corners, and what is painted over it.
#pragma once

#include <QLabel>
#include <QPixmap>
#include <QSize>

/// @p image scaled to @p size (device pixels) and cut to rounded corners. @p scale: device pixels in a pixel
/// of the widgets.
QPixmap roundedKeyPixmap(const QImage &image, const QSize &size, qreal scale = 1);

/// Draws its pixmap over all of itself. The border of the style sheet would otherwise take a pixel on each
/// side, and the scaling for it would blur the panel's own pixels.
class KeyPictureLabel : public QLabel
{
    Q_OBJECT
public:
    using QLabel::QLabel;

    void setMark(const QColor &colour); ///< a dot in the upper right corner; an invalid colour for none
    QColor mark() const { return mMark; }
    void setFocusFrame(bool shown);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor mMark;
    bool mHasFocusFrame = false;
};
