#include "latesttask.h"

struct LatestTask::Job
{
    Task task;
    std::atomic<bool> cancelled = false;
};

LatestTask::LatestTask(QObject *parent)
    : QObject(parent)
{}

LatestTask::~LatestTask()
{
    cancel();
    {
        const std::lock_guard lock(mMutex);
        mStopping = true;
    }
    mWake.notify_all();
    if (mThread.joinable())
        mThread.join();
}

void LatestTask::start(Task task)
{
    cancel();
    mpCurrent = std::make_shared<Job>();
    mpCurrent->task = std::move(task);
    {
        const std::lock_guard lock(mMutex);
        mpNext = mpCurrent;
    }
    mWake.notify_one();
    if (!mThread.joinable())
        mThread = std::thread([this] { work(); });
}

void LatestTask::cancel()
{
    if (mpCurrent)
        mpCurrent->cancelled = true;
    mpCurrent.reset();
    const std::lock_guard lock(mMutex);
    mpNext.reset();
}

void LatestTask::work()
{
    while (const auto job = nextJob()) {
        const Delivery delivery = job->task(job->cancelled);
        mHandOver.post([this, job, delivery] { deliver(job, delivery); });
    }
}

/// @return nothing when there will be no more.
std::shared_ptr<LatestTask::Job> LatestTask::nextJob()
{
    std::unique_lock lock(mMutex);
    mWake.wait(lock, [this] { return mStopping || mpNext; });
    return mStopping ? nullptr : std::exchange(mpNext, nullptr);
}

void LatestTask::deliver(const std::shared_ptr<Job> &job, const Delivery &delivery)
{
    if (job != mpCurrent)
        return; // another one has come since
    mpCurrent.reset();
    delivery(); // last: it may destroy this object
}
