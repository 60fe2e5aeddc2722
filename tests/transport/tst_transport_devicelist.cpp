#include "support/fakehid.h"
#include "support/table.h"
#include "transport/hiddevicelist.h"

using vorlindesk::HidDeviceEntry;

class DeviceListTest : public QObject
{
    Q_OBJECT
    using PicksThePanelTable = Table<QString, bool, QString>;

private slots:
    void picksThePanel_data()
    {
        // listed: "path usage-page|...", pages in hex
        const PicksThePanelTable row;
        row("nothing listed", "", true, "");
        row("two panels: the first", "x#Col01#1|x#Col02#1|x#Col02#2", false, "x#Col02#1");
        row("lower case does not count", "\\\\?\\hid#a&col02 ff00", true, "");
        row("the name comes before every other rule", "/dev/hidraw1 ff00|/dev/hidraw1 ff00|/dev/x-Col02 1",
            true, "/dev/x-Col02");
        row("node listed twice comes before a vendor page", "/dev/hidraw0 ff00|/dev/hidraw3 c|/dev/hidraw3 1",
            true, "/dev/hidraw3");
        row("first vendor page", "/dev/hidraw0 feff|/dev/hidraw1 ff00|/dev/hidraw2 ffab", true,
            "/dev/hidraw1");
        row("no vendor page", "/dev/hidraw0 1|/dev/hidraw1 feff", true, "");
        row("other paths are no device nodes", "0001:0002:00 ff00|0001:0002:00 ff00", true, "");
        row("device nodes are not looked at", "/dev/hidraw3 ff00|/dev/hidraw3 ff00", false, "");
    }

    void picksThePanel()
    {
        const auto [listed, deviceNodes, picked] = PicksThePanelTable::current();
        QVector<HidDeviceEntry> entries;
        for (const QString &text : listed.split(QLatin1Char('|'), Qt::SkipEmptyParts)) {
            HidDeviceEntry entry;
            entry.path = text.section(QLatin1Char(' '), 0, 0).toStdString();
            entry.usagePage = text.section(QLatin1Char(' '), 1, 1).toUInt(nullptr, 16);
            entries << entry;
        }
        QCOMPARE(QString::fromStdString(vorlindesk::pickPanelPath(entries, deviceNodes)), picked);
    }

    void freesTheListAndBearsMissingTexts()
    {
        renewFakeHid();
        FakeCollection nameless{"/dev/hidraw7"};
        nameless.nullTexts = true;
        fakeHid().setCollections({nameless, {"/dev/hidraw8", 0xFF00, L"面板"}});
        const QVector<HidDeviceEntry> entries = vorlindesk::listPanelCollections();
        QCOMPARE(entries.size(), 2);
        QCOMPARE(entries.at(0).product, QString());
        QCOMPARE(entries.at(1).product, "面板"_s);
        QCOMPARE(entries.at(1).usagePage, 0xFF00U);
        QCOMPARE(fakeHid().openListings(), 0);
    }
};

QTEST_GUILESS_MAIN(DeviceListTest)
#include "tst_transport_devicelist.moc"
