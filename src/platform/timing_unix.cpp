#include "timing.h"

#include <cerrno>
#include <ctime>

namespace vorlindesk {

void raiseTimerResolution() {}

void restoreTimerResolution() {}

void preciseSleep(std::chrono::nanoseconds duration)
{
    if (duration <= std::chrono::nanoseconds::zero())
        return;
    // Towards a point in time: a signal that interrupts the sleep then makes it neither shorter nor longer.
    constexpr long NanosecondsPerSecond = 1'000'000'000;
    timespec end{};
    clock_gettime(CLOCK_MONOTONIC, &end);
    const long nanoseconds = end.tv_nsec + static_cast<long>(duration.count() % NanosecondsPerSecond);
    end.tv_sec += static_cast<time_t>(duration.count() / NanosecondsPerSecond) +
                  static_cast<time_t>(nanoseconds / NanosecondsPerSecond);
    end.tv_nsec = nanoseconds % NanosecondsPerSecond;
    while (clock_nanosleep(CLOCK_MONOTONIC, TIMER_ABSTIME, &end, nullptr) == EINTR) {
    }
}

} // namespace vorlindesk
