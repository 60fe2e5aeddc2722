// What the page of the layouts shows.
#include "backgroundbox.h"
#include "base/iframeworkcontext.h"
#include "layoutgrid.h"
#include "layoutlist.h"
#include "layoutnames.h"
#include "layoutpage.h"
#include "layouttools.h"
#include "model/customlayouts.h"
#include "ui_editor/editorcontext.h"
#include "ui_editor/limitedtext.h"

#include <QAccessible>
#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <algorithm>

namespace {

/// Keys of a stored layout that lie anywhere on the panel.
int keyCount(const vorlinmodel::CustomLayout *layout)
{
    if (!layout)
        return vorlinmodel::LastKeyId;
    return int(std::count_if(layout->keys.cbegin(), layout->keys.cend(),
                             [](const vorlinmodel::CustomLayoutKey &key) { return key.mask != 0; }));
}

QString withShortcut(const QString &text, const QAction &action)
{
    return QStringLiteral("%1 (%2)").arg(text.toHtmlEscaped(),
                                         action.shortcut().toString(QKeySequence::NativeText));
}

} // namespace

void LayoutPage::refresh()
{
    mStored.forget();
    if (mIsSaving) // half of it is not there yet
        return;
    alignDraft();
    showList();
    showNotice();
}

/// The layouts were changed elsewhere: by the history, or by the panel.
void LayoutPage::alignDraft()
{
    const QVector<int> ids = mStored.ids();
    const int id = mDraft.layoutId();
    if (!hasChanges()) {
        load(ids.contains(id) ? id : StandardLayoutId);
    } else if (!ids.contains(id)) {
        mDraft.setGone();
    } else if (!mDraft.isNew()) {
        mDraft.setStored(draftValueOf(mStored.find(id)));
    } else if (const int free = mContext.layouts.freeId()) { // another one has come under its number
        mDraft.start(free, LayoutDraft::Value(mDraft.value()));
    }
}

void LayoutPage::load(int layoutId)
{
    const LayoutDraft::Value stored = draftValueOf(mStored.find(layoutId));
    const bool isOther = layoutId != mDraft.layoutId();
    mMessage.clear();
    mDraft.load(layoutId, stored);
    mpBackground->forget();
    mpTitle->showStored(draftName(), true);
    mpTitle->findChild<QLineEdit *>()->setCursorPosition(0); // a long name is seen from its beginning
    if (isOther)
        mpGrid->select(0);
    showList();
    mpList->choose(layoutId);
    showNotice();
}

/// The standard layout has a name that is not the person's.
QString LayoutPage::draftName() const
{
    if (mDraft.layoutId() == StandardLayoutId)
        return layoutName(StandardLayoutId, *mContext.framework.languageManager());
    return mDraft.value().name;
}

void LayoutPage::showDraft()
{
    const LayoutDraft::Value &value = mDraft.value();
    const bool isOwn = mDraft.layoutId() != StandardLayoutId;
    mpTitle->setEnabled(isOwn);
    mpTitle->showStored(draftName(), false);
    mpBackground->showValue(value, isOwn);
    mpTools->showState(value.grouping, mpGrid->selection(), isOwn);
    const int keys =
        mDraft.isChanged() ? value.grouping.masks().size() : keyCount(mStored.find(mDraft.layoutId()));
    mpTools->setNote(tr("Keys: %1, page %2").arg(keys).arg(mpGrid->shownPage()));
    mpSave->setEnabled(isOwn && mDraft.isChanged() && !mpBackground->isBusy());
    mpShow->setEnabled(!mDraft.isNew());
    showHome();
    showList();
}

void LayoutPage::showList()
{
    QVector<int> ids = mStored.ids();
    if (mDraft.layoutId() != 0 && !ids.contains(mDraft.layoutId()))
        ids.append(mDraft.layoutId()); // a new one
    QVector<LayoutEntry> entries;
    for (const int id : qAsConst(ids)) {
        const bool isDraft = id == mDraft.layoutId() && mDraft.isChanged();
        const vorlinmodel::CustomLayout *stored = mStored.find(id);
        const QString ownName = isDraft ? mDraft.value().name : stored ? stored->name : QString();
        LayoutEntry entry;
        entry.layoutId = id;
        entry.name = layoutName(id, ownName, *mContext.framework.languageManager());
        entry.keys = isDraft ? mDraft.value().grouping.masks().size() : keyCount(stored);
        entry.isHome = id == mHomeLayout;
        entry.isPending = mContext.layouts.isPending(id);
        entry.isChanged = isDraft;
        entries.append(entry);
    }
    mpList->setEntries(entries);
    mpList->choose(mDraft.layoutId());
}

/// Undo takes back the draft first, then what was edited before it.
void LayoutPage::showHistory()
{
    QUndoStack &keys = mContext.edits.history();
    QUndoStack &undoes = mDraft.history().canUndo() ? mDraft.history() : keys;
    QUndoStack &redoes = mDraft.history().canRedo() ? mDraft.history() : keys;
    const QString undoText = undoes.canUndo() ? tr("Undo: %1").arg(undoes.undoText()) : tr("Undo");
    const QString redoText = redoes.canRedo() ? tr("Redo: %1").arg(redoes.redoText()) : tr("Redo");
    mpUndo->defaultAction()->setEnabled(undoes.canUndo());
    mpRedo->defaultAction()->setEnabled(redoes.canRedo());
    mpUndo->setToolTip(withShortcut(undoText, *mpUndo->defaultAction()));
    mpRedo->setToolTip(withShortcut(redoText, *mpRedo->defaultAction()));
    mpUndo->setAccessibleName(undoText);
    mpRedo->setAccessibleName(redoText);
}

void LayoutPage::showHome()
{
    const bool isHome = mDraft.layoutId() == mHomeLayout;
    QString reason;
    if (!mConnected)
        reason = tr("The panel is not connected.");
    else if (mDraft.isNew())
        reason = tr("The layout is not saved yet.");
    else if (isHome)
        reason = tr("It is the home layout.");
    mpHome->setEnabled(reason.isEmpty());
    mpHome->setToolTip(reason.isEmpty() ? tr("The panel shows it after its start") : reason);
}

void LayoutPage::notify(const QString &text)
{
    mMessage = text;
    showNotice();
}

void LayoutPage::showNotice()
{
    constexpr int most = 3; // the keys need the room
    const QStringList problems = mStored.problems();
    QStringList lines;
    if (!mMessage.isEmpty())
        lines.append(mMessage);
    if (!problems.isEmpty())
        lines.append(tr("Some layouts in the file cannot be used as they are. Nothing of the file is lost."));
    const int shown = problems.size() <= most ? problems.size() : most - 1;
    lines += problems.mid(0, shown);
    if (shown < problems.size())
        lines.append(tr("And %1 more").arg(problems.size() - shown));
    const QString text = lines.join(QLatin1Char('\n'));
    const bool isNews = text != mpNotice->text() && !text.isEmpty();
    mpNotice->setText(text);
    mpNotice->setToolTip(
        problems.join(QLatin1Char('\n')).toHtmlEscaped().replace(QLatin1Char('\n'), QStringLiteral("<br>")));
    mpNotice->setVisible(!text.isEmpty());
    if (!isNews)
        return;
    QAccessibleEvent event(mpNotice, QAccessible::Alert); // read out at once
    QAccessible::updateAccessibility(&event);
}
