/// What a key's function does on the computer, and action lists that the panel wants run or kept.
#include "model/functionmanager.h"
#include "storefixture.h"

#include <QtTest>

using namespace vorlinmodel;

namespace {

/// Code, no delay, and a payload of 128 bytes that starts with @p content.
QByteArray entry(char code, const QByteArray &content)
{
    return code + QByteArray(2, '\0') + content.leftJustified(128, '\0');
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
        mDesktop = {};
        mpStore = std::make_unique<FunctionManager>();
        mpStore->setDesktop(mDesktop);
        mpStore->setTextOutput([this](int fid, const QString &text) {
            mDesktop.calls << u("type %1 %2").arg(QString::number(fid), text);
        });
        QVERIFY(mpStore->Init());
        mpFixture->takeLines();
    }

    void cleanup()
    {
        mpStore.reset();
        mpFixture.reset();
    }

    void commands()
    {
        QCOMPARE(outcome(1, "unused"), u("true: url https://duckduckgo.com/, 1 open home page ok"));
        QCOMPARE(outcome(2, "/a b"), u("true: file /a b"));
        QCOMPARE(outcome(3, "http://a.test/?q=好"),
                 u("true: url http://a.test/?q=%E5%A5%BD, 1 open http://a.test/?q=好 ok"));
        QCOMPARE(outcome(15, "hi"), u("false: type 15 hi")); // typed elsewhere
        for (const int fid : {0, 4, 16, 100, -3})
            QCOMPARE(outcome(fid, "x"), u("false: "));
        mDesktop.succeeds = false;
        QCOMPARE(outcome(1, ""), u("false: url https://duckduckgo.com/, 3 open home page fail"));
        QCOMPARE(outcome(2, "/x"), u("false: file /x"));
        QCOMPARE(outcome(3, "nowhere"), u("false: url nowhere, 3 open nowhere fail"));
    }

    void runNowListRunsInOrderAndIsNotStored()
    {
        // L = 402: address, delay of 10, text "OK", combination, an unknown code, code 0.
        const QByteArray list = hex("9201") + entry(3, "http://a.test/") + hex("640A00") +
                                entry(15, hex("4F004B00")) + entry(16, hex("E006")) + hex("2A0000") +
                                hex("000000");
        QVERIFY(!take(16, list));
        QCOMPARE(mDesktop.calls, texts({"url http://a.test/", "type 15 OK"}));
        const QStringList lines = mpFixture->takeLines();
        QCOMPARE(lines.filter(u("execCommand")).size(), 6);
        QVERIFY(lines.contains(u("1 -----tmpAdditonal[224][6][0][0]")));
        QCOMPARE(storedBytes(), 0);
    }

    void storedListIsKeptAndNotRun()
    {
        const QByteArray list = hex("0F01") + entry(2, "/a b") + hex("64E803") + hex("000000") +
                                entry(16, hex("E006")) + hex("050000");
        mpStore->setRecvTotalKeyCount(0);
        QVERIFY(!take(15, list)); // false although no picture is missing
        QVERIFY(mDesktop.calls.isEmpty());
        QCOMPARE(multiActionStore().readActionsByKeyId(1, 2, 3),
                 (QVector<MultiAction>{{2, 0, u("/a b")},
                                       {100, 1000, {}},
                                       {16, 0, u("Left Ctrl#C#undefine#undefine")},
                                       {5, 0, {}}}));
        QCOMPARE(mpStore->getReceivedCounts().current, 0);
    }

    void listsThatHoldNothing()
    {
        for (const QByteArray &list : {hex("05"), hex("FFFF"), hex("0600 000000 000000")}) {
            QVERIFY(!take(15, list) && !take(16, list));
            QCOMPARE(storedBytes(), 0);
            QVERIFY(mDesktop.calls.isEmpty());
        }
    }

    void listThatCannotBeStoredIsReported()
    {
        QFile::remove(mpFixture->path("devConfig/multiActions.json"));
        QVERIFY(QDir().mkpath(mpFixture->path("devConfig/multiActions.json/in the way")));
        QVERIFY(!take(15, hex("0300 050000")));
        QVERIFY(!mpFixture->takeLines().filter(QRegularExpression(u("^3 写入失败:."))).isEmpty());
    }

    void listOfAKeyThatCannotBeIsNotStored()
    {
        const QByteArray payload = hex("0102100F") + hex("0300 050000"); // key 16
        QVERIFY(!mpStore->saveKeyAttrByDevconfig(data(payload), payload.size()));
        QVERIFY(mpFixture->takeLines().contains(u("3 Error keyid Layoutid:1 Pageid:2,nKeyoutId=16 ")));
        QCOMPARE(storedBytes(), 0);
    }

private:
    /// What a command returns, asks the desktop for, and logs behind its first line.
    QString outcome(int fid, const char *command)
    {
        const bool result = mpStore->execCommand({1, 2, 3}, fid, u(command));
        const QStringList lines = mpFixture->takeLines();
        const QString head = u("1 execCommand Layoutid:1 Pageid:2 Keyid:3 fid:%1 ").arg(fid);
        if (lines.value(0) != head)
            return u("not logged");
        const QStringList rest = std::exchange(mDesktop.calls, {}) + lines.mid(1);
        return (result ? u("true: ") : u("false: ")) + rest.join(u(", "));
    }

    qint64 storedBytes() const { return QFileInfo(mpFixture->path("devConfig/multiActions.json")).size(); }

    bool take(char attribute, const QByteArray &list)
    {
        const QByteArray payload = hex("010203") + attribute + list;
        return mpStore->saveKeyAttrByDevconfig(data(payload), payload.size());
    }

    std::unique_ptr<StoreFixture> mpFixture;
    RecordingDesktop mDesktop;
    std::unique_ptr<FunctionManager> mpStore;
};

QTEST_GUILESS_MAIN(CommandsTest)
#include "tst_model_commands.moc"
