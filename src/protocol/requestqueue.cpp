#include "requestqueue.h"

namespace vorlinmodel {

void RequestQueue::post(Request request)
{
    {
        const std::lock_guard lock(mMutex);
        mRequests.push_back({std::move(request)});
    }
    mChanged.notify_all();
}

std::vector<Request> RequestQueue::clear()
{
    std::deque<Entry> dropped;
    {
        const std::lock_guard lock(mMutex);
        mRequests.swap(dropped);
    }
    std::vector<Request> requests;
    for (Entry &entry : dropped)
        requests.push_back(std::move(entry.request));
    return requests;
}

std::optional<Request> RequestQueue::take()
{
    const std::lock_guard lock(mMutex);
    std::optional<Entry> entry = takeEntry();
    return entry ? std::make_optional(std::move(entry->request)) : std::nullopt;
}

/// The mutex is locked.
std::optional<RequestQueue::Entry> RequestQueue::takeEntry()
{
    if (mRequests.empty())
        return std::nullopt;
    std::optional<Entry> entry(std::move(mRequests.front()));
    mRequests.pop_front();
    return entry;
}

std::optional<Request> RequestQueue::begin()
{
    const std::lock_guard lock(mMutex);
    const std::optional<Entry> entry = takeEntry();
    mIsCancelled = entry && entry->isCancelled;
    mUnderWay = entry ? std::make_optional(entry->request) : std::nullopt;
    return mUnderWay;
}

void RequestQueue::end()
{
    const std::lock_guard lock(mMutex);
    mUnderWay.reset();
    mIsCancelled = false;
}

void RequestQueue::cancel(const Request &request)
{
    const std::lock_guard lock(mMutex);
    if (mUnderWay == request)
        mIsCancelled = true;
    for (Entry &entry : mRequests) {
        if (entry.request == request)
            entry.isCancelled = true;
    }
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
