/// Finds out how long the event loop was blocked.
#pragma once

#include <QObject>
#include <QTimer>
#include <algorithm>
#include <chrono>

/// Ticks through the event loop, and notes by how much a tick came late.
class Watchdog : public QObject
{
public:
    using Clock = std::chrono::steady_clock;

    Watchdog()
    {
        mTimer.setTimerType(Qt::PreciseTimer);
        mTimer.setInterval(Interval);
        connect(&mTimer, &QTimer::timeout, this, [this] {
            const auto now = Clock::now();
            mLongest = std::max(mLongest, Milliseconds(now - mLast).count() - Milliseconds(Interval).count());
            mLast = now;
        });
    }
    void start()
    {
        mLongest = 0;
        mLast = Clock::now();
        mTimer.start();
    }
    /// @return ms of the longest block since start().
    double stop()
    {
        mTimer.stop();
        return mLongest;
    }

private:
    using Milliseconds = std::chrono::duration<double, std::milli>;
    static constexpr std::chrono::milliseconds Interval{2};
    QTimer mTimer;
    Clock::time_point mLast;
    double mLongest = 0;
};
