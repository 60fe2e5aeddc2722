/// What the operations on the panel work with.
#pragma once

#include "firmwarefile.h"
#include "iprotocolthread.h"
#include "mdprotocol.h"
#include "requestqueue.h"

#include "model/keyid.h"

#include <QSize>
#include <QVector>
#include <atomic>
#include <map>

namespace vorlindesk {
class ITransfer;
}

namespace vorlinmodel {

class IFunctionManager;

/// The function ids that were written to the panel, by key; for content, which means something else under
/// each function.
class WrittenFunctions
{
public:
    static constexpr int Unknown = -1; ///< writing it failed

    void note(const key_id_t &key, int fid) { mFunctions[key] = fid; }
    void forget(const key_id_t &key) { mFunctions.erase(key); }
    void forgetAll() { mFunctions.clear(); }
    /// True when the panel's key is known to have another function than @p fid.
    bool differs(const key_id_t &key, int fid) const
    {
        const auto written = mFunctions.find(key);
        return written != mFunctions.end() && written->second != fid;
    }

private:
    std::map<key_id_t, int> mFunctions;
};

/// The pixel sizes of the keys of custom layouts that were written to the panel; for pictures, which it takes
/// at these sizes only.
class WrittenLayouts
{
public:
    void note(int layoutId, const QVector<QSize> &keys) { mLayouts[layoutId] = keys; }
    void forget(int layoutId) { mLayouts.erase(layoutId); }
    void forgetAll() { mLayouts.clear(); }
    /// True when the panel's key is known to have another size than @p size.
    bool differs(const key_id_t &key, const QSize &size) const
    {
        const auto written = mLayouts.find(key.lid);
        return written != mLayouts.end() && written->second.value(key.kid - 1, size) != size;
    }

private:
    std::map<int, QVector<QSize>> mLayouts;
};

/// Borrowed from the protocol thread, on which every operation runs.
struct DeviceContext
{
    vorlindesk::MDProtocol &protocol;
    vorlindesk::ITransfer &transfer;
    const IFunctionManager &store;
    IProtocolThread &events; ///< whose signals report what happened
    RequestQueue &queue;
    std::atomic<bool> &upgrading;
    WrittenFunctions functions;
    bool unreadable; ///< set by an operation that could not read a file, and therefore wrote nothing
    WrittenLayouts layouts{};
    FirmwareFile firmware{};
};

/// Carries out one request, to its end. Failures are in the log only, except where a signal reports the
/// result.
using RequestOperation = void (*)(DeviceContext &context, const Request &request);

} // namespace vorlinmodel
