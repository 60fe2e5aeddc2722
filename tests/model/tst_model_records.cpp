/// Key attribute records: create, set, read, show, delete, and the lines that they log.
#include "model/functionmanager.h"
#include "storefixture.h"

#include <QtTest>

using namespace vorlinmodel;

namespace {

constexpr key_id_t Key{1, 2, 3};

using Change = std::function<bool(FunctionManager &)>;

} // namespace

Q_DECLARE_METATYPE(Change)

class RecordsTest : public QObject
{
    Q_OBJECT
private slots:
    void init() { mpFixture = std::make_unique<StoreFixture>(); }
    void cleanup() { mpFixture.reset(); }

    void newRecordHasDefaults()
    {
        FunctionManager store;
        QVERIFY(store.createKeyAttribute(1, 2, 3, 5));
        QCOMPARE(mpFixture->takeLines(),
                 (QStringList{u("1 -createKeyAttr-lid:1 pageid:2 kid:3 fid:5"),
                              u("1 new key_atttribute_t ok-lid:1 pageid:2 kid:3 fid:5")}));
        const auto record = store.getKeyAttribute(Key);
        QVERIFY(record);
        QCOMPARE(record->mFId, 5);
        QCOMPARE(record->nDisplayImageType, 0);
        QCOMPARE(record->defaultImage, u(":/icon/function_icon/Play_Stop_90x84.png"));
        QVERIFY(record->customImage.isEmpty() && record->strTitle.isEmpty() && record->strAppOrUrl.isEmpty());
        QCOMPARE(record->imageEffects + record->nDisplaymode + record->titleAlignment, 0);
        QCOMPARE(record->titleFontSize, 16);
        QCOMPARE(record->titleColour, QColor::fromRgba64(0, 0xFFFF, 0, 0xFFFF));
    }

    void existingKeyIsRefusedAndKept()
    {
        FunctionManager store;
        store.createKeyAttribute(Key, 5);
        store.setTitle(Key, u("kept"));
        mpFixture->takeLines();
        QVERIFY(!store.createKeyAttribute(Key, 6));
        QCOMPARE(mpFixture->takeLines(),
                 (QStringList{u("1 -createKeyAttr-lid:1 pageid:2 kid:3 fid:6"),
                              u("2 lid:1 pageid:2 kid:3  fid:6 keyattribute exist")}));
        QCOMPARE(store.getKeyAttribute(Key)->mFId, 5);
        QCOMPARE(store.getKeyAttribute(Key)->strTitle, u("kept"));
    }

    void addReplacesInPlace()
    {
        FunctionManager store;
        QVERIFY(store.addKeyAttribute(Key, 5));
        store.setTitle(Key, u("old"));
        store.setCustomImage(Key, u("/old.png"));
        QVERIFY(store.addKeyAttribute(Key, 16));
        const auto record = store.getKeyAttribute(Key);
        QCOMPARE(record->mFId, 16);
        QCOMPARE(record->defaultImage, u(":/icon/shortcut_icon/Hot_Key_Compund_Key_90x84.png"));
        QCOMPARE(record->nDisplayImageType, 0);
        QVERIFY(record->strTitle.isEmpty() && record->customImage.isEmpty());
        QCOMPARE(store.getKeys(), QList<key_id_t>{Key});
    }

    void settersAssignAndLog_data()
    {
        QTest::addColumn<Change>("change");
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("dumped"); // the field as it stands afterwards

        const auto row = [](const char *name, const Change &change, const char *line, const char *dumped) {
            QTest::newRow(name) << change << u(line) << u(dumped);
        };
        row(
            "display mode", [](auto &s) { return s.setDisplayMode(Key, 1); },
            "set display mode lid:1 pageid:2 kid:3 value:1", "displayMode=1");
        row(
            "image effects", [](auto &s) { return s.setImageEffects(Key, 3); },
            "set image effects lid:1 pageid:2 kid:3 value:3", "imageEffects=3");
        row(
            "alignment", [](auto &s) { return s.setTitleAlignment(Key, 2); },
            "set title align mode lid:1 pageid:2 kid:3 value:2", "titleAlignment=2");
        row(
            "font size", [](auto &s) { return s.setTitleFontSize(Key, 24); },
            "set title font size lid:1 pageid:2 kid:3 value:24", "titleFontSize=24");
        row(
            "colour", [](auto &s) { return s.setTitleFontColor(Key, QColor(255, 128, 1)); },
            "set title font color lid:1 pageid:2 kid:3 r:255 g:128 b:1", "titleColour=#ff8001");
        row(
            "title with a percent sign", [](auto &s) { return s.setTitle(Key, u("50 %1 好")); },
            "set title lid:1 pageid:2 kid:3 image:50 %1 好", "title=50 %1 好");
        row(
            "address", [](auto &s) { return s.setUrlOrPath(Key, u("/tmp/a b")); },
            "set urlorpath lid:1 pageid:2 kid:3 UrlOrPath:/tmp/a b", "appOrUrl=/tmp/a b");
        row(
            "combination",
            [](auto &s) {
                return s.setKeyCombination(Key, {u("Left Ctrl"), u("C"), {}, {}});
            },
            "set urlorpath lid:1 pageid:2 kid:3 keycombination:Left Ctrl#C##", "appOrUrl=Left Ctrl#C##");
        row(
            "image", [](auto &s) { return s.setCustomImage(Key, u("/a.png")); },
            "set custom image lid:1 pageid:2 kid:3 image:/a.png", "customImage=/a.png");
        row(
            "video", [](auto &s) { return s.setCustomVideo(Key, u("/a.mp4")); },
            "set custom video lid:1 pageid:2 kid:3 image:/a.mp4", "defaultImage=/a.mp4");
    }

    void settersAssignAndLog()
    {
        QFETCH(Change, change);
        QFETCH(QString, line);
        QFETCH(QString, dumped);
        FunctionManager store;
        QVERIFY(change(store)); // an unknown key: nothing happens, and that is no failure
        QCOMPARE(mpFixture->takeLines(), QStringList());
        QVERIFY(store.getKeys().isEmpty());

        store.createKeyAttribute(Key, 5);
        mpFixture->takeLines();
        QVERIFY(change(store));
        QCOMPARE(mpFixture->takeLines(), QStringList{u("1 ") + line});
        const QString dump = store.getAllAttribute(Key);
        QVERIFY2(dump.contains(dumped), qUtf8Printable(dump));
        QCOMPARE(mpFixture->takeLines(),
                 (QStringList{u("1 FunctionManager::getAllAttribute lid:1 pageid:2 kid:3"),
                              u("1 -----pKeyAttr:") + dump}));
    }

    void onlyTheImageChangesWhatIsShown()
    {
        FunctionManager store;
        store.createKeyAttribute(Key, 17);
        store.setCustomVideo(Key, u("/a.mp4"));
        QCOMPARE(store.getKeyAttribute(Key)->nDisplayImageType, 0);
        QCOMPARE(store.getDisplayImage(Key), u("/a.mp4"));
        store.setCustomImage(Key, u("/a.png"));
        QCOMPARE(store.getKeyAttribute(Key)->nDisplayImageType, 1);
        QCOMPARE(store.getDisplayImage(Key), u("/a.png"));
    }

    void gettersLogEvenForUnknownKeys()
    {
        FunctionManager store;
        QVERIFY(store.getCustomImage(Key).isEmpty() && store.getDefaultImage(Key).isEmpty() &&
                store.getTitleText(Key).isEmpty() && store.getAllAttribute(Key).isEmpty());
        QCOMPARE(mpFixture->takeLines(),
                 (QStringList{u("1 FunctionManager::getCustomImage lid:1 pageid:2 kid:3"),
                              u("1 FunctionManager::getDefaultImage lid:1 pageid:2 kid:3"),
                              u("1 FunctionManager::getTitleText lid:1 pageid:2 kid:3"),
                              u("1 FunctionManager::getAllAttribute lid:1 pageid:2 kid:3")}));
        QVERIFY(store.getDisplayImage(Key).isEmpty());
    }

    void emptyContentIcons_data()
    {
        QTest::addColumn<int>("fid");
        QTest::addColumn<QString>("image");
        QTest::addColumn<QString>("shown"); // while no configuration is read

        QTest::newRow("text") << 15 << u(":/icon/shortcut_icon/text_output_empty.png")
                              << u(":/icon/shortcut_icon/Hot_Key_90x84.png");
        QTest::newRow("combination") << 16 << u(":/icon/shortcut_icon/key_combination_empty.png")
                                     << u(":/icon/shortcut_icon/Hot_Key_Compund_Key_90x84.png");
        QTest::newRow("child page") << 18 << u(":/icon/child_page_empty.png")
                                    << u(":/icon/Hot_Key_Children_Key.png");
        QTest::newRow("actions") << 4 << u(":/icon/function_icon/multi_act_empty.png")
                                 << u(":/icon/function_icon/Multi_act_90x84.png");
        QTest::newRow("icon of another function")
            << 15 << u(":/icon/child_page_empty.png") << u(":/icon/child_page_empty.png");
        QTest::newRow("function without one")
            << 5 << u(":/icon/child_page_empty.png") << u(":/icon/child_page_empty.png");
        QTest::newRow("compared whole")
            << 18 << u("x:/icon/child_page_empty.png") << u("x:/icon/child_page_empty.png");
    }

    void emptyContentIcons()
    {
        QFETCH(int, fid);
        QFETCH(QString, image);
        QFETCH(QString, shown);
        FunctionManager store;
        store.createKeyAttribute(Key, fid);
        store.setCustomVideo(Key, image); // into the default image, which the rule covers too
        QCOMPARE(store.getDisplayImage(Key), shown);
        store.setCustomImage(Key, image);
        mpFixture->takeLines();
        QCOMPARE(store.getDisplayImage(Key), shown);
        QCOMPARE(mpFixture->takeLines(),
                 (QStringList{u("4 --2--strImage=[") + image + u("]"),
                              u("1 nDisplayImageType[1]/strImage=[") + shown + u("]")}));
        store.setModeFlag(true);
        QCOMPARE(store.getDisplayImage(Key), image);
    }

    void deleting()
    {
        FunctionManager store;
        store.deleteKeyAttribute(Key);
        QCOMPARE(mpFixture->takeLines(), QStringList{u("1 mKeyAttributeMap size=0")});
        store.createKeyAttribute(Key, 5);
        mpFixture->takeLines();
        store.deleteKeyAttribute(1, 2, 4); // unknown, in a store that is not empty: silent
        QCOMPARE(mpFixture->takeLines(), QStringList());
        store.deleteKeyAttribute(1, 2, 3);
        QCOMPARE(mpFixture->takeLines(), QStringList{u("1 ------------delete key_attr[1][2][3]")});
        QVERIFY(!store.getKeyAttribute(Key));
    }

    void deletingAPageTakesItsFifteenKeys()
    {
        FunctionManager store;
        const QList<key_id_t> others = {{1, 1, 15}, {1, 2, 0}, {1, 2, 16}, {1, 3, 1}, {2, 2, 1}};
        for (const key_id_t &key : others)
            store.createKeyAttribute(key, 5);
        for (int kid = 1; kid <= 15; ++kid)
            store.createKeyAttribute(1, 2, kid, 5);
        QCOMPARE(store.getKeys().size(), 20);
        store.deletePageKeys(1, 2);
        QCOMPARE(store.getKeys(), others);
    }

    void initMakesFolderAndActionFileOnce()
    {
        FunctionManager store;
        QVERIFY(store.Init());
        QVERIFY(QDir(mpFixture->path("devConfig/image")).exists());
        QFile file(mpFixture->path("devConfig/multiActions.json"));
        QVERIFY(file.exists() && file.size() == 0);
        QVERIFY(mpFixture->takeLines().contains(u("1 文件创建成功")));

        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("{}") == 2);
        file.close();
        QVERIFY(store.Init());
        QCOMPARE(file.size(), 2);
        QCOMPARE(mpFixture->takeLines(), QStringList());
    }

    void initFailsWhereNothingCanBeMade()
    {
        QFile obstacle(mpFixture->path("devConfig")); // a file where the folder should be
        QVERIFY(obstacle.open(QIODevice::WriteOnly));
        QVERIFY(!FunctionManager().Init());
    }

private:
    std::unique_ptr<StoreFixture> mpFixture;
};

QTEST_GUILESS_MAIN(RecordsTest)
#include "tst_model_records.moc"
