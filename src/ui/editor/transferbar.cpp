#include "transferbar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

namespace {

constexpr int ProgressHeight = 8; // pixels
constexpr char BarStyle[] =
    "#transferBar {background-color: rgb(36, 50, 62);border: 1px solid rgb(0, 110, 175);border-radius: 4px;}"
    "#transferBar QLabel {background-color: transparent;color: white;border: none;}"
    "#transferBar #transferWaiting {color: rgb(170, 185, 195);}"
    "#transferBar QProgressBar {background-color: rgb(24, 32, 40);border: none;border-radius: 4px;}"
    "#transferBar QProgressBar::chunk {background-color: rgb(0, 160, 255);border-radius: 4px;}"
    "#transferBar QPushButton {background-color: rgb(58, 72, 84);color: white;border: 1px solid "
    "rgb(108, 108, 108);border-radius: 4px;padding: 2px 12px;}"
    "#transferBar QPushButton:hover, #transferBar QPushButton:focus {border-color: rgb(0, 160, 255);}"
    "#transferBar QPushButton:disabled {color: rgb(130, 140, 148);}";

} // namespace

TransferBar::TransferBar(VideoPlacement &videos, QWidget *parent)
    : QFrame(parent)
    , mVideos(videos)
    , mpText(new QLabel(this))
    , mpProgress(new QProgressBar(this))
    , mpWaiting(new QLabel(this))
    , mpCancel(new QPushButton(this))
{
    setObjectName(QStringLiteral("transferBar"));
    setStyleSheet(QString::fromLatin1(BarStyle));
    mpText->setObjectName(QStringLiteral("transferText"));
    mpProgress->setObjectName(QStringLiteral("transferProgress"));
    mpWaiting->setObjectName(QStringLiteral("transferWaiting"));
    mpCancel->setObjectName(QStringLiteral("transferCancel"));
    mpText->setTextFormat(Qt::PlainText);
    mpText->setMinimumWidth(0);
    mpText->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    mpProgress->setTextVisible(false);
    mpProgress->setFixedHeight(ProgressHeight);
    mpProgress->setMinimumWidth(40);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(10, 3, 4, 3);
    layout->setSpacing(10);
    layout->addWidget(mpText, 8);
    layout->addWidget(mpProgress, 2);
    layout->addWidget(mpWaiting);
    layout->addWidget(mpCancel);
    hide();
    retranslate();

    mShowTimer.setSingleShot(true);
    mShowTimer.setInterval(ShowAfter);
    connect(&mShowTimer, &QTimer::timeout, this, &QWidget::show);
    connect(mpCancel, &QPushButton::clicked, this, &TransferBar::cancel);
    connect(&mVideos, &VideoPlacement::sigActivity, this, &TransferBar::refresh);
    refresh();
}

void TransferBar::refresh()
{
    const auto activity = mVideos.activity();
    if (!activity) {
        mShowTimer.stop();
        hide();
        return;
    }
    showActivity(*activity);
    if (isHidden() && !mShowTimer.isActive())
        mShowTimer.start();
}

void TransferBar::showActivity(const VideoPlacement::Activity &activity)
{
    mKey = activity.key;
    setAccessibleName(describe(activity));
    mpText->setToolTip(accessibleName());
    // A long name gives way in its middle; of the blocks, the sum can be done without.
    const bool isName = activity.stage == VideoPlacement::Stage::Converting;
    mElision = isName ? Qt::ElideMiddle : Qt::ElideRight;
    fitText();
    mpProgress->setMaximum(qMax(activity.all, 1));
    mpProgress->setValue(activity.done);
    mpProgress->setAccessibleName(accessibleName());
    mpWaiting->setVisible(activity.waiting > 0);
    mpWaiting->setText(activity.waiting == 1 ? tr("1 more waits") : tr("%1 more wait").arg(activity.waiting));
    mpCancel->setAccessibleName(tr("Cancel the video for key %1").arg(activity.key.kid));
    mpCancel->setToolTip(mpCancel->accessibleName());
}

void TransferBar::fitText()
{
    mpText->setText(mpText->fontMetrics().elidedText(accessibleName(), mElision, mpText->width()));
}

void TransferBar::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    layout()->activate(); // else the label has its new width later
    fitText();
}

QString TransferBar::describe(const VideoPlacement::Activity &activity) const
{
    if (activity.stage == VideoPlacement::Stage::Converting) // the name last: it may hold a "%2"
        return tr("Converting %1 ... %2 %")
            .replace(QLatin1String("%2"), QString::number(activity.percent()))
            .replace(QLatin1String("%1"), activity.name);
    if (activity.all == 0)
        return tr("Sending to key %1 ...").arg(activity.key.kid);
    return tr("Sending to key %1 ... %2 of %3 blocks")
        .arg(activity.key.kid)
        .arg(activity.done)
        .arg(activity.all);
}

void TransferBar::cancel()
{
    mVideos.cancel(mKey);
}

void TransferBar::retranslate()
{
    mpCancel->setText(tr("Cancel"));
    if (const auto activity = mVideos.activity())
        showActivity(*activity);
}
