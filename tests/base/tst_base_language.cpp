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
        QTest::addColumn<QString>("delete_");
        QTest::addColumn<QString>("cancel");
        const auto row = [](const char *name, const char *stored, int language, const char *text,
                            const char *cancel) {
            QTest::newRow(name) << QByteArray(stored) << language << QString::fromUtf8(text)
                                << QString::fromUtf8(cancel);
        };
        row("no setting", "", 0, "Delete", "Cancel");
        row("Simplified Chinese", "language=1", 1, "删除", "取消");
        row("Traditional Chinese", "language=2", 2, "刪除", "取消");
        row("low 8 bits", "language=257", 1, "删除", "取消");
        row("negative", "language=-1", 255, "Delete", "取消");
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

    void tableKeepsItsWordingAndBounds()
    {
        for (int id = 0; id < 123; ++id) {
            for (int language = 0; language < 3; ++language)
                QVERIFY2(!tableText(id, language).isEmpty(), qPrintable(QString::number(id)));
        }
        QCOMPARE(tableText(-1, 0), QString());
        QCOMPARE(tableText(123, 0), QString());
        // Misspellings, blanks at the end and wide commas are wanted.
        const std::pair<int, const char *> wordings[] = {
            {0, "Import Backup "},
            {19, "IPC Version:"},
            {20, "PIC Software Version: "},
            {24, "Tranditional Chinese"},
            {57, "Picture Fanse"},
            {89, "Read failed\xEF\xBC\x8CPlease try again"},
            {109, "Home "},
            {122, "The panel layout count has reached the maximum."},
        };
        for (const auto &[id, text] : wordings)
            QCOMPARE(tableText(id, 0).toUtf8(), QByteArray(text));
        // A file dialog takes what it shows from the pattern in brackets.
        const std::pair<int, const char *> patterns[] = {{75, "(*.bin)"}, {84, "(*.*)"}, {105, "(*.xft)"}};
        for (const auto &[id, pattern] : patterns) {
            for (int language = 0; language < 3; ++language)
                QVERIFY2(tableText(id, language).endsWith(QLatin1String(pattern)), pattern);
        }
    }
};

QTEST_GUILESS_MAIN(TestLanguage)
#include "tst_base_language.moc"
