/// "imageUrl.ini": the records survive a restart, and the pictures with them.
#include "fileutil.h"
#include "model/functionids.h"
#include "model/functionmanager.h"
#include "model/imageurlfile.h"
#include "storefixture.h"

#include <QtTest>
#include <memory>

using namespace vorlinmodel;

class TestFilesImageUrl : public QObject
{
    Q_OBJECT

    std::unique_ptr<StoreFixture> mpFixture;

    QString ini() const { return mpFixture->path("devConfig/image/imageUrl.ini"); }
    QString image(const char *name) const { return mpFixture->path("devConfig/image/") + u(name); }

private slots:
    void init() { mpFixture = std::make_unique<StoreFixture>(); }
    void cleanup() { mpFixture.reset(); }

    void everyFieldSurvives()
    {
        FunctionManager before;
        int kid = 0;
        for (const char *text : {"", "播放 / 暂停", "😀", "a=b;c,d [e] #f %20 \"g\"", "@Invalid()",
                                 "  one\r\ntwo\t\\n  ", "Left Ctrl#C##"}) {
            const key_id_t key{1, 1, ++kid};
            before.createKeyAttribute(key, TEXT_OUTPUT_FID);
            before.setTitle(key, u(text));
            before.setUrlOrPath(key, u(text));
        }
        const key_id_t key{2, 16, 15};
        before.createKeyAttribute(key, VIDEO_FID);
        before.setImageEffects(key, Marquee);
        before.setDisplayMode(key, SelfLocking);
        before.setTitleAlignment(key, AlignTop);
        before.setTitleFontSize(key, 24);
        before.setTitleFontColor(key, QColor(10, 200, 0));
        before.setCustomImage(key, u(":/icon/of the program.png"));
        before.setCustomVideo(key, u("/films/a b.avi"));
        QVERIFY(saveAllKeyData(before));
        FunctionManager after;
        QVERIFY(loadAllKeyData(after));
        QCOMPARE(after.getKeys(), before.getKeys());
        for (const key_id_t &saved : before.getKeys())
            QVERIFY2(after.getKeyAttribute(saved) == before.getKeyAttribute(saved),
                     qUtf8Printable(after.getAllAttribute(saved)));
        after.deleteKeyAttribute(key);
        QVERIFY(saveAllKeyData(after));
        QVERIFY(!testFileContent(ini()).contains("2_16_15")); // removed keys leave the file
    }

    void picturesMoveUnderTheNamesOfTheirKeys()
    {
        const QByteArray red = picture({10, 10}, Qt::red);
        const QByteArray blue = picture({10, 10}, Qt::blue);
        QVERIFY(writeTestFile(image("1_1_1.png"), red));
        QVERIFY(writeTestFile(image("1_1_2.png"), blue));
        QVERIFY(writeTestFile(mpFixture->path("photo.jpg"), picture({10, 10}, Qt::green, "JPG")));
        FunctionManager store;
        for (int key = 1; key <= 5; ++key)
            store.createKeyAttribute(1, 1, key, OPEN_WEB_FID);
        store.setCustomImage({1, 1, 1}, image("1_1_2.png")); // two keys have changed places
        store.setCustomImage({1, 1, 2}, image("1_1_1.png"));
        store.setCustomImage({1, 1, 3}, mpFixture->path("photo.jpg"));
        QVERIFY(writeTestFile(mpFixture->path("5000.jpg"), picture({5000, 10}, Qt::green, "JPG")));
        QVERIFY(writeTestFile(mpFixture->path("5000.png"), picture({10, 5000}, Qt::green)));
        store.setCustomImage({1, 1, 4}, mpFixture->path("5000.jpg"));
        store.setCustomImage({1, 1, 5}, mpFixture->path("5000.png"));
        QVERIFY(saveAllKeyData(store));
        QCOMPARE(testFileContent(image("1_1_1.png")), blue);
        QCOMPARE(testFileContent(image("1_1_2.png")), red);
        QCOMPARE(QImage(image("1_1_3.png"), "PNG").size(), QSize(10, 10));
        QCOMPARE(QImage(image("1_1_4.png"), "PNG").size(), QSize(1024, 2));
        QCOMPARE(QImage(image("1_1_5.png"), "PNG").size(), QSize(2, 1024));
        QCOMPARE(store.getCustomImage({1, 1, 3}), image("1_1_3.png"));
        // By name alone, so that the folder can move.
        QVERIFY(testFileContent(ini()).contains("customImage=1_1_2.png"));
        FunctionManager after;
        QVERIFY(loadAllKeyData(after));
        QCOMPARE(after.getCustomImage({1, 1, 2}), image("1_1_2.png"));
    }

    void aMissingPictureStopsNothing()
    {
        const QString missing = mpFixture->path("no such.png");
        FunctionManager store;
        store.createKeyAttribute(1, 1, 1, OPEN_WEB_FID);
        store.setCustomImage({1, 1, 1}, missing);
        store.createKeyAttribute(1, 1, 2, OPEN_WEB_FID);
        mpFixture->takeLines();
        QVERIFY(!saveAllKeyData(store));
        QVERIFY(mpFixture->takeLines().contains(u("3 imageUrl.ini: lid:1 pageid:1 kid:1 picture [") +
                                                missing + u("] not read: ") + missingFileText()));
        FunctionManager after;
        QVERIFY(loadAllKeyData(after));
        QCOMPARE(after.getCustomImage({1, 1, 1}), missing);
        QCOMPARE(after.getKeys().size(), 2);
    }

    void loadingKeepsWhatIsThere()
    {
        FunctionManager fresh;
        QVERIFY(loadAllKeyData(fresh)); // no file yet
        QVERIFY(fresh.getKeys().isEmpty());
        QVERIFY(writeTestFile(ini(), "[1_1_1]\nfid=3\n[1_1_2]\nfid=3\n[1_1_16]\nfid=3\n[other]\nfid=3\n"
                                     "[99999999999_1_1]\nfid=3\n"));
        FunctionManager store;
        store.createKeyAttribute(1, 1, 1, 5);
        mpFixture->takeLines();
        QVERIFY(loadAllKeyData(store));
        QCOMPARE(store.getKeyAttribute({1, 1, 1})->mFId, 5);
        QCOMPARE(store.getKeyAttribute({1, 1, 2})->mFId, 3);
        QCOMPARE(store.getKeys().size(), 2);
        const QStringList lines = mpFixture->takeLines();
        for (const char *group : {"1_1_16", "other", "99999999999_1_1"})
            QVERIFY(lines.contains(u("2 imageUrl.ini: group [") + u(group) + u("] names no key")));
    }

    void aFolderThatCannotBeWritten()
    {
        QVERIFY(writeTestFile(mpFixture->path("devConfig/image"), "a file in the way"));
        FunctionManager store;
        store.createKeyAttribute(1, 1, 1, 5);
        QVERIFY(!saveAllKeyData(store));
    }
};

QTEST_GUILESS_MAIN(TestFilesImageUrl)
#include "tst_files_imageurl.moc"
