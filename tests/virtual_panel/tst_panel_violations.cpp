// Every rule that the panel holds the host to.
#include "panel_model/panelmodel.h"
#include "panelbytes.h"

#include <QtTest>

class TestPanelViolations : public QObject
{
    Q_OBJECT

    /// Sent first: key 1/1/3 opens a web address, key 1/1/5 types a text, key 1/1/4 has a list.
    static QList<QByteArray> keys()
    {
        return {whole("0105000000"
                      "01010308"
                      "03"),
                whole("0105000000"
                      "01010508"
                      "0f"),
                whole("0105000000"
                      "01010408"
                      "04")};
    }

    static void check(const QList<QByteArray> &reports, const QString &text)
    {
        PanelModel panel;
        for (const QByteArray &bytes : keys() + reports)
            panel.receive(bytes);
        QCOMPARE(panel.violations().size(), 1);
        QVERIFY2(panel.violations().first().contains(text), qPrintable(panel.violations().first()));
    }

private slots:
    void frames_data()
    {
        QTest::addColumn<QList<QByteArray>>("reports");
        QTest::addColumn<QString>("text");
        const auto add = [](const char *name, const QList<QByteArray> &reports, const char *text) {
            QTest::newRow(name) << reports << QString::fromLatin1(text);
        };
        const QByteArray good = whole("0702000000"
                                      "0102");
        const auto with = [&](int offset, char byte) {
            QByteArray bad = good;
            bad[offset] = byte;
            return QList<QByteArray>{bad};
        };
        add("63 bytes", {good.left(63)}, "63 bytes");
        add("65 bytes", {good + '\0'}, "65 bytes");
        add("report id", with(0, 0), "report id 0x00");
        add("marker", with(1, 3), "frame marker 0x03");
        add("constant", with(4, 1), "0x0002");
        add("flag 3", with(2, 3), "block flag 3");
        add("length 58", with(5, 58), "payload length 58");
        add("length above a byte", with(6, 1), "payload length 263");
        add("rest not zero", with(63, 1), "behind the payload");
        add("short block in the middle",
            {hostReport(1, QByteArray::fromHex("0501000000")), hostReport(2, "x")}, "5 bytes instead of 57");
        add("empty report", {hostReport(0, {})}, "empty payload");
        add("message inside a message",
            {hostReport(1, QByteArray::fromHex("0535000000").leftJustified(57, 'x')), good},
            "in the middle of another");
    }

    void frames()
    {
        QFETCH(QList<QByteArray>, reports);
        QFETCH(QString, text);
        check(reports, text);
    }

    void flags_data()
    {
        QTest::addColumn<QList<QByteArray>>("reports");
        QTest::addColumn<QString>("text");
        const auto add = [](const char *name, const QList<QByteArray> &reports, const char *text) {
            QTest::newRow(name) << reports << QString::fromLatin1(text);
        };
        const QByteArray file57 = QByteArray::fromHex("0534000000") + QByteArray(52, 'x');
        add("57 bytes in blocks flagged 0", {hostReport(0, file57)}, "flagged 0 instead of 2");
        add("56 bytes in blocks flagged 2",
            {hostReport(2, QByteArray::fromHex("0533000000") + QByteArray(51, 'x'))},
            "flagged 2 instead of 0");
        add("select page flagged 2", {hostReport(2, QByteArray::fromHex("07020000000102"))},
            "goes by itself");
        add("bare request in blocks", {hostReport(2, QByteArray::fromHex("08"))}, "goes by itself");
    }

    void flags()
    {
        QFETCH(QList<QByteArray>, reports);
        QFETCH(QString, text);
        check(reports, text);
    }

    void messages_data()
    {
        QTest::addColumn<QByteArray>("hex");
        QTest::addColumn<QString>("text");
        const auto add = [](const char *name, const char *hex, const char *text) {
            QTest::newRow(name) << QByteArray(hex) << QString::fromLatin1(text);
        };
        add("bare request with a length", "0800000000", "code alone");
        add("no length field", "0702", "length field is missing");
        add("length too large",
            "0703000000"
            "0102",
            "says 3");
        add("length too small",
            "0701000000"
            "0102",
            "says 1");
        add("unknown code", "0200000000", "function code 0x02");
        add("ids cut short",
            "0103000000"
            "010103",
            "ids");
        add("layout 0",
            "0105000000"
            "00010301"
            "00",
            "layout id 0");
        add("page 17",
            "0105000000"
            "01110301"
            "00",
            "page id 17");
        add("page 0 selected",
            "0702000000"
            "0100",
            "page id 0");
        add("key 0",
            "0105000000"
            "01010001"
            "00",
            "key id 0");
        add("key 16",
            "0105000000"
            "01011001"
            "00",
            "key id 16");
        add("attribute 4",
            "0105000000"
            "01010304"
            "00",
            "attribute id 4");
        add("attribute 16",
            "0105000000"
            "01010310"
            "00",
            "attribute id 16");
        add("attribute 17",
            "0105000000"
            "01010511"
            "00",
            "attribute id 17");
        add("effect 4",
            "0105000000"
            "01010301"
            "04",
            "value 4");
        add("display mode 2",
            "0105000000"
            "01010302"
            "02",
            "value 2");
        add("alignment 3",
            "0105000000"
            "01010303"
            "03",
            "value 3");
        add("font size 0",
            "0105000000"
            "01010307"
            "00",
            "value 0");
        add("font size of two bytes",
            "0106000000"
            "01010307"
            "1000",
            "2 bytes instead of 1");
        add("function 0",
            "0105000000"
            "01010308"
            "00",
            "function id 0");
        add("function 20",
            "0105000000"
            "01010308"
            "14",
            "function id 20");
        add("delay as a function",
            "0105000000"
            "01010308"
            "64",
            "function id 100");
        add("colour of two bytes",
            "0106000000"
            "0101030c"
            "0000",
            "2 bytes instead of 3");
        add("clearing with a value",
            "0105000000"
            "0101030d"
            "00",
            "1 bytes instead of 0");
        add("combination of three codes",
            "0107000000"
            "0101030e"
            "010203",
            "3 bytes instead of 4");
        add("title without count",
            "0104000000"
            "01010306",
            "byte count is missing");
        add("title count",
            "0107000000"
            "01010306"
            "034142",
            "byte count 3, but 2");
        add("title not GBK",
            "0106000000"
            "01010306"
            "01ff",
            "not GBK");
        add("title with a NUL",
            "0107000000"
            "01010306"
            "024100",
            "not GBK");
        add("half a unit of text",
            "0106000000"
            "0101050b"
            "0141",
            "odd number");
        add("text count",
            "0107000000"
            "0101050b"
            "044100",
            "byte count 4, but 2");
        add("brightness 255",
            "1002000000"
            "00ff",
            "value 255");
        add("brightness operation 2",
            "1002000000"
            "0210",
            "operation 2");
        add("brightness query with a value",
            "1002000000"
            "0132",
            "with a value");
        add("brightness of one byte",
            "1001000000"
            "00",
            "1 bytes instead of 2");
        add("deletion without mark",
            "0f01000000"
            "5b",
            "mark");
        add("system type of two bytes",
            "1202000000"
            "0000",
            "2 bytes instead of 1");
        add("home layout count",
            "1106000000"
            "0102"
            "01010101",
            "entry count 2");
        add("home layout key 16",
            "1106000000"
            "0101"
            "10010101",
            "1/1/16");
        add("home layout page 17",
            "1106000000"
            "0101"
            "01011101",
            "1/17/1");
        add("subcode 9",
            "0601000000"
            "09",
            "subcode 9");
        add("upgrade message without subcode", "0600000000", "subcode is missing");
        add("list without length",
            "0105000000"
            "0101040f"
            "00",
            "length is missing");
        add("list length",
            "0106000000"
            "0101040f"
            "0300",
            "list length 3, but 0");
        add("list step cut short",
            "0108000000"
            "0101040f"
            "0200"
            "6405",
            "cut short");
        add("list step 0",
            "0109000000"
            "0101040f"
            "0300"
            "000000",
            "function id 0");
        add("list in a list",
            "0109000000"
            "0101040f"
            "0300"
            "040000",
            "function id 4");
        add("unused bytes of a step",
            "0109000000"
            "0101040f"
            "0300"
            "050100",
            "unused bytes");
    }

    void messages()
    {
        QFETCH(QByteArray, hex);
        QFETCH(QString, text);
        check({whole(hex)}, text);
    }

    void longMessages_data()
    {
        QTest::addColumn<QByteArray>("message");
        QTest::addColumn<QString>("text");
        const auto add = [](const char *name, const QByteArray &message, const char *text) {
            QTest::newRow(name) << message << QString::fromLatin1(text);
        };
        const QByteArray png = pngFile(90, 84).leftJustified(80, '\0');
        add("picture count", attribute("01010309", littleEndian(81, 4) + png), "byte count 81, but 80");
        add("picture not PNG", attribute("01010309", picture(QByteArray(80, 'x'))), "not PNG");
        add("picture without end",
            attribute("01010309", picture(pngFile(90, 84).chopped(1) + QByteArray(30, '\0'))), "not PNG");
        add("picture too wide", attribute("01010309", picture(pngFile(91, 84))), "91 x 84");
        add("merged picture on one key", attribute("01010309", picture(pngFile(180, 84))), "180 x 84");
        add("picture of no key", attribute("04010109", picture(pngFile(540, 84))), "540 x 84");
        add("title of 129 bytes", attribute("01010306", QByteArray::fromHex("81") + QByteArray(129, 'a')),
            "over 128");
        add("address of 129 bytes", attribute("0101030b", QByteArray::fromHex("81") + QByteArray(129, 'a')),
            "over 128");
        const QByteArray path = QByteArray("http://a").leftJustified(127, '\0');
        add("bytes behind a path",
            attribute("0101040f", littleEndian(131, 2) + QByteArray::fromHex("030000") + path + 'x'),
            "behind the content");
        add("path not UTF-8",
            attribute("0101040f",
                      littleEndian(131, 2) + QByteArray::fromHex("020000ff") + QByteArray(127, '\0')),
            "not UTF-8");
        const auto layout = [](const char *head, int titleLength, const char *triples) {
            QByteArray body = QByteArray::fromHex(head) +
                              QByteArray(titleLength, 'a').leftJustified(128, '\0') +
                              QByteArray::fromHex(triples);
            return QByteArray(1, '\x0d') + littleEndian(body.size(), 4) + body;
        };
        add("layout number 0", layout("00000100", 0, "010101"), "layout number 0");
        add("layout key count", layout("04000200", 0, "010101"), "key count 2, but 3");
        add("layout title not zero-filled", layout("04020100", 3, "010101"), "behind the layout title");
        add("layout key number", layout("04000100", 0, "020101"), "another number");
        add("layout key backwards", layout("04000100", 0, "010701"), "from 7 to 1");
        add("layout key 16", layout("04000100", 0, "010110"), "from 1 to 16");
        add("layout keys overlap", layout("04000200", 0, "010107020202"), "covers another");
    }

    void longMessages()
    {
        QFETCH(QByteArray, message);
        QFETCH(QString, text);
        check(blocks(message), text);
    }

    void listNamesReportAndBytes()
    {
        PanelModel panel;
        panel.receive(whole("0702000000"
                            "0101"));
        panel.receive(whole("0702000000"
                            "0100"));
        QVERIFY(panel.violations().first().startsWith(
            QStringLiteral("report 2: page id 0 | 03 02 00 02 00 07 00 07")));
        QCOMPARE(panel.state().page, 1);
    }
};

QTEST_GUILESS_MAIN(TestPanelViolations)
#include "tst_panel_violations.moc"
