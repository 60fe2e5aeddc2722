/// Order, icons and texts of the functions.
#include "model/functioncatalogue.h"
#include "model/functionmanager.h"
#include "storefixture.h"

#include <QtTest>

using namespace vorlinmodel;

class CatalogueTest : public QObject
{
    Q_OBJECT
private slots:
    void listsKeepTheirOrder()
    {
        const FunctionManager store;
        QList<int> functions;
        for (int i = -1; i <= store.getFunctionListCount(); ++i)
            functions << store.getFunctionListFid(i);
        QCOMPARE(functions, (QList<int>{0, 4, 5, 6, 7, 8, 9, 10, 13, 14, 0}));
        QList<int> shortcuts;
        for (int i = -1; i <= store.getShortcutListCount(); ++i)
            shortcuts << store.getShortcutListFid(i);
        QCOMPARE(shortcuts, (QList<int>{0, 15, 16, 18, 19, 100, 0}));
    }

    void everyFunctionHasItsTextAndIcon_data()
    {
        QTest::addColumn<int>("fid");
        QTest::addColumn<int>("textId");
        QTest::addColumn<int>("shortcutTextId");
        QTest::addColumn<QString>("icon");

        const auto row = [](int fid, int textId, int shortcutTextId, const char *icon) {
            QTest::addRow("fid %d", fid) << fid << textId << shortcutTextId << QString::fromLatin1(icon);
        };
        row(1, 34, 0, "");
        row(2, 35, 0, "");
        row(3, 36, 0, "");
        row(4, 37, 0, ":/icon/function_icon/Multi_act_90x84.png");
        row(5, 38, 0, ":/icon/function_icon/Play_Stop_90x84.png");
        row(6, 39, 0, ":/icon/function_icon/Volume_up_90x84.png");
        row(7, 40, 0, ":/icon/function_icon/Volume_down_90x84.png");
        row(8, 41, 0, ":/icon/function_icon/Mute_90x84.png");
        row(9, 42, 0, ":/icon/function_icon/Previous_paragraph_90x84.png");
        row(10, 43, 0, ":/icon/function_icon/Next_paragraph_90x84.png");
        row(11, 44, 0, "");
        row(12, 45, 0, "");
        row(13, 46, 0, ":/icon/function_icon/Brightness_90x84.png");
        row(14, 47, 0, ":/icon/function_icon/Brightnessdown_90x84.png");
        row(15, 48, 48, ":/icon/shortcut_icon/Hot_Key_90x84.png");
        row(16, 49, 49, ":/icon/shortcut_icon/Hot_Key_Compund_Key_90x84.png");
        row(17, 0, 0, "");
        row(18, 102, 102, ":/icon/Hot_Key_Children_Key.png");
        row(19, 103, 103, ":/icon/Hot_Key_Children_Back.png");
        row(100, 101, 101, ":/icon/Time_delay.png");
        row(-4, 0, 0, "");
    }

    void everyFunctionHasItsTextAndIcon()
    {
        QFETCH(int, fid);
        QFETCH(QString, icon);
        const FunctionManager store;
        QTEST(FunctionCatalogue::textId(fid), "textId");
        QTEST(store.getShortcutListTextId(fid), "shortcutTextId");
        QCOMPARE(FunctionCatalogue::defaultIcon(fid), icon);
        // Each list answers only for its own functions.
        QCOMPARE(store.getFunctionListIcon(fid), fid < 15 ? icon : QString());
        QCOMPARE(store.getShortcutListIcon(fid), fid < 15 ? QString() : icon);
    }
};

QTEST_GUILESS_MAIN(CatalogueTest)
#include "tst_model_catalogue.moc"
