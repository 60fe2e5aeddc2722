/// Start, memory and idle load of a program beside those of an empty Qt Widgets program. Needs an X display
/// without a window manager (xvfb-run): a window counts as shown when the server maps it as a child of the
/// root window.
#include <X11/Xlib.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <poll.h>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr int Runs = 15;
constexpr int MinimumWindowWidth = 300; // smaller ones are helpers of the toolkit
constexpr auto StartLimit = std::chrono::seconds(20);
constexpr auto SettleTime = std::chrono::seconds(2);
constexpr auto IdleTime = std::chrono::seconds(20);

pid_t launch(const std::vector<std::string> &command)
{
    const pid_t pid = fork();
    if (pid != 0)
        return pid;
    std::vector<char *> arguments;
    for (const std::string &word : command)
        arguments.push_back(const_cast<char *>(word.c_str()));
    arguments.push_back(nullptr);
    execvp(arguments[0], arguments.data());
    _exit(127);
}

void end(pid_t pid)
{
    kill(pid, SIGTERM);
    waitpid(pid, nullptr, 0);
}

/// Waits until a top-level window of some size is mapped. @return false after StartLimit.
bool waitForWindow(Display *display)
{
    const auto limit = Clock::now() + StartLimit;
    while (Clock::now() < limit) {
        if (XPending(display) == 0) {
            pollfd connection{ConnectionNumber(display), POLLIN, 0};
            poll(&connection, 1, 100);
            continue;
        }
        XEvent event;
        XNextEvent(display, &event);
        XWindowAttributes attributes;
        if (event.type == MapNotify && XGetWindowAttributes(display, event.xmap.window, &attributes) != 0 &&
            attributes.width >= MinimumWindowWidth)
            return true;
    }
    return false;
}

/// @return resident memory in KiB, without pages shared with other programs' files.
long residentMemory(pid_t pid)
{
    std::ifstream status("/proc/" + std::to_string(pid) + "/status");
    for (std::string line; std::getline(status, line);) {
        if (line.rfind("VmRSS:", 0) == 0)
            return std::strtol(line.c_str() + 6, nullptr, 10);
    }
    return 0;
}

/// @return processor time used so far, user and system, in seconds.
double processorTime(pid_t pid)
{
    std::ifstream stat("/proc/" + std::to_string(pid) + "/stat");
    std::string line;
    std::getline(stat, line);
    const char *rest = line.c_str() + line.rfind(')') + 1; // the name may hold blanks
    long user = 0;
    long system = 0;
    std::sscanf(rest, " %*c %*d %*d %*d %*d %*d %*u %*u %*u %*u %*u %ld %ld", &user, &system);
    return double(user + system) / double(sysconf(_SC_CLK_TCK));
}

struct Start
{
    double milliseconds = 0;
    long memory = 0;
};

Start measureStart(Display *display, const std::vector<std::string> &command)
{
    XSync(display, True);
    const auto begin = Clock::now();
    const pid_t pid = launch(command);
    if (!waitForWindow(display)) {
        std::fprintf(stderr, "%s showed no window\n", command.front().c_str());
        std::exit(1);
    }
    Start start;
    start.milliseconds = Milliseconds(Clock::now() - begin).count();
    std::this_thread::sleep_for(SettleTime);
    start.memory = residentMemory(pid);
    end(pid);
    return start;
}

template <typename T>
T median(std::vector<T> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// @return processor time per time, in percent of one core, once the program has settled for @p settle.
double measureIdle(Display *display, const std::vector<std::string> &command, std::chrono::seconds settle)
{
    XSync(display, True);
    const pid_t pid = launch(command);
    waitForWindow(display);
    std::this_thread::sleep_for(settle);
    const double before = processorTime(pid);
    std::this_thread::sleep_for(IdleTime);
    const double used = processorTime(pid) - before;
    end(pid);
    return 100.0 * used / double(IdleTime.count());
}

} // namespace

/// startup_bench start EMPTY_PROGRAM PROGRAM [ARGUMENT...]
/// startup_bench idle SETTLE_SECONDS PROGRAM [ARGUMENT...]
int main(int argc, char *argv[])
{
    Display *display = XOpenDisplay(nullptr);
    if (argc < 4 || display == nullptr) {
        std::fprintf(stderr, "usage: startup_bench start|idle ..., on an X display\n");
        return 2;
    }
    XSelectInput(display, DefaultRootWindow(display), SubstructureNotifyMask);
    const std::vector<std::string> command(argv + 3, argv + argc);
    if (std::string(argv[1]) == "idle") {
        const std::chrono::seconds settle(std::strtol(argv[2], nullptr, 10));
        std::printf("idle: %.2f %% of a core\n", measureIdle(display, command, settle));
        return 0;
    }

    std::array<std::vector<double>, 2> times;
    std::array<std::vector<long>, 2> memory;
    for (int run = 0; run < Runs; ++run) { // in turns, so that a busy moment hits both
        const std::array<Start, 2> starts{measureStart(display, {argv[2]}), measureStart(display, command)};
        for (size_t i = 0; i < 2; ++i) {
            times[i].push_back(starts[i].milliseconds);
            memory[i].push_back(starts[i].memory);
        }
    }
    std::printf("start to shown window, median of %d: empty %.0f ms, program %.0f ms, ratio %.2f\n", Runs,
                median(times[0]), median(times[1]), median(times[1]) / median(times[0]));
    std::printf("resident memory, median: empty %ld KiB, program %ld KiB, ratio %.2f\n", median(memory[0]),
                median(memory[1]), double(median(memory[1])) / double(median(memory[0])));
    return 0;
}
