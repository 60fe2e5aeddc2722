#include "brightnessrow.h"

#include "base/iframeworkcontext.h"
#include "ui_common/style.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSlider>

namespace {

constexpr int LargeStep = 10; // page keys, and a click beside the handle
constexpr int ValueWidth = 110;
constexpr int WidestSlider = 420;

} // namespace

BrightnessRow::BrightnessRow(vorlindesk::IFrameworkContext &context, QWidget *parent)
    : QWidget(parent)
    , mContext(context)
    , mpSlider(new QSlider(Qt::Horizontal, this))
    , mpValue(new QLabel(this))
{
    setStyleSheet(QString::fromLatin1(Style::Slider));
    mpSlider->setObjectName(QStringLiteral("brightnessSlider"));
    mpSlider->setRange(0, Brightest);
    mpSlider->setPageStep(LargeStep);
    mpSlider->setMaximumWidth(WidestSlider);
    mpSlider->installEventFilter(this);
    mpValue->setObjectName(QStringLiteral("brightness"));
    mpValue->setTextFormat(Qt::PlainText);
    mpValue->setMinimumWidth(ValueWidth);
    setFocusProxy(mpSlider);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(16);
    layout->addWidget(mpSlider, 1);
    layout->addWidget(mpValue);
    layout->addStretch();
    mRest.setSingleShot(true);
    mRest.setInterval(Rest);
    connect(&mRest, &QTimer::timeout, this, &BrightnessRow::send);
    connect(mpSlider, &QSlider::valueChanged, this, [this](int value) {
        mpValue->setText(QString::number(value));
        mRest.start();
    });
    connect(mpSlider, &QSlider::sliderReleased, this, &BrightnessRow::refresh);
}

void BrightnessRow::showPanel(bool connected, const QString &reported)
{
    mReported = reported;
    if (!connected)
        mRest.stop();
    mpSlider->setEnabled(connected);
    mpSlider->setToolTip(connected ? QString() : tr("The panel is not connected."));
    refresh();
}

void BrightnessRow::retranslate()
{
    mpSlider->setToolTip(mpSlider->isEnabled() ? QString() : tr("The panel is not connected."));
    refresh();
}

/// By the person: what the panel says meanwhile must not pull the handle away.
bool BrightnessRow::isMoved() const
{
    return mRest.isActive() || mpSlider->isSliderDown();
}

void BrightnessRow::refresh()
{
    if (isMoved())
        return;
    const QSignalBlocker notByThePerson(mpSlider);
    mpSlider->setValue(mReported.toInt()); // a panel may report more than can be set
    mpValue->setText(mReported.isEmpty() ? tr("not known yet") : mReported);
}

/// The panel answers only when it is asked: so the value is asked for behind the one that was set.
void BrightnessRow::send()
{
    using vorlinmodel::RequestKind;
    mContext.sendRequest(RequestKind::MD_FUNCTION_CODE_LCD_LIGHT, mpSlider->value());
    mContext.sendRequest(RequestKind::MD_FUNCTION_CODE_LCD_LIGHT, Query);
}

/// The wheel scrolls the page, unless the person has turned to the slider.
bool BrightnessRow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Wheel || mpSlider->hasFocus())
        return QWidget::eventFilter(watched, event);
    event->ignore();
    return true;
}
