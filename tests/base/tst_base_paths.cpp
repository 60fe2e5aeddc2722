#include "base/paths.h"
#include "support/table.h"

#include "logcapture.h"

#include <optional>

using namespace vorlindesk;

class TestPaths : public QObject
{
    Q_OBJECT

    const QString mOldCurrent = QDir::currentPath();
    std::optional<QTemporaryDir> mDir; ///< holds "file", below which a folder cannot be, whoever asks

    QString below(const QString &name) const { return mDir->filePath(name); }

    using DirectoryTable = Table<QString, QString, QString>;

private slots:
    void init()
    {
        mDir.emplace();
        QFile file(below("file"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }

    void cleanup() { QDir::setCurrent(mOldCurrent); }

    void createPathReports()
    {
        LogCapture capture;
        const QString made = below("a/b"_s);
        QVERIFY(Paths::createPath(made));
        QVERIFY(QDir(made).exists());
        QVERIFY(Paths::createPath(made)); // nothing to do, nothing to say
        const QString impossible = below("file/c"_s);
        QVERIFY(!Paths::createPath(impossible));
        QCOMPARE(capture.lines(), QStringList({"1 createPath %1 success"_s.arg(made),
                                               "3 createPath %1 fail"_s.arg(impossible)}));
    }

    void currentDirectoryIsChosen_data()
    {
        // chosen: empty: none
        const DirectoryTable row;
        const QString wanted = "new/data"_s;
        const QString bin = "bin"_s;
        const QString inFile = "file/data"_s;
        row("wanted one is made and overrides the rest", wanted, bin, wanted);
        row("unusable wanted one is not replaced by another", inFile, bin, {});
        row("folder of the executable", {}, bin, bin);
        row("data folder of the user", {}, inFile, "user/data");
    }

    void currentDirectoryIsChosen()
    {
        const auto [dataDir, firstFallback, chosen] = DirectoryTable::current();
        const QString asked = dataDir.isEmpty() ? QString() : below(dataDir);
        const QStringList fallbacks{below(firstFallback), below("user/data"_s)};
        QCOMPARE(Paths::chooseCurrentDirectory(asked, fallbacks), !chosen.isEmpty());
        const QString expected = chosen.isEmpty() ? mOldCurrent : below(chosen);
        QCOMPARE(QDir::current().canonicalPath(), QDir(expected).canonicalPath());
        if (!chosen.isEmpty()) // no probe is left
            QCOMPARE(QDir::current().entryList(QDir::Files | QDir::Hidden), QStringList());
    }
};

QTEST_GUILESS_MAIN(TestPaths)
#include "tst_base_paths.moc"
