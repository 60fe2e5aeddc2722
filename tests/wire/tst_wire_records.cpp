// Records of fixed shape: the panel's key record and page, home layout, custom layout.
#include "bytesofhex.h"
#include "support/table.h"
#include "wire/customlayout.h"
#include "wire/homelayout.h"
#include "wire/keyrecord.h"

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
    using PagesTable = Table<int, int>;
    using CustomLayoutsTable = Table<QString, QByteArray, QString>;

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
        const QByteArray title(128, 't');
        const QByteArray content(128, 'c');
        const KeyRecord record = decoded(exampleRecord().left(14) + hex("FF") + title + hex("FF") + content);
        QCOMPARE(record.title, title);
        QCOMPARE(record.content, content);
        QCOMPARE(encodeKeyRecord({.title = title + "t", .content = content + "c"}).mid(14),
                 hex("80") + title + hex("80") + content);
    }

    void pages_data()
    {
        // records: 0: refused
        const PagesTable row;
        row("one byte short", 273, 0);
        row("one record", 274, 1);
        row("one byte short of two", 2 + 2 * 272 - 1, 1);
        row("15 records and trailing bytes", 2 + 272 * 15 + 100, 15);
    }

    void pages()
    {
        const auto [size, records] = PagesTable::current();
        const QByteArray bytes = (hex("04 07") + exampleRecord().repeated(16)).left(size);
        const auto page = decodePagePayload(data(bytes), bytes.size());
        QCOMPARE(page.has_value(), records > 0);
        if (!page)
            return;
        QCOMPARE(page->records.size(), records);
        QVERIFY(page->records.last() == decoded(exampleRecord()));
        QCOMPARE(encodePagePayload(*page).left(2 + 6), hex("04 07 01 02 03 00 00 0F"));
        QCOMPARE(encodePagePayload(*page).size(), 2 + 272 * records);
    }

    void homeLayouts()
    {
        const HomeLayout::Record record{
            .layoutId = 1,
            .entries = {{.keyId = 3, .layoutId = 1, .pageId = 2, .sum = 4}, {.keyId = 15, .pageId = 254}}};
        const QByteArray body = hex("01 02 03 01 02 04 0F FF FE FF");
        QCOMPARE(HomeLayout::encode(record), body);
        QVERIFY(HomeLayout::decode(body) == record);

        QVERIFY(!HomeLayout::decode({}).has_value());
        QVERIFY(!HomeLayout::decode(hex("01")).has_value());
        QVERIFY(HomeLayout::decode(hex("01 00"))->entries.isEmpty());
        QCOMPARE(HomeLayout::decode(body.chopped(1))->entries.size(), 1);
        QCOMPARE(HomeLayout::decode(hex("01 01 03 01 02 04 0F FF FE FF"))->entries.size(), 1);
    }

    void homeLayoutHoldsAtMost255Entries()
    {
        const auto body = HomeLayout::encode({.layoutId = 1, .entries = QVector<HomeLayout::Entry>(256)});
        QCOMPARE(body.left(2), hex("01 FF"));
        QCOMPARE(body.size(), 2 + 255 * 4);
    }

    void customLayouts_data()
    {
        const CustomLayoutsTable row;
        const QByteArray x(127, 'x');
        const QString cut = QString::fromLatin1(x);
        row("title", "两大", hex("C1 BD B4 F3"), "两大");
        row("none, the keys stand where they always do", {}, {}, {});
        row("cut on a whole character", cut + "中"_s, x, cut);
    }

    void customLayouts()
    {
        const auto [title, bytes, back] = CustomLayoutsTable::current();
        const QVector<CustomLayoutRecord::Key> keys{{.first = 1, .last = 7}, {.first = 15, .last = 15}};
        const QByteArray body = CustomLayoutRecord::encode({.layoutNumber = 5, .title = title, .keys = keys});
        QCOMPARE(body, hex("05") + char(bytes.size()) + hex("02 00") + bytes.leftJustified(128, '\0') +
                           hex("01 01 07 02 0F 0F"));
        const auto layout = CustomLayoutRecord::decode(body);
        QVERIFY(layout.has_value());
        QCOMPARE(layout->layoutNumber, 5);
        QCOMPARE(layout->title, back);
        QVERIFY(layout->keys == keys);

        QVERIFY(!CustomLayoutRecord::decode(body.chopped(1)).has_value());
        QVERIFY(!CustomLayoutRecord::decode(body.left(131)).has_value());
    }
};

QTEST_APPLESS_MAIN(WireRecords)
#include "tst_wire_records.moc"
