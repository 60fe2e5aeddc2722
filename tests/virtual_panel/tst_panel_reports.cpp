// What the panel keeps of correct reports, beyond what the tests of the program show with it.
#include "panel_model/panelmodel.h"
#include "panelbytes.h"

#include <QtTest>

class TestPanelReports : public QObject
{
    Q_OBJECT

private:
    static void send(PanelModel &panel, const QList<QByteArray> &reports)
    {
        for (const QByteArray &bytes : reports)
            panel.receive(bytes);
    }
    static PanelKey key113(const PanelModel &panel) { return panel.state().keys.value({1, 1, 3}); }
    /// Gives key 3 of page 1 the function @p fid in hex.
    static void setFunction(PanelModel &panel, const QByteArray &fid)
    {
        panel.receive(whole("0105000000 010103 08" + fid));
    }

private slots:
    void functionGivesDefaultsOnlyToANewKey()
    {
        PanelModel panel;
        setFunction(panel, "03");
        QCOMPARE(int(key113(panel).record.titleFontSize), 16);
        panel.receive(whole("0105000000 010103 07 20"));
        setFunction(panel, "02");
        QCOMPARE(int(key113(panel).record.functionId), 2);
        QCOMPARE(int(key113(panel).record.titleFontSize), 32);
        QCOMPARE(panel.violations().join("; "_s), QString());
    }

    void mergedKeyTakesALargerPicture()
    {
        PanelModel panel;
        const QByteArray layout =
            QByteArray::fromHex("0d87000000 04000100") + QByteArray(128, '\0') + QByteArray("\1\1\7");
        send(panel, blocks(layout));
        QCOMPARE(panel.state().layouts.value(4).keys, (QVector<CustomLayoutRecord::Key>{{1, 7}}));
        panel.receive(whole("0105000000 040101 08 03"));
        send(panel, blocks(attribute("04010109", picture(pngFile(180, 168)))));
        QCOMPARE(panel.state().keys.value({4, 1, 1}).picture, pngFile(180, 168));
        QCOMPARE(panel.violations().join("; "_s), QString());
        panel.receive(whole("0e01000000 04"));
        QVERIFY(panel.state().layouts.isEmpty());
    }

    /// A title without function could never be read back: it is dropped, and not a fault of the host.
    void attributeOfAnEmptyKeyIsDropped()
    {
        PanelModel panel;
        panel.receive(whole("0105000000 010103 07 0c"));
        QVERIFY(panel.state().keys.isEmpty());
        QCOMPARE(panel.violations().join("; "_s), QString());
        QCOMPARE(panel.journal().events().size(), 1);
    }

    /// 56, 57 and 58 bytes of a message that goes in blocks: flag 0, flag 2 alone, flags 1 and 2.
    void blockEdges()
    {
        const QByteArray content(53, 'x');
        const QByteArray full = content.left(52);
        PanelModel panel;
        panel.receive(hostReport(0, QByteArray::fromHex("0533000000") + content.left(51)));
        QCOMPARE(panel.state().configFile, content.left(51));
        panel.receive(hostReport(2, QByteArray::fromHex("0534000000") + full));
        QCOMPARE(panel.state().configFile, full);
        send(panel, {hostReport(1, QByteArray::fromHex("0535000000") + full), hostReport(2, "x")});
        QCOMPARE(panel.state().configFile, content);
        QCOMPARE(panel.violations().join("; "_s), QString());
    }

    void unpluggingForgetsHalfAMessage()
    {
        PanelModel panel;
        panel.receive(hostReport(1, QByteArray(57, '\x05')));
        panel.resetLink();
        panel.receive(whole("0702000000 0102"));
        QCOMPARE(panel.state().page, 2);
        QCOMPARE(panel.violations().join("; "_s), QString());
    }

    /// Between the blocks of keys (01) and layouts (0d), not of configuration, firmware and files (05, 06).
    void pausesAreAwaitedOnlyWhereTheHostHasToPause()
    {
        for (const char code : {'\x01', '\x0d', '\x05', '\x06'}) {
            PanelModel panel;
            QVERIFY(!panel.awaitsPausedBlock());
            panel.receive(hostReport(1, code + QByteArray(56, 'x')));
            QCOMPARE(panel.awaitsPausedBlock(), code == '\x01' || code == '\x0d');
        }
    }
};

QTEST_GUILESS_MAIN(TestPanelReports)
#include "tst_panel_reports.moc"
