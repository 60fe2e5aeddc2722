// What the panel keeps of correct reports.
#include "panel_model/panelmodel.h"
#include "panelbytes.h"

#include <QtTest>

Q_DECLARE_METATYPE(KeyRecord)

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
    /// A panel whose key 3 of page 1 has function @p fid in hex.
    static void setFunction(PanelModel &panel, const char *fid)
    {
        panel.receive(whole(QByteArray("0105000000") + "01010308" + fid));
    }

private slots:
    void selectPage()
    {
        PanelModel panel;
        panel.receive(report("03020002000700"
                             "07020000000102"));
        QCOMPARE(panel.state().layout, 1);
        QCOMPARE(panel.state().page, 2);
        QCOMPARE(panel.violations(), QStringList());
    }

    void functionGivesDefaultsOnlyToANewKey()
    {
        PanelModel panel;
        setFunction(panel, "03");
        QCOMPARE(int(key113(panel).record.functionId), 3);
        QCOMPARE(int(key113(panel).record.titleFontSize), 16);
        QCOMPARE(int(key113(panel).record.green), 255);
        panel.receive(whole("0105000000"
                            "01010307"
                            "20"));
        setFunction(panel, "02");
        QCOMPARE(int(key113(panel).record.functionId), 2);
        QCOMPARE(int(key113(panel).record.titleFontSize), 32);
        QCOMPARE(panel.violations(), QStringList());
    }

    void attributes_data()
    {
        QTest::addColumn<QByteArray>("hex");
        QTest::addColumn<KeyRecord>("expected");
        KeyRecord base;
        base.layoutId = 1;
        base.pageId = 1;
        base.keyId = 3;
        base.functionId = 3;
        base.titleFontSize = 16;
        base.green = 255;
        const auto row = [&](const char *name, const char *hex, auto change) {
            KeyRecord record = base;
            change(record);
            QTest::newRow(name) << QByteArray(hex) << record;
        };
        row("effect",
            "0105000000"
            "01010301"
            "02",
            [](KeyRecord &key) { key.imageEffects = 2; });
        row("display mode",
            "0105000000"
            "01010302"
            "01",
            [](KeyRecord &key) { key.displayMode = 1; });
        row("alignment",
            "0105000000"
            "01010303"
            "01",
            [](KeyRecord &key) { key.titleAlignment = 1; });
        row("font size",
            "0105000000"
            "01010307"
            "0c",
            [](KeyRecord &key) { key.titleFontSize = 12; });
        row("colour",
            "0107000000"
            "0101030c"
            "102030",
            [](KeyRecord &key) {
                key.red = 0x10;
                key.green = 0x20;
                key.blue = 0x30;
            });
        row("GBK title",
            "0109000000"
            "01010306"
            "04c4e3bac3",
            [](KeyRecord &key) { key.title = QByteArray::fromHex("c4e3bac3"); });
        row("empty title",
            "0105000000"
            "01010306"
            "00",
            [](KeyRecord &) {});
        row("GBK address becomes UTF-8",
            "0109000000"
            "0101030b"
            "04c4e3bac3",
            [](KeyRecord &key) { key.content = QByteArray::fromHex("e4bda0e5a5bd"); });
    }

    void attributes()
    {
        QFETCH(QByteArray, hex);
        QFETCH(KeyRecord, expected);
        PanelModel panel;
        setFunction(panel, "03");
        panel.receive(whole(hex));
        QVERIFY(key113(panel).record == expected);
        QCOMPARE(panel.violations(), QStringList());
    }

    void keyCombination()
    {
        PanelModel panel;
        setFunction(panel, "10");
        panel.receive(whole("0108000000"
                            "0101030e"
                            "e0060000"));
        QCOMPARE(key113(panel).content, QByteArray::fromHex("e0060000"));
        QCOMPARE(panel.violations(), QStringList());
    }

    /// The count of a text output keeps its low 8 bits, the panel all bytes.
    void longTextOutput()
    {
        PanelModel panel;
        setFunction(panel, "0f");
        const QByteArray text = QByteArray("a\0", 2).repeated(150);
        send(panel, blocks(attribute("0101030b", QByteArray::fromHex("2c") + text)));
        QCOMPARE(key113(panel).content, text);
        QCOMPARE(key113(panel).record.content, text.left(128));
        QCOMPARE(panel.violations(), QStringList());
    }

    void picturesUnderBothIds_data()
    {
        QTest::addColumn<QByteArray>("ids");
        QTest::newRow("5") << QByteArray("01010305");
        QTest::newRow("9") << QByteArray("01010309");
    }

    void picturesUnderBothIds()
    {
        QFETCH(QByteArray, ids);
        PanelModel panel;
        setFunction(panel, "03");
        send(panel, blocks(attribute(ids.constData(), picture(pngFile(90, 84)))));
        QCOMPARE(key113(panel).picture, pngFile(90, 84));
        QCOMPARE(panel.violations(), QStringList());
    }

    void mergedKeyTakesALargerPicture()
    {
        PanelModel panel;
        const QByteArray layout =
            QByteArray::fromHex("040001") + '\0' + QByteArray(128, '\0') + QByteArray::fromHex("010107");
        send(panel, blocks(QByteArray(1, '\x0d') + littleEndian(layout.size(), 4) + layout));
        QCOMPARE(panel.state().layouts.value(4).keys, (QVector<CustomLayoutRecord::Key>{{1, 7}}));
        panel.receive(whole("0105000000"
                            "04010108"
                            "03"));
        send(panel, blocks(attribute("04010109", picture(pngFile(180, 168)))));
        QCOMPARE(panel.state().keys.value({4, 1, 1}).picture, pngFile(180, 168));
        QCOMPARE(panel.violations(), QStringList());
        panel.receive(whole("0e01000000"
                            "04"));
        QVERIFY(panel.state().layouts.isEmpty());
    }

    void actionList()
    {
        PanelModel panel;
        setFunction(panel, "04");
        const QByteArray entry =
            QByteArray::fromHex("030000") + QByteArray("http://a").leftJustified(128, '\0');
        const QByteArray list = littleEndian(134, 2) + entry + QByteArray::fromHex("640a00");
        send(panel, blocks(attribute("0101030f", list)));
        QCOMPARE(key113(panel).actions, list);
        QCOMPARE(panel.violations(), QStringList());
        panel.receive(whole("0106000000"
                            "0101030f"
                            "0000"));
        QCOMPARE(key113(panel).actions, QByteArray(2, '\0'));
        QCOMPARE(panel.violations(), QStringList());
    }

    void clearing()
    {
        PanelModel panel;
        setFunction(panel, "03");
        panel.receive(whole("0104000000"
                            "0101030d"));
        QVERIFY(panel.state().keys.isEmpty());
        setFunction(panel, "03");
        panel.receive(whole("0f01000000"
                            "5a"));
        QVERIFY(panel.state().keys.isEmpty());
        QCOMPARE(panel.violations(), QStringList());
    }

    /// A title without function could never be read back: it is dropped, and not a fault of the host.
    void attributeOfAnEmptyKeyIsDropped()
    {
        PanelModel panel;
        panel.receive(whole("0105000000"
                            "01010307"
                            "0c"));
        QVERIFY(panel.state().keys.isEmpty());
        QCOMPARE(panel.violations(), QStringList());
        QCOMPARE(panel.journal().events().size(), 1);
    }

    void settings()
    {
        PanelModel panel;
        panel.receive(whole("1002000000"
                            "0032"));
        QCOMPARE(int(panel.state().brightness), 50);
        panel.receive(whole("1201000000"
                            "01"));
        QCOMPARE(int(panel.state().systemType), 1);
        panel.receive(whole("1106000000"
                            "0201"
                            "0301ffff"));
        QCOMPARE(panel.state().home.layoutId, 2);
        QCOMPARE(panel.state().home.entries, (QVector<HomeLayout::Entry>{{3, 1, -1, -1}}));
        panel.receive(whole("0503000000"
                            "414243"));
        QCOMPARE(panel.state().configFile, QByteArray("ABC"));
        const QByteArray file = QByteArray("a.txt").leftJustified(32, '\0') + "hello";
        panel.receive(
            hostReport(0, QByteArray(1, '\x06') + littleEndian(file.size() + 1, 4) + '\x10' + file));
        QCOMPARE(panel.state().files.value(QStringLiteral("a.txt")), QByteArray("hello"));
        QCOMPARE(panel.violations(), QStringList());
    }

    /// 56, 57 and 58 bytes of a message that goes in blocks: flag 0, flag 2 alone, flags 1 and 2.
    void blockEdges_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<QList<QByteArray>>("flags");
        const auto message = [](int size) {
            return QByteArray(1, '\x05') + littleEndian(size - 5, 4) + QByteArray(size - 5, 'x');
        };
        QTest::newRow("56") << 51 << QList<QByteArray>{hostReport(0, message(56))};
        QTest::newRow("57") << 52 << QList<QByteArray>{hostReport(2, message(57))};
        QTest::newRow("58") << 53
                            << QList<QByteArray>{hostReport(1, message(58).left(57)),
                                                 hostReport(2, QByteArray("x"))};
    }

    void blockEdges()
    {
        QFETCH(int, size);
        QFETCH(QList<QByteArray>, flags);
        PanelModel panel;
        send(panel, flags);
        QCOMPARE(panel.state().configFile, QByteArray(size, 'x'));
        QCOMPARE(panel.violations(), QStringList());
    }

    void unpluggingForgetsHalfAMessage()
    {
        PanelModel panel;
        panel.receive(hostReport(1, QByteArray(57, '\x05')));
        panel.resetLink();
        panel.receive(whole("0702000000"
                            "0102"));
        QCOMPARE(panel.state().page, 2);
        QCOMPARE(panel.violations(), QStringList());
    }

    void pausesAreAwaitedOnlyWhereTheHostHasToPause_data()
    {
        QTest::addColumn<QByteArray>("start");
        QTest::addColumn<bool>("awaited");
        QTest::newRow("key") << QByteArray("01") << true;
        QTest::newRow("layout") << QByteArray("0d") << true;
        QTest::newRow("configuration file") << QByteArray("05") << false;
        QTest::newRow("firmware or file") << QByteArray("06") << false;
    }

    void pausesAreAwaitedOnlyWhereTheHostHasToPause()
    {
        QFETCH(QByteArray, start);
        QFETCH(bool, awaited);
        PanelModel panel;
        QVERIFY(!panel.awaitsPausedBlock());
        panel.receive(hostReport(1, QByteArray::fromHex(start).leftJustified(57, 'x')));
        QCOMPARE(panel.awaitsPausedBlock(), awaited);
    }
};

QTEST_GUILESS_MAIN(TestPanelReports)
#include "tst_panel_reports.moc"
