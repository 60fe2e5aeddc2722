#include "linkwatch.h"

namespace vorlinmodel {

bool LinkWatch::checkIsDue(bool openBeforePoll, bool openNow, qint64 nowMs)
{
    const bool broke = mWasOpen && !(openBeforePoll && openNow);
    const bool found =
        openNow && !openBeforePoll && (mWasDown || broke); // the very first opening is no return
    if (found || (broke && !openNow))
        mWanted = true;
    mWasDown = !openNow;
    mWasOpen = openNow;
    if (!mWanted || (mLastCheck && nowMs - *mLastCheck < Pause))
        return false;
    mWanted = false;
    mLastCheck = nowMs;
    return true;
}

} // namespace vorlinmodel
