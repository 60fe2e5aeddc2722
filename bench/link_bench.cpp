/// The figures of the link: the whole program in this process, the virtual panel's server beside it, and
/// between them the drop-in HID library with its local socket. Run it through scripts/bench, which sets the
/// drop-in's port.
#include "app/frameworkcontext.h"
#include "base/log.h"
#include "benchpanel.h"
#include "model/ifunctionmanager.h"
#include "panel_link/panelserver.h"
#include "protocol/iprotocolthread.h"

#include <QApplication>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <mutex>
#include <thread>
#include <vector>

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;
using vorlinmodel::AttributeId;
using vorlinmodel::RequestKind;

namespace {

constexpr int Presses = 300;
constexpr auto Patience = 120s;

/// Notes when fixed log lines were written.
class LineWatch
{
public:
    void note(const QString &line)
    {
        const auto now = Clock::now();
        const std::lock_guard lock(mMutex);
        if (line.startsWith(QLatin1String("ProtocolThread::process MD_FUNCTION_CODE_READ_CONFIGFILE")))
            mReadRequested = now;
        if (line.startsWith(QLatin1String("mRecvTotalKeyCount"))) {
            mLastPicture = now;
            ++mPictures;
        }
        if (line == QLatin1String("transfer 1 block data"))
            mFirstBlock = now;
        if (line.startsWith(QLatin1String("transfer ")) && line.endsWith(QLatin1String(" block data")))
            ++mBlocks;
        if (line.startsWith(QLatin1String("transfer ")) && line.endsWith(QLatin1String(" success"))) {
            mTransferEnd = now;
            mTransferred = true;
        }
    }

    int pictures() const { return mPictures; }
    bool transferred() const { return mTransferred; }
    int blocks() const { return mBlocks; }
    double readMilliseconds() const { return Milliseconds(mLastPicture - mReadRequested).count(); }
    double transferMilliseconds() const { return Milliseconds(mTransferEnd - mFirstBlock).count(); }

private:
    std::mutex mMutex;
    Clock::time_point mReadRequested;
    Clock::time_point mLastPicture;
    Clock::time_point mFirstBlock;
    Clock::time_point mTransferEnd;
    std::atomic<int> mPictures = 0;
    std::atomic<int> mBlocks = 0;
    std::atomic<bool> mTransferred = false;
};

template <typename Condition>
bool waitFor(Condition condition)
{
    const auto limit = Clock::now() + Patience;
    while (!condition() && Clock::now() < limit)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    return condition();
}

void measureRead(PanelServer &server, LineWatch &watch)
{
    if (!waitFor([&] { return watch.pictures() == BenchPanel::KeyCount; }))
        std::printf("read-back: only %d of %d pictures came\n", watch.pictures(), BenchPanel::KeyCount);
    const ReportSender::Burst burst = server.lastBurst();
    const double sending = double(burst.duration.count()) / 1000.0;
    qsizetype violations = 0;
    server.withModel([&](PanelModel &model) { violations = model.violations().size(); });
    std::printf("read-back: %d pictures, %d reports sent in %.0f ms, all stored after %.0f ms, ratio %.3f, "
                "lost or broken: %d\n",
                watch.pictures(), burst.reports, sending, watch.readMilliseconds(),
                watch.readMilliseconds() / sending, int(violations));
}

void measurePresses(PanelServer &server, vorlinmodel::IProtocolThread &thread)
{
    std::atomic<qint64> emitted = 0;
    QObject::connect(
        &thread, &vorlinmodel::IProtocolThread::sigDealExecCommand, &thread,
        [&emitted] { emitted = Clock::now().time_since_epoch().count(); }, Qt::DirectConnection);
    std::vector<double> latencies;
    for (int press = 0; press < Presses; ++press) {
        // Out of step with the loop of the program, whose passes take 20 ms.
        std::this_thread::sleep_for(
            std::chrono::microseconds(QRandomGenerator::global()->bounded(15'000, 60'000)));
        emitted = 0;
        Clock::time_point written;
        server.withModel([&](PanelModel &model) {
            written = Clock::now();
            model.pressKey(1);
        });
        waitFor([&] { return emitted != 0; });
        latencies.push_back(Milliseconds(Clock::duration(emitted) - written.time_since_epoch()).count());
    }
    std::sort(latencies.begin(), latencies.end());
    std::printf("key press: report written to signal, %d presses: median %.3f ms, 99th percentile %.3f ms\n",
                Presses, latencies[latencies.size() / 2], latencies[latencies.size() * 99 / 100]);
}

void measureTransfer(vorlindesk::FrameworkContext &context, LineWatch &watch)
{
    context.sendRequest(RequestKind::MD_FUNCTION_CODE_KEY_ATTRIBUTE, 1, 1, 1, BenchPanel::MediaKey,
                        static_cast<int>(AttributeId::Picture));
    waitFor([&] { return watch.transferred(); });
    const double ideal = 2.0 * watch.blocks();
    std::printf("transfer: %d blocks in %.1f ms, ratio to 2 ms a block %.3f\n", watch.blocks(),
                watch.transferMilliseconds(), watch.transferMilliseconds() / ideal);
}

} // namespace

int main(int argc, char *argv[])
{
    LinkOptions options;
    options.port = static_cast<std::uint16_t>(qEnvironmentVariableIntValue("VIRTUAL_PANEL_PORT"));
    PanelServer server(options);
    server.withModel([](PanelModel &model) { model.setState(BenchPanel::full()); });
    const QTemporaryDir folder;
    LineWatch watch;
    vorlindesk::FrameworkContext context;
    if (!server.start() || !context.start(argc, argv, folder.path())) {
        std::fprintf(stderr, "cannot start: is the port in VIRTUAL_PANEL_PORT free?\n");
        return 1;
    }
    vorlindesk::setLogSink([&watch](vorlindesk::LogLevel, const QString &line) { watch.note(line); });
    measureRead(server, watch);
    measurePresses(server, *context.protocolThread());
    measureTransfer(context, watch);
    vorlindesk::setLogSink({});
    return 0;
}
