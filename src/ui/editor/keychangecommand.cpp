#include "keychangecommand.h"

#include "keyedits.h"

KeyChangeCommand::KeyChangeCommand(KeyEdits &edits, const QString &text, QVector<KeyChange> changes)
    : QUndoCommand(text)
    , mEdits(edits)
    , mChanges(std::move(changes))
{}

bool KeyChangeCommand::leads(const vorlinmodel::key_id_t &key, const KeyState &before,
                             const KeyState &after) const
{
    return mChanges.size() == 1 && mChanges.first().key == key && sameKey(mChanges.first().before, before) &&
           sameKey(mChanges.first().after, after);
}

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
