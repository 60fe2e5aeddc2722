/// What the operations on the panel work with.
#pragma once

#include "iprotocolthread.h"
#include "mdprotocol.h"
#include "requestqueue.h"

#include <atomic>

namespace vorlindesk {
class ITransfer;
}

namespace vorlinmodel {

class IFunctionManager;

/// Borrowed from the protocol thread, on which every operation runs.
struct DeviceContext
{
    vorlindesk::MDProtocol &protocol;
    vorlindesk::ITransfer &transfer;
    const IFunctionManager &store;
    IProtocolThread &events; ///< whose signals report what happened
    RequestQueue &queue;
    std::atomic<bool> &upgrading;
    bool unreadable; ///< set by an operation that could not read a file, and therefore wrote nothing
};

/// Carries out one request, to its end. Failures are in the log only, except where a signal reports the
/// result.
using RequestOperation = void (*)(DeviceContext &context, const Request &request);

} // namespace vorlinmodel
