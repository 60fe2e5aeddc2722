// What the panel sends, byte for byte.
#include "panel_model/panelmodel.h"
#include "panelbytes.h"
#include "support/table.h"

class TestPanelReplies : public QObject
{
    Q_OBJECT

private:
    static QByteArray payloads(const QList<QByteArray> &reports)
    {
        QByteArray all;
        for (const QByteArray &bytes : reports)
            all += bytes.mid(6, static_cast<quint8>(bytes.at(4)));
        return all;
    }
    static QByteArray flags(const QList<QByteArray> &reports)
    {
        QByteArray all;
        for (const QByteArray &bytes : reports)
            all += bytes.at(1);
        return all;
    }

    using ReplyTable = Table<QByteArray, QByteArray>;
    using UpgradeTable = Table<bool, QByteArray, QByteArray>;

private slots:
    void shortReplies_data()
    {
        const ReplyTable row;
        row("hardware version", "03", "00000000 1100 030c000000 5049432d485720312e322e30");
        row("software version", "04", "00000000 1100 040c000000 5049432d535720332e342e31");
        row("brightness", "1002000000 0100", "00000000 0700 1002000000 0150");
        row("home layout", "11", "00000000 0700 1102000000 0100");
        row("system type set", "1201000000 01", "00000000 0600 1201000000 01");
        row("system type asked", "1201000000 ff", "00000000 0600 1201000000 00");
        row("empty configuration", "08", "00000000 0700 0802000000 0101");
    }

    void shortReplies()
    {
        const auto [request, reply] = ReplyTable::current();
        PanelModel panel;
        panel.receive(whole(request));
        const QList<QByteArray> sent = panel.takeOutgoing();
        QCOMPARE(sent.size(), 1);
        // Bytes 0, 2 and 3 are the panel's affair: nobody reads them.
        QCOMPARE(sent.first().mid(4), report(reply.constData()).mid(4));
        QCOMPARE(flags(sent), QByteArray(1, '\0'));
        QVERIFY(panel.takeOutgoing().isEmpty());
    }

    /// Two pages: a multi-action key, and one without a picture.
    void configuration()
    {
        PanelModel panel;
        panel.receive(whole("0105000000 010101 08 04"));
        panel.receive(whole("0109000000 010101 0f 0300 640a00"));
        const QByteArray pictureMessage = attribute("01010109", picture(pngFile(90, 84)));
        for (const QByteArray &block : blocks(pictureMessage))
            panel.receive(block);
        panel.receive(whole("0105000000 02100f 08 03"));
        panel.receive(whole("0106000000 02100f 06 0141"));
        QCOMPARE(panel.violations().join("; "_s), QString());

        panel.receive(whole("08"));
        const QList<QByteArray> sent = panel.takeOutgoing();
        // 279 bytes of page 1 in 5 blocks, the list whole, 78 bytes of picture in 2 blocks, 279 bytes of page
        // 16, and the empty picture in a block of its own: whole, it would be taken for a key press.
        QCOMPARE(flags(sent), QByteArray::fromHex("0101010102 00 0102 0101010102 02"));
        const QByteArray firstPage = QByteArray::fromHex("0812010000 0101 010101 0000 04 00000000 10 00ff00");
        const QByteArray list = QByteArray::fromHex("0109000000 010101 0f 0300 640a00");
        const QByteArray lastPage =
            QByteArray::fromHex("0812010000 0210 02100f 0000 03 00000000 10 00ff00 0141");
        const QByteArray noPicture = QByteArray::fromHex("0108000000 02100f 09 00000000");
        QCOMPARE(payloads(sent), firstPage.leftJustified(279, '\0') + list + pictureMessage +
                                     lastPage.leftJustified(279, '\0') + noPicture);
    }

    void upgrade_data()
    {
        const UpgradeTable row;
        row("taken", false, "00", "123456789");
        row("dropped by the host", false, "01", {});
        row("wrong checksum", true, "01", {});
    }

    void upgrade()
    {
        const auto [wrongCrc, status, firmware] = UpgradeTable::current();
        PanelModel panel;
        panel.setFaults({.silent = false, .wrongCrc = wrongCrc, .unplugAfter = -1});
        panel.receive(whole("0601000000 01"));
        QCOMPARE(payloads(panel.takeOutgoing()), QByteArray::fromHex("0601000000 02"));
        panel.receive(whole("0601000000 06"));
        QCOMPARE(payloads(panel.takeOutgoing()), QByteArray::fromHex("0601000000 07"));
        // A short firmware is one report flagged 2.
        panel.receive(hostReport(2, QByteArray::fromHex("060a000000 03") + "123456789"));
        QCOMPARE(payloads(panel.takeOutgoing()),
                 QByteArray::fromHex(wrongCrc ? "0603000000 04 4ed6" : "0603000000 04 b129"));
        panel.receive(whole("0602000000 05" + status));
        QVERIFY(panel.takeOutgoing().isEmpty());
        QCOMPARE(panel.state().firmware, firmware);
        QCOMPARE(panel.takeRestart(), !firmware.isEmpty());
        QVERIFY(!panel.takeRestart());
        QCOMPARE(panel.violations().join("; "_s), QString());
    }

    void upgradeOutOfOrder_data()
    {
        QTest::addColumn<QList<QByteArray>>("reports"); // an empty one: replugged
        const auto row = [](const char *name, const QList<QByteArray> &reports) {
            QTest::newRow(name) << reports;
        };
        const QByteArray request = whole("0601000000 01");
        const QByteArray erase = whole("0601000000 06");
        const QByteArray data = hostReport(2, QByteArray::fromHex("0602000000 0341"));
        row("erase first", {erase});
        row("data without erase", {request, data});
        row("status without data", {request, erase, whole("0602000000 0500")});
        row("data after replugging", {request, erase, QByteArray(), data});
        row("data flagged 0", {request, erase, whole("0602000000 0341")});
        row("status 2", {request, erase, data, whole("0602000000 0502")});
    }

    void upgradeOutOfOrder()
    {
        QFETCH(QList<QByteArray>, reports);
        PanelModel panel;
        for (const QByteArray &bytes : reports) {
            if (bytes.isEmpty())
                panel.resetLink();
            else
                panel.receive(bytes);
        }
        QCOMPARE(panel.violations().size(), 1);
        QVERIFY(panel.state().firmware.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestPanelReplies)
#include "tst_panel_replies.moc"
