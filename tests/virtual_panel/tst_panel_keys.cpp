// What a press on a key does.
#include "panel_model/panelmodel.h"
#include "panelbytes.h"

#include <QtTest>

class TestPanelKeys : public QObject
{
    Q_OBJECT

    static void setFunction(PanelModel &panel, const char *ids, const char *fid)
    {
        panel.receive(whole(QByteArray("0105000000") + ids + "08" + fid));
    }

private slots:
    void pressIsReported()
    {
        PanelModel panel;
        panel.selectPage(1, 2);
        QVERIFY(panel.pressKey(3));
        const QList<QByteArray> sent = panel.takeKeyEvents();
        QCOMPARE(sent.size(), 1);
        QCOMPARE(sent.first().mid(4), report("0000000009000104000000"
                                             "01020300")
                                          .mid(4));
        QCOMPARE(int(sent.first().at(1)), 0);
        QVERIFY(!panel.pressKey(0));
        QVERIFY(!panel.pressKey(16));
        QVERIFY(panel.takeOutgoing().isEmpty());
    }

    void keyboardFunctions_data()
    {
        QTest::addColumn<QByteArray>("fid");
        QTest::addColumn<QString>("sentToTheComputer");
        QTest::newRow("play") << QByteArray("05") << QStringLiteral("to the computer: Play/Pause");
        QTest::newRow("volume down") << QByteArray("07") << QStringLiteral("to the computer: Volume Down");
        QTest::newRow("brightness down")
            << QByteArray("0e") << QStringLiteral("to the computer: Brightness Down");
        QTest::newRow("combination") << QByteArray("10") << QStringLiteral("to the computer: Left Ctrl + C");
        QTest::newRow("web address: the host's business")
            << QByteArray("03") << QStringLiteral("key 1/1/3 pressed");
    }

    void keyboardFunctions()
    {
        QFETCH(QByteArray, fid);
        QFETCH(QString, sentToTheComputer);
        PanelModel panel;
        setFunction(panel, "010103", fid.constData());
        if (fid == "10")
            panel.receive(whole("0108000000"
                                "0101030e"
                                "e0060000"));
        panel.pressKey(3);
        QCOMPARE(panel.journal().events().last(), sentToTheComputer);
        QCOMPARE(panel.takeOutgoing().size(), 1);
    }

    void childPageAndBack()
    {
        PanelModel panel;
        setFunction(panel, "010103", "12");
        setFunction(panel, "01040f", "13");
        panel.pressKey(3);
        QCOMPARE(panel.state().page, 4);
        panel.pressKey(15);
        QCOMPARE(panel.state().page, 1);
    }

    /// The home layout can lead a child page elsewhere, also to another layout; return leads back.
    void childPageOfTheHomeLayout()
    {
        PanelModel panel;
        panel.receive(whole("1106000000"
                            "0101"
                            "030209ff"));
        setFunction(panel, "010103", "12");
        setFunction(panel, "02090f", "13");
        panel.pressKey(3);
        QCOMPARE(panel.state().layout, 2);
        QCOMPARE(panel.state().page, 9);
        panel.pressKey(15);
        QCOMPARE(panel.state().layout, 1);
        QCOMPARE(panel.state().page, 1);
    }

    void selfLocking()
    {
        PanelModel panel;
        setFunction(panel, "010103", "08");
        panel.receive(whole("0105000000"
                            "01010302"
                            "01"));
        panel.pressKey(3);
        QVERIFY(panel.state().keys.value({1, 1, 3}).latched);
        panel.pressKey(3);
        QVERIFY(!panel.state().keys.value({1, 1, 3}).latched);
    }

    /// The list goes to the host in blocks, never whole: that would be a key press.
    void multiActions()
    {
        PanelModel panel;
        setFunction(panel, "010103", "04");
        panel.receive(whole("010c000000"
                            "0101030f"
                            "0600"
                            "640a00"
                            "050000"));
        panel.pressKey(3);
        QCOMPARE(panel.takeKeyEvents().size(), 1);
        const QList<QByteArray> sent = panel.takeOutgoing();
        QCOMPARE(sent.size(), 1);
        QCOMPARE(int(sent.first().at(1)), 2);
        QCOMPARE(sent.first().mid(4), report("00000000"
                                             "1100"
                                             "010c000000"
                                             "01010310"
                                             "0600640a00050000")
                                          .mid(4));
        QCOMPARE(panel.journal().events().last(), QStringLiteral("to the computer: Play/Pause"));
    }

    void runNow()
    {
        PanelModel panel;
        panel.sendRunNow({1, 2, 3}, {{3, 0, QStringLiteral("http://a")}, {100, 10, {}}});
        const QList<QByteArray> sent = panel.takeOutgoing();
        QCOMPARE(sent.size(), 3); // 145 bytes
        QCOMPARE(sent.first().mid(6, 22), QByteArray::fromHex("018c000000"
                                                              "01020310"
                                                              "8600"
                                                              "030000") +
                                              "http://a");
        QCOMPARE(sent.last().mid(1, 1), QByteArray(1, '\2'));
    }
};

QTEST_GUILESS_MAIN(TestPanelKeys)
#include "tst_panel_keys.moc"
