/// Where the other threads meet the protocol thread: the requests that wait, and the wish to stop.
#pragma once

#include "base/request.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <vector>

namespace vorlinmodel {

/// First in, first out, without a limit. Every operation may be called from any thread.
class RequestQueue
{
public:
    void post(Request request);    ///< ends a waitForRequest() that is under way
    std::vector<Request> clear();  ///< @return what waited, oldest first
    std::optional<Request> take(); ///< the oldest request, or nothing; never waits for one

    /// Takes the oldest request to carry it out: until end() it is the one that isCancelled() is about.
    std::optional<Request> begin();
    void end();
    /// Marks the requests equal to @p request: the one under way, and those that wait.
    void cancel(const Request &request);
    bool isCancelled() const { return mIsCancelled; } ///< the request under way

    /// Waits until a request is there, until interrupt(), or for @p timeout.
    void waitForRequest(std::chrono::milliseconds timeout);
    /// Waits for @p timeout whatever is posted. @return true when interrupt() ended the wait.
    bool waitForInterrupt(std::chrono::milliseconds timeout);

    void interrupt(); ///< ends every wait, also those to come, until resume()
    void resume();

private:
    struct Entry
    {
        Request request;
        bool isCancelled = false;
    };

    std::optional<Entry> takeEntry();

    std::mutex mMutex;
    std::condition_variable mChanged;
    std::deque<Entry> mRequests;
    std::optional<Request> mUnderWay;
    std::atomic<bool> mIsCancelled = false; ///< written under the mutex, read between two blocks
    bool mInterrupted = false;
};

} // namespace vorlinmodel
