/// Complete backups: there and back, damage, interruption at any moment, and the list of profiles.
#include "backuplist.h"
#include "backupswitch.h"
#include "base/paths.h"
#include "fileutil.h"
#include "model/backuprestore.h"
#include "model/configbackup.h"
#include "model/functionids.h"
#include "model/functionmanager.h"
#include "model/imageurlfile.h"
#include "model/profiles.h"
#include "model/scriptcontainer.h"
#include "storefixture.h"

#include <QDirIterator>
#include <QtTest>
#include <memory>

#ifndef Q_OS_WIN
#include <cerrno>
#include <fcntl.h>
#include <functional>
#include <sys/wait.h>
#include <unistd.h>

namespace {
/// Asked before every renaming of a file or folder in this program; false makes it fail.
std::function<bool()> beforeRename;
} // namespace

/// In place of the system's, which all others end in.
extern "C" int rename(const char *from, const char *to) noexcept
{
    if (!beforeRename || beforeRename())
        return renameat(AT_FDCWD, from, AT_FDCWD, to);
    errno = EBUSY;
    return -1;
}

/// Folders of this name cannot be removed while it is not empty.
QByteArray heldFolder;

/// In place of the system's, too.
extern "C" int rmdir(const char *path) noexcept
{
    if (heldFolder.isEmpty() || !QByteArray(path).endsWith('/' + heldFolder))
        return unlinkat(AT_FDCWD, path, AT_REMOVEDIR);
    errno = EBUSY;
    return -1;
}
#endif

using namespace vorlinmodel;

namespace {

using Files = QMap<QString, QByteArray>;

const RestoreOptions Safely{.safetyDirectory = u("safety"), .takesTheRest = false};

/// Where a restore puts a video.
QString videoPath(const QByteArray &content)
{
    const QByteArray hash = QCryptographicHash::hash(content, QCryptographicHash::Sha1).toHex();
    return u("/video/") + QString::fromLatin1(hash) + u(".avi");
}

/// What makes up the configuration below "devConfig", with its content. Videos that no key has are no part
/// of it: they stay for undo.
Files configuration()
{
    Files files;
    const QString root = vorlindesk::Paths::devConfigFolder();
    const QByteArray records = testFileContent(root + u("/image/imageUrl.ini"));
    QDirIterator found(root, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (found.hasNext()) {
        const QString path = found.next();
        if (path.startsWith(root + u("/video/")) && !records.contains(found.fileName().toUtf8()))
            continue;
        files.insert(path.mid(root.size()), testFileContent(path).replace(root.toUtf8(), "ROOT"));
    }
    return files;
}

/// Every record with the folder left out, so that two data folders compare.
QStringList recordsOf(const FunctionManager &store)
{
    QStringList records;
    for (const key_id_t &key : store.getKeys())
        records << store.getAllAttribute(key).remove(QDir::currentPath());
    return records;
}

void fillKey(FunctionManager &store, const key_id_t &key, const QByteArray &file, const char *title)
{
    const QString path = vorlindesk::Paths::keyPicture(key.lid, key.pageid, key.kid);
    QVERIFY(writeTestFile(path, file));
    store.addKeyAttribute(key, key.kid == 1 ? VIDEO_FID : MULTIPLE_ACTIONS_FID);
    store.setCustomImage(key, path);
    store.setTitle(key, u(title));
}

/// Settings files and the picture of a layout, marked so that two states differ in each.
void fillFiles(const QByteArray &mark)
{
    QVERIFY(writeTestFile(u("devConfig/customLayout.ini"), "[layout_2]\nname=" + mark));
    QVERIFY(writeTestFile(u("devConfig/system.ini"), "language=" + mark + "\n\n[Window]\npage=1\n"));
    QVERIFY(writeTestFile(u("devConfig/layouts/") + QString::fromLatin1(mark) + u(".png"), mark));
}

/// A small state with something of every kind.
void fillSmall(FunctionManager &store, const char *mark)
{
    fillFiles(mark);
    fillKey(store, {1, 1, 1}, picture({90, 84}, QColor(QLatin1String("red"))), mark);
    fillKey(store, {1, 2, 2}, QByteArray("no picture but kept ") + mark, mark);
    const QString video = vorlindesk::Paths::devConfigFolder() + videoPath(mark);
    QVERIFY(writeTestFile(video, mark));
    store.setCustomVideo({1, 1, 1}, video);
    QString error;
    QVERIFY(multiActionStore().writeActionsByKeyId(1, 2, 2, {{3, 0, u(mark)}}, error));
    QVERIFY(saveAllKeyData(store));
}

QStringList damageOf(const QString &folder)
{
    return loadBackup(folder)->damaged;
}

QStringList namesIn(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
}

} // namespace

class TestFilesProfiles : public QObject
{
    Q_OBJECT

    std::unique_ptr<StoreFixture> mpFixture;

    /// A backup of state "old"; then the state of @p store is "now".
    static QString backUpOld(FunctionManager &store)
    {
        fillSmall(store, "old");
        const QString folder = Profiles::create(QDir::currentPath() + u("/backups"), store).folder;
        store.createKeyAttribute({1, 2, 7}, OPEN_WEB_FID); // goes when the backup comes back
        store.deleteKeyAttribute(1, 1, 1);
        QFile::remove(u("devConfig/layouts/old.png"));
        QFile::remove(u("devConfig") + videoPath("old"));
        fillSmall(store, "now");
        store.setTitle({1, 1, 1}, u("old")); // but its video is another
        saveAllKeyData(store);
        return folder;
    }

    static void putBack(const Files &files)
    {
        const QString root = vorlindesk::Paths::devConfigFolder();
        QDir(root).removeRecursively();
        for (auto it = files.begin(); it != files.end(); ++it)
            QVERIFY(writeTestFile(root + it.key(), QByteArray(it.value()).replace("ROOT", root.toUtf8())));
    }

private slots:
    void init() { mpFixture = std::make_unique<StoreFixture>(); }
    void cleanup() { mpFixture.reset(); }

    void aWholeConfigurationOnAnEmptyProgram()
    {
        const QTemporaryDir backups;
        FunctionManager before;
        fillFiles("3");
        QString error;
        QVector<MultiActionEntry> lists;
        const QByteArray photo = picture({300, 200}, Qt::blue);
        for (int lid = 1; lid <= 3; ++lid)
            for (int page = 1; page <= MaxPage; ++page)
                for (int kid = FirstKeyId; kid <= LastKeyId; ++kid) {
                    const key_id_t key{lid, page, kid};
                    before.createKeyAttribute(key, OPEN_WEB_FID);
                    before.setTitle(key, u("é😀"));
                    if (kid == 1)
                        fillKey(before, key, photo, "é");
                    else if (kid < 6)
                        fillKey(before, key, picture({90, 84}, QColor(lid, page, kid)), "%1");
                    lists.append({key, {{3, 0, u("https://a.test")}, {100, 500, {}}}});
                }
        QVERIFY(multiActionStore().writeAll(lists, error));
        QVERIFY(writeTestFile(u("films/my film.avi"), "film"));
        before.setCustomVideo({2, 3, 1}, u("films/my film.avi"));
        QVERIFY(saveAllKeyData(before));
        const auto made = Profiles::create(backups.path(), before);
        QCOMPARE(made.error, QString());
        QVERIFY(made.counts == (BackupCounts{3, 48, 720, 240, 1}));
        QCOMPARE(made.leftOut, QStringList());
        const QByteArray script = currentScript(); // of a backup on request
        before.setCustomVideo({2, 3, 1}, vorlindesk::Paths::devConfigFolder() + videoPath("film"));
        QVERIFY(saveAllKeyData(before));
        const QStringList records = recordsOf(before);
        Files files = configuration();
        files.insert(videoPath("film"), "film");

        cleanup();
        init(); // another data folder
        FunctionManager after;
        after.Init();
        after.createKeyAttribute({4, 1, 1}, OPEN_WEB_FID); // of a layout that the backup does not know
        const auto result = restoreBackup(*loadBackup(made.folder), after, Safely);
        QCOMPARE(result.error, QString());
        QVERIFY(result.isDone);
        QCOMPARE(result.leftOut, QStringList());
        QCOMPARE(recordsOf(after), records);
        const Files restored = configuration();
        QCOMPARE(restored.keys(), files.keys());
        for (auto it = files.begin(); it != files.end(); ++it)
            QVERIFY2(restored.value(it.key()) == it.value(), qPrintable(it.key()));
        QVERIFY(currentScript() == script);
        QVERIFY(buildScript(after, multiActionStore()) == script);
        FunctionManager restarted;
        QVERIFY(loadAllKeyData(restarted));
        QCOMPARE(recordsOf(restarted), records);
    }

    void everyDamageIsNoticed()
    {
        FunctionManager store;
        fillFiles("1");
        fillKey(store, {1, 1, 4}, "jpg", "T");
        const QString folder = Profiles::create(u("out"), store).folder;
        QCOMPARE(damageOf(folder), QStringList());
        for (const QString &name :
             {u("CD.bin"), u("backup.txt"), u("customLayout.ini"), u("layouts/1.png")}) {
            const QString path = folder + QLatin1Char('/') + name;
            const QByteArray whole = testFileContent(path);
            for (int i = 0; i < whole.size(); ++i) {
                QByteArray damaged = whole;
                damaged[i] = static_cast<char>(damaged.at(i) ^ 0x20); // also turns a letter's case
                QVERIFY(writeTestFile(path, damaged));
                QVERIFY2(!damageOf(folder).isEmpty(), qPrintable(name + QString::number(i)));
            }
            QFile::remove(path);
            QCOMPARE(damageOf(folder).isEmpty(), name == u("backup.txt")); // without it: a plain export
            QVERIFY(writeTestFile(path, whole));
        }
        QVERIFY(!Profiles::list(u("out")).isEmpty());
    }

    void aListThatLeadsElsewhere()
    {
        for (const char *path : {"../secret", "/etc/hostname", "layouts/../../secret", "layouts/a/b", "C:x",
                                 "layouts\\..\\x", "layouts/a:b", "layouts/..", "multiactions.json"})
            QVERIFY2(!isBackupPath(u(path)), path);
        QVERIFY(writeTestFile(u("out/secret"), "s"));
        BackupList list;
        list.files = {backupListEntry(u("../secret"), "s")};
        QVERIFY(writeTestFile(u("out/script_20261121_090507/backup.txt"), encodeBackupList(list)));
        const auto content = loadBackup(u("out/script_20261121_090507"));
        QCOMPARE(content->damaged, QStringList({u("CD.bin"), u("../secret")}));
        QVERIFY(content->files.isEmpty());
    }

    void thePreviewAndTheWayBack()
    {
        FunctionManager store;
        const auto backup = loadBackup(backUpOld(store));
        const Files before = configuration();
        const QStringList records = recordsOf(store);
        const RestorePreview preview = previewRestore(*backup, *presentContent(store));
        QVERIFY(preview.holds.counts == (BackupCounts{1, 2, 2, 2, 1}));
        QVERIFY(preview.pages == QVector<PageChange>({{1, 1, 0, 1, 0}, {1, 2, 0, 1, 1}}));
        QCOMPARE(preview.files, QStringList({u("customLayout.ini"), u("layouts/now.png"),
                                             u("layouts/old.png"), u("multiActions.json"), u("system.ini")}));
        QCOMPARE(configuration(), before);
        const auto result = restoreBackup(*backup, store, Safely);
        QVERIFY(previewRestore(*backup, *presentContent(store)).pages.isEmpty());
        QVERIFY(restoreBackup(*loadBackup(result.safetyFolder), store, Safely).isDone);
        QCOMPARE(configuration(), before);
        // Undo finds both videos; one that the disk has damaged comes back.
        const QString old = vorlindesk::Paths::devConfigFolder() + videoPath("old");
        QCOMPARE(testFileContent(vorlindesk::Paths::devConfigFolder() + videoPath("now")), QByteArray("now"));
        QCOMPARE(testFileContent(old), QByteArray("old"));
        QVERIFY(writeTestFile(old, "odd"));
        QVERIFY(restoreBackup(*backup, store, Safely).isDone);
        QCOMPARE(testFileContent(old), QByteArray("old"));
    }

    void theRestOfADamagedBackup()
    {
        FunctionManager store;
        const QString folder = backUpOld(store);
        QByteArray script = testFileContent(folder + u("/CD.bin"));
        script[script.lastIndexOf("PAGE") + 30] = 'X'; // records of page 2
        QVERIFY(writeTestFile(folder + u("/CD.bin"), script));
        QVERIFY(QFile::remove(folder + u("/system.ini")));
        const auto backup = loadBackup(folder);
        QCOMPARE(backup->damaged,
                 QStringList({u("CD.bin: key records of layout 1 page 2"), u("system.ini")}));
        const Files before = configuration();
        QVERIFY(!restoreBackup(*backup, store, Safely).error.isEmpty());
        QCOMPARE(configuration(), before);

        QVERIFY(restoreBackup(*backup, store, {u("safety"), true}).isDone);
        QCOMPARE(testFileContent(store.getDefaultImage({1, 1, 1})), QByteArray("old"));
        QCOMPARE(store.getTitleText({1, 2, 2}), u("now")); // the page that is damaged stays, with its files
        QVERIFY(store.getKeyAttribute({1, 2, 7}));
        QCOMPARE(multiActionStore().readActionsByKeyId(1, 2, 2), QVector<MultiAction>({{3, 0, u("now")}}));
        const Files after = configuration();
        QVERIFY(after.value(u("/image/1_2_2.png")).endsWith("now"));
        QCOMPARE(after.value(u("/system.ini")), before.value(u("/system.ini")));
        QVERIFY(after.value(u("/customLayout.ini")).endsWith("old"));
        QVERIFY(!after.contains(u("/layouts/now.png"))); // the list is intact, and does not name it
    }

    void aPlainExportComesBack()
    {
        FunctionManager store;
        fillSmall(store, "old");
        const QDateTime moment(QDate(2026, 11, 21), QTime(9, 5, 7));
        QVERIFY(ConfigBackup::writeScript(u("out"), buildScript(store, multiActionStore()), moment));
        const QString folder = ConfigBackup::scriptFolder(u("out"), moment);
        store.deletePageKeys(1, 2);
        fillFiles("now");
        const auto listed = Profiles::list(u("out"));
        QCOMPARE(listed.size(), 1);
        QVERIFY(!listed.first().isComplete && listed.first().made == moment);
        QVERIFY(listed.first().counts == (BackupCounts{1, 2, 2, 2, 1}));
        QVERIFY(restoreBackup(*loadBackup(folder), store, Safely).isDone);
        QCOMPARE(store.getTitleText({1, 2, 2}), u("old"));
        QCOMPARE(multiActionStore().readActionsByKeyId(1, 2, 2), QVector<MultiAction>({{3, 0, u("old")}}));
        QVERIFY(configuration().value(u("/customLayout.ini")).endsWith("now")); // the export has none
    }

    void givenUpAtAnyMoment()
    {
        FunctionManager store;
        const auto backup = loadBackup(backUpOld(store));
        const Files before = configuration();
        const QStringList records = recordsOf(store);
        int last = 0;
        for (int moment = 1;; ++moment) {
            std::atomic<bool> cancel = false;
            int calls = 0;
            const BackupWatch watch(
                [&](int percent) {
                    last = percent;
                    cancel = ++calls == moment;
                },
                &cancel);
            const auto result = restoreBackup(*backup, store, Safely, watch);
            if (result.isDone) // it asks no more
                break;
            QVERIFY(result.isCancelled && result.error.isEmpty());
            QCOMPARE(configuration(), before);
            QCOMPARE(recordsOf(store), records);
            QDir(u("safety")).removeRecursively();
        }
        QCOMPARE(last, 95);
    }

    void givenUpWithinALargeFile_data()
    {
        QTest::addColumn<bool>("restores");
        QTest::newRow("making") << false;
        QTest::newRow("restoring") << true;
    }

    void givenUpWithinALargeFile()
    {
        QFETCH(bool, restores);
        constexpr int size = 5 * 1024 * 1024;
        FunctionManager store;
        fillSmall(store, "old");
        QVERIFY(writeTestFile(u("film.avi"), QByteArray(size, 'f')));
        store.setCustomVideo({1, 1, 1}, QDir::currentPath() + u("/film.avi"));
        const QString folder = Profiles::create(u("out"), store).folder;
        int calls = 0;
        const auto content = loadBackup(folder, BackupWatch([&](int) { ++calls; }));
        QVERIFY(calls > 3 * 5); // its bytes are read, listed and checked in the script

        const Files before = configuration();
        const auto isWriting = [=] { // a file that is made of pieces
            const QString part = QDir(u("out")).entryList({u("*.part")}).value(0);
            const qint64 video =
                QFileInfo(u("devConfig/restore/new") + videoPath(QByteArray(size, 'f'))).size();
            return restores ? video > 0 && video < size
                            : !part.isEmpty() && !QFileInfo::exists(u("out/") + part + u("/CD.bin"));
        };
        int pieces = 0;
        std::atomic<bool> cancel = false;
        const BackupWatch watch(
            [&](int) { cancel = cancel || (isWriting() && ++pieces == (restores ? 2 : 8)); }, &cancel);
        if (restores)
            QVERIFY(restoreBackup(*content, store, Safely, watch).isCancelled);
        else
            QVERIFY(Profiles::create(u("out"), store, BackupReason::Person, {}, watch).isCancelled);
        QVERIFY(cancel && !isWriting());
        QVERIFY(!QFileInfo::exists(u("devConfig/restore")));
        QCOMPARE(namesIn(u("out")).size(), 1);
        QCOMPARE(configuration(), before);
    }

#ifndef Q_OS_WIN
    void killedAtAnyMoment_data()
    {
        QTest::addColumn<int>("failing"); // which renaming of the exchange
        QTest::newRow("forward") << -1;
        QTest::newRow("and while it is taken back") << 10;
    }

    void killedAtAnyMoment()
    {
        QFETCH(int, failing);
        FunctionManager store;
        const auto backup = loadBackup(backUpOld(store));
        const Files before = configuration();
        int finished = 0;
        int moment = 0;
        for (bool killed = true; killed; ++moment) {
            const pid_t child = fork();
            if (child == 0) {
                const auto left = std::make_shared<int>(moment);
                const auto step = [left] {
                    return (*left)-- != 0 || (_exit(9), false);
                };
                beforeRename = [step, failing, count = 0]() mutable {
                    return step() && (!QFileInfo::exists(u("devConfig/restore/old")) || count++ != failing);
                };
                restoreBackup(*backup, store, Safely, BackupWatch([step](int) { step(); }));
                _exit(0);
            }
            int status = 0;
            waitpid(child, &status, 0);
            killed = WEXITSTATUS(status) == 9;
            QVERIFY(recoverRestore());
            QVERIFY(!QFileInfo::exists(u("devConfig/restore")));
            if (configuration() == before)
                continue;
            ++finished;
            FunctionManager restarted; // the new state, whole
            QVERIFY(loadAllKeyData(restarted));
            QVERIFY(buildScript(restarted, multiActionStore()) == backup->scriptBytes);
            QVERIFY(presentContent(restarted)->files == backup->files);
            putBack(before);
        }
        QVERIFY2(finished > 10 && moment - finished > 10, qPrintable(QString::number(moment)));
    }

    void anExchangeThatFailsIsTakenBack()
    {
        FunctionManager store;
        const QString folder = backUpOld(store);
        const Files before = configuration();
        const QStringList records = recordsOf(store);
        for (int failing = 0; failing < 11; ++failing) { // a folder in use, say
            int count = 0;
            beforeRename = [&] {
                return !QFileInfo::exists(u("devConfig/restore/old")) || count++ != failing;
            };
            const auto result = restoreBackup(*loadBackup(folder), store, Safely);
            beforeRename = {};
            QVERIFY(!result.isDone && !result.error.isEmpty());
            QCOMPARE(configuration(), before);
            QCOMPARE(recordsOf(store), records);
        }
        const int backups = Profiles::list(u("safety")).size();
        int count = 0; // nor can it be taken back, until somebody lets go of the folder
        beforeRename = [&] {
            return !QFileInfo::exists(u("devConfig/restore/old")) || count++ < 3;
        };
        for (int i = 0; i < 2; ++i)
            QVERIFY(!restoreBackup(*loadBackup(folder), store, Safely).error.isEmpty());
        QVERIFY(!recoverRestore());
        QCOMPARE(Profiles::list(u("safety")).size(), backups + 1); // none of the state between
        beforeRename = {};
        QVERIFY(recoverRestore());
        QVERIFY(configuration() == before || presentContent(store)->files == loadBackup(folder)->files);
    }

    /// It looks like what the next restore has put aside.
    void whatIsLeftOfARestoreStopsTheNext()
    {
        FunctionManager store;
        const auto backup = loadBackup(backUpOld(store));
        heldFolder = "old/image";
        QVERIFY(restoreBackup(*backup, store, Safely).isDone);
        QVERIFY(QFileInfo::exists(u("devConfig/restore/old/image")));
        const Files before = configuration();
        const auto refused = restoreBackup(*backup, store, Safely);
        QVERIFY(!refused.isDone && refused.error.contains(u("cannot be removed")));
        QCOMPARE(configuration(), before);
        heldFolder.clear();
        const auto result = restoreBackup(*backup, store, Safely);
        QVERIFY2(result.isDone, qPrintable(result.error));
        QVERIFY(!QFileInfo::exists(u("devConfig/restore")));
    }

    void aFullDiskChangesNothing()
    {
        FunctionManager store;
        const auto backup = loadBackup(backUpOld(store));
        const Files before = configuration();
        {
            const FullDisk fullDisk;
            QVERIFY(!restoreBackup(*backup, store, Safely).error.isEmpty());
            QVERIFY(!Profiles::create(u("backups"), store).error.isEmpty());
            QString error;
            QVERIFY(BackupSwitch::prepare(error) && !BackupSwitch::run({u("image")}, error));
        }
        BackupSwitch::discard();
        QCOMPARE(configuration(), before);
        QCOMPARE(namesIn(u("backups")).size(), 1);
        QCOMPARE(namesIn(u("safety")), QStringList());
    }
#endif

    void backupsAtStartUp()
    {
        FunctionManager store;
        store.Init();
        QCOMPARE(Profiles::createAutomatic(u("out"), store).folder, QString()); // nothing to lose yet
        fillSmall(store, "1");
        QVERIFY(!Profiles::createAutomatic(u("out"), store).folder.isEmpty());
        QVERIFY(writeTestFile(u("devConfig/system.ini"), "language=1\n\n[Window]\npage=9\n"));
        QCOMPARE(Profiles::createAutomatic(u("out"), store).folder, QString()); // only the window moved
        QVERIFY(writeTestFile(u("out/script_20200101_000000.part/CD.bin"), "half"));
        const QString kept =
            Profiles::create(u("out"), store, BackupReason::Person, u(" two\nlines ")).folder;
        QString newest;
        for (int i = 0; i < Profiles::Kept + 2; ++i) {
            store.setTitle({1, 1, 1}, QString::number(i));
            newest = Profiles::createAutomatic(u("out"), store).folder;
            QVERIFY(QFileInfo::exists(newest));
        }
        const auto backups = Profiles::list(u("out"));
        QCOMPARE(backups.size(), Profiles::Kept + 1);
        QCOMPARE(namesIn(u("out")).size(), backups.size());
        const BackupInfo asked = backups.last();
        QCOMPARE(QDir::cleanPath(asked.folder), QDir(kept).absolutePath());
        QCOMPARE(asked.name, u("two lines"));
        QVERIFY(asked.counts == (BackupCounts{1, 2, 2, 2, 1}));
        QVERIFY(!Profiles::remove(u("devConfig")));
        QVERIFY(Profiles::remove(asked.folder) && !QFileInfo::exists(asked.folder));
    }
};

QTEST_GUILESS_MAIN(TestFilesProfiles)
#include "tst_files_profiles.moc"
