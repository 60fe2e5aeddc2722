#include "log.h"

#include "logtext.h"
#include "logwriter.h"

#include <QSysInfo>
#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>

namespace vorlindesk {

struct HeldLog::Line
{
    LogLevel level;
    qint64 timeMs;
    std::string text;
};

namespace {

struct State
{
    LogWriter writer;
    std::atomic<LogClock> clock = nullptr;
    std::atomic<bool> hasSink = false; ///< spares the lock in the usual case
    std::mutex sinkMutex;
    std::shared_ptr<const LogSink> sink;
};

/// Never destroyed: destructors of other static objects may still log.
union Immortal {
    State state;
    Immortal()
        : state()
    {}
    ~Immortal() {} // NOLINT(modernize-use-equals-default): would be deleted
};

State &state()
{
    static Immortal immortal;
    return immortal.state;
}

thread_local HeldLog *tpInnermost = nullptr; // without a destructor, hence safe to the very end of the thread

qint64 now()
{
    if (const LogClock clock = state().clock.load(std::memory_order_relaxed))
        return clock();
    using namespace std::chrono;
    return duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count();
}

bool isLineEnd(char c)
{
    return c == '\n' || c == '\r';
}

bool isPlain(char c)
{
    return !isLineEnd(c) && static_cast<signed char>(c) >= 0;
}

/// @return @p text in one line of valid UTF-8; foreign bytes become replacement characters.
std::string tidied(std::string_view text)
{
    std::string tidy = QString::fromUtf8(text.data(), static_cast<int>(text.size())).toStdString();
    std::replace_if(tidy.begin(), tidy.end(), isLineEnd, ' ');
    return tidy;
}

void deliver(LogLevel level, qint64 timeMs, std::string_view text)
{
    State &log = state();
    if (log.hasSink.load(std::memory_order_acquire)) {
        std::shared_ptr<const LogSink> sink;
        {
            const std::lock_guard lock(log.sinkMutex);
            sink = log.sink;
        }
        if (sink) {
            (*sink)(level, QString::fromUtf8(text.data(), static_cast<int>(text.size())));
            return;
        }
    }
    log.writer.append(level, timeMs, text);
}

void logText(LogLevel level, std::string_view text)
{
    while (!text.empty() && isLineEnd(text.back()))
        text.remove_suffix(1);
    std::string tidy;
    if (!std::all_of(text.begin(), text.end(), isPlain)) {
        tidy = tidied(text);
        text = tidy;
    }
    if (tpInnermost)
        tpInnermost->hold({level, now(), std::string(text)});
    else
        deliver(level, now(), text);
}

} // namespace

void Log(LogLevel level, const char *format, ...)
{
    std::array<char, 512> shortText{}; // most lines; longer ones are formatted a second time
    va_list arguments;
    va_start(arguments, format);
    va_list again;
    va_copy(again, arguments);
    const int length = std::vsnprintf(shortText.data(), shortText.size(), format, arguments);
    va_end(arguments);
    if (length < 0) {
        logText(level, format);
    } else if (static_cast<std::size_t>(length) < shortText.size()) {
        logText(level, {shortText.data(), static_cast<std::size_t>(length)});
    } else {
        std::string longText(static_cast<std::size_t>(length), '\0');
        std::vsnprintf(longText.data(), longText.size() + 1, format, again);
        logText(level, longText);
    }
    va_end(again);
}

QByteArray hexDump(const quint8 *bytes, int length)
{
    static constexpr char Digits[] = "0123456789abcdef";
    QByteArray dump;
    dump.reserve(length * 3);
    for (int i = 0; i < length; ++i)
        dump.append(Digits[bytes[i] >> 4U]).append(Digits[bytes[i] & 0x0FU]).append(' ');
    return dump;
}

void startLog(const QString &folder)
{
    state().writer.start(folder, now());
    static const int registered = std::atexit(stopLog);
    Q_UNUSED(registered)
}

void stopLog()
{
    state().writer.stop();
}

void setLogSink(LogSink sink)
{
    State &log = state();
    const std::lock_guard lock(log.sinkMutex);
    log.hasSink.store(static_cast<bool>(sink), std::memory_order_release);
    log.sink = sink ? std::make_shared<const LogSink>(std::move(sink)) : nullptr;
}

void setLogClock(LogClock clock)
{
    state().clock.store(clock);
}

HeldLog::HeldLog()
    : mpOuter(tpInnermost)
{
    tpInnermost = this;
}

HeldLog::~HeldLog()
{
    unlink();
}

void HeldLog::hold(Line line)
{
    mLines.push_back(std::move(line));
}

void HeldLog::release()
{
    HeldLog *pOuter = mpOuter;
    unlink();
    for (Line &line : mLines) {
        if (pOuter)
            pOuter->hold(std::move(line));
        else
            deliver(line.level, line.timeMs, line.text);
    }
    mLines.clear();
}

/// Ends the holding; harmless when it has ended. Also right when an outer one is released before an inner
/// one.
void HeldLog::unlink()
{
    for (HeldLog **ppLink = &tpInnermost; *ppLink; ppLink = &(*ppLink)->mpOuter) {
        if (*ppLink == this) {
            *ppLink = mpOuter;
            break;
        }
    }
    mpOuter = nullptr;
}

void logSystemInformation()
{
    Log(LogLevel::Info, LogText::OperatingSystem, qUtf8Printable(QSysInfo::prettyProductName()));
    Log(LogLevel::Info, LogText::Kernel, qUtf8Printable(QSysInfo::kernelType()));
    Log(LogLevel::Info, LogText::KernelVersion, qUtf8Printable(QSysInfo::kernelVersion()));
    Log(LogLevel::Info, LogText::CpuArchitecture, qUtf8Printable(QSysInfo::currentCpuArchitecture()));
    Log(LogLevel::Info, LogText::BuildAbi, qUtf8Printable(QSysInfo::buildAbi()));
}

} // namespace vorlindesk
