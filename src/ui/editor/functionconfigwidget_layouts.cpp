// The layouts: their frames, grids and buttons.
#include "functionconfigwidget.h"

#include "attributeeditor.h"
#include "base/iframeworkcontext.h"
#include "base/language.h"
#include "base/log.h"
#include "editorcontext.h"
#include "editorlogtext.h"
#include "edittoolbar.h"
#include "keyboardwidget.h"
#include "keycommands.h"
#include "keywidget.h"
#include "layoutbar.h"
#include "model/customlayouts.h"
#include "model/functionids.h"
#include "pagenavigation.h"

#include <QPointer>
#include <QPushButton>
#include <algorithm>

using vorlindesk::Log;
using vorlindesk::LogLevel;
using vorlinmodel::key_id_t;

namespace {

constexpr int StandardLayout = 1;
constexpr int StandardLayoutTextId = 11;
constexpr int FirstPage = 1;

} // namespace

KeyboardFrame *FunctionConfigWidget::frameOf(int layoutId)
{
    for (KeyboardFrame &frame : mKeyboardList) {
        if (frame.nLayoutId == layoutId)
            return &frame;
    }
    return nullptr;
}

KeyboardFrame *FunctionConfigWidget::currentFrame()
{
    for (KeyboardFrame &frame : mKeyboardList) {
        if (frame.isCurrent)
            return &frame;
    }
    return nullptr;
}

/// Builds the grid of a page when it is needed first. A grid that fails stays, with the cells that it has.
KeyboardWidget *FunctionConfigWidget::gridOf(KeyboardFrame &frame, int pageId)
{
    KeyboardWidget *&grid = frame.grids[size_t(pageId)];
    if (grid)
        return grid;
    grid = new KeyboardWidget(mContext, frame.nLayoutId, pageId, mpGridArea);
    grid->hide();
    if (!grid->setup(true, false))
        Log(LogLevel::Error, EditorLogText::SetupGridError, frame.nLayoutId, pageId);
    connectGrid(grid);
    chainTabs(*grid);
    return grid;
}

void FunctionConfigWidget::connectGrid(KeyboardWidget *grid)
{
    connect(grid, &KeyboardWidget::dataChangeSignal, this,
            [this](const key_id_t &key, int fid, bool isDouble) {
                if (mpAttributes)
                    mpAttributes->onDataChangeHandler(key, fid, isDouble);
                mIsKeyTouched = true;
            });
    connect(grid, &KeyboardWidget::dataChangeSignal, this, &FunctionConfigWidget::onKeyBtnClicked);
    connect(grid, &KeyboardWidget::functionTaken, this, [this](const key_id_t &key, int fid) {
        if (fid == vorlinmodel::CHILDREN_PAGE_FID)
            mpCommands->completeChildPage(key);
    });
    connect(grid, &KeyboardWidget::selectionChanged, this, [this, grid] {
        mIsKeyTouched = false;
        if (mpAttributes && grid == mpGridArea->grid())
            mpAttributes->showKey(grid->currentKey());
    });
    connect(grid, &KeyboardWidget::editTitleRequested, this, [this](const key_id_t &key) {
        mpAttributes->showKey(key);
        mpAttributes->focusTitle();
    });
}

/// Grids are built when they are needed, which would put them behind everything else.
void FunctionConfigWidget::chainTabs(const KeyboardWidget &grid)
{
    QWidget *previous = mpTools->lastButton();
    for (KeyWidget *cell : grid.cells()) {
        if (cell->focusPolicy() == Qt::NoFocus)
            continue;
        setTabOrder(previous, cell);
        previous = cell;
    }
}

/// A drop may give a function to another key than the current one, and the menu of a key may delete it.
void FunctionConfigWidget::alignSelection()
{
    KeyboardWidget *grid = mpGridArea->grid();
    const key_id_t shown = mpAttributes->key();
    if (!std::exchange(mIsKeyTouched, false) || !grid || isFuncListForMultiAction ||
        shown == grid->currentKey())
        return;
    const bool isOnGrid = shown.lid == grid->layoutId() && shown.pageid == grid->pageId();
    const KeyWidget *cell = isOnGrid ? grid->cell(shown.kid) : nullptr;
    if (cell && cell->fid() != 0)
        grid->setCurrentKey(shown.kid); // which shows its attributes
    else
        mpAttributes->showKey(grid->currentKey());
}

void FunctionConfigWidget::makeCurrent(const KeyboardFrame *pFrameData)
{
    for (KeyboardFrame &frame : mKeyboardList)
        frame.isCurrent = &frame == pFrameData;
    if (pFrameData)
        mpLayoutBar->showCurrent(pFrameData->pLayoutButton);
}

void FunctionConfigWidget::addFrame(int layoutId, const QString &ownName)
{
    KeyboardFrame frame;
    frame.nLayoutId = layoutId;
    frame.ownName = ownName;
    frame.pPrevPageButton = mpNavigation->prevPageButton();
    frame.pNextPageButton = mpNavigation->nextPageButton();
    frame.pPageLabel = mpNavigation->pageLabel();
    frame.pLayoutButton = mpLayoutBar->addLayout(layoutId, layoutName(frame));
    connect(frame.pLayoutButton, &QPushButton::clicked, this,
            &FunctionConfigWidget::onSystemPannelLayoutButtonClicked);
    mKeyboardList.push_back(frame);
}

void FunctionConfigWidget::addMissingFrames(const QMap<int, QString> &names)
{
    for (auto name = names.cbegin(); name != names.cend(); ++name) {
        if (!frameOf(name.key()))
            addFrame(name.key(), *name);
    }
}

void FunctionConfigWidget::removeFrame(int layoutId)
{
    const auto frame = std::find_if(mKeyboardList.begin(), mKeyboardList.end(),
                                    [layoutId](const KeyboardFrame &f) { return f.nLayoutId == layoutId; });
    dropGrids(*frame);
    mpLayoutBar->removeLayout(frame->pLayoutButton);
    mKeyboardList.erase(frame);
}

void FunctionConfigWidget::dropGrids(KeyboardFrame &frame)
{
    for (KeyboardWidget *&grid : frame.grids) {
        if (!grid)
            continue;
        mpGridArea->forget(grid);
        std::exchange(grid, nullptr)->deleteLater(); // we may be called by one of its cells
    }
}

QString FunctionConfigWidget::layoutName(const KeyboardFrame &frame) const
{
    if (frame.nLayoutId == StandardLayout)
        return mContext.framework.languageManager()->Text(StandardLayoutTextId);
    return frame.ownName.isEmpty() ? tr("Layout %1").arg(frame.nLayoutId) : frame.ownName;
}

/// Grids of custom layouts are built anew when they are next shown: their keys may lie elsewhere now.
void FunctionConfigWidget::rebuildLayouts()
{
    const QMap<int, QString> wanted = vorlinmodel::customLayoutNames();
    QVector<int> gone;
    for (KeyboardFrame &frame : mKeyboardList) {
        if (frame.nLayoutId == StandardLayout)
            continue;
        dropGrids(frame);
        frame.ownName = wanted.value(frame.nLayoutId);
        mpLayoutBar->rename(frame.pLayoutButton, layoutName(frame));
        if (!wanted.contains(frame.nLayoutId))
            gone.append(frame.nLayoutId);
    }
    for (const int layoutId : gone)
        removeFrame(layoutId);
    addMissingFrames(wanted);
    if (frameOf(mCurLayoutId))
        return setKeyboardCurLayoutAndPage(mCurLayoutId, mCurPageId, false);
    setChildrenForm(false);
    setKeyboardCurLayoutAndPage(StandardLayout, 1, true);
}

void FunctionConfigWidget::onSystemPannelLayoutButtonClicked()
{
    const auto chosen = std::find_if(mKeyboardList.cbegin(), mKeyboardList.cend(),
                                     [this](const KeyboardFrame &f) { return f.pLayoutButton == sender(); });
    KeyboardFrame *pFrameData = currentFrame();
    if (chosen == mKeyboardList.cend() || !pFrameData)
        return;
    mpLayoutBar->showCurrent(pFrameData->pLayoutButton); // the press has changed which one is marked
    if (chosen->nLayoutId == mCurLayoutId) {
        if (mContext.childrenForm)
            returnToMain();
        return;
    }
    const PageInView before{mCurLayoutId, mCurPageId, mContext.childrenForm};
    if (mContext.childrenForm)
        pFrameData->nCurPage = FirstPage; // a child page is left for good
    const PageInView after{chosen->nLayoutId, chosen->nCurPage, false};
    const QPointer<FunctionConfigWidget> page(this); // the history may outlive the page
    mContext.edits.flush();
    mContext.edits.history().push(new LayoutChangeCommand( // owned by the stack
        tr("Layout"), before, after,
        [page](const PageInView &view) { return page && page->showView(view); }));
}

bool FunctionConfigWidget::showView(const PageInView &view)
{
    if (!frameOf(view.layoutId))
        return false;
    setChildrenForm(view.childrenForm);
    setKeyboardCurLayoutAndPage(view.layoutId, view.pageId, true);
    return true;
}
