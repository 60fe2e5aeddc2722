/// Behind Log(): stamps lines, buffers them, and writes the day's file.
#pragma once

#include "log.h"

#include <QFile>
#include <condition_variable>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace vorlindesk {

/// Any thread may append; one thread starts and stops. Two locks: a short one for the buffer, so that a line
/// never waits for the disk, and one that keeps writers of the file in order.
class LogWriter
{
public:
    /// Stops first when it runs already.
    void start(const QString &folder, qint64 nowMs);
    void stop();

    /// Adds one line; @p text is free of line ends. Warnings and errors are in the file when it returns.
    void append(LogLevel level, qint64 timeMs, std::string_view text);

private:
    struct DayText
    {
        int date = 0; ///< 20261121
        std::string bytes;
    };

    void selectSecond(qint64 second);
    void appendLine(std::string &to, LogLevel level, qint64 timeMs, std::string_view text);
    std::string &pendingOf(int date);
    void run();
    void flush();
    void write(const DayText &day);
    bool openDay(int date);

    std::mutex mMutex; // guards what follows
    std::condition_variable mWake;
    std::vector<DayText> mPending;
    bool mRunning = false;
    qint64 mSecond = -1; ///< the second that mStamp and mDate stand for
    std::string mStamp;
    int mDate = 0;

    std::mutex mFileMutex; // taken before mMutex when both are needed; guards what follows
    QString mFolder;
    QFile mFile;
    int mFileDate = 0;
    bool mFailureTold = false;

    std::thread mThread; // of the thread that starts and stops
};

} // namespace vorlindesk
