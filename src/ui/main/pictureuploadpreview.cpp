#include "pictureuploadpreview.h"

#include "model/keypicture.h"
#include "ui_common/style.h"

#include <QPainter>

namespace {

constexpr int Scale = 2; // a key is small on a large screen
constexpr int FrameMs = 50;

} // namespace

PictureUploadPreview::PictureUploadPreview(QWidget *parent)
    : QWidget(parent)
    , mSize(vorlinmodel::PhysicalKeyWidth, vorlinmodel::PhysicalKeyHeight)
{
    setMinimumHeight(vorlinmodel::PhysicalKeyHeight); // in a small window
    setMaximumHeight(vorlinmodel::PhysicalKeyHeight * Scale);
    mAnimation.setInterval(FrameMs);
    connect(&mAnimation, &QTimer::timeout, this, qOverload<>(&QWidget::update));
}

void PictureUploadPreview::setFace(const vorlinmodel::KeyFace &face, QSize size)
{
    mFace = face;
    mSize = size;
    const bool moves = vorlinmodel::isMovingEffect(face.imageEffects);
    if (!moves) {
        mAnimation.stop();
    } else if (!mAnimation.isActive()) {
        mClock.start();
        mAnimation.start();
    }
    update();
}

QSize PictureUploadPreview::sizeHint() const
{
    return QSize(vorlinmodel::PhysicalKeyWidth, vorlinmodel::PhysicalKeyHeight) * Scale;
}

void PictureUploadPreview::paintEvent(QPaintEvent *)
{
    QSize shown = mSize.scaled(size(), Qt::KeepAspectRatio);
    if (shown.width() > mSize.width() * Scale)
        shown = mSize * Scale;
    const double phase = mAnimation.isActive() ? double(mClock.elapsed() % vorlinmodel::EffectRoundMs) /
                                                     vorlinmodel::EffectRoundMs
                                               : 0;
    QImage image = vorlinmodel::renderKeyFace(mFace, mSize, phase, shown * devicePixelRatioF());
    image.setDevicePixelRatio(devicePixelRatioF());
    QPainter painter(this);
    painter.drawImage(QPoint(0, 0), image);
    painter.setPen(QColor(Style::InactiveCell));
    painter.drawRect(QRect({0, 0}, shown).adjusted(0, 0, -1, -1));
}
