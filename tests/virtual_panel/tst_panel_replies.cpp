// What the panel sends, byte for byte.
#include "panel_model/panelmodel.h"
#include "panelbytes.h"

#include <QtTest>

class TestPanelReplies : public QObject
{
    Q_OBJECT

private slots:
    void shortReplies_data()
    {
        QTest::addColumn<QByteArray>("request");
        QTest::addColumn<QByteArray>("reply");
        QTest::newRow("hardware version") << QByteArray("03")
                                          << report("00000000"
                                                    "1100"
                                                    "030c000000"
                                                    "5049432d485720312e322e30");
        QTest::newRow("software version") << QByteArray("04")
                                          << report("00000000"
                                                    "1100"
                                                    "040c000000"
                                                    "5049432d535720332e342e31");
        QTest::newRow("brightness") << QByteArray("10020000000100")
                                    << report("00000000"
                                              "0700"
                                              "1002000000"
                                              "0150");
        QTest::newRow("home layout") << QByteArray("11")
                                     << report("00000000"
                                               "0700"
                                               "1102000000"
                                               "0100");
        QTest::newRow("system type set") << QByteArray("120100000001")
                                         << report("00000000"
                                                   "0600"
                                                   "1201000000"
                                                   "01");
        QTest::newRow("system type asked") << QByteArray("1201000000ff")
                                           << report("00000000"
                                                     "0600"
                                                     "1201000000"
                                                     "00");
        QTest::newRow("empty configuration") << QByteArray("08")
                                             << report("00000000"
                                                       "0700"
                                                       "0802000000"
                                                       "0101");
    }

    void shortReplies()
    {
        QFETCH(QByteArray, request);
        QFETCH(QByteArray, reply);
        PanelModel panel;
        panel.receive(whole(request));
        const QList<QByteArray> sent = panel.takeOutgoing();
        QCOMPARE(sent.size(), 1);
        // Bytes 0, 2 and 3 are the panel's affair: nobody reads them.
        QCOMPARE(sent.first().mid(4), reply.mid(4));
        QCOMPARE(sent.first().mid(1, 1), QByteArray(1, '\0'));
        QVERIFY(panel.takeOutgoing().isEmpty());
    }

    void settingsAreNotAnswered_data()
    {
        QTest::addColumn<QByteArray>("request");
        QTest::newRow("brightness") << QByteArray("1002000000"
                                                  "0032");
        QTest::newRow("page") << QByteArray("0702000000"
                                            "0102");
        QTest::newRow("home layout") << QByteArray("1102000000"
                                                   "0100");
        QTest::newRow("function") << QByteArray("0105000000"
                                                "01010308"
                                                "03");
    }

    void settingsAreNotAnswered()
    {
        QFETCH(QByteArray, request);
        PanelModel panel;
        panel.receive(whole(request));
        QVERIFY(panel.takeOutgoing().isEmpty());
        QCOMPARE(panel.violations(), QStringList());
    }

    /// Two pages: a multi-action key, and one without a picture.
    void configuration()
    {
        PanelModel panel;
        panel.receive(whole("0105000000"
                            "01010108"
                            "04"));
        panel.receive(whole("0109000000"
                            "0101010f"
                            "0300"
                            "640a00"));
        for (const QByteArray &block : blocks(attribute("01010109", picture(pngFile(90, 84)))))
            panel.receive(block);
        panel.receive(whole("0105000000"
                            "02100f08"
                            "03"));
        panel.receive(whole("0106000000"
                            "02100f06"
                            "0141"));
        QCOMPARE(panel.violations(), QStringList());

        panel.receive(whole("08"));
        const QList<QByteArray> sent = panel.takeOutgoing();
        // 279 bytes of page 1 in 5 blocks, the list alone, 78 bytes of picture in 2 blocks, 279 bytes of page
        // 16, and the empty picture in a block of its own.
        QCOMPARE(sent.size(), 5 + 1 + 2 + 5 + 1);
        QByteArray firstRecord = QByteArray::fromHex("010101"
                                                     "0000"
                                                     "04"
                                                     "00000000"
                                                     "10"
                                                     "00ff00")
                                     .leftJustified(272, '\0');
        QCOMPARE(payloads(sent.mid(0, 5)), QByteArray::fromHex("0812010000"
                                                               "0101") +
                                               firstRecord);
        QCOMPARE(flags(sent.mid(0, 5)), QByteArray::fromHex("0101010102"));
        QCOMPARE(sent.at(5).mid(4), report("00000000"
                                           "0e00"
                                           "0109000000"
                                           "0101010f"
                                           "0300640a00")
                                        .mid(4));
        QCOMPARE(flags(sent.mid(5, 1)), QByteArray::fromHex("00"));
        QCOMPARE(payloads(sent.mid(6, 2)), attribute("01010109", picture(pngFile(90, 84))));
        QCOMPARE(flags(sent.mid(6, 2)), QByteArray::fromHex("0102"));
        QByteArray lastRecord = QByteArray::fromHex("02100f"
                                                    "0000"
                                                    "03"
                                                    "00000000"
                                                    "10"
                                                    "00ff00"
                                                    "0141");
        QCOMPARE(payloads(sent.mid(8, 5)), QByteArray::fromHex("0812010000"
                                                               "0210") +
                                               lastRecord.leftJustified(272, '\0'));
        // Whole, it would be taken for a key press.
        QCOMPARE(flags(sent.mid(13, 1)), QByteArray::fromHex("02"));
        QCOMPARE(payloads(sent.mid(13, 1)), QByteArray::fromHex("0108000000"
                                                                "02100f09"
                                                                "00000000"));
    }

    void upgrade_data()
    {
        QTest::addColumn<bool>("wrongCrc");
        QTest::addColumn<QByteArray>("crc");
        QTest::addColumn<QByteArray>("status");
        QTest::addColumn<QByteArray>("firmware");
        QTest::addColumn<bool>("restarts");
        const QByteArray none;
        QTest::newRow("taken") << false << QByteArray("b129") << QByteArray("00") << QByteArray("123456789")
                               << true;
        QTest::newRow("dropped by the host")
            << false << QByteArray("b129") << QByteArray("01") << none << false;
        QTest::newRow("wrong checksum") << true << QByteArray("4ed6") << QByteArray("01") << none << false;
    }

    void upgrade()
    {
        QFETCH(bool, wrongCrc);
        QFETCH(QByteArray, crc);
        QFETCH(QByteArray, status);
        QFETCH(QByteArray, firmware);
        QFETCH(bool, restarts);
        PanelModel panel;
        panel.setFaults({.silent = false, .wrongCrc = wrongCrc, .unplugAfter = -1});
        panel.receive(whole("0601000000"
                            "01"));
        QCOMPARE(payloads(panel.takeOutgoing()), QByteArray::fromHex("0601000000"
                                                                     "02"));
        panel.receive(whole("0601000000"
                            "06"));
        QCOMPARE(payloads(panel.takeOutgoing()), QByteArray::fromHex("0601000000"
                                                                     "07"));
        // A short firmware is one report flagged 2.
        panel.receive(hostReport(2, QByteArray::fromHex("060a000000"
                                                        "03") +
                                        "123456789"));
        QCOMPARE(payloads(panel.takeOutgoing()), QByteArray::fromHex("0603000000"
                                                                     "04" +
                                                                     crc));
        panel.receive(whole("0602000000"
                            "05" +
                            status));
        QVERIFY(panel.takeOutgoing().isEmpty());
        QCOMPARE(panel.state().firmware, firmware);
        QCOMPARE(panel.takeRestart(), restarts);
        QVERIFY(!panel.takeRestart());
        QCOMPARE(panel.violations(), QStringList());
    }

    void emptyFirmware()
    {
        PanelModel panel;
        panel.receive(whole("0601000000"
                            "01"));
        panel.receive(whole("0601000000"
                            "06"));
        panel.takeOutgoing();
        panel.receive(hostReport(2, QByteArray::fromHex("0601000000"
                                                        "03")));
        QCOMPARE(payloads(panel.takeOutgoing()), QByteArray::fromHex("0603000000"
                                                                     "04ffff"));
        QCOMPARE(panel.violations(), QStringList());
    }

    void upgradeOutOfOrder_data()
    {
        QTest::addColumn<QList<QByteArray>>("reports");
        const QByteArray request = whole("0601000000"
                                         "01");
        const QByteArray erase = whole("0601000000"
                                       "06");
        const QByteArray data = hostReport(2, QByteArray::fromHex("0602000000"
                                                                  "0341"));
        const QByteArray status = whole("0602000000"
                                        "0500");
        QTest::newRow("erase first") << QList<QByteArray>{erase};
        QTest::newRow("data without erase") << QList<QByteArray>{request, data};
        QTest::newRow("status without data") << QList<QByteArray>{request, erase, status};
        QTest::newRow("data after replugging") << QList<QByteArray>{request, erase, QByteArray(), data};
        QTest::newRow("data flagged 0") << QList<QByteArray>{request, erase,
                                                             whole("0602000000"
                                                                   "0341")};
        QTest::newRow("status 2") << QList<QByteArray>{request, erase, data,
                                                       whole("0602000000"
                                                             "0502")};
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

    void silence()
    {
        PanelModel panel;
        panel.setFaults({.silent = true, .wrongCrc = false, .unplugAfter = -1});
        panel.receive(whole("03"));
        panel.receive(whole("0601000000"
                            "01"));
        QVERIFY(panel.takeOutgoing().isEmpty());
    }

    void unplugAfterReports()
    {
        PanelModel panel;
        panel.setFaults({.silent = false, .wrongCrc = false, .unplugAfter = 2});
        panel.receive(whole("03"));
        QVERIFY(!panel.takeUnplug());
        panel.receive(whole("03"));
        QVERIFY(panel.takeUnplug());
        panel.receive(whole("03"));
        QVERIFY(!panel.takeUnplug());
    }

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
};

QTEST_GUILESS_MAIN(TestPanelReplies)
#include "tst_panel_replies.moc"
