#include "base/logcapture.h"
#include "support/fakehid.h"
#include "transport/hidtransfer.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

using vorlindesk::HIDTransfer;

namespace {

const QString Found = QString::fromLatin1(FakeHid::DefaultPath);

QStringList textsOf(const QStringList &lines, const char *part)
{
    return lines.filter(QLatin1String(part));
}

} // namespace

class HidTransferTest : public QObject
{
    Q_OBJECT
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
        QCOMPARE(mpLog->lines().last(), QStringLiteral("3 HIDTransfer::Init error ret:-5"));
        QVERIFY(transfer.open());
        QVERIFY(transfer.uninitialise());
        QCOMPARE(fakeHid().exitCalls(), 1);
    }

    void scanListsUpToThePanel()
    {
        fakeHid().setCollections(
            {{"x&Col01", 1},
             {"x&Col02", 0xFF00, QStringLiteral("Tästen"), QStringLiteral("Wir"), QStringLiteral("7")},
             {"x&Col02b", 0xFF00}});
        HIDTransfer transfer;
        QCOMPARE(transfer.scannedPath(), QStringLiteral("x&Col02"));
        const QStringList expected = {
            QStringLiteral("1 -----scanDevicePath-------------------------------------start-"),
            QStringLiteral("1 path:x&Col01"),
            QStringLiteral("1 vendor_id:18537"),
            QStringLiteral("1 product_id:4660"),
            QStringLiteral("1 serial_number:"),
            QStringLiteral("1 release_number:256"),
            QStringLiteral("1 manufacturer_string:"),
            QStringLiteral("1 product_string:Key panel"),
            QStringLiteral("1 usage_page:1"),
            QStringLiteral("1 interface_number:0"),
            QStringLiteral("1 bus_type:1"),
            QStringLiteral("1 -----scanDevicePath-------------------------------------strTemp=[x&Col01]"),
            QStringLiteral("1 path:x&Col02"),
            QStringLiteral("1 vendor_id:18537"),
            QStringLiteral("1 product_id:4660"),
            QStringLiteral("1 serial_number:7"),
            QStringLiteral("1 release_number:256"),
            QStringLiteral("1 manufacturer_string:Wir"),
            QStringLiteral("1 product_string:Tästen"),
            QStringLiteral("1 usage_page:65280"),
            QStringLiteral("1 interface_number:0"),
            QStringLiteral("1 bus_type:1"),
            QStringLiteral("1 -----scanDevicePath-------------------------------------strTemp=[x&Col02]"),
            QStringLiteral("1 -----scanDevicePath----------------------return-----strDevicePath=[x&Col02]"),
        };
        QCOMPARE(mpLog->lines(), expected);
    }

    void panelThatReturnsElsewhereIsFound()
    {
        HIDTransfer transfer;
        QVERIFY(transfer.open());
        transfer.close();
        fakeHid().setCollections({{"y&Col02"}});
        fakeHid().setOpenable({"y&Col02"});
        QVERIFY(transfer.open());
        QCOMPARE(transfer.scannedPath(), QStringLiteral("y&Col02"));
        QCOMPARE(mpLog->lines().mid(mpLog->lines().size() - 2),
                 QStringList(
                     {QStringLiteral("1 hid_open scan [y&Col02]"), QStringLiteral("1 hid_open y&Col02 ok")}));
    }

    void pathSetByHandIsTheOnlyOneTried()
    {
        HIDTransfer transfer;
        transfer.setDevicePath(QStringLiteral("gone"));
        transfer.setDevicePath(QString());
        QVERIFY(!transfer.open());
        QVERIFY(!transfer.open());
        QCOMPARE(fakeHid().opened(), QList<QByteArray>({"gone", "gone"}));
        QCOMPARE(fakeHid().enumerations(), 1); // at construction
        QCOMPARE(transfer.scannedPath(), Found);
        QCOMPARE(mpLog->lines().mid(mpLog->lines().size() - 2),
                 QStringList({QStringLiteral("1 hid_open man set device gone"),
                              QStringLiteral("3 hid_open [gone] error")}));
    }

    void pathSetByHandReplacesAnOpenOne()
    {
        fakeHid().setOpenable({FakeHid::DefaultPath, "mine"});
        HIDTransfer transfer;
        QVERIFY(transfer.open());
        transfer.setDevicePath(QStringLiteral("mine"));
        QVERIFY(transfer.open());
        transfer.setDevicePath(QStringLiteral("mine"));
        QVERIFY(transfer.isOpen());
        QCOMPARE(fakeHid().opened(), QList<QByteArray>({FakeHid::DefaultPath, "mine"}));
    }

    void sendPadsToOneReport_data()
    {
        QTest::addColumn<int>("length");
        QTest::newRow("one byte") << 1;
        QTest::newRow("full") << 64;
    }

    void sendPadsToOneReport()
    {
        QFETCH(int, length);
        HIDTransfer transfer;
        QSignalSpy states(&transfer, &HIDTransfer::connectState);
        const QByteArray bytes(length, 'x');
        QVERIFY(transfer.Send(7, reinterpret_cast<const quint8 *>(bytes.constData()), length));
        QVERIFY(transfer.Send(8, reinterpret_cast<const quint8 *>(bytes.constData()), length));
        QCOMPARE(fakeHid().written().first(), bytes + QByteArray(64 - length, '\0'));
        QCOMPARE(states.size(), 1);
        QCOMPARE(states.first().first().toBool(), true);
        QCOMPARE(mpLog->lines().last(),
                 QStringLiteral("1 HIDTransfer::Send hid_write index[8] / ret[64]- bytes ok"));
    }

    void failedWriteClosesTheDevice_data()
    {
        QTest::addColumn<int>("result");
        QTest::addColumn<bool>("hasText");
        QTest::addColumn<QString>("line");
        QTest::newRow("error") << -1 << true << QStringLiteral("3 HIDTransfer::Send hid_write error fäke");
        QTest::newRow("error without a text")
            << -1 << false << QStringLiteral("3 HIDTransfer::Send hid_write error ");
        QTest::newRow("one byte short")
            << 63 << true << QStringLiteral("3 HIDTransfer::Send hid_write ret(63) is small than 64");
    }

    void failedWriteClosesTheDevice()
    {
        QFETCH(int, result);
        QFETCH(bool, hasText);
        QFETCH(QString, line);
        HIDTransfer transfer;
        fakeHid().setWriteResult(result);
        fakeHid().setErrorText(hasText ? std::make_optional(QStringLiteral("fäke")) : std::nullopt);
        const quint8 byte = 1;
        QVERIFY(!transfer.Send(0, &byte, 1));
        QCOMPARE(mpLog->lines().last(), line);
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
        QCOMPARE(textsOf(mpLog->lines(), "-Send-connectState false"),
                 QStringList(QStringLiteral("3 -Send-connectState false")));
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
        QCOMPARE(mpLog->lines().last(), QStringLiteral("3 HIDTransfer::Recv error fake error"));
        fakeHid().setPresent(false);
        QCOMPARE(transfer.Recv(report, 20), -1);
        QCOMPARE(mpLog->lines().last(), QStringLiteral("3 HIDTransfer::Recv open error"));
    }

    void pollingWithoutAPanelIsRareAndQuiet()
    {
        fakeHid().setPresent(false);
        HIDTransfer transfer([this] { return mNow; });
        transfer.setErrorLogging(false);
        quint8 report[64];
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
        QCOMPARE(textsOf(mpLog->lines(), "] error").size(), 1);
        QCOMPARE(mpLog->lines().last(), QStringLiteral("1 hid_open ") + Found + QStringLiteral(" ok"));
    }

    void sendDoesNotWaitForTheNextAttempt()
    {
        fakeHid().setPresent(false);
        HIDTransfer transfer([this] { return mNow; });
        transfer.setErrorLogging(false);
        quint8 report[64] = {};
        QCOMPARE(transfer.Recv(report, 20), -1);
        fakeHid().setPresent(true);
        QVERIFY(transfer.Send(0, report, 64));
    }

    /// A link that worked is tried again at once; a device that opens but cannot be read is not opened
    /// nonstop.
    void brokenLinkIsReopened_data()
    {
        QTest::addColumn<bool>("workedBefore");
        QTest::addColumn<int>("wait");
        QTest::newRow("worked before") << true << 0;
        QTest::newRow("never worked") << false << 500;
    }

    void brokenLinkIsReopened()
    {
        QFETCH(bool, workedBefore);
        QFETCH(int, wait);
        HIDTransfer transfer([this] { return mNow; });
        transfer.setErrorLogging(false);
        quint8 report[64];
        if (workedBefore)
            QCOMPARE(transfer.Recv(report, 20), 0);
        fakeHid().failNextRead();
        QCOMPARE(transfer.Recv(report, 20), -1);
        QCOMPARE(transfer.msToNextOpen(), wait);
    }

    void dumpsReportsWhenTheSettingSaysSo()
    {
        const QString before = QDir::currentPath();
        QTemporaryDir folder;
        QDir(folder.path()).mkdir(QStringLiteral("devConfig"));
        QFile file(folder.filePath(QStringLiteral("devConfig/system.ini")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("[General]\nprintBufEnable=true\n");
        file.close();
        QDir::setCurrent(folder.path());
        HIDTransfer transfer;
        QDir::setCurrent(before);
        const quint8 bytes[] = {0x03, 0x02, 0xAB};
        QVERIFY(transfer.Send(0, bytes, 3));
        QVERIFY(mpLog->lines().contains(QStringLiteral("1 03 02 ab ")));
    }

private:
    qint64 mNow = 0;
    std::unique_ptr<LogCapture> mpLog;
};

QTEST_GUILESS_MAIN(HidTransferTest)
#include "tst_transport_hidtransfer.moc"
