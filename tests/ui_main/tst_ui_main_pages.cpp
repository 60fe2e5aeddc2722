// The pages beside the editor: layouts, picture upload, system settings.
#include "base/paths.h"
#include "ui_common/filedialog.h"
#include "ui_common/messagebox.h"
#include "ui_editor/functionconfigwidget.h"
#include "ui_main/layoutpreview.h"
#include "ui_main/mainframe.h"
#include "ui_main/widget.h"
#include "uimainfakes.h"

#include <QLabel>
#include <QListView>
#include <QListWidget>
#include <QPushButton>
#include <QtTest>

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
        QCOMPARE(list->item(0)->text(), QStringLiteral("System Panel Layout 1"));
        QCOMPARE(list->item(1)->text(), QStringLiteral("Big one"));
        QCOMPARE(list->currentRow(), 0);
        list->setCurrentRow(1);
        child<QPushButton>("showInEditor")->click();
        const auto *editor = mpWidget->findChild<FunctionConfigWidget *>();
        QVERIFY(!editor->isHidden());
        QCOMPARE(editor->curLayoutId(), 12);
        QVERIFY(mpContext->requests.contains(QStringLiteral("7: 12, 1")));
    }

    void previewShowsMergedKeys()
    {
        mpContext->store.createKeyAttribute(12, 1, 1, 6);
        QImage red(8, 8, QImage::Format_RGB32);
        red.fill(Qt::red);
        QVERIFY(red.save(mpDir->path("red.png")));
        mpContext->store.setCustomImage({12, 1, 1}, mpDir->path("red.png"));
        open(1);
        auto *preview = child<LayoutPreview>("layoutPreview");
        child<QListWidget>("layouts")->setCurrentRow(1);
        mpWidget->show();
        const QImage drawn = preview->grab().toImage();
        const QSize size = preview->size();
        // Where four keys meet in the standard layout; and a key that the layout does not have.
        const auto grid = GridMetrics::fitting(size);
        QCOMPARE(drawn.pixelColor(cellRect({12, 1, 1, 0x63}, grid, size).center()), QColor(Qt::red));
        QVERIFY(drawn.pixelColor(cellRect({1, 1, 3, 0x4}, grid, size).center()) != QColor(Qt::red));
    }

    void pictureIsTriedOnAKeyAndAddedToTheGallery()
    {
        QImage image(300, 200, QImage::Format_RGB32);
        image.fill(Qt::blue);
        QVERIFY(image.save(mpDir->path("photo.jpg")));
        writeFile("text.png", "no picture");
        open(2);
        auto *add = child<QPushButton>("addToGallery");
        QVERIFY(!add->isEnabled());
        QString chosen = mpDir->path("photo.jpg");
        FileDialog::setAnswer([&chosen](const QString &) { return QStringList(chosen); });
        child<QPushButton>("selectPicture")->click();
        const QPixmap preview = child<QLabel>("preview")->pixmap(Qt::ReturnByValue);
        QCOMPARE(preview.size(), QSize(180, 168));                         // a key, at twice its size
        QCOMPARE(preview.toImage().pixelColor(90, 84), QColor(0, 0, 254)); // as JPEG has it
        add->click();
        QVERIFY(QFile::exists(mpDir->path("devConfig/gallery/photo.jpg")));
        QCOMPARE(child<QListView>("gallery")->model()->rowCount(), 1);

        chosen = mpDir->path("text.png");
        child<QPushButton>("selectPicture")->click();
        QVERIFY(!add->isEnabled());
        QCOMPARE(child<QLabel>("message")->text(),
                 QStringLiteral("This file is no picture that can be read."));
    }

    void systemSettingsShowWhatThePanelReports()
    {
        open(3);
        QCOMPARE(child<QLabel>("brightness")->text(), QStringLiteral("not known yet"));
        mpContext->thread.receive(PanelMessage::message(16, QByteArrayLiteral("\x00\x50")));
        mpContext->thread.receive(PanelMessage::softwareVersion());
        mpContext->thread.receive(PanelMessage::hardwareVersion());
        QTRY_COMPARE(child<QLabel>("hardwareVersionValue")->text(), QStringLiteral("HW 1.2"));
        QCOMPARE(child<QLabel>("brightness")->text(), QStringLiteral("80"));
        QCOMPARE(child<QLabel>("softwareVersionValue")->text(), QStringLiteral("SW 3.4"));
        mpContext->requests.clear();
        open(3); // the panel tells its brightness only when asked
        QCOMPARE(mpContext->requests, QStringList(QStringLiteral("16: 255")));
        child<QPushButton>("openLogFolder")->click();
        QCOMPARE(mDesktop.calls, QStringList(QStringLiteral("file ") + vorlindesk::Paths::logFolder()));
    }
};

QTEST_MAIN(tst_ui_main_pages)
#include "tst_ui_main_pages.moc"
