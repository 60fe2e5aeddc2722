#include "base/paths.h"
#include "base/systemsettings.h"
#include "support/table.h"

#include "logcapture.h"
#include "support/files.h"

#include <optional>
#include <thread>

using namespace vorlindesk;

class TestSettings : public QObject
{
    Q_OBJECT

    const QString mOldCurrent = QDir::currentPath();
    /// One per test, so that no file is known to the library from another test.
    std::optional<QTemporaryDir> mDir;

    using DeviceRecordTable = Table<QByteArray, QString, int>;
    using DamagedTable = Table<QByteArray, int>;

private slots:
    void init()
    {
        mDir.emplace();
        QVERIFY(QDir::setCurrent(mDir->path()));
    }

    void cleanup() { QDir::setCurrent(mOldCurrent); }

    void settersWriteTheirKeyAndChangesOfTheFileAreSeen()
    {
        SystemSettings::setConnectType(2);
        SystemSettings::setPrintBufEnable(true);
        SystemSettings::setAutoSyncEnable(true);
        SystemSettings::setLoadCustomLayout(true);
        SystemSettings::setLanguage(257);
        QCOMPARE(
            testFileContent(Paths::systemIni()).replace("\r\n", "\n"),
            QByteArray("[General]\nautoSyncEnable=true\nconnectType=2\nlanguage=1\nloadCustomLayout=true\n"
                       "printBufEnable=true\n"));
        QVERIFY(writeTestFile(Paths::systemIni(), "[General]\nconnectType=1234\nprintBufEnable=true\n"));
        QCOMPARE(SystemSettings::connectType(), 1234); // the change is seen
        QCOMPARE(SystemSettings::printBufEnable(), true);
        QCOMPARE(SystemSettings::loadCustomLayout(), false);
    }

    void valueThatIsNoNumberReadsAsZero()
    {
        QVERIFY(writeTestFile(Paths::systemIni(),
                              "connectType=usb\nlanguage=zh\n[HomeLayoutPage]\nkeyid_3_page=x\n"));
        QCOMPARE(SystemSettings::connectType(), 0);
        QCOMPARE(SystemSettings::language(), 0);
        QCOMPARE(SystemSettings::homeLayoutEntry(3), (SystemSettings::HomeLayoutEntry{3, -1, 0, -1}));
    }

    void firstStartTurnsSynchronisationOn()
    {
        QCOMPARE(SystemSettings::autoSyncEnable(), false);
        QVERIFY2(!QFile::exists(Paths::systemIni()), "reading must not write");
        SystemSettings::createDefaults();
        QCOMPARE(SystemSettings::autoSyncEnable(), true);
        SystemSettings::setAutoSyncEnable(false);
        SystemSettings::createDefaults(); // the choice of the user stands
        QCOMPARE(SystemSettings::autoSyncEnable(), false);
    }

    void homeLayoutKeepsWhatIsNotNamed()
    {
        using Entry = SystemSettings::HomeLayoutEntry;
        QCOMPARE(SystemSettings::homeLayoutEntry(7), (Entry{7, -1, -1, -1}));
        SystemSettings::setHomeLayoutEntries({{15, 1, 16, 2}, {2, -1, 3, 1}});
        SystemSettings::setHomeLayoutEntries({{15, -1, -1, -1}});
        QCOMPARE(SystemSettings::homeLayoutEntries(), (QVector<Entry>{{2, -1, 3, 1}, {15, -1, -1, -1}}));
        QCOMPARE(testFileContent(Paths::systemIni()).replace("\r\n", "\n"),
                 QByteArray("[HomeLayoutPage]\nkeyid_15_layout=-1\nkeyid_15_page=-1\nkeyid_15_sum=-1\n"
                            "keyid_2_layout=-1\nkeyid_2_page=3\nkeyid_2_sum=1\n"));
    }

    void deviceRecord_data()
    {
        const DeviceRecordTable row;
        row("Windows path", "[General]\r\nHidDevicePath=\\\\\\\\?\\\\hid#vid_4869&col02\r\nversion=3\r\n",
            "\\\\?\\hid#vid_4869&col02", 3);
        row("byte order mark", "\xEF\xBB\xBF[General]\r\nHidDevicePath=/dev/hidraw3\r\n", "/dev/hidraw3", 0);
        row("group as the library writes it", "[%General]\nHidDevicePath=/dev/hidraw3\nversion=3\n",
            "/dev/hidraw3", 3);
        row("damaged: the rest counts, and nothing is written beside the program",
            "[General]\nversion=3\nHidDev", {}, 3);
        row("keys in no group", "HidDevicePath=/dev/hidraw3\nversion=3\n", {}, 0);
        row("version is no number", "[General]\nversion=new\n", {}, 0);
    }

    void deviceRecord()
    {
        const auto [content, devicePath, version] = DeviceRecordTable::current();
        const QString path = mDir->filePath("quorradent_md.ini"_s);
        QVERIFY(writeTestFile(path, content));
        LogCapture capture;
        const auto record = SystemSettings::deviceRecord(path);
        QCOMPARE(record.devicePath, devicePath);
        QCOMPARE(record.version, version);
        QCOMPARE(capture.lines(),
                 QStringList{"1 strIniFile:%1 strDevicePath:%2 ver:%3"_s.arg(path, devicePath).arg(version)});
        QCOMPARE(QDir(mDir->path()).entryList(QDir::Files), QStringList{"quorradent_md.ini"_s});
    }

    void damagedFileIsKeptAside_data()
    {
        const DamagedTable row;
        row("line without a value", "[General]\nconnectType=2\nautoSyn", 2);
        row("group without an end", "connectType=2\n[Home\nkeyid_1_page=1\n", 2);
        row("zeros after a crash", QByteArray(64, '\0'), 0);
    }

    void damagedFileIsKeptAside()
    {
        const auto [content, connectType] = DamagedTable::current();
        const QString path = Paths::systemIni();
        QVERIFY(writeTestFile(path, content));
        LogCapture capture;
        QCOMPARE(SystemSettings::connectType(), connectType);
        SystemSettings::connectType(); // told once
        const QString aside = path + ".damaged"_s;
        QCOMPARE(capture.lines(), QStringList{"3 %1 is damaged, kept aside as %2"_s.arg(path, aside)});
        SystemSettings::setConnectType(1);
        QCOMPARE(testFileContent(aside), content);
        QCOMPARE(SystemSettings::connectType(), 1);

        QVERIFY(writeTestFile(path, "second damage\n"));
        SystemSettings::connectType();
        QCOMPARE(testFileContent(aside), content);
        const QDir folder(Paths::devConfigFolder());
        const QStringList kept = folder.entryList({"system.ini.damaged-*"_s});
        QCOMPARE(kept.size(), 1);
        QCOMPARE(testFileContent(folder.filePath(kept.first())), QByteArray("second damage\n"));
    }

    void failedWriteIsReported()
    {
        QVERIFY(writeTestFile(Paths::devConfigFolder(), "a file where the folder should be"));
        LogCapture capture;
        SystemSettings::setConnectType(1);
        QCOMPARE(capture.lines(), QStringList{"3 %1 cannot be written"_s.arg(Paths::systemIni())});
    }

    void severalThreadsShareAFile()
    {
        SystemSettings::setConnectType(1);
        LogCapture capture;
        std::thread other([] {
            for (int i = 0; i < 20; ++i)
                SystemSettings::setHomeLayoutEntries({{1, 1, i, 1}});
        });
        for (int i = 0; i < 20; ++i) {
            SystemSettings::setLanguage(i);
            QCOMPARE(SystemSettings::connectType(), 1);
        }
        other.join();
        QCOMPARE(SystemSettings::language(), 19);
        QCOMPARE(SystemSettings::homeLayoutEntry(1).pageId, 19);
        QCOMPARE(capture.lines(), QStringList()); // each could be read and written
    }
};

QTEST_GUILESS_MAIN(TestSettings)
#include "tst_base_settings.moc"
