#include "protocolfixture.h"

#include <QtTest>

using vorlindesk::MDProtocol;

namespace {

/// A report of the panel: flag and payload; the bytes that nobody examines are not zero.
QByteArray report(int flag, const QByteArray &payload)
{
    QByteArray bytes = hex("ee 00 dd cc 00 00");
    bytes[1] = static_cast<char>(flag);
    bytes[4] = static_cast<char>(payload.size());
    return bytes + payload;
}

QString message(const QByteArray &bytes)
{
    return QStringLiteral("message ") + QString::fromLatin1(bytes.toHex(' '));
}

} // namespace

class ReceivingTest : public QObject
{
    Q_OBJECT
private slots:
    void wholeMessages_data()
    {
        QTest::addColumn<QByteArray>("report");
        QTest::addColumn<QStringList>("events");
        const auto row = [](const char *name, const QByteArray &bytes, const QString &event) {
            QTest::newRow(name) << bytes << (event.isEmpty() ? QStringList() : QStringList(event));
        };
        for (const char *code : {"03", "04", "08", "10", "11", "12"}) {
            const QByteArray bytes = hex(code) + hex("02 00 00 00 41 42");
            row(code, report(0, bytes), message(bytes));
        }
        for (const char *code : {"00", "02", "05", "06", "07", "0d", "13", "ff"})
            row(qPrintable(QStringLiteral("code %1 is dropped").arg(QLatin1String(code))),
                report(0, hex(code) + hex("02 00 00 00 41 42")), {});
        row("key press", report(0, hex("01 04 00 00 00 01 02 0f 01")), QStringLiteral("key 1/2/15"));
        row("key press with the least length", report(0, hex("01 03 00 00 00 01 02 03")),
            QStringLiteral("key 1/2/3"));
        row("key press that says more than it holds", report(0, hex("01 ff ff ff ff 01 02 03")),
            QStringLiteral("key 1/2/3"));
        const QByteArray list = hex("01 09 00 00 00 01 02 03 0f 03 00 05 00 00");
        row("action list is handed on", report(0, list), message(list));
        row("no payload", report(0, {}), {});
        row("flag above 2 is ignored", report(3, hex("03 01 00 00 00 41")), {});
        row("code alone", report(0, hex("03")), message(hex("03")));
        QByteArray overlong = report(0, hex("03") + QByteArray(57, 'v'));
        overlong[4] = 59;
        row("payload length above 58 counts as 58", overlong, message(hex("03") + QByteArray(57, 'v')));
        overlong[5] = 1;
        row("so does one of 315", overlong, message(hex("03") + QByteArray(57, 'v')));
    }

    void wholeMessages()
    {
        QFETCH(QByteArray, report);
        QFETCH(QStringList, events);
        ProtocolFixture fixture;
        fakeHid().send(report);
        fixture.protocol.poll();
        QCOMPARE(fixture.events, events);
    }

    void keyEventLines()
    {
        ProtocolFixture fixture;
        QVERIFY(fixture.transfer.open());
        const int before = fixture.log.lines().size();
        fakeHid().send(report(0, hex("01 04 00 00 00 01 02 0f 08")));
        fixture.protocol.poll();
        QCOMPARE(
            fixture.log.lines().mid(before),
            QStringList({QStringLiteral("1 application function code:0x01"),
                         QStringLiteral("1 application length:0x00000004(4)"),
                         QStringLiteral("1 receiveCommand Layoutid:1 Pageid:2 Keyid:15,nAttrbuteid[8]")}));
    }

    void shortKeyDataIsDropped_data()
    {
        QTest::addColumn<QByteArray>("payload");
        QTest::addColumn<int>("length");
        QTest::newRow("length field 2") << hex("01 02 00 00 00 01 02 03 04") << 2;
        QTest::newRow("length field 0") << hex("01 00 00 00 00 01 02 03 04") << 0;
        QTest::newRow("less arrived than announced") << hex("01 04 00 00 00 01 02") << 2;
        QTest::newRow("no length field") << hex("01 04") << 0;
    }

    void shortKeyDataIsDropped()
    {
        QFETCH(QByteArray, payload);
        QFETCH(int, length);
        ProtocolFixture fixture;
        fakeHid().send(report(0, payload));
        fixture.protocol.poll();
        QCOMPARE(fixture.events, QStringList());
        QCOMPARE(fixture.log.lines().last(),
                 QStringLiteral("3 key attribute data length (%1) error").arg(length));
    }

    void blocksArePutTogether()
    {
        ProtocolFixture fixture;
        const QByteArray first = hex("07 aa") + QByteArray(56, 'a'); // a code that alone would be dropped
        fakeHid().send(report(1, first));
        fixture.protocol.poll();
        fakeHid().send(report(0, hex("01 03 00 00 00 01 02 03"))); // a key press in between
        fakeHid().send(report(1, QByteArray(58, 'b')));
        fakeHid().send(report(2, QByteArray(3, 'c')));
        fakeHid().send(report(2, hex("05"))); // a message of one last block
        fixture.protocol.poll();
        const QByteArray whole = first + QByteArray(58, 'b') + QByteArray(3, 'c');
        QCOMPARE(fixture.events,
                 QStringList({QStringLiteral("reassembly"), QStringLiteral("key 1/2/3"), message(whole),
                              QStringLiteral("reassembly"), message(hex("05"))}));
        QCOMPARE(fixture.linesWith("mRecvProtoBufferLen"),
                 QStringList({QStringLiteral("1 -------read ------------------mRecvProtoBufferLen=[58]"),
                              QStringLiteral("1 -------read ------------------mRecvProtoBufferLen=[116]"),
                              QStringLiteral("1 -------read ------------------mRecvProtoBufferLen=[119]"),
                              QStringLiteral("1 -------read ------------------mRecvProtoBufferLen=[1]")}));
    }

    void brokenLinkEndsAReassembly_data()
    {
        QTest::addColumn<bool>("bySending");
        QTest::newRow("read error") << false;
        QTest::newRow("write error") << true;
    }

    void brokenLinkEndsAReassembly()
    {
        QFETCH(bool, bySending);
        ProtocolFixture fixture;
        fakeHid().send(report(1, QByteArray(58, 'a')));
        fixture.protocol.poll();
        if (bySending) {
            fakeHid().failWriteAfter(0);
            fixture.protocol.buildBare(FunctionCode::MD_FUNCTION_CODE_SOFTWARE_VERSION);
            fixture.protocol.sendSingle();
        } else {
            fakeHid().failNextRead();
            fixture.protocol.poll();
        }
        fakeHid().send(report(2, hex("05 06")));
        fixture.protocol.poll();
        QCOMPARE(fixture.events.last(), message(hex("05 06")));
    }

    void reassemblyIsDroppedOnRequest()
    {
        ProtocolFixture fixture;
        fakeHid().send(report(1, QByteArray(58, 'a')));
        fixture.protocol.poll();
        fixture.protocol.dropReassembly();
        fakeHid().send(report(2, hex("05 06")));
        fixture.protocol.poll();
        QCOMPARE(fixture.events.last(), message(hex("05 06")));
    }

    void messageOver10MiBIsDropped()
    {
        ProtocolFixture fixture;
        QStringList errors; // only these: 180000 other lines are of no use
        vorlindesk::setLogSink([&errors](vorlindesk::LogLevel level, const QString &text) {
            if (level == vorlindesk::LogLevel::Error)
                errors << text;
        });
        constexpr int Blocks = 180789; // 58 bytes each: the last one passes 10 MiB
        for (int i = 0; i < Blocks; ++i) {
            fakeHid().send(report(1, QByteArray(58, 'a')));
            if (fakeHid().unread() == 65 || i == Blocks - 1)
                fixture.protocol.poll();
        }
        QCOMPARE(errors, QStringList(QStringLiteral("received message of more than 10485760 bytes dropped")));
        fakeHid().send(report(2, QByteArray(58, 'a'))); // its rest is no message of its own
        fakeHid().send(report(2, hex("05 06")));
        fixture.protocol.poll();
        QCOMPARE(fixture.events.mid(1), QStringList({QStringLiteral("reassembly"), message(hex("05 06"))}));
    }

    void onePollReadsWhatWaits()
    {
        ProtocolFixture fixture;
        for (int i = 0; i < 66; ++i)
            fakeHid().send(report(0, hex("04")));
        fixture.protocol.poll();
        QCOMPARE(fixture.events.size(), 65); // one, and 64 behind it
        fixture.protocol.poll();
        QCOMPARE(fixture.events.size(), 66);
        QCOMPARE(fakeHid().readTimeouts().mid(0, 2), QList<int>({20, 0}));
        QCOMPARE(fakeHid().readTimeouts().mid(65), QList<int>({20, 0}));
    }

    void waitIgnoresEverythingElse()
    {
        ProtocolFixture fixture;
        fakeHid().send(report(0, hex("06 01 00 00 00 07"))); // other subcode
        fakeHid().send(report(0, hex("04 01 00 00 00 02"))); // other code
        fakeHid().send(report(0, hex("06 03 01 00 00 02 34 12")));
        MDProtocol::Reply reply;
        QCOMPARE(fixture.protocol.waitForReply(FunctionCode::UpgradeChannel, Subcode::UpgradeResponse, 1000,
                                               reply),
                 0);
        QCOMPARE(reply.length, 0x103U);
        QCOMPARE(reply.value, quint16{0x1234});
        QCOMPARE(fixture.events, QStringList());
        QCOMPARE(fixture.linesWith("ee 00 dd cc").size(), 3); // all are dumped
        QCOMPARE(fixture.log.lines().mid(fixture.log.lines().size() - 3),
                 QStringList({QStringLiteral("1 function code:0x06"),
                              QStringLiteral("1 length:0x00000103(259)"), QStringLiteral("1 subcode:0x02")}));
    }

    void silentPanelIsWaitedForWithOneLinePerPeriod()
    {
        ProtocolFixture fixture;
        int reads = 0;
        MDProtocol protocol(fixture.transfer,
                            {.messageReceived = {},
                             .keyPressed = {},
                             .reassemblyStarted = {},
                             .interrupted =
                                 [&reads] {
                                     if (++reads == 31) // three periods, in slices of 100 ms
                                         fakeHid().send(report(0, hex("06 01 00 00 00 02")));
                                     return false;
                                 },
                             .pause = {}});
        MDProtocol::Reply reply;
        QCOMPARE(protocol.waitForReply(FunctionCode::UpgradeChannel, Subcode::UpgradeResponse, 1000, reply),
                 0);
        QCOMPARE(fixture.linesWith("timeout").count(
                     QStringLiteral("2 recv function code:0x06 subcode:0x02 timeout")),
                 3);
    }

    void waitEnds_data()
    {
        QTest::addColumn<bool>("byError");
        QTest::newRow("read error") << true;
        QTest::newRow("end of the thread") << false;
    }

    void waitEnds()
    {
        QFETCH(bool, byError);
        ProtocolFixture fixture;
        fixture.interrupted = !byError;
        if (byError)
            fakeHid().failNextRead();
        MDProtocol::Reply reply;
        QVERIFY(fixture.protocol.waitForReply(FunctionCode::UpgradeChannel, Subcode::CrcReport, 5000, reply) <
                0);
    }
};

QTEST_GUILESS_MAIN(ReceivingTest)
#include "tst_protocol_receiving.moc"
