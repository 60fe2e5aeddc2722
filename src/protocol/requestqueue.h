/// Where the other threads meet the protocol thread: the requests that wait, and the wish to stop.
#pragma once

#include "base/request.h"

#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>

namespace vorlinmodel {

/// First in, first out, without a limit. Every operation may be called from any thread.
class RequestQueue
{
public:
    void post(Request request); ///< ends a waitForRequest() that is under way
    void clear();
    std::optional<Request> take(); ///< the oldest request, or nothing; never waits for one

    /// Waits until a request is there, until interrupt(), or for @p timeout.
    void waitForRequest(std::chrono::milliseconds timeout);
    /// Waits for @p timeout whatever is posted. @return true when interrupt() ended the wait.
    bool waitForInterrupt(std::chrono::milliseconds timeout);

    void interrupt(); ///< ends every wait, also those to come, until resume()
    void resume();

private:
    std::mutex mMutex;
    std::condition_variable mChanged;
    std::deque<Request> mRequests;
    bool mInterrupted = false;
};

} // namespace vorlinmodel
