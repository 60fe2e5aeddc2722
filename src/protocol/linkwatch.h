/// Notices that the link to the panel broke or came back, so that the connection state can be asked for.
#pragma once

#include <QtGlobal>
#include <optional>

namespace vorlinmodel {

/// Only sending changes the connection state that the user sees. So after the link broke, and after polling
/// found the panel again, something harmless has to be sent. Used by one thread.
class LinkWatch
{
public:
    static constexpr int Pause =
        500; ///< ms between two checks: a panel that fails every write is not asked nonstop

    /// Once per pass, after polling: whether the transport was open before the poll and is open now, at @p
    /// nowMs.
    /// @return true when the state is to be checked now.
    bool checkIsDue(bool openBeforePoll, bool openNow, qint64 nowMs);

private:
    bool mWasOpen = false; // at the end of the last pass
    bool mWasDown = false; // an attempt to open failed, or the link broke
    bool mWanted = false;
    std::optional<qint64> mLastCheck;
};

} // namespace vorlinmodel
