// The gallery: what gets in, under which name, what is known of it, how it looks, and what is dragged out.
#include "editorfixture.h"
#include "support/ffmpegtool.h"
#include "support/files.h"
#include "ui_common/filedialog.h"
#include "ui_common/messagebox.h"
#include "ui_editor/galleryadding.h"
#include "ui_editor/galleryframe.h"
#include "ui_editor/galleryindex.h"
#include "ui_editor/gallerymodel.h"
#include "ui_editor/galleryview.h"
#include "ui_editor/vorlinmimedata.h"

#include <QBuffer>
#include <QClipboard>
#include <QComboBox>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPainter>
#include <QPixmap>
#include <QToolButton>
#include <csignal>
#ifdef Q_OS_UNIX
#include <sys/resource.h>
#endif

namespace {

QString u(const char *text)
{
    return QString::fromUtf8(text);
}

} // namespace

class tst_ui_editor_gallery : public QObject
{
    Q_OBJECT
    std::unique_ptr<EditorFixture> mpFixture;
    std::unique_ptr<GalleryFrame> mpGallery;
    QStringList mBoxes;
    QMessageBox::StandardButton mAnswer = QMessageBox::Yes;

    void openGallery()
    {
        mpGallery = std::make_unique<GalleryFrame>(mpFixture->language, nullptr);
        QVERIFY(mpGallery->setup());
        mpGallery->resize(200, 360);
        mpGallery->show();
    }
    QString write(const QString &name, const QByteArray &bytes) const
    {
        const QFileInfo info(mpFixture->path("in/") + name);
        info.dir().mkpath(QStringLiteral("."));
        QFile file(info.filePath());
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? file.fileName()
                                                                                    : QString();
    }
    /// Red above, blue below.
    static QByteArray picture(const char *format = "PNG")
    {
        QImage image(200, 100, QImage::Format_RGB32);
        image.fill(Qt::blue);
        QPainter(&image).fillRect(0, 0, 200, 50, Qt::red);
        QBuffer buffer;
        image.save(&buffer, format);
        return buffer.data();
    }
    /// A camera held upright: to be turned by 90 degrees clockwise.
    static QByteArray turnedPicture()
    {
        return picture("JPG").insert(2, QByteArray::fromHex("ffe1002245786966000049492a0008000000010012010300"
                                                            "01000000060000000000 0000"));
    }
    /// The head of a PNG of 30,000 x 30,000 pixels.
    static QByteArray hugePicture()
    {
        return QByteArray::fromHex("89504e470d0a1a0a0000000d4948445200007530000075300800000000434ca766"
                                   "0000000b49444154789c6360800100000a00017f80745e0000000049454e44ae426082");
    }
    /// 2 s long, 64 x 48 pixels, all red; the path of it.
    QString video(const QString &name, const QStringList &more = {}) const
    {
        const QString path = write(name, {});
        makeFilm(path, u("color=red:s=64x48:r=5:d=2"), more);
        return path;
    }
    QStringList names() const
    {
        return QDir(GalleryPictures::folder()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    QStringList shown() const
    {
        QStringList list;
        for (int row = 0; row < view()->model()->rowCount(); ++row)
            list << view()->model()->index(row, 0).data().toString();
        return list;
    }
    GalleryView *view() const { return mpGallery->findChild<GalleryView *>(); }
    QModelIndex item(const QString &name) const
    {
        return qobject_cast<GalleryModel *>(view()->model())->indexOf(name);
    }
    QImage thumbnail(const QString &name) const
    {
        return item(name).data(Qt::DecorationRole).value<QPixmap>().toImage();
    }
    QStringList dragged(const QString &name) const
    {
        const std::unique_ptr<QMimeData> mime(view()->model()->mimeData({item(name)}));
        vorlindesk::VorlinMimeData pair;
        pair.load(*mime, QString::fromLatin1(DragFormat::FunctionIcon));
        return {pair.strData1, pair.strData2};
    }
    template <typename T>
    T *child(const char *name) const
    {
        return mpGallery->findChild<T *>(QLatin1String(name));
    }

private slots:
    void init()
    {
        mpFixture = std::make_unique<EditorFixture>();
        qputenv("XDG_DATA_HOME", QFile::encodeName(mpFixture->path("home"))); // for the bin
        QVERIFY(QDir().mkpath(mpFixture->path("home")));
        openGallery();
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

    void filesGetInUnderFreeNames()
    {
#ifdef Q_OS_WIN // no file has a double quote in its name there, and the toolkit comes without WebP
        const QString odd = u("猫 '%1' 'b'.png");
        const char *oddFormat = "PNG";
#else
        const QString odd = u("猫 \"%1\" 'b'.webp");
        const char *oddFormat = "WEBP";
#endif
        QTRY_VERIFY(child<QLabel>("galleryEmpty")->isVisible() && !view()->isVisible());
        const QStringList files{
            write(u("a.png"), picture()),        write(u("sub/a.png"), picture("BMP")),
            write(u("plain"), picture("BMP")),   write(odd, picture(oddFormat)),
            write(u("note.png"), "text"),        write(u("cut.jpg"), picture("JPG").chopped(40)),
            write(u("huge.png"), hugePicture()), mpFixture->path("missing.png")};
        FileDialog::setAnswer([&files](const QString &) { return files; });
        child<QToolButton>("addPictures")->click();
        QTRY_COMPARE(mBoxes.size(), 1);
        QCOMPARE(mBoxes.first(),
                 u("\"note.png\" is no picture or video that can be read.\n"
                   "\"cut.jpg\" is damaged or not complete.\n"
                   "\"huge.png\" is too large: a picture may have up to 16384 x 16384 pixels.\n"
                   "\"missing.png\" cannot be opened."));
        QCOMPARE(names(), QStringList({u("a (2).png"), u("a.png"), u("plain.bmp"), odd}));
        QCOMPARE(view()->selectionModel()->selectedIndexes().size(), 4);
        QVERIFY(!child<QLabel>("galleryEmpty")->isVisible() && view()->isVisible());
        QVERIFY(GalleryPictures::add({GalleryPictures::folder() + u("/a.png")}).paths.isEmpty());
    }

    void droppedFoldersAreSearched()
    {
        write(u("in/deep/er/a.png"), picture());
        write(u("in/b.gif"), picture("BMP")); // the content decides
        write(u("in/letter.txt"), "text");
        write(u("in/cut.png"), picture().chopped(20));
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(mpFixture->path("in/in")), QUrl(u("https://example.com/b.png"))});
        QDragEnterEvent enter({10, 10}, Qt::MoveAction | Qt::CopyAction, &data, Qt::LeftButton,
                              Qt::NoModifier);
        QCoreApplication::sendEvent(mpGallery.get(), &enter); // without it the toolkit drops nothing
        QDropEvent event({10, 10}, Qt::MoveAction | Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(mpGallery.get(), &event);
        QCOMPARE(event.dropAction(), Qt::CopyAction); // or its owner would delete the files
        QTRY_COMPARE(mBoxes, QStringList(u("\"cut.png\" is damaged or not complete.")));
        QCOMPARE(shown(), QStringList({u("a.png"), u("b.gif")}));
    }

    void pastedPicturesGetIn()
    {
        QImage image(40, 30, QImage::Format_ARGB32);
        image.fill(Qt::green);
        QGuiApplication::clipboard()->setImage(image);
        mpGallery->activateWindow();
        view()->show();
        view()->setFocus();
        QVERIFY(QTest::qWaitForWindowActive(mpGallery.get()));
        QTest::keySequence(view(), QKeySequence::Paste);
        QTest::keySequence(view(), QKeySequence::Paste);
        QTRY_COMPARE(names(), QStringList({u("Pasted picture (2).png"), u("Pasted picture.png")}));
        QCOMPARE(QImage(GalleryPictures::folder() + u("/Pasted picture.png")).pixelColor(5, 5),
                 image.pixelColor(5, 5));
    }

    void nothingStaysOfWhatDidNotGetIn()
    {
        QByteArray bytes(5'000'000, 'x');
        QBuffer source(&bytes);
        source.open(QIODevice::ReadOnly);
        QString problem;
        int asked = 0;
        const auto stop = [&asked] {
            return ++asked < 3;
        };
        QVERIFY(GalleryAdding::store(source, u("cancelled.png"), problem, stop).isEmpty() &&
                problem.isEmpty());
#ifdef Q_OS_UNIX
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit before{};
        getrlimit(RLIMIT_FSIZE, &before);
        rlimit full{1'000'000, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &full);
        source.seek(0);
        const QString path = GalleryAdding::store(source, u("full.png"), problem, {});
        setrlimit(RLIMIT_FSIZE, &before);
        QVERIFY(path.isEmpty());
        QVERIFY2(problem.startsWith(u("\"full.png\": ")) && problem.size() > 14, qPrintable(problem));
#endif
        QCOMPARE(names(), QStringList());
        QCOMPARE(QDir(GalleryPictures::folder() + u("/thumbnails")).entryList(QDir::Files | QDir::Hidden),
                 QStringList());
    }

    void indexSavesOpeningTheFiles()
    {
        GalleryPictures::add({write(u("a.png"), picture()), write(u("b.jpg"), turnedPicture())});
        write(u("gallery/c.txt"), "text");
        mpGallery->refresh();
        QTRY_COMPARE(shown(), QStringList({u("a.png"), u("b.jpg")}));
        QVERIFY(item(u("b.jpg")).data(Qt::ToolTipRole).toString().contains(u("100 × 200 pixels")));
        mpGallery.reset();
        QFile ini(GalleryIndex::fileName());
        QVERIFY(ini.open(QIODevice::ReadOnly));
        const QByteArray good = ini.readAll();
        ini.close();
        const auto reopen = [&](QByteArray content) {
            mpGallery.reset();
            QVERIFY(ini.open(QIODevice::WriteOnly | QIODevice::Truncate));
            ini.write(content);
            ini.close();
            openGallery();
            QTRY_COMPARE(shown(), QStringList({u("a.png"), u("b.jpg")}));
        };
        reopen(QByteArray(good).replace("200, 100", "201, 101"));
        QVERIFY(item(u("a.png")).data(Qt::ToolTipRole).toString().contains(u("201 × 101"))); // as it says
        // Another state of the file, a file that is gone, lines of nonsense: the files are opened again.
        reopen(QByteArray(good).replace("200, 100, ", "201, 101, 9") +
               "9=gone.png, image, 1, 1, 1, 1, 0\n10=a.png\n11=../../a.png, image, 1, 1, 1, 1, 0\n");
        QVERIFY(item(u("a.png")).data(Qt::ToolTipRole).toString().contains(u("200 × 100")));
        reopen("[files\n\x01 no ini at all");
        QVERIFY(QFile::exists(GalleryIndex::fileName() + u(".damaged")));
    }

    void thumbnailsAreMadeWhenLookedAt()
    {
        GalleryPictures::add({write(u("b.jpg"), turnedPicture()), write(u("c.png"), picture())});
        write(u("x"), {});
        QVERIFY(QFile::copy(write(u("cut.gif"), picture("PNG").chopped(60)),
                            GalleryPictures::folder() + u("/z.png")));
        mpGallery->refresh();
        QTRY_COMPARE(thumbnail(u("b.jpg")).size(), QSize(72, 144));
        const QColor left = thumbnail(u("b.jpg")).pixelColor(5, 70);
        QVERIFY2(left.blue() > 200, qPrintable(left.name())); // what lay below is now on the left
        QTRY_COMPARE(thumbnail(u("c.png")).pixelColor(70, 5), QColor(Qt::red));
    }

    void videosComeWithTheirFirstFrame_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QStringList>("codec");
        QTest::newRow("MP4, a name of many signs")
            << u("%d 猫 'a' \"b\".mp4") << QStringList{u("-c:v"), u("mpeg4")};
        QTest::newRow("MOV") << u("a.mov") << QStringList{u("-c:v"), u("mjpeg")};
        QTest::newRow("WebM") << u("a.webm") << QStringList{u("-c:v"), u("libvpx")};
        QTest::newRow("AVI") << u("-i.avi") << QStringList{u("-c:v"), u("mjpeg")};
    }

    void videosComeWithTheirFirstFrame()
    {
        QFETCH(QString, name);
        QFETCH(QStringList, codec);
        name = possibleName(name);
        if (!toolMakesFilms() || QFileInfo(video(name, codec)).size() == 0)
            QSKIP("this ffmpeg cannot make such a film");
        mpGallery->add({video(name, codec)});
        QTRY_COMPARE(shown(), QStringList(name));
        QTRY_VERIFY(!thumbnail(name).isNull());
        QVERIFY(thumbnail(name).pixelColor(30, 20).red() > 200);
        QCOMPARE(item(name).data(GalleryModel::DurationRole).toLongLong(), 2000);
        QVERIFY(item(name).data(Qt::ToolTipRole).toString().contains(u("64 × 48 pixels")));
        const QStringList pair = dragged(name);
        QCOMPARE(pair[1], GalleryPictures::folder() + u("/") + name);
        QCOMPARE(QImage(pair[0], "PNG").size(), QSize(64, 48));
        QTRY_VERIFY_WITH_TIMEOUT(GalleryIndex().read()[0].durationMs == 2000, 5000); // it is written down

        QSignalSpy chosen(mpGallery.get(), &GalleryFrame::sigItemChosen);
        view()->setCurrentIndex(item(name));
        QTest::keyClick(view(), Qt::Key_Return);
        QCOMPARE(chosen.value(0), QVariantList({pair[0], pair[1]}));
    }

    void videosThatCannotBeOpened()
    {
        if (!toolMakesFilms())
            QSKIP("this ffmpeg makes no films");
        const QString whole = video(u("a.mp4"), {u("-c:v"), u("mpeg4")});
        QFile file(whole);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString cut = write(u("cut.mp4"), file.readAll().left(300));
        QCOMPARE(GalleryPictures::add({cut}).problems,
                 QStringList(u("\"cut.mp4\" is not a video that can be read.")));
        const std::atomic<bool> never = false;
        const auto added = GalleryAdding::add({whole}, {.cancelled = never, .tool = u("/no/such/tool")});
        QCOMPARE(added.problems, QStringList()); // the content has to do
        mpGallery->refresh();
        QTRY_COMPARE(shown(), QStringList(u("a.mp4")));
        QVERIFY(!thumbnail(u("a.mp4")).isNull() || dragged(u("a.mp4"))[0].isEmpty()); // no frame yet
    }

    void filterLooksAtNameAndType()
    {
        GalleryPictures::add({write(u("Cat 1.png"), picture()), write(u("cat 10.png"), picture()),
                              write(u("cat 2.png"), picture()), write(u("dog.png"), picture())});
        // Two frames: a picture that moves.
        QByteArray gif = QByteArray::fromHex("47494638396101000100800000ff00000000ff");
        for (int frame = 0; frame < 2; ++frame)
            gif += QByteArray::fromHex("2c000000000100010000020244 0100");
        GalleryPictures::add({write(u("cat.gif"), gif + ';')});
        mpGallery->refresh();
        QTRY_COMPARE(view()->model()->rowCount(), 5);
        child<QLineEdit>("gallerySearch")->setText(u(" CAT "));
        QCOMPARE(shown(), QStringList({u("Cat 1.png"), u("cat 2.png"), u("cat 10.png"), u("cat.gif")}));
        auto *type = child<QComboBox>("galleryType");
        type->setCurrentIndex(type->findText(u("Video")));
        QCOMPARE(shown(), QStringList(u("cat.gif")));
        const QString path = GalleryPictures::folder() + u("/cat.gif");
        QCOMPARE(dragged(u("cat.gif")), QStringList({path, path}));
        type->setCurrentIndex(type->findText(u("Image")));
        QCOMPARE(view()->model()->rowCount(), 4);
        QCOMPARE(dragged(u("Cat 1.png")), QStringList({GalleryPictures::folder() + u("/Cat 1.png"), {}}));
        child<QLineEdit>("gallerySearch")->setText(u("bird"));
        QCOMPARE(child<QLabel>("galleryEmpty")->text(), u("Nothing found."));
        mpGallery->add({write(u("new.png"), picture())});
        QTRY_VERIFY(item(u("new.png")).isValid()); // what was added is seen
    }

    void deletingAsksFirst()
    {
        GalleryPictures::add(
            {write(u("a.png"), picture()), write(u("b.png"), picture()), write(u("c.png"), picture())});
        mpGallery->refresh();
        QTRY_COMPARE(view()->model()->rowCount(), 3);
        mAnswer = QMessageBox::No;
        child<QToolButton>("gallerySelectAll")->click();
        child<QToolButton>("galleryDelete")->click();
        QCOMPARE(mBoxes, QStringList(u("Delete 3 pictures and videos from the gallery?")));
        QCOMPARE(names().size(), 3);
        mAnswer = QMessageBox::Yes;
        view()->selectionModel()->setCurrentIndex(item(u("b.png")), QItemSelectionModel::ClearAndSelect);
        child<QToolButton>("galleryDelete")->click();
        QTRY_COMPARE(shown().join(QLatin1Char(' ')), u("a.png c.png"));
        QCOMPARE(mBoxes.last(), u("Delete \"b.png\" from the gallery?"));
        child<QToolButton>("gallerySelectAll")->click();
        child<QToolButton>("galleryDelete")->click();
        QTRY_COMPARE(names(), QStringList());
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
