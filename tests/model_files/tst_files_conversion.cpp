/// Pictures and videos for keys: real files through the real tool, and every way in which it can go wrong.
#include "fileutil.h"
#include "model/avifile.h"
#include "model/conversionqueue.h"
#include "storefixture.h"
#include "support/ffmpegtool.h"

#include <QElapsedTimer>
#include <QImageWriter>
#include <QPainter>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>
#include <memory>

using namespace vorlinmodel;

Q_DECLARE_METATYPE(vorlinmodel::ConversionError)
Q_DECLARE_METATYPE(vorlinmodel::ConversionResult)
Q_DECLARE_METATYPE(vorlinmodel::VideoSettings)

class TestFilesConversion : public QObject
{
    Q_OBJECT

    std::unique_ptr<StoreFixture> mpFixture;
    const QString mTool = vorlindesk::Paths::ffmpegTool();

    ConverterOptions options() const { return {.tool = mTool, .folder = mpFixture->path("out")}; }
    QStringList outputs() const
    {
        return QDir(mpFixture->path("out")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    /// A program in place of the tool; $out is the output that it is asked for.
    QString standIn(const QByteArray &body) const
    {
        const QString path = mpFixture->path("stand-in");
        writeTestFile(path,
                      QByteArray("#!/bin/sh\nfor out; do [ \"$out\" = -y ] || last=$out; done; out=$last\n") +
                          body);
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return path;
    }

    QString makeVideo(const QString &name, const char *source, const QStringList &more = {}) const
    {
        const QString path = mpFixture->path("") + name;
        makeFilm(path, u(source), more);
        return path;
    }

    /// Red on the left, blue on the right.
    static QImage twoColours(const QSize &size)
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::blue);
        QPainter(&image).fillRect(0, 0, size.width() / 2, size.height(), Qt::red);
        return image;
    }

    static bool canWriteWebp() { return QImageWriter::supportedImageFormats().contains("webp"); }
    static bool isReddish(const QColor &colour) { return colour.red() > 200 && colour.blue() < 60; }
    static bool isBluish(const QColor &colour) { return colour.blue() > 200 && colour.red() < 60; }

private slots:
    void initTestCase()
    {
        qRegisterMetaType<ConversionResult>("vorlinmodel::ConversionResult");
        if (!hasTool())
            QSKIP("there is no ffmpeg beside this program");
    }
    void init() { mpFixture = std::make_unique<StoreFixture>(); }
    void cleanup() { mpFixture.reset(); }

    void pictureBecomesRgbOfTheWantedSize_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<QByteArray>("format");
        QTest::newRow("plain") << u("a.png") << QByteArray("PNG");
        QTest::newRow("blanks, quotes") << u("my \"best\" 'one' $HOME `id`;.png") << QByteArray("PNG");
        QTest::newRow("Chinese") << u("文件夹/图片 测试.jpg") << QByteArray("JPEG");
        QTest::newRow("content counts, not the ending") << u("-i.png") << QByteArray("BMP");
        if (canWriteWebp())
            QTest::newRow("WebP") << u("a.webp") << QByteArray("WEBP");
    }

    void pictureBecomesRgbOfTheWantedSize()
    {
        QFETCH(QString, source);
        QFETCH(QByteArray, format);
        source.prepend(mpFixture->path(""));
        source = possibleName(source);
        QImage image = twoColours({64, 48});
        QBuffer buffer;
        image.convertToFormat(QImage::Format_ARGB32).save(&buffer, format.constData());
        QVERIFY(writeTestFile(source, buffer.data()));
        ConverterOptions names = options();
        names.newName = [] {
            return u("新 name");
        };
        QVERIFY(writeTestFile(mpFixture->path("out/") + u("新 name.png"), "an older file")); // is overwritten
        mpFixture->takeLines();

        const ConversionResult result = ImageConverter(names).transferImage(source, 90, 84);
        QVERIFY2(result.success(), qPrintable(result.reason));
        QCOMPARE(result.path, QDir::currentPath() + u("/out/新 name.png"));
        const QString line = QStringLiteral("\"%1\" -i \"%2\" -s 90x84 -pix_fmt rgb24 \"%3\" -y");
        const QString command = line.arg(mTool, source, result.path);
        QCOMPARE(mpFixture->takeLines(),
                 (QStringList{u("1 ffmpeg:\"") + mTool + u("\""),
                              u("1 transferImage -----------------strCmd=[") + command + u("]"),
                              u("1 exec ") + command + u(" ok"), u("1 strOutput=[]")}));
        const QImage made(result.path);
        QCOMPARE(made.size(), QSize(90, 84));
        QVERIFY(!made.hasAlphaChannel());
        QVERIFY(isReddish(made.pixelColor(10, 40)) && isBluish(made.pixelColor(80, 40)));
        QCOMPARE(outputs().size(), 1);
    }

    void whatTheToolWouldGetWrongIsMadeUpright_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("folder");
        QTest::newRow("turned by EXIF") << u("turned.jpg") << u("out");
        QTest::newRow("name of a series") << u("100%d.png") << u("out");
        QTest::newRow("folder of a series") << u("plain.png") << u("out %03d");
        if (toolMakesFilms()) {
            QTest::newRow("moving picture") << u("moving.gif") << u("out");
            QTest::newRow("film") << u("film.mp4") << u("out");
        }
    }

    void whatTheToolWouldGetWrongIsMadeUpright()
    {
        QFETCH(QString, source);
        QFETCH(QString, folder);
        const QString path = mpFixture->path("") + source;
        // Red is above in all of them: in the first, because the left side of its pixels is to be shown
        // there.
        QImage upright = twoColours({64, 48}).transformed(QTransform().rotate(90));
        if (source.endsWith(u("png"))) {
            upright.save(path);
        } else if (source == u("turned.jpg")) {
            QBuffer buffer;
            twoColours({64, 48}).save(&buffer, "JPEG");
            const QByteArray orientation6 =
                QByteArray::fromHex("ffe100224578696600004d4d002a00000008000101120003"
                                    "000000010006000000000000");
            writeTestFile(path, QByteArray(buffer.data()).insert(2, orientation6));
        } else {
            makeVideo(source, "color=red:s=48x32:d=1:r=10,pad=48:64:0:0:blue",
                      {u("-pix_fmt"), source.endsWith(u("gif")) ? u("rgb8") : u("yuv420p")});
        }
        ImageConverter converter({.tool = mTool, .folder = mpFixture->path(qPrintable(folder))});
        const ConversionResult result = converter.transferImage(path, 180, 84);
        QVERIFY2(result.success(), qPrintable(result.reason));
        const QImage made(result.path);
        QCOMPARE(made.size(), QSize(180, 84));
        QVERIFY(isReddish(made.pixelColor(90, 10)) && isBluish(made.pixelColor(90, 75)));
        QCOMPARE(QDir(QFileInfo(result.path).path()).count(), 3U); // with "." and ".."
    }

    void unfitSourcesNeverReachTheTool_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<ConversionError>("error");
        QTest::addColumn<QString>("reason");
        const QByteArray png = picture({200, 100}, Qt::red);
        const QByteArray huge = png.left(8) +
                                QByteArray::fromHex("0000000d4948445200007530000075300802000000e9456fed") +
                                png.mid(33);
        const auto noPicture = u("\"%2 name.png\" is not a picture that can be read.");
        const auto damaged = u("\"%2 name.png\" is damaged or not complete.");
        QTest::newRow("text") << QByteArray("Hello, I am a picture.\n") << ConversionError::NotPicture
                              << noPicture;
        QTest::newRow("empty") << QByteArray() << ConversionError::NotPicture << noPicture;
        QTest::newRow("too many pixels")
            << huge << ConversionError::TooManyPixels
            << u("\"%2 name.png\" is too large: a picture may have up to 16384 x 16384 pixels.");
        for (const char *format : {"PNG", "JPEG", "BMP", "WEBP"}) {
            if (format == QByteArray("WEBP") && !canWriteWebp())
                continue;
            const QByteArray whole = picture({200, 100}, Qt::red, format);
            QTest::newRow(format) << whole.left(whole.size() - 15) << ConversionError::Damaged << damaged;
        }
        const QByteArray gif =
            QByteArray::fromHex("47494638396101000100800000ff0000ffffff2c0000000001000100000202");
        QTest::newRow("GIF") << gif << ConversionError::Damaged << damaged;
    }

    void unfitSourcesNeverReachTheTool()
    {
        QFETCH(QByteArray, content);
        QFETCH(ConversionError, error);
        const QString source = mpFixture->path("%2 name.png");
        QVERIFY(writeTestFile(source, content));
        const ConversionResult result = ImageConverter(options()).transferImage(source, 90, 84);
        QCOMPARE(result.error, error);
        QTEST(result.reason, "reason");
        QVERIFY(mpFixture->takeLines().filter(u("strCmd")).isEmpty() && outputs().isEmpty());
    }

    void missingThingsAreNamed()
    {
        const QString source = mpFixture->path("a.png");
        ImageConverter converter(options());
        QCOMPARE(converter.transferImage(source, 90, 84).reason, u("\"a.png\" cannot be opened."));
        writeTestFile(source, picture({20, 20}, Qt::red));
        QCOMPARE(converter.transferImage(source, 90, 0).error, ConversionError::BadSize);
        writeTestFile(mpFixture->path("file"), "in the way");
        QCOMPARE(ImageConverter({.tool = mTool, .folder = mpFixture->path("file")})
                     .transferImage(source, 9, 8)
                     .error,
                 ConversionError::NotWritable);
        mpFixture->takeLines();
        const ConversionResult result =
            ImageConverter({.tool = u("/no/tool"), .folder = mpFixture->path("out")})
                .transferImage(source, 90, 84);
        QCOMPARE(result.error, ConversionError::NoTool);
        QVERIFY(result.reason.endsWith(QDir::toNativeSeparators(u(": /no/tool"))));
        QCOMPARE(mpFixture->takeLines().filter(QRegularExpression(u("^3 exec .* failed$"))).size(), 1);
        QVERIFY(outputs().isEmpty());
    }

    void outputNamesAreNeverGivenTwice()
    {
        QStringList names{u("a"), u("a"), u("a"), u("b")};
        OutputNames scripted([&names] { return names.takeFirst(); });
        QCOMPARE(scripted.next(u(".png")), u("a.png"));
        QCOMPARE(scripted.next(u(".png")), u("b.png"));
        const QString repeated = u("1 transferImage [a.png] already exists repead");
        QCOMPARE(mpFixture->takeLines(), (QStringList{repeated, repeated}));
    }

#ifndef Q_OS_WIN
    void failingToolLeavesNothing_data()
    {
        QTest::addColumn<QByteArray>("script");
        QTest::addColumn<ConversionError>("error");
        QTest::addColumn<QString>("line");
        QTest::newRow("no end") << QByteArray("echo part >\"$out\"; exec sleep 60")
                                << ConversionError::TimedOut << u("2 the tool was ended: time limit");
        QTest::newRow("no end, deaf")
            << QByteArray("trap '' TERM; echo x >\"$out\"; while :; do sleep 0.1; done")
            << ConversionError::TimedOut << u("2 the tool was ended: time limit");
        QTest::newRow("error") << QByteArray("echo part >\"$out\"; echo first >&2; echo bad luck >&2; exit 3")
                               << ConversionError::ToolFailed << u("2 the tool ended with 3: bad luck");
        QTest::newRow("full disk")
            << QByteArray("echo part >\"$out\"; echo 'a: No space left on device' >&2; exit 1")
            << ConversionError::DiskFull << u("2 the tool ended with 1: a: No space left on device");
        QTest::newRow("crash") << QByteArray("echo part >\"$out\"; kill -KILL $$")
                               << ConversionError::ToolFailed << u("2 the tool was ended: crashed");
        QTest::newRow("another size") << QByteArray("cp \"$2\" \"$out\"") << ConversionError::ToolFailed
                                      << u("is not the picture that was asked for");
    }

    void failingToolLeavesNothing()
    {
        QFETCH(QByteArray, script);
        QFETCH(QString, line);
        const QString source = mpFixture->path("a.png");
        writeTestFile(source, picture({20, 20}, Qt::red));
        ConverterOptions withStandIn = options();
        withStandIn.tool = standIn(script);
        withStandIn.timeLimit = script.contains("sleep") ? 300 : ToolTimeLimit;
        const ConversionResult result = ImageConverter(withStandIn).transferImage(source, 90, 84);
        QTEST(result.error, "error");
        QVERIFY(!result.reason.isEmpty() && result.path.isEmpty());
        QVERIFY(outputs().isEmpty());
        QCOMPARE(mpFixture->takeLines().filter(line).size(), 1);
    }

    void fullDiskIsNamed()
    {
        const QString source = mpFixture->path("a.png");
        writeTestFile(source, picture({20, 20}, Qt::red));
        QCOMPARE(ImageConverter(options()).transferImage(source, 90, 84).error, ConversionError::None);
        const QString film = makeVideo(u("film.mp4"), "testsrc=d=1");
        const FullDisk full;
        QCOMPARE(ImageConverter(options()).transferImage(source, 90, 84).error, ConversionError::DiskFull);
        QCOMPARE(VideoConverter(options()).transferVideo(film, {}).error, ConversionError::DiskFull);
        QCOMPARE(outputs().size(), 1);
    }
#endif

    void videoBecomesMotionJpeg_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<VideoSettings>("settings");
        QTest::addColumn<qint64>("frames");
        const VideoSettings plain;
        const QString source = u("testsrc=s=320x180:d=2:r=");
        QTest::newRow("faster than a key")
            << u("a \"b\" 视频.mp4") << source + u("30") << plain << qint64(30);
        QTest::newRow("slower than a key") << u("a.webm") << source + u("10") << plain << qint64(20);
        QTest::newRow("moving picture, merged key")
            << u("a.gif") << source + u("10") << VideoSettings{.size = {270, 168}, .fit = VideoFit::Cover}
            << qint64(20);
        QTest::newRow("stretched") << u("a.mov") << source + u("5") << VideoSettings{.fit = VideoFit::Stretch}
                                   << qint64(10);
    }

    void videoBecomesMotionJpeg()
    {
        QFETCH(QString, source);
        QFETCH(QString, pattern);
        if (!toolMakesFilms())
            QSKIP("this ffmpeg makes no films");
        QFETCH(VideoSettings, settings);
        source = possibleName(source);
        const QString path = makeVideo(source, qPrintable(pattern));
        if (!QFile::exists(path))
            QSKIP("this ffmpeg cannot make such a film");
        QVector<int> progress;
        const ConversionResult result =
            VideoConverter(options()).transferVideo(path, settings, {.progress = [&](int percent) {
                                                        progress << percent;
                                                    }});
        QVERIFY2(result.success(), qPrintable(result.reason));
        QVERIFY(std::is_sorted(progress.begin(), progress.end()) && progress.last() == 100);
        const auto info = readAviInfo(result.path);
        QVERIFY(info && info->motionJpeg);
        QCOMPARE(info->size, settings.size);
        QTEST(info->frames, "frames");
        QVERIFY(info->microsecondsPerFrame >= 66666 && std::abs(result.durationMs - 2000) < 100);
        QVERIFY(!result.cut && outputs() == QStringList(QFileInfo(result.path).fileName()));
        QVERIFY(!testFileContent(result.path).contains("auds")); // a stream of sound
    }

    void videoIsMadeToFit()
    {
        if (!toolMakesFilms())
            QSKIP("this ffmpeg makes no films");
        const QString film = makeVideo(u("film.mp4"), "mandelbrot=s=320x240:r=15", {u("-t"), u("6")});
        VideoConverter converter(options());
        const ConversionResult best = converter.transferVideo(film, {});
        const qint64 bestSize = QFileInfo(best.path).size();
        QVERIFY(best.success() && bestSize > 150000);

        const qint64 half = bestSize / 2; // lower quality is enough
        const ConversionResult lower = converter.transferVideo(film, {.byteLimit = half});
        QVERIFY(lower.success() && !lower.cut);
        QVERIFY(QFileInfo(lower.path).size() <= half && QFileInfo(lower.path).size() > half / 3);
        QCOMPARE(lower.durationMs, best.durationMs);

        for (const int divisor : {7, 40}) { // found by trying; known beforehand
            const qint64 little = bestSize / divisor;
            const ConversionResult refused = converter.transferVideo(film, {.byteLimit = little});
            QCOMPARE(refused.error, ConversionError::TooLong);
            QVERIFY(refused.durationMs > 0 && refused.durationMs < best.durationMs);
            QVERIFY(refused.path.isEmpty() && refused.reason.startsWith(u("\"film.mp4\" is too long")));
            const ConversionResult cut = converter.transferVideo(film, {.byteLimit = little, .mayCut = true});
            QVERIFY2(cut.success() && cut.cut, qPrintable(cut.reason));
            QVERIFY(QFileInfo(cut.path).size() <= little && cut.durationMs < best.durationMs);
        }
        QCOMPARE(outputs().size(), 4);
    }

    void noVideoIsRefused_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("text of no kind") << u("a.mp4");
        QTest::newRow("text that would be drawn") << u("a.txt");
        QTest::newRow("sound alone") << u("a.wav");
    }

    void noVideoIsRefused()
    {
        if (!toolMakesFilms())
            QSKIP("this ffmpeg makes no films");
        QFETCH(QString, name);
        QString path = mpFixture->path(qPrintable(name));
        if (name == u("a.wav"))
            makeVideo(u("a.wav"), "sine=d=1");
        else
            writeTestFile(path, "Hello, I am a film.\n");
        QCOMPARE(VideoConverter(options()).transferVideo(path, {}).error, ConversionError::NotVideo);
        QVERIFY(outputs().isEmpty());
    }

    /// The option counts for the input that it stands before, and for nothing else.
    void firstFramesComeFromFilesAlone()
    {
        const QString arguments = firstFrameArguments(u("a.mp4")).join(QLatin1Char(' '));
        QVERIFY(arguments.contains(u(" -protocol_whitelist file -i a.mp4 -frames:v 1 ")));
        QVERIFY(arguments.endsWith(u(" pipe:1")));
    }

    void queueReportsInOrder()
    {
        if (!toolMakesFilms())
            QSKIP("this ffmpeg makes no films");
        writeTestFile(mpFixture->path("a.png"), picture({20, 20}, Qt::red));
        const QString film = makeVideo(u("film.mp4"), "testsrc=d=1");
        ConversionQueue queue(options());
        QSignalSpy progress(&queue, &ConversionQueue::sigProgress);
        QSignalSpy finished(&queue, &ConversionQueue::sigFinished);
        QList<int> ids{queue.add({.source = mpFixture->path("a.png")}),
                       queue.add({.source = mpFixture->path("none")}),
                       queue.add({.source = film, .video = VideoSettings{}})};
        QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 3, 20000);
        const QList<ConversionError> expected{ConversionError::None, ConversionError::NotReadable,
                                              ConversionError::None};
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(finished[i][0].toInt(), ids[i]);
            QCOMPARE(finished[i][1].value<ConversionResult>().error, expected[i]);
        }
        QCOMPARE(progress.last(), (QVariantList{ids[2], 100}));
        QCOMPARE(queue.count(), 0);
    }

    void cancelledJobsLeaveNothing()
    {
        if (!toolMakesFilms())
            QSKIP("this ffmpeg makes no films");
        writeTestFile(mpFixture->path("a.png"), picture({20, 20}, Qt::red));
        const QString shot = makeVideo(u("shot.mkv"), "testsrc=s=1280x720:d=1", {u("-c:v"), u("mjpeg")});
        const QString film = mpFixture->path("film.mkv"); // of many seconds, made in a moment
        QProcess::execute(mTool, {u("-v"), u("error"), u("-stream_loop"), u("300"), u("-i"), shot, u("-c"),
                                  u("copy"), film});
        ConversionQueue queue(options());
        QSignalSpy progress(&queue, &ConversionQueue::sigProgress);
        QSignalSpy finished(&queue, &ConversionQueue::sigFinished);
        const int running = queue.add({.source = film, .video = VideoSettings{}});
        const int waiting = queue.add({.source = mpFixture->path("a.png")});
        const int kept = queue.add({.source = mpFixture->path("a.png")});
        QTRY_VERIFY_WITH_TIMEOUT(!progress.isEmpty(), 10000);
        QVERIFY(!outputs().isEmpty());
        queue.cancel(waiting);
        QVERIFY(finished.isEmpty()); // never within the call
        QTRY_COMPARE(finished.size(), 1);
        QCOMPARE(finished[0][0].toInt(), waiting);
        queue.cancel(running);
        QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 3, 10000);
        QCOMPARE(finished[1][0].toInt(), running);
        QCOMPARE(finished[1][1].value<ConversionResult>().error, ConversionError::Cancelled);
        QCOMPARE(finished[2][0].toInt(), kept);
        QCOMPARE(outputs(), QStringList(QFileInfo(finished[2][1].value<ConversionResult>().path).fileName()));
    }

#ifndef Q_OS_WIN
    void endOfTheQueueEndsTheTool()
    {
        writeTestFile(mpFixture->path("a.png"), picture({20, 20}, Qt::red));
        ConverterOptions deaf = options();
        deaf.tool = standIn("trap '' TERM; echo part >\"$out\"; while :; do sleep 0.1; done");
        auto queue = std::make_unique<ConversionQueue>(deaf);
        queue->add({.source = mpFixture->path("a.png")});
        queue->add({.source = mpFixture->path("a.png")});
        QTRY_VERIFY(!outputs().filter(u(".png")).isEmpty());
        QElapsedTimer timer;
        timer.start();
        queue.reset();
        QVERIFY(timer.elapsed() < 2000);
        QVERIFY(outputs().isEmpty());
    }
#endif
};

QTEST_GUILESS_MAIN(TestFilesConversion)
#include "tst_files_conversion.moc"
