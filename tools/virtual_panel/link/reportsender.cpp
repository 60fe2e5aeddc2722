#include "reportsender.h"

#include <algorithm>

ReportSender::ReportSender(std::chrono::microseconds interval,
                           std::function<void(const QByteArray &)> deliver)
    : mInterval(interval)
    , mDeliver(std::move(deliver))
    , mThread([this] { run(); })
{}

ReportSender::~ReportSender()
{
    {
        const std::lock_guard lock(mMutex);
        mStop = true;
    }
    mWake.notify_one();
    mThread.join();
}

void ReportSender::push(const QList<QByteArray> &reports)
{
    add(mQueue, reports);
}

void ReportSender::pushUrgent(const QList<QByteArray> &reports)
{
    add(mUrgent, reports);
}

void ReportSender::add(std::deque<QByteArray> &queue, const QList<QByteArray> &reports)
{
    if (reports.isEmpty())
        return;
    {
        const std::lock_guard lock(mMutex);
        queue.insert(queue.end(), reports.cbegin(), reports.cend());
    }
    mWake.notify_one();
}

QByteArray ReportSender::takeNext()
{
    std::deque<QByteArray> &queue = mUrgent.empty() ? mQueue : mUrgent;
    QByteArray report = std::move(queue.front());
    queue.pop_front();
    return report;
}

void ReportSender::clear()
{
    const std::lock_guard lock(mMutex);
    mUrgent.clear();
    mQueue.clear();
}

int ReportSender::waiting() const
{
    const std::lock_guard lock(mMutex);
    return static_cast<int>(mUrgent.size() + mQueue.size()) + (mDelivering ? 1 : 0);
}

ReportSender::Burst ReportSender::lastBurst() const
{
    const std::lock_guard lock(mMutex);
    return mBurst.reports > 1 ? mBurst : mLastBurst;
}

void ReportSender::run()
{
    std::unique_lock lock(mMutex);
    while (!mStop) {
        mWake.wait(lock, [this] { return mStop || !isEmpty(); });
        mBurst = {};
        sendDue(lock);
        if (mBurst.reports > 1)
            mLastBurst = mBurst;
        mBurst = {};
    }
}

/// Sends until the queue is empty.
void ReportSender::sendDue(std::unique_lock<std::mutex> &lock)
{
    // Held up for longer, it does not make that good: a bus would not either, and the host's ring has an end.
    constexpr int longestCatchUp = 20; // reports
    Clock::time_point due = std::max(mNextDue, Clock::now());
    mBurstStart = due;
    while (!mStop && !isEmpty()) {
        lock.unlock();
        std::this_thread::sleep_until(due);
        lock.lock();
        if (isEmpty()) // cleared meanwhile
            return;
        const QByteArray report = takeNext();
        mDelivering = true;
        lock.unlock();
        mDeliver(report);
        const auto now = Clock::now();
        due = std::max(due + mInterval, now - longestCatchUp * mInterval);
        lock.lock();
        mDelivering = false;
        mNextDue = due;
        ++mBurst.reports;
        mBurst.duration = std::chrono::duration_cast<std::chrono::microseconds>(now - mBurstStart);
    }
}
