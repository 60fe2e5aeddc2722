/// Pictures as the panel takes them, and the custom layouts that decide their size.
#include "model/customlayouts.h"
#include "model/functionmanager.h"
#include "model/keypicture.h"
#include "storefixture.h"

#include <QtTest>

using namespace vorlinmodel;

namespace {

void writeFile(const QString &path, const QByteArray &bytes)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

} // namespace

class KeyPictureTest : public QObject
{
    Q_OBJECT
private slots:
    void init() { mpFixture = std::make_unique<StoreFixture>(); }
    void cleanup() { mpFixture.reset(); }

    void customLayoutIsRead()
    {
        writeLayouts("[layout_4]\nnum=3\nname=\"Büro, 桌\"\n"
                     "1_bitmap=99\nphyid_1=1#1#1&2#1#2&6#2#1&7#2#2&\n"
                     "2_bitmap=4\nphyid_2=3#1#3&\n"
                     "3_bitmap=16384\nphyid_3=15#3#5\n"
                     "[layout_44]\nnum=0\nname=other\n");
        const auto layout = loadCustomLayout(4);
        QVERIFY(layout);
        QCOMPARE(layout->layoutId, 4);
        QCOMPARE(layout->name, u("Büro, 桌"));
        QCOMPARE(layout->keys.size(), 3);
        QCOMPARE(layout->keys.at(0).mask, 0x63U);
        QCOMPARE(layout->keys.at(0).firstPhysical, 1);
        QCOMPARE(layout->keys.at(0).lastPhysical, 7);
        QCOMPARE(layout->keys.at(1).firstPhysical, 3);
        QCOMPARE(layout->keys.at(1).lastPhysical, 3);
        QCOMPARE(layout->keys.at(2).lastPhysical, 15);
        QCOMPARE(loadCustomLayout(44)->keys.size(), 0);
        QVERIFY(!loadCustomLayout(5));
    }

    void foreignLayoutsAreTamed_data()
    {
        QTest::addColumn<QByteArray>("lines");
        QTest::addColumn<int>("keys");
        QTest::addColumn<uint>("mask"); // of the first key
        QTest::addColumn<int>("first");

        QTest::newRow("far too many")
            << QByteArray("num=1000000000\n1_bitmap=1\nphyid_1=1#1#1&\n") << 15 << 1U << 1;
        QTest::newRow("negative number") << QByteArray("num=-3\n") << 0 << 0U << 0;
        QTest::newRow("number is a text") << QByteArray("num=many\n") << 0 << 0U << 0;
        QTest::newRow("nothing about the key") << QByteArray("num=1\n") << 1 << 0U << 0;
        QTest::newRow("mask is a text") << QByteArray("num=1\n1_bitmap=x\nphyid_1=abc\n") << 1 << 0U << 0;
        QTest::newRow("mask beyond key 15") << QByteArray("num=1\n1_bitmap=32769\n") << 1 << 0U << 0;
        QTest::newRow("negative mask") << QByteArray("num=1\n1_bitmap=-1\n") << 1 << 0U << 0;
        QTest::newRow("physical key 16")
            << QByteArray("num=1\n1_bitmap=1\nphyid_1=16#1#1&\n") << 1 << 1U << 0;
    }

    void foreignLayoutsAreTamed()
    {
        QFETCH(QByteArray, lines);
        QFETCH(int, keys);
        writeLayouts("[layout_4]\n" + lines);
        const auto layout = loadCustomLayout(4);
        QVERIFY(layout);
        QCOMPARE(layout->keys.size(), keys);
        if (keys == 0)
            return;
        QTEST(layout->keys.at(0).mask, "mask");
        QTEST(layout->keys.at(0).firstPhysical, "first");
    }

    void sizeFollowsTheLayout_data()
    {
        QTest::addColumn<int>("layoutId");
        QTest::addColumn<int>("keyId");
        QTest::addColumn<QSize>("size");

        QTest::newRow("standard layout") << 1 << 1 << QSize(90, 84);
        QTest::newRow("unknown layout") << 9 << 1 << QSize(90, 84);
        QTest::newRow("single key") << 4 << 1 << QSize(90, 84);
        QTest::newRow("2 x 2") << 4 << 2 << QSize(180, 168);
        QTest::newRow("a row of four") << 4 << 3 << QSize(360, 84);
        QTest::newRow("a column of three") << 4 << 4 << QSize(90, 252);
        QTest::newRow("all keys") << 4 << 5 << QSize(450, 252);
        QTest::newRow("no physical key") << 4 << 6 << QSize(90, 84);
        QTest::newRow("key beyond the layout") << 4 << 7 << QSize(90, 84);
    }

    void sizeFollowsTheLayout()
    {
        QFETCH(int, layoutId);
        QFETCH(int, keyId);
        writeLayouts(
            "[layout_1]\nnum=1\n1_bitmap=3\n" // the standard layout is not read from the file
            "[layout_4]\nnum=6\n1_bitmap=16384\n2_bitmap=99\n3_bitmap=30\n4_bitmap=1057\n5_bitmap=32767\n"
            "6_bitmap=0\n");
        QTEST(keyPixelSize({layoutId, 1, keyId}), "size");
    }

    void encodedPictureHasTheKeysSizeAndNoAlpha()
    {
        writeLayouts("[layout_4]\nnum=1\n1_bitmap=3\n");
        QImage half(200, 100, QImage::Format_ARGB32);
        half.fill(QColor(255, 0, 0, 128));
        const QString file = mpFixture->path("half.png");
        QVERIFY(half.save(file));
        FunctionManager store;
        store.createKeyAttribute(4, 1, 1, 5);
        store.setCustomImage({4, 1, 1}, file);
        const auto bytes = encodedKeyPicture(store, {4, 1, 1});
        QVERIFY(bytes);
        QVERIFY(bytes->startsWith(QByteArray::fromHex("89504E470D0A1A0A")));
        QCOMPARE(bytes->at(25), char(2)); // colour type of the PNG: RGB
        const QImage image = QImage::fromData(*bytes);
        QCOMPARE(image.size(), QSize(180, 84));
        QVERIFY(qAbs(image.pixelColor(90, 42).red() - 128) <= 2); // on black, like the LCD
        QCOMPARE(image.pixelColor(90, 42).blue(), 0);
    }

    void noPictureNothingEncoded_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("missing file") << u("/no/such/file.png");
        QTest::newRow("missing resource") << u(":/no/such/file.png");
        QTest::newRow("no path") << QString();
        QTest::newRow("video") << u("film.mp4");
    }

    void noPictureNothingEncoded()
    {
        QFETCH(QString, path);
        writeFile(mpFixture->path("film.mp4"), "not a picture");
        FunctionManager store;
        QVERIFY(!encodedKeyPicture(store, {1, 1, 1})); // unknown key
        store.createKeyAttribute(1, 1, 1, 17);
        store.setCustomImage({1, 1, 1}, path);
        QVERIFY(!encodedKeyPicture(store, {1, 1, 1}));
    }

    void decodingHasALimit_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QSize>("size");
        QTest::newRow("at the limit") << picture({4096, 1}, Qt::red) << QSize(4096, 1);
        QTest::newRow("one pixel more") << picture({4097, 1}, Qt::red) << QSize();
        QTest::newRow("one line more") << picture({1, 4097}, Qt::red, "BMP") << QSize();
        QTest::newRow("nothing") << QByteArray() << QSize();
    }

    void decodingHasALimit()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QSize, size);
        QCOMPARE(decodePicture(bytes).size(), size.isValid() ? size : QSize(0, 0));
    }

private:
    void writeLayouts(const QByteArray &text)
    {
        writeFile(mpFixture->path("devConfig/customLayout.ini"), text);
    }

    std::unique_ptr<StoreFixture> mpFixture;
};

QTEST_GUILESS_MAIN(KeyPictureTest)
#include "tst_model_keypicture.moc"
