#include "base/logcapture.h"
#include "support/fakehid.h"
#include "support/table.h"
#include "support/texts.h"
#include "transport/hidtransfer.h"
#include "wire/bytesofhex.h"

using vorlindesk::HIDTransfer;

class HidTransferTest : public QObject
{
    Q_OBJECT
    using FailedWriteTable = Table<int, bool, QString>;

private slots:
    void init()
    {
        renewFakeHid();
        fakeHid().setInstantTimeouts(true);
        mNow = 0;
        mpLog = std::make_unique<LogCapture>();
    }

    void cleanup()
    {
        QCOMPARE(fakeHid().openHandles(), 0);
        QCOMPARE(fakeHid().openListings(), 0);
        mpLog.reset();
    }

    void initTellsOfTheLibrary()
    {
        HIDTransfer transfer;
        QVERIFY(transfer.Init());
        fakeHid().setInitResult(-5);
        QVERIFY(!transfer.Init());
        QCOMPARE(lastLines(1), texts({"3 HIDTransfer::Init error ret:-5"}));
        QVERIFY(transfer.open());
        QVERIFY(transfer.uninitialise()); // closes it
    }

    void scanListsUpToThePanel()
    {
        fakeHid().setCollections(
            {{"x&Col01", 1}, {"x&Col02", 0xFF00, L"Tästen", L"Wir", L"7"}, {"x&Col02b", 0xFF00}});
        HIDTransfer transfer;
        const QStringList lines = mpLog->lines();
        QCOMPARE(lines.filter("path:"_s), texts({"1 path:x&Col01", "1 path:x&Col02"}));
        QCOMPARE(lines.mid(lines.indexOf("1 serial_number:7"_s), 4),
                 texts({"1 serial_number:7", "1 release_number:256", "1 manufacturer_string:Wir",
                        "1 product_string:Tästen"}));
        QCOMPARE(lines.last(),
                 "1 -----scanDevicePath----------------------return-----strDevicePath=[x&Col02]"_s);
    }

    void panelThatReturnsElsewhereIsFound()
    {
        HIDTransfer transfer;
        QVERIFY(transfer.open());
        transfer.close();
        fakeHid().setCollections({{"y&Col02"}});
        fakeHid().setOpenable({"y&Col02"});
        QVERIFY(transfer.open());
        QCOMPARE(lastLines(2), texts({"1 hid_open scan [y&Col02]", "1 hid_open y&Col02 ok"}));
    }

    void pathSetByHandIsTheOnlyOneTried()
    {
        HIDTransfer transfer;
        transfer.setDevicePath("gone"_s);
        transfer.setDevicePath(QString());
        QVERIFY(!transfer.open());
        QCOMPARE(fakeHid().opened(), QList<QByteArray>{"gone"});
        QCOMPARE(fakeHid().enumerations(), 1); // at construction
        QCOMPARE(lastLines(2), texts({"1 hid_open man set device gone", "3 hid_open [gone] error"}));
    }

    void pathSetByHandReplacesAnOpenOne()
    {
        fakeHid().setOpenable({FakeHid::DefaultPath, "mine"});
        HIDTransfer transfer;
        QVERIFY(transfer.open());
        transfer.setDevicePath("mine"_s);
        QVERIFY(transfer.open());
        transfer.setDevicePath("mine"_s);
        QVERIFY(transfer.isOpen());
        QCOMPARE(fakeHid().opened(), QList<QByteArray>({FakeHid::DefaultPath, "mine"}));
    }

    void sendPadsToOneReport()
    {
        HIDTransfer transfer;
        const QByteArray bytes(64, 'x');
        QVERIFY(transfer.Send(7, data(bytes), 1));
        QVERIFY(transfer.Send(8, data(bytes), 64));
        QCOMPARE(fakeHid().written(), QList<QByteArray>({'x' + QByteArray(63, '\0'), bytes}));
        QCOMPARE(lastLines(1), texts({"1 HIDTransfer::Send hid_write index[8] / ret[64]- bytes ok"}));
    }

    void failedWriteClosesTheDevice_data()
    {
        const FailedWriteTable row;
        row("error", -1, true, "error fäke");
        row("error without a text", -1, false, "error ");
        row("one byte short", 63, true, "ret(63) is small than 64");
    }

    void failedWriteClosesTheDevice()
    {
        const auto [result, hasText, error] = FailedWriteTable::current();
        HIDTransfer transfer;
        fakeHid().setWriteResult(result);
        fakeHid().setErrorText(hasText ? std::make_optional(L"fäke") : std::nullopt);
        const quint8 byte = 1;
        QVERIFY(!transfer.Send(0, &byte, 1));
        QCOMPARE(mpLog->lines().last(), "3 HIDTransfer::Send hid_write "_s + error);
        QCOMPARE(fakeHid().openHandles(), 0);
        QCOMPARE(transfer.openCount(), 2);
        fakeHid().setWriteResult(std::nullopt);
        QVERIFY(transfer.Send(0, &byte, 1));
    }

    void connectStateChangesOnlyInSend()
    {
        HIDTransfer transfer;
        QSignalSpy states(&transfer, &HIDTransfer::connectState);
        quint8 report[64] = {};
        QCOMPARE(transfer.Recv(report, 20), 0);
        fakeHid().setPresent(false);
        QVERIFY(!transfer.Send(0, report, 1)); // the write fails; the device could be opened
        QCOMPARE(states.size(), 1);
        QCOMPARE(transfer.Recv(report, 20), -1);
        QCOMPARE(states.size(), 1);
        QVERIFY(!transfer.Send(0, report, 1));
        QVERIFY(!transfer.Send(0, report, 1));
        QCOMPARE(states.size(), 2);
        QCOMPARE(states.last().first().toBool(), false);
        QCOMPARE(mpLog->lines().count("3 -Send-connectState false"_s), 1);
    }

    void recvTellsReportsTimeoutsAndErrorsApart()
    {
        HIDTransfer transfer;
        quint8 report[64];
        memset(report, 0x77, sizeof report);
        QCOMPARE(transfer.Recv(report, 20), 0);
        QCOMPARE(report[0], quint8{0x77});
        QCOMPARE(fakeHid().readTimeouts(), QList<int>{20});
        QVERIFY(transfer.isOpen());
        fakeHid().send("ab");
        QCOMPARE(transfer.Recv(report, 20), 64);
        QCOMPARE(QByteArray(reinterpret_cast<char *>(report), 3), QByteArray("ab\0", 3));
        fakeHid().failNextRead();
        QCOMPARE(transfer.Recv(report, 20), -1);
        QVERIFY(!transfer.isOpen());
        QCOMPARE(lastLines(1), texts({"3 HIDTransfer::Recv error fake error"}));
        fakeHid().setPresent(false);
        QCOMPARE(transfer.Recv(report, 20), -1);
        QCOMPARE(lastLines(1), texts({"3 HIDTransfer::Recv open error"}));
    }

    void pollingWithoutAPanelIsRareAndQuiet()
    {
        fakeHid().setPresent(false);
        HIDTransfer transfer([this] { return mNow; });
        transfer.setErrorLogging(false);
        quint8 report[64] = {};
        QCOMPARE(transfer.msToNextOpen(), 0);
        QCOMPARE(transfer.Recv(report, 20), -1); // the first attempt is logged
        const QStringList linesBefore = mpLog->lines();
        const int scansBefore = fakeHid().enumerations();
        QCOMPARE(transfer.msToNextOpen(), 500);
        mNow = 499;
        QCOMPARE(transfer.Recv(report, 20), -1);
        QCOMPARE(fakeHid().enumerations(), scansBefore);
        QCOMPARE(transfer.msToNextOpen(), 1);
        mNow = 500;
        QCOMPARE(transfer.Recv(report, 20), -1);
        QCOMPARE(fakeHid().enumerations(), scansBefore + 1);
        QCOMPARE(mpLog->lines(), linesBefore); // same outcome: nothing new
        fakeHid().setPresent(true);
        QCOMPARE(transfer.Recv(report, 20), -1);
        mNow = 1000;
        QCOMPARE(transfer.Recv(report, 20), 0);
        QCOMPARE(mpLog->lines().filter("] error"_s).size(), 1);
        QCOMPARE(lastLines(1), texts({"1 hid_open \\\\?\\hid#fake&Col02 ok"}));
        fakeHid().setPresent(false);
        QCOMPARE(transfer.Recv(report, 20), -1);
        QCOMPARE(transfer.Recv(report, 20), -1);
        fakeHid().setPresent(true);
        QVERIFY(transfer.Send(0, report, 64)); // does not wait for the next attempt
    }

    /// A link that worked is tried again at once; a device that opens but cannot be read is not opened
    /// nonstop.
    void brokenLinkIsReopened()
    {
        quint8 report[64];
        for (const bool workedBefore : {true, false}) {
            HIDTransfer transfer([this] { return mNow; });
            transfer.setErrorLogging(false);
            if (workedBefore)
                QCOMPARE(transfer.Recv(report, 20), 0);
            fakeHid().failNextRead();
            QCOMPARE(transfer.Recv(report, 20), -1);
            QCOMPARE(transfer.msToNextOpen(), workedBefore ? 0 : 500);
        }
    }

private:
    QStringList lastLines(int count) { return mpLog->lines().mid(mpLog->lines().size() - count); }

    qint64 mNow = 0;
    std::unique_ptr<LogCapture> mpLog;
};

QTEST_GUILESS_MAIN(HidTransferTest)
#include "tst_transport_hidtransfer.moc"
