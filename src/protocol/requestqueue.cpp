#include "requestqueue.h"

namespace vorlinmodel {

void RequestQueue::post(Request request)
{
    {
        const std::lock_guard lock(mMutex);
        mRequests.push_back(std::move(request));
    }
    mChanged.notify_all();
}

void RequestQueue::clear()
{
    std::deque<Request> dropped; // released after the lock
    const std::lock_guard lock(mMutex);
    mRequests.swap(dropped);
}

std::optional<Request> RequestQueue::take()
{
    const std::lock_guard lock(mMutex);
    if (mRequests.empty())
        return std::nullopt;
    std::optional<Request> request(std::move(mRequests.front()));
    mRequests.pop_front();
    return request;
}

void RequestQueue::waitForRequest(std::chrono::milliseconds timeout)
{
    std::unique_lock lock(mMutex);
    mChanged.wait_for(lock, timeout, [this] { return mInterrupted || !mRequests.empty(); });
}

bool RequestQueue::waitForInterrupt(std::chrono::milliseconds timeout)
{
    std::unique_lock lock(mMutex);
    return mChanged.wait_for(lock, timeout, [this] { return mInterrupted; });
}

void RequestQueue::interrupt()
{
    {
        const std::lock_guard lock(mMutex);
        mInterrupted = true;
    }
    mChanged.notify_all();
}

void RequestQueue::resume()
{
    const std::lock_guard lock(mMutex);
    mInterrupted = false;
}

} // namespace vorlinmodel
