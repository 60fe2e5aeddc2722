// The drop-in hidapi against the real panel program: what the round trip of the whole does not show.
#include "panelbytes.h"
#include "panelprocess.h"

#include <QtTest>
#include <hidapi.h>
#include <memory>

namespace {

constexpr unsigned short VendorId = 0x4869;
constexpr unsigned short ProductId = 0x1234;
constexpr int Patience = 5000; // ms

using Device = std::unique_ptr<hid_device, decltype(&hid_close)>;

Device openPanel(const char *path = "/dev/hidraw7")
{
    return {hid_open_path(path), &hid_close};
}

int write(const Device &device, const QByteArray &bytes)
{
    return hid_write(device.get(), reinterpret_cast<const unsigned char *>(bytes.constData()),
                     static_cast<size_t>(bytes.size()));
}

int readResult(const Device &device, int milliseconds = Patience, QByteArray *bytes = nullptr)
{
    QByteArray buffer(64, '\0');
    const int count = hid_read_timeout(device.get(), reinterpret_cast<unsigned char *>(buffer.data()),
                                       static_cast<size_t>(buffer.size()), milliseconds);
    if (bytes != nullptr && count > 0)
        *bytes = buffer.left(count);
    return count;
}

/// The next report; empty for a time-out.
QByteArray read(const Device &device)
{
    QByteArray bytes;
    readResult(device, Patience, &bytes);
    return bytes;
}

QStringList listedPaths()
{
    QStringList paths;
    hid_device_info *devices = hid_enumerate(VendorId, ProductId);
    for (const hid_device_info *device = devices; device != nullptr; device = device->next)
        paths << QString::fromLatin1(device->path);
    hid_free_enumeration(devices);
    return paths;
}

QJsonObject object(const QByteArray &json)
{
    return QJsonDocument::fromJson(json).object();
}

} // namespace

class TestPanelDropin : public QObject
{
    Q_OBJECT

private slots:
    void noPanelProgram()
    {
        qputenv("VIRTUAL_PANEL_PORT", "1"); // nobody listens there
        QElapsedTimer clock;
        clock.start();
        QCOMPARE(hid_init(), 0);
        QVERIFY(hid_enumerate(0, 0) == nullptr);
        QVERIFY(!openPanel());
        QVERIFY2(clock.elapsed() < 1000, qPrintable(QString::number(clock.elapsed())));
        QCOMPARE(hid_exit(), 0);
    }

    void listInTheFormOfLinux()
    {
        PanelProcess panel;
        QVERIFY(panel.start());
        hid_device_info *devices = hid_enumerate(VendorId, ProductId);
        QVERIFY(devices != nullptr && devices->next != nullptr);
        QVERIFY(devices->usage_page < 0xFF00);
        QVERIFY(devices->next->usage_page >= 0xFF00);
        hid_free_enumeration(devices);
        QCOMPARE(listedPaths().join(QLatin1Char(' ')), "/dev/hidraw7 /dev/hidraw7 /dev/hidraw7"_s);
        QVERIFY(hid_enumerate(VendorId, 1) == nullptr);
        QVERIFY(!openPanel("/dev/hidraw8"));
    }

    void faultsOfTheHostAreListed()
    {
        PanelProcess panel;
        QVERIFY(panel.start("--block-pause-us 60000000"));
        const Device device = openPanel();
        QCOMPARE(write(device, QByteArray(10, '\3')), 10);
        QVERIFY(panel.ask("violations").contains("10 bytes instead of 64"));
        QCOMPARE(panel.ask("clear"), QByteArray("ok"));
        QCOMPARE(panel.ask("violations"), QByteArray("[]"));
        // Back to back, without the pause that the host owes a picture.
        for (const QByteArray &block : blocks(attribute("01010309", picture(pngFile(90, 84)))))
            QCOMPARE(write(device, block), 64);
        QVERIFY(panel.ask("violations").contains("us after the block before"));
    }

    void unplugInTheMiddle()
    {
        PanelProcess panel;
        QVERIFY(panel.start());
        QCOMPARE(panel.ask("fault unplug-after 2"), QByteArray("ok"));
        const Device device = openPanel();
        QCOMPARE(write(device, whole("04")), 64);
        write(device, whole("04"));
        QTRY_COMPARE(write(device, whole("04")), -1);
        QVERIFY(!object(panel.ask("state")).value("plugged"_s).toBool());
    }

    /// The panel goes away for a second after good firmware, and comes back by itself.
    void restartAfterUpgrade()
    {
        PanelProcess panel;
        QVERIFY(panel.start());
        const Device device = openPanel();
        write(device, whole("0601000000 01"));
        write(device, whole("0601000000 06"));
        write(device, hostReport(2, QByteArray::fromHex("0602000000 0341")));
        for (int i = 0; i < 3; ++i)
            QVERIFY(!read(device).isEmpty());
        write(device, whole("0602000000 0500"));
        QTRY_COMPARE(readResult(device), -1);
        QVERIFY(listedPaths().isEmpty());
        QTRY_VERIFY(!listedPaths().isEmpty());
        QCOMPARE(panel.ask("violations"), QByteArray("[]"));
    }

    /// Nobody reads: 63 reports are kept, the newer ones dropped and told to the panel.
    void ringOverflow()
    {
        PanelProcess panel;
        QVERIFY(panel.start("--report-interval-us 0 --empty"));
        const Device device = openPanel();
        constexpr int ring = 63;
        for (int key = 0; key < ring + 2; ++key)
            panel.ask("press " + QByteArray::number(key % 15 + 1));
        QTRY_VERIFY(QJsonDocument::fromJson(panel.ask("violations")).array().size() == 2);
        for (int i = 0; i < ring; ++i)
            QCOMPARE(int(read(device).at(13)), i % 15 + 1);
        QCOMPARE(readResult(device, 0), 0);
    }
};

QTEST_GUILESS_MAIN(TestPanelDropin)
#include "tst_panel_dropin.moc"
