// Which page is in view, and the ways from one to another.
#include "functionconfigwidget.h"

#include "attributeeditor.h"
#include "base/iframeworkcontext.h"
#include "base/log.h"
#include "base/systemsettings.h"
#include "childpages.h"
#include "editorcontext.h"
#include "editorlogtext.h"
#include "edittoolbar.h"
#include "functionlist.h"
#include "keyboardwidget.h"
#include "keycommands.h"
#include "layoutbar.h"
#include "model/functionids.h"
#include "multiactionwidget.h"
#include "noticebar.h"
#include "pagenavigation.h"
#include "ui_common/messagebox.h"

#include <QAbstractButton>
#include <QPointer>
#include <QPushButton>
#include <QSplitter>

namespace SystemSettings = vorlindesk::SystemSettings;
using vorlindesk::Log;
using vorlindesk::LogLevel;
using vorlinmodel::key_id_t;
using vorlinmodel::RequestKind;

namespace {

constexpr int FirstPage = 1;
constexpr int NotSet = -1;

} // namespace

int FunctionConfigWidget::curLayoutId() const
{
    return mCurLayoutId;
}

int FunctionConfigWidget::curPageId() const
{
    return mCurPageId;
}

key_id_t FunctionConfigWidget::currentKey() const
{
    const KeyboardWidget *grid = mpGridArea->grid();
    return grid ? grid->currentKey() : key_id_t{};
}

/// @p frame is the current one.
void FunctionConfigWidget::showPage(KeyboardFrame &frame, int pageId, bool send)
{
    frame.nCurPage = pageId;
    mCurLayoutId = frame.nLayoutId;
    mCurPageId = pageId;
    KeyboardWidget *grid = gridOf(frame, pageId);
    mpGridArea->showGrid(grid);
    mpNavigation->showPage(pageId);
    if (send)
        selectOnPanel(frame.nLayoutId, pageId);
    mpAttributes->showKey(grid->currentKey());
}

void FunctionConfigWidget::selectOnPanel(int layoutId, int pageId)
{
    mContext.framework.sendRequest(RequestKind::MD_FUNCTION_CODE_SELECT_PAGE, layoutId, pageId);
}

void FunctionConfigWidget::setKeyboardCurLayoutAndPage(int layoutId, int pageId, bool send)
{
    Log(LogLevel::Info, EditorLogText::SetLayoutAndPage, layoutId, int(mKeyboardList.size()));
    if (pageId > mMaxPage) {
        Log(LogLevel::Error, EditorLogText::PageBeyondMaximum, pageId, mMaxPage);
        return;
    }
    KeyboardFrame *pFrameData = frameOf(layoutId);
    if (!pFrameData || pageId < FirstPage)
        return;
    if (!isFuncListForMultiAction) {
        makeCurrent(pFrameData);
        return showPage(*pFrameData, pageId, send);
    }
    pFrameData->nCurPage = pageId; // shown when the multi-action editor is left
    mCurLayoutId = layoutId;
    mCurPageId = pageId;
    if (send)
        selectOnPanel(layoutId, pageId);
}

void FunctionConfigWidget::turnPage(int step)
{
    KeyboardFrame *pFrameData = currentFrame();
    if (!pFrameData)
        return;
    const int pageId = pFrameData->nCurPage + step;
    if (pageId >= FirstPage && pageId <= mMaxPage)
        showPage(*pFrameData, pageId, true);
}

void FunctionConfigWidget::onKeyboardNextPageButtonClicked()
{
    turnPage(1);
}

void FunctionConfigWidget::onKeyboardPrevPageButtonClicked()
{
    turnPage(-1);
}

/// @p nSelPageId counts from 0.
void FunctionConfigWidget::onKeyboardSelPageButtonClicked(int nSelPageId)
{
    Log(LogLevel::Info, EditorLogText::SelectPage, nSelPageId);
    if (KeyboardFrame *pFrameData = currentFrame())
        turnPage(nSelPageId + 1 - pFrameData->nCurPage);
}

void FunctionConfigWidget::onKeyBtnClicked(const key_id_t &key_id_, int fid_, bool isDouble)
{
    if (!isDouble)
        return;
    switch (fid_) {
    case vorlinmodel::MULTIPLE_ACTIONS_FID:
        return openMultiActions(key_id_);
    case vorlinmodel::CHILDREN_PAGE_FID:
        return openChildPage(key_id_.kid);
    case vorlinmodel::RETURN_MAIN_FID:
        Log(LogLevel::Info, EditorLogText::ReturnToMain);
        return returnToMain();
    default:
        return;
    }
}

void FunctionConfigWidget::openMultiActions(const key_id_t &key)
{
    mContext.edits.flush();
    const KeyboardFrame *pFrameData = currentFrame();
    mCurLayoutId = pFrameData ? pFrameData->nLayoutId : 1;
    mCurPageId = pFrameData ? pFrameData->nCurPage : FirstPage;
    makeCurrent(nullptr);
    mpKeysView->hide();
    mSplitterSizes = mpSplitter->sizes();
    mpAttributes->setCompact(true);
    isFuncListForMultiAction = true;
    mpTools->setHistoryOn(false); // the steps on the screen would not follow
    emit sigmIsFuncListForMultiAction(true);
    refreshFunctionList();
    mpMultiActions->open(key, vorlinmodel::MULTIPLE_ACTIONS_FID);
    mpMultiActions->show();
}

void FunctionConfigWidget::onMultiActionWidgetHide(const key_id_t &key_id_, int)
{
    if (!isFuncListForMultiAction)
        return;
    isFuncListForMultiAction = false;
    mpMultiActions->hide();
    mpAttributes->setCompact(false);
    mpSplitter->setSizes(mSplitterSizes);
    mpKeysView->show();
    mpTools->setHistoryOn(true);
    emit sigmIsFuncListForMultiAction(false);
    refreshFunctionList();
    setKeyboardCurLayoutAndPage(mCurLayoutId, mCurPageId, false); // which the panel never left
    if (KeyboardWidget *grid = mpGridArea->grid()) {
        grid->updateKeyIcon(key_id_); // an empty list has an icon of its own
        grid->setFocus();
        mpAttributes->onMultiActionItemClicked(grid->currentKey(), 0, -1);
    }
}

bool FunctionConfigWidget::confirmLeave()
{
    if (!isFuncListForMultiAction)
        return true;
    if (!mpMultiActions->confirmLeave())
        return false;
    onMultiActionWidgetHide({mCurLayoutId, mCurPageId, 0}, vorlinmodel::MULTIPLE_ACTIONS_FID);
    return true;
}

/// Nothing is written to system.ini: there, -1 stands for the page after the key's number in the current
/// layout.
void FunctionConfigWidget::openChildPage(int keyId)
{
    Log(LogLevel::Info, EditorLogText::OpenChildPage, keyId);
    setChildrenForm(true);
    mChildPageKeyId = keyId;
    const KeyboardFrame *pFrameData = currentFrame();
    mCurLayoutId = pFrameData ? pFrameData->nLayoutId : 1;
    const SystemSettings::HomeLayoutEntry entry = SystemSettings::homeLayoutEntry(keyId);
    Log(LogLevel::Info, EditorLogText::ChildPageEntry, entry.layoutId, entry.pageId);
    if (entry.layoutId == NotSet) {
        mCurPageId = keyId + 1;
        return onKeyboardSelPageButtonClicked(keyId);
    }
    // A layout that was deleted, or a page that is none, counts as not set.
    const ChildPages::Page target = ChildPages::pageOf({mCurLayoutId, mCurPageId, keyId});
    setKeyboardCurLayoutAndPage(target.layoutId, target.pageId, true);
}

void FunctionConfigWidget::returnToMain()
{
    if (!confirmLeave())
        return;
    setChildrenForm(false);
    const SystemSettings::HomeLayoutEntry entry = SystemSettings::homeLayoutEntry(mChildPageKeyId);
    const int layoutId = frameOf(entry.layoutId) ? entry.layoutId : mCurLayoutId;
    setKeyboardCurLayoutAndPage(layoutId, FirstPage, true);
}

void FunctionConfigWidget::showDevicePage(int layoutId, int pageId)
{
    Log(LogLevel::Info, EditorLogText::ConfigurationRead);
    if (!frameOf(layoutId) || pageId < FirstPage || pageId > mMaxPage)
        return setKeyboardCurLayoutAndPage(layoutId, pageId, false); // which refuses it
    setChildrenForm(pageId > FirstPage);
    if (pageId > FirstPage)
        mChildPageKeyId = pageId - 1;
    setKeyboardCurLayoutAndPage(layoutId, pageId, false);
}

void FunctionConfigWidget::setChildrenForm(bool on)
{
    const bool before = std::exchange(mContext.childrenForm, on);
    refreshFunctionList();
    if (on || before)
        emit sigIsChildrenFormChanged();
}

void FunctionConfigWidget::refreshFunctionList()
{
    if (isFuncListForMultiAction)
        mpFunctionList->setMode(FunctionList::Mode::MultiAction);
    else
        mpFunctionList->setMode(mContext.childrenForm ? FunctionList::Mode::ChildPage
                                                      : FunctionList::Mode::Keys);
}

/// What undo and redo changed has to be seen.
void FunctionConfigWidget::showStep(const QVector<key_id_t> &keys)
{
    const auto isInView = [this](const key_id_t &key) {
        return key.lid == mCurLayoutId && key.pageid == mCurPageId;
    };
    if (keys.isEmpty() || std::any_of(keys.cbegin(), keys.cend(), isInView) || !frameOf(keys.first().lid))
        return;
    if (keys.first().pageid == FirstPage)
        setChildrenForm(false);
    setKeyboardCurLayoutAndPage(keys.first().lid, keys.first().pageid, true);
}

void FunctionConfigWidget::activateFunction(int fid)
{
    if (isFuncListForMultiAction)
        mpMultiActions->addStep(fid);
    else if (KeyboardWidget *grid = mpGridArea->grid())
        mpCommands->give(*grid, fid);
}

QMessageBox::StandardButton FunctionConfigWidget::ask(const MessageBox::Question &question)
{
    mAnswer = QMessageBox::Cancel; // a box that is closed has no button clicked
    MessageBox::question(this, question, [this](QAbstractButton *button) { onMsgBtnClicked(button); });
    return mAnswer;
}

void FunctionConfigWidget::onMsgBtnClicked(QAbstractButton *button)
{
    const auto *box = button ? qobject_cast<QMessageBox *>(button->window()) : nullptr;
    if (box)
        mAnswer = box->standardButton(button);
}
