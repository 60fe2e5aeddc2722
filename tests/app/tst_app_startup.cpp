// Command line, font size, and a start that fails.
#include "app/commandline.h"
#include "app/fontstyle.h"
#include "app/frameworkcontext.h"
#include "base/log.h"
#include "support/fakehid.h"
#include "support/files.h"
#include "ui_common/messagebox.h"

#include <QtTest>

using vorlindesk::CommandLine;

class tst_app_startup : public QObject
{
    Q_OBJECT
private slots:
    void fontShrinksAsTheDpiGrows_data()
    {
        QTest::addColumn<double>("dpi");
        QTest::addColumn<QString>("style");
        QTest::newRow("96") << 96.0 << QStringLiteral("font: 75 12pt \"Arial\";");
        QTest::newRow("97: a step") << 97.0 << QStringLiteral("font: 75 10.3896pt \"Arial\";");
        QTest::newRow("144") << 144.0 << QStringLiteral("font: 75 9.9pt \"Arial\";");
        QTest::newRow("145: a step") << 145.0 << QStringLiteral("font: 75 8.88958pt \"Arial\";");
        QTest::newRow("192: a step") << 192.0 << QStringLiteral("font: 75 7.4pt \"Arial\";");
    }

    void fontShrinksAsTheDpiGrows()
    {
        QFETCH(double, dpi);
        QTEST(vorlindesk::mainFontStyle(dpi), "style");
    }

    void commandLine_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("action");
        QTest::addColumn<QString>("inMessage");
        QTest::addColumn<QString>("dataDir");
        const auto row = [](const char *name, const QStringList &arguments, CommandLine::Action action,
                            const char *inMessage, const char *dataDir) {
            QTest::newRow(name) << arguments << static_cast<int>(action) << QString::fromLatin1(inMessage)
                                << QString::fromLatin1(dataDir);
        };
        const QString dir = QStringLiteral("--data-dir");
        row("nothing", {}, CommandLine::Action::Run, "", "");
        row("help", {QStringLiteral("--help")}, CommandLine::Action::Tell, "--data-dir <DIR>", "");
        row("version", {QStringLiteral("--version")}, CommandLine::Action::Tell, "vorlindesk 0.", "");
        row("data folder", {dir, QStringLiteral("/a b")}, CommandLine::Action::Run, "", "/a b");
        row("data folder, joined", {dir + QStringLiteral("=/c")}, CommandLine::Action::Run, "", "/c");
        row("data folder without a value", {dir}, CommandLine::Action::Refuse, "data-dir", "");
        row("data folder with an empty value", {dir + QLatin1Char('=')}, CommandLine::Action::Refuse,
            "data-dir", "");
        row("unknown option", {QStringLiteral("--frob")}, CommandLine::Action::Refuse, "frob", "");
        row("argument that is no option", {QStringLiteral("frob")}, CommandLine::Action::Refuse, "'frob'",
            "");
    }

    void commandLine()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, inMessage);
        arguments.prepend(QStringLiteral("vorlindesk"));
        const CommandLine result = vorlindesk::parseCommandLine(arguments);
        QTEST(static_cast<int>(result.action), "action");
        QTEST(result.dataDir, "dataDir");
        QVERIFY2(result.message.contains(inMessage), qPrintable(result.message));
        QVERIFY(result.message.isEmpty() || result.message.endsWith(QLatin1Char('\n')));
    }

    void startBuildsItsPartsInOrder_data()
    {
        QTest::addColumn<bool>("hidWorks");
        QTest::addColumn<QStringList>("log"); // those of the expected lines that must come, in this order
        QTest::newRow("all works") << true
                                   << QStringList({QStringLiteral("new protocol thread"),
                                                   QStringLiteral("Initialize the hid successfully"),
                                                   QStringLiteral("init protocol thread"),
                                                   QStringLiteral("init protocol start"),
                                                   QStringLiteral("new Widget")});
        QTest::newRow("no HID library") << false
                                        << QStringList({QStringLiteral("new protocol thread"),
                                                        QStringLiteral("Failed to initialize the hid"),
                                                        QStringLiteral("init protocol thread error")});
    }

    void startBuildsItsPartsInOrder()
    {
        QFETCH(bool, hidWorks);
        renewFakeHid();
        fakeHid().setPresent(false);
        fakeHid().setInitResult(hidWorks ? 0 : -1);
        const QStringList watched{QStringLiteral("new protocol thread"),
                                  QStringLiteral("Initialize the hid successfully"),
                                  QStringLiteral("Failed to initialize the hid"),
                                  QStringLiteral("init protocol thread"),
                                  QStringLiteral("init protocol thread error"),
                                  QStringLiteral("init protocol start"),
                                  QStringLiteral("new Widget")};
        std::mutex mutex;
        QStringList lines;
        vorlindesk::setLogSink([&](vorlindesk::LogLevel, const QString &text) {
            const std::lock_guard lock(mutex);
            if (watched.contains(text))
                lines.append(text);
        });
        QTemporaryDir dir;
        const QString before = QDir::currentPath();
        {
            char name[] = "vorlindesk";
            char *arguments[] = {name, nullptr};
            int count = 1;
            vorlindesk::FrameworkContext context;
            QCOMPARE(context.start(count, arguments, dir.path()), hidWorks);
            if (hidWorks) {
                QVERIFY(!QApplication::windowIcon().isNull());
                QTimer::singleShot(0, qApp, &QCoreApplication::quit);
                QVERIFY(!context.run());
                QVERIFY(QFileInfo::exists(dir.filePath(QStringLiteral("devConfig/system.ini"))));
            } else {
                QVERIFY(context.startFailure().contains(QStringLiteral("/log\n")));
            }
        }
        QDir::setCurrent(before);
        vorlindesk::setLogSink({});
        QTEST(lines, "log");
    }

    /// A file lies where the folder of a restored one belongs, so that it can be put into neither place.
    void unfinishedRestoreIsFinishedBeforeAnythingElse()
    {
        renewFakeHid();
        QTemporaryDir dir;
        const QString restore = dir.filePath("devConfig/restore/"_s);
        QVERIFY(writeTestFile(restore + "new/sub/x"_s, "new") &&
                writeTestFile(restore + "old/sub/x"_s, "old"));
        QVERIFY(
            writeTestFile(restore + "journal.txt"_s, "vorlindesk restore 1\nforward\n1 1 sub/x\n49100629"));
        QVERIFY(writeTestFile(dir.filePath("devConfig/sub"_s), "in the way"));
        const QString before = QDir::currentPath();
        for (const bool isMended : {false, true}) {
            int asked = 0;
            MessageBox::setAnswer([&](const QMessageBox &) {
                ++asked;
                if (isMended && asked == 2)
                    QFile::remove(dir.filePath("devConfig/sub"_s));
                return isMended ? QMessageBox::Retry : QMessageBox::Close;
            });
            char name[] = "vorlindesk";
            char *arguments[] = {name, nullptr};
            int count = 1;
            {
                vorlindesk::FrameworkContext context;
                QCOMPARE(context.start(count, arguments, dir.path()), isMended);
            }
            QDir::setCurrent(before);
            QCOMPARE(asked, isMended ? 2 : 1);
        }
        MessageBox::setAnswer({});
        QCOMPARE(testFileContent(dir.filePath("devConfig/sub/x"_s)),
                 QByteArray("old")); // taken back meanwhile
        QVERIFY(!QFileInfo::exists(restore));
    }

    /// There is no log then that could be pointed to.
    void unusableDataFolderIsToldOnTheTerminal()
    {
        QTemporaryFile inTheWay;
        QVERIFY(inTheWay.open());
        char name[] = "vorlindesk";
        char *arguments[] = {name, nullptr};
        int count = 1;
        vorlindesk::FrameworkContext context;
        QVERIFY(!context.start(count, arguments, inTheWay.fileName() + QStringLiteral("/data")));
        QVERIFY(context.startFailure().contains(QStringLiteral("no folder")));
    }
};

QTEST_APPLESS_MAIN(tst_app_startup)
#include "tst_app_startup.moc"
