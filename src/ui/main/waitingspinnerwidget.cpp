#include "waitingspinnerwidget.h"

#include "base/log.h"
#include "logtext.h"

#include <QPainter>
#include <cmath>

using vorlindesk::Log;
using vorlindesk::LogLevel;

WaitingSpinnerWidget::WaitingSpinnerWidget(QWidget *parent)
    : QWidget(parent)
{
    constexpr int side = 2 * (LineLength + InnerRadius);
    setFixedSize(side, side);
    setObjectName(QStringLiteral("spinner"));
    mAnimation.setObjectName(QStringLiteral("animation"));
    mAnimation.setInterval(static_cast<int>(1000 / (NumberOfLines * RevolutionsPerSecond)));
    mShowTime.setObjectName(QStringLiteral("showTime"));
    mShowTime.setSingleShot(true);
    connect(&mAnimation, &QTimer::timeout, this, &WaitingSpinnerWidget::onAnimate);
    connect(&mShowTime, &QTimer::timeout, this, &WaitingSpinnerWidget::onShowTimeout);
    hide();
}

void WaitingSpinnerWidget::start(int requestId, int showTimeMs)
{
    Log(LogLevel::Info, LogText::ShowWaitingDialog, requestId);
    centreOnParent();
    mRequestId = requestId;
    mShowTime.setInterval(qMax(0, showTimeMs));
    Log(LogLevel::Info, LogText::SetShowTime, mRequestId);
    show();
    raise();
    if (parentWidget()->isEnabled())
        mpFocus = parentWidget()->focusWidget();
    parentWidget()->setEnabled(false);
    mLeadingLine = 0;
    mAnimation.start();
    mShowTime.start();
}

void WaitingSpinnerWidget::stop()
{
    hide();
    parentWidget()->setEnabled(true);
    if (mpFocus && mpFocus->isEnabled())
        mpFocus->setFocus();
    mpFocus = nullptr;
    mAnimation.stop();
    mShowTime.stop();
    mRequestId = 0;
}

void WaitingSpinnerWidget::updateShowTime(int showTimeMs)
{
    if (mShowTime.isActive())
        mShowTime.setInterval(qMax(0, showTimeMs)); // starts the running timer anew
}

void WaitingSpinnerWidget::centreOnParent()
{
    move((parentWidget()->width() - width()) / 2, (parentWidget()->height() - height()) / 2);
}

void WaitingSpinnerWidget::onShowTimeout()
{
    const int requestId = mRequestId;
    Log(LogLevel::Info, LogText::StopSpinner, requestId);
    stop();
    emit sigRequestId(requestId);
}

void WaitingSpinnerWidget::onAnimate()
{
    mLeadingLine = (mLeadingLine + 1) % NumberOfLines;
    update();
}

qreal WaitingSpinnerWidget::lineOpacity(int distance)
{
    constexpr qreal least = MinimumTrailOpacity / 100;
    const qreal fadingLines = std::ceil((NumberOfLines - 1) * TrailFadePercentage / 100);
    return qMax(least, 1.0 - (1.0 - least) * distance / (fadingLines + 1));
}

void WaitingSpinnerWidget::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.translate(width() / 2.0, height() / 2.0);
    const QRectF line(InnerRadius, -LineWidth / 2.0, LineLength, LineWidth);
    for (int i = 0; i < NumberOfLines; ++i) {
        QColor colour(Colour);
        colour.setAlphaF(lineOpacity((mLeadingLine - i + NumberOfLines) % NumberOfLines));
        painter.setBrush(colour);
        painter.save();
        painter.rotate(360.0 * i / NumberOfLines);
        painter.drawRoundedRect(line, Roundness, Roundness, Qt::RelativeSize);
        painter.restore();
    }
}
