// Report frames, application messages and the firmware's checksum, byte for byte.
#include "bytesofhex.h"
#include "support/table.h"
#include "wire/applicationmessage.h"
#include "wire/crc16.h"
#include "wire/reportframe.h"

using ReportFrame::Block;
Q_DECLARE_METATYPE(ReportFrame::Block)

namespace {

QByteArray bytesOf(const ReportFrame::Report &report)
{
    return {reinterpret_cast<const char *>(report.data()), ReportFrame::Size};
}

} // namespace

class WireFrames : public QObject
{
    Q_OBJECT
    using FramesAReportTable = Table<Block, QByteArray, QByteArray>;
    using ReadsAReportTable = Table<QByteArray, int, QByteArray>;
    using SplitsAMessageTable = Table<QByteArray, quint32, QByteArray>;

private slots:
    void framesAReport_data()
    {
        // start: the rest of the 64 bytes is zero
        const FramesAReportTable row;
        const QByteArray full(57, '\xAB');
        row("nothing", Block::Whole, {}, hex("03 02 00 02 00 00 00"));
        row("whole", Block::Whole, hex("08"), hex("03 02 00 02 00 01 00 08"));
        row("full, more to come", Block::More, full, hex("03 02 01 02 00 39 00") + full);
        row("last one", Block::Last, hex("EE"), hex("03 02 02 02 00 01 00 EE"));
    }

    void framesAReport()
    {
        const auto [flag, payload, start] = FramesAReportTable::current();
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
        const ReadsAReportTable row;
        const QByteArray full(58, '\5');
        row("unexamined bytes", hex("EE 02 EE EE 02 00 0A 0B"), 2, hex("0A 0B"));
        row("full", hex("02 01 02 00 3A 00") + full, 1, full);
        row("one more than fits", hex("02 01 02 00 3B 00") + full, 1, full);
        row("length 256 is not 1, nor 0", hex("02 01 02 00 00 01") + full, 1, full);
        row("foreign flag", hex("02 09 02 00 00 00"), 9, {});
    }

    void readsAReport()
    {
        const auto [start, flag, payload] = ReadsAReportTable::current();
        ReportFrame::Report report{};
        std::copy_n(data(start), start.size(), report.begin());
        const ReportFrame::Incoming incoming = ReportFrame::decodeIncoming(report);
        QCOMPARE(int(incoming.flag), flag);
        QCOMPARE(QByteArray(reinterpret_cast<const char *>(incoming.payload), incoming.length), payload);
    }

    void buildsMessages()
    {
        using namespace ApplicationMessage;
        QCOMPARE(bare(FunctionCode::MD_FUNCTION_CODE_HOME_LAYOUT), hex("11")); // no length either
        QCOMPARE(plain(FunctionCode::MD_FUNCTION_CODE_CONFIGFILE, {}), hex("05 00 00 00 00"));
        QCOMPARE(plain(FunctionCode::MD_FUNCTION_CODE_CONFIGFILE, QByteArray(0x01'02'03, '\1')).left(6),
                 hex("05 03 02 01 00 01"));
        QCOMPARE(subcoded(Subcode::UpgradeRequest, {}), hex("06 01 00 00 00 01")); // the subcode counts
        QCOMPARE(subcoded(Subcode::UpgradeStatus, hex("01")), hex("06 02 00 00 00 05 01"));
        QCOMPARE(keyAddressed(1, 2, 3, 13, {}), hex("01 04 00 00 00 01 02 03 0D"));
        QCOMPARE(keyAddressed(0x101, 0xFFFFFFFF, 0x20F, 0x108, hex("05")), // the low 8 bits of the ids
                 hex("01 05 00 00 00 01 FF 0F 08 05"));
    }

    void splitsAMessage_data()
    {
        const SplitsAMessageTable row;
        row("bare", hex("10"), 0U, {});
        row("length field cut short", hex("10 01 00 00"), 0U, {});
        row("length field alone", hex("10 01 00 00 00"), 1U, {});
        row("exact", hex("10 02 00 00 00 01 32"), 2U, hex("01 32"));
        row("more arrived than counted", hex("10 01 00 00 00 01 32"), 1U, hex("01"));
        row("less arrived", hex("10 FF FF FF FF 01 32"), 0xFFFFFFFFU, hex("01 32"));
    }

    void splitsAMessage()
    {
        const auto [message, length, body] = SplitsAMessageTable::current();
        const auto view = ApplicationMessage::view(data(message), message.size());
        QVERIFY(view.has_value());
        QCOMPARE(int(view->code), 16);
        QCOMPARE(view->length, length);
        QCOMPARE(QByteArray(reinterpret_cast<const char *>(view->body), view->bodySize), body);
    }

    void anEmptyMessageHasNoParts() { QVERIFY(!ApplicationMessage::view(nullptr, 0).has_value()); }

    void checksums()
    {
        QCOMPARE(crc16("123456789"), quint16{0x29B1}); // the check value of the variant
        QCOMPARE(crc16({}), quint16{0xFFFF});
        QCOMPARE(crc16(hex("00 00")), quint16{0x1D0F});
        QCOMPARE(crc16(hex("FF FF")), quint16{0}); // bytes above 0x7F are not negative
    }
};

QTEST_APPLESS_MAIN(WireFrames)
#include "tst_wire_frames.moc"
