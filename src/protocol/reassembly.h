/// Puts the blocks of a long received message together again.
#pragma once

#include <QtGlobal>
#include <memory>

namespace vorlindesk {

/// Used by one thread. Holds the system's timer resolution at 1 ms exactly while a reassembly is under way.
class Reassembly
{
public:
    Reassembly();
    ~Reassembly();
    Reassembly(const Reassembly &) = delete;
    Reassembly &operator=(const Reassembly &) = delete;

    bool isReceiving() const { return mReceiving; }
    /// Appends a block, and starts a reassembly when none is under way. A message that would pass 10 MiB is
    /// dropped with an Error line; the rest of it, up to its last block, is swallowed.
    void append(const quint8 *payload, int length);
    /// Ends the reassembly. @return the bytes of the message, 0 when it was dropped; they stand at data()
    /// until the next append().
    int finish();
    /// Forgets what was gathered, since the rest of it will not come.
    void drop();
    const quint8 *data() const { return mpBuffer.get(); }

private:
    void start();
    void end();

    const std::unique_ptr<quint8[]>
        mpBuffer; // 10 MiB, of which memory is taken only as far as messages reach
    bool mReceiving = false;
    bool mTooLong = false;
    int mGathered = 0; // bytes
};

} // namespace vorlindesk
