/// A restore in a program that is killed at random moments.
#include "backupswitch.h"
#include "base/paths.h"
#include "fileutil.h"
#include "model/backuprestore.h"
#include "model/functionids.h"
#include "model/functionmanager.h"
#include "model/imageurlfile.h"
#include "model/profiles.h"
#include "storefixture.h"

#include <QProcess>
#include <QRandomGenerator>
#include <QtTest>

using namespace vorlinmodel;

namespace {

constexpr char RestoreMode[] = "--restore";

/// Restores the backups @p folders in turn, in the data folder @p dataFolder, until it is killed.
int restoreForEver(const QString &dataFolder, const QStringList &folders)
{
    QDir::setCurrent(dataFolder);
    FunctionManager store;
    if (!loadAllKeyData(store))
        return 1;
    const BackupContent backups[] = {*loadBackup(folders.at(0)), *loadBackup(folders.at(1))};
    std::puts("ready");
    std::fflush(stdout);
    for (std::size_t next = 0;; next = 1 - next) {
        if (!restoreBackup(backups[next], store, {.safetyDirectory = u("safety"), .takesTheRest = false})
                 .isDone)
            return 2;
    }
}

void fill(FunctionManager &store, const char *mark)
{
    QVERIFY(writeTestFile(u("devConfig/customLayout.ini"), QByteArray("[layout_2]\nname=") + mark));
    QVERIFY(writeTestFile(u("devConfig/system.ini"), QByteArray("language=") + mark));
    QVERIFY(writeTestFile(u("devConfig/layouts/") + u(mark) + u(".png"), mark));
    QString error;
    QVERIFY(multiActionStore().writeAll({{{1, 1, 1}, {{3, 0, u(mark)}}}}, error));
    for (int kid = FirstKeyId; kid <= LastKeyId; ++kid) {
        const key_id_t key{1, 1, kid};
        store.addKeyAttribute(key, MULTIPLE_ACTIONS_FID);
        store.setTitle(key, u(mark));
        const QString path = vorlindesk::Paths::keyPicture(1, 1, kid);
        QVERIFY(writeTestFile(path, picture({90, 84}, QColor(kid, mark[0], 0))));
        store.setCustomImage(key, path);
    }
    QVERIFY(saveAllKeyData(store));
}

} // namespace

class TestFilesKilled : public QObject
{
    Q_OBJECT
private slots:
    void leavesTheOldOrTheNewState()
    {
        constexpr int kills = 50;
        const StoreFixture fixture;
        QStringList folders;
        BackupContent states[2];
        FunctionManager store;
        for (int i = 0; i < 2; ++i) {
            fill(store, i == 0 ? "1" : "2");
            folders.append(QFileInfo(Profiles::create(u("out"), store).folder).absoluteFilePath());
            states[i] = *loadBackup(folders.last());
            QFile::remove(u("devConfig/layouts/1.png")); // not part of the second
        }
        QElapsedTimer duration;
        duration.start();
        QVERIFY(restoreBackup(states[1], store, {u("safety"), false}).isDone);
        const auto longest = quint32(qMin<qint64>(duration.nsecsElapsed() / 1000 * 3, 100'000)); // us
        int found[2] = {0, 0};
        int interrupted = 0;
        for (int i = 0; i < kills; ++i) {
            QProcess program;
            program.start(QCoreApplication::applicationFilePath(),
                          QStringList{u(RestoreMode), QDir::currentPath()} + folders);
            QVERIFY(program.waitForReadyRead());
            QTest::qSleep(1 + int(QRandomGenerator::global()->bounded(longest) / 1000));
            program.kill();
            QVERIFY(program.waitForFinished());
            QCOMPARE(program.exitStatus(), QProcess::CrashExit);
            interrupted += QFileInfo::exists(u("devConfig/restore")) ? 1 : 0;

            QVERIFY(recoverRestore());
            QVERIFY(!QFileInfo::exists(u("devConfig/restore")));
            FunctionManager restarted;
            QVERIFY(loadAllKeyData(restarted));
            const auto present = presentContent(restarted);
            const int state = present->scriptBytes == states[0].scriptBytes ? 0 : 1;
            QVERIFY(present->scriptBytes == states[state].scriptBytes);
            QVERIFY(present->files == states[state].files);
            ++found[state];
        }
        qInfo("in the middle of a restore: %d, first state: %d, second: %d", interrupted, found[0], found[1]);
        QVERIFY(interrupted > 0);
    }
};

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String(RestoreMode))
        return restoreForEver(arguments.value(2), arguments.mid(3));
    TestFilesKilled test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_files_killed.moc"
