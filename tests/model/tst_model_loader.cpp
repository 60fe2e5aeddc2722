/// Pages of key records and pictures that the panel sends.
#include "model/functionmanager.h"
#include "model/picturefolder.h"
#include "storefixture.h"

#include <QtTest>

using namespace vorlinmodel;

namespace {

QByteArray hex(const char *text)
{
    return QByteArray::fromHex(text);
}

/// 272 bytes: a self-locking key with a title in 24 points, and a title and content of any length.
QByteArray record(char keyId, char fid, const QByteArray &title = {}, const QByteArray &content = {})
{
    QByteArray bytes(272, '\0');
    bytes[0] = 1;
    bytes[1] = 2;
    bytes[2] = keyId;
    bytes[5] = fid;
    bytes.replace(6, 3, hex("020100"));    // image effects, display mode, alignment
    bytes.replace(10, 4, hex("18FF8001")); // 24 points, red 255, green 128, blue 1
    bytes[14] = char(title.size());
    bytes.replace(15, title.size(), title);
    bytes[143] = char(content.size());
    bytes.replace(144, content.size(), content);
    return bytes;
}

QByteArray page(const QByteArray &records)
{
    return hex("0102") + records;
}

/// Layout 1, page 2, key, attribute id 9, u32 byte count, the picture.
QByteArray pictureMessage(char keyId, const QByteArray &file)
{
    return hex("0102") + keyId + hex("09 00000000") + file;
}

} // namespace

class LoaderTest : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        mpFixture = std::make_unique<StoreFixture>();
        mpStore = std::make_unique<FunctionManager>();
        mpStore->setRecordPause(0);
        mpStore->setDesktop(mDesktop);
        QVERIFY(mpStore->Init());
        mpFixture->takeLines();
    }

    void cleanup()
    {
        mpStore.reset();
        mpFixture.reset();
    }

    void pageLengths()
    {
        mpStore->setRecvTotalKeyCount(7);
        for (const int length : {0, 1, 273}) {
            QVERIFY(!load(page(record(1, 5)).left(length)));
            QVERIFY(mpFixture->takeLines().contains(u("3 config data length (%1) error").arg(length)));
        }
        QCOMPARE(mpStore->getReceivedCounts().total, 7); // a refused page changes nothing
        QVERIFY(load(page({})) == (key_id_t{1, 2, 0}));
        QCOMPARE(mpStore->getReceivedCounts().total, 0);
        QVERIFY(load(page(record(1, 5) + record(2, 5)) + QByteArray(271, 'x')) == (key_id_t{1, 2, 0}));
        QCOMPARE(mpStore->getReceivedCounts().total, 2);
        QCOMPARE(mpStore->getKeys().size(), 2);
    }

    void recordReplacesWhatTheStoreHad()
    {
        mpStore->createKeyAttribute(1, 2, 3, 5);
        mpStore->setTitle({1, 2, 3}, u("old"));
        mpStore->setCustomImage({1, 2, 3}, u("/old.png"));
        mpStore->createKeyAttribute(1, 2, 4, 6);
        load(page(record(3, 7)));
        const QStringList lines = mpFixture->takeLines();
        QVERIFY(lines.contains(u("1 application length:0x00000112(274)")));
        QVERIFY(
            lines.contains(u("1 set image effects lid:1 pageid:2 kid:3 mFId:7 strTitle[] strAppOrUrl[]")));
        QCOMPARE(mpStore->getAllAttribute({1, 2, 3}),
                 u("fid=7 displayImageType=1 defaultImage=:/icon/function_icon/Volume_down_90x84.png "
                   "customImage= imageEffects=2 displayMode=1 title= titleAlignment=0 titleFontSize=24 "
                   "titleColour=#ff8001 appOrUrl="));
        QCOMPARE(mpStore->getKeyAttribute({1, 2, 3})->titleColour,
                 QColor::fromRgba64(0xFFFF, 0x8080, 0x0101, 0xFFFF));
        QCOMPARE(mpStore->getKeyAttribute({1, 2, 4})->mFId, 6);
    }

    void titlesAndContents()
    {
        load(page(record(1, 5, hex("C4E3BAC3")) + record(2, 3, {}, "http://a/好") +
                  record(3, 2, {}, QByteArray("/a\0b", 4)) + record(4, 15, {}, hex("604F4F00")) +
                  record(5, 16, {}, hex("E0E1063A"))));
        QCOMPARE(mpStore->getTitleText({1, 2, 1}), u("你好"));
        QStringList contents;
        for (int kid = 1; kid <= 5; ++kid)
            contents << mpStore->getKeyAttribute({1, 2, kid})->strAppOrUrl;
        QCOMPARE(contents, (QStringList{QString(), u("http://a/好"), u("/a"), u("你O"),
                                        u("Left Ctrl#Left Shift#C#F1")}));
    }

    void keyIdsOutsideThePanelAreSkippedButCounted()
    {
        load(page(record(0, 5) + record(15, 5) + record(16, 5) + record('\xFF', 5)));
        QCOMPARE(mpStore->getKeys(), (QList<key_id_t>{{1, 2, 15}}));
        QCOMPARE(mpFixture->takeLines().filter(u("3 Error keyid")),
                 texts({"3 Error keyid Layoutid:1 Pageid:2,nKeyoutId=0 ",
                        "3 Error keyid Layoutid:1 Pageid:2,nKeyoutId=16 ",
                        "3 Error keyid Layoutid:1 Pageid:2,nKeyoutId=255 "}));
        QVERIFY(!takePicture(0, mRed) && !takePicture(15, mRed) && !takePicture(16, mRed));
        QVERIFY(takePicture('\xFF', mRed)); // one picture came for each of the four
        QCOMPARE(pictures(), QStringList{u("1_2_15.png")});
    }

    void onlyAsManyRecordsAsKeysArePaced()
    {
        mpStore->setRecordPause(20);
        QElapsedTimer watch;
        watch.start();
        load(page(record(1, 5).repeated(1500)));
        QVERIFY(watch.elapsed() >= 15 * 20 && watch.elapsed() < 15000); // each of them: 30 s
        QCOMPARE(mpStore->getReceivedCounts().total, 1500);
    }

    void picturesCompleteAPage()
    {
        load(page(record(3, 5) + record(4, 5)));
        mpFixture->takeLines();
        QVERIFY(!takePicture(3, mRed));
        QCOMPARE(mpFixture->takeCalmLines().mid(3),
                 (QStringList{u("1 -------------strPath=[%1]").arg(path()),
                              u("1 set custom image lid:1 pageid:2 kid:3 image:%1").arg(path()),
                              u("1 mRecvTotalKeyCount[2]-mRecvCurKeyCount[1]")}));
        QCOMPARE(mpStore->getDisplayImage({1, 2, 3}), path());
        QVERIFY(takePicture(4, mRed));
        QVERIFY(!takePicture(4, mRed)); // one more than were announced
    }

    void secondPictureOfAKeyReplacesTheFirst()
    {
        load(page(record(3, 5)));
        QVERIFY(takePicture(3, mRed));
        QFile::setPermissions(path(), QFile::ReadOwner);
        QVERIFY(!takePicture(3, picture({4, 4}, Qt::blue, "BMP")));
        QCOMPARE(pictures(), QStringList{u("1_2_3.png")});
        const QImage image(path(), "PNG");
        QCOMPARE(image.pixelColor(0, 0), QColor(Qt::blue));
    }

    void brokenPicturesAreCountedAndChangeNothing()
    {
        load(page(record(3, 5)));
        takePicture(3, mRed);
        const QByteArray hugePng =
            hex("89504E470D0A1A0A 0000000D49484452 0000FFFF0000FFFF 080200000039674E07");
        const QByteArray drawing = "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>";
        for (const QByteArray &payload :
             {hex("01020309 00"), hex("01020309 00000000"), pictureMessage(3, mRed.left(mRed.size() / 2)),
              pictureMessage(3, hugePng), pictureMessage(3, drawing)}) {
            mpStore->setRecvTotalKeyCount(1);
            mpFixture->takeLines();
            QVERIFY(mpStore->saveKeyAttrByDevconfig(data(payload), payload.size()));
            QVERIFY(mpFixture->takeLines().contains(mNotSaved.arg(path())));
            QCOMPARE(QImage(path()).pixelColor(0, 0), QColor(Qt::red));
            QCOMPARE(mpStore->getCustomImage({1, 2, 3}), path());
        }
    }

#ifndef Q_OS_WIN
    void pictureOnAFullDiskKeepsTheOldOne()
    {
        takePicture(3, mRed);
        const QByteArray blue = picture({4, 4}, Qt::blue);
        {
            const FullDisk fullDisk;
            takePicture(3, blue);
        }
        QVERIFY(mpFixture->takeLines().contains(mNotSaved.arg(path())));
        QCOMPARE(QImage(path()).pixelColor(0, 0), QColor(Qt::red));
        QCOMPARE(pictures(), QStringList{u("1_2_3.png")});
    }
#endif

    void otherAttributes()
    {
        const QByteArray tooShort = hex("01020309");
        QVERIFY(!mpStore->saveKeyAttrByDevconfig(data(tooShort), tooShort.size()));
        QVERIFY(mpFixture->takeLines().contains(u("3 config data length (4) error")));
        load(page(record(3, 5)));
        const QByteArray title = hex("01020306 0141");
        QVERIFY(!mpStore->saveKeyAttrByDevconfig(data(title), title.size()));
        QCOMPARE(mpStore->getReceivedCounts().current, 0);
        mpStore->setRecvTotalKeyCount(0);
        QVERIFY(mpStore->saveKeyAttrByDevconfig(data(title), title.size())); // nothing is missing
    }

    void bytesOfAnyKindAreSurvived()
    {
        QRandomGenerator random(20261121);
        for (int i = 0; i < 2000; ++i) {
            QByteArray bytes(int(random.bounded(900)), '\0');
            for (char &byte : bytes)
                byte = char(random.bounded(256));
            if (bytes.size() > 3)
                bytes[3] = char(random.bounded(20)); // as an attribute: mostly one that is looked into
            load(bytes);
            mpStore->saveKeyAttrByDevconfig(data(bytes), bytes.size());
        }
        for (const key_id_t &key : mpStore->getKeys())
            QVERIFY(key.kid >= 1 && key.kid <= 15);
        QCOMPARE(pictures(), QStringList());
    }

    void pictureFolderIsEmptiedWholeOrByPage()
    {
        for (const char *name : {"1_2_3.png", "1_2_15.png", "11_2_3.png", "1_22_3.png", "imageUrl.ini"})
            QVERIFY(QFile(mpFixture->path("devConfig/image/") + u(name)).open(QIODevice::WriteOnly));
        removePagePictures(1, 2);
        QCOMPARE(pictures(), texts({"11_2_3.png", "1_22_3.png", "imageUrl.ini"}));
        QVERIFY(QDir().mkpath(mpFixture->path("devConfig/image/sub/folder")));
        QVERIFY(emptyPictureFolder());
        QCOMPARE(pictures(), QStringList());
    }

private:
    std::optional<key_id_t> load(const QByteArray &payload)
    {
        return mpStore->saveAllKeyAttrByDevconfig(data(payload), payload.size());
    }

    bool takePicture(char keyId, const QByteArray &file)
    {
        const QByteArray payload = pictureMessage(keyId, file);
        return mpStore->saveKeyAttrByDevconfig(data(payload), payload.size());
    }

    QStringList pictures() const
    {
        return QDir(mpFixture->path("devConfig/image"))
            .entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name);
    }

    QString path() const
    {
        return mpFixture->path("devConfig/image/1_2_3.png");
    }

    const QString mNotSaved = u("3 ----save -image failed[%1]-------");
    const QByteArray mRed = picture({4, 4}, Qt::red);
    RecordingDesktop mDesktop;
    std::unique_ptr<StoreFixture> mpFixture;
    std::unique_ptr<FunctionManager> mpStore;
};

QTEST_GUILESS_MAIN(LoaderTest)
#include "tst_model_loader.moc"
