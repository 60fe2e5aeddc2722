// Action lists of multi-action keys, both ways.
#include "bytesofhex.h"
#include "support/table.h"
#include "wire/actionlist.h"

using ActionList::Action;
using Actions = QVector<Action>;
Q_DECLARE_METATYPE(Actions)

namespace {

QByteArray payload(const QByteArray &content)
{
    return content.leftJustified(128, '\0');
}

} // namespace

class WireActionList : public QObject
{
    Q_OBJECT
    using ListsTable = Table<Actions, QByteArray>;
    using CutTable = Table<int, QString, QByteArray>;
    using ForeignListsTable = Table<QByteArray, Actions>;

private slots:
    void lists_data()
    {
        const ListsTable row;
        row("no actions", Actions{}, hex("00 00"));
        row("delay, low byte first", Actions{{100, 0x0102, {}}}, hex("03 00 64 02 01"));
        row("path in utf-8", Actions{{2, 0, "/中"_s}}, hex("83 00 02 00 00") + payload(hex("2F E4 B8 AD")));
        row("address, delay, text", Actions{{3, 0, "http://a"_s}, {100, 10, {}}, {15, 0, "A中"_s}},
            hex("09 01 03 00 00") + payload("http://a") + hex("64 0A 00 0F 00 00") +
                payload(hex("41 00 2D 4E")));
        row("content of 128 bytes needs no NUL",
            Actions{{3, 0, QString(128, QLatin1Char('u'))}, {15, 0, QString(64, QLatin1Char('u'))}},
            hex("06 01 03 00 00") + QByteArray(128, 'u') + hex("0F 00 00") + hex("75 00").repeated(64));
        row("combination", Actions{{16, 0, "Left Ctrl#C#undefine#undefine"_s}},
            hex("83 00 10 00 00") + payload(hex("E0 06 00 00")));
    }

    void lists()
    {
        const auto [actions, value] = ListsTable::current();
        const ActionList::Encoded encoded = ActionList::encode(actions);
        QCOMPARE(encoded.value, value);
        QVERIFY(encoded.cutEntries.isEmpty());
        QCOMPARE(encoded.omitted, 0);
        QVERIFY(ActionList::decode(value) == actions);
    }

    void onlyADelayEntryCarriesADelay()
    {
        QCOMPARE(ActionList::encode({{6, 500, {}}}).value, hex("03 00 06 00 00"));
        QVERIFY(ActionList::decode(hex("03 00 06 F4 01")) == (Actions{{6, 0, {}}}));
    }

    void emptyCombinationIsFourZeroCodes()
    {
        QCOMPARE(ActionList::encode({{16, 0, {}}}).value, hex("83 00 10 00 00") + payload({}));
    }

    void longContentIsCutAndReported_data()
    {
        const CutTable row;
        const QString address(127, QLatin1Char('p'));
        const QString text(63, QLatin1Char('p'));
        row("one byte over", 2, address + "pp"_s, QByteArray(128, 'p'));
        row("not half a character", 3, address + "é"_s, QByteArray(127, 'p') + '\0');
        row("one unit over", 15, text + "pp"_s, hex("70 00").repeated(64));
        row("not half a pair", 15, text + "\U0001F600"_s, hex("70 00").repeated(63) + hex("00 00"));
    }

    void longContentIsCutAndReported()
    {
        const auto [functionId, text, content] = CutTable::current();
        const ActionList::Encoded encoded = ActionList::encode({{100, 1, {}}, {qint8(functionId), 0, text}});
        QCOMPARE(encoded.cutEntries, QVector<int>{1});
        QCOMPARE(encoded.value.mid(2 + 3 + 3), content);
    }

    void stepsBeyondTheLengthFieldAreCounted()
    {
        const Actions full(500, {2, 0, "/a"_s}); // 500 × 131 = 65500 bytes: 35 are left
        QCOMPARE(ActionList::encode(full).omitted, 0);
        const ActionList::Encoded encoded = ActionList::encode(full + Actions(12, {5, 0, {}}));
        QCOMPARE(encoded.omitted, 1);
        QCOMPARE(encoded.value.left(2), hex("FD FF")); // 65533
        QCOMPARE(encoded.value.size(), 2 + 65533);
    }

    void foreignLists_data()
    {
        const ForeignListsTable row;
        const QByteArray address = hex("03 00 00") + payload("u");
        row("nothing", {}, Actions{});
        row("half a length field", hex("05"), Actions{});
        row("bytes beyond the length do not count", hex("03 00 64 01 00 64 02 00"), Actions{{100, 1, {}}});
        row("length beyond the bytes", hex("FF FF 64 01 00 06 00 00"), Actions{{100, 1, {}}, {6, 0, {}}});
        row("payload one byte short, though the list is long enough",
            hex("05 01") + address + address.left(130), Actions{{3, 0, "u"_s}, {3, 0, {}}});
        row("combination cut short stays empty", hex("07 00 10 00 00 E0 06 00 00"), Actions{{16, 0, {}}});
        row("delay cut short: a missing byte reads 0", hex("02 00 64 05"), Actions{{100, 5, {}}});
        row("codes are signed, code 0 ends nothing", hex("06 00 00 00 00 FF 00 00"),
            Actions{{0, 0, {}}, {-1, 0, {}}});
        row("text ends at the first zero unit", hex("83 00 0F 00 00") + payload(hex("41 00 00 00 42 00")),
            Actions{{15, 0, "A"_s}});
        row("path ends at the first NUL", hex("83 00 02 00 00") + payload(hex("41 00 42")),
            Actions{{2, 0, "A"_s}});
    }

    void foreignLists()
    {
        const auto [value, actions] = ForeignListsTable::current();
        QCOMPARE(ActionList::decode(value), actions);
    }

    void countedBytes()
    {
        QCOMPARE(ActionList::counted(hex("01")), QByteArray());
        QCOMPARE(ActionList::counted(hex("01 00 AA BB")), hex("01 00 AA"));
        QCOMPARE(ActionList::counted(hex("05 00 AA BB")), hex("05 00 AA BB"));
    }
};

QTEST_APPLESS_MAIN(WireActionList)
#include "tst_wire_actionlist.moc"
