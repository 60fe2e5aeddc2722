// Texts as the panel stores them: GBK, UTF-16LE, UTF-8, and the attribute values that carry them.
#include "bytesofhex.h"
#include "support/table.h"
#include "wire/attributevalue.h"
#include "wire/textcodec.h"

namespace {
const QString Emoji = "\U0001F600"_s; // outside the basic plane
const QString HalfAPair = QChar(0xD83D);
} // namespace

class WireTexts : public QObject
{
    Q_OBJECT
    using GbkTable = Table<QString, QByteArray, QString>;

private slots:
    void gbk_data()
    {
        const GbkTable row;
        const QString none;
        row("chinese", "a中文", hex("61 D6 D0 CE C4"), none);
        row("traditional, not in the older set", "鍵", hex("E6 49"), none);
        row("trail byte of a backslash", "昞", hex("95 5C"), none);
        row("other scripts that it has", "Яあ", hex("A7 C1 A4 A2"), none);
        row("a surrogate pair", "a%1b"_s.arg(Emoji), "a?b", Emoji);
        row("each lacking one listed once, also one of four bytes in the larger set", "한国한ไ",
            hex("3F B9 FA 3F 3F"), "한ไ");
        row("half a pair spoils nothing behind it", HalfAPair + "中"_s, hex("3F D6 D0"), HalfAPair);
        row("half a pair alone", HalfAPair, "?", HalfAPair);
    }

    void gbk()
    {
        const auto [text, bytes, lacking] = GbkTable::current();
        QCOMPARE(TextCodec::toGbk(text), bytes);
        QCOMPARE(TextCodec::charactersNotInGbk(text), lacking);
    }

    void textsComeBack()
    {
        using namespace TextCodec;
        QCOMPARE(fromGbk(hex("D6 D0 CE C4")), "中文"_s);
        QCOMPARE(fromGbk(hex("41 00 42")), "A"_s); // up to the first NUL
        QCOMPARE(fromGbk(hex("00 00")), QString());
        QCOMPARE(fromOutput(hex("41 00 2D 4E 3D D8 00 DE")), "A中"_s + Emoji);
        QCOMPARE(fromOutput(hex("41 00 00 00 42 00")), "A"_s); // up to the first zero unit
        QCOMPARE(fromOutput(hex("00 4E 00 4F")), "一伀"_s);    // zero bytes end nothing
        QCOMPARE(fromOutput(hex("41 00 42")), "A"_s);          // an odd last byte
        QCOMPARE(fromOutput(hex("41")), QString());
    }

    void cutsOnAWholeCharacter()
    {
        using namespace TextCodec;
        const QString chinese = "a中文"_s;
        QCOMPARE(toGbk(chinese, 5), hex("61 D6 D0 CE C4"));
        QCOMPARE(toGbk(chinese, 4), hex("61 D6 D0"));
        QCOMPARE(toGbk("中a"_s, 1), QByteArray()); // nothing behind the cut either
        const QString smiling = "ab"_s + Emoji;
        QCOMPARE(toUtf8(smiling, 6), hex("61 62 F0 9F 98 80"));
        QCOMPARE(toUtf8(smiling, 5), hex("61 62"));
        QCOMPARE(toUtf8(smiling, 3), hex("61 62"));
        QCOMPARE(toUtf8(Emoji, 2), QByteArray());
        QCOMPARE(toOutput(smiling, 8), hex("61 00 62 00 3D D8 00 DE"));
        QCOMPARE(toOutput(smiling, 7), hex("61 00 62 00")); // not half a pair
        QCOMPARE(toOutput(smiling, 3), hex("61 00"));       // not half a unit
        QCOMPARE(toGbk(chinese, 0) + toUtf8(chinese, 0) + toOutput(chinese, 0), QByteArray());
    }

    void attributeValues()
    {
        using namespace AttributeValue;
        const QString longText(127, QLatin1Char('x'));
        QCOMPARE(gbkText({}), hex("00"));
        QCOMPARE(gbkText("键1"_s), hex("03 BC FC 31"));
        QCOMPARE(gbkText(longText + QLatin1Char('x')), hex("80") + QByteArray(128, 'x'));
        QCOMPARE(gbkText(longText + "中"_s), hex("7F") + QByteArray(127, 'x'));
        QCOMPARE(outputText("Hi"_s), hex("04 48 00 69 00"));
        // Wanted: a text output of 256 bytes counts 0, and goes whole.
        QCOMPARE(outputText(QString(128, QLatin1Char('x'))), hex("00") + hex("78 00").repeated(128));
        QCOMPARE(colour(1, 2, 3), hex("01 02 03"));
        QCOMPARE(byte(0x1FF), hex("FF"));
        QCOMPARE(file(QByteArray(0x0102, 'p')), hex("02 01 00 00") + QByteArray(0x0102, 'p'));
    }

    /// The value's end bounds the file, not the count.
    void fileOfAValue()
    {
        QCOMPARE(AttributeValue::fileOf({}), QByteArray());
        QCOMPARE(AttributeValue::fileOf(hex("01 00 00")), QByteArray());
        QCOMPARE(AttributeValue::fileOf(hex("01 00 00 00")), QByteArray());
        QCOMPARE(AttributeValue::fileOf(hex("00 00 00 00 AA BB")), hex("AA BB"));
        QCOMPARE(AttributeValue::fileOf(hex("FF FF FF FF AA")), hex("AA"));
    }
};

QTEST_APPLESS_MAIN(WireTexts)
#include "tst_wire_texts.moc"
