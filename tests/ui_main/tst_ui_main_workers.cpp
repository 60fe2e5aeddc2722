// The threads that decode received messages: order, and an end without leftovers.
#include "ui_main/receiveworkers.h"

#include <QtTest>
#include <atomic>

class tst_ui_main_workers : public QObject
{
    Q_OBJECT
private slots:
    /// The first jobs are the slowest, so that without the tickets the later ones would overtake them.
    void jobsTakeEffectInTheOrderOfTheirStart()
    {
        QVector<int> order; // deliberately unguarded: jobs must not overlap
        std::atomic<int> done = 0;
        ReceiveWorkers workers;
        for (int i = 0; i < 20; ++i) {
            workers.start([&order, &done, i] {
                std::this_thread::sleep_for(std::chrono::milliseconds((20 - i) / 4));
                order.append(i);
                ++done;
            });
        }
        QTRY_COMPARE(done.load(), 20);
        workers.cancel();
        QCOMPARE(order, QVector<int>({0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19}));
    }

    void finishedThreadsAreNotHoarded()
    {
        ReceiveWorkers workers;
        for (int i = 0; i < 50; ++i) {
            std::atomic<bool> done = false;
            workers.start([&done] { done = true; });
            while (!done)
                std::this_thread::yield();
        }
        QVERIFY(workers.threadCount() <= 25); // those of a busy machine end late
    }

    void cancelDropsWhatHasNotBegunAndWaitsForTheRest()
    {
        std::atomic<bool> begun = false;
        std::atomic<bool> go = false;
        std::atomic<int> done = 0;
        {
            ReceiveWorkers workers;
            workers.start([&] {
                begun = true;
                while (!go)
                    std::this_thread::yield();
                ++done;
            });
            for (int i = 0; i < 10; ++i)
                workers.start([&done] { done += 100; });
            while (!begun)
                std::this_thread::yield();
            std::thread release([&go] {
                std::this_thread::sleep_for(std::chrono::milliseconds(20));
                go = true;
            });
            workers.cancel();
            QCOMPARE(done.load(), 1);
            QCOMPARE(workers.threadCount(), 0);
            workers.start([&done] { done += 1000; });
            release.join();
        }
        QCOMPARE(done.load(), 1);
    }
};

QTEST_GUILESS_MAIN(tst_ui_main_workers)
#include "tst_ui_main_workers.moc"
