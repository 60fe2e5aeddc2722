/// Runs the event loop until something has happened.
#pragma once

#include <QCoreApplication>
#include <chrono>

/// @return false when @p condition does not hold within @p patience. It is looked at behind each event.
template <typename Condition>
bool waitFor(Condition condition, std::chrono::steady_clock::duration patience)
{
    const auto limit = std::chrono::steady_clock::now() + patience;
    while (!condition() && std::chrono::steady_clock::now() < limit)
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    return condition();
}
