#include "base/handover.h"

#include <QtTest>
#include <memory>
#include <thread>

using vorlindesk::HandOver;

class TestHandOver : public QObject
{
    Q_OBJECT

private slots:
    void callsRunInOrderOnTheReceivingThread()
    {
        HandOver handOver;
        QVector<int> seen;
        QThread *pThread = nullptr;
        std::thread other([&] {
            for (int i = 0; i < 3; ++i) {
                handOver.post([&, i] {
                    seen << i;
                    pThread = QThread::currentThread();
                });
            }
        });
        other.join();
        QCOMPARE(seen, QVector<int>());
        QTRY_COMPARE(seen, QVector<int>({0, 1, 2}));
        QCOMPARE(pThread, thread());
    }

    void orderHoldsWhenACallRunsAnEventLoop()
    {
        HandOver handOver;
        QVector<int> seen;
        QEventLoop dialog;
        handOver.post([&] {
            seen << 1;
            handOver.post([&] {
                seen << 3;
                dialog.quit();
            });
            dialog.exec();
            seen << 4;
        });
        handOver.post([&] { seen << 2; });
        QTRY_COMPARE(seen, QVector<int>({1, 2, 3, 4}));
    }

    void destructionDropsWhatWaits()
    {
        auto pHandOver = std::make_unique<HandOver>();
        bool ran = false;
        const auto data = std::make_shared<int>(1);
        pHandOver->post([&] { pHandOver.reset(); });
        pHandOver->post([&ran, data] { ran = true; });
        QTRY_VERIFY(!pHandOver);
        QCOMPARE(data.use_count(), 1L);
        QCoreApplication::processEvents();
        QVERIFY(!ran);
    }
};

QTEST_GUILESS_MAIN(TestHandOver)
#include "tst_base_handover.moc"
