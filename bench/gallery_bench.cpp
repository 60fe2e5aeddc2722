/// The figures of the gallery, with the files and the list of an earlier run. Run it through scripts/bench,
/// on an X display: without arguments it makes the files, and then measures in a process of its own.
#include "base/language.h"
#include "base/paths.h"
#include "ui_editor/galleryframe.h"
#include "ui_editor/galleryindex.h"
#include "ui_editor/gallerypictures.h"
#include "ui_editor/galleryview.h"
#include "watchdog.h"

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTimer>
#include <QTranslator>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

namespace {

constexpr int Items = 2000;
constexpr int DifferentPictures = 20; // the others are copies: making them would take minutes
constexpr QSize PictureSize(1600, 1200);
constexpr QSize ColumnSize(324, 600); // of a wide screen
constexpr int ScrollSteps = 400;
constexpr int ScrollPause = 20; // ms between two steps of the wheel

QImage testPicture(int number)
{
    QImage image(PictureSize, QImage::Format_RGB32);
    image.fill(QColor::fromHsv(number * 18 % 360, 200, 200));
    QPainter painter(&image);
    for (int i = 0; i < 200; ++i) {
        painter.setBrush(QColor::fromHsv((i * 37 + number) % 360, 150, 220));
        painter.drawEllipse(QPoint(i * 61 % PictureSize.width(), i * 43 % PictureSize.height()), 90, 60);
    }
    return image;
}

bool makeFiles()
{
    QDir().mkpath(GalleryPictures::folder());
    const QDir folder(GalleryPictures::folder());
    for (int i = 0; i < Items; ++i) {
        const char *ending = i % 2 == 0 ? "jpg" : "png";
        const auto name = [ending](int number) {
            return QStringLiteral("picture %1.%2").arg(number).arg(QLatin1String(ending));
        };
        const bool made = i < DifferentPictures ? testPicture(i).save(folder.filePath(name(i)))
                                                : QFile::copy(folder.filePath(name(i % DifferentPictures)),
                                                              folder.filePath(name(i)));
        if (!made)
            return false;
    }
    return int(GalleryIndex().read().size()) == Items; // which writes the list
}

/// Notes when the view was painted with all its items for the first time.
class FirstPaint : public QObject
{
public:
    explicit FirstPaint(const GalleryView &view)
        : mView(view)
    {
        view.viewport()->installEventFilter(this);
    }
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && mView.model()->rowCount() == Items)
            QTimer::singleShot(0, this, [this] { mIsDone = true; }); // behind the painting
        return false;
    }
    bool isDone() const { return mIsDone; }

private:
    const GalleryView &mView;
    bool mIsDone = false;
};

void runFor(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

void scrollThrough(GalleryView &view, Watchdog &watchdog, const char *what)
{
    QScrollBar *bar = view.verticalScrollBar();
    bar->setValue(0);
    runFor(200);
    watchdog.start();
    for (int step = 1; step <= ScrollSteps; ++step) {
        bar->setValue(bar->maximum() * step / ScrollSteps);
        runFor(ScrollPause);
    }
    std::printf("%s: longest block of the event loop %.1f ms\n", what, watchdog.stop());
}

int measure()
{
    QTranslator translator;
    const vorlindesk::LanguageManager language(&translator);
    Watchdog watchdog;
    runFor(200);
    watchdog.start();
    const auto start = Clock::now();
    GalleryFrame frame(language, nullptr);
    if (!frame.setup())
        return 1;
    frame.resize(ColumnSize);
    frame.show();
    auto *view = frame.findChild<GalleryView *>();
    const FirstPaint painted(*view);
    while (!painted.isDone())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    std::printf("opening a gallery of %d items, to the first paint: %.1f ms\n", Items,
                Milliseconds(Clock::now() - start).count());
    std::printf("opening: longest block of the event loop %.1f ms\n", watchdog.stop());
    scrollThrough(*view, watchdog, "scrolling through, thumbnails not made yet");
    scrollThrough(*view, watchdog, "scrolling through again");
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication app(argc, argv);
    if (argc > 1)
        return QDir::setCurrent(QString::fromLocal8Bit(argv[1])) ? measure() : 1;
    const QTemporaryDir folder;
    if (!QDir::setCurrent(folder.path()) || !makeFiles()) {
        std::fprintf(stderr, "the files of the gallery cannot be made in %s\n", qPrintable(folder.path()));
        return 1;
    }
    return QProcess::execute(QCoreApplication::applicationFilePath(), {folder.path()});
}
