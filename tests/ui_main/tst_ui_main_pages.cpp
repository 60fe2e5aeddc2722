// The pages beside the editor: layouts, picture upload, system settings.
#include "base/paths.h"
#include "support/ffmpegtool.h"
#include "ui_common/filedialog.h"
#include "ui_common/messagebox.h"
#include "ui_editor/functionconfigwidget.h"
#include "ui_main/layoutgrid.h"
#include "ui_main/mainframe.h"
#include "ui_main/widget.h"
#include "uimainfakes.h"

#include <QtTest>
#include <QtWidgets>

class tst_ui_main_pages : public QObject
{
    Q_OBJECT
    std::unique_ptr<TemporaryCurrentDir> mpDir;
    std::unique_ptr<FakeContext> mpContext;
    RecordingDesktop mDesktop;
    std::unique_ptr<Widget> mpWidget;

    template <class Child>
    Child *child(const char *name) const
    {
        return mpWidget->findChild<Child *>(QString::fromLatin1(name));
    }
    void open(int page) const { child<MainFrame>("mainframe")->select(page); }
    void writeFile(const char *name, const QByteArray &bytes) const
    {
        QFile file(mpDir->path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), qint64(bytes.size()));
    }

private slots:
    void init()
    {
        mpDir = std::make_unique<TemporaryCurrentDir>();
        vorlindesk::Paths::createPath(vorlindesk::Paths::devConfigFolder());
        // Layout 12: key 1 covers the physical keys 1, 2, 6 and 7, key 2 is physical key 15.
        writeFile("devConfig/customLayout.ini", "[layout_12]\nname=Big one\nnum=2\n1_bitmap=99\n"
                                                "phyid_1=1#1#1&2#1#2&6#2#1&7#2#2\n2_bitmap=16384\n"
                                                "phyid_2=15#3#5\n");
        mpContext = std::make_unique<FakeContext>();
        QVERIFY(mpContext->store.Init());
        mpWidget = std::make_unique<Widget>(*mpContext, mDesktop);
    }

    void cleanup()
    {
        FileDialog::setAnswer({});
        mpWidget.reset();
        mpContext.reset();
        mpDir.reset();
    }

    void layoutIsShownInTheEditor()
    {
        open(1);
        auto *list = child<QListWidget>("layouts");
        QCOMPARE(list->count(), 2);
        QCOMPARE(list->item(0)->text(), "System Panel Layout 1"_s);
        QCOMPARE(list->item(1)->text(), "Big one"_s);
        QCOMPARE(list->currentRow(), 0);
        list->setCurrentRow(1);
        child<QPushButton>("showInEditor")->click();
        const auto *editor = mpWidget->findChild<FunctionConfigWidget *>();
        QVERIFY(!editor->isHidden());
        QCOMPARE(editor->curLayoutId(), 12);
        QVERIFY(mpContext->requests.contains("7: 12, 1"_s));
    }

    void previewShowsMergedKeys()
    {
        mpContext->store.createKeyAttribute(12, 1, 1, 6);
        QImage red(8, 8, QImage::Format_RGB32);
        red.fill(Qt::red);
        QVERIFY(red.save(mpDir->path("red.png")));
        mpContext->store.setCustomImage({12, 1, 1}, mpDir->path("red.png"));
        open(1);
        auto *preview = child<LayoutGrid>("layoutGrid");
        child<QListWidget>("layouts")->setCurrentRow(1);
        mpWidget->show();
        const QImage drawn = preview->grab().toImage();
        const QSize size = preview->size();
        // Where four keys meet in the standard layout; and a key that the layout does not have.
        const auto grid = GridMetrics::fitting(size);
        QCOMPARE(drawn.pixelColor(cellRect({12, 1, 1, 0x63}, grid, size).center()), QColor(Qt::red));
        QVERIFY(drawn.pixelColor(cellRect({1, 1, 3, 0x4}, grid, size).center()) != QColor(Qt::red));
    }

    void pictureOfTheUploadPageComesIntoTheGallery()
    {
        if (!hasTool())
            QSKIP("there is no ffmpeg beside this program");
        QImage image(300, 200, QImage::Format_RGB32);
        image.fill(Qt::blue);
        const QString photo = mpDir->path("photo.jpg");
        QVERIFY(image.save(photo));
        open(2);
        FileDialog::setAnswer([&photo](const QString &) { return QStringList(photo); });
        child<QPushButton>("selectPicture")->click();
        auto *add = child<QPushButton>("addToGallery");
        QTRY_VERIFY(add->isEnabled());
        add->click();
        QTRY_COMPARE(child<QListView>("gallery")->model()->rowCount(), 1);
    }

    void systemSettingsShowWhatThePanelReports()
    {
        open(3);
        QCOMPARE(child<QLabel>("brightness")->text(), "not known yet"_s);
        mpContext->thread.receive(PanelMessage::message(16, QByteArrayLiteral("\x00\x50")));
        mpContext->thread.receive(PanelMessage::softwareVersion());
        mpContext->thread.receive(PanelMessage::hardwareVersion());
        QTRY_COMPARE(child<QLabel>("hardwareVersionValue")->text(), "HW 1.2"_s);
        QCOMPARE(child<QLabel>("brightness")->text(), "80"_s);
        QCOMPARE(child<QLabel>("softwareVersionValue")->text(), "SW 3.4"_s);
        mpContext->requests.clear();
        open(3); // the panel tells them only when asked
        QCOMPARE(mpContext->requests, texts({"17: 255", "16: 255", "18: 255"}));
        child<QPushButton>("openLogFolder")->click();
        QCOMPARE(mDesktop.calls, QStringList("file "_s + vorlindesk::Paths::logFolder()));
    }
};

QTEST_MAIN(tst_ui_main_pages)
#include "tst_ui_main_pages.moc"
