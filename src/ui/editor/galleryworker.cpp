#include "galleryworker.h"

#include <utility>

GalleryWorker::~GalleryWorker()
{
    {
        const std::lock_guard lock(mMutex);
        mStopping = true;
    }
    mWake.notify_one();
    if (mThread.joinable())
        mThread.join();
}

void GalleryWorker::post(Task task)
{
    {
        const std::lock_guard lock(mMutex);
        mTasks.push_back(std::move(task));
    }
    mWake.notify_one();
    if (!mThread.joinable())
        mThread = std::thread([this] { run(); });
}

void GalleryWorker::run()
{
    for (;;) {
        Task task;
        {
            std::unique_lock lock(mMutex);
            mWake.wait(lock, [this] { return mStopping || !mTasks.empty(); });
            if (mStopping)
                return;
            task = std::move(mTasks.front());
            mTasks.pop_front();
        }
        task(mStopping);
    }
}
