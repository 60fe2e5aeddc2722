/// Whether the window ever waits: the whole program in this process, the virtual panel's server beside it,
/// and a watchdog in the event loop while the program reads, converts and sends. Also what a conversion costs
/// beside the bare tool. Run it through scripts/bench.
#include "app/frameworkcontext.h"
#include "base/log.h"
#include "base/paths.h"
#include "benchpanel.h"
#include "model/conversionqueue.h"
#include "model/functionids.h"
#include "model/ifunctionmanager.h"
#include "panel_link/panelserver.h"
#include "protocol/iprotocolthread.h"
#include "waitfor.h"
#include "watchdog.h"

#include <QApplication>
#include <QImage>
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

} // namespace

int main(int argc, char *argv[])
{
    LinkOptions options;
    options.port = static_cast<std::uint16_t>(qEnvironmentVariableIntValue("VIRTUAL_PANEL_PORT"));
    PanelServer server(options);
    server.withModel([](PanelModel &model) { model.setState(BenchPanel::full()); });
    const QTemporaryDir folder;
    vorlindesk::FrameworkContext context;
    if (!server.start() || !context.start(argc, argv, folder.path())) {
        std::fprintf(stderr, "cannot start: is the port in VIRTUAL_PANEL_PORT free?\n");
        return 1;
    }
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == QLatin1String("mainwindow"))
            widget->show();
    }
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
    const QString video = convertFilm(watchdog, folder.path());
    sendVideo(watchdog, context, video);
    measureConversions(folder.path());
    return 0;
}
