/// "CD.bin": whole configurations there and back, and damage that is noticed and named.
#include "crc32.h"
#include "fileutil.h"
#include "model/functionids.h"
#include "model/functionmanager.h"
#include "model/scriptcontainer.h"
#include "model/scriptformat.h"
#include "storefixture.h"

#include <QTest>
#include <memory>

using namespace vorlinmodel;

class TestFilesScript : public QObject
{
    Q_OBJECT

    std::unique_ptr<StoreFixture> mpFixture;

    static MultiActionStore actionsHere()
    {
        return MultiActionStore(QDir::currentPath() + u("/actions.json"));
    }

    static Script smallScript()
    {
        Script script;
        KeyRecord record;
        record.layoutId = 1;
        record.pageId = 1;
        record.keyId = 4;
        record.functionId = 3;
        record.title = "T";
        script.pages = {{1, 1, {record}}};
        ScriptKey &key = script.keys[{1, 1, 4}];
        key.texts = ScriptTexts{u("ü"), u("x")};
        key.picture = "png";
        key.customImage = true;
        key.pictureFile = "jpg";
        key.videoName = u("v.avi");
        key.video = "avi";
        key.actions = {{100, 5, {}}};
        return script;
    }

    // Two pages of keys with everything that a key can have.
    static void fillStore(FunctionManager &store, MultiActionStore &actions)
    {
        const key_id_t picture{1, 1, 2};
        store.createKeyAttribute(picture, OPEN_WEB_FID);
        store.setTitle(picture, u("标题"));
        store.setTitleAlignment(picture, AlignTop);
        store.setTitleFontSize(picture, 20);
        store.setTitleFontColor(picture, QColor(1, 2, 3));
        store.setImageEffects(picture, Marquee);
        store.setDisplayMode(picture, SelfLocking);
        store.setUrlOrPath(picture, u("https://例.test/") + QString(300, QLatin1Char('a')));
        const QString own = QDir::currentPath() + u("/devConfig/image/1_1_2.png");
        writeTestFile(own, ::picture({90, 84}, Qt::red));
        store.setCustomImage(picture, own);

        const key_id_t photo{1, 1, 15};
        store.createKeyAttribute(photo, TEXT_OUTPUT_FID);
        store.setTitle(photo, u("émoji 😀"));
        store.setUrlOrPath(photo, u("text\nof two lines"));
        const QString foreign = QDir::currentPath() + u("/devConfig/image/1_1_15.png");
        writeTestFile(foreign, ::picture({300, 200}, Qt::blue, "BMP"));
        store.setCustomImage(photo, foreign);

        const key_id_t combination{2, 16, 1};
        store.createKeyAttribute(combination, KEY_COMBINATION_FID);
        store.setKeyCombination(combination, {u("Left Ctrl"), u("C")});
        store.setCustomImage(combination, u(":/icon/of the program.png"));
        store.createKeyAttribute({2, 16, 3}, MULTIPLE_ACTIONS_FID);
        QString error;
        actions.writeActionsByKeyId(2, 16, 3, {{3, 0, u("https://a.test")}, {100, 500, {}}}, error);
    }

    static QVector<key_atttribute_t> recordsOf(const FunctionManager &store)
    {
        QVector<key_atttribute_t> records;
        for (const key_id_t &key : store.getKeys()) {
            records << *store.getKeyAttribute(key);
            records.last().customImage.remove(QDir::currentPath());
        }
        return records;
    }

private slots:
    void init() { mpFixture = std::make_unique<StoreFixture>(); }
    void cleanup() { mpFixture.reset(); }

    void checksum() { QCOMPARE(crc32("123456789"), 0xCBF43926U); }

    void bytesOfAContainer()
    {
        QCOMPARE(encodeScript({}).toHex(), QByteArray("5644534352495054010018000000000000000000d7b94838"));
        Script script;
        script.pages = {{1, 2, {}}};
        script.keys[{1, 2, 3}].resource = u(":/a");
        const QByteArray expected = "5644534352495054010018000102000002000000eb6074c9"
                                    "5041474501020000000000000000000083a9fd10"
                                    "525352430102030003000000f7d014fe628066be3a2f61";
        QCOMPARE(encodeScript(script).toHex(), expected);
    }

    void aNewerVersionIsRead()
    {
        // Version 2: four more bytes of header, and a section "NEWS" before one that is known.
        const QByteArray newer =
            QByteArray::fromHex("564453435249505402001c0001020000020000006d6f72656a02745b"
                                "4e455753010203090500000086a610367f0dbfb168656c6c6f"
                                "525352430102030003000000f7d014fe628066be3a2f61");
        const Script script = parseScript(newer);
        QCOMPARE(script.damaged, QStringList());
        QCOMPARE(int(script.version), 2);
        QCOMPARE(script.skippedSections, 1);
        QCOMPARE(script.keys.value({1, 2, 3}).resource, u(":/a"));
        const key_id_t position{1, 2, 0};
        QVERIFY(scriptPosition(newer) == position);
    }

    void sectionsOfWrongContent_data()
    {
        QTest::addColumn<QByteArray>("section");
        QTest::addColumn<QString>("name");
        const auto row = [](const char *name, const char *section, const char *damaged) {
            QTest::newRow(name) << QByteArray(section) << u(damaged);
        };
        row("part of a record", "5041474501010000010000008316dc8c134c716b78",
            "key records of layout 1 page 1");
        row("title longer than the section", "54455854010104000700000009683105ef9e300005000000616263",
            "texts of layout 1 page 1 key 4");
        row("title of 4 GB", "5445585401010400070000002f679a35be7c1fe5ffffffff616263",
            "texts of layout 1 page 1 key 4");
        row("video without name", "5649444501010400010000001bdf05a56fee217601",
            "video of layout 1 page 1 key 4");
        row("bad action", "41435453010104000d000000c0f03227cb78fa7e5b7b22666964223a2235227d5d",
            "action list of layout 1 page 1 key 4");
        row("actions are no array", "41435453010104000200000043bfa6a368b108dc7b7d",
            "action list of layout 1 page 1 key 4");
    }

    void sectionsOfWrongContent() // with checksums that fit
    {
        QFETCH(QByteArray, section);
        QFETCH(QString, name);
        const QByteArray header = "564453435249505401001800010100000100000098d529ea";
        QCOMPARE(parseScript(QByteArray::fromHex(header + section)).damaged, QStringList{name});
    }

    void everyDamageIsNoticed()
    {
        const QByteArray whole = encodeScript(smallScript());
        QCOMPARE(parseScript(whole).damaged, QStringList());
        for (int i = 0; i < whole.size(); ++i) {
            for (const int change : {0x01, 0x80, 0xFF}) {
                QByteArray damaged = whole;
                damaged[i] = static_cast<char>(damaged.at(i) ^ change);
                QVERIFY2(!parseScript(damaged).damaged.isEmpty(), qPrintable(QString::number(i)));
            }
            QVERIFY2(!parseScript(whole.left(i)).damaged.isEmpty(), qPrintable(QString::number(i)));
        }
        QCOMPARE(parseScript(whole + '\0').damaged, QStringList{u("bytes behind the last section")});
    }

    void theRestOfADamagedScript()
    {
        QByteArray bytes = encodeScript(smallScript());
        bytes[bytes.indexOf("png")] = 'X';
        FunctionManager store;
        MultiActionStore actions = actionsHere();
        QVERIFY(!applyScriptBytes(bytes, store, actions));
        QCOMPARE(mpFixture->takeLines(),
                 QStringList{u("3 script: damaged: picture of layout 1 page 1 key 4")});
        QVERIFY(store.getKeys().isEmpty());

        const Script rest = parseScript(bytes);
        QVERIFY(applyScript(rest, store, actions)); // what is asked for in spite of it
        QCOMPARE(store.getTitleText({1, 1, 4}), u("ü"));
        QCOMPARE(testFileContent(store.getDefaultImage({1, 1, 4})), QByteArray("avi"));
        QVERIFY(store.getDefaultImage({1, 1, 4}).endsWith(u("/devConfig/video/1_1_4.avi")));
        QCOMPARE(actions.readActionsByKeyId(1, 1, 4), QVector<MultiAction>({{100, 5, {}}}));
    }

    void lostSectionsAreNumbered()
    {
        QByteArray bytes = encodeScript(smallScript());
        bytes[bytes.indexOf("FILE")] = 'X'; // the head: nobody knows where the next one begins
        const Script script = parseScript(bytes);
        QCOMPARE(script.damaged, QStringList{u("sections 4 to 6")});
        QCOMPARE(script.keys.value({1, 1, 4}).picture, QByteArray("png"));
    }

    void aConfigurationThereAndBack()
    {
        FunctionManager before;
        MultiActionStore actionsBefore = actionsHere();
        fillStore(before, actionsBefore);
        const QByteArray script = buildScript(before, actionsBefore);
        const auto records = recordsOf(before);
        const QByteArray own = testFileContent(before.getCustomImage({1, 1, 2}));
        const QByteArray foreign = testFileContent(before.getCustomImage({1, 1, 15}));
        QCOMPARE(records.size(), 4);

        cleanup();
        init(); // another data folder
        FunctionManager after;
        MultiActionStore actionsAfter = actionsHere();
        after.createKeyAttribute({1, 1, 9}, 5); // not in the script, and on a page that is
        after.createKeyAttribute({1, 2, 9}, 5); // on a page that is not
        QString error;
        QVERIFY(actionsAfter.writeActionsByKeyId(1, 1, 2, {{5, 0, {}}}, error));
        QVERIFY(actionsAfter.writeActionsByKeyId(1, 2, 9, {{6, 0, {}}}, error));
        QVERIFY(applyScriptBytes(script, after, actionsAfter));
        QVERIFY(after.getKeyAttribute({1, 2, 9}).has_value());
        after.deleteKeyAttribute(1, 2, 9);
        QCOMPARE(after.getKeys(), before.getKeys());
        QVERIFY(recordsOf(after) == records);
        QCOMPARE(testFileContent(after.getCustomImage({1, 1, 2})), own);
        QCOMPARE(testFileContent(after.getCustomImage({1, 1, 15})), foreign);
        QVERIFY(actionsAfter.readActionsByKeyId(1, 1, 2).isEmpty());
        QCOMPARE(actionsAfter.readActionsByKeyId(1, 2, 9), QVector<MultiAction>({{6, 0, {}}}));
        const QVector<MultiAction> list = {{3, 0, u("https://a.test")}, {100, 500, {}}};
        QCOMPARE(actionsAfter.readActionsByKeyId(2, 16, 3), list);
        QCOMPARE(buildScript(after, actionsAfter), script);
    }

    void picturesGoAsThePanelShowsThem()
    {
        FunctionManager store;
        MultiActionStore actions = actionsHere();
        fillStore(store, actions);
        const Script script = parseScript(buildScript(store, actions));
        QCOMPARE(script.layoutId, 1);
        QCOMPARE(script.pages.size(), 2);
        QCOMPARE(int(script.pages.at(1).pageId), 16);
        QCOMPARE(script.pages.at(1).records.at(0).content.toHex(), QByteArray("e0060000")); // Left Ctrl, C
        const ScriptKey own = script.keys.value({1, 1, 2});
        QCOMPARE(own.pictureFile, QByteArray()); // it has the panel's size already
        const ScriptKey photo = script.keys.value({1, 1, 15});
        QCOMPARE(QImage::fromData(photo.picture, "PNG").size(), QSize(90, 84));
        QVERIFY(photo.pictureFile.startsWith("BM"));
    }

    void whatHasNoPlaceIsNamed()
    {
        FunctionManager store;
        store.createKeyAttribute({300, 1, 1}, 5);
        store.createKeyAttribute({1, 1, 1}, 5);
        store.setCustomImage({1, 1, 1}, u("no such.png"));
        writeTestFile(QDir::currentPath() + u("/actions.json"), "{}");
        mpFixture->takeLines();
        const Script script = parseScript(buildScript(store, actionsHere()));
        const QStringList lines = mpFixture->takeCalmLines();
        QVERIFY(lines.contains(u("3 读取失败:缺少 keyInfo 数组")));
        QVERIFY(lines.contains(u("2 script: lid:300 pageid:1 kid:1 has no place in it")));
        QVERIFY(
            lines.contains(u("2 script: lid:1 pageid:1 kid:1 without [no such.png]: ") + missingFileText()));
        QCOMPARE(script.pages.size(), 1);
    }

    void hostileContentDoesNoHarm()
    {
        Script script = smallScript();
        script.pages[0].records[0].keyId = 16; // no such key
        script.keys.clear();
        KeyRecord good;
        good.layoutId = 1;
        good.pageId = 1;
        good.keyId = 1;
        script.pages[0].records.append(good);
        ScriptKey &key = script.keys[{1, 1, 1}];
        key.videoName = u("x.a/../../../evil");
        key.video = "avi";
        key.customImage = true;
        key.resource = u("/etc/hostname"); // no resource
        key.picture = "no picture";
        FunctionManager store;
        MultiActionStore actions = actionsHere();
        QVERIFY(!applyScriptBytes(encodeScript(script), store, actions));
        const QStringList lines = mpFixture->takeLines();
        QVERIFY(lines.contains(u("3 Error keyid Layoutid:1 Pageid:1,nKeyoutId=16 ")));
        QVERIFY(lines.contains(u("3 script: picture of lid:1 pageid:1 kid:1 cannot be decoded")));
        QCOMPARE(store.getKeys().size(), 1);
        QCOMPARE(store.getCustomImage({1, 1, 1}), QString());
        QCOMPARE(store.getDefaultImage({1, 1, 1}), QDir::currentPath() + u("/devConfig/video/1_1_1.video"));
    }
};

QTEST_GUILESS_MAIN(TestFilesScript)
#include "tst_files_script.moc"
