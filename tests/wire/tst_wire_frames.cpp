// Report frames, application messages and the firmware's checksum, byte for byte.
#include "bytesofhex.h"
#include "wire/applicationmessage.h"
#include "wire/crc16.h"
#include "wire/reportframe.h"

#include <QtTest>

using ReportFrame::Block;
Q_DECLARE_METATYPE(ReportFrame::Block)

namespace {

QByteArray bytesOf(const ReportFrame::Report &report)
{
    return {reinterpret_cast<const char *>(report.data()), ReportFrame::Size};
}

ReportFrame::Report reportOf(const QByteArray &bytes)
{
    ReportFrame::Report report{};
    std::copy_n(data(bytes), qMin(bytes.size(), ReportFrame::Size), report.begin());
    return report;
}

} // namespace

class WireFrames : public QObject
{
    Q_OBJECT

private slots:
    void framesAReport_data()
    {
        QTest::addColumn<Block>("flag");
        QTest::addColumn<QByteArray>("payload");
        QTest::addColumn<QByteArray>("start"); // the rest of the 64 bytes is zero

        QTest::newRow("bare configuration read")
            << Block::Whole << hex("08") << hex("03 02 00 02 00 01 00 08");
        QTest::newRow("select layout 1, page 2") << Block::Whole << hex("07 02 00 00 00 01 02")
                                                 << hex("03 02 00 02 00 07 00 07 02 00 00 00 01 02");
        QTest::newRow("nothing") << Block::Whole << QByteArray() << hex("03 02 00 02 00 00 00");
        QTest::newRow("a full block with more to come")
            << Block::More << QByteArray(57, '\xAB') << hex("03 02 01 02 00 39 00") + QByteArray(57, '\xAB');
        QTest::newRow("last block of one byte") << Block::Last << hex("EE") << hex("03 02 02 02 00 01 00 EE");
    }

    void framesAReport()
    {
        QFETCH(Block, flag);
        QFETCH(QByteArray, payload);
        QFETCH(QByteArray, start);
        ReportFrame::Report report;
        report.fill(0x77); // what an earlier block left behind must not travel
        QCOMPARE(ReportFrame::encode(flag, data(payload), payload.size(), report), 7 + payload.size());
        QCOMPARE(bytesOf(report), start.leftJustified(64, '\0'));
    }

    void refusesAPayloadThatDoesNotFit()
    {
        const QByteArray payload(59, '\1');
        ReportFrame::Report report{};
        QCOMPARE(ReportFrame::encode(Block::Last, data(payload), 58, report), -1);
        QCOMPARE(ReportFrame::encode(Block::Last, data(payload), -1, report), -1);
        QCOMPARE(ReportFrame::encodeIncoming(Block::Last, data(payload), 59, report), -1);
        QCOMPARE(bytesOf(report), QByteArray(64, '\0'));
    }

    void readsAReport_data()
    {
        QTest::addColumn<QByteArray>("start");
        QTest::addColumn<int>("flag");
        QTest::addColumn<QByteArray>("payload");

        QTest::newRow("whole") << hex("02 00 02 00 01 00 03 FF") << 0 << hex("03");
        QTest::newRow("unexamined bytes may hold anything")
            << hex("EE 02 EE EE 02 00 0A 0B") << 2 << hex("0A 0B");
        QTest::newRow("full") << hex("02 01 02 00 3A 00") + QByteArray(58, '\5') << 1 << QByteArray(58, '\5');
        QTest::newRow("one more than fits")
            << hex("02 01 02 00 3B 00") + QByteArray(58, '\5') << 1 << QByteArray(58, '\5');
        QTest::newRow("length 65535")
            << hex("02 01 02 00 FF FF") + QByteArray(58, '\5') << 1 << QByteArray(58, '\5');
        QTest::newRow("length 256 is not 1")
            << hex("02 01 02 00 00 01") + QByteArray(58, '\5') << 1 << QByteArray(58, '\5');
        QTest::newRow("foreign flag") << hex("02 09 02 00 00 00") << 9 << QByteArray();
    }

    void readsAReport()
    {
        QFETCH(QByteArray, start);
        QFETCH(int, flag);
        QFETCH(QByteArray, payload);
        const ReportFrame::Report report = reportOf(start);
        const ReportFrame::Incoming incoming = ReportFrame::decodeIncoming(report);
        QCOMPARE(int(incoming.flag), flag);
        QCOMPARE(QByteArray(reinterpret_cast<const char *>(incoming.payload), incoming.length), payload);
    }

    void framesAReportOfThePanel()
    {
        ReportFrame::Report report;
        report.fill(0x77);
        const QByteArray payload = hex("01 05 00 00 00 01 02 03 08");
        QCOMPARE(ReportFrame::encodeIncoming(Block::Last, data(payload), payload.size(), report), 15);
        QCOMPARE(bytesOf(report),
                 hex("02 02 02 00 09 00 01 05 00 00 00 01 02 03 08").leftJustified(64, '\0'));
    }

    void buildsMessages_data()
    {
        QTest::addColumn<QByteArray>("message");
        QTest::addColumn<QByteArray>("expected");

        using namespace ApplicationMessage;
        QTest::newRow("bare: the code alone, no length")
            << bare(FunctionCode::MD_FUNCTION_CODE_HOME_LAYOUT) << hex("11");
        QTest::newRow("plain") << plain(FunctionCode::MD_FUNCTION_CODE_DEL_CONFIGFILE, hex("5A"))
                               << hex("0F 01 00 00 00 5A");
        QTest::newRow("plain without a body")
            << plain(FunctionCode::MD_FUNCTION_CODE_CONFIGFILE, {}) << hex("05 00 00 00 00");
        QTest::newRow("length of more than a byte")
            << plain(FunctionCode::MD_FUNCTION_CODE_CONFIGFILE, QByteArray(0x01'02'03, '\1')).left(6)
            << hex("05 03 02 01 00 01");
        QTest::newRow("upgrade request: the subcode counts")
            << subcoded(Subcode::UpgradeRequest, {}) << hex("06 01 00 00 00 01");
        QTest::newRow("upgrade status")
            << subcoded(Subcode::UpgradeStatus, hex("01")) << hex("06 02 00 00 00 05 01");
        QTest::newRow("clear a key") << keyAddressed(1, 2, 3, 13, {}) << hex("01 04 00 00 00 01 02 03 0D");
        QTest::newRow("key attribute")
            << keyAddressed(1, 2, 3, 12, hex("FF 80 00")) << hex("01 07 00 00 00 01 02 03 0C FF 80 00");
        QTest::newRow("low 8 bits of the ids") << keyAddressed(0x101, 0xFFFFFFFF, 0x20F, 0x108, hex("05"))
                                               << hex("01 05 00 00 00 01 FF 0F 08 05");
    }

    void buildsMessages()
    {
        QFETCH(QByteArray, message);
        QTEST(message, "expected");
    }

    void splitsAMessage_data()
    {
        QTest::addColumn<QByteArray>("message");
        QTest::addColumn<int>("code");
        QTest::addColumn<quint32>("length");
        QTest::addColumn<QByteArray>("body");

        QTest::newRow("bare") << hex("04") << 4 << 0U << QByteArray();
        QTest::newRow("length field cut short") << hex("04 01 00 00") << 4 << 0U << QByteArray();
        QTest::newRow("length field alone") << hex("04 01 00 00 00") << 4 << 1U << QByteArray();
        QTest::newRow("exact") << hex("10 02 00 00 00 01 32") << 16 << 2U << hex("01 32");
        QTest::newRow("more arrived than counted") << hex("10 01 00 00 00 01 32") << 16 << 1U << hex("01");
        QTest::newRow("less arrived than counted")
            << hex("10 FF FF FF FF 01 32") << 16 << 0xFFFFFFFFU << hex("01 32");
    }

    void splitsAMessage()
    {
        QFETCH(QByteArray, message);
        const auto view = ApplicationMessage::view(data(message), message.size());
        QVERIFY(view.has_value());
        QTEST(int(view->code), "code");
        QTEST(view->length, "length");
        QTEST(QByteArray(reinterpret_cast<const char *>(view->body), view->bodySize), "body");
    }

    void anEmptyMessageHasNoParts() { QVERIFY(!ApplicationMessage::view(nullptr, 0).has_value()); }

    void checksums_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<quint16>("sum");

        QTest::newRow("check value of the variant") << QByteArray("123456789") << quint16{0x29B1};
        QTest::newRow("empty") << QByteArray() << quint16{0xFFFF};
        QTest::newRow("a zero byte changes it") << hex("00") << quint16{0xE1F0};
        QTest::newRow("two zero bytes, a published value too") << hex("00 00") << quint16{0x1D0F};
        QTest::newRow("bytes above 0x7F: the start value cancels out") << hex("FF FF") << quint16{0};
    }

    void checksums()
    {
        QFETCH(QByteArray, bytes);
        QTEST(crc16(bytes), "sum");
    }
};

QTEST_APPLESS_MAIN(WireFrames)
#include "tst_wire_frames.moc"
