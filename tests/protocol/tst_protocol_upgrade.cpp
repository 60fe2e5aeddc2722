#include "support/table.h"
#include "threadfixture.h"

namespace {

/// Answers like a panel, which gets @p reports reports before it sends @p crc; the read behind report
/// @p brokenAfter fails.
void answerUpgrade(int reports, const QByteArray &crc, int brokenAfter = -1)
{
    fakeHid().setOnWrite([=](const QByteArray &) {
        const int count = fakeHid().written().size();
        if (count == brokenAfter)
            fakeHid().failNextRead();
        else if (count == 1)
            fakeHid().send(wholeReport("06 01 00 00 00 02"));
        else if (count == 2)
            fakeHid().send(wholeReport("06 01 00 00 00 07"));
        else if (count == reports)
            fakeHid().send(wholeReport("06 03 00 00 00 04 " + crc));
    });
}

/// Asks for an upgrade with these bytes.
void upgrade(ThreadFixture &fixture, const QByteArray &firmware)
{
    writeFile("fw.bin"_s, firmware);
    fixture.postFile(MD_FUNCTION_CODE_UPGRADE, "fw.bin"_s);
}

const QStringList LinesToTheCrc =
    texts({"log upgrade file:fw.bin  timeout:0 ms", "log open fw.bin", "log filesize: 9 filecrc16:0x29b1",
           "log open the hid success", "connected", "log send upgrade request ok", "available 1"}) +
    texts({"log receive upgrade response success", "log function code:0x06", "log length:0x00000001(1)",
           "log subcode:0x02", "log request upgrade success", "log send ereasue request ok"}) +
    texts({"log receive ereasue response success", "log function code:0x06", "log length:0x00000001(1)",
           "log subcode:0x07", "log transfer 1 block data ok", "log transfer upgrade data success",
           "log begin receive crc16"});

} // namespace

class UpgradeTest : public QObject
{
    Q_OBJECT
    using BrokenTable = Table<int, bool, QStringList>;
    using UpgradeTable = Table<QByteArray, QByteArray, QStringList>;

private slots:
    void wholeUpgrade_data()
    {
        const UpgradeTable row;
        row("accepted", "b1 29", hex("06 02 00 00 00 05 00"),
            texts({"log receive crc16:0x29b1", "log file crc:0x29b1  receive crc:0x29b1",
                   "log check crc success"}));
        row("mismatch: delivered all the same", "b2 29", hex("06 02 00 00 00 05 01"),
            texts({"log receive crc16:0x29b2", "log file crc:0x29b1  receive crc:0x29b2",
                   "log check crc fail"}));
    }

    void wholeUpgrade()
    {
        const auto [crc, status, crcLines] = UpgradeTable::current();
        ThreadFixture fixture;
        answerUpgrade(3, crc);
        upgrade(fixture, "123456789");
        fixture.post(MD_FUNCTION_CODE_SELECT_PAGE, 1, 1); // is dropped, which is told
        std::vector<std::pair<quint32, vorlinmodel::RequestOutcome>> done;
        QObject::connect(
            &fixture.thread, &vorlinmodel::ProtocolThread::sigRequestDone, &fixture.thread,
            [&done](const vorlinmodel::Request &request, vorlinmodel::RequestOutcome outcome) {
                done.emplace_back(request.functionCode, outcome);
            },
            Qt::DirectConnection);
        fixture.thread.start();
        QTRY_COMPARE(fixture.events("finished"), texts({"finished 1"}));
        QTRY_VERIFY(!fixture.thread.isUpgrading());
        fixture.thread.stop();
        QCOMPARE(done.size(), 2U);
        QVERIFY(done.front() ==
                std::make_pair(quint32(MD_FUNCTION_CODE_SELECT_PAGE), vorlinmodel::RequestOutcome::NoPanel));
        QCOMPARE(fixture.events(),
                 LinesToTheCrc + crcLines +
                     texts({"log upgrade success", "log please wait for device restart!", "finished 1"}));
        QList<QByteArray> reports{hex("03 02 00 02 00 06 00 06 01 00 00 00 01"),
                                  hex("03 02 00 02 00 06 00 06 01 00 00 00 06"),
                                  hex("03 02 02 02 00 0f 00 06 0a 00 00 00 03") + "123456789",
                                  hex("03 02 00 02 00 07 00") + status};
        for (QByteArray &report : reports)
            report = report.leftJustified(64, '\0');
        QCOMPARE(fakeHid().written(), reports);
        QVERIFY(fixture.log.lines().contains("1 transfer upgrade file success"_s));
    }

    void emptyFile()
    {
        ThreadFixture fixture;
        answerUpgrade(3, "ff ff");
        upgrade(fixture, {});
        fixture.thread.start();
        QTRY_COMPARE(fixture.events("finished"), texts({"finished 1"}));
        QVERIFY(fixture.events().contains("log filesize: 0 filecrc16:0xffff"_s));
        QCOMPARE(fakeHid().written().at(2),
                 hex("03 02 02 02 00 06 00 06 01 00 00 00 03").leftJustified(64, '\0'));
    }

    void fileThatCannotBeSent()
    {
        ThreadFixture fixture;
        fixture.postFile(MD_FUNCTION_CODE_UPGRADE, "none"_s);
        writeFile("long"_s, {});
        QVERIFY(QFile::resize("long"_s, 10 * 1024 * 1024 - 5)); // refused before the erasing
        fixture.postFile(MD_FUNCTION_CODE_UPGRADE, "long"_s);
        fixture.thread.start();
        QTRY_COMPARE(fixture.events(),
                     texts({"log upgrade file:none  timeout:0 ms", "log open none error",
                            "log upgrade file:long  timeout:0 ms", "log transfer upgrade file error",
                            "log Failed to transfer upgrade data"}));
        QTRY_VERIFY(!fixture.thread.isUpgrading());
        QVERIFY(fixture.messages().isEmpty());
    }

    /// While no panel is there the same file is asked for over and over.
    void unchangedFileIsNotReadAgain()
    {
        ThreadFixture fixture;
        fakeHid().setPresent(false);
        const QDateTime then = QDateTime::currentDateTime().addSecs(-60);
        const auto write = [](const QByteArray &bytes, const QDateTime &time) {
            writeFile("fw.bin"_s, bytes);
            QFile file("fw.bin"_s);
            QVERIFY(file.open(QIODevice::ReadWrite) && file.setFileTime(time, QFile::FileModificationTime));
        };
        const auto ask = [&fixture](int times) {
            fixture.postFile(MD_FUNCTION_CODE_UPGRADE, "fw.bin"_s);
            QTRY_COMPARE(fixture.events("log filesize").size(), times);
        };
        write("123456789", then);
        fixture.thread.start();
        ask(1);
        write("987654321", then); // would be noticed if it were read
        ask(2);
        write("987654321", then.addSecs(1));
        ask(3);
        const QStringList sizes = fixture.events("log filesize");
        QCOMPARE(sizes.at(0), "log filesize: 9 filecrc16:0x29b1"_s);
        QCOMPARE(sizes.at(1), sizes.at(0));
        QVERIFY(sizes.at(2) != sizes.at(0));
        QFile::remove("fw.bin"_s);
        fixture.postFile(MD_FUNCTION_CODE_UPGRADE, "fw.bin"_s);
        QTRY_COMPARE(fixture.events("log open fw.bin error").size(), 1);
    }

    /// The link breaks at one of the steps.
    void brokenLink_data()
    {
        const BrokenTable row; // reports that the panel takes before; whether the break is seen when reading
        row("request cannot be sent", 0, false,
            texts({"log send request upgrade error", "available -1", "log Failed to request upgrade"}));
        row("no response", 1, true,
            texts({"log receive upgrade response error", "log Failed to request upgrade"}));
        row("erase cannot be sent", 1, false,
            texts({"log request upgrade success", "log send ereasue request error"}));
        row("no erase response", 2, true,
            texts({"log send ereasue request ok", "log receive ereasue response error"}));
        row("first block", 2, false,
            texts({"log transfer 1 block data error\n", "log transfer upgrade file error",
                   "log Failed to transfer upgrade data"}));
        row("middle block", 3, false,
            texts({"log transfer 1 block data ok", "log transfer 2 block data error\n",
                   "log transfer upgrade file error", "log Failed to transfer upgrade data"}));
        row("last block: counts as success, wanted", 4, false,
            texts({"log transfer 2 block data ok", "log transfer 3 block data error\n",
                   "log transfer upgrade data success", "log begin receive crc16"}));
        row("no checksum", 5, true,
            texts({"log begin receive crc16", "log receive crc16 error", "log Failed to receive crc"}));
        row("status cannot be sent", 5, false,
            texts({"log check crc success", "log send upgrade status error", "finished 0"}));
    }

    void brokenLink()
    {
        const auto [written, whileReading, last] = BrokenTable::current();
        ThreadFixture fixture;
        fakeHid().failWriteAfter(whileReading ? -1 : written);
        answerUpgrade(5, "a2 6d", whileReading ? written : -1);
        upgrade(fixture, QByteArray(120, 'f')); // 126 bytes of message: three blocks
        fixture.thread.start();
        QTRY_COMPARE(fixture.events().mid(fixture.events().size() - last.size()), last);
        QTRY_COMPARE(fixture.thread.isUpgrading(), written == 4); // there it waits for the checksum
    }
};

QTEST_GUILESS_MAIN(UpgradeTest)
#include "tst_protocol_upgrade.moc"
