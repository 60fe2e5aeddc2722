#include "readprogress.h"

void ReadProgress::begin()
{
    *this = {};
    mState = State::Requested;
    mAskedFor = true;
    mFirstPageAwaited = true;
}

bool ReadProgress::takeFirstPage()
{
    const bool first = mFirstPageAwaited;
    mFirstPageAwaited = false;
    return first;
}

void ReadProgress::pageReceived(int keyCount)
{
    if (!isReading()) // a page that nobody asked for, or that comes after its read was given up
        *this = {};
    mKeysOfCompletePages += mPageTotal;
    mPageTotal = keyCount;
    mPageReceived = 0;
    ++mPages;
    mState = State::Receiving;
}

void ReadProgress::pictureReceived(int total, int received)
{
    if (mState != State::Receiving)
        return;
    mPageTotal = total;
    mPageReceived = received;
}

void ReadProgress::pageComplete()
{
    if (!isReading())
        return;
    mPageReceived = mPageTotal;
    mState = State::PageRead;
}

bool ReadProgress::finish()
{
    const bool whole = mState == State::PageRead;
    mState = State::Idle;
    mFirstPageAwaited = false;
    return whole;
}

void ReadProgress::linkLost()
{
    mInterrupted = mInterrupted || isReading();
}
