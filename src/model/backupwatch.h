/// How far a long piece of work is, and whether it should go on.
#pragma once

#include <atomic>
#include <functional>
#include <utility>

namespace vorlinmodel {

/// Handed down through the steps of a backup or a restore; one without members lets everything run to its
/// end. The cancel flag outlives the work and may be set on any thread.
class BackupWatch
{
public:
    /// Called on the thread that does the work, with 0 to 100.
    using Progress = std::function<void(int percent)>;

    BackupWatch() = default;
    explicit BackupWatch(Progress progress, const std::atomic<bool> *pCancel = nullptr)
        : mProgress(std::move(progress))
        , mpCancel(pCancel)
    {}

    /// The watch of one step, which takes the work from @p from to @p to percent.
    BackupWatch part(int from, int to) const
    {
        BackupWatch step = *this;
        step.mFrom = mFrom + (mTo - mFrom) * from / 100;
        step.mTo = mFrom + (mTo - mFrom) * to / 100;
        return step;
    }

    /// Reports @p done of @p total. @return false when the work is to be given up.
    bool goesOn(int done, int total) const
    {
        if (mProgress)
            mProgress(mFrom + (total > 0 ? (mTo - mFrom) * done / total : 0));
        return !mpCancel || !*mpCancel;
    }

private:
    Progress mProgress;
    const std::atomic<bool> *mpCancel = nullptr;
    int mFrom = 0;
    int mTo = 100;
};

} // namespace vorlinmodel
