/// Dated script folders, and the settings files on their way out and back.
#include "fileutil.h"
#include "model/configbackup.h"
#include "model/scriptcontainer.h"
#include "model/scriptformat.h"
#include "storefixture.h"

#include <QtTest>
#include <memory>

using namespace vorlinmodel;

namespace {
const QDateTime Moment(QDate(2026, 11, 21), QTime(9, 5, 7));
}

class TestFilesBackup : public QObject
{
    Q_OBJECT

    std::unique_ptr<StoreFixture> mpFixture;

    QString path(const char *name) const { return mpFixture->path(name); }

    void fill(const char *folder, const QByteArray &mark) const
    {
        for (const char *name : {"customLayout.ini", "multiActions.json", "system.ini"})
            QVERIFY(writeTestFile(path(folder) + QLatin1Char('/') + u(name), mark + name));
    }

private slots:
    void init() { mpFixture = std::make_unique<StoreFixture>(); }
    void cleanup() { mpFixture.reset(); }

    void folderOfAnExport()
    {
        const auto folder = [](const char *directory) {
            return ConfigBackup::scriptFolder(u(directory), Moment);
        };
        QCOMPARE(folder("/e/out"), u("/e/out/script_20261121_090507"));
        // Inside an earlier export, not inside a folder that only sounds like one.
        QCOMPARE(folder("/e/script_20250102_030405"), u("/e/script_20261121_090507"));
        QCOMPARE(folder("/e/script_20250102_030405/deeper"), u("/e/script_20261121_090507"));
        QCOMPARE(folder("/e/script_files"), u("/e/script_files/script_20261121_090507"));
    }

    void twoExportsInOneSecond()
    {
        const QString out = path("new/out");
        QVERIFY(ConfigBackup::writeScript(out, "a longer first one", Moment));
        const QString file = out + u("/script_20261121_090507/CD.bin");
        QCOMPARE(mpFixture->takeLines(), QStringList{u("1 -strFileName[") + file + u("]")});
        QVERIFY(ConfigBackup::writeScript(out, "second", Moment));
        QCOMPARE(testFileContent(file), QByteArray("second"));
        QCOMPARE(QDir(out).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 1);
        QCOMPARE(currentScript(), QByteArray("second"));
        QVERIFY(ConfigBackup::writeScript({}, "abc", Moment)); // no directory chosen
        QCOMPARE(testFileContent(path("devConfig/script_20261121_090507/CD.bin")), QByteArray("abc"));
    }

    void anExportThatCannotBeWritten()
    {
        setCurrentScript("before");
        QVERIFY(writeTestFile(path("file"), "in the way"));
        QVERIFY(!ConfigBackup::writeScript(path("file"), "abc", Moment));
        QVERIFY(mpFixture->takeLines().contains(u("3 Failed to open file for writing!")));
        QCOMPARE(currentScript(), QByteArray("before"));
    }

    void readingAScript()
    {
        const QString folder = path("s");
        const QString file = folder + u("/CD.bin");
        QVERIFY(!ConfigBackup::readScript(folder));
        QCOMPARE(mpFixture->takeLines(), QStringList{u("3 ScriptDir[") + folder + u("] no exists")});
        QDir().mkpath(folder);
        QVERIFY(!ConfigBackup::readScript(folder));
        QCOMPARE(mpFixture->takeLines(), QStringList{u("3 ScriptBin[") + file + u("] open failed")});

        Script script;
        script.pages = {{3, 2, {}}};
        const QByteArray bytes = encodeScript(script);
        QVERIFY(writeTestFile(file, bytes));
        QCOMPARE(ConfigBackup::readScript(folder).value(), bytes);
        QCOMPARE(mpFixture->takeLines(),
                 QStringList({u("1 open ") + file + u(" ok size:44"), u("1 nlayoutId[3]-npageId[2]-")}));
        QCOMPARE(currentScript(), bytes);
        QVERIFY(writeTestFile(file, "foreign"));
        QCOMPARE(ConfigBackup::readScript(folder).value(), QByteArray("foreign"));
        QCOMPARE(mpFixture->takeLines().last(), u("1 nlayoutId[-1]-npageId[-1]-"));
    }

    void backupGoesOnAfterAFailure()
    {
        fill("devConfig", "new ");
        QVERIFY(QFile::remove(path("devConfig/customLayout.ini")));
        QVERIFY(writeTestFile(path("out/system.ini"), "of an older backup"));
        QVERIFY(!ConfigBackup::backupSettingsFiles(path("out")));
        QCOMPARE(mpFixture->takeLines(),
                 QStringList{u("3 Failed to backup  [") + path("out/customLayout.ini") + u("]!")});
        QCOMPARE(testFileContent(path("out/multiActions.json")), QByteArray("new multiActions.json"));
        QCOMPARE(testFileContent(path("out/system.ini")), QByteArray("new system.ini"));
    }

    void restoreReplacesWhatStandsInTheWay()
    {
        fill("in", "saved ");
        fill("devConfig", "old ");
        QVERIFY(
            QFile::setPermissions(path("devConfig/customLayout.ini"), QFile::ReadOwner | QFile::ReadUser));
        // A folder can neither be replaced nor removed, so it is moved aside, in place of an older one.
        QVERIFY(QFile::remove(path("devConfig/multiActions.json")));
        QVERIFY(writeTestFile(path("devConfig/multiActions.json/inner"), "x"));
        QVERIFY(writeTestFile(path("devConfig/multiActions.json.del"), "older"));
        QVERIFY(ConfigBackup::restoreSettingsFiles(path("in")));
        QCOMPARE(mpFixture->takeLines(), QStringList());
        for (const char *name : {"customLayout.ini", "multiActions.json", "system.ini"})
            QCOMPARE(testFileContent(path("devConfig/") + u(name)), QByteArray("saved ") + name);
        QCOMPARE(testFileContent(path("devConfig/multiActions.json.del/inner")), QByteArray("x"));
        QVERIFY(QFileInfo(path("devConfig/customLayout.ini")).isWritable());
    }

    void restoreGoesOnAfterAFailure()
    {
        fill("in", "saved ");
        fill("devConfig", "old ");
        QVERIFY(QFile::remove(path("in/customLayout.ini")));
        QVERIFY(QFile::remove(path("devConfig/multiActions.json")));
        QVERIFY(writeTestFile(path("devConfig/multiActions.json/inner"), "x"));
        QVERIFY(writeTestFile(path("devConfig/multiActions.json.del/inner"), "y"));
        QVERIFY(!ConfigBackup::restoreSettingsFiles(path("in")));
        QCOMPARE(mpFixture->takeLines(),
                 QStringList({u("3 Failed to restore  [") + path("devConfig/customLayout.ini") + u("]!"),
                              u("3 Failed to delete  [") + path("devConfig/multiActions.json") + u("]!"),
                              u("3 Failed to restore  [") + path("devConfig/multiActions.json") + u("]!")}));
        QCOMPARE(testFileContent(path("devConfig/customLayout.ini")), QByteArray("old customLayout.ini"));
        QCOMPARE(testFileContent(path("devConfig/system.ini")), QByteArray("saved system.ini"));
    }

#ifndef Q_OS_WIN
    void restoreOnAFullDiskKeepsTheOldFiles()
    {
        fill("in", QByteArray(1000, 's'));
        fill("devConfig", "old ");
        {
            const FullDisk fullDisk;
            QVERIFY(!ConfigBackup::restoreSettingsFiles(path("in")));
        }
        QCOMPARE(QDir(path("devConfig")).entryList(QDir::Files, QDir::Name),
                 texts({"customLayout.ini", "multiActions.json", "system.ini"}));
        QCOMPARE(testFileContent(path("devConfig/system.ini")), QByteArray("old system.ini"));
        QCOMPARE(mpFixture->takeLines().filter(u("3 Failed to restore  [")).size(), 3);
    }
#endif
};

QTEST_GUILESS_MAIN(TestFilesBackup)
#include "tst_files_backup.moc"
