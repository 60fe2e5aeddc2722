/// Steps on their way through a drag or the clipboard.
#pragma once

#include "stepcontent.h"

#include <QMimeData>

class StepModel;

/// Steps as JSON, as they stand in the file of multiple actions.
class StepData : public QMimeData
{
    Q_OBJECT
public:
    static constexpr char Format[] = "application/x-vorlindesk-steps";

    /// @p rows of @p model, which a drag within one list moves instead of adding steps.
    StepData(const StepModel &model, const QVector<int> &rows);

    const StepModel &model() const { return mModel; } ///< only to compare with; may be gone
    const QVector<int> &rows() const { return mRows; }

private:
    const StepModel &mModel;
    const QVector<int> mRows;
};

/// The steps in @p data; none when it holds something else, or what no list can hold.
StepContent::Steps stepsOf(const QMimeData *data);

/// The function that is dragged in from the list of functions; 0 when @p data is something else or the
/// function cannot be a step.
int droppedFunction(const QMimeData &data);
