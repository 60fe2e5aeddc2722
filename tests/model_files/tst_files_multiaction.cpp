/// "multiActions.json": what is read, what is refused with which text, and that nothing in it gets lost.
#include "model/multiaction.h"

#include "fileutil.h"
#include "storefixture.h"

#include <QtTest>
#include <memory>
#include <thread>

using namespace vorlinmodel;

class TestFilesMultiAction : public QObject
{
    Q_OBJECT

    std::unique_ptr<StoreFixture> mpFixture;

    QString file() const { return mpFixture->path("multiActions.json"); }
    MultiActionStore store() const { return MultiActionStore(file()); }

    QStringList keysOnDisk() const
    {
        QString error;
        const auto entries = store().readAll(error);
        QStringList keys;
        for (const MultiActionEntry &entry : entries.value_or(QVector<MultiActionEntry>{}))
            keys << u("%1/%2/%3").arg(entry.key.lid).arg(entry.key.pageid).arg(entry.key.kid);
        return keys;
    }

private slots:
    void init() { mpFixture = std::make_unique<StoreFixture>(); }
    void cleanup() { mpFixture.reset(); }

    void faultsStopTheRead()
    {
        const std::pair<const char *, const char *> faults[] = {
            {"", "fileEmpty"},
            {"{", "JSON 解析错误: unterminated object"},
            {"[]", "缺少 keyInfo 数组"},
            {"{}", "缺少 keyInfo 数组"},
            {R"({"keyInfo":[{"layid":1,"actions":[]},null]})", "发现非对象类型的 keyInfo 元素"},
            {R"({"keyInfo":[{"layid":"1","actions":[]}]})", "缺少 layid 或类型错误"},
            {R"({"keyInfo":[{"layid":1,"actions":{}}]})", "缺少 actions 数组"},
            {R"({"keyInfo":[{"layid":1,"actions":["a"]}]})", "发现非对象类型的 action 元素"},
            {R"({"keyInfo":[{"layid":1,"actions":[{"delay":1}]}]})", "缺少 fid 或类型错误"},
            {R"({"keyInfo":[{"layid":1,"actions":[{"fid":65541}]}]})", "缺少 fid 或类型错误"},
            {R"({"keyInfo":[{"layid":1,"actions":[{"fid":2.5}]}]})", "缺少 fid 或类型错误"},
        };
        QString error;
        for (const auto &[content, expected] : faults) {
            QVERIFY(writeTestFile(file(), content));
            QVERIFY2(!store().readAll(error), content);
            QCOMPARE(error, u(expected));
        }
        QVERIFY(writeTestFile(file(), R"({"keyInfo":)" + QByteArray(200000, '['))); // hostile nesting
        QVERIFY(!store().readAll(error));
    }

    void absentFieldsHaveDefaults()
    {
        QVERIFY(writeTestFile(file(), R"({"keyInfo":[{"layid":2,"keyid":7,"actions":[
            {"fid":100,"delay":70000}, {"fid":5,"delay":"x","url":3}, {"fid":-1,"delay":-5}]}]})"));
        const QVector<MultiAction> expected = {{100, 65535, {}}, {5, 0, {}}, {-1, 0, {}}};
        QCOMPARE(store().readActionsByKeyId(2, 0, 7), expected); // without "pageid": page 0
    }

    void fileFormat()
    {
        QString error;
        const QVector<MultiActionEntry> entries = {{{1, 2, 3}, {{3, 0, u("例\"1\"")}}}};
        QVERIFY(store().writeAll(entries, error));
        const QByteArray expected =
            "{\n    \"keyInfo\": [\n        {\n            \"actions\": [\n                {\n"
            "                    \"delay\": 0,\n                    \"fid\": 3,\n"
            "                    \"url\": \"例\\\"1\\\"\"\n                }\n            ],\n"
            "            \"keyid\": 3,\n            \"layid\": 1,\n            \"pageid\": 2\n"
            "        }\n    ]\n}\n";
        QCOMPARE(testFileContent(file()), expected);
        QCOMPARE(store().readAll(error).value(), entries);
    }

    void entriesKeepTheirPlaces()
    {
        QVERIFY(writeTestFile(file(), {})); // as start-up makes it
        QString error;
        MultiActionStore actions = store();
        QVERIFY(actions.writeActionsByKeyId(1, 1, 9, {{5, 0, {}}}, error));
        QVERIFY(actions.writeActionsByKeyId(1, 1, 2, {{6, 0, {}}}, error));
        QVERIFY(actions.writeActionsByKeyId(1, 1, 5, {{7, 0, {}}}, error));
        QVERIFY(actions.writeActionsByKeyId(1, 1, 9, {{8, 0, {}}}, error));
        QCOMPARE(keysOnDisk(), texts({"1/1/9", "1/1/2", "1/1/5"}));
        QCOMPARE(actions.readActionsByKeyId(1, 1, 9), QVector<MultiAction>({{8, 0, {}}}));

        mpFixture->takeLines();
        QVERIFY(actions.delActionsByKeyId(1, 1, 2, error));
        QVERIFY(actions.delActionsByKeyId(1, 1, 2, error)); // gone already
        QCOMPARE(mpFixture->takeLines(), QStringList{u("4 -readData -del --i=1")});
        QVERIFY(actions.replaceEntries({{1, 1, 9}, {1, 1, 5}}, {{{1, 1, 5}, {{9, 0, {}}}}, {{3, 1, 1}, {}}},
                                       error));
        QCOMPARE(keysOnDisk(), texts({"1/1/5", "3/1/1"}));
        QCOMPARE(actions.readActionsByKeyId(1, 1, 5), QVector<MultiAction>({{9, 0, {}}}));
    }

    void aMissingFile()
    {
        QString error;
        QVERIFY(!store().readAll(error));
        QCOMPARE(error, u("无法打开文件: ") + missingFileText());
        QVERIFY(store().readActionsByKeyId(1, 1, 1).isEmpty());
        QVERIFY(mpFixture->takeLines().contains(u("3 读取失败:") + error));
        QVERIFY(store().delActionsByKeyId(1, 1, 1, error));
        QVERIFY(!QFile::exists(file()));
        QVERIFY(store().writeActionsByKeyId(1, 1, 1, {{5, 0, {}}}, error)); // removed while the program ran
        QCOMPARE(keysOnDisk(), QStringList{u("1/1/1")});
    }

    void aDamagedFileIsLeftAlone()
    {
        const QByteArray damaged = R"({"keyInfo":[{"layid":1,"actions":[{"fid":"5"}]}]})";
        QVERIFY(writeTestFile(file(), damaged));
        QString error;
        QVERIFY(!store().writeActionsByKeyId(1, 1, 1, {}, error));
        QCOMPARE(error, u("缺少 fid 或类型错误"));
        QVERIFY(!store().delActionsByKeyId(1, 1, 1, error));
        QCOMPARE(mpFixture->takeLines().count(u("3 读取失败:缺少 fid 或类型错误")), 2);
        QCOMPARE(testFileContent(file()), damaged);
    }

    void aFailedWriteIsReported()
    {
        MultiActionStore nowhere(mpFixture->path("no/such/folder.json"));
        QString error;
        QVERIFY(!nowhere.writeActionsByKeyId(1, 1, 1, {}, error));
        QVERIFY2(error.startsWith(u("无法写入文件: ")), qPrintable(error));
        QCOMPARE(mpFixture->takeLines(), QStringList{u("3 写入失败:") + error});
    }

    void writersDoNotUndoEachOther()
    {
        QVERIFY(writeTestFile(file(), {}));
        std::vector<std::thread> threads;
        for (int page = 1; page <= 4; ++page) {
            threads.emplace_back([this, page] {
                MultiActionStore actions = store(); // each its own, as the callers have
                QString error;
                for (int key = 1; key <= 15; ++key)
                    actions.writeActionsByKeyId(1, page, key, {{qint16(page), quint16(key), {}}}, error);
                actions.delActionsByKeyId(1, page, 1, error);
            });
        }
        for (std::thread &thread : threads)
            thread.join();
        QCOMPARE(keysOnDisk().size(), 4 * 14);
        QCOMPARE(store().readActionsByKeyId(1, 3, 15), QVector<MultiAction>({{3, 15, {}}}));
    }
};

QTEST_GUILESS_MAIN(TestFilesMultiAction)
#include "tst_files_multiaction.moc"
