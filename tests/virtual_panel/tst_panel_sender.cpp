// The pace of the panel's reports.
#include "panel_link/reportsender.h"

#include <QtTest>
#include <atomic>
#include <mutex>

using namespace std::chrono_literals;

class TestPanelSender : public QObject
{
    Q_OBJECT

private slots:
    void paceHoldsOnAverage()
    {
        std::atomic<int> delivered = 0;
        ReportSender sender(1000us, [&](const QByteArray &) { ++delivered; });
        QList<QByteArray> reports;
        for (int i = 0; i < 301; ++i)
            reports << QByteArray(64, 'x');
        sender.push(reports);
        QTRY_COMPARE(delivered.load(), 301);
        QTRY_COMPARE(sender.waiting(), 0);
        const ReportSender::Burst burst = sender.lastBurst();
        QCOMPARE(burst.reports, 301);
        QVERIFY2(burst.duration >= 299ms, qPrintable(QString::number(burst.duration.count())));
        // Twice the pace would be 600 ms; the last report of a busy machine may be late.
        QVERIFY2(burst.duration < 550ms, qPrintable(QString::number(burst.duration.count())));
    }

    void urgentReportsGoFirst()
    {
        std::mutex gate;
        QByteArray order;
        std::unique_lock closed(gate);
        ReportSender sender(0us, [&](const QByteArray &report) {
            const std::lock_guard passing(gate);
            order += report;
        });
        sender.push({"a", "b", "c", "d"});
        sender.pushUrgent({"1", "2"});
        sender.pushUrgent({"3"});
        closed.unlock();
        QTRY_COMPARE(sender.waiting(), 0);
        closed.lock();
        // The first of the others may have been on its way.
        QVERIFY2(order == "123abcd" || order == "a123bcd", order.constData());
    }

    void clearDropsWhatWaits()
    {
        std::atomic<int> delivered = 0;
        ReportSender sender(300ms, [&](const QByteArray &) { ++delivered; });
        sender.push({"a", "b", "c"});
        QTRY_COMPARE(delivered.load(), 1);
        sender.clear();
        QTRY_COMPARE(sender.waiting(), 0);
        QVERIFY(delivered.load() <= 2);
    }
};

QTEST_GUILESS_MAIN(TestPanelSender)
#include "tst_panel_sender.moc"
