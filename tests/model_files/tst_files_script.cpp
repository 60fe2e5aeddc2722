/// "CD.bin": whole configurations there and back, and damage that is noticed and named.
#include "base/paths.h"
#include "crc32.h"
#include "fileutil.h"
#include "model/functionids.h"
#include "model/functionmanager.h"
#include "model/scriptcontainer.h"
#include "model/scriptformat.h"
#include "storefixture.h"

#include <QtTest>
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
        script.pages = {
            {1, 1, {{.layoutId = 1, .pageId = 1, .keyId = 4, .functionId = 3, .title = "T", .content = {}}}}};
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
        const key_id_t shown{1, 1, 2};
        store.createKeyAttribute(shown, OPEN_WEB_FID);
        store.setTitle(shown, u("标题"));
        store.setTitleAlignment(shown, AlignTop);
        store.setTitleFontSize(shown, 20);
        store.setTitleFontColor(shown, QColor(1, 2, 3));
        store.setImageEffects(shown, Marquee);
        store.setDisplayMode(shown, SelfLocking);
        store.setUrlOrPath(shown, u("https://例.test/") + QString(300, QLatin1Char('a')));
        setPicture(store, shown, picture({90, 84}, Qt::red));

        const key_id_t photo{1, 1, 15};
        store.createKeyAttribute(photo, TEXT_OUTPUT_FID);
        store.setTitle(photo, u("émoji 😀"));
        store.setUrlOrPath(photo, u("text\nof two lines"));
        setPicture(store, photo, picture({300, 200}, Qt::blue, "BMP"));

        const key_id_t combination{2, 16, 1};
        store.createKeyAttribute(combination, KEY_COMBINATION_FID);
        store.setKeyCombination(combination, {u("Left Ctrl"), u("C")});
        store.setCustomImage(combination, u(":/icon/of the program.png"));
        store.createKeyAttribute({2, 16, 3}, MULTIPLE_ACTIONS_FID);
        QString error;
        actions.writeActionsByKeyId(2, 16, 3, {{3, 0, u("https://a.test")}, {100, 500, {}}}, error);
    }

    static void setPicture(FunctionManager &store, const key_id_t &key, const QByteArray &file)
    {
        const QString path = vorlindesk::Paths::keyPicture(key.lid, key.pageid, key.kid);
        writeTestFile(path, file);
        store.setCustomImage(key, path);
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
        QVERIFY(scriptPosition(newer) == (key_id_t{1, 2, 0}));
    }

    void sectionsOfWrongContent() // with checksums that fit
    {
        const auto damaged = [](const char *section) {
            const QByteArray header = "564453435249505401001800010100000100000098d529ea";
            return parseScript(QByteArray::fromHex(header + section)).damaged;
        };
        QCOMPARE(damaged("5041474501010000010000008316dc8c134c716b78"), // part of a record
                 QStringList{u("key records of layout 1 page 1")});
        QCOMPARE(damaged("5445585401010400070000002f679a35be7c1fe5ffffffff616263"), // title of 4 GB
                 QStringList{u("texts of layout 1 page 1 key 4")});
        QCOMPARE(damaged("5649444501010400010000001bdf05a56fee217601"), // no name
                 QStringList{u("video of layout 1 page 1 key 4")});
        QCOMPARE(damaged("41435453010104000d000000c0f03227cb78fa7e5b7b22666964223a2235227d5d"), // "fid":"5"
                 QStringList{u("action list of layout 1 page 1 key 4")});
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

        QVERIFY(applyScript(parseScript(bytes), store, actions)); // what is asked for in spite of it
        QCOMPARE(store.getTitleText({1, 1, 4}), u("ü"));
        QCOMPARE(testFileContent(store.getDefaultImage({1, 1, 4})), QByteArray("avi"));
        QVERIFY(store.getDefaultImage({1, 1, 4}).endsWith(
            u("/devConfig/video/8f920f22884d6fea9df883843c4a8095a2e5ac6f.avi")));
        QCOMPARE(actions.readActionsByKeyId(1, 1, 4), QVector<MultiAction>({{100, 5, {}}}));

        bytes = encodeScript(smallScript());
        bytes[bytes.indexOf("FILE")] = 'X'; // a head: nobody knows where the next one begins
        QCOMPARE(parseScript(bytes).damaged, QStringList{u("sections 4 to 6")});
        QCOMPARE(parseScript(bytes).keys.value({1, 1, 4}).picture, QByteArray("png"));
    }

    void aConfigurationThereAndBack()
    {
        FunctionManager before;
        MultiActionStore actionsBefore = actionsHere();
        fillStore(before, actionsBefore);
        const QByteArray script = buildScript(before, actionsBefore);
        const Script content = parseScript(script);
        QCOMPARE(content.pages.value(1).records.value(0).content.toHex(),
                 QByteArray("e0060000"));                             // Left Ctrl, C
        QVERIFY(content.keys.value({1, 1, 2}).pictureFile.isEmpty()); // it has the panel's size already
        const ScriptKey photo = content.keys.value({1, 1, 15});
        QCOMPARE(QImage::fromData(photo.picture, "PNG").size(), QSize(90, 84));
        QVERIFY(photo.pictureFile.startsWith("BM"));
        const auto records = recordsOf(before);
        const QByteArray own = testFileContent(before.getCustomImage({1, 1, 2}));
        const QByteArray foreign = testFileContent(before.getCustomImage({1, 1, 15}));

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
        QVERIFY(after.getKeyAttribute({1, 2, 9}));
        after.deleteKeyAttribute(1, 2, 9);
        QCOMPARE(after.getKeys(), before.getKeys());
        QVERIFY(recordsOf(after) == records);
        QCOMPARE(testFileContent(after.getCustomImage({1, 1, 2})), own);
        QCOMPARE(testFileContent(after.getCustomImage({1, 1, 15})), foreign);
        QVERIFY(actionsAfter.readActionsByKeyId(1, 1, 2).isEmpty());
        QCOMPARE(actionsAfter.readActionsByKeyId(1, 2, 9), QVector<MultiAction>({{6, 0, {}}}));
        QCOMPARE(actionsAfter.readActionsByKeyId(2, 16, 3),
                 QVector<MultiAction>({{3, 0, u("https://a.test")}, {100, 500, {}}}));
        QCOMPARE(buildScript(after, actionsAfter), script);
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
        script.pages[0].records.append(script.pages[0].records[0]);
        script.pages[0].records[1].keyId = 1;
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
        QCOMPARE(store.getDefaultImage({1, 1, 1}),
                 QDir::currentPath() + u("/devConfig/video/8f920f22884d6fea9df883843c4a8095a2e5ac6f.video"));
    }
};

QTEST_GUILESS_MAIN(TestFilesScript)
#include "tst_files_script.moc"
