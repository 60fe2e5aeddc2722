/// What the keyboard does in the list of steps.
#pragma once

class QKeyEvent;

enum class StepCommand {
    None,
    Undo,
    Redo,
    Save,
    Duplicate,
    MoveUp,
    MoveDown,
    Copy,
    Cut,
    Paste,
    Remove,
    Edit
};

StepCommand stepCommand(const QKeyEvent &event);

/// True for the commands that mean the steps also while the cursor stands in a field; the others are the
/// field's.
bool worksInFields(StepCommand command);
