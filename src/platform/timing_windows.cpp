#include "timing.h"

#include <memory>
#include <type_traits>

#include <windows.h>
// After windows.h, whose types it needs.
#include <timeapi.h>

#ifndef CREATE_WAITABLE_TIMER_HIGH_RESOLUTION
#define CREATE_WAITABLE_TIMER_HIGH_RESOLUTION 0x00000002
#endif

namespace vorlindesk {

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr UINT Resolution = 1; // ms

struct HandleCloser
{
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using HandlePointer = std::unique_ptr<std::remove_pointer_t<HANDLE>, HandleCloser>;

// A waitable timer and how late it may fire. The rest of a sleep is spent watching the clock.
struct SleepTimer
{
    HandlePointer handle;
    std::chrono::nanoseconds lateness;
};

SleepTimer makeTimer()
{
    // Windows 10 1803 and later; fires about half a millisecond late whatever the system's resolution is.
    HandlePointer precise(
        CreateWaitableTimerExW(nullptr, nullptr, CREATE_WAITABLE_TIMER_HIGH_RESOLUTION, TIMER_ALL_ACCESS));
    if (precise)
        return {std::move(precise), 700us};
    return {HandlePointer(CreateWaitableTimerExW(nullptr, nullptr, 0, TIMER_ALL_ACCESS)), 1500us};
}

// @return false when the system has no timer to give.
bool waitFor(HANDLE timer, std::chrono::nanoseconds duration)
{
    LARGE_INTEGER due;
    due.QuadPart = -(duration.count() / 100); // in steps of 100 ns; negative: from now on
    return SetWaitableTimer(timer, &due, 0, nullptr, nullptr, FALSE) &&
           WaitForSingleObject(timer, INFINITE) == WAIT_OBJECT_0;
}

} // namespace

void raiseTimerResolution()
{
    timeBeginPeriod(Resolution);
}

void restoreTimerResolution()
{
    timeEndPeriod(Resolution);
}

void preciseSleep(std::chrono::nanoseconds duration)
{
    const Clock::time_point end = Clock::now() + duration;
    static thread_local const SleepTimer timer = makeTimer();
    for (auto left = end - Clock::now(); left > 0ns; left = end - Clock::now()) {
        if (left <= timer.lateness)
            SwitchToThread();
        else if (!timer.handle || !waitFor(timer.handle.get(), left - timer.lateness))
            Sleep(1);
    }
}

} // namespace vorlindesk
