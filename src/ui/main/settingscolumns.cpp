#include "settingscolumns.h"

#include <QVBoxLayout>
#include <algorithm>

namespace {

constexpr int Gap = 16;
constexpr int ScrollBarGap = 12; // between the groups and the bar that may stand beside them
constexpr int WidestGroup = SettingsColumns::TwoColumnsFrom; // of two on a very wide screen

void removeAll(QBoxLayout &layout)
{
    while (QLayoutItem *item = layout.takeAt(0))
        delete item; // not the widget
}

} // namespace

SettingsColumns::SettingsColumns(QWidget *parent)
    : QWidget(parent)
    , mpLeft(new QVBoxLayout)
    , mpRight(new QVBoxLayout)
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, ScrollBarGap, 0);
    layout->setSpacing(0);
    for (QBoxLayout *column : {mpLeft, mpRight}) {
        column->setSpacing(Gap);
        layout->addLayout(column, 1);
    }
}

void SettingsColumns::add(QWidget *group, Side side)
{
    group->setParent(this);
    group->setMaximumWidth(WidestGroup);
    mEntries.append({group, side});
    place();
}

void SettingsColumns::insertBefore(const QWidget *next, QWidget *group)
{
    const auto found = std::find_if(mEntries.cbegin(), mEntries.cend(),
                                    [next](const Entry &entry) { return entry.group == next; });
    const auto index = int(found - mEntries.cbegin());
    add(group, found == mEntries.cend() ? Side::Left : found->side);
    mEntries.move(mEntries.size() - 1, index);
    place();
}

void SettingsColumns::place()
{
    removeAll(*mpLeft);
    removeAll(*mpRight);
    for (const Entry &entry : qAsConst(mEntries))
        (mHasTwo && entry.side == Side::Right ? mpRight : mpLeft)->addWidget(entry.group);
    mpLeft->addStretch();
    mpRight->addStretch();
    auto *columns = static_cast<QBoxLayout *>(layout());
    columns->setSpacing(mHasTwo ? Gap : 0);
    columns->setStretchFactor(mpRight, mHasTwo ? 1 : 0);
}

void SettingsColumns::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    const bool hasTwo = width() >= TwoColumnsFrom;
    if (hasTwo == mHasTwo)
        return;
    mHasTwo = hasTwo;
    place();
}
