// A panel that goes and comes back.
#include "support/table.h"
#include "threadfixture.h"

class RecoveryTest : public QObject
{
    Q_OBJECT
    using OutcomesTable = Table<bool, int, quint32, int>;

private slots:
    /// The first opening is no return: only the second one asks for the state, with message 04.
    void unpluggedAndPluggedInAgain()
    {
        ThreadFixture fixture;
        fixture.thread.start();
        QTRY_VERIFY(fakeHid().readTimeouts().size() >= 3);
        fixture.post(MD_FUNCTION_CODE_HARDWARE_VERSION);
        QTRY_COMPARE(fixture.messages(), texts({"03"}));
        fakeHid().setPresent(false);
        QTRY_COMPARE(fixture.events(), texts({"connected", "disconnected"}));
        fakeHid().setPresent(true);
        QTRY_COMPARE(fixture.events(), texts({"connected", "disconnected", "connected"}));
        QTRY_COMPARE(fixture.messages(), texts({"03", "04"}));
    }

    void pluggedInAfterTheStart()
    {
        ThreadFixture fixture;
        fakeHid().setPresent(false);
        fixture.thread.start();
        QTRY_VERIFY(fakeHid().enumerations() >= 2); // an attempt of the thread itself
        fakeHid().setPresent(true);
        QTRY_COMPARE(fixture.messages(), texts({"04"}));
        QTRY_COMPARE(fixture.events(), texts({"connected"}));
    }

    void readErrorAloneAsksForTheState()
    {
        ThreadFixture fixture;
        fixture.thread.start();
        QTRY_VERIFY(fakeHid().readTimeouts().size() >= 2);
        fakeHid().failNextRead();
        QTRY_COMPARE(fixture.messages(), texts({"04"}));
    }

    /// The request that opens the panel is the one that it does not survive.
    void unpluggedWithinTheFirstRequest()
    {
        ThreadFixture fixture;
        fakeHid().setOnWrite([](const QByteArray &) { fakeHid().setPresent(false); });
        fixture.post(MD_FUNCTION_CODE_HARDWARE_VERSION);
        fixture.thread.start();
        QTRY_COMPARE(fixture.events(), texts({"connected", "disconnected"}));
    }

    void outcomes_data()
    {
        // failAfter: writes
        const OutcomesTable row;
        using vorlinmodel::RequestOutcome;
        row("sent", true, -1, 6U, int(RequestOutcome::Sent));
        row("no panel", false, -1, 6U, int(RequestOutcome::NoPanel));
        row("a report that fails", true, 0, 6U, int(RequestOutcome::Failed));
        // The transfer counts as a success then, but the panel does not have all of it.
        row("the last block of a picture fails", true, 1, 6000U, int(RequestOutcome::Failed));
        row("a picture that cannot be read", true, -1, 9U, int(RequestOutcome::Unreadable));
        row("a key without a record: nothing to send", true, -1, 1000U, int(RequestOutcome::Sent));
    }

    void outcomes()
    {
        const auto [present, failAfter, attribute, outcome] = OutcomesTable::current();
        ThreadFixture fixture;
        const vorlinmodel::key_id_t key{1, 1, 1};
        if (attribute != 1000)
            fixture.store.createKeyAttribute(key, 5);
        if (attribute == 6000) // two blocks: the second one fails
            fixture.store.setTitle(key, QString(60, QLatin1Char('x')));
        fixture.store.setCustomImage(key, "missing.png"_s);
        std::atomic<int> reported = -1;
        QObject::connect(
            &fixture.thread, &vorlinmodel::IProtocolThread::sigRequestDone, &fixture.thread,
            [&reported](const vorlinmodel::Request &request, vorlinmodel::RequestOutcome is) {
                if (request.functionCode == 1) // not the question for the state that follows a broken link
                    reported = int(is);
            },
            Qt::DirectConnection);
        fakeHid().setPresent(present);
        if (failAfter >= 0)
            fakeHid().failWriteAfter(failAfter);
        fixture.post(MD_FUNCTION_CODE_KEY_ATTRIBUTE, 1, 1, 1, 5, attribute >= 1000 ? 6 : attribute);
        fixture.thread.start();
        QTRY_COMPARE(reported.load(), outcome);
    }

    void writeErrorWithinTheFirstRequest()
    {
        ThreadFixture fixture;
        fakeHid().failWriteAfter(0);
        fixture.post(MD_FUNCTION_CODE_HARDWARE_VERSION);
        fixture.thread.start();
        QTRY_COMPARE(fixture.messages(), texts({"04"}));
    }

    void requestIsTakenAtOnceWithoutAPanel()
    {
        ThreadFixture fixture;
        fakeHid().setPresent(false);
        fixture.thread.start();
        QTRY_VERIFY(fakeHid().opened().size() >= 1);
        QElapsedTimer stopwatch;
        stopwatch.start();
        for (int i = 0; i < 5; ++i) {
            fixture.post(MD_FUNCTION_CODE_SELECT_PAGE, static_cast<quint32>(i));
            QTRY_COMPARE(fixture.linesWith("send request  error").size(), i + 1);
        }
        // Five waits for the next look would take 2500 ms; a busy machine may take much of that by itself.
        QVERIFY2(stopwatch.elapsed() < 2000, "none waits for the next look for the panel");
    }

    /// The program asks an absent panel for its version every two seconds.
    void repeatedRequestIsLoggedOnce()
    {
        ThreadFixture fixture;
        fakeHid().setPresent(false);
        fixture.thread.start();
        fixture.post(MD_FUNCTION_CODE_HARDWARE_VERSION, 10);
        QTRY_COMPARE(fixture.linesWith("send request  error").size(), 1);
        const int attempts = fakeHid().opened().size();
        for (int i = 1; i <= 3; ++i) {
            fixture.post(MD_FUNCTION_CODE_HARDWARE_VERSION, 10);
            QTRY_VERIFY(fakeHid().opened().size() >= attempts + i);
        }
        fixture.post(MD_FUNCTION_CODE_SELECT_PAGE, 1, 2); // another one is news
        QTRY_COMPARE(fixture.linesWith("send request  error").size(), 2);
        QCOMPARE(fixture.linesWith("MD_FUNCTION_CODE_HARDWARE_VERSION").size(), 1);
        fakeHid().setPresent(true);
        fixture.post(MD_FUNCTION_CODE_HARDWARE_VERSION, 10);
        QTRY_COMPARE(fixture.linesWith("send request  ok").size(), 1); // and so is the panel's return
        QCOMPARE(fixture.linesWith("MD_FUNCTION_CODE_HARDWARE_VERSION").size(), 2);
    }

    /// Lines must not be held back until a long operation has ended.
    void linesOfAReturnedPanelAreWrittenAtOnce()
    {
        ThreadFixture fixture;
        writeFile("firmware.bin"_s, {});
        fakeHid().setPresent(false);
        fixture.thread.start();
        fixture.postFile(MD_FUNCTION_CODE_UPGRADE, "firmware.bin"_s);
        QTRY_COMPARE(fixture.events("available"), texts({"available -1"}));
        fakeHid().setPresent(true);
        fixture.postFile(MD_FUNCTION_CODE_UPGRADE, "firmware.bin"_s);
        QTRY_COMPARE(fixture.linesWith("send request  ok").size(), 1); // the panel never answers
        QVERIFY(fixture.thread.isUpgrading());
    }

    /// Reads work, writes do not: the state is asked for again and again, but not nonstop.
    void panelThatRefusesWritesIsNotAskedNonstop()
    {
        ThreadFixture fixture;
        fixture.thread.start();
        fakeHid().setWriteResult(-1);
        fixture.post(MD_FUNCTION_CODE_HARDWARE_VERSION);
        QTRY_VERIFY(fixture.linesWith("send request  error").size() >= 2);
        const int before = fixture.linesWith("send request  error").size();
        const int reads = fakeHid().readTimeouts().size();
        QTRY_VERIFY(fakeHid().readTimeouts().size() >= reads + 10); // 200 ms and more
        QVERIFY(fixture.linesWith("send request  error").size() <= before + 2);
    }
};

QTEST_GUILESS_MAIN(RecoveryTest)
#include "tst_protocol_recovery.moc"
