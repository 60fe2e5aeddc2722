#include "base/paths.h"
#include "base/systemsettings.h"

#include "logcapture.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <optional>
#include <thread>

using namespace vorlindesk;

namespace {

void writeFile(const QString &path, const QByteArray &bytes)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

} // namespace

class TestSettings : public QObject
{
    Q_OBJECT

    const QString mOldCurrent = QDir::currentPath();
    /// One per test, so that no file is known to the library from another test.
    std::optional<QTemporaryDir> mDir;

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
            readFile(Paths::systemIni()).replace("\r\n", "\n"),
            QByteArray("[General]\nautoSyncEnable=true\nconnectType=2\nlanguage=1\nloadCustomLayout=true\n"
                       "printBufEnable=true\n"));
        writeFile(Paths::systemIni(), "[General]\nconnectType=1234\nprintBufEnable=true\n");
        QCOMPARE(SystemSettings::connectType(), 1234); // the change is seen
        QCOMPARE(SystemSettings::printBufEnable(), true);
        QCOMPARE(SystemSettings::loadCustomLayout(), false);
    }

    void valueThatIsNoNumberReadsAsZero()
    {
        writeFile(Paths::systemIni(), "connectType=usb\nlanguage=zh\n[HomeLayoutPage]\nkeyid_3_page=x\n");
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
        QCOMPARE(readFile(Paths::systemIni()).replace("\r\n", "\n"),
                 QByteArray("[HomeLayoutPage]\nkeyid_15_layout=-1\nkeyid_15_page=-1\nkeyid_15_sum=-1\n"
                            "keyid_2_layout=-1\nkeyid_2_page=3\nkeyid_2_sum=1\n"));
    }

    void deviceRecord_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("devicePath");
        QTest::addColumn<int>("version");
        QTest::newRow("Windows path")
            << QByteArray("[General]\r\nHidDevicePath=\\\\\\\\?\\\\hid#vid_4869&col02\r\nversion=3\r\n")
            << QStringLiteral("\\\\?\\hid#vid_4869&col02") << 3;
        QTest::newRow("byte order mark")
            << QByteArray("\xEF\xBB\xBF[General]\r\nHidDevicePath=/dev/hidraw3\r\n")
            << QStringLiteral("/dev/hidraw3") << 0;
        QTest::newRow("group as the library writes it")
            << QByteArray("[%General]\nHidDevicePath=/dev/hidraw3\nversion=3\n")
            << QStringLiteral("/dev/hidraw3") << 3;
        QTest::newRow("damaged: the rest counts, and nothing is written beside the program")
            << QByteArray("[General]\nversion=3\nHidDev") << QString() << 3;
        QTest::newRow("keys in no group")
            << QByteArray("HidDevicePath=/dev/hidraw3\nversion=3\n") << QString() << 0;
        QTest::newRow("version is no number") << QByteArray("[General]\nversion=new\n") << QString() << 0;
    }

    void deviceRecord()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, devicePath);
        QFETCH(int, version);
        const QString path = mDir->filePath(QStringLiteral("quorradent_md.ini"));
        writeFile(path, content);
        LogCapture capture;
        const auto record = SystemSettings::deviceRecord(path);
        QCOMPARE(record.devicePath, devicePath);
        QCOMPARE(record.version, version);
        QCOMPARE(capture.lines(), QStringList{QStringLiteral("1 strIniFile:%1 strDevicePath:%2 ver:%3")
                                                  .arg(path, devicePath)
                                                  .arg(version)});
        QCOMPARE(QDir(mDir->path()).entryList(QDir::Files), QStringList{QStringLiteral("quorradent_md.ini")});
    }

    void damagedFileIsKeptAside_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<int>("connectType");
        QTest::newRow("line without a value") << QByteArray("[General]\nconnectType=2\nautoSyn") << 2;
        QTest::newRow("group without an end") << QByteArray("connectType=2\n[Home\nkeyid_1_page=1\n") << 2;
        QTest::newRow("zeros after a crash") << QByteArray(64, '\0') << 0;
    }

    void damagedFileIsKeptAside()
    {
        QFETCH(QByteArray, content);
        const QString path = Paths::systemIni();
        writeFile(path, content);
        LogCapture capture;
        QTEST(SystemSettings::connectType(), "connectType");
        SystemSettings::connectType(); // told once
        const QString aside = path + QStringLiteral(".damaged");
        QCOMPARE(capture.lines(),
                 QStringList{QStringLiteral("3 %1 is damaged, kept aside as %2").arg(path, aside)});
        SystemSettings::setConnectType(1);
        QCOMPARE(readFile(aside), content);
        QCOMPARE(SystemSettings::connectType(), 1);

        writeFile(path, "second damage\n");
        SystemSettings::connectType();
        QCOMPARE(readFile(aside), content);
        const QDir folder(Paths::devConfigFolder());
        const QStringList kept = folder.entryList({QStringLiteral("system.ini.damaged-*")});
        QCOMPARE(kept.size(), 1);
        QCOMPARE(readFile(folder.filePath(kept.first())), QByteArray("second damage\n"));
    }

    void failedWriteIsReported()
    {
        writeFile(Paths::devConfigFolder(), "a file where the folder should be");
        LogCapture capture;
        SystemSettings::setConnectType(1);
        QCOMPARE(capture.lines(),
                 QStringList{QStringLiteral("3 %1 cannot be written").arg(Paths::systemIni())});
    }

    void severalThreadsShareAFile()
    {
        SystemSettings::setConnectType(1);
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
    }
};

QTEST_GUILESS_MAIN(TestSettings)
#include "tst_base_settings.moc"
