#include "threadfixture.h"

#include <QFile>
#include <QtTest>

using vorlinmodel::RequestKind;

namespace {

const QByteArray UpgradeRequest = hex("06 01 00 00 00 01");
const QByteArray EraseRequest = hex("06 01 00 00 00 06");

/// Answers like a panel that takes the firmware and reports @p crc for it.
void answerUpgrade(const QByteArray &crc, const QByteArray &lastBlock)
{
    fakeHid().setOnWrite([crc, lastBlock](const QByteArray &report) {
        const QByteArray payload = report.mid(7, report.at(5));
        if (payload == UpgradeRequest)
            fakeHid().send(wholeReport("06 01 00 00 00 02"));
        else if (payload == EraseRequest)
            fakeHid().send(wholeReport("06 01 00 00 00 07"));
        else if (report.at(2) == 2 && payload == lastBlock)
            fakeHid().send(wholeReport((QByteArray("06 03 00 00 00 04 ") + crc).constData()));
    });
}

void writeFirmware(const QByteArray &bytes)
{
    QFile file(QStringLiteral("fw.bin"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

QStringList texts(std::initializer_list<const char *> lines)
{
    QStringList all;
    for (const char *line : lines)
        all << QString::fromLatin1(line);
    return all;
}

QStringList startLines(const char *sizeAndCrc)
{
    return texts(
        {"log upgrade file:fw.bin  timeout:0 ms", "log open fw.bin", sizeAndCrc, "log open the hid success"});
}

const QStringList RequestLines =
    texts({"connected", "log send upgrade request ok", "available 1", "log receive upgrade response success",
           "log function code:0x06", "log length:0x00000001(1)", "log subcode:0x02",
           "log request upgrade success"});
const QStringList EraseLines =
    texts({"log send ereasue request ok", "log receive ereasue response success", "log function code:0x06",
           "log length:0x00000001(1)", "log subcode:0x07"});
const char Digits[] = "log filesize: 9 filecrc16:0x29b1";

} // namespace

class UpgradeTest : public QObject
{
    Q_OBJECT
private slots:
    void wholeUpgrade_data()
    {
        QTest::addColumn<QByteArray>("crc");
        QTest::addColumn<QByteArray>("status");
        QTest::addColumn<QStringList>("crcLines");
        QTest::newRow("accepted") << QByteArray("b1 29") << hex("06 02 00 00 00 05 00")
                                  << texts({"log receive crc16:0x29b1",
                                            "log file crc:0x29b1  receive crc:0x29b1",
                                            "log check crc success"});
        QTest::newRow("mismatch: delivered all the same")
            << QByteArray("b2 29") << hex("06 02 00 00 00 05 01")
            << texts({"log receive crc16:0x29b2", "log file crc:0x29b1  receive crc:0x29b2",
                      "log check crc fail"});
    }

    void wholeUpgrade()
    {
        QFETCH(QByteArray, crc);
        QFETCH(QByteArray, status);
        QFETCH(QStringList, crcLines);
        ThreadFixture fixture;
        const QByteArray data = hex("06 0a 00 00 00 03") + "123456789";
        writeFirmware("123456789");
        answerUpgrade(crc, data);
        fixture.postFile(RequestKind::MD_FUNCTION_CODE_UPGRADE, QStringLiteral("fw.bin"));
        fixture.post(RequestKind::MD_FUNCTION_CODE_SELECT_PAGE, 1, 1); // is dropped
        fixture.thread.start();
        QTRY_COMPARE(fixture.events("finished"), QStringList(QStringLiteral("finished 1")));
        QTRY_VERIFY(!fixture.thread.isUpgrading());
        fixture.thread.stop();
        QCOMPARE(fixture.events(),
                 startLines(Digits) + RequestLines + EraseLines +
                     texts({"log transfer 1 block data ok", "log transfer upgrade data success",
                            "log begin receive crc16"}) +
                     crcLines +
                     texts({"log upgrade success", "log please wait for device restart!", "finished 1"}));
        const auto single = [](const QByteArray &message, const char *header) {
            return (hex(header) + message).leftJustified(64, '\0');
        };
        QCOMPARE(fakeHid().written(), QList<QByteArray>({single(UpgradeRequest, "03 02 00 02 00 06 00"),
                                                         single(EraseRequest, "03 02 00 02 00 06 00"),
                                                         single(data, "03 02 02 02 00 0f 00"),
                                                         single(status, "03 02 00 02 00 07 00")}));
        QVERIFY(fixture.log.lines().contains(QStringLiteral("1 transfer upgrade file success")));
    }

    void emptyFile()
    {
        ThreadFixture fixture;
        writeFirmware({});
        answerUpgrade("ff ff", hex("06 01 00 00 00 03"));
        fixture.postFile(RequestKind::MD_FUNCTION_CODE_UPGRADE, QStringLiteral("fw.bin"));
        fixture.thread.start();
        QTRY_COMPARE(fixture.events("finished"), QStringList(QStringLiteral("finished 1")));
        QVERIFY(fixture.events().contains(QStringLiteral("log filesize: 0 filecrc16:0xffff")));
        QCOMPARE(fakeHid().written().at(2),
                 hex("03 02 02 02 00 06 00 06 01 00 00 00 03").leftJustified(64, '\0'));
    }

    void fileThatCannotBeSent_data()
    {
        QTest::addColumn<int>("size"); // -1: no file
        QTest::addColumn<QStringList>("events");
        QTest::newRow("missing") << -1
                                 << texts({"log upgrade file:fw.bin  timeout:0 ms", "log open fw.bin error"});
        QTest::newRow("too long: refused before anything is erased")
            << 10 * 1024 * 1024 - 5
            << texts({"log upgrade file:fw.bin  timeout:0 ms", "log transfer upgrade file error",
                      "log Failed to transfer upgrade data"});
    }

    void fileThatCannotBeSent()
    {
        QFETCH(int, size);
        QFETCH(QStringList, events);
        ThreadFixture fixture;
        if (size >= 0)
            QVERIFY(QFile(QStringLiteral("fw.bin")).open(QIODevice::WriteOnly) &&
                    QFile::resize(QStringLiteral("fw.bin"), size));
        fixture.postFile(RequestKind::MD_FUNCTION_CODE_UPGRADE, QStringLiteral("fw.bin"));
        fixture.thread.start();
        QTRY_COMPARE(fixture.events(), events);
        QTRY_VERIFY(!fixture.thread.isUpgrading());
        QVERIFY(fixture.messages().isEmpty());
    }

    /// The link breaks at one of the steps. @c written: reports that the panel takes before.
    void brokenLink_data()
    {
        QTest::addColumn<int>("written");
        QTest::addColumn<bool>("whileReading");
        QTest::addColumn<QStringList>("last");
        const auto row = [](const char *name, int written, bool reading,
                            std::initializer_list<const char *> last) {
            QTest::newRow(name) << written << reading << texts(last);
        };
        row("request cannot be sent", 0, false,
            {"log send request upgrade error", "available -1", "log Failed to request upgrade"});
        row("no response", 1, true, {"log receive upgrade response error", "log Failed to request upgrade"});
        row("erase cannot be sent", 1, false,
            {"log request upgrade success", "log send ereasue request error"});
        row("no erase response", 2, true,
            {"log send ereasue request ok", "log receive ereasue response error"});
        row("first block", 2, false,
            {"log transfer 1 block data error\n", "log transfer upgrade file error",
             "log Failed to transfer upgrade data"});
        row("middle block", 3, false,
            {"log transfer 1 block data ok", "log transfer 2 block data error\n",
             "log transfer upgrade file error", "log Failed to transfer upgrade data"});
        row("no checksum", 5, true,
            {"log begin receive crc16", "log receive crc16 error", "log Failed to receive crc"});
        row("status cannot be sent", 5, false,
            {"log check crc success", "log send upgrade status error", "finished 0"});
    }

    void brokenLink()
    {
        QFETCH(int, written);
        QFETCH(bool, whileReading);
        QFETCH(QStringList, last);
        ThreadFixture fixture;
        const QByteArray firmware(120, 'f'); // 126 bytes of message: three blocks
        writeFirmware(firmware);
        fakeHid().failWriteAfter(whileReading ? -1 : written);
        fakeHid().setOnWrite([whileReading, written](const QByteArray &) {
            const int count = fakeHid().written().size();
            if (whileReading && count == written)
                fakeHid().failNextRead();
            else if (count == 1)
                fakeHid().send(wholeReport("06 01 00 00 00 02"));
            else if (count == 2)
                fakeHid().send(wholeReport("06 01 00 00 00 07"));
            else if (count == 5)
                fakeHid().send(wholeReport("06 03 00 00 00 04 a2 6d"));
        });
        fixture.postFile(RequestKind::MD_FUNCTION_CODE_UPGRADE, QStringLiteral("fw.bin"));
        fixture.thread.start();
        QTRY_COMPARE(fixture.events().mid(fixture.events().size() - last.size()), last);
        QTRY_VERIFY(!fixture.thread.isUpgrading());
    }

    void failedLastBlockCountsAsSuccess()
    {
        ThreadFixture fixture;
        writeFirmware(QByteArray(120, 'f'));
        answerUpgrade("00 00", {});
        fakeHid().failWriteAfter(4);
        fixture.postFile(RequestKind::MD_FUNCTION_CODE_UPGRADE, QStringLiteral("fw.bin"));
        fixture.thread.start();
        QTRY_VERIFY(fixture.events().contains(QStringLiteral("log begin receive crc16")));
        const QStringList transfer = fixture.events("log transfer");
        QCOMPARE(transfer, texts({"log transfer 1 block data ok", "log transfer 2 block data ok",
                                  "log transfer 3 block data error\n", "log transfer upgrade data success"}));
    }
};

QTEST_GUILESS_MAIN(UpgradeTest)
#include "tst_protocol_upgrade.moc"
