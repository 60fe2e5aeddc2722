/// Pages of key records and pictures that the panel sends.
#include "model/functionmanager.h"
#include "model/picturefolder.h"
#include "storefixture.h"
#include "wire/keyrecord.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QtTest>

using namespace vorlinmodel;

namespace {

QByteArray hex(const char *text)
{
    return QByteArray::fromHex(text);
}

/// 272 bytes: a zoomed, self-locking key with a centred title in 24 points, and a title and content of any
/// length.
QByteArray record(char keyId, char fid, const QByteArray &title = {}, const QByteArray &content = {})
{
    QByteArray bytes(272, '\0');
    bytes[0] = 1;
    bytes[1] = 2;
    bytes[2] = keyId;
    bytes[5] = fid;
    bytes.replace(6, 3, hex("010101"));
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

QByteArray fifteenRecords()
{
    QByteArray records;
    for (char kid = 1; kid <= 15; ++kid)
        records += record(kid, 5);
    return records;
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

    void pageLengths_data()
    {
        QTest::addColumn<QByteArray>("payload");
        QTest::addColumn<int>("keys");
        QTest::addColumn<bool>("taken");

        QTest::newRow("nothing") << QByteArray() << 0 << false;
        QTest::newRow("only a layout id") << hex("01") << 0 << false;
        QTest::newRow("empty page") << hex("0102") << 0 << true;
        QTest::newRow("one byte short of a record") << page(record(1, 5)).left(273) << 0 << false;
        QTest::newRow("one record") << page(record(1, 5)) << 1 << true;
        QTest::newRow("15 records and 100 bytes")
            << page(fifteenRecords()) + QByteArray(100, 'x') << 15 << true;
    }

    void pageLengths()
    {
        QFETCH(QByteArray, payload);
        QFETCH(int, keys);
        QFETCH(bool, taken);
        mpStore->setRecvTotalKeyCount(7);
        const auto position = load(payload);
        QCOMPARE(position.has_value(), taken);
        QCOMPARE(mpStore->getKeys().size(), keys);
        QCOMPARE(mpStore->getReceivedCounts().total, taken ? keys : 7); // a refused page changes nothing
        if (taken)
            QCOMPARE(*position, (key_id_t{1, 2, 0}));
        else
            QVERIFY(
                mpFixture->takeLines().contains(u("3 config data length (%1) error").arg(payload.size())));
    }

    void emptyPageIsToldAndComplete()
    {
        QVERIFY(load(hex("0102")));
        QVERIFY(mpFixture->takeLines().contains(u("1 device key is empty Layoutid[1] Pageid[2]")));
        const auto counts = mpStore->getReceivedCounts();
        QCOMPARE(counts.total, 0);
        QCOMPARE(counts.current, 0);
    }

    void pageLines()
    {
        load(page(record(3, 5)));
        QStringList lines = mpFixture->takeLines();
        QCOMPARE(lines.takeFirst(), u("4 ----------_READ_Script-----"));
        QCOMPARE(lines.takeLast(), u("4 ----------_READ_Script-----finished"));
        QCOMPARE(lines.filter(u("4 01 02 03 00 00 05 01 01 01 00 18 ff 80 01 00 ")).size(),
                 2); // all, and each
        lines.erase(std::remove_if(lines.begin(), lines.end(), [](auto &l) { return l.startsWith(u("4 ")); }),
                    lines.end());
        QCOMPARE(lines,
                 (QStringList{
                     u("1 application length:0x00000112(274)"),
                     u("1 saveAllKeyAttrByDevconfig Layoutid:1 Pageid:2,nBufferLen=274 "),
                     u("1 --------nKeyCount=[1],[272]"), u("1 stKeyid-1- Layoutid:1 Pageid:2,nKeyoutId=3 "),
                     u("1 mKeyAttributeMap size=0"), u("1 -createKeyAttr-lid:1 pageid:2 kid:3 fid:5"),
                     u("1 new key_atttribute_t ok-lid:1 pageid:2 kid:3 fid:5"),
                     u("1 setKeyAttrByProtoKeyConfig lid:1 pageid:2 kid:3 nDisplaymode:1"),
                     u("1 set image effects lid:1 pageid:2 kid:3 mFId:5 strTitle[] strAppOrUrl[]")}));
    }

    void recordReplacesWhatTheStoreHad()
    {
        mpStore->createKeyAttribute(1, 2, 3, 5);
        mpStore->setTitle({1, 2, 3}, u("old"));
        mpStore->setCustomImage({1, 2, 3}, u("/old.png"));
        mpStore->createKeyAttribute(1, 2, 4, 6);
        load(page(record(3, 7)));
        const auto read = mpStore->getKeyAttribute({1, 2, 3});
        QVERIFY(read);
        QCOMPARE(read->mFId, 7);
        QCOMPARE(read->defaultImage, u(":/icon/function_icon/Volume_down_90x84.png"));
        QCOMPARE(read->nDisplayImageType, 1);
        QVERIFY(read->customImage.isEmpty() && read->strTitle.isEmpty());
        QCOMPARE(read->imageEffects, 1);
        QCOMPARE(read->nDisplaymode, 1);
        QCOMPARE(read->titleAlignment, 1);
        QCOMPARE(read->titleFontSize, 24);
        QCOMPARE(read->titleColour, QColor::fromRgba64(0xFFFF, 0x8080, 0x0101, 0xFFFF));
        QCOMPARE(mpStore->getKeyAttribute({1, 2, 4})->mFId, 6);
    }

    void titlesAndContents_data()
    {
        QTest::addColumn<int>("fid");
        QTest::addColumn<QByteArray>("title");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("expectedTitle");
        QTest::addColumn<QString>("expectedContent");

        const QByteArray none;
        QTest::newRow("GBK title") << 5 << hex("C4E3BAC3") << none << u("你好") << u("");
        QTest::newRow("title with a NUL") << 5 << QByteArray("ab\0cd", 5) << none << u("ab") << u("");
        QTest::newRow("address in UTF-8")
            << 3 << none << QByteArray("http://a/好") << u("") << u("http://a/好");
        QTest::newRow("path with a NUL") << 2 << none << QByteArray("/a\0b", 4) << u("") << u("/a");
        QTest::newRow("text output") << 15 << none << hex("604F4F00") << u("") << u("你O");
        QTest::newRow("text output, odd byte") << 15 << none << hex("4F0041") << u("") << u("O");
        QTest::newRow("text output up to 0x0000") << 15 << none << hex("4F0000004B00") << u("") << u("O");
        QTest::newRow("combination") << 16 << none << hex("E0E1063A") << u("")
                                     << u("Left Ctrl#Left Shift#C#F1");
        QTest::newRow("two keys") << 16 << none << hex("E206") << u("") << u("Alt#C#undefine#undefine");
    }

    void titlesAndContents()
    {
        QFETCH(int, fid);
        QFETCH(QByteArray, title);
        QFETCH(QByteArray, content);
        load(page(record(3, char(fid), title, content)));
        const auto read = mpStore->getKeyAttribute({1, 2, 3});
        QVERIFY(read);
        QTEST(read->strTitle, "expectedTitle");
        QTEST(read->strAppOrUrl, "expectedContent");
    }

    void combinationAndTextAreLogged()
    {
        load(page(record(3, 16, {}, hex("E206")) + record(4, 15, {}, hex("4F004B00"))));
        const QStringList lines = mpFixture->takeLines();
        QVERIFY(lines.contains(u("1 -----tmpAdditonal[226][6][0][0]")));
        QVERIFY(lines.contains(u("1 ------------pKeyAttr->strAppOrUrl=OK")));
    }

    void countsBeyondTheAreasAreCut()
    {
        QByteArray bytes = record(3, 3);
        bytes[14] = '\xFF';
        bytes[143] = '\xFF';
        bytes.replace(15, 128, QByteArray(128, 't'));
        bytes.replace(144, 128, QByteArray(128, 'c'));
        load(page(bytes));
        QCOMPARE(mpStore->getKeyAttribute({1, 2, 3})->strTitle, QString(128, QLatin1Char('t')));
        QCOMPARE(mpStore->getKeyAttribute({1, 2, 3})->strAppOrUrl, QString(128, QLatin1Char('c')));
    }

    void keyIdsOutsideThePanelAreSkippedButCounted()
    {
        load(page(record(0, 5) + record(15, 5) + record(16, 5) + record('\xFF', 5)));
        QCOMPARE(mpStore->getKeys(), (QList<key_id_t>{{1, 2, 15}}));
        QCOMPARE(mpFixture->takeLines().filter(u("3 Error keyid")),
                 (QStringList{u("3 Error keyid Layoutid:1 Pageid:2,nKeyoutId=0 "),
                              u("3 Error keyid Layoutid:1 Pageid:2,nKeyoutId=16 "),
                              u("3 Error keyid Layoutid:1 Pageid:2,nKeyoutId=255 ")}));
        const QByteArray png = picture({4, 4}, Qt::red);
        QVERIFY(!takePicture(0, png) && !takePicture(15, png) && !takePicture(16, png));
        QVERIFY(takePicture('\xFF', png)); // one picture came for each of the four
        QCOMPARE(pictures(), QStringList{u("1_2_15.png")});
    }

    void sameKeyTwiceKeepsTheLaterRecord()
    {
        load(page(record(3, 5) + record(3, 6)));
        QCOMPARE(mpStore->getKeyAttribute({1, 2, 3})->mFId, 6);
        QCOMPARE(mpStore->getReceivedCounts().total, 2);
    }

    void pausesAfterEachRecord()
    {
        mpStore->setRecordPause(10);
        QElapsedTimer watch;
        watch.start();
        load(page(record(1, 5) + record(2, 5) + record(3, 5)));
        QVERIFY(watch.elapsed() >= 30);
    }

    void pageWithThousandsOfRecordsIsNotPacedToTheEnd()
    {
        mpStore->setRecordPause(20);
        QByteArray records;
        for (int i = 0; i < 1500; ++i)
            records += record(1, 5);
        QElapsedTimer watch;
        watch.start();
        load(page(records));
        QVERIFY(watch.elapsed() < 15000); // with a pause for each it would be 30 s
        QCOMPARE(mpStore->getReceivedCounts().total, 1500);
    }

    void setterLeavesUnknownKeysAlone()
    {
        QVERIFY(mpStore->setKeyAttrByProtoKeyConfig(1, 2, 3, KeyRecord{}));
        QVERIFY(mpStore->getKeys().isEmpty());
        QCOMPARE(mpFixture->takeLines(),
                 QStringList{u("1 setKeyAttrByProtoKeyConfig lid:1 pageid:2 kid:3 nDisplaymode:0")});
    }

    void picturesCompleteAPage()
    {
        load(page(record(3, 5) + record(4, 5)));
        mpFixture->takeLines();
        QVERIFY(!takePicture(3, picture({90, 84}, Qt::red)));
        const QString path = mpFixture->path("devConfig/image/1_2_3.png");
        const QStringList lines = mpFixture->takeCalmLines();
        QVERIFY(lines.at(0).startsWith(u("1 application length:0x")));
        QCOMPARE(lines.at(1), u("1 saveKeyAttrByDevconfig Layoutid[1] Pageid[2] Keyid[3] nAttrbuteid[9]"));
        QVERIFY(lines.at(2).startsWith(u("1 -------------strFileName=[1_2_3.png][")));
        QCOMPARE(lines.mid(3), (QStringList{u("1 -------------strPath=[%1]").arg(path),
                                            u("1 set custom image lid:1 pageid:2 kid:3 image:%1").arg(path),
                                            u("1 mRecvTotalKeyCount[2]-mRecvCurKeyCount[1]")}));
        QCOMPARE(mpStore->getDisplayImage({1, 2, 3}), path);
        QVERIFY(takePicture(4, picture({90, 84}, Qt::red)));
        QVERIFY(!takePicture(4, picture({90, 84}, Qt::red))); // one more than were announced
    }

    void secondPictureOfAKeyReplacesTheFirst()
    {
        load(page(record(3, 5)));
        QVERIFY(takePicture(3, picture({4, 4}, Qt::red)));
        QFile::setPermissions(mpFixture->path("devConfig/image/1_2_3.png"), QFile::ReadOwner);
        QVERIFY(!takePicture(3, picture({4, 4}, Qt::blue, "BMP")));
        QCOMPARE(pictures(), QStringList{u("1_2_3.png")});
        const QImage image(mpFixture->path("devConfig/image/1_2_3.png"), "PNG");
        QCOMPARE(image.pixelColor(0, 0), QColor(Qt::blue));
    }

    void brokenPicturesAreCountedAndChangeNothing_data()
    {
        QTest::addColumn<QByteArray>("payload");
        const QByteArray png = picture({4, 4}, Qt::red);
        QTest::newRow("5 bytes") << hex("01020309 00");
        QTest::newRow("7 bytes") << hex("01020309 000000");
        QTest::newRow("8 bytes") << hex("01020309 00000000");
        QTest::newRow("no picture") << hex("01020309 00000000") + "this is no picture";
        QTest::newRow("cut short") << pictureMessage(3, png.left(png.size() / 2));
        // A PNG head that claims 65535 x 65535 pixels.
        QTest::newRow("huge") << pictureMessage(
            3, hex("89504E470D0A1A0A 0000000D49484452 0000FFFF0000FFFF 0802000000"
                   "39674E07"));
        QTest::newRow("drawing") << pictureMessage(3, "<svg xmlns='http://www.w3.org/2000/svg' width='9' "
                                                      "height='9'><rect width='9' height='9'/></svg>");
    }

    void brokenPicturesAreCountedAndChangeNothing()
    {
        QFETCH(QByteArray, payload);
        load(page(record(3, 5) + record(4, 5)));
        takePicture(3, picture({4, 4}, Qt::red));
        const QString path = mpFixture->path("devConfig/image/1_2_3.png");
        mpFixture->takeLines();
        QVERIFY(mpStore->saveKeyAttrByDevconfig(data(payload), payload.size())); // the second of two
        QVERIFY(mpFixture->takeLines().contains(u("3 ----save -image failed[%1]-------").arg(path)));
        QCOMPARE(QImage(path).pixelColor(0, 0), QColor(Qt::red));
        QCOMPARE(mpStore->getCustomImage({1, 2, 3}), path);
    }

    void pictureThatCannotBeWritten()
    {
        load(page(record(3, 5)));
        const QString path = mpFixture->path("devConfig/image/1_2_3.png");
        QVERIFY(QDir().mkpath(path)); // a folder in the way
        QVERIFY(takePicture(3, picture({4, 4}, Qt::red)));
        const QStringList lines = mpFixture->takeLines();
        QVERIFY(lines.contains(u("2 remove failed:") + path));
        QVERIFY(lines.contains(u("3 ----save -image failed[%1]-------").arg(path)));
        QVERIFY(mpStore->getCustomImage({1, 2, 3}).isEmpty());
    }

#ifndef Q_OS_WIN
    void pictureOnAFullDiskKeepsTheOldOne()
    {
        load(page(record(3, 5)));
        takePicture(3, picture({4, 4}, Qt::red));
        const QByteArray blue = picture({4, 4}, Qt::blue);
        {
            const FullDisk fullDisk;
            takePicture(3, blue);
        }
        const QString path = mpFixture->path("devConfig/image/1_2_3.png");
        QVERIFY(mpFixture->takeLines().contains(u("3 ----save -image failed[%1]-------").arg(path)));
        QCOMPARE(QImage(path).pixelColor(0, 0), QColor(Qt::red));
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
        for (const char *name :
             {"1_2_3.png", "1_2_15.png", "11_2_3.png", "1_22_3.png", "2_2_3.png", "imageUrl.ini"}) {
            QFile file(mpFixture->path("devConfig/image/") + QLatin1String(name));
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
        removePagePictures(1, 2);
        QCOMPARE(pictures(),
                 (QStringList{u("11_2_3.png"), u("1_22_3.png"), u("2_2_3.png"), u("imageUrl.ini")}));
        QVERIFY(QDir().mkpath(mpFixture->path("devConfig/image/sub/folder")));
        QVERIFY(emptyPictureFolder());
        QVERIFY(QDir(mpFixture->path("devConfig/image")).exists());
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

    RecordingDesktop mDesktop;
    std::unique_ptr<StoreFixture> mpFixture;
    std::unique_ptr<FunctionManager> mpStore;
};

QTEST_GUILESS_MAIN(LoaderTest)
#include "tst_model_loader.moc"
