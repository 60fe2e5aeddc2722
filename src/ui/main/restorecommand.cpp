#include "restorecommand.h"

#include "configurationimport.h"

RestoreCommand::RestoreCommand(ConfigurationImport &import, const QString &text,
                               std::shared_ptr<RestoreStep> step)
    : QUndoCommand(text)
    , mImport(import)
    , mpStep(std::move(step))
{}

void RestoreCommand::undo()
{
    walk(false);
}

void RestoreCommand::redo()
{
    if (!std::exchange(mIsMade, false))
        walk(true);
}

void RestoreCommand::walk(bool forward)
{
    if (!std::exchange(mpStep->isTakenBack, false))
        mImport.walk(mpStep, forward);
}
