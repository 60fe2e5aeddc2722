/// One key as the panel draws it, while its picture is being chosen.
#pragma once

#include "model/keyface.h"

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

class PictureUploadPreview : public QWidget
{
    Q_OBJECT
public:
    explicit PictureUploadPreview(QWidget *parent);

    /// @p size: pixels of the key on the panel, shown up to twice as large.
    void setFace(const vorlinmodel::KeyFace &face, QSize size);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    vorlinmodel::KeyFace mFace;
    QSize mSize;
    QTimer mAnimation; ///< runs while the effect moves
    QElapsedTimer mClock;
};
