// Texts as the panel stores them: GBK, UTF-16LE, UTF-8, and the attribute values that carry them.
#include "bytesofhex.h"
#include "wire/attributevalue.h"
#include "wire/textcodec.h"

#include <QtTest>

namespace {
const QString Emoji = QStringLiteral("\U0001F600"); // outside the basic plane
}

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
        QTest::newRow("empty") << QString() << QByteArray() << none;
        QTest::newRow("ascii") << QStringLiteral("Save as") << QByteArray("Save as") << none;
        QTest::newRow("chinese") << QStringLiteral("中文") << hex("D6 D0 CE C4") << none;
        QTest::newRow("traditional, not in the older set") << QStringLiteral("鍵") << hex("E6 49") << none;
        QTest::newRow("trail byte of a backslash") << QStringLiteral("昞") << hex("95 5C") << none;
        QTest::newRow("other scripts that it has") << QStringLiteral("Яあ") << hex("A7 C1 A4 A2") << none;
        QTest::newRow("emoji, a surrogate pair")
            << QStringLiteral("a%1b").arg(Emoji) << QByteArray("a?b") << Emoji;
        QTest::newRow("four bytes in the larger set")
            << QStringLiteral("é한 ") << hex("A8 A6") + QByteArray("? ") << QStringLiteral("한");
        QTest::newRow("each lacking one listed once")
            << QStringLiteral("한国한ไ") << hex("3F B9 FA 3F 3F") << QStringLiteral("한ไ");
        QTest::newRow("half a pair spoils nothing behind it")
            << QString(QChar(0xD83D)) + QStringLiteral("中") << hex("3F D6 D0") << QString(QChar(0xD83D));
        QTest::newRow("lone surrogate")
            << QString(QChar(0xD83D)) << QByteArray("?") << QString(QChar(0xD83D));
    }

    void gbk()
    {
        QFETCH(QString, text);
        QTEST(TextCodec::toGbk(text), "bytes");
        QTEST(TextCodec::charactersNotInGbk(text), "lacking");
    }

    void fromGbk_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("text");

        QTest::newRow("chinese") << hex("D6 D0 CE C4") << QStringLiteral("中文");
        QTest::newRow("up to the first NUL") << hex("41 00 42") << QStringLiteral("A");
        QTest::newRow("all padding") << hex("00 00") << QString();
    }

    void fromGbk()
    {
        QFETCH(QByteArray, bytes);
        QTEST(TextCodec::fromGbk(bytes), "text");
    }

    void cutsOnAWholeCharacter_data()
    {
        QTest::addColumn<QByteArray>("cut");
        QTest::addColumn<QByteArray>("expected");

        using namespace TextCodec;
        const QString chinese = QStringLiteral("a中文");
        const QString smiling = QStringLiteral("ab%1").arg(Emoji);
        QTest::newRow("gbk, all fits") << toGbk(chinese, 5) << hex("61 D6 D0 CE C4");
        QTest::newRow("gbk, not half a character") << toGbk(chinese, 4) << hex("61 D6 D0");
        QTest::newRow("gbk, nothing behind the cut either")
            << toGbk(QStringLiteral("中a"), 1) << QByteArray();
        QTest::newRow("utf-8, all fits") << toUtf8(smiling, 6) << hex("61 62 F0 9F 98 80");
        QTest::newRow("utf-8, one byte short") << toUtf8(smiling, 5) << hex("61 62");
        QTest::newRow("utf-8, first byte of the character only") << toUtf8(smiling, 3) << hex("61 62");
        QTest::newRow("utf-8, nothing fits") << toUtf8(chinese.mid(1), 2) << QByteArray();
        QTest::newRow("utf-16, all fits") << toOutput(smiling, 8) << hex("61 00 62 00 3D D8 00 DE");
        QTest::newRow("utf-16, not half a pair") << toOutput(smiling, 7) << hex("61 00 62 00");
        QTest::newRow("utf-16, odd room") << toOutput(smiling, 3) << hex("61 00");
        QTest::newRow("no room") << toGbk(chinese, 0) + toUtf8(chinese, 0) + toOutput(chinese, 0)
                                 << QByteArray();
    }

    void cutsOnAWholeCharacter()
    {
        QFETCH(QByteArray, cut);
        QTEST(cut, "expected");
    }

    void textOutputComesBack_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("text");

        QTest::newRow("to the end") << hex("41 00 2D 4E") << QStringLiteral("A中");
        QTest::newRow("a zero unit ends it") << hex("41 00 00 00 42 00") << QStringLiteral("A");
        QTest::newRow("a zero byte across units does not") << hex("00 4E 00 4F") << QStringLiteral("一伀");
        QTest::newRow("odd last byte") << hex("41 00 42") << QStringLiteral("A");
        QTest::newRow("one byte") << hex("41") << QString();
        QTest::newRow("pair") << hex("3D D8 00 DE") << Emoji;
    }

    void textOutputComesBack()
    {
        QFETCH(QByteArray, bytes);
        QTEST(TextCodec::fromOutput(bytes), "text");
    }

    void attributeValues_data()
    {
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<QByteArray>("expected");

        using namespace AttributeValue;
        QTest::newRow("title of no characters") << gbkText(QString()) << hex("00");
        QTest::newRow("title") << gbkText(QStringLiteral("键1")) << hex("03 BC FC 31");
        QTest::newRow("longest address")
            << gbkText(QString(128, QLatin1Char('x'))) << hex("80") + QByteArray(128, 'x');
        QTest::newRow("address cut before the character that does not fit")
            << gbkText(QString(127, QLatin1Char('x')) + QStringLiteral("中"))
            << hex("7F") + QByteArray(127, 'x');
        QTest::newRow("text output") << outputText(QStringLiteral("Hi")) << hex("04 48 00 69 00");
        QTest::newRow("text output of 256 bytes counts 0, the text goes whole")
            << outputText(QString(128, QLatin1Char('x'))) << hex("00") + hex("78 00").repeated(128);
        QTest::newRow("colour: red, green, blue") << colour(1, 2, 3) << hex("01 02 03");
        QTest::newRow("low 8 bits of a number") << byte(0x1FF) << hex("FF");
        QTest::newRow("picture") << file(QByteArray(0x0102, 'p'))
                                 << hex("02 01 00 00") + QByteArray(0x0102, 'p');
    }

    void attributeValues()
    {
        QFETCH(QByteArray, value);
        QTEST(value, "expected");
    }

    void fileOfAValue_data()
    {
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<QByteArray>("file");

        QTest::newRow("nothing") << QByteArray() << QByteArray();
        QTest::newRow("count cut short") << hex("01 00 00") << QByteArray();
        QTest::newRow("count alone") << hex("01 00 00 00") << QByteArray();
        QTest::newRow("file") << hex("02 00 00 00 AA BB") << hex("AA BB");
        QTest::newRow("the value's end bounds the file, not the count")
            << hex("00 00 00 00 AA BB") << hex("AA BB");
        QTest::newRow("count beyond the end") << hex("FF FF FF FF AA") << hex("AA");
    }

    void fileOfAValue()
    {
        QFETCH(QByteArray, value);
        QTEST(AttributeValue::fileOf(value), "file");
    }
};

QTEST_APPLESS_MAIN(WireTexts)
#include "tst_wire_texts.moc"
