#include "linkwatch.h"

namespace vorlinmodel {

bool LinkWatch::checkIsDue(const Link &beforePoll, const Link &now, qint64 nowMs)
{
    // Closed now, but not all the time since the last pass: also when a request opened it and broke it again.
    const bool brokeBeforePoll = !beforePoll.open && beforePoll.openCount != mOpenCount;
    const bool broke = !now.open && now.openCount != mOpenCount;
    const bool found =
        now.open && !beforePoll.open && (mWasDown || brokeBeforePoll); // the first opening is no return
    if (found || broke)
        mWanted = true;
    mWasDown = !now.open;
    mOpenCount = now.openCount;
    if (!mWanted || (mLastCheck && nowMs - *mLastCheck < Pause))
        return false;
    mWanted = false;
    mLastCheck = nowMs;
    return true;
}

} // namespace vorlinmodel
