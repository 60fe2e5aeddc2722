#include "galleryprogress.h"

#include <QHBoxLayout>
#include <QProgressBar>
#include <QToolButton>

namespace {

constexpr int Patience = 300; // ms; what is done sooner needs no bar

constexpr char ProgressStyle[] =
    "QProgressBar {background-color: rgb(36, 36, 36);color: white;border: 1px solid rgb(92, 92, 92);"
    "border-radius: 4px;text-align: center;font-size: 12px;}"
    "QProgressBar::chunk {background-color: rgb(0, 110, 180);border-radius: 3px;}"
    "QToolButton {background-color: transparent;color: white;border: 1px solid transparent;"
    "border-radius: 4px;font-size: 14px;}"
    "QToolButton:hover, QToolButton:focus {border-color: rgb(0, 160, 255);}";

} // namespace

GalleryProgress::GalleryProgress(QWidget *parent)
    : QWidget(parent)
    , mpBar(new QProgressBar(this))
    , mpCancel(new QToolButton(this))
{
    setObjectName(QStringLiteral("galleryProgress"));
    setStyleSheet(QString::fromLatin1(ProgressStyle));
    mpBar->setFixedHeight(20);
    mpCancel->setObjectName(QStringLiteral("galleryCancel"));
    mpCancel->setText(QStringLiteral("\u00d7"));
    mpCancel->setFixedSize(22, 22);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(mpBar, 1);
    layout->addWidget(mpCancel);
    mTimer.setSingleShot(true);
    mTimer.setInterval(Patience);
    connect(&mTimer, &QTimer::timeout, this, &QWidget::show);
    connect(mpCancel, &QToolButton::clicked, this, &GalleryProgress::sigCancelled);
}

void GalleryProgress::begin()
{
    if (mRunning++ > 0)
        return;
    mpBar->setRange(0, 0); // how much there is shows later
    mTimer.start();
}

void GalleryProgress::end()
{
    if (--mRunning > 0)
        return;
    mTimer.stop();
    hide();
}

void GalleryProgress::showProgress(int done, int total)
{
    mpBar->setRange(0, total);
    mpBar->setValue(done);
    mpBar->setFormat(QStringLiteral("%1 / %2").arg(done).arg(total));
}

void GalleryProgress::retranslate()
{
    mpCancel->setToolTip(tr("Cancel"));
    mpCancel->setAccessibleName(tr("Cancel"));
}
