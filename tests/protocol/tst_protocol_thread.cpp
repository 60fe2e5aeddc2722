#include "platform/desktop.h"
#include "support/table.h"
#include "threadfixture.h"

class ThreadTest : public QObject
{
    Q_OBJECT
    using PressTable = Table<int, QString>;
    using StopTable = Table<bool, bool, quint32>;

private slots:
    void requestsAreTakenInOrderOnePerPass()
    {
        ThreadFixture fixture;
        QList<int> pollsBefore; // each request
        fakeHid().setOnWrite(
            [&pollsBefore](const QByteArray &) { pollsBefore << fakeHid().readTimeouts().size(); });
        for (quint32 page = 1; page <= 3; ++page)
            fixture.post(MD_FUNCTION_CODE_SELECT_PAGE, 1, page);
        fixture.thread.start();
        QTRY_COMPARE(fixture.messages(),
                     texts({"07 02 00 00 00 01 01", "07 02 00 00 00 01 02", "07 02 00 00 00 01 03"}));
        fixture.thread.stop();
        QCOMPARE(pollsBefore, QList<int>({0, 1, 2}));
    }

    void pollingGetsFasterWithTheFirstLongMessage()
    {
        ThreadFixture fixture;
        QCOMPARE(fixture.thread.pollingPeriod(), 10);
        fixture.thread.start();
        fakeHid().send(hex("00 02 00 00 02 00 05 41"));
        QTRY_COMPARE(fixture.events("received"), texts({"received 05 41"}));
        QCOMPARE(fixture.thread.pollingPeriod(), 2);
    }

    void pressGivesTheCommand_data()
    {
        const PressTable row;
        row("home page", 1, QString::fromLatin1(vorlindesk::DefaultHomePage));
        row("file", 2, "some text");
        row("multiple actions: no text", 4, {});
        row("text output", 15, "some text");
        row("unknown function: no text", 77, {});
    }

    void pressGivesTheCommand()
    {
        const auto [fid, text] = PressTable::current();
        ThreadFixture fixture;
        const vorlinmodel::key_id_t key{1, 2, 3};
        fixture.store.createKeyAttribute(key, fid);
        fixture.store.setUrlOrPath(key, "some text"_s);
        fixture.thread.start();
        fakeHid().send(wholeReport("01 04 00 00 00 01 02 04 08"));       // a key without a record: nothing
        fakeHid().send(wholeReport("01 06 00 00 00 01 02 03 0f 00 00")); // an action list: no press
        fakeHid().send(wholeReport("01 04 00 00 00 01 02 03 08"));
        QTRY_COMPARE(fixture.events(), QStringList({"received 01 06 00 00 00 01 02 03 0f 00 00"_s,
                                                    "exec %1 %2"_s.arg(fid).arg(text)}));
        QCOMPARE(fixture.linesWith("xecCommand"),
                 QStringList({"1 execCommand Layoutid:1 Pageid:2 Keyid:3 fid:%1 "_s.arg(fid),
                              "1 -sigDealExecCommand-strUrlOrPath=[%1] "_s.arg(text)}));
    }

    void stopEndsEveryWait_data()
    {
        const StopTable row;
        row("idle", true, false, 0U);
        row("without a panel", false, false, 0U);
        row("waiting for a silent panel", true, true, 0U);
        row("between two blocks", true, false, 100000U);
    }

    void stopEndsEveryWait()
    {
        const auto [present, upgrading, delay] = StopTable::current();
        ThreadFixture fixture;
        fakeHid().setPresent(present);
        fixture.thread.start();
        if (upgrading) {
            writeFile("firmware.bin"_s, {});
            fixture.postFile(MD_FUNCTION_CODE_UPGRADE, "firmware.bin"_s);
            QTRY_COMPARE(fixture.events("available"), texts({"available 1"}));
            QVERIFY(fixture.thread.isUpgrading());
        }
        if (delay > 0) {
            fixture.postBlockDelay(delay);
            fixture.post(MD_FUNCTION_CODE_HOME_LAYOUT, 1);
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
        fixture.postFile(SetDevicePath, {}, "mine"_s);
        fixture.postFile(SetDevicePath, {}, {});
        fixture.thread.start();
        QTRY_COMPARE(fakeHid().opened(), QList<QByteArray>{"mine"});
        QCOMPARE(fixture.events("log"), texts({"log new hidpath:mine\n"}));
    }
};

QTEST_GUILESS_MAIN(ThreadTest)
#include "tst_protocol_thread.moc"
