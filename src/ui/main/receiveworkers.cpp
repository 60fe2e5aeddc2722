#include "receiveworkers.h"

#include "base/log.h"
#include "logtext.h"

#include <system_error>

ReceiveWorkers::~ReceiveWorkers()
{
    cancel();
}

void ReceiveWorkers::start(Job job)
{
    joinFinished();
    const quint64 ticket = mNextTicket++;
    Worker &worker = mWorkers.emplace_back();
    try {
        worker.thread = std::thread([this, &worker, ticket, job] { run(worker, ticket, job); });
    } catch (const std::system_error &error) {
        // The system has no more threads. All earlier jobs can end, so this one's turn is sure to come.
        vorlindesk::Log(vorlindesk::LogLevel::Error, LogText::NoWorkerThread, error.what());
        mWorkers.pop_back();
        joinAll();
        Worker here;
        run(here, ticket, job);
    }
}

void ReceiveWorkers::run(Worker &worker, quint64 ticket, const Job &job)
{
    std::unique_lock lock(mMutex);
    mTurn.wait(lock, [this, ticket] { return mServing == ticket || mCancelled; });
    if (!mCancelled) {
        lock.unlock();
        job();
        lock.lock();
        ++mServing;
    }
    worker.finished = true;
    // Under the lock: when it is given up, this object may be destroyed as soon as the thread is joined.
    mTurn.notify_all();
}

void ReceiveWorkers::cancel()
{
    {
        const std::lock_guard lock(mMutex);
        mCancelled = true;
        mTurn.notify_all();
    }
    joinAll();
}

void ReceiveWorkers::joinFinished()
{
    std::list<Worker> finished;
    {
        const std::lock_guard lock(mMutex);
        for (auto worker = mWorkers.begin(); worker != mWorkers.end();) {
            const auto next = std::next(worker);
            if (worker->finished)
                finished.splice(finished.end(), mWorkers, worker);
            worker = next;
        }
    }
    for (Worker &worker : finished)
        worker.thread.join();
}

void ReceiveWorkers::joinAll()
{
    for (Worker &worker : mWorkers)
        worker.thread.join();
    mWorkers.clear();
}
