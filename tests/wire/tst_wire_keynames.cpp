// Key names and usage codes, both ways, and the combinations made of them.
#include "bytesofhex.h"
#include "wire/keynames.h"
#include "wire/keyrecord.h"

#include <QtTest>

class WireKeyNames : public QObject
{
    Q_OBJECT

private slots:
    void codeOfAName_data()
    {
        QTest::addColumn<int>("code");

        const auto row = [](const char *name, int code) {
            QTest::newRow(name) << code;
        };
        row("Windows", 227);
        row("Alt", 226);
        row("Right Shift", 229);
        row("Alt gr", 230);
        row("Delete", 42);
        row("Delete Forward", 76);
        row("ESC", 41);
        row("END", 77);
        row("PageUp", 78);
        row("PageDown", 79);
        row("RightArrow", 79);
        row("F1", 58);
        row("F12", 69);
        row("A", 4);
        row("Z", 29);
        row("1", 30);
        row("9", 38);
        row("0", 39);
        row("\\", 49);
        row(";", 51);
        row("/", 56);
        row("&", 199);
        row("&&", 200);
        row("||", 202);
        row("#", 204);
        row("@", 205);
        row("!", 206);
        row("left ctrl", 0);
        row("a", 0);
        row("undefine", 0);
        row("", 0);
    }

    void codeOfAName() { QTEST(int(KeyNames::code(QString::fromLatin1(QTest::currentDataTag()))), "code"); }

    void nameOfACode_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("name");

        QTest::newRow("nothing") << 0 << QStringLiteral("undefine");
        QTest::newRow("gap where the standard has PageUp") << 75 << QStringLiteral("undefine");
        QTest::newRow("shared by two names") << 79 << QStringLiteral("PageDown");
        QTest::newRow("left arrow") << 80 << QStringLiteral("LeftArrow");
        QTest::newRow("gap between backslash and semicolon") << 50 << QStringLiteral("undefine");
        QTest::newRow("doubled sign") << 200 << QStringLiteral("&&");
        QTest::newRow("at") << 205 << QStringLiteral("@");
        QTest::newRow("left control") << 224 << QStringLiteral("Left Ctrl");
        QTest::newRow("gap before the modifiers") << 223 << QStringLiteral("undefine");
        QTest::newRow("highest") << 255 << QStringLiteral("undefine");
    }

    void nameOfACode()
    {
        QFETCH(int, code);
        QTEST(KeyNames::name(quint8(code)), "name");
    }

    /// A slip in one of the hundred rows (two names with one code, a name twice) shows here.
    void everyNameComesBackButOne()
    {
        const QStringList names = KeyNames::all();
        QCOMPARE(names.size(), 98);
        QCOMPARE(QSet<QString>(names.begin(), names.end()).size(), names.size());
        QStringList changed;
        for (const QString &name : names) {
            if (KeyNames::name(KeyNames::code(name)) != name)
                changed << name;
        }
        QCOMPARE(changed, QStringList(QStringLiteral("RightArrow")));
    }

    void combinations_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("codes");

        QTest::newRow("empty") << QString() << hex("00 00 00 00");
        QTest::newRow("four empty parts and a fifth") << QStringLiteral("####") << hex("00 00 00 00");
        QTest::newRow("two names, two empty parts") << QStringLiteral("Left Ctrl#C##") << hex("E0 06 00 00");
        QTest::newRow("two names") << QStringLiteral("Left Ctrl#C") << hex("E0 06 00 00");
        QTest::newRow("empty part in front") << QStringLiteral("#Alt#Tab") << hex("00 E2 2B 00");
        QTest::newRow("unknown name") << QStringLiteral("Ctrl#A#undefine#1") << hex("00 04 00 1E");
        QTest::newRow("parts beyond the fourth") << QStringLiteral("A#B#C#D#E") << hex("04 05 06 07");
    }

    void combinations()
    {
        QFETCH(QString, text);
        QTEST(keyCombinationCodes(text), "codes");
    }

    void combinationText_data()
    {
        QTest::addColumn<QByteArray>("codes");
        QTest::addColumn<QString>("text");

        QTest::newRow("two keys") << hex("E0 06 00 00") << QStringLiteral("Left Ctrl#C#undefine#undefine");
        QTest::newRow("missing bytes read as 0")
            << hex("04") << QStringLiteral("A#undefine#undefine#undefine");
        QTest::newRow("more than four bytes") << hex("04 05 06 07 08") << QStringLiteral("A#B#C#D");
    }

    void combinationText()
    {
        QFETCH(QByteArray, codes);
        QTEST(keyCombinationText(codes), "text");
    }
};

QTEST_APPLESS_MAIN(WireKeyNames)
#include "tst_wire_keynames.moc"
