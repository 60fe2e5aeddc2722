// What a press on a key does.
#include "panel_model/panelmodel.h"
#include "panelbytes.h"
#include "support/table.h"

class TestPanelKeys : public QObject
{
    Q_OBJECT

    static void setFunction(PanelModel &panel, const QByteArray &ids, const QByteArray &fid)
    {
        panel.receive(whole("0105000000" + ids + "08" + fid));
    }

    using KeyboardTable = Table<QByteArray, QString>;
    using ChildPageTable = Table<QByteArray, QByteArray, QPoint>;

private slots:
    void pressIsReported()
    {
        PanelModel panel;
        panel.selectPage(1, 2);
        QVERIFY(panel.pressKey(3));
        const QList<QByteArray> sent = panel.takeKeyEvents();
        QCOMPARE(sent.size(), 1);
        QCOMPARE(sent.first().mid(4), report("00000000 0900 0104000000 010203 00").mid(4));
        QCOMPARE(int(sent.first().at(1)), 0);
        QVERIFY(!panel.pressKey(0));
        QVERIFY(!panel.pressKey(16));
        QVERIFY(panel.takeOutgoing().isEmpty());
    }

    void keyboardFunctions_data()
    {
        const KeyboardTable row;
        row("volume", "07", "to the computer: Volume Down");
        row("combination", "10", "to the computer: Left Ctrl + C");
        row("the host's business", "03", "key 1/1/3 pressed");
    }

    void keyboardFunctions()
    {
        const auto [fid, event] = KeyboardTable::current();
        PanelModel panel;
        setFunction(panel, "010103", fid);
        if (fid == "10")
            panel.receive(whole("0108000000 010103 0e e0060000"));
        panel.pressKey(3);
        QCOMPARE(panel.journal().events().last(), event);
        QCOMPARE(panel.takeOutgoing().size(), 1);
    }

    /// The home layout can lead a child page elsewhere, also to another layout; return leads back.
    void childPageAndBack_data()
    {
        // child: layout and page
        const ChildPageTable row;
        row("by number", "1102000000 0100", "01040f", QPoint(1, 4));
        row("by home layout", "1106000000 0101 030209ff", "02090f", QPoint(2, 9));
    }

    void childPageAndBack()
    {
        const auto [home, back, child] = ChildPageTable::current();
        PanelModel panel;
        panel.receive(whole(home));
        setFunction(panel, "010103", "12");
        setFunction(panel, back, "13");
        panel.pressKey(3);
        QCOMPARE(QPoint(panel.state().layout, panel.state().page), child);
        panel.pressKey(15);
        QCOMPARE(QPoint(panel.state().layout, panel.state().page), QPoint(1, 1));
    }

    void selfLocking()
    {
        PanelModel panel;
        setFunction(panel, "010103", "08");
        panel.receive(whole("0105000000 010103 02 01"));
        for (const bool latched : {true, false}) {
            panel.pressKey(3);
            QCOMPARE(panel.state().keys.value({1, 1, 3}).latched, latched);
        }
    }

    /// The list goes to the host in blocks, never whole: that would be a key press.
    void multiActions()
    {
        PanelModel panel;
        setFunction(panel, "010103", "04");
        panel.receive(whole("010c000000 010103 0f 0600 640a00 050000"));
        panel.pressKey(3);
        QCOMPARE(panel.takeKeyEvents().size(), 1);
        const QList<QByteArray> sent = panel.takeOutgoing();
        QCOMPARE(sent.size(), 1);
        QCOMPARE(int(sent.first().at(1)), 2);
        QCOMPARE(sent.first().mid(4), report("00000000 1100 010c000000 010103 10 0600 640a00 050000").mid(4));
        QCOMPARE(panel.journal().events().last(), "to the computer: Play/Pause"_s);
    }
};

QTEST_GUILESS_MAIN(TestPanelKeys)
#include "tst_panel_keys.moc"
