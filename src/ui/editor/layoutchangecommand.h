/// The step of the history that shows another layout.
#pragma once

#include <QUndoCommand>
#include <functional>

/// What the editor page shows.
struct PageInView
{
    int layoutId = 1;
    int pageId = 1;
    bool childrenForm = false;
};

class LayoutChangeCommand : public QUndoCommand
{
public:
    /// Shows a page, and lets the panel show it. @return false when its layout is no more.
    using Show = std::function<bool(const PageInView &page)>;

    LayoutChangeCommand(const QString &text, const PageInView &before, const PageInView &after, Show show);

    void undo() override;
    void redo() override; ///< also the first one, which pushing makes

private:
    void show(const PageInView &page);

    const PageInView mBefore;
    const PageInView mAfter;
    const Show mShow;
};
