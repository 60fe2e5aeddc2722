/// Collects log lines instead of writing them, for as long as it lives.
#pragma once

#include "base/log.h"
#include "support/texts.h"

#include <QStringList>
#include <mutex>
#include <vector>

class LogCapture
{
public:
    LogCapture()
    {
        vorlindesk::setLogSink([this](vorlindesk::LogLevel level, const QString &text) {
            const std::lock_guard lock(mMutex);
            mLines.push_back("%1 %2"_s.arg(static_cast<int>(level)).arg(text));
        });
    }
    ~LogCapture() { vorlindesk::setLogSink({}); }
    LogCapture(const LogCapture &) = delete;
    LogCapture &operator=(const LogCapture &) = delete;

    /// @return the lines so far, "level text".
    QStringList lines() const
    {
        const std::lock_guard lock(mMutex);
        return QStringList(mLines.begin(), mLines.end());
    }
    /// @return those lines that contain @p text.
    QStringList matching(const char *text) const { return lines().filter(QString::fromUtf8(text)); }
    int count(const char *text) const { return static_cast<int>(matching(text).size()); }

private:
    mutable std::mutex mMutex;
    std::vector<QString>
        mLines; // a list of Qt would share its data with lines(), which the thread checker misreads
};
