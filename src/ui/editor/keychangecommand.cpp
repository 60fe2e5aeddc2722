#include "keychangecommand.h"

#include "keyedits.h"

KeyChangeCommand::KeyChangeCommand(KeyEdits &edits, const QString &text, QVector<KeyChange> changes)
    : QUndoCommand(text)
    , mEdits(edits)
    , mChanges(std::move(changes))
{}

void KeyChangeCommand::undo()
{
    QVector<KeyPlacement> placements;
    for (const KeyChange &change : mChanges)
        placements.append({change.key, change.before});
    mEdits.applyStep(placements);
}

void KeyChangeCommand::redo()
{
    if (std::exchange(mIsMade, false))
        return;
    QVector<KeyPlacement> placements;
    for (const KeyChange &change : mChanges)
        placements.append({change.key, change.after});
    mEdits.applyStep(placements);
}
