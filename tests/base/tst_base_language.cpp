#include "base/language.h"
#include "base/paths.h"
#include "base/systemsettings.h"
#include "resources/translationresources.h"

#include "logcapture.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>
#include <optional>

using namespace vorlindesk;

class TestLanguage : public QObject
{
    Q_OBJECT

    const QString mOldCurrent = QDir::currentPath();
    std::optional<QTemporaryDir> mDir;

private slots:
    void initTestCase() { initTranslationResources(); }

    void init()
    {
        mDir.emplace();
        QVERIFY(QDir::setCurrent(mDir->path()));
    }

    void cleanup() { QDir::setCurrent(mOldCurrent); }

    void settingChoosesTranslationAndColumn_data()
    {
        QTest::addColumn<QByteArray>("stored");
        QTest::addColumn<int>("language");
        QTest::addColumn<QString>("resource");
        QTest::addColumn<QString>("delete_");
        QTest::addColumn<QString>("cancel");
        const auto row = [](const char *name, const char *stored, int language, const char *resource,
                            const char *text, const char *cancel) {
            QTest::newRow(name) << QByteArray(stored) << language << QString::fromUtf8(resource)
                                << QString::fromUtf8(text) << QString::fromUtf8(cancel);
        };
        row("no setting", "", 0, ":/translations/en.qm", "Delete", "Cancel");
        row("English", "language=0", 0, ":/translations/en.qm", "Delete", "Cancel");
        row("Simplified Chinese", "language=1", 1, ":/translations/zh_s.qm", "删除", "取消");
        row("Traditional Chinese", "language=2", 2, ":/translations/zh_t.qm", "刪除", "取消");
        row("unknown value", "language=3", 3, ":/translations/chs.qm", "Delete", "取消");
        row("low 8 bits", "language=257", 1, ":/translations/zh_s.qm", "删除", "取消");
        row("negative", "language=-1", 255, ":/translations/chs.qm", "Delete", "取消");
        row("no number", "language=Deutsch", 0, ":/translations/en.qm", "Delete", "Cancel");
    }

    void settingChoosesTranslationAndColumn()
    {
        QFETCH(QByteArray, stored);
        QVERIFY(QDir().mkpath(Paths::devConfigFolder()));
        QFile file(Paths::systemIni());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(stored + "\n");
        file.close();

        QTranslator translator;
        LanguageManager manager(&translator);
        QVERIFY(manager.Init());
        QTEST(manager.language(), "language");
        QTEST(translationResource(manager.language()), "resource");
        QTEST(manager.Text(TextId::Delete), "delete_");
        QTEST(QCoreApplication::translate("QPlatformTheme", "Cancel"), "cancel");
    }

    void changeTakesEffectAtOnceAndIsStored()
    {
        QTranslator translator;
        LanguageManager manager(&translator);
        QVERIFY(manager.Init());
        QSignalSpy changed(&manager, &LanguageManager::sigLanguageChanged);
        LogCapture capture;
        manager.setLanguage(258);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(manager.language(), 2);
        QCOMPARE(SystemSettings::language(), 2);
        QCOMPARE(manager.Text(TextId::SelectAll), QStringLiteral("全選"));
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Help"), QStringLiteral("說明"));
        QCOMPARE(capture.lines(), QStringList{QStringLiteral("1 setLang settings=2")});
    }

    void englishWordingIsKeptToTheByte_data()
    {
        QTest::addColumn<int>("id");
        QTest::addColumn<QByteArray>("text");
        const auto row = [](int id, const char *text) {
            QTest::addRow("%d", id) << id << QByteArray(text);
        };
        row(0, "Import Backup ");
        row(2, "Import To Ostrevane");
        row(3, "Create Backup");
        row(17, "Create Backup");
        row(18, "Import Configuration To Host Now");
        row(19, "IPC Version:");
        row(20, "PIC Software Version: ");
        row(21, "PIC Hardware Version:");
        row(24, "Tranditional Chinese");
        row(57, "Picture Fanse");
        row(75, "Upgrade File (*.bin)");
        row(84, "All Files(*.*)");
        row(89, "Read failed\xEF\xBC\x8CPlease try again");
        row(101, "Timer");
        row(109, "Home ");
        row(111, "Reset All Data");
        row(116, "Import failed\xEF\xBC\x8CPlease try again");
        row(117, "Import video failed\xEF\xBC\x8CPlease try again");
        row(118, "Are you sure to Start");
        row(122, "The panel layout count has reached the maximum.");
    }

    void englishWordingIsKeptToTheByte()
    {
        QFETCH(int, id);
        QTEST(tableText(id, 0).toUtf8(), "text");
    }

    void everyRowHasThreeTexts()
    {
        QCOMPARE(LanguageManager::TextCount, 123);
        for (int id = 0; id < 123; ++id) {
            for (int language = 0; language < 3; ++language)
                QVERIFY2(!tableText(id, language).isEmpty(), qPrintable(QString::number(id)));
        }
        QCOMPARE(tableText(-1, 0), QString());
        QCOMPARE(tableText(123, 0), QString());
    }

    /// A file dialog takes what it shows from the pattern in brackets.
    void filePatternsAreTheSameInEveryLanguage_data()
    {
        QTest::addColumn<int>("id");
        QTest::addColumn<QString>("pattern");
        QTest::newRow("firmware") << 75 << QStringLiteral("(*.bin)");
        QTest::newRow("all files") << 84 << QStringLiteral("(*.*)");
        QTest::newRow("fonts") << 105 << QStringLiteral("(*.xft)");
    }

    void filePatternsAreTheSameInEveryLanguage()
    {
        QFETCH(int, id);
        QFETCH(QString, pattern);
        for (int language = 0; language < 3; ++language)
            QVERIFY(tableText(id, language).endsWith(pattern));
    }
};

QTEST_GUILESS_MAIN(TestLanguage)
#include "tst_base_language.moc"
