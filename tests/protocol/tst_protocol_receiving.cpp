#include "protocolfixture.h"
#include "support/table.h"

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
    return "message "_s + QString::fromLatin1(bytes.toHex(' '));
}

} // namespace

class ReceivingTest : public QObject
{
    Q_OBJECT
    using WholeTable = Table<QByteArray, QString, QString>;

private slots:
    void onlySomeCodesAreHandedOn()
    {
        ProtocolFixture fixture;
        for (int code = 0; code < 256; ++code) {
            fakeHid().send(report(0, static_cast<char>(code) + hex("00 00 00 00")));
            fixture.protocol.poll();
        }
        QCOMPARE(fixture.events,
                 texts({"message 03 00 00 00 00", "message 04 00 00 00 00", "message 08 00 00 00 00",
                        "message 10 00 00 00 00", "message 11 00 00 00 00", "message 12 00 00 00 00"}));
    }

    void wholeMessages_data()
    {
        const WholeTable row; // a report, what comes of it, and the last line of the log if it matters
        row("key press", report(0, hex("01 04 00 00 00 01 02 0f 08")), "key 1/2/15",
            "1 receiveCommand Layoutid:1 Pageid:2 Keyid:15,nAttrbuteid[8]");
        row("key press with the least length", report(0, hex("01 03 00 00 00 01 02 03")), "key 1/2/3", {});
        row("key press that says more than it holds", report(0, hex("01 ff ff ff ff 01 02 03")), "key 1/2/3",
            {});
        row("action list is handed on", report(0, hex("01 09 00 00 00 01 02 03 0f 03 00 05 00 00")),
            "message 01 09 00 00 00 01 02 03 0f 03 00 05 00 00", {});
        row("length field 2", report(0, hex("01 02 00 00 00 01 02 03 04")), "",
            "3 key attribute data length (2) error");
        row("less arrived than announced", report(0, hex("01 04 00 00 00 01 02")), "",
            "3 key attribute data length (2) error");
        row("no length field", report(0, hex("01 04")), "", "3 key attribute data length (0) error");
        row("no payload", report(0, {}), "", {});
        row("flag above 2 is ignored", report(3, hex("03 01 00 00 00 41")), "", {});
        row("code alone", report(0, hex("03")), "message 03", {});
        QByteArray overlong = report(0, hex("03") + QByteArray(57, '\0'));
        overlong[5] = 1;
        row("payload length above 58 counts as 58", overlong, message(hex("03") + QByteArray(57, '\0')), {});
    }

    void wholeMessages()
    {
        const auto [report, event, line] = WholeTable::current();
        ProtocolFixture fixture;
        fakeHid().send(report);
        fixture.protocol.poll();
        QCOMPARE(fixture.events.join(QLatin1Char('|')), event);
        if (!line.isEmpty())
            QCOMPARE(fixture.log.lines().last(), line);
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
        QCOMPARE(fixture.events, QStringList({"reassembly"_s, "key 1/2/3"_s, message(whole), "reassembly"_s,
                                              message(hex("05"))}));
        QCOMPARE(fixture.linesWith("1 -------read ------------------mRecvProtoBufferLen=[119]").size(), 1);
    }

    /// By an error of either direction, or on request.
    void reassemblyEndsEarly()
    {
        ProtocolFixture fixture;
        MDProtocol &protocol = fixture.protocol;
        const std::function<void()> ends[] = {
            [&] {
                fakeHid().failNextRead();
                protocol.poll();
            },
            [&] {
                fakeHid().failWriteAfter(0);
                protocol.buildBare(FunctionCode::MD_FUNCTION_CODE_SOFTWARE_VERSION);
                protocol.sendSingle();
            },
            [&] { protocol.dropReassembly(); },
        };
        for (const auto &end : ends) {
            fakeHid().send(report(1, QByteArray(58, 'a')));
            protocol.poll();
            end();
            fakeHid().send(report(2, hex("05 06")));
            protocol.poll();
            QCOMPARE(fixture.events.last(), message(hex("05 06")));
            fixture.events.clear();
        }
    }

    void messageOver10MiBIsDropped()
    {
        ProtocolFixture fixture;
        QStringList errors; // only these: 180000 other lines are of no use
        vorlindesk::setLogSink([&errors](vorlindesk::LogLevel level, const QString &text) {
            if (level == vorlindesk::LogLevel::Error)
                errors << text;
        });
        for (int i = 0; i < 180789; ++i) { // 58 bytes each: the last one passes 10 MiB
            fakeHid().send(report(1, QByteArray(58, 'a')));
            fixture.protocol.poll();
        }
        QCOMPARE(errors, texts({"received message of more than 10485760 bytes dropped"}));
        fakeHid().send(report(2, QByteArray(58, 'a'))); // its rest is no message of its own
        fakeHid().send(report(2, hex("05 06")));
        fixture.protocol.poll();
        QCOMPARE(fixture.events, texts({"reassembly", "reassembly", "message 05 06"}));
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
        QCOMPARE(fixture.lastLines(3),
                 texts({"1 function code:0x06", "1 length:0x00000103(259)", "1 subcode:0x02"}));
    }

    void silentPanelIsWaitedForWithOneLinePerPeriod()
    {
        ProtocolFixture fixture;
        fixture.interrupted = [reads = 0]() mutable {
            if (++reads == 31) // three periods, in slices of 100 ms
                fakeHid().send(report(0, hex("06 01 00 00 00 02")));
            return false;
        };
        MDProtocol::Reply reply;
        QCOMPARE(fixture.protocol.waitForReply(FunctionCode::UpgradeChannel, Subcode::UpgradeResponse, 1000,
                                               reply),
                 0);
        QCOMPARE(fixture.log.lines().count("2 recv function code:0x06 subcode:0x02 timeout"_s), 3);
    }

    void waitEndsWithAnErrorAndWithTheThread()
    {
        for (const bool byError : {true, false}) {
            ProtocolFixture fixture;
            fixture.interrupted = [byError] {
                return !byError;
            };
            if (byError)
                fakeHid().failNextRead();
            MDProtocol::Reply reply;
            QVERIFY(fixture.protocol.waitForReply(FunctionCode::UpgradeChannel, Subcode::CrcReport, 5000,
                                                  reply) < 0);
        }
    }
};

QTEST_GUILESS_MAIN(ReceivingTest)
#include "tst_protocol_receiving.moc"
