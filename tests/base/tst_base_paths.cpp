#include "base/paths.h"

#include "logcapture.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <optional>

using namespace vorlindesk;

class TestPaths : public QObject
{
    Q_OBJECT

    const QString mOldCurrent = QDir::currentPath();
    std::optional<QTemporaryDir> mDir;
    QString mFile; ///< where a folder cannot be, whoever asks

    QString below(const char *name) const { return mDir->filePath(QLatin1String(name)); }
    static QString current() { return QFileInfo(QDir::currentPath()).canonicalFilePath(); }
    static QString canonical(const QString &path) { return QFileInfo(path).canonicalFilePath(); }

private slots:
    void init()
    {
        mDir.emplace();
        mFile = below("file");
        QFile file(mFile);
        QVERIFY(file.open(QIODevice::WriteOnly));
    }

    void cleanup() { QDir::setCurrent(mOldCurrent); }

    void filesLieBelowTheCurrentDirectory()
    {
        QVERIFY(Paths::chooseCurrentDirectory(mDir->path()));
        const QString root = QDir::currentPath();
        QCOMPARE(Paths::systemIni(), root + QStringLiteral("/devConfig/system.ini"));
        QCOMPARE(Paths::imageUrlIni(), root + QStringLiteral("/devConfig/image/imageUrl.ini"));
        QCOMPARE(Paths::logFolder(), root + QStringLiteral("/log"));
        QCOMPARE(Paths::keyPicture(1, 16, 15), root + QStringLiteral("/devConfig/image/1_16_15.png"));
    }

    void createPathReports()
    {
        LogCapture capture;
        const QString made = below("a/b");
        QVERIFY(Paths::createPath(made));
        QVERIFY(QDir(made).exists());
        QVERIFY(Paths::createPath(made)); // nothing to do, nothing to say
        const QString impossible = mFile + QStringLiteral("/c");
        QVERIFY(!Paths::createPath(impossible));
        QCOMPARE(capture.lines(), QStringList({QStringLiteral("1 createPath %1 success").arg(made),
                                               QStringLiteral("3 createPath %1 fail").arg(impossible)}));
    }

    void runtimePathIsCreatedAndLogged()
    {
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(mDir->path())); // Linux; elsewhere a folder of the user
        LogCapture capture;
        const QString path = Paths::createRuntimePath();
        QVERIFY(path.endsWith(QStringLiteral("/vorlin_usb_desk")));
        QVERIFY(QDir(path).exists());
        const QString line = capture.lines().value(0);
        QVERIFY2(line.startsWith(QStringLiteral("1 CreateRuntimePath ")), qUtf8Printable(line));
        QVERIFY2(line.endsWith(QStringLiteral("  ") + path), qUtf8Printable(line));
        QDir().rmdir(path);
    }

    void dataDirIsCreatedAndOverridesTheRest()
    {
        const QString wanted = below("new/data");
        QVERIFY(Paths::chooseCurrentDirectory(wanted, {mDir->path()}));
        QCOMPARE(current(), canonical(wanted));
    }

    void unusableDataDirIsNotReplacedByAnother()
    {
        QVERIFY(!Paths::chooseCurrentDirectory(mFile + QStringLiteral("/data"), {mDir->path()}));
        QCOMPARE(current(), canonical(mOldCurrent));
    }

    void firstWritableFolderIsTaken_data()
    {
        QTest::addColumn<bool>("firstIsWritable");
        QTest::newRow("folder of the executable") << true;
        QTest::newRow("data folder of the user") << false;
    }

    void firstWritableFolderIsTaken()
    {
        QFETCH(bool, firstIsWritable);
        const QString first = firstIsWritable ? below("bin") : mFile;
        const QString second = below("user/data");
        QVERIFY(Paths::chooseCurrentDirectory(QString(), {first, second}));
        QCOMPARE(current(), canonical(firstIsWritable ? first : second));
        QCOMPARE(QDir(QDir::currentPath()).entryList(QDir::Files | QDir::Hidden),
                 QStringList()); // no probe is left
    }
};

QTEST_GUILESS_MAIN(TestPaths)
#include "tst_base_paths.moc"
