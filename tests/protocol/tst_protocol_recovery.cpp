// A panel that goes and comes back.
#include "threadfixture.h"

#include <QElapsedTimer>
#include <QtTest>

using vorlinmodel::RequestKind;

namespace {
const QString VersionRequest = QStringLiteral("04"); // what asks for the state
}

class RecoveryTest : public QObject
{
    Q_OBJECT
private slots:
    void unpluggedAndPluggedInAgain()
    {
        ThreadFixture fixture;
        fixture.thread.start();
        fixture.post(RequestKind::MD_FUNCTION_CODE_HARDWARE_VERSION);
        QTRY_COMPARE(fixture.messages(), QStringList(QStringLiteral("03")));
        QElapsedTimer stopwatch;
        stopwatch.start();
        fakeHid().setPresent(false);
        QTRY_COMPARE(fixture.events().last(), QStringLiteral("disconnected"));
        QVERIFY(stopwatch.elapsed() < 1000);
        stopwatch.start();
        fakeHid().setPresent(true);
        QTRY_COMPARE(fixture.events().size(), 3);
        QVERIFY(stopwatch.elapsed() < 1500);
        QCOMPARE(fixture.events().last(), QStringLiteral("connected"));
        QCOMPARE(fixture.messages(), QStringList({QStringLiteral("03"), VersionRequest}));
    }

    void pluggedInAfterTheStart()
    {
        ThreadFixture fixture;
        fakeHid().setPresent(false);
        fixture.thread.start();
        QTRY_VERIFY(fakeHid().enumerations() >= 2); // an attempt of the thread itself
        fakeHid().setPresent(true);
        QTRY_COMPARE(fixture.messages(), QStringList(VersionRequest));
        QTRY_COMPARE(fixture.events(), QStringList(QStringLiteral("connected")));
    }

    void readErrorAloneAsksForTheState()
    {
        ThreadFixture fixture;
        fixture.thread.start();
        QTRY_VERIFY(fakeHid().readTimeouts().size() >= 2);
        fakeHid().failNextRead();
        QTRY_COMPARE(fixture.messages(), QStringList(VersionRequest));
    }

    /// The request that opens the panel is the one that it does not survive.
    void unpluggedWithinTheFirstRequest()
    {
        ThreadFixture fixture;
        fakeHid().setOnWrite([](const QByteArray &) { fakeHid().setPresent(false); });
        fixture.post(RequestKind::MD_FUNCTION_CODE_HARDWARE_VERSION);
        fixture.thread.start();
        QTRY_COMPARE(fixture.events(),
                     QStringList({QStringLiteral("connected"), QStringLiteral("disconnected")}));
    }

    void writeErrorWithinTheFirstRequest()
    {
        ThreadFixture fixture;
        fakeHid().failWriteAfter(0);
        fixture.post(RequestKind::MD_FUNCTION_CODE_HARDWARE_VERSION);
        fixture.thread.start();
        QTRY_COMPARE(fixture.messages(), QStringList(VersionRequest));
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
            fixture.post(RequestKind::MD_FUNCTION_CODE_SELECT_PAGE, static_cast<quint32>(i));
            QTRY_COMPARE_WITH_TIMEOUT(fixture.linesWith("send request  error").size(), i + 1, 400);
        }
        QVERIFY2(stopwatch.elapsed() < 1000, "none waits for the next look for the panel");
    }

    /// The program asks an absent panel for its version every two seconds.
    void repeatedRequestIsLoggedOnce()
    {
        ThreadFixture fixture;
        fakeHid().setPresent(false);
        fixture.thread.start();
        fixture.post(RequestKind::MD_FUNCTION_CODE_HARDWARE_VERSION, 10);
        QTRY_COMPARE(fixture.linesWith("send request  error").size(), 1);
        const int attempts = fakeHid().opened().size();
        const QStringList before = fixture.log.lines();
        for (int i = 1; i <= 3; ++i) {
            fixture.post(RequestKind::MD_FUNCTION_CODE_HARDWARE_VERSION, 10);
            QTRY_VERIFY(fakeHid().opened().size() >= attempts + i);
        }
        fixture.post(RequestKind::MD_FUNCTION_CODE_SELECT_PAGE, 1, 2); // another one is news
        QTRY_COMPARE(fixture.linesWith("send request  error").size(), 2);
        QCOMPARE(fixture.linesWith("MD_FUNCTION_CODE_HARDWARE_VERSION").size(), 1);
        QCOMPARE(fixture.log.lines().mid(0, before.size()), before);
        fakeHid().setPresent(true);
        fixture.post(RequestKind::MD_FUNCTION_CODE_HARDWARE_VERSION, 10);
        QTRY_COMPARE(fixture.linesWith("send request  ok").size(), 1); // and so is the panel's return
        QCOMPARE(fixture.linesWith("MD_FUNCTION_CODE_HARDWARE_VERSION").size(), 2);
    }

    /// Lines must not be held back until a long operation has ended.
    void linesOfAReturnedPanelAreWrittenAtOnce()
    {
        ThreadFixture fixture;
        QFile(QStringLiteral("firmware.bin")).open(QIODevice::WriteOnly);
        fakeHid().setPresent(false);
        fixture.thread.start();
        fixture.postFile(RequestKind::MD_FUNCTION_CODE_UPGRADE, QStringLiteral("firmware.bin"));
        QTRY_COMPARE(fixture.events("available"), QStringList(QStringLiteral("available -1")));
        fakeHid().setPresent(true);
        fixture.postFile(RequestKind::MD_FUNCTION_CODE_UPGRADE, QStringLiteral("firmware.bin"));
        QTRY_COMPARE(fixture.events("available").size(), 2);
        QTRY_COMPARE(fixture.linesWith("send request  ok").size(), 1); // the panel never answers
        QVERIFY(fixture.thread.isUpgrading());
    }

    /// Reads work, writes do not: the state is asked for again and again, but not nonstop.
    void panelThatRefusesWritesIsNotAskedNonstop()
    {
        ThreadFixture fixture;
        fixture.thread.start();
        fakeHid().setWriteResult(-1);
        fixture.post(RequestKind::MD_FUNCTION_CODE_HARDWARE_VERSION);
        QTRY_VERIFY(fixture.linesWith("send request  error").size() >= 2);
        const int before = fixture.linesWith("send request  error").size();
        const int reads = fakeHid().readTimeouts().size();
        QTRY_VERIFY(fakeHid().readTimeouts().size() >= reads + 10); // 200 ms and more
        QVERIFY(fixture.linesWith("send request  error").size() <= before + 2);
    }
};

QTEST_GUILESS_MAIN(RecoveryTest)
#include "tst_protocol_recovery.moc"
