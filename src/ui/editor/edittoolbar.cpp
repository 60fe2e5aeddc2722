#include "edittoolbar.h"

#include "base/language.h"
#include "ui_common/toolicon.h"

#include <QAction>
#include <QHBoxLayout>
#include <QToolButton>
#include <QUndoStack>

namespace {

constexpr char ToolStyle[] = "QToolButton {background-color: transparent;border: 1px solid "
                             "transparent;border-radius: 4px;padding: 1px;}"
                             "QToolButton:hover, QToolButton:focus {border-color: rgb(0, 160, 255);}"
                             "QToolButton:pressed {background-color: rgb(0, 160, 255);}";
constexpr QSize IconSize{20, 20};
constexpr int ButtonSide = 28;

QKeySequence shortcutOf(EditToolBar::Tool tool)
{
    switch (tool) {
    case EditToolBar::Undo:
        return QKeySequence(QStringLiteral("Ctrl+Z"));
    case EditToolBar::Redo:
        return QKeySequence(QStringLiteral("Ctrl+Shift+Z"));
    case EditToolBar::Cut:
        return QKeySequence(QStringLiteral("Ctrl+X"));
    case EditToolBar::Copy:
        return QKeySequence(QStringLiteral("Ctrl+C"));
    case EditToolBar::Paste:
        return QKeySequence(QStringLiteral("Ctrl+V"));
    case EditToolBar::Delete:
        return QKeySequence(Qt::Key_Delete);
    default:
        return {};
    }
}

} // namespace

EditToolBar::EditToolBar(QUndoStack &history, const vorlindesk::LanguageManager &language, QWidget *parent)
    : QWidget(parent)
    , mHistory(history)
    , mLanguage(language)
{
    setObjectName(QStringLiteral("editTools"));
    setStyleSheet(QString::fromLatin1(ToolStyle));
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(1);
    constexpr std::array icons = {"undo", "redo", "cut", "copy", "paste", "delete", "everypage"};
    for (int tool = 0; tool < ToolCount; ++tool)
        addTool(static_cast<Tool>(tool), icons[size_t(tool)]);
    connect(&mHistory, &QUndoStack::indexChanged, this, &EditToolBar::refreshHistory);
    retranslate();
}

void EditToolBar::addTool(Tool tool, const char *icon)
{
    auto *action = new QAction(this);
    action->setIcon(toolIcon(icon));
    action->setShortcut(shortcutOf(tool));
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    auto *button = new QToolButton(this);
    button->setObjectName(QLatin1String(icon));
    button->setDefaultAction(action);
    button->setIconSize(IconSize);
    button->setFixedSize(ButtonSide, ButtonSide);
    button->setFocusPolicy(Qt::TabFocus); // a click leaves the focus on the keys
    layout()->addWidget(button);
    mActions.append(action);
    mButtons.append(button);
}

QWidget *EditToolBar::lastButton() const
{
    return mButtons.last();
}

void EditToolBar::setHistoryOn(bool on)
{
    mIsHistoryOn = on;
    refreshHistory();
}

void EditToolBar::name(Tool tool, const QString &text)
{
    const QString keys = shortcutOf(tool).toString(QKeySequence::NativeText);
    mActions[tool]->setText(text);
    mActions[tool]->setToolTip(keys.isEmpty() ? text.toHtmlEscaped()
                                              : QStringLiteral("%1 (%2)").arg(text.toHtmlEscaped(), keys));
    mButtons[tool]->setAccessibleName(text);
}

void EditToolBar::refreshHistory()
{
    mActions[Undo]->setEnabled(mIsHistoryOn && mHistory.canUndo());
    mActions[Redo]->setEnabled(mIsHistoryOn && mHistory.canRedo());
    name(Undo, mHistory.canUndo() ? tr("Undo: %1").arg(mHistory.undoText()) : tr("Undo"));
    name(Redo, mHistory.canRedo() ? tr("Redo: %1").arg(mHistory.redoText()) : tr("Redo"));
}

void EditToolBar::retranslate()
{
    refreshHistory();
    name(Cut, tr("Cut"));
    name(Copy, tr("Copy"));
    name(Paste, tr("Paste"));
    name(Delete, mLanguage.Text(vorlindesk::TextId::Delete));
    name(EveryPage, tr("Put on every page"));
}
