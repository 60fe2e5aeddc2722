/// Sleeping: never shorter than asked for, and close to it.
#include "platform/timing.h"

#include <QtTest>
#include <algorithm>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/time.h>
#endif

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

class TestPlatformTiming : public QObject
{
    Q_OBJECT

    static std::chrono::nanoseconds timeOf(std::chrono::nanoseconds duration)
    {
        const auto begin = Clock::now();
        vorlindesk::preciseSleep(duration);
        return Clock::now() - begin;
    }

private slots:
    void sleepsAtLeastAndHardlyLonger()
    {
        vorlindesk::raiseTimerResolution();
        // Negative, nothing, below the system's tick, the pause between blocks.
        for (const std::chrono::nanoseconds asked : {-1000us, 0us, 150us, 2000us}) {
            auto best = std::chrono::nanoseconds::max();
            for (int i = 0; i < 30; ++i) {
                const auto taken = timeOf(asked);
                QVERIFY(taken >= asked);
                best = std::min(best, taken - std::max(asked, 0ns));
            }
            QVERIFY2(best < 500us, qPrintable(QString::number(best.count())));
        }
        vorlindesk::restoreTimerResolution();
    }

#ifdef Q_OS_UNIX
    void signalsDoNotShortenIt()
    {
        struct sigaction action = {};
        action.sa_handler = [](int) {
        };
        QCOMPARE(sigaction(SIGALRM, &action, nullptr), 0);
        const itimerval everyMillisecond = {{0, 1000}, {0, 1000}};
        QCOMPARE(setitimer(ITIMER_REAL, &everyMillisecond, nullptr), 0);
        const auto taken = timeOf(20ms);
        const itimerval off = {};
        QCOMPARE(setitimer(ITIMER_REAL, &off, nullptr), 0);
        QVERIFY(taken >= 20ms);
    }
#endif
};

QTEST_APPLESS_MAIN(TestPlatformTiming)
#include "tst_platform_timing.moc"
