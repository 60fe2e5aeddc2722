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

    /// The transport at one moment.
    struct Link
    {
        bool open = false;
        int openCount = 0; ///< grows with every opening and every closing
    };

    /// Once per pass, with the link as it was before the poll and as it is after it, at @p nowMs.
    /// @return true when the state is to be checked now.
    bool checkIsDue(const Link &beforePoll, const Link &now, qint64 nowMs);

private:
    int mOpenCount = 0;    // at the end of the last pass
    bool mWasDown = false; // there: an attempt to open had failed, or the link had broken
    bool mWanted = false;
    std::optional<qint64> mLastCheck;
};

} // namespace vorlinmodel
