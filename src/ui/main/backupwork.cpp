#include "backupwork.h"

struct BackupWork::Job
{
    int number = 0;
    Task task;
    std::atomic<bool> isCancelled = false;
    std::mutex mutex; // guards the next one
    Delivery delivery;
};

BackupWork::BackupWork(QObject *parent)
    : QObject(parent)
{}

BackupWork::~BackupWork()
{
    cancelRunning();
    if (mThread.joinable())
        mThread.join();
}

int BackupWork::start(Task task)
{
    const auto job = std::make_shared<Job>();
    job->number = ++mLastNumber;
    job->task = std::move(task);
    mWaiting.push_back(job);
    if (!mpJob)
        startNext();
    return job->number;
}

void BackupWork::startNext()
{
    const auto job = mWaiting.front();
    mWaiting.pop_front();
    mpJob = job;
    emit sigProgress(0);
    mThread = std::thread([this, job] {
        const auto tell = [this, job, last = 0](int percent) mutable {
            if (percent != std::exchange(last, percent))
                mHandOver.post([this, job, percent] {
                    if (job == mpJob)
                        emit sigProgress(percent);
                });
        };
        const Delivery delivery = job->task(vorlinmodel::BackupWatch(tell, &job->isCancelled));
        {
            const std::lock_guard lock(job->mutex);
            job->delivery = delivery;
        }
        mHandOver.post([this, job] { deliver(job); });
    });
}

/// One that waits has still to deliver that it was cancelled: it begins, and ends at once.
void BackupWork::cancel(int task)
{
    if (mpJob && mpJob->number == task)
        cancelRunning();
    for (const auto &job : mWaiting) {
        if (job->number == task)
            job->isCancelled = true;
    }
}

void BackupWork::cancelRunning()
{
    if (mpJob)
        mpJob->isCancelled = true;
}

void BackupWork::finish()
{
    while (mpJob) { // its delivery may start another
        mWaiting.clear();
        cancelRunning();
        const auto job = mpJob; // which deliver() lets go
        deliver(job);
    }
}

void BackupWork::deliver(const std::shared_ptr<Job> &job)
{
    if (job != mpJob) // delivered by finish()
        return;
    mThread.join();
    mpJob.reset();
    Delivery delivery;
    {
        const std::lock_guard lock(job->mutex);
        delivery = std::move(job->delivery);
    }
    delivery();
    if (mpJob) // started by it
        return;
    if (!mWaiting.empty())
        startNext();
    else
        emit sigIdle();
}
