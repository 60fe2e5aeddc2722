#include "layoutchangecommand.h"

LayoutChangeCommand::LayoutChangeCommand(const QString &text, const PageInView &before,
                                         const PageInView &after, Show show)
    : QUndoCommand(text)
    , mBefore(before)
    , mAfter(after)
    , mShow(std::move(show))
{}

void LayoutChangeCommand::undo()
{
    show(mBefore);
}

void LayoutChangeCommand::redo()
{
    show(mAfter);
}

/// A step that leads to a deleted layout leaves the history.
void LayoutChangeCommand::show(const PageInView &page)
{
    if (!mShow(page))
        setObsolete(true);
}
