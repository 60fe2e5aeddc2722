/// Work for one asker on a thread of its own, of which only the newest counts.
#pragma once

#include "base/handover.h"

#include <QObject>
#include <atomic>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>

/// Lives on one thread, which calls it and gets the results.
class LatestTask : public QObject
{
public:
    using Delivery = std::function<void()>;
    /// Runs on the other thread, and ends early when @p cancelled. What it returns is called on the thread of
    /// this object.
    using Task = std::function<Delivery(const std::atomic<bool> &cancelled)>;

    explicit LatestTask(QObject *parent = nullptr);
    ~LatestTask() override; ///< waits for a task that runs, which is cancelled

    /// Takes the place of a task that waits or runs: the result of that one is dropped.
    void start(Task task);
    void cancel();
    bool isBusy() const { return mpCurrent != nullptr; } ///< a result is still to come

private:
    struct Job;

    void work();
    std::shared_ptr<Job> nextJob();
    void deliver(const std::shared_ptr<Job> &job, const Delivery &delivery);

    std::shared_ptr<Job> mpCurrent; // of the owning thread

    std::mutex mMutex; // guards the next two
    std::shared_ptr<Job> mpNext;
    bool mStopping = false;
    std::condition_variable mWake;

    std::thread mThread; // started with the first task
    vorlindesk::HandOver mHandOver;
};
