/// Key attribute records: create, set, read, show, delete, and the lines that they log.
#include "model/functionmanager.h"
#include "storefixture.h"
#include "support/table.h"

using namespace vorlinmodel;

namespace {
constexpr key_id_t Key{1, 2, 3};
}

class RecordsTest : public QObject
{
    Q_OBJECT
    using IconsTable = Table<int, QString, QString>;

private slots:
    void init() { mpFixture = std::make_unique<StoreFixture>(); }
    void cleanup() { mpFixture.reset(); }

    void newRecordHasDefaultsAndIsKept()
    {
        FunctionManager store;
        QVERIFY(store.createKeyAttribute(1, 2, 3, 5));
        QVERIFY(!store.createKeyAttribute(Key, 6));
        QCOMPARE(mpFixture->takeLines(), texts({"1 -createKeyAttr-lid:1 pageid:2 kid:3 fid:5",
                                                "1 new key_atttribute_t ok-lid:1 pageid:2 kid:3 fid:5",
                                                "1 -createKeyAttr-lid:1 pageid:2 kid:3 fid:6",
                                                "2 lid:1 pageid:2 kid:3  fid:6 keyattribute exist"}));
        QCOMPARE(store.getAllAttribute(Key),
                 u("fid=5 displayImageType=0 defaultImage=:/icon/function_icon/Play_Stop_90x84.png "
                   "customImage= imageEffects=0 displayMode=0 title= titleAlignment=0 titleFontSize=16 "
                   "titleColour=#00ff00 appOrUrl="));
    }

    void settersAssignAndLog()
    {
        FunctionManager store;
        const auto setAll = [&store] {
            return store.setDisplayMode(Key, 1) && store.setImageEffects(Key, 3) &&
                   store.setTitleAlignment(Key, 2) && store.setTitleFontSize(Key, 24) &&
                   store.setTitleFontColor(Key, QColor(255, 128, 1)) && store.setTitle(Key, u("50 %1 好")) &&
                   store.setUrlOrPath(Key, u("/tmp/a b")) &&
                   store.setKeyCombination(Key, {u("Left Ctrl"), u("C"), {}, {}}) &&
                   store.setCustomImage(Key, u("/a.png")) && store.setCustomVideo(Key, u("/a.mp4"));
        };
        QVERIFY(setAll()); // an unknown key: nothing happens, and that is no failure
        QCOMPARE(mpFixture->takeLines(), QStringList());
        QVERIFY(store.getKeys().isEmpty() && store.getDisplayImage(Key).isEmpty());

        store.createKeyAttribute(Key, 5);
        mpFixture->takeLines();
        QVERIFY(setAll());
        const QStringList lines = mpFixture->takeLines();
        QCOMPARE(lines.size(), 10);
        QCOMPARE(lines.at(5), u("1 set title lid:1 pageid:2 kid:3 image:50 %1 好"));
        QCOMPARE(lines.at(7), u("1 set urlorpath lid:1 pageid:2 kid:3 keycombination:Left Ctrl#C##"));
        QCOMPARE(store.getAllAttribute(Key),
                 u("fid=5 displayImageType=1 defaultImage=/a.mp4 customImage=/a.png imageEffects=3 "
                   "displayMode=1 title=50 %1 好 titleAlignment=2 titleFontSize=24 titleColour=#ff8001 "
                   "appOrUrl=Left Ctrl#C##"));
    }

    void emptyContentIcons_data()
    {
        // shown: while no configuration is read
        const IconsTable row;
        const QString childPage = u(":/icon/child_page_empty.png");
        row("text", 15, u(":/icon/shortcut_icon/text_output_empty.png"),
            u(":/icon/shortcut_icon/Hot_Key_90x84.png"));
        row("child page", 18, childPage, u(":/icon/Hot_Key_Children_Key.png"));
        row("icon of another function", 15, childPage, childPage);
        row("compared whole", 18, u("x") + childPage, u("x") + childPage);
    }

    void emptyContentIcons()
    {
        const auto [fid, image, shown] = IconsTable::current();
        FunctionManager store;
        store.createKeyAttribute(Key, fid);
        store.setCustomVideo(Key, image); // into the default image, which the rule covers too
        QCOMPARE(store.getDisplayImage(Key), shown);
        store.setCustomImage(Key, image);
        QCOMPARE(store.getDisplayImage(Key), shown);
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
        store.deletePageKeys(1, 2);
        QCOMPARE(store.getKeys(), others);
    }

    void initMakesFolderAndActionFileOnce()
    {
        QVERIFY(FunctionManager().Init());
        QVERIFY(QDir(mpFixture->path("devConfig/image")).exists());
        QFile file(mpFixture->path("devConfig/multiActions.json"));
        QVERIFY(file.exists() && file.size() == 0);
        QVERIFY(mpFixture->takeLines().contains(u("1 文件创建成功")));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("{}") == 2);
        file.close();
        QVERIFY(FunctionManager().Init());
        QCOMPARE(file.size(), 2);
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
