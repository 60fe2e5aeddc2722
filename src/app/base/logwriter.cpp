#include "logwriter.h"

#include "logtext.h"

#include <QDate>
#include <QDateTime>
#include <QDir>
#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>

namespace vorlindesk {
namespace {

constexpr auto FlushDelay =
    std::chrono::milliseconds(500);          // half of the second in which a line must be written
constexpr std::size_t FlushSize = 1U << 20U; // bytes of one day that end the delay early
constexpr int DaysKept = 30;

const char *levelTag(LogLevel level)
{
    switch (level) {
    case LogLevel::Info:
        return LogText::InfoTag;
    case LogLevel::Warn:
        return LogText::WarnTag;
    case LogLevel::Error:
        return LogText::ErrorTag;
    case LogLevel::Debug:
        break;
    }
    return LogText::DebugTag;
}

void writeToStandardError(std::string_view bytes)
{
    std::fwrite(bytes.data(), 1, bytes.size(),
                stderr); // one call, so that lines of several threads stay whole
    std::fflush(stderr);
}

void removeOldFiles(const QString &folder, const QDate &today)
{
    QDir dir(folder);
    for (const QString &name : dir.entryList({QString::fromLatin1(LogText::FileWildcard)}, QDir::Files)) {
        const QString digits = name.mid(LogText::DatePosition, LogText::DateLength);
        const QDate date = QDate::fromString(digits, QString::fromLatin1(LogText::DateFormat));
        if (date.isValid() && date.daysTo(today) > DaysKept)
            dir.remove(name);
    }
}

} // namespace

void LogWriter::start(const QString &folder, qint64 nowMs)
{
    stop();
    QDir().mkpath(folder);
    const QDate today = QDateTime::fromMSecsSinceEpoch(nowMs).date();
    removeOldFiles(folder, today);
    {
        const std::lock_guard fileLock(mFileMutex);
        mFolder = folder;
        mFailureTold = false;
        openDay(today.year() * 10000 + today.month() * 100 + today.day());
    }
    {
        const std::lock_guard lock(mMutex);
        mRunning = true;
    }
    mThread = std::thread([this] { run(); });
}

void LogWriter::stop()
{
    {
        const std::lock_guard lock(mMutex);
        mRunning = false;
    }
    mWake.notify_all();
    if (mThread.joinable())
        mThread.join();
    flush();
    const std::lock_guard fileLock(mFileMutex);
    mFile.close();
    mFileDate = 0;
}

void LogWriter::append(LogLevel level, qint64 timeMs, std::string_view text)
{
    std::unique_lock lock(mMutex);
    selectSecond(timeMs / 1000);
    if (!mRunning) {
        std::string line;
        appendLine(line, level, timeMs, text);
        lock.unlock();
        writeToStandardError(line);
        return;
    }
    const bool wasEmpty = mPending.empty();
    std::string &bytes = pendingOf(mDate);
    appendLine(bytes, level, timeMs, text);
    const bool wake = wasEmpty || bytes.size() >= FlushSize;
    lock.unlock();
    if (level == LogLevel::Warn || level == LogLevel::Error)
        flush();
    else if (wake)
        mWake.notify_one();
}

/// Converting to local time is the dear part of a line, so it is done once a second.
void LogWriter::selectSecond(qint64 second)
{
    if (second == mSecond)
        return;
    const QDateTime time = QDateTime::fromSecsSinceEpoch(second);
    const QDate date = time.date();
    mStamp = time.toString(Qt::ISODate).toStdString(); // local time, hence without an offset
    mDate = date.year() * 10000 + date.month() * 100 + date.day();
    mSecond = second;
}

void LogWriter::appendLine(std::string &to, LogLevel level, qint64 timeMs, std::string_view text)
{
    std::array<char, 8> milliseconds{};
    std::snprintf(milliseconds.data(), milliseconds.size(), ".%03d ", static_cast<int>(timeMs % 1000));
    to.append(mStamp)
        .append(milliseconds.data())
        .append(levelTag(level))
        .append(1, ' ')
        .append(text)
        .append(1, '\n');
}

std::string &LogWriter::pendingOf(int date)
{
    if (mPending.empty() || mPending.back().date != date)
        mPending.push_back({date, {}});
    return mPending.back().bytes;
}

/// Sleeps for as long as nothing is pending: an idle program has no wake-ups from here.
void LogWriter::run()
{
    std::unique_lock lock(mMutex);
    while (mRunning) {
        mWake.wait(lock, [this] { return !mRunning || !mPending.empty(); });
        mWake.wait_for(lock, FlushDelay, [this] {
            return !mRunning || (!mPending.empty() && mPending.back().bytes.size() >= FlushSize);
        });
        lock.unlock();
        flush();
        lock.lock();
    }
}

void LogWriter::flush()
{
    const std::lock_guard fileLock(mFileMutex);
    std::vector<DayText> pending;
    {
        const std::lock_guard lock(mMutex);
        pending.swap(mPending);
    }
    for (const DayText &day : pending)
        write(day);
}

void LogWriter::write(const DayText &day)
{
    qint64 written = 0;
    const auto size = static_cast<qint64>(day.bytes.size());
    if (openDay(day.date))
        written = std::max<qint64>(0, mFile.write(day.bytes.data(), size));
    if (written < size) // no file, or a full disk
        writeToStandardError(std::string_view(day.bytes).substr(static_cast<std::size_t>(written)));
}

/// Tries anew each time, so that the log comes back when what was in its way has gone.
bool LogWriter::openDay(int date)
{
    if (mFile.isOpen() && mFileDate == date)
        return true;
    mFile.close();
    mFile.setFileName(mFolder + QLatin1Char('/') + QString::asprintf(LogText::FileName, date));
    mFileDate = date;
    // Unbuffered: what was written has reached the system. Not Text: the line end is '\n' on every system.
    const bool open = mFile.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered);
    if (!open && !mFailureTold)
        writeToStandardError(
            QString::asprintf(LogText::CannotOpen, qUtf8Printable(mFile.fileName())).toStdString());
    mFailureTold = !open;
    return open;
}

} // namespace vorlindesk
