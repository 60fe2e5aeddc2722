/// Threads that decode received messages.
#pragma once

#include <condition_variable>
#include <functional>
#include <list>
#include <mutex>
#include <thread>

/// One thread per message, so that the window stays alive while pictures are written; yet the jobs take
/// effect one after the other, in the order in which they were started, since a page must be in the store
/// before its pictures. start() and cancel() belong to one thread.
class ReceiveWorkers
{
public:
    using Job = std::function<void()>;

    ReceiveWorkers() = default;
    ~ReceiveWorkers(); ///< cancels
    ReceiveWorkers(const ReceiveWorkers &) = delete;
    ReceiveWorkers &operator=(const ReceiveWorkers &) = delete;

    /// Runs @p job on a thread of its own when all jobs before it are done. After cancel() it is dropped.
    void start(Job job);

    /// Drops the jobs that have not begun, and waits for the one that has. Returns when no thread is left.
    void cancel();

    int threadCount() const { return static_cast<int>(mWorkers.size()); } ///< threads that are not joined yet

private:
    struct Worker
    {
        std::thread thread;
        bool finished = false; ///< under mMutex; the thread has nothing left to do
    };

    void run(Worker &worker, quint64 ticket, const Job &job);
    void joinFinished();
    void joinAll();

    std::mutex mMutex;
    std::condition_variable mTurn;
    quint64 mServing = 0; ///< ticket of the job whose turn it is
    bool mCancelled = false;
    quint64 mNextTicket = 0; ///< of the starting thread
    std::list<Worker> mWorkers;
};
