// What the person does on the page of the layouts.
#include "backgroundbox.h"
#include "base/iframeworkcontext.h"
#include "base/language.h"
#include "layoutgrid.h"
#include "layoutlist.h"
#include "layoutnames.h"
#include "layoutpage.h"
#include "model/customlayouts.h"
#include "model/functioncatalogue.h"
#include "model/ifunctionmanager.h"
#include "ui_common/messagebox.h"
#include "ui_editor/editorcontext.h"
#include "ui_editor/limitedtext.h"
#include "ui_editor/textlimit.h"

using vorlinmodel::key_id_t;

namespace {

constexpr int SaveText = 66;
constexpr int TooManyText = 122;
constexpr int MostNamed = 6; // keys; a question that fills the screen is not read

int keysWithFunction(int layoutId, const vorlinmodel::IFunctionManager &store)
{
    int count = 0;
    for (const key_id_t &key : store.getKeys()) {
        const auto record = key.lid == layoutId ? store.getKeyAttribute(key) : std::nullopt;
        count += record && record->mFId != 0 ? 1 : 0;
    }
    return count;
}

/// Ends the step that was begun; one in which nothing was done leaves the history again.
void endStep(QUndoStack &history)
{
    history.endMacro();
    const QUndoCommand *step = history.command(history.index() - 1);
    if (!step || step->childCount() != 0)
        return;
    const_cast<QUndoCommand *>(step)->setObsolete(true); // the stack offers no other way to its last step
    history.undo();
}

/// @return @p pattern with @p name in place of %1, the name shortened to what the panel has room for.
QString fitting(const QString &pattern, QString name)
{
    while (!name.isEmpty() &&
           TextLimit::check(pattern.arg(name), TextLimit::Encoding::Gbk).bytes > TextLimit::MaxBytes)
        name.chop(name.size() > 1 && name.at(name.size() - 1).isLowSurrogate() ? 2 : 1);
    return pattern.arg(name);
}

} // namespace

bool LayoutPage::hasChanges() const
{
    return mDraft.layoutId() > StandardLayoutId &&
           (mDraft.isChanged() || mpTitle->isUnsent() || mpBackground->isBusy());
}

bool LayoutPage::confirmLeave()
{
    if (!hasChanges())
        return true;
    const auto &language = *mContext.framework.languageManager();
    const QString name = layoutName(mDraft.layoutId(), mDraft.value().name, language);
    const MessageBox::Question question{.text = tr("Save the changes to the layout \"%1\"?").arg(name),
                                        .explanation = tr("What is not saved is lost."),
                                        .buttons =
                                            QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel,
                                        .preset = QMessageBox::Save,
                                        .captions = {{QMessageBox::Save, language.Text(SaveText)},
                                                     {QMessageBox::Discard, tr("Discard")},
                                                     {QMessageBox::Cancel, tr("Cancel")}}};
    switch (MessageBox::question(this, question)) {
    case QMessageBox::Save:
        return save();
    case QMessageBox::Discard:
        load(mDraft.isNew() ? StandardLayoutId : mDraft.layoutId());
        return true;
    default:
        return false;
    }
}

void LayoutPage::onChosen(int layoutId)
{
    if (layoutId == mDraft.layoutId())
        return;
    if (confirmLeave())
        load(layoutId);
    else
        mpList->choose(mDraft.layoutId());
}

bool LayoutPage::hasRoom()
{
    if (mContext.layouts.freeId() != 0)
        return true;
    MessageBox::warn(this, mContext.framework.languageManager()->Text(TooManyText));
    return false;
}

void LayoutPage::onNew()
{
    if (!confirmLeave() || !hasRoom())
        return;
    const int layoutId = mContext.layouts.freeId();
    LayoutDraft::Value value;
    value.name = tr("Layout %1").arg(layoutId);
    mMessage.clear();
    mDraft.start(layoutId, value);
    mpBackground->forget();
    mpTitle->showStored(value.name, true);
    mpGrid->select(0);
    showNotice();
    mpTitle->focusField();
}

void LayoutPage::onDuplicate()
{
    const int layoutId = mDraft.layoutId();
    const bool stays = confirmLeave() && layoutId == mDraft.layoutId(); // a discarded one is gone
    if (!stays || !hasRoom())
        return;
    const QString name =
        fitting(tr("%1 (copy)"), layoutName(layoutId, *mContext.framework.languageManager()));
    int newId = 0;
    const QString problem = mContext.layouts.duplicate(layoutId, name, &newId);
    if (problem.isEmpty())
        load(newId);
    else
        MessageBox::warn(this, problem);
}

void LayoutPage::onDelete()
{
    const int layoutId = mDraft.layoutId();
    if (layoutId <= StandardLayoutId)
        return;
    const auto &language = *mContext.framework.languageManager();
    const int keys = mDraft.isNew() ? 0 : keysWithFunction(layoutId, mContext.edits.store());
    QString explanation = keys == 0 ? tr("None of its keys has a function.")
                                    : tr("Keys with a function that go with it, on all pages: %1").arg(keys);
    if (layoutId == mHomeLayout)
        explanation +=
            QLatin1Char('\n') + tr("It is the home layout: choose another one for the panel to start with.");
    const MessageBox::Question question{
        .text = tr("Delete the layout \"%1\"?").arg(layoutName(layoutId, mDraft.value().name, language)),
        .explanation = explanation,
        .buttons = QMessageBox::Yes | QMessageBox::Cancel,
        .preset = QMessageBox::Cancel,
        .captions = {{QMessageBox::Yes, language.Text(vorlindesk::TextId::Delete)},
                     {QMessageBox::Cancel, tr("Cancel")}}};
    if (MessageBox::question(this, question) != QMessageBox::Yes)
        return;
    const QString problem = mDraft.isNew() ? QString() : mContext.layouts.remove(layoutId);
    if (problem.isEmpty())
        load(StandardLayoutId);
    else
        MessageBox::warn(this, problem);
}

void LayoutPage::onMerge()
{
    const auto &grouping = mDraft.value().grouping;
    if (mDraft.layoutId() != StandardLayoutId && grouping.canMerge(mpGrid->selection()))
        mDraft.setGrouping(tr("Merge"), grouping.merged(mpGrid->selection()));
}

void LayoutPage::onSplit()
{
    const auto &grouping = mDraft.value().grouping;
    if (mDraft.layoutId() != StandardLayoutId && grouping.canSplit(mpGrid->selection()))
        mDraft.setGrouping(tr("Split"), grouping.split(mpGrid->selection()));
}

void LayoutPage::onPicture(const QString &path)
{
    QVector<int> pages = mDraft.value().pages;
    if (pages.isEmpty())
        pages = pagesWithKeys(mDraft.layoutId(), mContext.edits.store());
    if (pages.isEmpty())
        pages = {1};
    mMessage.clear();
    showNotice();
    mDraft.setBackground(tr("Background"), path, pages);
}

void LayoutPage::undo()
{
    if (mDraft.history().canUndo())
        mDraft.history().undo();
    else
        mContext.edits.undo();
}

void LayoutPage::redo()
{
    if (mDraft.history().canRedo())
        mDraft.history().redo();
    else
        mContext.edits.redo();
}

bool LayoutPage::save()
{
    if (mpTitle->isUnsent()) {
        MessageBox::warn(this, tr("The title cannot be saved as it is: see the mark below it."));
        mpTitle->focusField();
        return false;
    }
    if (mpBackground->isBusy()) {
        MessageBox::warn(this, tr("The background is still being prepared. Save when it is shown."));
        return false;
    }
    if (!confirmLoss())
        return false;
    mIsSaving = true;
    const QString problem = store();
    mIsSaving = false;
    if (problem.isEmpty())
        load(mDraft.layoutId());
    else
        refreshHalfSaved();
    if (!problem.isEmpty())
        MessageBox::warn(this, problem);
    return problem.isEmpty();
}

/// The layout itself may be there, without its background.
void LayoutPage::refreshHalfSaved()
{
    if (const vorlinmodel::CustomLayout *layout = mStored.find(mDraft.layoutId()))
        mDraft.setStored(draftValueOf(layout));
    refresh();
}

/// @return what went wrong; empty when everything is stored.
QString LayoutPage::store()
{
    const LayoutDraft::Value &value = mDraft.value();
    const int layoutId = mDraft.layoutId();
    if (mDraft.isNew() && vorlinmodel::loadCustomLayout(layoutId)) // the panel's, and no number is free
        return mContext.framework.languageManager()->Text(TooManyText);
    const bool isGroupingChanged =
        mDraft.isNew() || value.name != mDraft.stored().name || !(value.grouping == mDraft.stored().grouping);
    QUndoStack &history = mContext.edits.history();
    mContext.edits.flush();
    const bool isBoth = isGroupingChanged && mDraft.isBackgroundChanged();
    if (isBoth)
        history.beginMacro(tr("Save the layout"));
    QString problem;
    if (isGroupingChanged)
        problem = mContext.layouts.save(vorlinmodel::customLayoutOf(layoutId, value.name, value.grouping));
    if (problem.isEmpty() && mDraft.isBackgroundChanged())
        problem = mContext.layouts.setBackground(
            layoutId, {.file = value.background, .pages = value.pages, .emptyKeysToo = value.emptyKeysToo});
    if (isBoth)
        endStep(history);
    return problem;
}

/// Functions of keys that are merged away would be lost.
bool LayoutPage::confirmLoss()
{
    const auto layout =
        vorlinmodel::customLayoutOf(mDraft.layoutId(), mDraft.value().name, mDraft.value().grouping);
    const QVector<key_id_t> lost = mContext.layouts.keysLost(layout);
    if (lost.isEmpty())
        return true;
    QStringList names;
    for (const key_id_t &key : lost.mid(0, MostNamed))
        names.append(nameOfKey(key));
    if (lost.size() > MostNamed)
        names.append(tr("And %1 more").arg(lost.size() - MostNamed));
    const auto &language = *mContext.framework.languageManager();
    const MessageBox::Question question{
        .text = tr("These keys lose their functions, since they become part of others:"),
        .explanation = names.join(QLatin1Char('\n')),
        .buttons = QMessageBox::Save | QMessageBox::Cancel,
        .preset = QMessageBox::Cancel,
        .captions = {{QMessageBox::Save, language.Text(SaveText)}, {QMessageBox::Cancel, tr("Cancel")}}};
    return MessageBox::question(this, question) == QMessageBox::Save;
}

QString LayoutPage::nameOfKey(const key_id_t &key) const
{
    const auto record = mContext.edits.store().getKeyAttribute(key);
    const int function = record ? vorlinmodel::FunctionCatalogue::textId(record->mFId) : 0;
    const QString title = record ? record->strTitle.simplified() : QString();
    const QString what = title.isEmpty() ? mContext.framework.languageManager()->Text(function) : title;
    return tr("Page %1, key %2: %3").arg(key.pageid).arg(key.kid).arg(what);
}
