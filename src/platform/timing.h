/// Timing that differs by system.
#pragma once

#include <chrono>

namespace vorlindesk {

/// Raises the system's timer resolution to 1 ms (Windows; nothing elsewhere). Calls are counted by the
/// system, so each raise needs its restore.
void raiseTimerResolution();
void restoreTimerResolution();

/// Sleeps for @p duration, to well below a millisecond of it on every system, and never shorter.
void preciseSleep(std::chrono::nanoseconds duration);

} // namespace vorlindesk
