// Key names and usage codes, both ways, and the combinations made of them.
#include "bytesofhex.h"
#include "wire/keynames.h"
#include "wire/keyrecord.h"

#include <QtTest>

class WireKeyNames : public QObject
{
    Q_OBJECT

private slots:
    /// The edges of the blocks of codes, and names that are easily mixed up.
    void codeOfAName()
    {
        using Names = QVector<QPair<const char *, int>>;
        const Names printed{{"A", 4},  {"Z", 29},  {"1", 30}, {"9", 38},
                            {"0", 39}, {"\\", 49}, {";", 51}, {"/", 56}};
        const Names signs{{"&", 199}, {"&&", 200}, {"||", 202}, {"#", 204}, {"!", 206}};
        const Names others{{"Delete", 42}, {"Delete Forward", 76}, {"F1", 58},
                           {"F12", 69},    {"PageUp", 78},         {"RightArrow", 79}};
        const Names modifiers{{"Alt", 226}, {"Windows", 227}, {"Right Shift", 229}, {"Alt gr", 230}};
        const Names unknown{{"left ctrl", 0}, {"a", 0}, {"undefine", 0}, {"", 0}};
        for (const auto &[name, code] : printed + signs + others + modifiers + unknown)
            QVERIFY2(KeyNames::code(QString::fromLatin1(name)) == code, name);
    }

    void nameOfACode()
    {
        for (const int gap : {0, 50, 75, 223, 255})
            QCOMPARE(KeyNames::name(quint8(gap)), "undefine"_s);
        QCOMPARE(KeyNames::name(79), "PageDown"_s); // shared by two names
        QCOMPARE(KeyNames::name(80), "LeftArrow"_s);
        QCOMPARE(KeyNames::name(205), "@"_s);
        QCOMPARE(KeyNames::name(224), "Left Ctrl"_s);
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
        QCOMPARE(changed, QStringList("RightArrow"_s));
    }

    void combinations()
    {
        QCOMPARE(keyCombinationCodes({}), hex("00 00 00 00"));
        QCOMPARE(keyCombinationCodes("####"_s), hex("00 00 00 00"));
        QCOMPARE(keyCombinationCodes("Left Ctrl#C##"_s), hex("E0 06 00 00"));
        QCOMPARE(keyCombinationCodes("#Alt#Tab"_s), hex("00 E2 2B 00"));
        QCOMPARE(keyCombinationCodes("Ctrl#A#undefine#1"_s), hex("00 04 00 1E"));
        QCOMPARE(keyCombinationCodes("A#B#C#D#E"_s), hex("04 05 06 07"));
    }

    void combinationText()
    {
        QCOMPARE(keyCombinationText(hex("E0 06 00 00")), "Left Ctrl#C#undefine#undefine"_s);
        QCOMPARE(keyCombinationText(hex("04")), "A#undefine#undefine#undefine"_s);
        QCOMPARE(keyCombinationText(hex("04 05 06 07 08")), "A#B#C#D"_s);
    }
};

QTEST_APPLESS_MAIN(WireKeyNames)
#include "tst_wire_keynames.moc"
