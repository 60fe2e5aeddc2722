/// Whether the window ever waits: the whole program in this process, the virtual panel's server beside it,
/// and a watchdog in the event loop while the program reads, converts and sends, and while layouts are
/// edited. Also what a conversion costs beside the bare tool. Run it through scripts/bench.
#include "app/frameworkcontext.h"
#include "base/log.h"
#include "base/paths.h"
#include "benchpanel.h"
#include "model/conversionqueue.h"
#include "model/functionids.h"
#include "model/ifunctionmanager.h"
#include "panel_link/panelserver.h"
#include "protocol/iprotocolthread.h"
#include "ui_main/layoutgrid.h"
#include "ui_main/mainframe.h"
#include "waitfor.h"
#include "watchdog.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QKeyEvent>
#include <QListWidget>
#include <QProcess>
#include <QTemporaryDir>
#include <QWidget>
#include <atomic>
#include <chrono>
#include <cstdio>

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;
using vorlinmodel::AttributeId;
using vorlinmodel::ConversionResult;
using vorlinmodel::key_id_t;
using vorlinmodel::RequestKind;

namespace {

constexpr int Conversions = 10;
constexpr auto Patience = 180s;
constexpr int LastLayout = 21; // twenty, as many as there can be
constexpr QSize KeySize(90, 84);
const key_id_t VideoKey{1, 1, 1};

void report(Watchdog &watchdog, const char *what)
{
    std::printf("longest block of the event loop during %s: %.1f ms\n", what, watchdog.stop());
}

template <typename Condition>
bool waitFor(Condition condition)
{
    return ::waitFor(condition, Patience);
}

bool runTool(const QStringList &arguments)
{
    QProcess tool;
    tool.start(vorlindesk::Paths::ffmpegTool(), arguments);
    return tool.waitForFinished(60'000) && tool.exitCode() == 0;
}

QString makePhoto(const QString &folder)
{
    QImage photo(3000, 2000, QImage::Format_RGB32);
    for (int y = 0; y < photo.height(); ++y) {
        for (int x = 0; x < photo.width(); ++x)
            photo.setPixel(x, y, qRgb((x * y) & 255, (x + y) & 255, (x ^ y) & 255));
    }
    const QString path = folder + QStringLiteral("/photo.jpg");
    photo.save(path, "JPEG", 90);
    return path;
}

QString makeFilm(const QString &folder)
{
    const QString path = folder + QStringLiteral("/film.mp4");
    runTool({QStringLiteral("-loglevel"), QStringLiteral("quiet"), QStringLiteral("-f"),
             QStringLiteral("lavfi"), QStringLiteral("-i"),
             QStringLiteral("testsrc=duration=20:size=1280x720:rate=30"), path});
    return path;
}

/// In turns, so that whatever else the machine does meets both alike.
void measureConversions(const QString &folder)
{
    const QString photo = makePhoto(folder);
    vorlinmodel::ImageConverter converter;
    double own = 0;
    double bare = 0;
    for (int i = 0; i < Conversions; ++i) {
        auto start = Clock::now();
        converter.transferImage(photo, KeySize.width(), KeySize.height());
        own += Milliseconds(Clock::now() - start).count();
        start = Clock::now();
        runTool({QStringLiteral("-i"), photo, QStringLiteral("-s"), QStringLiteral("90x84"),
                 QStringLiteral("-pix_fmt"), QStringLiteral("rgb24"), folder + QStringLiteral("/bare.png"),
                 QStringLiteral("-y")});
        bare += Milliseconds(Clock::now() - start).count();
    }
    std::printf("%d conversions in a row: %.0f ms, the bare tool %.0f ms, ratio %.3f\n", Conversions, own,
                bare, own / bare);
}

/// @return the path of the video.
QString convertFilm(Watchdog &watchdog, const QString &folder)
{
    const QString film = makeFilm(folder);
    vorlinmodel::ConversionQueue queue;
    ConversionResult result;
    bool done = false;
    QObject::connect(&queue, &vorlinmodel::ConversionQueue::sigFinished, &queue,
                     [&](int, const ConversionResult &finished) {
                         result = finished;
                         done = true;
                     });
    watchdog.start();
    queue.add({film, KeySize, vorlinmodel::VideoSettings{.size = KeySize}});
    waitFor([&] { return done; });
    report(watchdog, "a conversion of a video");
    return result.path;
}

void sendVideo(Watchdog &watchdog, vorlindesk::FrameworkContext &context, const QString &video)
{
    std::atomic<bool> done = false;
    QObject::connect(
        context.protocolThread(), &vorlinmodel::IProtocolThread::sigSendVideoFinished,
        context.protocolThread(),
        [&done] {
            done = true;
            QCoreApplication::postEvent(qApp, new QEvent(QEvent::User)); // wakes the loop
        },
        Qt::DirectConnection);
    context.functionManager()->addKeyAttribute(VideoKey, vorlinmodel::VIDEO_FID);
    context.functionManager()->setCustomVideo(VideoKey, video);
    watchdog.start();
    for (const AttributeId attribute : {AttributeId::FunctionId, AttributeId::Video})
        context.sendRequest(RequestKind::MD_FUNCTION_CODE_KEY_ATTRIBUTE, VideoKey.lid, VideoKey.pageid,
                            VideoKey.kid, vorlinmodel::VIDEO_FID, static_cast<int>(attribute));
    waitFor([&] { return done.load(); });
    report(watchdog, "the transfer of the video");
}

/// Of fifteen keys each.
void writeLayouts(const QString &folder)
{
    QDir(folder).mkdir(QStringLiteral("devConfig"));
    QFile file(folder + QStringLiteral("/devConfig/customLayout.ini"));
    if (!file.open(QIODevice::WriteOnly))
        return;
    for (int id = 2; id <= LastLayout; ++id) {
        file.write(QStringLiteral("[layout_%1]\nname=Layout %1\nnum=15\n").arg(id).toUtf8());
        for (int key = 1; key <= 15; ++key) {
            const QString line = QStringLiteral("phyid_%1=%1#%2#%3&\n%1_bitmap=%4\n");
            file.write(
                line.arg(key).arg((key - 1) / 5 + 1).arg((key - 1) % 5 + 1).arg(1 << (key - 1)).toUtf8());
        }
    }
}

void editLayouts(Watchdog &watchdog, QWidget &window)
{
    auto *frame = window.findChild<MainFrame *>();
    const auto measure = [&watchdog](const char *what, const auto &act) {
        watchdog.start();
        act();
        waitFor([start = Clock::now()] { return Clock::now() - start > 1s; }); // what follows from it, too
        report(watchdog, what);
    };
    const auto click = [frame](const char *name) {
        frame->findChild<QAbstractButton *>(QLatin1String(name))->click();
    };
    measure("the first opening of the page of the layouts", [&] { frame->select(MainFrame::PanelLayout); });
    frame->select(MainFrame::FunctionConfiguration);
    measure("coming back to it", [&] { frame->select(MainFrame::PanelLayout); });
    auto *list = frame->findChild<QListWidget *>(QStringLiteral("layouts"));
    measure("choosing a layout", [&] { list->setCurrentRow(LastLayout - 1); });
    measure("a letter of its title", [&] {
        QKeyEvent letter(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, QStringLiteral("x"));
        QCoreApplication::sendEvent(frame->findChild<QWidget *>(QStringLiteral("layoutTitle")), &letter);
    });
    frame->findChild<LayoutGrid *>(QStringLiteral("layoutGrid"))->select(3);
    click("merge");
    measure("saving it", [&] { click("saveLayout"); });
    measure("undoing that", [&] { click("layoutUndo"); });
}

} // namespace

int main(int argc, char *argv[])
{
    LinkOptions options;
    options.port = static_cast<std::uint16_t>(qEnvironmentVariableIntValue("VIRTUAL_PANEL_PORT"));
    PanelServer server(options);
    server.withModel([](PanelModel &model) { model.setState(BenchPanel::full()); });
    const QTemporaryDir folder;
    writeLayouts(folder.path());
    vorlindesk::FrameworkContext context;
    if (!server.start() || !context.start(argc, argv, folder.path())) {
        std::fprintf(stderr, "cannot start: is the port in VIRTUAL_PANEL_PORT free?\n");
        return 1;
    }
    QWidget *window = nullptr;
    for (QWidget *widget : QApplication::topLevelWidgets())
        window = widget->objectName() == QLatin1String("mainwindow") ? widget : window;
    if (!window)
        return 1;
    window->show();
    std::atomic<int> pictures = 0;
    vorlindesk::setLogSink([&pictures](vorlindesk::LogLevel, const QString &line) {
        pictures += line.startsWith(QLatin1String("mRecvTotalKeyCount"));
    });
    Watchdog watchdog;
    waitFor([&] { return pictures > 0; });
    watchdog.start();
    waitFor([&] { return pictures == BenchPanel::KeyCount; });
    report(watchdog, "the read-back of 240 pictures");
    vorlindesk::setLogSink({});
    waitFor([start = Clock::now()] { return Clock::now() - start > 5s; }); // the end of the read
    editLayouts(watchdog, *window);
    const QString video = convertFilm(watchdog, folder.path());
    sendVideo(watchdog, context, video);
    measureConversions(folder.path());
    return 0;
}
