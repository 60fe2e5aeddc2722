#include "model/conversionqueue.h"

#include <QFile>
#include <algorithm>
#include <atomic>

namespace vorlinmodel {

/// The result is written by the worker before it hands the task over, or before it is joined.
struct ConversionQueue::Task
{
    int id = 0;
    ConversionJob job;
    std::atomic<bool> cancelled = false;
    ConversionResult result;
};

ConversionQueue::ConversionQueue(ConverterOptions options, QObject *parent)
    : QObject(parent)
    , mImages(options)
    , mVideos(std::move(options))
{}

ConversionQueue::~ConversionQueue()
{
    {
        const std::lock_guard lock(mMutex);
        mStopping = true;
        mWaiting.clear();
    }
    for (const TaskPtr &task : mTasks)
        task->cancelled = true;
    mWake.notify_all();
    if (mThread.joinable())
        mThread.join();
    for (const TaskPtr &task : mTasks) {
        if (!task->result.path.isEmpty())
            QFile::remove(task->result.path); // nobody has been told of it
    }
}

int ConversionQueue::add(const ConversionJob &job)
{
    const auto task = std::make_shared<Task>();
    task->id = ++mLastId;
    task->job = job;
    mTasks.push_back(task);
    {
        const std::lock_guard lock(mMutex);
        mWaiting.push_back(task);
    }
    mWake.notify_one();
    if (!mThread.joinable())
        mThread = std::thread([this] { work(); });
    return task->id;
}

void ConversionQueue::cancel(int id)
{
    const auto task =
        std::find_if(mTasks.begin(), mTasks.end(), [id](const TaskPtr &each) { return each->id == id; });
    if (task != mTasks.end())
        cancel(*task);
}

void ConversionQueue::cancelAll()
{
    for (const TaskPtr &task : mTasks)
        cancel(task);
}

/// One that waits is reported at once, without the worker; one that runs is reported when it has ended.
void ConversionQueue::cancel(const TaskPtr &task)
{
    task->cancelled = true;
    {
        const std::lock_guard lock(mMutex);
        const auto waiting = std::find(mWaiting.begin(), mWaiting.end(), task);
        if (waiting == mWaiting.end())
            return;
        mWaiting.erase(waiting);
    }
    task->result = conversionFailure(ConversionError::Cancelled, task->job.source);
    mHandOver.post([this, task] { deliver(task); });
}

int ConversionQueue::count() const
{
    return int(mTasks.size());
}

void ConversionQueue::work()
{
    while (const TaskPtr task = nextTask()) {
        task->result = convert(task);
        mHandOver.post([this, task] { deliver(task); });
    }
}

/// @return nothing when the queue ends.
ConversionQueue::TaskPtr ConversionQueue::nextTask()
{
    std::unique_lock lock(mMutex);
    mWake.wait(lock, [this] { return mStopping || !mWaiting.empty(); });
    if (mStopping)
        return {};
    const TaskPtr task = mWaiting.front();
    mWaiting.pop_front();
    return task;
}

ConversionResult ConversionQueue::convert(const TaskPtr &task)
{
    const ConversionJob &job = task->job;
    const int id = task->id;
    mHandOver.post([this, id] { emit sigStarted(id); });
    const auto progress = [this, id](int percent) {
        mHandOver.post([this, id, percent] { emit sigProgress(id, percent); });
    };
    const ConversionControl control{.pCancelled = &task->cancelled, .progress = progress};
    return job.video ? mVideos.transferVideo(job.source, *job.video, control)
                     : mImages.transferImage(job.source, job.size.width(), job.size.height(), control);
}

void ConversionQueue::deliver(const TaskPtr &task)
{
    mTasks.erase(std::find(mTasks.begin(), mTasks.end(), task));
    if (task->cancelled && task->result.success()) { // too late for the worker, not for who cancelled it
        QFile::remove(task->result.path);
        task->result = conversionFailure(ConversionError::Cancelled, task->job.source);
    }
    emit sigFinished(task->id, task->result); // last: a receiver may destroy the queue
}

} // namespace vorlinmodel
