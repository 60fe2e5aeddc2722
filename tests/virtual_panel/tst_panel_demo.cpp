// The demonstration decodes back to what it shows, and the headless commands tell it.
#include "model/keypicture.h"
#include "panel_app/democonfiguration.h"
#include "panel_app/keyview.h"
#include "panel_app/linecommands.h"
#include "panel_app/panelarguments.h"
#include "panel_link/panelserver.h"
#include "support/texts.h"

#include <QtTest>

class TestPanelDemo : public QObject
{
    Q_OBJECT

    const PanelState mDemo = demoState("/tmp/read me.txt"_s);

private slots:
    void showsEveryFunction()
    {
        QSet<int> functions;
        for (const PanelKey &key : mDemo.keys) {
            functions << key.record.functionId;
            QCOMPARE(vorlinmodel::decodePicture(key.picture).size(), QSize(90, 84));
        }
        for (int functionId = 1; functionId <= 19; ++functionId)
            QVERIFY2(functions.contains(functionId), qPrintable(QString::number(functionId)));
    }

    void commands_data()
    {
        QTest::addColumn<QString>("answer");
        const auto row = [](const char *line, const char *answer) {
            QTest::newRow(line) << QString::fromLatin1(answer);
        };
        row("page 1 17", "error there is no such page");
        row("page 1", "error page LAYOUT PAGE");
        row("press 16", "error there is no such key");
        row("key 1 1 1", "{}");
        row("run-now 1 1 4 [{\"fid\":100,\"delay\":10}]", "ok");
        row("dance", "error unknown command; help lists them");
        row("", "error empty line");
    }

    void commands()
    {
        PanelServer server({});
        LineCommands commands(server, {});
        QTEST(commands.execute(QString::fromLatin1(QTest::currentDataTag())), "answer");
    }

    void keyAsJson()
    {
        PanelServer server({});
        LineCommands commands(server, {});
        QCOMPARE(commands.execute("demo"_s), "ok"_s);
        const QJsonObject key = QJsonDocument::fromJson(commands.execute("key 1 1 15"_s).toUtf8()).object();
        QCOMPARE(key.value("fid"_s).toInt(), 15);
        QCOMPARE(key.value("content"_s).toString(), "Kind regards\n此致敬礼"_s);
        QCOMPARE(key.value("colour"_s).toArray(), (QJsonArray{120, 200, 255}));
        QVERIFY(commands.execute("press 3"_s).startsWith("ok "_s));
        QCOMPARE(commands.execute("events"_s), "[\"key 1/1/3 pressed\"]"_s);
        QVERIFY(!commands.quitWanted());
        commands.execute("quit"_s);
        QVERIFY(commands.quitWanted());
    }

    void arguments_data()
    {
        QTest::addColumn<int>("exitCode");
        QTest::newRow("") << -1;
        QTest::newRow("--help") << 0;
        QTest::newRow("--nonsense") << 2;
        QTest::newRow("--port=65536") << 2;
        QTest::newRow("--paths=beos") << 2;
        QTest::newRow("--report-interval-us=-1") << 2;
    }

    void arguments()
    {
        QFETCH(int, exitCode);
        QStringList arguments{"virtual_panel"_s, QString::fromLatin1(QTest::currentDataTag())};
        arguments.removeAll({});
        const PanelArgumentsResult result = parsePanelArguments(arguments);
        QCOMPARE(result.exitCode, exitCode);
        QCOMPARE(result.text.isEmpty(), exitCode < 0);
    }
};

QTEST_GUILESS_MAIN(TestPanelDemo)
#include "tst_panel_demo.moc"
