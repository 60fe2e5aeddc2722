/// What runs on the protocol thread: the loop of taking a request, carrying it out, and polling the panel.
#pragma once

#include "devicecontext.h"
#include "linkwatch.h"
#include "mdprotocol.h"
#include "model/keyid.h"
#include "requestqueue.h"

#include <QVector>
#include <atomic>
#include <memory>
#include <optional>

namespace vorlindesk {
class HeldLog;
class ITransfer;
} // namespace vorlindesk

namespace vorlinmodel {

/// The part of the protocol thread's state that any thread may touch.
struct ProtocolShared
{
    RequestQueue queue;
    std::atomic<bool> running = false;
    std::atomic<bool> upgrading = false;
    std::atomic<int> pollingPeriod = 10; ///< ms
};

class ProtocolWorker
{
public:
    /// Creates the transport, which looks for the panel once. @p thread is the one that will call run().
    ProtocolWorker(IProtocolThread &thread, const IFunctionManager &store, ProtocolShared &shared);
    ~ProtocolWorker();

    bool init(); ///< starts the HID library
    void uninitialise();
    void run(); ///< until the thread is asked to end; leaves the panel closed

private:
    vorlindesk::MDProtocol::Callbacks callbacks();
    void pass();
    void process(const Request &request);
    bool dropCancelled(const Request &request);
    void processLogged(const Request &request);
    void pollPanel();
    void rest(qint64 elapsedMs);
    bool pause(int milliseconds);
    void onConnectState(bool connected);
    void onKeyPressed(const key_id_t &key);

    IProtocolThread &mThread;
    const IFunctionManager &mStore;
    ProtocolShared &mShared;
    const std::unique_ptr<vorlindesk::ITransfer> mpTransfer;
    vorlindesk::MDProtocol mProtocol;
    DeviceContext mContext;
    LinkWatch mLinkWatch;
    const Request *mpUnderWay = nullptr; ///< while it is carried out
    QVector<Request>
        mAbsent; ///< that failed since the panel was seen last: their lines are in the log already
    std::unique_ptr<vorlindesk::HeldLog> mpHeld;
};

} // namespace vorlinmodel
