/// What a key's function does on the computer, and action lists that the panel wants run or kept.
#include "model/functionmanager.h"
#include "storefixture.h"

#include <QtTest>

using namespace vorlinmodel;

namespace {

constexpr key_id_t Key{1, 2, 3};

/// "0F 00 00" and a payload of 128 bytes that starts with @p content.
QByteArray entry(char code, const QByteArray &content)
{
    return QByteArray(1, code) + QByteArray(2, '\0') + content + QByteArray(128 - content.size(), '\0');
}

QByteArray hex(const char *text)
{
    return QByteArray::fromHex(text);
}

} // namespace

class CommandsTest : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        mpFixture = std::make_unique<StoreFixture>();
        mpDesktop = std::make_unique<RecordingDesktop>();
        mpStore = std::make_unique<FunctionManager>();
        mpStore->setDesktop(*mpDesktop);
        mpStore->setTextOutput([this](int fid, const QString &text) {
            mpDesktop->asked << u("type %1 %2").arg(QString::number(fid), text);
        });
        QVERIFY(mpStore->Init());
        mpFixture->takeLines();
    }

    void cleanup()
    {
        mpStore.reset();
        mpDesktop.reset();
        mpFixture.reset();
    }

    void commands_data()
    {
        QTest::addColumn<int>("fid");
        QTest::addColumn<QString>("command");
        QTest::addColumn<bool>("works");
        QTest::addColumn<bool>("result");
        QTest::addColumn<QStringList>("asked");
        QTest::addColumn<QString>("line"); // after the first, which is the same for all

        const QString home = u("url https://duckduckgo.com/");
        QTest::newRow("home page") << 1 << u("unused") << true << true << QStringList{home}
                                   << u("1 open home page ok");
        QTest::newRow("no browser") << 1 << QString() << false << false << QStringList{home}
                                    << u("3 open home page fail");
        QTest::newRow("file") << 2 << u("/a b/c.txt") << true << true << QStringList{u("file /a b/c.txt")}
                              << QString();
        QTest::newRow("missing file")
            << 2 << u("/x") << false << false << QStringList{u("file /x")} << QString();
        QTest::newRow("address") << 3 << u("http://a.test/?q=好") << true << true
                                 << QStringList{u("url http://a.test/?q=好")}
                                 << u("1 open http://a.test/?q=好 ok");
        QTest::newRow("bad address") << 3 << u("nowhere") << false << false << QStringList{u("url nowhere")}
                                     << u("3 open nowhere fail");
        QTest::newRow("text, typed elsewhere")
            << 15 << u("hi") << true << false << QStringList{u("type 15 hi")} << QString();
        QTest::newRow("empty text") << 15 << QString() << true << false << QStringList{u("type 15 ")}
                                    << QString();
        for (const int fid : {0, 4, 5, 16, 17, 18, 100, -3})
            QTest::addRow("nothing for %d", fid)
                << fid << u("x") << true << false << QStringList() << QString();
    }

    void commands()
    {
        QFETCH(int, fid);
        QFETCH(QString, command);
        QFETCH(bool, works);
        QFETCH(QStringList, asked);
        QFETCH(QString, line);
        mpDesktop->works = works;
        QTEST(mpStore->execCommand(Key, fid, command), "result");
        QCOMPARE(mpDesktop->asked, asked);
        QStringList lines = {u("1 execCommand Layoutid:1 Pageid:2 Keyid:3 fid:%1 ").arg(fid)};
        if (!line.isEmpty())
            lines << line;
        QCOMPARE(mpFixture->takeLines(), lines);
    }

    void runNowListRunsInOrderAndIsNotStored()
    {
        // L = 402: address, delay of 10, text "OK", combination, an unknown code, code 0.
        const QByteArray list = hex("9201") + entry(3, "http://a.test/") + hex("640A00") +
                                entry(15, hex("4F004B00")) + entry(16, hex("E006")) + hex("2A0000") +
                                hex("000000");
        QVERIFY(!take(16, list));
        QCOMPARE(mpDesktop->asked, (QStringList{u("url http://a.test/"), u("type 15 OK")}));
        const QStringList lines = mpFixture->takeCalmLines();
        QCOMPARE(lines.filter(u("execCommand")).size(), 6);
        QVERIFY(lines.contains(u("1 -----tmpAdditonal[224][6][0][0]")));
        QCOMPARE(QFileInfo(mpFixture->path("devConfig/multiActions.json")).size(), 0);
    }

    void storedListIsKeptAndNotRun()
    {
        const QByteArray list = hex("0F01") + entry(2, "/a b") + hex("64E803") + hex("000000") +
                                entry(16, hex("E006")) + hex("050000");
        mpStore->setRecvTotalKeyCount(0);
        QVERIFY(!take(15, list)); // false although no picture is missing
        QVERIFY(mpDesktop->asked.isEmpty());
        const QVector<MultiAction> stored = multiActionStore().readActionsByKeyId(1, 2, 3);
        QCOMPARE(stored, (QVector<MultiAction>{{2, 0, u("/a b")},
                                               {100, 1000, {}},
                                               {16, 0, u("Left Ctrl#C#undefine#undefine")},
                                               {5, 0, {}}}));
        QCOMPARE(mpStore->getReceivedCounts().current, 0);
    }

    void listLines()
    {
        take(16, hex("0300 640A00 FFFF")); // what lies behind the counted bytes is only dumped
        QCOMPARE(mpFixture->takeLines(),
                 (QStringList{u("4 -----------MD_FUNCTION_CODE_KEY_ATTRIBUTE-----"),
                              u("1 application length:0x0000000b(11)"),
                              u("1 saveKeyAttrByDevconfig Layoutid[1] Pageid[2] Keyid[3] nAttrbuteid[16]"),
                              u("4 -----getall-------byteArry=03 00 64 0a 00 ff ff "),
                              u("4 -----available-------byteArry=03 00 64 0a 00 "), u("4 ----action=100 10 "),
                              u("1 execCommand Layoutid:1 Pageid:2 Keyid:3 fid:100 "),
                              u("1 mRecvTotalKeyCount[0]-mRecvCurKeyCount[0]")}));
    }

    void listsThatHoldNothing_data()
    {
        QTest::addColumn<QByteArray>("list");
        QTest::newRow("length 0") << hex("0000 0300");
        QTest::newRow("one byte") << hex("05");
        QTest::newRow("only code 0") << hex("0600 000000 000000");
        QTest::newRow("length beyond the bytes") << hex("FFFF");
    }

    void listsThatHoldNothing()
    {
        QFETCH(QByteArray, list);
        QVERIFY(!take(15, list));
        QCOMPARE(QFileInfo(mpFixture->path("devConfig/multiActions.json")).size(), 0);
        QVERIFY(!take(16, list));
        QVERIFY(mpDesktop->asked.isEmpty());
    }

    void cutEntryIsRunWithAnEmptyText()
    {
        take(16, hex("8200") + entry(2, "/a").left(130)); // one byte short of an entry
        QCOMPARE(mpDesktop->asked, QStringList{u("file ")});
    }

    void listThatCannotBeStoredIsReported()
    {
        QFile::remove(mpFixture->path("devConfig/multiActions.json"));
        QVERIFY(QDir().mkpath(mpFixture->path("devConfig/multiActions.json/in the way")));
        QVERIFY(!take(15, hex("0300 050000")));
        const QStringList errors = mpFixture->takeLines().filter(QRegularExpression(u("^3 写入失败:.")));
        QVERIFY(!errors.isEmpty());
    }

    void listOfAKeyThatCannotBeIsNotStored()
    {
        const QByteArray payload = hex("0102100F") + hex("0300 050000"); // key 16
        QVERIFY(!mpStore->saveKeyAttrByDevconfig(data(payload), payload.size()));
        QVERIFY(mpFixture->takeLines().contains(u("3 Error keyid Layoutid:1 Pageid:2,nKeyoutId=16 ")));
        QCOMPARE(QFileInfo(mpFixture->path("devConfig/multiActions.json")).size(), 0);
    }

private:
    bool take(char attribute, const QByteArray &list)
    {
        const QByteArray payload = hex("010203") + attribute + list;
        return mpStore->saveKeyAttrByDevconfig(data(payload), payload.size());
    }

    std::unique_ptr<StoreFixture> mpFixture;
    std::unique_ptr<RecordingDesktop> mpDesktop;
    std::unique_ptr<FunctionManager> mpStore;
};

QTEST_GUILESS_MAIN(CommandsTest)
#include "tst_model_commands.moc"
