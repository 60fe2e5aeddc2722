/// A thread that does one thing after the other.
#pragma once

#include <atomic>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

/// Lives on one thread, which posts to it.
class GalleryWorker
{
public:
    /// @p stopping turns true when the worker is being destroyed.
    using Task = std::function<void(const std::atomic<bool> &stopping)>;

    GalleryWorker() = default;
    ~GalleryWorker(); ///< drops what has not begun, waits for the end of what has
    GalleryWorker(const GalleryWorker &) = delete;
    GalleryWorker &operator=(const GalleryWorker &) = delete;

    void post(Task task); ///< starts the thread when it is the first

private:
    void run();

    std::mutex mMutex; // guards mTasks
    std::condition_variable mWake;
    std::deque<Task> mTasks;
    std::atomic<bool> mStopping = false;
    std::thread mThread;
};
