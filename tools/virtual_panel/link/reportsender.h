/// Sends the panel's reports at the pace of a USB bus.
#pragma once

#include <QByteArray>
#include <QList>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

/// Any thread may call; the reports leave on a thread of its own. The pace holds on average, since each
/// report has an absolute time: a late wake-up is made good by the next ones.
class ReportSender
{
public:
    using Clock = std::chrono::steady_clock;

    /// A run of reports that left without a pause between them.
    struct Burst
    {
        int reports = 0;
        std::chrono::microseconds duration{0}; ///< from the first to the last
    };

    /// @param interval between two reports; zero: as fast as @p deliver takes them.
    /// @param deliver is called on the sending thread, under no lock.
    ReportSender(std::chrono::microseconds interval, std::function<void(const QByteArray &)> deliver);
    ~ReportSender();

    void push(const QList<QByteArray> &reports);
    /// Before everything that push() brought, in order among themselves.
    void pushUrgent(const QList<QByteArray> &reports);
    void clear();

    int waiting() const;
    Burst lastBurst() const; ///< of at least two reports; the present one while it runs

    ReportSender(const ReportSender &) = delete;
    ReportSender &operator=(const ReportSender &) = delete;

private:
    void add(std::deque<QByteArray> &queue, const QList<QByteArray> &reports);
    bool isEmpty() const { return mUrgent.empty() && mQueue.empty(); }
    QByteArray takeNext();
    void run();
    void sendDue(std::unique_lock<std::mutex> &lock);

    const std::chrono::microseconds mInterval;
    const std::function<void(const QByteArray &)> mDeliver;
    mutable std::mutex mMutex;
    std::condition_variable mWake;
    std::deque<QByteArray> mUrgent;
    std::deque<QByteArray> mQueue;
    Burst mBurst; ///< under way
    Burst mLastBurst;
    Clock::time_point mBurstStart;
    Clock::time_point mNextDue;
    bool mDelivering = false;
    bool mStop = false;
    std::thread mThread;
};
