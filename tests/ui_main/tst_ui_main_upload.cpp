// The picture upload page, with real files and the real converter.
#include "model/avifile.h"
#include "model/functionids.h"
#include "support/ffmpegtool.h"
#include "support/files.h"
#include "ui_editor/editorcontext.h"
#include "ui_main/pictureuploadpage.h"
#include "uimainfakes.h"

#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QComboBox>
#include <QImageWriter>
#include <QLabel>
#include <QMimeData>
#include <QPainter>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

using vorlinmodel::key_id_t;

namespace {

constexpr key_id_t Merged{12, 1, 1}; ///< 2 x 2 physical keys
constexpr key_id_t Empty{1, 1, 7};   ///< without a function
constexpr int LongWait = 20000;      ///< ms; the machine may be busy

/// Red on the left, blue on the right.
QImage twoColours(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::blue);
    QPainter(&image).fillRect(0, 0, size.width() / 2, size.height(), Qt::red);
    return image;
}

bool isReddish(const QColor &colour)
{
    return colour.red() > 200 && colour.blue() < 60;
}

} // namespace

class tst_ui_main_upload : public QObject
{
    Q_OBJECT
    std::unique_ptr<TemporaryCurrentDir> mpDir;
    std::unique_ptr<FakeContext> mpContext;
    std::unique_ptr<EditorContext> mpEditor;
    std::unique_ptr<PictureUploadPage> mpPage;
    vorlinmodel::ConverterOptions mOptions;

    template <class Child>
    Child *child(const char *name) const
    {
        return mpPage->findChild<Child *>(QString::fromLatin1(name));
    }
    QString message() const { return child<QLabel>("message")->text(); }
    QString facts() const { return child<QLabel>("facts")->text(); }
    QPushButton *add() const { return child<QPushButton>("addToGallery"); }
    QPushButton *set() const { return child<QPushButton>("setOnKey"); }
    QString file(const QString &name) const { return QDir::current().filePath(name); }
    QDir gallery() const { return QDir(vorlindesk::Paths::devConfigFolder() + "/gallery"_s); }
    QStringList galleryFiles() const { return gallery().entryList(QDir::Files); }

    void makePage()
    {
        mpPage = std::make_unique<PictureUploadPage>(*mpEditor, nullptr, mOptions);
        QVERIFY(mpPage->setup());
    }
    void choose(const QString &path)
    {
        mpPage->choose(path);
        QTRY_VERIFY_WITH_TIMEOUT(message() != "Reading the file..."_s, LongWait);
    }
    void press(QPushButton *button)
    {
        QVERIFY(button->isEnabled());
        button->click();
        QTRY_VERIFY_WITH_TIMEOUT(child<QPushButton>("cancel")->isHidden(), LongWait);
    }
    QString makeVideo(const QString &name, const QString &source) const
    {
        makeFilm(file(name), source);
        return file(name);
    }

private slots:
    void initTestCase()
    {
        if (!hasTool())
            QSKIP("there is no ffmpeg beside this program");
    }

    void init()
    {
        mpDir = std::make_unique<TemporaryCurrentDir>();
        writeTestFile(file("devConfig/customLayout.ini"_s),
                      "[layout_12]\nname=Big %2\nnum=1\n1_bitmap=99\nphyid_1=1#1#1&2#1#2&6#2#1&7#2#2\n");
        mpContext = std::make_unique<FakeContext>();
        mpContext->store.addKeyAttribute(Merged, vorlinmodel::VIDEO_FID);
        mpEditor = std::make_unique<EditorContext>(*mpContext);
        mOptions = {};
        makePage();
    }
    void cleanup()
    {
        mpPage.reset();
        mpEditor.reset();
        mpContext.reset();
        mpDir.reset();
    }

    void unfitFilesAreNamedAndChangeNothing_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("problem");
        QBuffer png;
        twoColours({200, 100}).save(&png, "PNG");
        const QByteArray huge = png.data().left(8) +
                                QByteArray::fromHex("0000000d4948445200007530000075300802000000e9456fed") +
                                png.data().mid(33);
        QTest::newRow("no picture") << "my \"best\" 'one' 图片 %1.png"_s << QByteArray("text")
                                    << "\"%1\" is not a picture that can be read."_s;
        QTest::newRow("30,000 pixels")
            << "a.png"_s << huge << "\"%1\" is too large: a picture may have up to 16384 x 16384 pixels."_s;
        QTest::newRow("cut short") << "a.png"_s << png.data().left(200)
                                   << "\"%1\" is damaged or not complete."_s;
        QTest::newRow("missing") << "a.png"_s << QByteArray() << "\"%1\" cannot be opened."_s;
        QTest::newRow("damaged video")
            << "a.mp4"_s << QByteArray::fromHex("0000001866747970") + "isom" + "....isom"
            << "\"%1\" is not a video that can be read."_s;
    }

    void unfitFilesAreNamedAndChangeNothing()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        QFETCH(QString, problem);
        name = possibleName(name);
        problem.replace("%1"_s, name);
        if (!content.isEmpty())
            writeTestFile(file(name), content);
        mpPage->setKey(Merged);
        choose(file(name));
        QTRY_COMPARE_WITH_TIMEOUT(message(), problem, LongWait);
        QVERIFY(!add()->isEnabled() && !set()->isEnabled());
    }

    void pictureIsCroppedIntoTheGallery_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("fit");
        QTest::addColumn<bool>("isLeftRed");
        QTest::newRow("filled") << "photo.png"_s << 0 << true;
        QTest::newRow("whole, with dark edges") << "我的 \"图片\" 100%d.png"_s << 1 << false;
    }

    void pictureIsCroppedIntoTheGallery()
    {
        QFETCH(QString, name);
        QFETCH(int, fit);
        name = possibleName(name);
        QVERIFY(twoColours({84, 840}).save(file(name)));
        QSignalSpy changed(mpPage.get(), &PictureUploadPage::sigGalleryChanged);
        choose(file(name));
        QVERIFY(facts().startsWith("84 x 840 pixels"_s));
        auto *fits = child<QComboBox>("fit");
        fits->setCurrentIndex(fit);
        emit fits->activated(fit);
        press(add());
        QCOMPARE(message(), "The picture is in the gallery."_s);
        QCOMPARE(galleryFiles(), QStringList(name));
        const QImage made(gallery().filePath(name));
        QCOMPARE(made.size(), QSize(90, 84));
        QTEST(isReddish(made.pixelColor(5, 42)), "isLeftRed");
        QVERIFY(isReddish(made.pixelColor(fit == 0 ? 40 : 43, 42)));
        QCOMPARE(changed.count(), 1);
        QVERIFY(!QDir("devConfig/converted"_s).entryList(QDir::Files).size());
    }

    void cameraSaysWhatIsUp()
    {
        QImageWriter writer(file("turned.jpg"_s));
        writer.setTransformation(QImageIOHandler::TransformationRotate90);
        QVERIFY(writer.write(twoColours({120, 60})));
        choose(file("turned.jpg"_s));
        QVERIFY(facts().startsWith("60 x 120 pixels"_s));
        press(add());
        const QImage made(gallery().filePath("turned.png"_s));
        QVERIFY(isReddish(made.pixelColor(45, 5)) && !isReddish(made.pixelColor(45, 78))); // red above
    }

    void pictureGoesOnTheSelectedKey()
    {
        QVERIFY(twoColours({400, 400}).save(file("a.png"_s)));
        choose(file("a.png"_s));
        QCOMPARE(set()->toolTip(), "No key is selected in the editor."_s);
        mpPage->setKey(Empty);
        QCOMPARE(set()->toolTip(), "The selected key has no function. Give it one in the editor first."_s);
        QVERIFY(!set()->isEnabled() && child<QLabel>("setProblem")->text() == set()->toolTip());
        mpPage->setKey(Merged);
        auto *shape = child<QComboBox>("shape");
        QCOMPARE(shape->currentText(), "Key 1 of Big %2, 180 x 168 pixels"_s);
        shape->setCurrentIndex(1);
        emit shape->activated(1);
        QVERIFY(!set()->isEnabled()); // cut for another shape
        shape->setCurrentIndex(0);
        emit shape->activated(0);

        press(set());
        QCOMPARE(message(), "The picture is on the key: Key 1 of Big %2."_s);
        QCOMPARE(mpEditor->edits.history().count(), 1);
        const QImage made(mpContext->store.getDisplayImage(Merged));
        QCOMPARE(made.size(), QSize(180, 168));
        QVERIFY(isReddish(made.pixelColor(85, 80)) && !isReddish(made.pixelColor(95, 80)));
        mpEditor->edits.undo();
        QVERIFY(mpContext->store.getDisplayImage(Merged).isEmpty());
    }

#ifndef Q_OS_WIN
    void failedConversionChangesNothing_data()
    {
        QTest::addColumn<QByteArray>("script");
        QTest::addColumn<QString>("problem");
        QTest::newRow("missing tool") << QByteArray() << "copy the program ffmpeg to this place"_s;
        QTest::newRow("full disk") << QByteArray("echo 'a: No space left on device' >&2; exit 1")
                                   << "\"a b.png\" could not be converted: the disk is full."_s;
        QTest::newRow("cancelled") << QByteArray("exec sleep 60") << "Cancelled. Nothing was changed."_s;
    }

    void failedConversionChangesNothing()
    {
        QFETCH(QByteArray, script);
        QFETCH(QString, problem);
        mOptions.tool = file("tool"_s);
        if (!script.isEmpty())
            writeTestFile(mOptions.tool, "#!/bin/sh\n" + script);
        QFile::setPermissions(mOptions.tool, QFile::ReadOwner | QFile::ExeOwner);
        makePage();
        QVERIFY(twoColours({400, 400}).save(file("a b.png"_s)));
        mpPage->setKey(Merged);
        for (QPushButton *button : {add(), set()}) {
            choose(file("a b.png"_s));
            button->click();
            if (script.contains("sleep")) {
                QTest::qWait(150); // either of the two steps: taking the part, and the tool
                child<QPushButton>("cancel")->click();
            }
            QTRY_VERIFY_WITH_TIMEOUT(message().contains(problem), LongWait);
        }
        QVERIFY(galleryFiles().isEmpty() && mpEditor->edits.history().count() == 0);
        QVERIFY(mpContext->store.getDisplayImage(Merged).isEmpty());
    }
#endif

    void videoIsShownAndConverted()
    {
        if (!toolMakesFilms())
            QSKIP("this ffmpeg makes no films");
        mpPage->setKey(Merged);
        choose(makeVideo("my 视频.mp4"_s, "testsrc=s=320x180:d=2:r=30"_s));
        QTRY_VERIFY_WITH_TIMEOUT(facts().startsWith("320 x 180 pixels, 0:02\n"_s), LongWait);
        QVERIFY(facts().contains("180 x 168 pixels, at most 15 frames a second and 10.0 MB"_s));
        press(add());
        QCOMPARE(message(), "The video is in the gallery."_s);
        QCOMPARE(galleryFiles(), QStringList("my 视频.avi"_s));
        const auto info = vorlinmodel::readAviInfo(gallery().filePath("my 视频.avi"_s));
        QVERIFY(info && info->motionJpeg && info->size == QSize(180, 168));
        set()->click();
        QTRY_VERIFY_WITH_TIMEOUT(mpContext->requests.contains("1: 12 1 1, id 10"_s), LongWait);
        const vorlinmodel::Request sent{.functionCode = 1,
                                        .layoutId = 12,
                                        .pageId = 1,
                                        .keyId = 1,
                                        .functionId = 17,
                                        .attributeId = 10,
                                        .devicePath = {},
                                        .fileName = {}};
        emit mpContext->thread.sigRequestDone(sent, vorlinmodel::RequestOutcome::Sent);
        QTRY_COMPARE(message(), "The video is on the key: Key 1 of Big %2."_s);
        QCOMPARE(mpEditor->edits.history().count(), 1);

        mpPage->setKey({1, 1, 1});
        mpContext->store.addKeyAttribute({1, 1, 1}, 5);
        mpPage->setKey({1, 1, 1});
        QVERIFY(!set()->isEnabled() && set()->toolTip().contains("no video function"_s));
    }

    void movingPictureIsEither()
    {
        if (!toolMakesFilms())
            QSKIP("this ffmpeg makes no films");
        mpPage->setKey(Merged);
        choose(makeVideo("a.gif"_s, "testsrc=s=90x84:d=1:r=5"_s));
        QVERIFY(facts().startsWith("90 x 84 pixels\nUsed"_s));
        auto *use = child<QComboBox>("use");
        use->setCurrentIndex(1);
        emit use->activated(1);
        QTRY_VERIFY_WITH_TIMEOUT(facts().startsWith("90 x 84 pixels, 0:01"_s), LongWait);
        press(add());
        QCOMPARE(galleryFiles(), QStringList("a.avi"_s));
    }

    void drops_data()
    {
        QTest::addColumn<QString>("url");
        QTest::addColumn<bool>("image");
        QTest::addColumn<bool>("taken");
        QTest::newRow("link") << "http://example.org/a.png" << false << false;
        QTest::newRow("link with its picture") << "http://example.org/a.png" << true << true;
        QTest::newRow("file") << "file:///a.png" << false << true;
        QTest::newRow("text") << "" << false << false;
    }

    void drops()
    {
        QFETCH(QString, url);
        QFETCH(bool, image);
        QFETCH(bool, taken);
        QMimeData data;
        data.setText("a"_s);
        if (!url.isEmpty())
            data.setUrls({QUrl(url)});
        if (image)
            data.setImageData(twoColours({50, 40}));
        QDragEnterEvent event(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(mpPage.get(), &event);
        QCOMPARE(event.isAccepted(), taken);
    }

    void pastedPictureIsTaken()
    {
        auto *data = new QMimeData; // goes to the clipboard
        data->setImageData(twoColours({50, 40}));
        QApplication::clipboard()->setMimeData(data);
        mpPage->show();
        QApplication::setActiveWindow(mpPage.get());
        mpPage->setFocus();
        QTest::keySequence(mpPage.get(), QKeySequence::Paste);
        QTRY_VERIFY_WITH_TIMEOUT(facts().startsWith("50 x 40 pixels"_s), LongWait);
        press(add());
        QCOMPARE(galleryFiles(), QStringList("Pasted picture.png"_s));
    }
};

QTEST_MAIN(tst_ui_main_upload)
#include "tst_ui_main_upload.moc"
