#include "layoutfilecommand.h"

#include "layoutedits.h"

LayoutFileCommand::LayoutFileCommand(LayoutEdits &edits, LayoutFileChange change)
    : mEdits(edits)
    , mChange(std::move(change))
{}

void LayoutFileCommand::undo()
{
    mEdits.put(mChange, false);
}

void LayoutFileCommand::redo()
{
    if (std::exchange(mIsWritten, false))
        mEdits.announce(mChange);
    else
        mEdits.put(mChange, true);
}
