// Every icon that the program asks for by its path is there, loads, has its size, and shows something.
#include <QIcon>
#include <QImage>
#include <QImageReader>
#include <QSet>
#include <QtTest>

namespace {

constexpr QSize KeySize(90, 84); // one physical key
constexpr QSize MenuSize(48, 48);
constexpr QSize StatusSize(24, 24);

int coloursOf(const QImage &image)
{
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            colours.insert(image.pixel(x, y));
    }
    return int(colours.size());
}

} // namespace

class ResourcesIcons : public QObject
{
    Q_OBJECT

private slots:
    void loads_data()
    {
        QTest::addColumn<QSize>("size");

        for (const char *path : {":/icon/function_icon/Multi_act_90x84.png",
                                 ":/icon/function_icon/Play_Stop_90x84.png",
                                 ":/icon/function_icon/Volume_up_90x84.png",
                                 ":/icon/function_icon/Volume_down_90x84.png",
                                 ":/icon/function_icon/Mute_90x84.png",
                                 ":/icon/function_icon/Previous_paragraph_90x84.png",
                                 ":/icon/function_icon/Next_paragraph_90x84.png",
                                 ":/icon/function_icon/Brightness_90x84.png",
                                 ":/icon/function_icon/Brightnessdown_90x84.png",
                                 ":/icon/shortcut_icon/Hot_Key_90x84.png",
                                 ":/icon/shortcut_icon/Hot_Key_Compund_Key_90x84.png",
                                 ":/icon/Hot_Key_Children_Key.png",
                                 ":/icon/Hot_Key_Children_Back.png",
                                 ":/icon/Time_delay.png",
                                 ":/icon/shortcut_icon/text_output_empty.png",
                                 ":/icon/shortcut_icon/key_combination_empty.png",
                                 ":/icon/child_page_empty.png",
                                 ":/icon/function_icon/multi_act_empty.png",
                                 ":/icon/function_icon/Home_page_90x84.png",
                                 ":/icon/function_icon/Open_file_90x84.png",
                                 ":/icon/function_icon/Open_web_90x84.png",
                                 ":/icon/function_icon/Video_90x84.png"})
            QTest::newRow(path) << KeySize;
        for (const char *path : {":/icon/Button_function_set.png", ":/icon/Panel_button_set.png",
                                 ":/icon/Picture_upload.png", ":/icon/IMPORT_OUTPORT.png"})
            QTest::newRow(path) << MenuSize;
        for (const char *path : {":/icon/connected.png", ":/icon/disconnected.png"})
            QTest::newRow(path) << StatusSize;
    }

    void loads()
    {
        QFETCH(QSize, size);
        const QString path = QString::fromLatin1(QTest::currentDataTag());
        const QImage image(path);
        QCOMPARE(image.size(), size);
        QVERIFY(coloursOf(image) > 8); // more than a flat area: strokes have soft edges

        QString twice = path;
        twice.insert(path.lastIndexOf(QLatin1Char('.')), QStringLiteral("@2x"));
        QCOMPARE(QImage(twice).size(), size * 2);
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
