#include "reassembly.h"

#include "base/log.h"
#include "logtext.h"
#include "platform/timing.h"
#include "wire/applicationmessage.h"

#include <cstring>

namespace vorlindesk {

Reassembly::Reassembly()
    : mpBuffer(std::make_unique_for_overwrite<quint8[]>(ApplicationMessage::MaxSize))
{}

Reassembly::~Reassembly()
{
    if (mReceiving)
        end();
}

void Reassembly::start()
{
    // The buffer is not cleared: nobody reads beyond the bytes gathered, and touching it would cost 10 MiB of
    // memory.
    mReceiving = true;
    mTooLong = false;
    mGathered = 0;
    raiseTimerResolution();
}

void Reassembly::end()
{
    mReceiving = false;
    restoreTimerResolution();
}

void Reassembly::append(const quint8 *payload, int length)
{
    if (!mReceiving)
        start();
    if (mTooLong)
        return;
    if (length > ApplicationMessage::MaxSize - mGathered) {
        Log(LogLevel::Error, ProtocolText::ReassemblyTooLong, ApplicationMessage::MaxSize);
        mTooLong = true;
        mGathered = 0;
        return;
    }
    std::memcpy(mpBuffer.get() + mGathered, payload, static_cast<size_t>(length));
    mGathered += length;
    Log(LogLevel::Info, ProtocolText::Reassembling, mGathered);
}

int Reassembly::finish()
{
    end();
    return mTooLong ? 0 : mGathered;
}

void Reassembly::drop()
{
    if (!mReceiving)
        return;
    Log(LogLevel::Warn, ProtocolText::ReassemblyCut, mGathered);
    end();
}

} // namespace vorlindesk
