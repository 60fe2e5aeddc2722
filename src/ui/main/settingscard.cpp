#include "settingscard.h"

#include <QGridLayout>
#include <QLabel>

namespace {

constexpr int LeftColumn = 200; // pixels; the longest caption in 14 pixels, and buttons with their padding
constexpr int Margin = 16;

} // namespace

SettingsCard::SettingsCard(QWidget *parent)
    : QFrame(parent)
    , mpCaption(new QLabel(this))
    , mpRows(new QGridLayout)
{
    mpCaption->setObjectName(QStringLiteral("cardCaption"));
    mpCaption->setTextFormat(Qt::PlainText);
    mpCaption->hide();
    mpRows->setHorizontalSpacing(16);
    mpRows->setVerticalSpacing(12);
    mpRows->setColumnMinimumWidth(0, LeftColumn);
    mpRows->setColumnStretch(1, 1);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin - 4, Margin, Margin);
    layout->setSpacing(12);
    layout->addWidget(mpCaption);
    layout->addLayout(mpRows);
}

void SettingsCard::setCaption(const QString &caption)
{
    mpCaption->setText(caption);
    mpCaption->setVisible(!caption.isEmpty());
}

/// In the row below the last one.
void SettingsCard::addLeft(QWidget *left)
{
    left->setFixedWidth(LeftColumn);
    mpRows->addWidget(left, mpRows->rowCount(), 0, Qt::AlignVCenter);
}

QLabel *SettingsCard::addRow(QWidget *content)
{
    auto *caption = new QLabel(this);
    caption->setTextFormat(Qt::PlainText);
    caption->setWordWrap(true);
    caption->setBuddy(content);
    addLeft(caption);
    mpRows->addWidget(content, mpRows->rowCount() - 1, 1);
    return caption;
}

void SettingsCard::addActionRow(QWidget *action, QLabel *explanation)
{
    addLeft(action);
    mpRows->addWidget(explanation, mpRows->rowCount() - 1, 1);
}

void SettingsCard::addWide(QWidget *content)
{
    mpRows->addWidget(content, mpRows->rowCount(), 0, 1, 2);
}

QLabel *explanationLabel(QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setObjectName(QStringLiteral("explanation"));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}
