/// Pictures as the panel takes them, and the custom layouts that decide their size.
#include "model/customlayouts.h"
#include "model/functionmanager.h"
#include "model/keypicture.h"
#include "storefixture.h"

#include <QtTest>

using namespace vorlinmodel;

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
        QCOMPARE(layout->name, u("Büro, 桌"));
        QCOMPARE(layout->keys.size(), 3);
        QCOMPARE(layout->keys.at(0).mask, 0x63U);
        QCOMPARE(layout->keys.at(0).firstPhysical, 1);
        QCOMPARE(layout->keys.at(0).lastPhysical, 7);
        QCOMPARE(layout->keys.at(1).lastPhysical, 3); // of a single one
        QCOMPARE(layout->keys.at(2).lastPhysical, 15);
        QCOMPARE(loadCustomLayout(44)->keys.size(), 0);
        QVERIFY(!loadCustomLayout(5));
    }

    void foreignLayoutsAreTamed()
    {
        // Number of keys, mask and first physical key of the first one.
        const auto tamed = [this](const QByteArray &lines) {
            writeLayouts("[layout_4]\n" + lines);
            const auto layout = loadCustomLayout(4).value_or(CustomLayout{});
            const auto key = layout.keys.value(0);
            return QVector<int>{layout.keys.size(), int(key.mask), key.firstPhysical};
        };
        QCOMPARE(tamed("num=1000000000\n1_bitmap=1\nphyid_1=1#1#1&\n"), (QVector{1, 1, 1}));
        QCOMPARE(tamed("num=many\n"), (QVector{0, 0, 0}));
        QCOMPARE(tamed("num=1\n1_bitmap=x\nphyid_1=abc\n"), (QVector{1, 0, 0}));
        QCOMPARE(tamed("num=1\n1_bitmap=32769\n"), (QVector{1, 0, 0})); // beyond key 15
        QCOMPARE(tamed("num=1\n1_bitmap=-1\n"), (QVector{1, 0, 0}));
        QCOMPARE(tamed("num=1\n1_bitmap=1\nphyid_1=16#1#1&\n"), (QVector{1, 1, 0}));
    }

    void sizeFollowsTheLayout()
    {
        // The standard layout is not read from the file.
        writeLayouts("[layout_1]\nnum=1\n1_bitmap=3\n[layout_4]\nnum=5\n1_bitmap=16384\n2_bitmap=99\n"
                     "3_bitmap=28\n4_bitmap=4224\n5_bitmap=0\n[layout_5]\nnum=1\n1_bitmap=32767\n");
        const QSize single(90, 84);
        QCOMPARE(keyPixelSize({1, 1, 1}), single);
        QCOMPARE(keyPixelSize({9, 1, 1}), single); // unknown layout
        QCOMPARE(keyPixelSize({4, 1, 1}), single);
        QCOMPARE(keyPixelSize({4, 1, 2}), QSize(180, 168));
        QCOMPARE(keyPixelSize({4, 1, 3}), QSize(270, 84));
        QCOMPARE(keyPixelSize({4, 1, 4}), QSize(90, 168));
        QCOMPARE(keyPixelSize({5, 1, 1}), QSize(450, 252));
        QCOMPARE(keyPixelSize({4, 1, 5}), single); // no physical key
        QCOMPARE(keyPixelSize({4, 1, 6}), single); // beyond the layout
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
        const auto bytes = encodedKeyPicture(store, {4, 1, 1}, keyPixelSize({4, 1, 1}));
        QVERIFY(bytes);
        QVERIFY(bytes->startsWith(QByteArray::fromHex("89504E470D0A1A0A")));
        QCOMPARE(bytes->at(25), char(2)); // colour type of the PNG: RGB
        const QImage image = QImage::fromData(*bytes);
        QCOMPARE(image.size(), QSize(180, 84));
        QVERIFY(qAbs(image.pixelColor(90, 42).red() - 128) <= 2); // on black, like the LCD
        QCOMPARE(image.pixelColor(90, 42).blue(), 0);
    }

    void noPictureNothingEncoded()
    {
        QFile film(mpFixture->path("film.mp4"));
        QVERIFY(film.open(QIODevice::WriteOnly) && film.write("not a picture"));
        FunctionManager store;
        QVERIFY(!encodedKeyPicture(store, {1, 1, 1}, {90, 84})); // unknown key
        store.createKeyAttribute(1, 1, 1, 17);
        for (const char *path : {"", "/no/such/file.png", ":/no/such/file.png", "film.mp4"}) {
            store.setCustomImage({1, 1, 1}, u(path));
            QVERIFY(!encodedKeyPicture(store, {1, 1, 1}, {90, 84}));
        }
    }

    void decodingHasALimit()
    {
        QCOMPARE(decodePicture(picture({4096, 1}, Qt::red)).size(), QSize(4096, 1));
        QVERIFY(decodePicture(picture({4097, 1}, Qt::red)).isNull());
        QVERIFY(decodePicture(picture({1, 4097}, Qt::red, "BMP")).isNull());
    }

private:
    void writeLayouts(const QByteArray &text)
    {
        QVERIFY(QDir().mkpath(mpFixture->path("devConfig")));
        QFile file(mpFixture->path("devConfig/customLayout.ini"));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
    }

    std::unique_ptr<StoreFixture> mpFixture;
};

QTEST_GUILESS_MAIN(KeyPictureTest)
#include "tst_model_keypicture.moc"
