// The network settings dialog and its address fields, typed into.
#include "support/table.h"
#include "ui_main/networkdialog.h"
#include "ui_main/networkipaddress.h"
#include "uimainfakes.h"

#include <QtWidgets>

using TypedTable = Table<QString, QString, int>;

class tst_ui_main_network : public QObject
{
    Q_OBJECT
private slots:
    void typed_data()
    {
        const TypedTable row;
        row("three digits move on", "192168", "192.168..", 2);
        row("above 255: the third digit is refused", "256", "25...", 0);
        row("no leading zero", "01", "0...", 0);
        row("the last does not move on", "255255255255", "255.255.255.255", 3);
        row("deleting moves nothing back", "1920\b\b\b", "192...", 1);
    }
    void typed()
    {
        const auto [keys, address, focused] = TypedTable::current();
        NetworkIpAddress field(nullptr);
        field.show();
        QApplication::setActiveWindow(&field);
        field.setFocus();
        for (const QChar key : keys)
            QTest::keyClick(QApplication::focusWidget(),
                            key == u'\b' ? Qt::Key_Backspace : Qt::Key(key.unicode()));
        QCOMPARE(field.text(), address);
        QCOMPARE(QApplication::focusWidget()->objectName(), "octet%1"_s.arg(focused));
    }

    void textOfThreePartsChangesNothing()
    {
        NetworkIpAddress field(nullptr);
        field.setText("10.0..7"_s);
        field.setText("1.2.3"_s);
        field.setText("1.2.3.4.5"_s);
        QCOMPARE(field.text(), "10.0..7"_s);
    }

    void buttonsOnlyLog()
    {
        FakeContext context;
        NetworkSetDialog dialog(context, nullptr);
        QVERIFY(dialog.setup());
        dialog.findChild<NetworkIpAddress *>("netmask"_s)->setText("255.255.0.0"_s);
        const LogCapture log;
        dialog.findChild<QPushButton *>("setButton"_s)->click();
        dialog.findChild<QPushButton *>("factorySetButton"_s)->click();
        QCOMPARE(log.lines(),
                 texts({"1 onSetBtnClicked--strIPAddr[...]", "1 onSetBtnClicked--strNetmask[255.255.0.0]",
                        "1 onSetBtnClicked--strGatwary[...]", "1 onFactorySetBtnClicked"}));
        QCOMPARE(context.requests, QStringList());
    }
};

QTEST_MAIN(tst_ui_main_network)
#include "tst_ui_main_network.moc"
