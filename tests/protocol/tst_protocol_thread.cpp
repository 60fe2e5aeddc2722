#include "threadfixture.h"

#include <QElapsedTimer>
#include <QtTest>

using vorlinmodel::RequestKind;

class ThreadTest : public QObject
{
    Q_OBJECT
private slots:
    void initFailureIsReported()
    {
        renewFakeHid();
        fakeHid().setInitResult(-1);
        LogCapture log;
        vorlinmodel::FunctionManager store;
        vorlinmodel::ProtocolThread thread(store);
        QVERIFY(!thread.Init());
        QCOMPARE(log.lines().last(), QStringLiteral("3 Failed to initialize the hid"));
        fakeHid().setInitResult(0);
        QVERIFY(thread.Init());
        QCOMPARE(log.lines().last(), QStringLiteral("1 Initialize the hid successfully"));
    }

    void queueIsFirstInFirstOut()
    {
        ThreadFixture fixture; // not started: the test takes
        fixture.post(RequestKind::MD_FUNCTION_CODE_SELECT_PAGE, 1);
        fixture.post(RequestKind::MD_FUNCTION_CODE_SELECT_PAGE, 2);
        vorlinmodel::Request request;
        QVERIFY(fixture.thread.takeRequest(request));
        QCOMPARE(request.layoutId, 1U);
        fixture.thread.clearRequests();
        QVERIFY(!fixture.thread.takeRequest(request));
    }

    void requestsAreTakenInOrderOnePerPass()
    {
        ThreadFixture fixture;
        QList<int> pollsBefore; // each request
        fakeHid().setOnWrite(
            [&pollsBefore](const QByteArray &) { pollsBefore << fakeHid().readTimeouts().size(); });
        for (quint32 page = 1; page <= 3; ++page)
            fixture.post(RequestKind::MD_FUNCTION_CODE_SELECT_PAGE, 1, page);
        fixture.thread.start();
        QTRY_COMPARE(fixture.messages(), QStringList({QStringLiteral("07 02 00 00 00 01 01"),
                                                      QStringLiteral("07 02 00 00 00 01 02"),
                                                      QStringLiteral("07 02 00 00 00 01 03")}));
        fixture.thread.stop();
        QCOMPARE(pollsBefore, QList<int>({0, 1, 2}));
    }

    void pollingGetsFasterWithTheFirstLongMessage()
    {
        ThreadFixture fixture;
        QCOMPARE(fixture.thread.pollingPeriod(), 10);
        fixture.thread.start();
        fakeHid().send(hex("00 02 00 00 02 00 05 41"));
        QTRY_COMPARE(fixture.events("received"), QStringList(QStringLiteral("received 05 41")));
        QCOMPARE(fixture.thread.pollingPeriod(), 2);
        fixture.thread.setPollingPeriod(5);
        QCOMPARE(fixture.thread.pollingPeriod(), 5);
    }

    void stopEndsEveryWait_data()
    {
        QTest::addColumn<bool>("present");
        QTest::addColumn<bool>("upgrading");
        QTest::addColumn<quint32>("delay");
        QTest::newRow("idle") << true << false << 0U;
        QTest::newRow("without a panel") << false << false << 0U;
        QTest::newRow("waiting for a silent panel") << true << true << 0U;
        QTest::newRow("between two blocks") << true << false << 100000U;
    }

    void stopEndsEveryWait()
    {
        QFETCH(bool, present);
        QFETCH(bool, upgrading);
        QFETCH(quint32, delay);
        ThreadFixture fixture;
        fakeHid().setPresent(present);
        fixture.thread.start();
        if (upgrading) {
            QFile(QStringLiteral("firmware.bin")).open(QIODevice::WriteOnly);
            fixture.postFile(RequestKind::MD_FUNCTION_CODE_UPGRADE, QStringLiteral("firmware.bin"));
            QTRY_COMPARE(fixture.events("available"), QStringList(QStringLiteral("available 1")));
            QVERIFY(fixture.thread.isUpgrading());
        }
        if (delay > 0) {
            vorlinmodel::Request request;
            request.functionCode = 12;
            request.value = delay;
            fixture.thread.postRequest(request);
            fixture.post(RequestKind::MD_FUNCTION_CODE_HOME_LAYOUT, 1);
            QTRY_COMPARE(fakeHid().written().size(), 1);
        }
        QElapsedTimer stopwatch;
        stopwatch.start();
        fixture.thread.stop();
        QVERIFY(fixture.thread.isFinished());
        QVERIFY2(stopwatch.elapsed() < 2000, "leaving must not take longer");
        QVERIFY(!fixture.thread.isUpgrading());
        QCOMPARE(fakeHid().openHandles(), 0);
    }

    void devicePathOfARequest()
    {
        ThreadFixture fixture;
        fakeHid().setOpenable({FakeHid::DefaultPath, "mine"});
        fixture.postFile(RequestKind::SetDevicePath, {}, QStringLiteral("mine"));
        fixture.postFile(RequestKind::SetDevicePath, {}, {});
        fixture.thread.start();
        QTRY_COMPARE(fakeHid().opened(), QList<QByteArray>{"mine"});
        QCOMPARE(fixture.events("log"), QStringList(QStringLiteral("log new hidpath:mine\n")));
    }

    void firstOpeningIsNoReturn()
    {
        ThreadFixture fixture;
        fixture.thread.start();
        QTRY_VERIFY(fakeHid().readTimeouts().size() >= 3);
        QVERIFY(fakeHid().written().isEmpty());
    }
};

QTEST_GUILESS_MAIN(ThreadTest)
#include "tst_protocol_thread.moc"
