// Every rule that the panel holds the host to.
#include "panel_model/panelmodel.h"
#include "panelbytes.h"

#include <QtTest>

namespace {

void row(const char *name, const QList<QByteArray> &reports, const char *text)
{
    QTest::newRow(name) << reports << QString::fromLatin1(text);
}

QByteArray fromHex(const char *hex)
{
    return QByteArray::fromHex(hex);
}

QByteArray customLayout(const char *head, int titleLength, const char *triples)
{
    const QByteArray title = QByteArray(titleLength, 'a').leftJustified(128, '\0');
    const QByteArray body = fromHex(head) + title + fromHex(triples);
    return '\x0d' + littleEndian(body.size(), 4) + body;
}

void addFrames()
{
    const QByteArray good = whole("0702000000 0102");
    const auto with = [&](int offset, char byte) {
        QByteArray bad = good;
        bad[offset] = byte;
        return QList<QByteArray>{bad};
    };
    row("63 bytes", {good.left(63)}, "63 bytes");
    row("report id", with(0, 0), "report id 0x00");
    row("marker", with(1, 3), "frame marker 0x03");
    row("constant", with(4, 1), "0x0002");
    row("flag 3", with(2, 3), "block flag 3");
    row("length 58", with(5, 58), "payload length 58");
    row("length above a byte", with(6, 1), "payload length 263");
    row("rest not zero", with(63, 1), "behind the payload");
    row("empty report", {hostReport(0, {})}, "empty payload");
    row("short block in the middle", {hostReport(1, fromHex("0501000000")), hostReport(2, "x")},
        "5 bytes instead of 57");
    row("message inside a message", {hostReport(1, fromHex("0535000000").leftJustified(57, 'x')), good},
        "in the middle of another");
    row("57 bytes", {hostReport(0, fromHex("0534000000").leftJustified(57, 'x'))}, "flagged 0 instead of 2");
    row("56 bytes", {hostReport(2, fromHex("0533000000").leftJustified(56, 'x'))}, "flagged 2 instead of 0");
    row("select page flagged 2", {hostReport(2, fromHex("07020000000102"))}, "goes by itself");
}

void addMessages()
{
    const auto add = [](const char *name, const char *hex, const char *text) {
        row(name, {whole(hex)}, text);
    };
    add("bare request with a length", "08 00000000", "code alone");
    add("no length field", "07 02", "length field is missing");
    add("length too large", "07 03000000 0102", "says 3");
    add("length too small", "07 01000000 0102", "says 1");
    add("unknown code", "02 00000000", "function code 0x02");
    add("brightness 255", "10 02000000 00ff", "value 255");
    add("brightness operation 2", "10 02000000 0210", "operation 2");
    add("brightness query with a value", "10 02000000 0132", "with a value");
    add("deletion without mark", "0f 01000000 5b", "mark");
    add("home layout count", "11 06000000 0102 01010101", "entry count 2");
    add("home layout key 16", "11 06000000 0101 10010101", "1/1/16");
    add("subcode 9", "06 01000000 09", "subcode 9");
}

void addAttributes()
{
    const auto add = [](const char *name, const char *hex, const char *text) {
        const QByteArray body = QByteArray::fromHex(hex);
        row(name, {hostReport(0, '\x01' + littleEndian(body.size(), 4) + body)}, text);
    };
    add("ids cut short", "010103", "ids");
    add("layout 0", "000103 01 00", "layout id 0");
    add("page 17", "011103 01 00", "page id 17");
    add("key 0", "010100 01 00", "key id 0");
    add("key 16", "010110 01 00", "key id 16");
    add("attribute 4", "010103 04 00", "attribute id 4");
    add("attribute 16, of the panel only", "010103 10 00", "attribute id 16");
    add("effect 4", "010103 01 04", "value 4");
    add("display mode 2", "010103 02 02", "value 2");
    add("alignment 3", "010103 03 03", "value 3");
    add("font size 0", "010103 07 00", "value 0");
    add("font size of two bytes", "010103 07 1000", "2 bytes instead of 1");
    add("function 0", "010103 08 00", "function id 0");
    add("function 20", "010103 08 14", "function id 20");
    add("clearing with a value", "010103 0d 00", "1 bytes instead of 0");
    add("title without count", "010103 06", "byte count is missing");
    add("title count", "010103 06 034142", "byte count 3, but 2");
    add("title not GBK", "010103 06 01ff", "not GBK");
    add("title with a NUL", "010103 06 024100", "not GBK");
    add("half a unit of text", "010105 0b 0141", "odd number");
    add("list without length", "010104 0f 00", "length is missing");
    add("list length", "010104 0f 0300", "list length 3, but 0");
    add("list step cut short", "010104 0f 0200 6405", "cut short");
    add("list in a list", "010104 0f 0300 040000", "function id 4");
    add("unused bytes of a step", "010104 0f 0300 050100", "unused bytes");
}

void addLongMessages()
{
    const auto add = [](const char *name, const QByteArray &message, const char *text) {
        row(name, blocks(message), text);
    };
    const QByteArray png = pngFile(90, 84);
    add("picture count", attribute("01010309", littleEndian(66, 4) + png), "byte count 66, but 65");
    add("picture not PNG", attribute("01010309", picture(QByteArray(80, 'x'))), "not PNG");
    add("picture without end", attribute("01010309", picture(png.chopped(1) + QByteArray(30, '\0'))),
        "not PNG");
    add("picture too wide", attribute("01010309", picture(pngFile(91, 84))), "91 x 84");
    add("merged picture on one key", attribute("01010309", picture(pngFile(180, 84))), "180 x 84");
    add("picture of no key", attribute("04010109", picture(pngFile(540, 84))), "540 x 84");
    add("title of 129 bytes", attribute("01010306", '\x81' + QByteArray(129, 'a')), "over 128");
    const QByteArray path = QByteArray("http://a").leftJustified(127, '\0');
    add("bytes behind a path", attribute("0101040f", fromHex("8300 030000") + path + 'x'),
        "behind the content");
    add("path not UTF-8", attribute("0101040f", fromHex("8300 020000 ff") + QByteArray(127, '\0')),
        "not UTF-8");
    add("layout number 0", customLayout("00000100", 0, "010101"), "layout number 0");
    add("layout title not zero-filled", customLayout("04020100", 3, "010101"), "behind the layout title");
    add("layout key number", customLayout("04000100", 0, "020101"), "another number");
    add("layout key backwards", customLayout("04000100", 0, "010701"), "from 7 to 1");
    add("layout key 16", customLayout("04000100", 0, "010110"), "from 1 to 16");
    add("layout keys overlap", customLayout("04000200", 0, "010107020202"), "covers another");
}

} // namespace

class TestPanelViolations : public QObject
{
    Q_OBJECT

private slots:
    void rules_data()
    {
        QTest::addColumn<QList<QByteArray>>("reports");
        QTest::addColumn<QString>("text");
        addFrames();
        addMessages();
        addAttributes();
        addLongMessages();
    }

    void rules()
    {
        QFETCH(QList<QByteArray>, reports);
        QFETCH(QString, text);
        PanelModel panel;
        panel.receive(whole("0105000000 010103 08 03")); // a web address
        panel.receive(whole("0105000000 010105 08 0f")); // a text
        panel.receive(whole("0105000000 010104 08 04")); // a list
        for (const QByteArray &bytes : reports)
            panel.receive(bytes);
        QCOMPARE(panel.violations().size(), 1);
        QVERIFY2(panel.violations().first().contains(text), qPrintable(panel.violations().first()));
    }

    void listNamesReportAndBytes()
    {
        PanelModel panel;
        panel.receive(whole("0702000000 0101"));
        panel.receive(whole("0702000000 0100"));
        QVERIFY(panel.violations().first().startsWith("report 2: page id 0 | 03 02 00 02 00 07 00 07"_s));
        QCOMPARE(panel.state().page, 1);
    }
};

QTEST_GUILESS_MAIN(TestPanelViolations)
#include "tst_panel_violations.moc"
