#include "layoutlist.h"

#include "base/language.h"
#include "layoutitem.h"
#include "layoutnames.h"

#include <QGridLayout>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTimer>

namespace {

constexpr int NewText = 93;
constexpr int Width = 220; // pixels

} // namespace

LayoutList::LayoutList(const vorlindesk::LanguageManager &language, QWidget *parent)
    : QWidget(parent)
    , mLanguage(language)
    , mpList(new QListWidget(this))
    , mpNew(new QPushButton(this))
    , mpDuplicate(new QPushButton(this))
    , mpDelete(new QPushButton(this))
{
    setFixedWidth(Width);
    mpList->setObjectName(QStringLiteral("layouts"));
    mpList->setItemDelegate(new LayoutItemDelegate(mpList));
    mpList->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff); // names are elided
    mpNew->setObjectName(QStringLiteral("newLayout"));
    mpDuplicate->setObjectName(QStringLiteral("duplicateLayout"));
    mpDelete->setObjectName(QStringLiteral("deleteLayout"));
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(mpList, 0, 0, 1, 2);
    layout->addWidget(mpNew, 1, 0, 1, 2);
    layout->addWidget(mpDuplicate, 2, 0);
    layout->addWidget(mpDelete, 2, 1);
    connect(mpList, &QListWidget::currentRowChanged, this, &LayoutList::onCurrentRowChanged);
    connect(mpList, &QListWidget::itemActivated, this, &LayoutList::sigActivated);
    connect(mpNew, &QPushButton::clicked, this, &LayoutList::sigNew);
    connect(mpDuplicate, &QPushButton::clicked, this, &LayoutList::sigDuplicate);
    connect(mpDelete, &QPushButton::clicked, this, &LayoutList::sigDelete);
    retranslate();
}

void LayoutList::setEntries(const QVector<LayoutEntry> &entries)
{
    if (entries == mEntries)
        return;
    const QSignalBlocker blocker(mpList);
    const int before = chosen();
    mEntries = entries;
    while (mpList->count() > entries.size())
        delete mpList->takeItem(mpList->count() - 1);
    while (mpList->count() < entries.size())
        mpList->addItem(QString());
    for (int row = 0; row < entries.size(); ++row)
        showEntry(row);
    choose(before);
}

void LayoutList::showEntry(int row)
{
    const LayoutEntry &entry = mEntries.at(row);
    QListWidgetItem *item = mpList->item(row);
    const QString text = description(entry);
    item->setText(entry.name);
    item->setData(Qt::UserRole, entry.layoutId);
    item->setData(LayoutItemDelegate::KeysRole, tr("Keys: %1").arg(entry.keys));
    item->setData(LayoutItemDelegate::HomeRole, entry.isHome);
    item->setData(LayoutItemDelegate::PendingRole, entry.isPending);
    item->setData(LayoutItemDelegate::ChangedRole, entry.isChanged);
    item->setToolTip(text.toHtmlEscaped().replace(QLatin1Char('\n'), QStringLiteral("<br>")));
    item->setData(Qt::AccessibleDescriptionRole, text);
}

QString LayoutList::description(const LayoutEntry &entry) const
{
    QStringList lines{entry.name, tr("Keys: %1").arg(entry.keys)};
    if (entry.isChanged)
        lines.append(tr("Not saved yet"));
    if (entry.isPending)
        lines.append(tr("Not on the panel yet"));
    if (entry.isHome)
        lines.append(tr("Home layout of the panel"));
    return lines.join(QLatin1Char('\n'));
}

int LayoutList::chosen() const
{
    const QListWidgetItem *item = mpList->currentItem();
    return item ? item->data(Qt::UserRole).toInt() : 0;
}

void LayoutList::choose(int layoutId)
{
    const QSignalBlocker blocker(mpList);
    for (int row = 0; row < mEntries.size(); ++row) {
        if (mEntries.at(row).layoutId == layoutId)
            mpList->setCurrentRow(row);
    }
    mpDelete->setEnabled(layoutId > StandardLayoutId);
}

void LayoutList::onCurrentRowChanged()
{
    mpDelete->setEnabled(chosen() > StandardLayoutId);
    emit sigChosen(chosen());
    // A press of the mouse marks the pressed row after this, also when the person has decided to stay.
    QTimer::singleShot(0, this, [this] { choose(chosen()); });
}

void LayoutList::retranslate()
{
    mpNew->setText(mLanguage.Text(NewText));
    mpDuplicate->setText(tr("Duplicate"));
    mpDelete->setText(mLanguage.Text(vorlindesk::TextId::Delete));
    mpList->setAccessibleName(tr("Layouts"));
    for (int row = 0; row < mEntries.size(); ++row)
        showEntry(row);
}
