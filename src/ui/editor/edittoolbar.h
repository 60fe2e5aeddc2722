/// The tools of editing: undo, redo, clipboard, delete, "put on every page".
#pragma once

#include <QVector>
#include <QWidget>

class QAction;
class QToolButton;
class QUndoStack;

namespace vorlindesk {
class LanguageManager;
}

class EditToolBar : public QWidget
{
    Q_OBJECT
public:
    enum Tool { Undo, Redo, Cut, Copy, Paste, Delete, EveryPage, ToolCount };

    /// @p history and @p language outlive the bar.
    EditToolBar(QUndoStack &history, const vorlindesk::LanguageManager &language, QWidget *parent);

    /// The action of a tool, with its shortcut. It works where the owner adds it (QWidget::addAction).
    QAction *action(Tool tool) const { return mActions[tool]; }

    QWidget *lastButton() const; ///< in the order of the Tab key

    /// Undo and redo are off while @p on is false, whatever there is in the history.
    void setHistoryOn(bool on);
    void retranslate();

private:
    void addTool(Tool tool, const char *icon);
    void refreshHistory();
    void name(Tool tool, const QString &text);

    QUndoStack &mHistory;
    const vorlindesk::LanguageManager &mLanguage;
    bool mIsHistoryOn = true;
    QVector<QAction *> mActions;
    QVector<QToolButton *> mButtons;
};
