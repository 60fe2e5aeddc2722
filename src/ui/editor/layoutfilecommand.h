/// The part of a step that changes a custom layout itself: in its file, and on the panel.
#pragma once

#include "model/customlayouts.h"
#include "model/keyid.h"

#include <QUndoCommand>
#include <QVector>
#include <optional>

class LayoutEdits;

/// A layout before and after; nothing where there is none.
struct LayoutFileChange
{
    int layoutId = 0;
    std::optional<vorlinmodel::CustomLayout> before;
    std::optional<vorlinmodel::CustomLayout> after;
    QVector<vorlinmodel::key_id_t> resent; ///< whose pictures go again, at the size that they have then
};

class LayoutFileCommand : public QUndoCommand
{
public:
    /// The file holds the layout after already. @p edits has to be there whenever the step is used.
    LayoutFileCommand(LayoutEdits &edits, LayoutFileChange change);

    void undo() override;
    void redo() override; ///< the first one, which pushing makes, leaves the file alone

private:
    LayoutEdits &mEdits;
    const LayoutFileChange mChange;
    bool mIsWritten = true;
};
