// The demonstration decodes back to what it shows, and the headless commands tell it.
#include "model/functionids.h"
#include "model/keypicture.h"
#include "panel_app/democonfiguration.h"
#include "panel_app/keyview.h"
#include "panel_app/linecommands.h"
#include "panel_app/panelarguments.h"
#include "panel_link/panelserver.h"
#include "wire/actionlist.h"
#include "wire/textcodec.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QtTest>

class TestPanelDemo : public QObject
{
    Q_OBJECT

    const PanelState mDemo = demoState(QStringLiteral("/tmp/read me.txt"));

private slots:
    void showsEveryFunctionOnSeveralPages()
    {
        QSet<int> functions;
        QSet<int> pages;
        for (auto key = mDemo.keys.constBegin(); key != mDemo.keys.constEnd(); ++key) {
            functions << key->record.functionId;
            pages << key.key().page;
        }
        for (int functionId = 1; functionId <= 19; ++functionId)
            QVERIFY2(functions.contains(functionId), qPrintable(QString::number(functionId)));
        QVERIFY(pages.size() >= 3);
    }

    void everyKeyHasAPictureOfItsSize()
    {
        for (const PanelKey &key : mDemo.keys)
            QCOMPARE(vorlinmodel::decodePicture(key.picture).size(), QSize(90, 84));
    }

    void contentsDecode()
    {
        QCOMPARE(TextCodec::fromUtf8(mDemo.keys.value({1, 1, 2}).record.content),
                 QStringLiteral("/tmp/read me.txt"));
        QCOMPARE(mDemo.keys.value({1, 1, 3}).record.content, QByteArray("https://example.com/"));
        QCOMPARE(TextCodec::fromOutput(mDemo.keys.value({1, 1, 5}).record.content),
                 QStringLiteral("Hello, 你好!"));
        QCOMPARE(TextCodec::fromGbk(mDemo.keys.value({1, 1, 5}).record.title), QStringLiteral("问候"));
        QCOMPARE(mDemo.keys.value({1, 1, 10}).record.content, QByteArray::fromHex("e0060000"));
        const auto steps = ActionList::decode(mDemo.keys.value({1, 1, 4}).actions);
        QCOMPARE(steps.size(), 5);
        QCOMPARE(int(steps.at(1).delay), 500);
    }

    /// Key 11 leads to page 12, and key 15 there leads back.
    void childPageHasAWayBack()
    {
        QCOMPARE(int(mDemo.keys.value({1, 1, 11}).record.functionId), vorlinmodel::CHILDREN_PAGE_FID);
        QCOMPARE(int(mDemo.keys.value({1, 12, 15}).record.functionId), vorlinmodel::RETURN_MAIN_FID);
    }

    void videoPlays() { QVERIFY(videoFrames(mDemo.keys.value({1, 1, 12}).video).size() > 1); }

    void commands_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("answer");
        QTest::newRow("page") << QStringLiteral("page 1 2") << QStringLiteral("ok");
        QTest::newRow("page that is none")
            << QStringLiteral("page 1 17") << QStringLiteral("error there is no such page");
        QTest::newRow("page without number")
            << QStringLiteral("page 1") << QStringLiteral("error page LAYOUT PAGE");
        QTest::newRow("key that is none")
            << QStringLiteral("press 16") << QStringLiteral("error there is no such key");
        QTest::newRow("violations") << QStringLiteral("violations") << QStringLiteral("[]");
        QTest::newRow("key without function") << QStringLiteral("key 1 1 1") << QStringLiteral("{}");
        QTest::newRow("picture of none") << QStringLiteral("picture 1 1 1") << QStringLiteral("ok ");
        QTest::newRow("nothing sent")
            << QStringLiteral("sent") << QStringLiteral("{\"microseconds\":0,\"reports\":0}");
        QTest::newRow("idle") << QStringLiteral("wait-idle 1") << QStringLiteral("ok");
        QTest::newRow("fault") << QStringLiteral("fault silent on") << QStringLiteral("ok");
        QTest::newRow("run now") << QStringLiteral("run-now 1 1 4 [{\"fid\":100,\"delay\":10}]")
                                 << QStringLiteral("ok");
        QTest::newRow("unknown") << QStringLiteral("dance")
                                 << QStringLiteral("error unknown command; help lists them");
        QTest::newRow("empty") << QString() << QStringLiteral("error empty line");
    }

    void commands()
    {
        QFETCH(QString, line);
        QFETCH(QString, answer);
        PanelServer server({});
        LineCommands commands(server, {});
        QCOMPARE(commands.execute(line), answer);
    }

    void keyAsJson()
    {
        PanelServer server({});
        LineCommands commands(server, {});
        QCOMPARE(commands.execute(QStringLiteral("demo")), QStringLiteral("ok"));
        const QJsonObject key =
            QJsonDocument::fromJson(commands.execute(QStringLiteral("key 1 1 15")).toUtf8()).object();
        QCOMPARE(key.value(QStringLiteral("fid")).toInt(), 15);
        QCOMPARE(key.value(QStringLiteral("content")).toString(), QStringLiteral("Kind regards\n此致敬礼"));
        QCOMPARE(key.value(QStringLiteral("colour")).toArray(), (QJsonArray{120, 200, 255}));
        QVERIFY(commands.execute(QStringLiteral("press 3")).startsWith(QStringLiteral("ok ")));
        QCOMPARE(commands.execute(QStringLiteral("events")), QStringLiteral("[\"key 1/1/3 pressed\"]"));
        QVERIFY(!commands.quitWanted());
        commands.execute(QStringLiteral("quit"));
        QVERIFY(commands.quitWanted());
    }

    void arguments_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitCode");
        const auto add = [](const char *name, const QStringList &arguments, int exitCode) {
            QTest::newRow(name) << QStringList{QStringLiteral("virtual_panel")} + arguments << exitCode;
        };
        add("none", {}, -1);
        add("help", {QStringLiteral("--help")}, 0);
        add("unknown option", {QStringLiteral("--nonsense")}, 2);
        add("stray argument", {QStringLiteral("nonsense")}, 2);
        add("port that is none", {QStringLiteral("--port"), QStringLiteral("65536")}, 2);
        add("unknown system", {QStringLiteral("--paths"), QStringLiteral("beos")}, 2);
        add("interval below 0", {QStringLiteral("--report-interval-us=-1")}, 2);
    }

    void arguments()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, exitCode);
        const PanelArgumentsResult result = parsePanelArguments(arguments);
        QCOMPARE(result.exitCode, exitCode);
        QCOMPARE(result.text.isEmpty(), exitCode < 0);
    }
};

QTEST_GUILESS_MAIN(TestPanelDemo)
#include "tst_panel_demo.moc"
