/// The program's log: one daily file, written from any thread.
#pragma once

#include <QByteArray>
#include <QString>
#include <functional>
#include <vector>

// MinGW's own "printf" archetype is that of the Windows run-time, which lacks %zu and %lld; clang does not
// know the name of the other one, and means it by "printf".
#ifdef __clang__
#define VORLIN_PRINTF_LIKE(text, first) [[gnu::format(printf, text, first)]]
#else
#define VORLIN_PRINTF_LIKE(text, first) [[gnu::format(gnu_printf, text, first)]]
#endif

namespace vorlindesk {

enum class LogLevel { Info = 1, Warn = 2, Error = 3, Debug = 4 };

/// Formats like printf (text arguments are UTF-8) and appends one line to the day's file. Any thread may call
/// it. The line gets exactly one line end, whatever the text ends with; line ends inside the text become
/// blanks. Warnings and errors have been written when the call returns, other lines are within a second.
VORLIN_PRINTF_LIKE(2, 3) void Log(LogLevel level, const char *format, ...);

/// @return @p bytes as "%02x " each, the form of every hex dump in the log.
QByteArray hexDump(const quint8 *bytes, int length);

/// Receives every line instead of the file: level and text, without time stamp and line end.
using LogSink = std::function<void(LogLevel, const QString &)>;

/// Opens the day's file below @p folder ("application_yyyyMMdd.log"), removes files older than 30 days, and
/// starts the thread that flushes within a second. Until it is called, and when the file cannot be opened,
/// lines go to standard error. Call it from the main thread.
void startLog(const QString &folder);

/// Writes out what is buffered and stops the flushing thread; later lines go to standard error. Main thread;
/// also called by itself when the program leaves main().
void stopLog();

/// For tests: hands lines to @p sink (called under no lock, on the logging thread); an empty one restores the
/// file.
void setLogSink(LogSink sink);

/// Milliseconds since 1970 (UTC). Called from any thread.
using LogClock = qint64 (*)();

/// For tests: takes the time of later lines from @p clock; a null one restores the system's.
void setLogClock(LogClock clock);

/// Holds back the calling thread's lines until it is released or discarded. Used where the same step is tried
/// over and over: lines of a try with a known outcome are dropped, those of a try that ended differently are
/// written, with the time at which they were logged. Lives on the stack of one thread. Of nested ones the
/// innermost holds the lines, and its release hands them to the next outer one.
class HeldLog
{
public:
    HeldLog();
    ~HeldLog(); ///< discards what was not released
    void release();
    HeldLog(const HeldLog &) = delete;
    HeldLog &operator=(const HeldLog &) = delete;

    struct Line;
    void hold(Line line); ///< for Log() alone

private:
    void unlink();

    std::vector<Line> mLines;
    HeldLog *mpOuter;
};

/// Writes the five "OS:", "Kernel:", ... lines that describe this machine.
void logSystemInformation();

} // namespace vorlindesk
