/// A step of the history: some keys before and after.
#pragma once

#include "keystate.h"

#include <QUndoCommand>
#include <QVector>

class KeyEdits;

struct KeyChange
{
    vorlinmodel::key_id_t key;
    KeyState before;
    KeyState after;
};

class KeyChangeCommand : public QUndoCommand
{
public:
    /// The change has been made already. @p edits owns the history, and outlives it.
    KeyChangeCommand(KeyEdits &edits, const QString &text, QVector<KeyChange> changes);

    /// Whether the step is that of @p key alone, between these two states.
    bool leads(const vorlinmodel::key_id_t &key, const KeyState &before, const KeyState &after) const;

    void undo() override;
    void redo() override; ///< the first one, which pushing makes, does nothing

private:
    KeyEdits &mEdits;
    QVector<KeyChange> mChanges;
    bool mIsMade = true;
};
