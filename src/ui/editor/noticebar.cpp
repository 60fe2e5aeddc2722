#include "noticebar.h"

#include "ui_common/knownpicture.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

namespace {

constexpr char BarStyle[] =
    "#noticeBar {background-color: rgb(64, 56, 30);border: 1px solid rgb(190, 150, 40);border-radius: 4px;}"
    "#noticeBar QLabel {background-color: transparent;color: white;border: none;}"
    "#noticeBar QToolButton {background-color: transparent;color: white;border: 1px solid transparent;"
    "border-radius: 4px;}"
    "#noticeBar QToolButton:hover, #noticeBar QToolButton:focus {border-color: rgb(0, 160, 255);}";

} // namespace

NoticeBar::NoticeBar(QWidget *parent)
    : QFrame(parent)
    , mpText(new QLabel(this))
    , mpClose(new QToolButton(this))
{
    setObjectName(QStringLiteral("noticeBar"));
    setStyleSheet(QString::fromLatin1(BarStyle));
    mpText->setObjectName(QStringLiteral("noticeText"));
    mpText->setTextFormat(Qt::PlainText);
    mpText->setWordWrap(true);
    mpClose->setObjectName(QStringLiteral("noticeClose"));
    mpClose->setIcon(knownIcon(QStringLiteral(":/icon/edit/close.png")));
    mpClose->setIconSize(QSize(16, 16));
    mTimer.setSingleShot(true);
    mTimer.setInterval(ShowTime);
    connect(&mTimer, &QTimer::timeout, this, &QWidget::hide);
    connect(mpClose, &QToolButton::clicked, this, &QWidget::hide);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(10, 3, 4, 3);
    layout->addWidget(mpText, 1);
    layout->addWidget(mpClose);
    hide();
    retranslate();
}

void NoticeBar::notify(const QString &text)
{
    mpText->setText(text);
    setAccessibleName(text);
    show();
    mTimer.start();
    QAccessibleEvent event(this, QAccessible::Alert); // read out at once
    QAccessible::updateAccessibility(&event);
}

QString NoticeBar::text() const
{
    return isHidden() ? QString() : mpText->text();
}

void NoticeBar::retranslate()
{
    mpClose->setToolTip(tr("Close"));
    mpClose->setAccessibleName(tr("Close"));
}
