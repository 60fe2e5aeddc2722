/// What sending the largest firmware costs: processor time, the window's liveliness, and the time beside a
/// bare loop that writes the same reports. The virtual panel is a process of its own. Run it through
/// scripts/bench.
///
/// Usage: upgrade_bench VIRTUAL_PANEL [MICROSECONDS]   between two reports that the panel takes; 250 unless
/// given. A real panel takes one a millisecond at most.
#include "app/frameworkcontext.h"
#include "protocol/iprotocolthread.h"
#include "transport/hiddevicelist.h"
#include "ui_common/filedialog.h"
#include "ui_main/upgradedialog.h"
#include "waitfor.h"
#include "watchdog.h"
#include "wire/reportframe.h"

#include <QApplication>
#include <QFile>
#include <QProcess>
#include <QPushButton>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <cstdio>
#include <ctime>
#include <hidapi.h>

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;
using Seconds = std::chrono::duration<double>;

namespace {

constexpr int LargestFile = 10 * 1024 * 1024 - 6; // bytes: 10 MiB with the header of the message
constexpr int BlockBytes = 57;
constexpr int Reports = (10 * 1024 * 1024 + BlockBytes - 1) / BlockBytes;
constexpr auto Patience = 600s;

double processorSeconds()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) + double(time.tv_nsec) * 1e-9;
}

template <typename Condition>
bool waitFor(Condition condition)
{
    return ::waitFor(condition, Patience);
}

/// A virtual panel that takes a report every @p interval microseconds.
class PanelProcess
{
public:
    PanelProcess(const QString &program, const QString &interval)
    {
        mProcess.start(program, {QStringLiteral("--headless"), QStringLiteral("--empty"),
                                 QStringLiteral("--port"), qEnvironmentVariable("VIRTUAL_PANEL_PORT"),
                                 QStringLiteral("--accept-interval-us"), interval});
        mProcess.waitForReadyRead(5000);
    }
    ~PanelProcess()
    {
        mProcess.kill();
        mProcess.waitForFinished(2000);
    }

private:
    QProcess mProcess;
};

/// @return seconds for as many reports as the firmware takes; 0 when there is no panel.
double bareLoop()
{
    hid_device_info *list = hid_enumerate(vorlindesk::PanelVendorId, vorlindesk::PanelProductId);
    hid_device *panel = list ? hid_open_path(list->path) : nullptr;
    hid_free_enumeration(list);
    if (!panel)
        return 0;
    ReportFrame::Report report{};
    const quint8 payload[BlockBytes] = {};
    ReportFrame::encode(ReportFrame::Block::More, payload, BlockBytes, report);
    const auto start = Clock::now();
    for (int i = 0; i < Reports; ++i)
        hid_write(panel, report.data(), report.size());
    const double seconds = Seconds(Clock::now() - start).count();
    hid_close(panel);
    return seconds;
}

struct Moment
{
    Clock::time_point time;
    double processor = 0;
};
Moment now()
{
    return {Clock::now(), processorSeconds()};
}

/// When the first and the last block were sent, noted on the protocol thread.
struct Transfer
{
    Moment first;
    Moment last;
    std::atomic<bool> isBegun = false;
    std::atomic<bool> isOver = false;

    void note(const QString &line)
    {
        if (line == QLatin1String("transfer 1 block data ok")) {
            first = now();
            isBegun = true;
        } else if (line == QLatin1String("transfer upgrade data success")) {
            last = now();
            isOver = true;
        }
    }
};

QString makeFirmware(const QString &folder)
{
    QFile file(folder + QStringLiteral("/firmware.xft"));
    QByteArray bytes(LargestFile, '\0');
    QRandomGenerator(1).generate(reinterpret_cast<quint32 *>(bytes.data()),
                                 reinterpret_cast<quint32 *>(bytes.data()) + bytes.size() / 4);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? file.fileName() : QString();
}

void press(QWidget &dialog, const char *name)
{
    auto *button = dialog.findChild<QPushButton *>(QString::fromLatin1(name));
    waitFor([&] { return button->isEnabled(); });
    button->click();
}

} // namespace

int main(int argc, char *argv[])
{
    const QString program = QString::fromLocal8Bit(argc > 1 ? argv[1] : "");
    const QString interval = QString::fromLocal8Bit(argc > 2 ? argv[2] : "250");
    double bare = 0;
    {
        const PanelProcess panel(program, interval);
        bare = bareLoop();
    }
    const QTemporaryDir folder;
    const PanelProcess panel(program, interval);
    vorlindesk::FrameworkContext context;
    if (bare == 0 || !context.start(argc, argv, folder.path())) {
        std::fprintf(stderr, "cannot start: is the port in VIRTUAL_PANEL_PORT free?\n");
        return 1;
    }
    Transfer transfer;
    QObject::connect(
        context.protocolThread(), &vorlinmodel::IProtocolThread::logMessageSignal, context.protocolThread(),
        [&transfer](const QString &line) { transfer.note(line); }, Qt::DirectConnection);
    waitFor([start = Clock::now()] { return Clock::now() - start > 5s; }); // the panel is read

    HIDUpgradeDialog dialog(context, nullptr);
    dialog.setup();
    dialog.show();
    FileDialog::setAnswer(
        [path = makeFirmware(folder.path())](const QString &) { return QStringList(path); });
    press(dialog, "selectButton");
    press(dialog, "upgradeButton");
    waitFor([&] { return transfer.isBegun.load(); });
    Watchdog watchdog;
    watchdog.start();
    waitFor([&] { return transfer.isOver.load(); });
    const double seconds = Seconds(transfer.last.time - transfer.first.time).count();
    const double processor = transfer.last.processor - transfer.first.processor;
    std::printf("firmware of 10 MiB, a report every %s us: %.1f s, bare loop %.1f s, ratio %.3f\n"
                "processor time during the transfer: %.1f %% of a core\n"
                "longest block of the event loop: %.1f ms\n",
                qPrintable(interval), seconds, bare, seconds / bare, 100 * processor / seconds,
                watchdog.stop());
    return 0;
}
