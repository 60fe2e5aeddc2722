/// The worker thread: takes requests, talks with the panel, reports by signals.
#pragma once

#include "protocol/iprotocolthread.h"

#include <memory>

namespace vorlinmodel {

class IFunctionManager;
class ProtocolWorker;
struct ProtocolShared;

class ProtocolThread : public IProtocolThread
{
    Q_OBJECT
public:
    static constexpr int StopTimeout = 2000; ///< ms

    /// @p store gives the values that are sent and says what a pressed key does; it outlives the thread.
    explicit ProtocolThread(const IFunctionManager &store, QObject *parent = nullptr);
    ~ProtocolThread() override; ///< stops the thread and waits for its end

    bool Init() override;
    void postRequest(const Request &request) override;
    void clearRequests() override;
    bool takeRequest(Request &request) override;
    void cancelTransfer(const Request &request) override;
    bool isUpgrading() const override;
    int pollingPeriod() const override;
    void setPollingPeriod(int milliseconds) override;
    void stop() override;

protected:
    void run() override;

private:
    const IFunctionManager &mStore;
    const std::unique_ptr<ProtocolShared> mpShared; // what other threads may touch too
    std::unique_ptr<ProtocolWorker> mpWorker;       // what only the running thread touches; from Init on
};

} // namespace vorlinmodel
