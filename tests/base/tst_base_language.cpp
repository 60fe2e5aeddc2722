#include "base/language.h"
#include "base/paths.h"
#include "base/systemsettings.h"
#include "resources/translationresources.h"
#include "support/table.h"

#include "logcapture.h"

#include <optional>

using namespace vorlindesk;

class TestLanguage : public QObject
{
    Q_OBJECT

    const QString mOldCurrent = QDir::currentPath();
    std::optional<QTemporaryDir> mDir;

    using SettingTable = Table<QByteArray, int, QString, QString>;

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
        const SettingTable row;
        row("no setting", "", 0, "Delete", "Cancel");
        row("Simplified Chinese", "language=1", 1, "删除", "取消");
        row("Traditional Chinese", "language=2", 2, "刪除", "取消");
        row("low 8 bits", "language=257", 1, "删除", "取消");
        row("negative", "language=-1", 255, "Delete", "取消");
    }

    void settingChoosesTranslationAndColumn()
    {
        const auto [stored, language, delete_, cancel] = SettingTable::current();
        QVERIFY(QDir().mkpath(Paths::devConfigFolder()));
        QFile file(Paths::systemIni());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(stored + "\n");
        file.close();

        QTranslator translator;
        LanguageManager manager(&translator);
        QVERIFY(manager.Init());
        QCOMPARE(manager.language(), language);
        QCOMPARE(manager.Text(TextId::Delete), delete_);
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), cancel);
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
        QCOMPARE(manager.Text(TextId::SelectAll), "全選"_s);
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Help"), "說明"_s);
        QCOMPARE(capture.lines(), QStringList{"1 setLang settings=2"_s});
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
