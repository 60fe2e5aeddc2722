/// A thread for the work with backups, which reads and writes many files.
#pragma once

#include "base/handover.h"
#include "model/backupwatch.h"

#include <QObject>
#include <atomic>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>

/// Lives on the user-interface thread. One task at a time, in the order of their start.
class BackupWork : public QObject
{
    Q_OBJECT
public:
    using Delivery = std::function<void()>;
    /// Runs on the other thread, and ends early when @p watch says so. What it returns is called on the
    /// thread of this object, whatever happened.
    using Task = std::function<Delivery(const vorlinmodel::BackupWatch &watch)>;

    explicit BackupWork(QObject *parent = nullptr);
    ~BackupWork() override; ///< waits for the task that runs, which is cancelled; delivers nothing more

    int start(Task task);  ///< @return its number
    void cancel(int task); ///< whether it runs or waits; it may be too late
    /// At the end of the program: cancels the task that runs, waits for it and delivers its result now. Those
    /// that wait are dropped.
    void finish();
    bool isBusy() const { return mpJob != nullptr; } ///< a result is still to come

signals:
    void sigProgress(int percent); ///< of the task that runs; 0 at its start
    void sigIdle();                ///< behind the last delivery

private:
    struct Job;

    void startNext();
    void cancelRunning();
    void deliver(const std::shared_ptr<Job> &job); ///< not mpJob itself

    int mLastNumber = 0;
    std::deque<std::shared_ptr<Job>> mWaiting;
    std::shared_ptr<Job> mpJob; ///< that runs
    std::thread mThread;
    vorlindesk::HandOver mHandOver;
};
