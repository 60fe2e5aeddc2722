#include "functionconfigwidget.h"

#include "attributeeditor.h"
#include "base/iframeworkcontext.h"
#include "base/language.h"
#include "base/log.h"
#include "editorcontext.h"
#include "editorlogtext.h"
#include "edittoolbar.h"
#include "functionlist.h"
#include "keyboardwidget.h"
#include "keycommands.h"
#include "layoutbar.h"
#include "model/customlayouts.h"
#include "multiactionwidget.h"
#include "noticebar.h"
#include "pagenavigation.h"
#include "transferbar.h"
#include "ui_common/style.h"

#include <QAction>
#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>
#include <algorithm>

using vorlindesk::Log;
using vorlindesk::LogLevel;
using vorlinmodel::key_id_t;

namespace {

constexpr int StandardLayout = 1;
constexpr int HintTextId = 67;
constexpr int ListMinimum = 190; // pixels
constexpr int ListMaximum = 280;
constexpr int AttributesHeight = 230;
constexpr int KeysHeight = 326;

constexpr char PageStyle[] = "#functionConfig {background-color: rgb(51, 51, 51);}"
                             "#functionConfig QSplitter::handle {background-color: rgb(62, 62, 62);}"
                             "QToolTip {background-color: rgb(36, 36, 36);color: white;"
                             "border: 1px solid rgb(108, 108, 108);}";

} // namespace

FunctionConfigWidget::FunctionConfigWidget(EditorContext &context, QWidget *parent)
    : QFrame(parent)
    , mContext(context)
{
    setObjectName(QStringLiteral("functionConfig"));
    setStyleSheet(QString::fromLatin1(PageStyle) + QString::fromLatin1(Style::MessageBox));
}

/// The children, which go later than our members, may still end an edit or lose the focus.
FunctionConfigWidget::~FunctionConfigWidget()
{
    disconnect(qApp, nullptr, this, nullptr);
    disconnect(&mContext.edits, nullptr, this, nullptr);
}

bool FunctionConfigWidget::setup()
{
    makeColumns();
    struct Step
    {
        bool (FunctionConfigWidget::*setup)();
        const char *start;
        const char *failure;
    };
    namespace Text = EditorLogText;
    constexpr Step steps[] = {
        {&FunctionConfigWidget::setupFuncListFrame, Text::SetupFuncList, Text::SetupFuncListError},
        {&FunctionConfigWidget::setupBtnLayoutFrame, Text::SetupLayouts, Text::SetupLayoutsError},
        {&FunctionConfigWidget::setupAttrFrame, Text::SetupAttributes, Text::SetupAttributesError},
        {&FunctionConfigWidget::setupMultipleActionWidget, Text::SetupMultiActions,
         Text::SetupMultiActionsError},
    };
    for (const Step &step : steps) {
        Log(LogLevel::Info, "%s", step.start);
        if (!(this->*step.setup)()) {
            Log(LogLevel::Error, "%s", step.failure);
            return false;
        }
    }
    arrange();
    showPage(mKeyboardList.front(), mCurPageId, false);
    showOwnTexts(); // the parts have theirs
    return true;
}

/// What the parts are created in, since every later change of a parent styles all of a part anew: a third of
/// the start.
void FunctionConfigWidget::makeColumns()
{
    mpSplitter = new QSplitter(Qt::Vertical, this);
    mpUpper = new QWidget(mpSplitter);
    mpListColumn = new QWidget(this);
}

bool FunctionConfigWidget::setupFuncListFrame()
{
    mpFunctionList = new FunctionList(mContext, mpListColumn);
    mpFunctionList->installEventFilter(this);
    mpHint = new QLabel(mpListColumn);
    mpHint->setObjectName(QStringLiteral("hint"));
    mpHint->setTextFormat(Qt::PlainText);
    mpHint->setWordWrap(true);
    showHint(false);
    connect(mpFunctionList, &FunctionList::functionActivated, this, &FunctionConfigWidget::activateFunction);
    connect(mpFunctionList, &FunctionList::functionClicked, this,
            &FunctionConfigWidget::onFunctionListButtonMouseClicked);
    return true;
}

bool FunctionConfigWidget::setupBtnLayoutFrame()
{
    const vorlindesk::LanguageManager &language = *mContext.framework.languageManager();
    mpNotice = new NoticeBar(mpUpper);
    mpTransfer = new TransferBar(mContext.videos, mpUpper);
    mpKeysView = new QWidget(mpUpper);
    mpLayoutBar = new LayoutBar(mpKeysView);
    mpTools = new EditToolBar(mContext.edits.history(), language, mpKeysView);
    mpGridArea = new GridArea(mpKeysView);
    mpNavigation = new PageNavigation(language, mpKeysView);
    mpCommands = new KeyCommands(
        mContext, [this](const MessageBox::Question &question) { return ask(question); }, this);
    connectTools();
    connectPageKeys();
    addFrame(StandardLayout, {});
    addMissingFrames(vorlinmodel::customLayoutNames());
    makeCurrent(&mKeyboardList.front());
    gridOf(mKeyboardList.front(), mCurPageId);
    return true;
}

bool FunctionConfigWidget::setupAttrFrame()
{
    mpAttributes = new AttributeEditor(mContext, mpSplitter);
    connect(&mContext.edits, &KeyEdits::sigKeysChanged, this, &FunctionConfigWidget::alignSelection);
    return mpAttributes->setup();
}

bool FunctionConfigWidget::setupMultipleActionWidget()
{
    mpMultiActions = new MultiActionWidget(mContext, mpUpper);
    mpMultiActions->hide();
    connect(mpMultiActions, &MultiActionWidget::sigBtnReturnClicked, this,
            &FunctionConfigWidget::onMultiActionWidgetHide);
    connect(mpMultiActions, &MultiActionWidget::actionItemClicked, mpAttributes,
            &AttributeEditor::onMultiActionItemClicked);
    return mpMultiActions->setup();
}

void FunctionConfigWidget::arrange()
{
    auto *top = new QHBoxLayout;
    top->setSpacing(8);
    top->addWidget(mpLayoutBar, 1);
    top->addWidget(mpTools);
    auto *keys = new QVBoxLayout(mpKeysView);
    keys->setContentsMargins(0, 0, 0, 4);
    keys->setSpacing(6);
    keys->addLayout(top);
    keys->addWidget(mpGridArea, 1);
    keys->addWidget(mpNavigation);

    auto *views = new QVBoxLayout(mpUpper);
    views->setContentsMargins(0, 0, 0, 0);
    views->setSpacing(6);
    views->addWidget(mpNotice);
    views->addWidget(mpTransfer);
    views->addWidget(mpKeysView, 1);
    views->addWidget(mpMultiActions, 1);
    mpSplitter->setObjectName(QStringLiteral("splitter"));
    mpSplitter->setChildrenCollapsible(false);
    mpSplitter->addWidget(mpUpper);
    mpSplitter->addWidget(mpAttributes);
    mpSplitter->setStretchFactor(0, 6);
    mpSplitter->setStretchFactor(1, 1);
    mpSplitter->setSizes({KeysHeight, AttributesHeight}); // of a window of 1024 x 640

    mpListColumn->setMinimumWidth(ListMinimum);
    mpListColumn->setMaximumWidth(ListMaximum);
    auto *right = new QVBoxLayout(mpListColumn);
    right->setContentsMargins(0, 0, 0, 0);
    right->setSpacing(6);
    right->addWidget(mpFunctionList, 1);
    right->addWidget(mpHint);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 8, 8, 8);
    layout->setSpacing(8);
    layout->addWidget(mpSplitter, 4);
    layout->addWidget(mpListColumn, 1);
}

void FunctionConfigWidget::connectTools()
{
    const auto onGrid = [this](EditToolBar::Tool tool, const std::function<void(KeyboardWidget &)> &command) {
        QAction *action = mpTools->action(tool);
        mpKeysView->addAction(action); // elsewhere the keys belong to the fields
        connect(action, &QAction::triggered, this, [this, command] {
            if (KeyboardWidget *grid = mpGridArea->grid())
                command(*grid);
        });
    };
    onGrid(EditToolBar::Cut, [this](KeyboardWidget &grid) { mpCommands->cut(grid); });
    onGrid(EditToolBar::Copy, [this](KeyboardWidget &grid) { mpCommands->copy(grid); });
    onGrid(EditToolBar::Paste, [this](KeyboardWidget &grid) { mpCommands->paste(grid); });
    onGrid(EditToolBar::Delete, [this](KeyboardWidget &grid) { mpCommands->remove(grid); });
    onGrid(EditToolBar::EveryPage, [this](KeyboardWidget &grid) { mpCommands->putOnEveryPage(grid); });
    for (const auto tool : {EditToolBar::Undo, EditToolBar::Redo})
        addAction(mpTools->action(tool));
    connect(mpTools->action(EditToolBar::Undo), &QAction::triggered, &mContext.edits, &KeyEdits::undo);
    connect(mpTools->action(EditToolBar::Redo), &QAction::triggered, &mContext.edits, &KeyEdits::redo);
    connect(&mContext.edits, &KeyEdits::sigStepApplied, this, &FunctionConfigWidget::showStep);
    connect(&mContext.edits, &KeyEdits::sigProblem, mpNotice, &NoticeBar::notify);
    connect(mpCommands, &KeyCommands::sigNotice, mpNotice, &NoticeBar::notify);
    connect(&mContext.videos, &VideoPlacement::sigNotice, mpNotice, &NoticeBar::notify);
    connect(&mContext.videos, &VideoPlacement::sigProblem, mpNotice, &NoticeBar::notify);
}

void FunctionConfigWidget::connectPageKeys()
{
    connect(mpNavigation->prevPageButton(), &QPushButton::clicked, this,
            &FunctionConfigWidget::onKeyboardPrevPageButtonClicked);
    connect(mpNavigation->nextPageButton(), &QPushButton::clicked, this,
            &FunctionConfigWidget::onKeyboardNextPageButtonClicked);
    connect(mpNavigation, &PageNavigation::sigPageChosen, this,
            &FunctionConfigWidget::onKeyboardSelPageButtonClicked);
    const auto addKey = [this](const QString &keys, void (FunctionConfigWidget::*turn)()) {
        auto *action = new QAction(this);
        action->setShortcut(QKeySequence(keys));
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        connect(action, &QAction::triggered, this, turn);
        addAction(action);
    };
    addKey(QStringLiteral("Ctrl+PgUp"), &FunctionConfigWidget::onKeyboardPrevPageButtonClicked);
    addKey(QStringLiteral("Ctrl+PgDown"), &FunctionConfigWidget::onKeyboardNextPageButtonClicked);
    watchFocus();
}

void FunctionConfigWidget::refreshKeys()
{
    for (const KeyboardFrame &frame : mKeyboardList) {
        for (KeyboardWidget *grid : frame.grids) {
            if (grid)
                grid->updateAllIcons();
        }
    }
    mpAttributes->refresh();
}

void FunctionConfigWidget::showOwnTexts()
{
    mpHint->setText(mContext.framework.languageManager()->Text(HintTextId));
    for (const KeyboardFrame &frame : mKeyboardList)
        mpLayoutBar->rename(frame.pLayoutButton, layoutName(frame));
}

void FunctionConfigWidget::retranslate()
{
    showOwnTexts();
    mpLayoutBar->retranslate();
    mpTools->retranslate();
    mpNotice->retranslate();
    mpTransfer->retranslate();
    mpNavigation->retranslate();
    mpFunctionList->retranslate();
    mpAttributes->retranslate();
    mpMultiActions->retranslate();
    refreshKeys(); // names and tool tips of the cells
}
