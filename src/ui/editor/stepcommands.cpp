#include "stepcommands.h"

#include <QKeyEvent>

StepCommand stepCommand(const QKeyEvent &event)
{
    // The toolkit knows Ctrl+Shift+Z as "redo" on some systems only.
    const QKeySequence redo(Qt::CTRL | Qt::SHIFT | Qt::Key_Z);
    const int modifiers = int(event.modifiers() & ~Qt::KeypadModifier);
    const int key = modifiers | event.key();
    if (event.matches(QKeySequence::Redo) || redo[0] == key)
        return StepCommand::Redo;
    if (event.matches(QKeySequence::Undo))
        return StepCommand::Undo;
    if (event.matches(QKeySequence::Copy))
        return StepCommand::Copy;
    if (event.matches(QKeySequence::Cut))
        return StepCommand::Cut;
    if (event.matches(QKeySequence::Paste))
        return StepCommand::Paste;
    switch (key) {
    case int(Qt::CTRL) | Qt::Key_S:
        return StepCommand::Save;
    case int(Qt::CTRL) | Qt::Key_D:
        return StepCommand::Duplicate;
    case int(Qt::ALT) | Qt::Key_Up:
        return StepCommand::MoveUp;
    case int(Qt::ALT) | Qt::Key_Down:
        return StepCommand::MoveDown;
    case Qt::Key_Delete:
        return StepCommand::Remove;
    case Qt::Key_F2:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return StepCommand::Edit;
    default:
        return StepCommand::None;
    }
}

bool worksInFields(StepCommand command)
{
    switch (command) {
    case StepCommand::Undo:
    case StepCommand::Redo:
    case StepCommand::Save:
    case StepCommand::Duplicate:
    case StepCommand::MoveUp:
    case StepCommand::MoveDown:
        return true;
    default:
        return false;
    }
}
