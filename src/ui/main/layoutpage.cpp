#include "layoutpage.h"

#include "backgroundbox.h"
#include "base/iframeworkcontext.h"
#include "base/language.h"
#include "layoutgrid.h"
#include "layoutlist.h"
#include "layoutnames.h"
#include "layouttools.h"
#include "model/customlayouts.h"
#include "ui_common/style.h"
#include "ui_common/toolicon.h"
#include "ui_editor/editorcontext.h"
#include "ui_editor/limitedtext.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

namespace {

constexpr int CaptionText = 8;
constexpr int SaveText = 66;
constexpr int TitleText = 94;
constexpr int PlaceholderText = 95;

constexpr char PageStyle[] =
    "#layoutNotice {background-color: rgb(64, 56, 30);border: 1px solid rgb(190, 150, 40);border-radius: 4px;"
    "padding: 4px 8px;font-size: 13px;}"
    "#layoutPage LayoutTools QPushButton, #layoutPage LayoutList QPushButton, #layoutPage BackgroundBox "
    "QPushButton {padding: 5px 10px;}"
    "#layoutPage LimitedText QLabel {font-size: 13px;}"
    "#layoutUndo, #layoutRedo {background-color: transparent;border: 1px solid transparent;border-radius: "
    "4px;}"
    "#layoutUndo:hover, #layoutUndo:focus, #layoutRedo:hover, #layoutRedo:focus {border-color: rgb(0, 160, "
    "255);}";

} // namespace

LayoutPage::LayoutPage(EditorContext &context, QWidget *parent)
    : QFrame(parent)
    , mContext(context)
    , mpCaption(new QLabel(this))
    , mpNotice(new QLabel(this))
    , mpList(new LayoutList(*context.framework.languageManager(), this))
    , mpGrid(new LayoutGrid(context, mDraft, mStored, this))
    , mpTools(new LayoutTools(*context.framework.languageManager(), this))
    , mpTitle(new LimitedText(LimitedText::Form::Line, TextLimit::Encoding::Gbk,
                              QStringLiteral("layoutTitle"), this))
    , mpBackground(new BackgroundBox(*context.framework.languageManager(), this))
    , mpHome(new QPushButton(this))
    , mpShow(new QPushButton(this))
    , mpSave(new QPushButton(this))
{
    setObjectName(QStringLiteral("layoutPage"));
    setStyleSheet(QString::fromLatin1(Style::Fields) + QString::fromLatin1(Style::Button) +
                  QString::fromLatin1(Style::Page) + QString::fromLatin1(PageStyle));
    mpCaption->setObjectName(QStringLiteral("caption"));
    mpNotice->setObjectName(QStringLiteral("layoutNotice"));
    mpNotice->setTextFormat(Qt::PlainText);
    mpNotice->setWordWrap(true);
    mpHome->setObjectName(QStringLiteral("useAsHome"));
    mpShow->setObjectName(QStringLiteral("showInEditor"));
    mpSave->setObjectName(QStringLiteral("saveLayout"));
}

bool LayoutPage::setup()
{
    mpUndo = addTool("layoutUndo", "undo", QStringLiteral("Ctrl+Z"), &LayoutPage::undo);
    mpRedo = addTool("layoutRedo", "redo", QStringLiteral("Ctrl+Shift+Z"), &LayoutPage::redo);
    arrange();
    connectParts();
    connectDraft();
    refresh();
    retranslate();
    return true;
}

QToolButton *LayoutPage::addTool(const char *name, const char *icon, const QString &shortcut,
                                 void (LayoutPage::*act)())
{
    auto *action = new QAction(toolIcon(icon), QString(), this);
    action->setShortcut(QKeySequence(shortcut));
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    addAction(action);
    connect(action, &QAction::triggered, this, act);
    auto *button = new QToolButton(this);
    button->setObjectName(QLatin1String(name));
    button->setDefaultAction(action);
    button->setIconSize(QSize(20, 20));
    button->setFixedSize(28, 28);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

void LayoutPage::arrange()
{
    auto *top = new QHBoxLayout;
    top->setSpacing(4);
    top->addWidget(mpCaption, 1);
    top->addWidget(mpUndo);
    top->addWidget(mpRedo);
    auto *body = new QHBoxLayout;
    body->setSpacing(20);
    body->addWidget(mpList);
    body->addWidget(arrangeRight(), 1);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 16, 24, 16);
    layout->setSpacing(10);
    layout->addLayout(top);
    layout->addWidget(mpNotice);
    layout->addLayout(body, 1);
}

QWidget *LayoutPage::arrangeRight()
{
    auto *details = new QHBoxLayout;
    details->setSpacing(16);
    details->addWidget(mpTitle, 1, Qt::AlignTop);
    details->addWidget(mpBackground, 0, Qt::AlignTop);
    auto *bottom = new QHBoxLayout;
    bottom->setSpacing(8);
    bottom->addWidget(mpHome);
    bottom->addStretch();
    bottom->addWidget(mpShow);
    bottom->addWidget(mpSave);
    auto *right = new QWidget(this);
    auto *layout = new QVBoxLayout(right);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    layout->addWidget(mpGrid, 1);
    layout->addWidget(mpTools);
    layout->addLayout(details);
    layout->addLayout(bottom);
    return right;
}

void LayoutPage::connectParts()
{
    connect(mpList, &LayoutList::sigChosen, this, &LayoutPage::onChosen);
    connect(mpList, &LayoutList::sigNew, this, &LayoutPage::onNew);
    connect(mpList, &LayoutList::sigDuplicate, this, &LayoutPage::onDuplicate);
    connect(mpList, &LayoutList::sigDelete, this, &LayoutPage::onDelete);
    connect(mpList, &LayoutList::sigActivated, mpShow, &QPushButton::click);
    connect(mpShow, &QPushButton::clicked, this, [this] { emit sigShowInEditor(mDraft.layoutId()); });
    connect(mpHome, &QPushButton::clicked, this, [this] { emit sigHomeLayoutChosen(mDraft.layoutId()); });
    connect(mpSave, &QPushButton::clicked, this, &LayoutPage::save);
    auto *save = new QAction(this);
    save->setShortcut(QKeySequence(QKeySequence::Save));
    save->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    addAction(save);
    connect(save, &QAction::triggered, mpSave, &QPushButton::click);

    LayoutEdits &layouts = mContext.layouts;
    connect(&layouts, &LayoutEdits::sigLayoutsChanged, this, &LayoutPage::refresh);
    connect(&layouts, &LayoutEdits::sigPendingChanged, this, &LayoutPage::showList);
    connect(&layouts, &LayoutEdits::sigProblem, this, &LayoutPage::notify);
}

void LayoutPage::connectDraft()
{
    connect(&mDraft, &LayoutDraft::sigChanged, this, &LayoutPage::showDraft);
    connect(&mDraft.history(), &QUndoStack::indexChanged, this, &LayoutPage::showHistory);
    connect(&mContext.edits.history(), &QUndoStack::indexChanged, this, &LayoutPage::showHistory);
    connect(mpGrid, &LayoutGrid::sigMerge, this, &LayoutPage::onMerge);
    connect(mpGrid, &LayoutGrid::sigSplit, this, &LayoutPage::onSplit);
    connect(mpGrid, &LayoutGrid::sigSelectionChanged, this, [this] {
        mpTools->showState(mDraft.value().grouping, mpGrid->selection(),
                           mDraft.layoutId() != StandardLayoutId);
    });
    connect(mpTools, &LayoutTools::sigMerge, this, &LayoutPage::onMerge);
    connect(mpTools, &LayoutTools::sigSplit, this, &LayoutPage::onSplit);
    connect(mpTools, &LayoutTools::sigStartingPoint, &mDraft, &LayoutDraft::setGrouping);
    connect(mpTitle, &LimitedText::sigEdited, &mDraft, &LayoutDraft::setName);
    connect(mpBackground, &BackgroundBox::sigPicture, this, &LayoutPage::onPicture);
    connect(mpBackground, &BackgroundBox::sigRemoved, this,
            [this] { mDraft.setBackground(tr("Remove the background"), {}, {}); });
    connect(mpBackground, &BackgroundBox::sigPages, &mDraft, &LayoutDraft::setPages);
    connect(mpBackground, &BackgroundBox::sigPagesWithKeys, this, [this] {
        const QVector<int> pages = pagesWithKeys(mDraft.layoutId(), mContext.edits.store());
        mDraft.setPages(pages.isEmpty() ? QVector<int>{1} : pages);
    });
    connect(mpBackground, &BackgroundBox::sigEmptyKeysToo, &mDraft, &LayoutDraft::setEmptyKeysToo);
    connect(mpBackground, &BackgroundBox::sigBusyChanged, this, &LayoutPage::showDraft);
    connect(mpBackground, &BackgroundBox::sigProblem, this, &LayoutPage::notify);
}

void LayoutPage::showPanel(bool connected, int homeLayout)
{
    mConnected = connected;
    mHomeLayout = homeLayout;
    showHome();
    showList();
}

void LayoutPage::retranslate()
{
    const auto &language = *mContext.framework.languageManager();
    mpCaption->setText(language.Text(CaptionText));
    mpShow->setText(tr("Show in the editor"));
    mpHome->setText(tr("Use as home layout"));
    mpSave->setText(language.Text(SaveText));
    mpSave->setToolTip(QKeySequence(QKeySequence::Save).toString(QKeySequence::NativeText));
    mpTitle->setLabel(language.Text(TitleText));
    mpTitle->setPlaceholder(language.Text(PlaceholderText));
    mpTitle->retranslate();
    mpGrid->setAccessibleName(tr("Keys of the layout"));
    mpList->retranslate();
    mpTools->retranslate();
    mpBackground->retranslate();
    mStored.forget(); // its problems are in the language of before
    showDraft();
    showHistory();
    showNotice();
}
