// The gallery: what gets in, under which name, how it looks, and what is dragged out of it.
#include "editorfixture.h"
#include "ui_common/filedialog.h"
#include "ui_common/messagebox.h"
#include "ui_editor/galleryframe.h"
#include "ui_editor/gallerymodel.h"
#include "ui_editor/gallerypictures.h"
#include "ui_editor/galleryview.h"
#include "ui_editor/vorlinmimedata.h"

#include <QAction>
#include <QDropEvent>
#include <QIcon>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>

class tst_ui_editor_gallery : public QObject
{
    Q_OBJECT
    std::unique_ptr<EditorFixture> mpFixture;
    std::unique_ptr<GalleryFrame> mpGallery;
    QStringList mBoxes;
    QMessageBox::StandardButton mAnswer = QMessageBox::Yes;

    QString source(const char *name, const char *format = "PNG", const QColor &colour = Qt::red) const
    {
        QImage image(200, 100, QImage::Format_RGB32);
        image.fill(colour);
        const QString path = mpFixture->path(name);
        return image.save(path, format) ? path : QString();
    }
    QString textFile(const char *name) const
    {
        QFile file(mpFixture->path(name));
        return file.open(QIODevice::WriteOnly) && file.write("text") == 4 ? file.fileName() : QString();
    }
    QStringList names() const { return QDir(GalleryPictures::folder()).entryList(QDir::Files, QDir::Name); }
    GalleryView *view() const { return mpGallery->findChild<GalleryView *>(); }

private slots:
    void init()
    {
        mpFixture = std::make_unique<EditorFixture>();
        qputenv("XDG_DATA_HOME", QFile::encodeName(mpFixture->path("home"))); // for the bin
        QVERIFY(QDir().mkpath(mpFixture->path("home")));
        mpGallery = std::make_unique<GalleryFrame>(mpFixture->language, nullptr);
        QVERIFY(mpGallery->setup());
        mpGallery->resize(200, 360);
        mpGallery->show();
        mBoxes.clear();
        mAnswer = QMessageBox::Yes;
        MessageBox::setAnswer([this](const QMessageBox &box) {
            mBoxes.append(box.text());
            return mAnswer;
        });
    }

    void cleanup()
    {
        MessageBox::setAnswer({});
        FileDialog::setAnswer({});
        mpGallery.reset();
        mpFixture.reset();
    }

    void picturesGetInUnderFreeNames()
    {
        auto *empty = mpGallery->findChild<QLabel *>(QStringLiteral("galleryEmpty"));
        QVERIFY(empty->isVisible() && !view()->isVisible());
        const QStringList files{source("a.png"), source("b.JPG", "JPG"), textFile("note.png"),
                                source("plain", "BMP"), mpFixture->path("missing.png")};
        FileDialog::setAnswer([&files](const QString &) { return files; });
        auto *button = mpGallery->findChild<QPushButton *>(QStringLiteral("addPictures"));
        button->click();
        QCOMPARE(names(), QStringList({QStringLiteral("a.png"), QStringLiteral("b.JPG"),
                                       QStringLiteral("plain.bmp")}));
        QCOMPARE(mBoxes, QStringList(QStringLiteral("note.png is no picture that can be read.\n"
                                                    "missing.png is no picture that can be read.")));
        QVERIFY(!empty->isVisible() && view()->isVisible());
        QCOMPARE(view()->selectionModel()->selectedIndexes().size(), 3);

        mpGallery->add({source("a.png", "PNG", Qt::blue), GalleryPictures::paths().first()});
        QCOMPARE(names().mid(0, 2), QStringList({QStringLiteral("a (2).png"), QStringLiteral("a.png")}));
        QCOMPARE(names().size(), 4); // what is in the gallery is not added to it again
        QCOMPARE(GalleryPictures::read(GalleryPictures::folder() + QStringLiteral("/a.png"), {10, 10})
                     .pixelColor(1, 1),
                 QColor(Qt::red));
    }

    void droppedFilesGetIn()
    {
        QMimeData data;
        data.setUrls(
            {QUrl::fromLocalFile(source("a.png")), QUrl(QStringLiteral("https://example.com/b.png"))});
        QDragEnterEvent enter({10, 10}, Qt::MoveAction | Qt::CopyAction, &data, Qt::LeftButton,
                              Qt::NoModifier);
        QCoreApplication::sendEvent(mpGallery.get(), &enter); // without it the toolkit drops nothing
        QDropEvent event({10, 10}, Qt::MoveAction | Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(mpGallery.get(), &event);
        QCOMPARE(names(), QStringList(QStringLiteral("a.png")));
        QCOMPARE(event.dropAction(), Qt::CopyAction); // or its owner would delete the file
    }

    void thumbnailsAreMadeWhenLookedAt()
    {
        mpGallery->add({source("wide.png")});
        QFile::copy(textFile("note"), GalleryPictures::folder() + QStringLiteral("/broken.gif"));
        mpGallery->refresh();
        const auto *model = view()->model();
        QCOMPARE(model->rowCount(), 2);
        QTRY_COMPARE(model->rowCount(), 1); // what cannot be read is left out
        const auto pixel = [model](int x, int y) {
            return model->index(0, 0)
                .data(Qt::DecorationRole)
                .value<QIcon>()
                .pixmap(128, 128)
                .toImage()
                .pixelColor(x, y);
        };
        QTRY_COMPARE(pixel(0, 64), QColor(Qt::red)); // 200 x 100, as wide as there is room for
        QCOMPARE(pixel(64, 30).alpha(), 0);
    }

    void dragCarriesThePathOfThePicture()
    {
        mpGallery->add({source("a.png")});
        const std::unique_ptr<QMimeData> data(view()->model()->mimeData({view()->model()->index(0, 0)}));
        vorlindesk::VorlinMimeData read;
        read.load(*data, QString::fromLatin1(DragFormat::FunctionIcon));
        QCOMPARE(read.strData1, QFileInfo(QStringLiteral("devConfig/gallery/a.png")).absoluteFilePath());
        QCOMPARE(read.strData2, QString());
        QVERIFY(!data->hasUrls());
    }

    void deletingAsksFirst()
    {
        mpGallery->add({source("a.png"), source("b.png"), source("c.png")});
        view()->selectionModel()->select(view()->model()->index(2, 0), QItemSelectionModel::Deselect);
        mAnswer = QMessageBox::No;
        mpGallery->activateWindow();
        view()->setFocus();
        QVERIFY(QTest::qWaitForWindowActive(mpGallery.get()));
        QTest::keyClick(view(), Qt::Key_Delete);
        QCOMPARE(mBoxes, QStringList(QStringLiteral("Delete 2 pictures from the gallery?")));
        QCOMPARE(names().size(), 3);
        mAnswer = QMessageBox::Yes;
        QTest::keyClick(view(), Qt::Key_Delete);
        QCOMPARE(names(), QStringList(QStringLiteral("c.png")));
        QCOMPARE(view()->model()->rowCount(), 1);
    }

    void columnsFillTheWidth_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("column");
        QTest::newRow("two in the least window") << 158 << 79;
        QTest::newRow("three") << 300 << 100;
        QTest::newRow("narrower than a column") << 60 << 30;
    }

    void columnsFillTheWidth()
    {
        QFETCH(int, width);
        QTEST(galleryColumnWidth(width), "column");
    }
};

QTEST_MAIN(tst_ui_editor_gallery)
#include "tst_ui_editor_gallery.moc"
