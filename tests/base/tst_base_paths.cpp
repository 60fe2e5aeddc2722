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
    std::optional<QTemporaryDir> mDir; ///< holds "file", below which a folder cannot be, whoever asks

    QString below(const QString &name) const { return mDir->filePath(name); }

private slots:
    void init()
    {
        mDir.emplace();
        QFile file(below(QStringLiteral("file")));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }

    void cleanup() { QDir::setCurrent(mOldCurrent); }

    void createPathReports()
    {
        LogCapture capture;
        const QString made = below(QStringLiteral("a/b"));
        QVERIFY(Paths::createPath(made));
        QVERIFY(QDir(made).exists());
        QVERIFY(Paths::createPath(made)); // nothing to do, nothing to say
        const QString impossible = below(QStringLiteral("file/c"));
        QVERIFY(!Paths::createPath(impossible));
        QCOMPARE(capture.lines(), QStringList({QStringLiteral("1 createPath %1 success").arg(made),
                                               QStringLiteral("3 createPath %1 fail").arg(impossible)}));
    }

    void currentDirectoryIsChosen_data()
    {
        QTest::addColumn<QString>("dataDir");
        QTest::addColumn<QString>("firstFallback");
        QTest::addColumn<QString>("chosen"); // empty: none
        const QString wanted = QStringLiteral("new/data");
        const QString bin = QStringLiteral("bin");
        const QString inFile = QStringLiteral("file/data");
        QTest::newRow("wanted one is made and overrides the rest") << wanted << bin << wanted;
        QTest::newRow("unusable wanted one is not replaced by another") << inFile << bin << QString();
        QTest::newRow("folder of the executable") << QString() << bin << bin;
        QTest::newRow("data folder of the user") << QString() << inFile << QStringLiteral("user/data");
    }

    void currentDirectoryIsChosen()
    {
        QFETCH(QString, dataDir);
        QFETCH(QString, firstFallback);
        QFETCH(QString, chosen);
        const QString asked = dataDir.isEmpty() ? QString() : below(dataDir);
        const QStringList fallbacks{below(firstFallback), below(QStringLiteral("user/data"))};
        QCOMPARE(Paths::chooseCurrentDirectory(asked, fallbacks), !chosen.isEmpty());
        const QString expected = chosen.isEmpty() ? mOldCurrent : below(chosen);
        QCOMPARE(QDir::current().canonicalPath(), QDir(expected).canonicalPath());
        if (!chosen.isEmpty()) // no probe is left
            QCOMPARE(QDir::current().entryList(QDir::Files | QDir::Hidden), QStringList());
    }
};

QTEST_GUILESS_MAIN(TestPaths)
#include "tst_base_paths.moc"
