#include "upgradeprogress.h"

#include "upgradetext.h"

#include <QGridLayout>
#include <QLabel>
#include <QProgressBar>

namespace {

constexpr int TickPeriod = 250; // ms
constexpr int BarHeight = 20;

} // namespace

QString clockText(qint64 milliseconds)
{
    const qint64 seconds = milliseconds / 1000;
    return QStringLiteral("%1:%2").arg(seconds / 60).arg(seconds % 60, 2, 10, QLatin1Char('0'));
}

qint64 remainingMilliseconds(qint64 elapsedMs, int sent, int all)
{
    return sent > 0 ? elapsedMs * (all - sent) / sent : -1;
}

UpgradeProgress::UpgradeProgress(QWidget *parent)
    : QWidget(parent)
    , mpBar(new QProgressBar(this))
    , mpBlocks(new QLabel(this))
    , mpElapsed(new QLabel(this))
    , mpRemaining(new QLabel(this))
{
    mpBar->setObjectName(QStringLiteral("progressBar"));
    mpBar->setStyleSheet(QString::fromLatin1(UpgradeText::BarStyle));
    mpBar->setFixedHeight(BarHeight);
    mpBlocks->setObjectName(QStringLiteral("blocks"));
    mpElapsed->setObjectName(QStringLiteral("elapsed"));
    mpRemaining->setObjectName(QStringLiteral("remaining"));
    for (QLabel *label : {mpBlocks, mpElapsed, mpRemaining})
        label->setStyleSheet(QString::fromLatin1(UpgradeText::LabelStyle));
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(mpBar, 0, 0, 1, 3);
    layout->addWidget(mpBlocks, 1, 0, Qt::AlignLeft);
    layout->addWidget(mpElapsed, 1, 1, Qt::AlignHCenter);
    layout->addWidget(mpRemaining, 1, 2, Qt::AlignRight);
    for (int column = 0; column < 3; ++column)
        layout->setColumnStretch(column, 1);
    mpBar->setValue(0);
    mTick.setInterval(TickPeriod);
    connect(&mTick, &QTimer::timeout, this, [this] {
        showTimes();
        emit sigTick();
    });
}

void UpgradeProgress::begin()
{
    mSent = mAll = 0;
    mTransfer.invalidate();
    mRunning.start();
    mHeard.start();
    mTick.start();
    mpBar->setRange(0, 1);
    mpBar->setValue(0);
    showTimes();
}

void UpgradeProgress::setBlocks(int sent, int all)
{
    if (!mTransfer.isValid()) {
        mTransfer.start();
        mFirst = sent;
    }
    mSent = sent;
    mAll = all;
    mpBar->setRange(0, all);
    mpBar->setValue(sent);
    showTimes();
}

void UpgradeProgress::end()
{
    showTimes();
    mTick.stop();
    mpRemaining->clear();
}

qint64 UpgradeProgress::silence() const
{
    return mTick.isActive() ? mHeard.elapsed() : 0;
}

void UpgradeProgress::retranslate()
{
    showTimes();
}

void UpgradeProgress::showTimes()
{
    if (!mRunning.isValid())
        return;
    if (mTick.isActive())
        mElapsed = mRunning.elapsed();
    mpBlocks->setText(mAll > 0 ? tr("Block %1 of %2").arg(mSent).arg(mAll) : QString());
    mpElapsed->setText(tr("Elapsed: %1").arg(clockText(mElapsed)));
    const qint64 remaining =
        mTransfer.isValid() ? remainingMilliseconds(mTransfer.elapsed(), mSent - mFirst, mAll - mFirst) : -1;
    const bool known = mTick.isActive() && remaining >= 0;
    mpRemaining->setText(known ? tr("Remaining: about %1").arg(clockText(remaining)) : QString());
}
