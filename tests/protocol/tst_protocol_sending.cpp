#include "protocolfixture.h"

#include <QElapsedTimer>
#include <QtTest>

using vorlindesk::MDProtocol;

namespace {

constexpr MDProtocol::BlockTransfer Paced{"transfer Test success", "transfer Test error\n"};
constexpr MDProtocol::BlockTransfer Unpaced{"transfer Test success", "transfer Test error\n", false};

/// Flag and payload length of every report, as "1:57 2:1".
QString blocksOf(const QList<QByteArray> &reports)
{
    QStringList blocks;
    for (const QByteArray &report : reports)
        blocks << QStringLiteral("%1:%2").arg(int{report.at(2)}).arg(int{report.at(5)});
    return blocks.join(QLatin1Char(' '));
}

QByteArray payloadsOf(const QList<QByteArray> &reports)
{
    QByteArray payloads;
    for (const QByteArray &report : reports)
        payloads += report.mid(7, report.at(5));
    return payloads;
}

} // namespace

class SendingTest : public QObject
{
    Q_OBJECT
private slots:
    void singleReports_data()
    {
        QTest::addColumn<QByteArray>("report");
        QTest::addColumn<int>("message");
        QTest::newRow("bare configuration read") << hex("03 02 00 02 00 01 00 08") << 0;
        QTest::newRow("plain page selection") << hex("03 02 00 02 00 07 00 07 02 00 00 00 01 02") << 1;
        QTest::newRow("sub-coded") << hex("03 02 00 02 00 08 00 06 03 00 00 00 05 aa bb") << 2;
        QTest::newRow("key-addressed, low bytes of the ids")
            << hex("03 02 00 02 00 0a 00 01 05 00 00 00 01 02 0f 08 63") << 3;
    }

    void singleReports()
    {
        QFETCH(QByteArray, report);
        QFETCH(int, message);
        ProtocolFixture fixture;
        MDProtocol &protocol = fixture.protocol;
        const std::array<std::function<int()>, 4> builders = {
            [&] { return protocol.buildBare(FunctionCode::MD_FUNCTION_CODE_READ_CONFIGFILE); },
            [&] { return protocol.buildPlain(FunctionCode::MD_FUNCTION_CODE_SELECT_PAGE, hex("01 02")); },
            [&] { return protocol.buildSubcoded(Subcode::UpgradeStatus, hex("aa bb")); },
            [&] { return protocol.buildKeyAddressed(0x101, 0x202, 0xFFFF0F, 8, hex("63")); },
        };
        QCOMPARE(builders.at(static_cast<size_t>(message))(), report.size() - 7);
        QVERIFY(protocol.sendSingle());
        QCOMPARE(fakeHid().written(), QList<QByteArray>{report.leftJustified(64, '\0')});
        const QString dump = QString::fromLatin1(report.toHex(' ')) + QLatin1Char(' ');
        QVERIFY(fixture.log.lines().contains(QStringLiteral("1 ") + dump));
        QVERIFY(fixture.log.lines().contains(
            QStringLiteral("1 HIDTransfer::Send hid_write index[0] / ret[64]- bytes ok")));
        QCOMPARE(fixture.log.lines().last(), QStringLiteral("1 send request  ok"));
    }

    void failedSingleReportIsOnlyLogged()
    {
        ProtocolFixture fixture;
        fakeHid().setPresent(false);
        fixture.protocol.buildBare(FunctionCode::MD_FUNCTION_CODE_SOFTWARE_VERSION);
        QVERIFY(!fixture.protocol.sendSingle());
        QCOMPARE(fixture.log.lines().last(), QStringLiteral("3 send request  error"));
    }

    void frameRefusesWhatDoesNotFit()
    {
        ProtocolFixture fixture;
        const QByteArray payload(58, 'x');
        QCOMPARE(fixture.protocol.frame(ReportFrame::Block::Whole, data(payload), 57), 64);
        QCOMPARE(fixture.protocol.frame(ReportFrame::Block::Whole, data(payload), 58), -1);
    }

    void blocks_data()
    {
        QTest::addColumn<int>("size"); // of the whole message
        QTest::addColumn<QString>("blocks");
        QTest::addColumn<QString>("firmwareBlocks");
        const auto row = [](const char *name, int size, const char *blocks, const char *firmware) {
            QTest::newRow(name) << size << QString::fromLatin1(blocks) << QString::fromLatin1(firmware);
        };
        row("header only", 5, "0:5", "2:5");
        row("56 bytes: whole", 56, "0:56", "2:56");
        row("57 bytes: flagged last, not whole", 57, "2:57", "2:57");
        row("58 bytes", 58, "1:57 2:1", "1:57 2:1");
        row("two full blocks", 114, "1:57 2:57", "1:57 2:57");
        row("one byte more", 115, "1:57 1:57 2:1", "1:57 1:57 2:1");
    }

    void blocks()
    {
        QFETCH(int, size);
        QFETCH(QString, blocks);
        QFETCH(QString, firmwareBlocks);
        ProtocolFixture fixture;
        QByteArray body;
        for (int i = 0; i < size - 5; ++i)
            body.append(static_cast<char>(i));
        fixture.protocol.buildPlain(FunctionCode::MD_FUNCTION_CODE_CONFIGFILE, body);
        QVERIFY(fixture.protocol.sendInBlocks(Unpaced));
        QCOMPARE(blocksOf(fakeHid().written()), blocks);
        QCOMPARE(payloadsOf(fakeHid().written()).mid(5), body);
        QVERIFY(fixture.log.lines().contains(QStringLiteral("1 ----nProtoLen=[%1]").arg(size)));
        QCOMPARE(fixture.log.lines().last(), QStringLiteral("1 transfer Test success"));
        QVERIFY(!fixture.linesWith("index[1]").isEmpty());
        fakeHid().forgetWritten();
        QVERIFY(fixture.protocol.sendFirmware({}));
        QCOMPARE(blocksOf(fakeHid().written()), firmwareBlocks);
    }

    void failedBlockEndsTheTransfer_data()
    {
        QTest::addColumn<int>("written");
        QTest::addColumn<bool>("success");
        QTest::newRow("first") << 0 << false;
        QTest::newRow("middle") << 1 << false;
        QTest::newRow("last: counts as success, wanted") << 2 << true;
    }

    void failedBlockEndsTheTransfer()
    {
        QFETCH(int, written);
        QFETCH(bool, success);
        ProtocolFixture fixture;
        fakeHid().failWriteAfter(written);
        fixture.protocol.buildPlain(FunctionCode::MD_FUNCTION_CODE_CONFIGFILE,
                                    QByteArray(150, 'x')); // 3 blocks
        QCOMPARE(fixture.protocol.sendInBlocks(Paced), success);
        QCOMPARE(fakeHid().written().size(), written);
        QCOMPARE(fixture.linesWith(" block data").size(), written + 2); // one line per block, then the error
        QCOMPARE(fixture.linesWith("block data error"),
                 QStringList(QStringLiteral("3 transfer %1 block data error").arg(written + 1)));
        QCOMPARE(fixture.log.lines().last(), success ? QStringLiteral("1 transfer Test success")
                                                     : QStringLiteral("3 transfer Test error"));
    }

    void messageOver10MiBIsRefusedBeforeTheFirstBlock()
    {
        ProtocolFixture fixture;
        const QByteArray largest(10 * 1024 * 1024 - 5, 'x');
        QCOMPARE(fixture.protocol.buildPlain(FunctionCode::MD_FUNCTION_CODE_CONFIGFILE, largest),
                 10 * 1024 * 1024);
        QCOMPARE(fixture.protocol.buildPlain(FunctionCode::MD_FUNCTION_CODE_CONFIGFILE, largest + 'x'), -1);
        QVERIFY(!fixture.protocol.sendInBlocks(Unpaced));
        QVERIFY(fakeHid().written().isEmpty());
        QCOMPARE(fixture.log.lines().last(), QStringLiteral("3 transfer Test error"));
        QVERIFY(!fixture.protocol.sendFirmware({}));
        QVERIFY(fakeHid().written().isEmpty());
    }

    void blocksArePaced()
    {
        ProtocolFixture fixture;
        fixture.protocol.buildPlain(FunctionCode::MD_FUNCTION_CODE_CONFIGFILE, QByteArray(57 * 10 - 5, 'x'));
        QElapsedTimer stopwatch;
        stopwatch.start();
        QVERIFY(fixture.protocol.sendInBlocks(Paced));
        QVERIFY2(stopwatch.elapsed() >= 20, "2 ms behind each of ten blocks");
        QCOMPARE(fixture.events, QStringList());
        fixture.protocol.setBlockDelay(7);
        QVERIFY(fixture.protocol.sendInBlocks(Unpaced));
        QVERIFY(fixture.protocol.sendFirmware({}));
        QCOMPARE(fixture.events.count(QStringLiteral("pause 7")), 20);
    }

    void endOfTheThreadEndsATransfer()
    {
        ProtocolFixture fixture;
        fixture.protocol.buildPlain(FunctionCode::MD_FUNCTION_CODE_CONFIGFILE, QByteArray(500, 'x'));
        fixture.protocol.setBlockDelay(1000);
        fixture.endPauseAfter = 2;
        QVERIFY(!fixture.protocol.sendInBlocks(Unpaced));
        QCOMPARE(fakeHid().written().size(), 2);
        fixture.protocol.setBlockDelay(0);
        fixture.interrupted = true;
        QVERIFY(!fixture.protocol.sendInBlocks(Paced));
        QCOMPARE(fakeHid().written().size(), 3);
    }
};

QTEST_GUILESS_MAIN(SendingTest)
#include "tst_protocol_sending.moc"
