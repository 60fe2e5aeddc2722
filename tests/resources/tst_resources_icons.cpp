// Every icon that the program asks for by its path is there, loads, has its size, and shows something.
#include <QImage>
#include <QImageReader>
#include <QtTest>

class ResourcesIcons : public QObject
{
    Q_OBJECT

private slots:
    void loads_data()
    {
        QTest::addColumn<QSize>("size");

        const QStringList names{
            QStringLiteral(
                "Multi_act Play_Stop Volume_up Volume_down Mute Previous_paragraph Next_paragraph"),
            QStringLiteral("Brightness Brightnessdown Home_page Open_file Open_web Video")};
        for (const QString &name : names.join(QLatin1Char(' ')).split(QLatin1Char(' ')))
            QTest::newRow(qPrintable(QStringLiteral("function_icon/%1_90x84").arg(name))) << QSize(90, 84);
        for (const char *name : {"shortcut_icon/Hot_Key_90x84", "shortcut_icon/Hot_Key_Compund_Key_90x84",
                                 "Hot_Key_Children_Key", "Hot_Key_Children_Back", "Time_delay",
                                 "shortcut_icon/text_output_empty", "shortcut_icon/key_combination_empty",
                                 "child_page_empty", "function_icon/multi_act_empty"})
            QTest::newRow(name) << QSize(90, 84);
        for (const char *name :
             {"Button_function_set", "Panel_button_set", "Picture_upload", "IMPORT_OUTPORT"})
            QTest::newRow(name) << QSize(48, 48);
        for (const char *name : {"connected", "disconnected"})
            QTest::newRow(name) << QSize(24, 24);
    }

    void loads()
    {
        QFETCH(QSize, size);
        const QString path = QStringLiteral(":/icon/") + QLatin1String(QTest::currentDataTag());
        const QImage image(path + QStringLiteral(".png"));
        QCOMPARE(image.size(), size);
        QImage flat = image;
        flat.fill(image.pixelColor(size.width() / 2, size.height() / 2));
        QVERIFY(image != flat);
        QCOMPARE(QImage(path + QStringLiteral("@2x.png")).size(), size * 2);
    }

    void windowIconIsARealBitmap()
    {
        QImageReader reader(QStringLiteral(":/icon/MENU_ZX_LOGO.bmp"));
        QCOMPARE(reader.format(), QByteArray("bmp"));
        const QImage image = reader.read();
        QCOMPARE(image.size(), QSize(64, 64));
        QCOMPARE(image.pixelColor(0, 0).alpha(), 0); // the corners are not part of the drawing
        QCOMPARE(image.pixelColor(5, 32), QColor(0x33, 0x33, 0x33));
    }
};

QTEST_GUILESS_MAIN(ResourcesIcons)
#include "tst_resources_icons.moc"
