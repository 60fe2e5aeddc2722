/// How far a long piece of work is, and whether it should go on.
#pragma once

#include <QtGlobal>
#include <algorithm>
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

    /// The watch of number @p index, from 0, of @p total things that take about the same time.
    BackupWatch item(int index, int total) const
    {
        BackupWatch one = *this;
        one.mFrom = percentAt(index, total);
        one.mTo = percentAt(index + 1, total);
        return one;
    }

    /// The watch of a step that is too quick to be seen, or that comes in between: the percentage stays.
    BackupWatch still() const { return part(0, 0); }

    /// Reports @p done of @p total. @return false when the work is to be given up.
    bool goesOn(int done, int total) const
    {
        if (mProgress)
            mProgress(percentAt(done, total));
        return !isGivenUp();
    }

    /// Where this is true, a step has ended early, with any result: whoever asked for it looks here first.
    bool isGivenUp() const { return mpCancel && *mpCancel; }

    /// Calls @p take(offset, length) for one piece of @p size bytes after the other, so that the end of the
    /// program never waits for some hundred megabytes. @return false when it was given up, or a piece failed.
    template <class Take>
    bool inPieces(qint64 size, Take take) const
    {
        const int total = int((size + Piece - 1) / Piece);
        for (int i = 0; i < total; ++i) {
            if (!goesOn(i, total) || !take(i * Piece, std::min(Piece, size - i * Piece)))
                return false;
        }
        return true;
    }

    static constexpr qint64 Piece = 1024 * 1024; ///< bytes; a few milliseconds

private:
    int percentAt(int done, int total) const
    {
        return mFrom + (total > 0 ? (mTo - mFrom) * std::min(done, total) / total : 0);
    }

    Progress mProgress;
    const std::atomic<bool> *mpCancel = nullptr;
    int mFrom = 0;
    int mTo = 100;
};

} // namespace vorlinmodel
