// Records of fixed shape: the panel's key record and page, home layout, custom layout.
#include "bytesofhex.h"
#include "wire/customlayout.h"
#include "wire/homelayout.h"
#include "wire/keyrecord.h"

#include <QtTest>

namespace {

/// Layout 1, page 2, key 3, fid 15, effect 2, mode 1, alignment 2, size 20, colour 10 20 30 (hex), title "Hi"
/// in a count of 4, content "A" as UTF-16LE. The bytes that the host must not read are 0xEE.
QByteArray exampleRecord()
{
    return hex("01 02 03 EE EE 0F 02 01 02 EE 14 10 20 30 04 48 69 00 58").leftJustified(143, '\0') +
           hex("02 41 00").leftJustified(129, '\0');
}

KeyRecord decoded(const QByteArray &bytes)
{
    return decodeKeyRecord(data(bytes), bytes.size()).value_or(KeyRecord{});
}

} // namespace

class WireRecords : public QObject
{
    Q_OBJECT

private slots:
    void readsEveryFieldOfAKeyRecord()
    {
        const QByteArray bytes = exampleRecord();
        QCOMPARE(bytes.size(), 272);
        const KeyRecord expected{.layoutId = 1,
                                 .pageId = 2,
                                 .keyId = 3,
                                 .functionId = 15,
                                 .imageEffects = 2,
                                 .displayMode = 1,
                                 .titleAlignment = 2,
                                 .titleFontSize = 20,
                                 .red = 0x10,
                                 .green = 0x20,
                                 .blue = 0x30,
                                 .title = "Hi", // counted 4, cut at the NUL
                                 .content = hex("41 00")};
        QVERIFY(decoded(bytes) == expected);
        QVERIFY(!decodeKeyRecord(data(bytes), 271).has_value());
    }

    void writesEveryFieldOfAKeyRecord()
    {
        KeyRecord record = decoded(exampleRecord());
        record.content = hex("E0 00 06 00 01"); // a NUL does not end a content
        QCOMPARE(encodeKeyRecord(record),
                 hex("01 02 03 00 00 0F 02 01 02 00 14 10 20 30 02 48 69").leftJustified(143, '\0') +
                     hex("05 E0 00 06 00 01").leftJustified(129, '\0'));
    }

    void textAreasOfAKeyRecordEnd()
    {
        QByteArray bytes =
            exampleRecord().left(14) + hex("FF") + QByteArray(128, 't') + hex("FF") + QByteArray(128, 'c');
        const KeyRecord record = decoded(bytes);
        QCOMPARE(record.title, QByteArray(128, 't'));
        QCOMPARE(record.content, QByteArray(128, 'c'));

        KeyRecord tooLong;
        tooLong.title = QByteArray(129, 't');
        tooLong.content = QByteArray(300, 'c');
        bytes = encodeKeyRecord(tooLong);
        QCOMPARE(bytes.mid(14), hex("80") + QByteArray(128, 't') + hex("80") + QByteArray(128, 'c'));
    }

    void pages_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<int>("records"); // -1: refused

        QTest::newRow("empty page") << 2 << -1;
        QTest::newRow("one byte short") << 273 << -1;
        QTest::newRow("one record") << 274 << 1;
        QTest::newRow("one byte short of two") << 2 + 2 * 272 - 1 << 1;
        QTest::newRow("15 records and trailing bytes") << 2 + 272 * 15 + 100 << 15;
    }

    void pages()
    {
        QFETCH(int, size);
        const QByteArray bytes = (hex("04 07") + exampleRecord().repeated(16)).left(size);
        const auto page = decodePagePayload(data(bytes), bytes.size());
        QTEST(page.has_value() ? int(page->records.size()) : -1, "records");
        if (!page)
            return;
        QCOMPARE(page->layoutId, quint8{4});
        QCOMPARE(page->pageId, quint8{7});
        QVERIFY(page->records.last() == decoded(exampleRecord()));
        QCOMPARE(encodePagePayload(*page).left(2 + 6), hex("04 07 01 02 03 00 00 0F"));
        QCOMPARE(encodePagePayload(*page).size(), 2 + 272 * int(page->records.size()));
    }

    void homeLayoutBothWays()
    {
        const HomeLayout::Record record{
            .layoutId = 1,
            .entries = {{.keyId = 3, .layoutId = 1, .pageId = 2, .sum = 4}, {.keyId = 15, .pageId = 254}}};
        const QByteArray body = hex("01 02 03 01 02 04 0F FF FE FF");
        QCOMPARE(HomeLayout::encode(record), body);
        QVERIFY(HomeLayout::decode(body) == record);
    }

    void homeLayoutCutShort_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<int>("entries"); // -1: refused

        QTest::newRow("nothing") << QByteArray() << -1;
        QTest::newRow("layout alone") << hex("01") << -1;
        QTest::newRow("none") << hex("01 00") << 0;
        QTest::newRow("second one cut") << hex("01 02 03 01 02 04 0F FF FE") << 1;
        QTest::newRow("more bytes than counted") << hex("01 01 03 01 02 04 0F FF FE FF") << 1;
    }

    void homeLayoutCutShort()
    {
        QFETCH(QByteArray, body);
        const auto record = HomeLayout::decode(body);
        QTEST(record.has_value() ? int(record->entries.size()) : -1, "entries");
    }

    void homeLayoutHoldsAtMost255Entries()
    {
        const QByteArray body =
            HomeLayout::encode({.layoutId = 1, .entries = QVector<HomeLayout::Entry>(256)});
        QCOMPARE(body.left(2), hex("01 FF"));
        QCOMPARE(body.size(), 2 + 255 * 4);
    }

    void customLayouts_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QByteArray>("titleBytes");
        QTest::addColumn<QString>("titleBack");

        const QString longTitle = QString(127, QLatin1Char('x'));
        QTest::newRow("title") << QStringLiteral("两大") << hex("C1 BD B4 F3") << QStringLiteral("两大");
        QTest::newRow("no title, the keys stand where they always do")
            << QString() << QByteArray() << QString();
        QTest::newRow("title cut on a whole character")
            << longTitle + QStringLiteral("中") << longTitle.toLatin1() << longTitle;
    }

    void customLayouts()
    {
        QFETCH(QString, title);
        QFETCH(QByteArray, titleBytes);
        const QByteArray body =
            CustomLayoutRecord::encode({.layoutNumber = 5,
                                        .title = title,
                                        .keys = {{.first = 1, .last = 7}, {.first = 15, .last = 15}}});
        QCOMPARE(body, hex("05") + char(titleBytes.size()) + hex("02 00") +
                           titleBytes.leftJustified(128, '\0') + hex("01 01 07 02 0F 0F"));

        const auto back = CustomLayoutRecord::decode(body);
        QVERIFY(back.has_value());
        QCOMPARE(back->layoutNumber, 5);
        QTEST(back->title, "titleBack");
        QVERIFY((back->keys == QVector<CustomLayoutRecord::Key>{{1, 7}, {15, 15}}));
    }

    void customLayoutCutShortIsRefused()
    {
        const QByteArray body =
            CustomLayoutRecord::encode({.layoutNumber = 1, .title = {}, .keys = {{1, 1}}});
        QCOMPARE(body.size(), 135); // a message of 140 bytes
        QVERIFY(CustomLayoutRecord::decode(body).has_value());
        QVERIFY(!CustomLayoutRecord::decode(body.left(134)).has_value());
        QVERIFY(!CustomLayoutRecord::decode(body.left(131)).has_value());
    }
};

QTEST_APPLESS_MAIN(WireRecords)
#include "tst_wire_records.moc"
