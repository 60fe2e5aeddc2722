// Texts as the panel stores them: GBK, UTF-16LE, UTF-8, and the attribute values that carry them.
#include "bytesofhex.h"
#include "wire/attributevalue.h"
#include "wire/textcodec.h"

#include <QtTest>

namespace {
const QString Emoji = QStringLiteral("\U0001F600"); // outside the basic plane
const QString HalfAPair = QChar(0xD83D);
} // namespace

class WireTexts : public QObject
{
    Q_OBJECT

private slots:
    void gbk_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("lacking");

        const QString none;
        QTest::newRow("chinese") << QStringLiteral("a中文") << hex("61 D6 D0 CE C4") << none;
        QTest::newRow("traditional, not in the older set") << QStringLiteral("鍵") << hex("E6 49") << none;
        QTest::newRow("trail byte of a backslash") << QStringLiteral("昞") << hex("95 5C") << none;
        QTest::newRow("other scripts that it has") << QStringLiteral("Яあ") << hex("A7 C1 A4 A2") << none;
        QTest::newRow("a surrogate pair") << QStringLiteral("a%1b").arg(Emoji) << QByteArray("a?b") << Emoji;
        QTest::newRow("each lacking one listed once, also one of four bytes in the larger set")
            << QStringLiteral("한国한ไ") << hex("3F B9 FA 3F 3F") << QStringLiteral("한ไ");
        QTest::newRow("half a pair spoils nothing behind it")
            << HalfAPair + QStringLiteral("中") << hex("3F D6 D0") << HalfAPair;
        QTest::newRow("half a pair alone") << HalfAPair << QByteArray("?") << HalfAPair;
    }

    void gbk()
    {
        QFETCH(QString, text);
        QTEST(TextCodec::toGbk(text), "bytes");
        QTEST(TextCodec::charactersNotInGbk(text), "lacking");
    }

    void textsComeBack()
    {
        using namespace TextCodec;
        QCOMPARE(fromGbk(hex("D6 D0 CE C4")), QStringLiteral("中文"));
        QCOMPARE(fromGbk(hex("41 00 42")), QStringLiteral("A")); // up to the first NUL
        QCOMPARE(fromGbk(hex("00 00")), QString());
        QCOMPARE(fromOutput(hex("41 00 2D 4E 3D D8 00 DE")), QStringLiteral("A中") + Emoji);
        QCOMPARE(fromOutput(hex("41 00 00 00 42 00")), QStringLiteral("A")); // up to the first zero unit
        QCOMPARE(fromOutput(hex("00 4E 00 4F")), QStringLiteral("一伀"));    // zero bytes end nothing
        QCOMPARE(fromOutput(hex("41 00 42")), QStringLiteral("A"));          // an odd last byte
        QCOMPARE(fromOutput(hex("41")), QString());
    }

    void cutsOnAWholeCharacter()
    {
        using namespace TextCodec;
        const QString chinese = QStringLiteral("a中文");
        QCOMPARE(toGbk(chinese, 5), hex("61 D6 D0 CE C4"));
        QCOMPARE(toGbk(chinese, 4), hex("61 D6 D0"));
        QCOMPARE(toGbk(QStringLiteral("中a"), 1), QByteArray()); // nothing behind the cut either
        const QString smiling = QStringLiteral("ab") + Emoji;
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
        QCOMPARE(gbkText(QStringLiteral("键1")), hex("03 BC FC 31"));
        QCOMPARE(gbkText(longText + QLatin1Char('x')), hex("80") + QByteArray(128, 'x'));
        QCOMPARE(gbkText(longText + QStringLiteral("中")), hex("7F") + QByteArray(127, 'x'));
        QCOMPARE(outputText(QStringLiteral("Hi")), hex("04 48 00 69 00"));
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
