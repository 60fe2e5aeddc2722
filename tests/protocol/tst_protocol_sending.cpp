#include "protocolfixture.h"
#include "support/table.h"

using vorlindesk::MDProtocol;
using enum FunctionCode;

namespace {

constexpr MDProtocol::BlockTransfer Paced{"transfer Test success", "transfer Test error\n"};
constexpr MDProtocol::BlockTransfer Unpaced{"transfer Test success", "transfer Test error\n", false};

/// Flag and payload length of every report from @p first on, as "1:57 2:1".
QString blocksFrom(int first)
{
    QStringList blocks;
    for (const QByteArray &report : fakeHid().written().mid(first))
        blocks << "%1:%2"_s.arg(int{report.at(2)}).arg(int{report.at(5)});
    return blocks.join(QLatin1Char(' '));
}

} // namespace

class SendingTest : public QObject
{
    Q_OBJECT
    using BlocksTable = Table<int, QString, QString>;
    using FailedBlockTable = Table<int, bool>;

private slots:
    void singleReport()
    {
        ProtocolFixture fixture;
        const QByteArray report =
            hex("03 02 00 02 00 0a 00 01 05 00 00 00 01 02 0f 08 63"); // low bytes of ids
        QCOMPARE(fixture.protocol.buildKeyAddressed(0x101, 0x202, 0xFFFF0F, 8, hex("63")), 10);
        QVERIFY(fixture.protocol.sendSingle());
        QCOMPARE(fakeHid().written(), QList<QByteArray>{report.leftJustified(64, '\0')});
        QVERIFY(fixture.log.lines().contains("1 03 02 00 02 00 0a 00 01 05 00 00 00 01 02 0f 08 63 "_s));
        QCOMPARE(fixture.lastLines(2),
                 texts({"1 HIDTransfer::Send hid_write index[0] / ret[64]- bytes ok", "1 send request  ok"}));
        fakeHid().failWriteAfter(0);
        QVERIFY(!fixture.protocol.sendSingle());
        QCOMPARE(fixture.lastLines(1), texts({"3 send request  error"}));
    }

    void blocks_data()
    {
        // size: of the whole message
        const BlocksTable row;
        row("56 bytes: whole", 56, "0:56", "2:56");
        row("57 bytes: flagged last, not whole", 57, "2:57", "2:57");
        row("58 bytes", 58, "1:57 2:1", "1:57 2:1");
        row("two full blocks", 114, "1:57 2:57", "1:57 2:57");
        row("one byte more", 115, "1:57 1:57 2:1", "1:57 1:57 2:1");
    }

    void blocks()
    {
        const auto [size, blocks, firmwareBlocks] = BlocksTable::current();
        ProtocolFixture fixture;
        QByteArray body;
        for (int i = 0; i < size - 5; ++i)
            body.append(static_cast<char>(i));
        fixture.protocol.buildPlain(MD_FUNCTION_CODE_CONFIGFILE, body);
        QVERIFY(fixture.protocol.sendInBlocks(Unpaced));
        QCOMPARE(blocksFrom(0), blocks);
        QByteArray message;
        for (const QByteArray &report : fakeHid().written())
            message += report.mid(7, report.at(5));
        QCOMPARE(message.mid(5), body);
        QVERIFY(fixture.log.lines().contains("1 ----nProtoLen=[%1]"_s.arg(size)));
        QCOMPARE(fixture.lastLines(1), texts({"1 transfer Test success"}));
        const int before = fakeHid().written().size();
        QVERIFY(fixture.protocol.sendFirmware({}));
        QCOMPARE(blocksFrom(before), firmwareBlocks);
    }

    void failedBlockEndsTheTransfer_data()
    {
        const FailedBlockTable row;
        row("first", 0, false);
        row("middle", 1, false);
        row("last: counts as success, wanted", 2, true);
    }

    void failedBlockEndsTheTransfer()
    {
        const auto [written, success] = FailedBlockTable::current();
        ProtocolFixture fixture;
        fakeHid().failWriteAfter(written);
        fixture.protocol.buildPlain(MD_FUNCTION_CODE_CONFIGFILE, QByteArray(150, 'x')); // 3 blocks
        QCOMPARE(fixture.protocol.sendInBlocks(Paced), success);
        QCOMPARE(fakeHid().written().size(), written);
        QCOMPARE(fixture.linesWith(" block data").size(), written + 2); // one line per block, then the error
        QCOMPARE(
            fixture.lastLines(2),
            QStringList({"3 transfer %1 block data error"_s.arg(written + 1),
                         texts({success ? "1 transfer Test success" : "3 transfer Test error"}).first()}));
    }

    void messageOver10MiBIsRefusedBeforeTheFirstBlock()
    {
        ProtocolFixture fixture;
        const QByteArray largest(10 * 1024 * 1024 - 5, 'x');
        QCOMPARE(fixture.protocol.buildPlain(MD_FUNCTION_CODE_CONFIGFILE, largest), 10 * 1024 * 1024);
        QCOMPARE(fixture.protocol.buildPlain(MD_FUNCTION_CODE_CONFIGFILE, largest + 'x'), -1);
        QVERIFY(!fixture.protocol.sendInBlocks(Unpaced));
        QCOMPARE(fixture.lastLines(1), texts({"3 transfer Test error"}));
        QVERIFY(!fixture.protocol.sendFirmware({}));
        QVERIFY(fakeHid().written().isEmpty());
    }

    void blocksArePaced()
    {
        ProtocolFixture fixture;
        fixture.protocol.buildPlain(MD_FUNCTION_CODE_CONFIGFILE, QByteArray(57 * 10 - 5, 'x'));
        QElapsedTimer stopwatch;
        stopwatch.start();
        QVERIFY(fixture.protocol.sendInBlocks(Paced));
        QVERIFY2(stopwatch.elapsed() >= 20, "2 ms behind each of ten blocks");
        QCOMPARE(fixture.events, QStringList());
        fixture.protocol.setBlockDelay(7);
        QVERIFY(fixture.protocol.sendInBlocks(Unpaced));
        QVERIFY(fixture.protocol.sendFirmware({}));
        QCOMPARE(fixture.events.count("pause 7"_s), 20);
    }

    void endOfTheThreadEndsATransfer()
    {
        ProtocolFixture fixture;
        fixture.protocol.buildPlain(MD_FUNCTION_CODE_CONFIGFILE, QByteArray(500, 'x'));
        fixture.protocol.setBlockDelay(1000);
        fixture.endPauseAfter = 2;
        QVERIFY(!fixture.protocol.sendInBlocks(Unpaced));
        QCOMPARE(fakeHid().written().size(), 2);
        fixture.protocol.setBlockDelay(0);
        fixture.interrupted = [] {
            return true;
        };
        QVERIFY(!fixture.protocol.sendInBlocks(Paced));
        QCOMPARE(fakeHid().written().size(), 3);
    }
};

QTEST_GUILESS_MAIN(SendingTest)
#include "tst_protocol_sending.moc"
