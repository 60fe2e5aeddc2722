// What the panel keeps of correct reports.
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
        QCOMPARE(panel.violations(), QStringList());
    }

    void attributes()
    {
        PanelModel panel;
        setFunction(panel, "03");
        for (const char *hex :
             {"0105000000 010103 01 02", "0105000000 010103 02 01", "0105000000 010103 03 01",
              "0105000000 010103 07 0c", "0107000000 010103 0c 102030", "0109000000 010103 06 04c4e3bac3",
              "0109000000 010103 0b 04c4e3bac3"}) // the address becomes UTF-8
            panel.receive(whole(hex));
        const KeyRecord expected{.layoutId = 1,
                                 .pageId = 1,
                                 .keyId = 3,
                                 .functionId = 3,
                                 .imageEffects = 2,
                                 .displayMode = 1,
                                 .titleAlignment = 1,
                                 .titleFontSize = 12,
                                 .red = 0x10,
                                 .green = 0x20,
                                 .blue = 0x30,
                                 .title = QByteArray::fromHex("c4e3bac3"),
                                 .content = QByteArray::fromHex("e4bda0e5a5bd")};
        QVERIFY(key113(panel).record == expected);
        panel.receive(whole("0105000000 010103 06 00"));
        QCOMPARE(key113(panel).record.title, QByteArray());
        QCOMPARE(panel.violations(), QStringList());
    }

    void picturesUnderBothIds()
    {
        for (const char *ids : {"01010305", "01010309"}) {
            PanelModel panel;
            setFunction(panel, "03");
            send(panel, blocks(attribute(ids, picture(pngFile(90, 84)))));
            QCOMPARE(key113(panel).picture, pngFile(90, 84));
            QCOMPARE(panel.violations(), QStringList());
        }
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
        QCOMPARE(panel.violations(), QStringList());
        panel.receive(whole("0e01000000 04"));
        QVERIFY(panel.state().layouts.isEmpty());
    }

    void actionList()
    {
        PanelModel panel;
        setFunction(panel, "04");
        const QByteArray list =
            QByteArray::fromHex("8600 640a00 030000") + QByteArray("http://a").leftJustified(128, '\0');
        send(panel, blocks(attribute("0101030f", list)));
        QCOMPARE(key113(panel).actions, list);
        panel.receive(whole("0106000000 010103 0f 0000"));
        QCOMPARE(key113(panel).actions, QByteArray(2, '\0'));
        QCOMPARE(panel.violations(), QStringList());
    }

    void clearing()
    {
        PanelModel panel;
        for (const char *clear : {"0104000000 010103 0d", "0f01000000 5a"}) {
            setFunction(panel, "03");
            panel.receive(whole(clear));
            QVERIFY(panel.state().keys.isEmpty());
        }
        QCOMPARE(panel.violations(), QStringList());
    }

    /// A title without function could never be read back: it is dropped, and not a fault of the host.
    void attributeOfAnEmptyKeyIsDropped()
    {
        PanelModel panel;
        panel.receive(whole("0105000000 010103 07 0c"));
        QVERIFY(panel.state().keys.isEmpty());
        QCOMPARE(panel.violations(), QStringList());
        QCOMPARE(panel.journal().events().size(), 1);
    }

    void settings()
    {
        PanelModel panel;
        panel.receive(whole("1002000000 0032"));
        QCOMPARE(int(panel.state().brightness), 50);
        panel.receive(whole("1201000000 01"));
        QCOMPARE(int(panel.state().systemType), 1);
        panel.receive(whole("1106000000 0201 0301ffff"));
        QCOMPARE(panel.state().home.layoutId, 2);
        QCOMPARE(panel.state().home.entries, (QVector<HomeLayout::Entry>{{3, 1, -1, -1}}));
        const QByteArray file = QByteArray("a.txt").leftJustified(32, '\0') + "hello";
        panel.receive(hostReport(0, QByteArray::fromHex("0626000000 10") + file));
        QCOMPARE(panel.state().files.value(QStringLiteral("a.txt")), QByteArray("hello"));
        QCOMPARE(panel.violations(), QStringList());
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
        QCOMPARE(panel.violations(), QStringList());
    }

    void unpluggingForgetsHalfAMessage()
    {
        PanelModel panel;
        panel.receive(hostReport(1, QByteArray(57, '\x05')));
        panel.resetLink();
        panel.receive(whole("0702000000 0102"));
        QCOMPARE(panel.state().page, 2);
        QCOMPARE(panel.violations(), QStringList());
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
