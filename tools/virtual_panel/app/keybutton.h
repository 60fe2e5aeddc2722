/// One LCD key in the window.
#pragma once

#include <QImage>
#include <QWidget>

/// Draws a face with rounded corners, and tells when it is clicked.
class KeyButton : public QWidget
{
    Q_OBJECT
public:
    KeyButton(int key, QWidget *parent);

    /// @param brightness 0 to 100; @param latched marks a self-locking key that is on.
    void show(const QImage &face, int brightness, bool latched);
    void showDark(); ///< without power

signals:
    void sigPressed(int key);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    QColor borderColour() const;

    const int mKey;
    QImage mFace;
    int mBrightness = 100;
    bool mPowered = false;
    bool mLatched = false;
    bool mDown = false;
    bool mHovered = false;
};
