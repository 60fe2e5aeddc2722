/// Frames messages for the panel, cuts them into reports, and puts received reports together again.
#pragma once

#include "reassembly.h"
#include "wire/functioncode.h"
#include "wire/reportframe.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <chrono>
#include <functional>
#include <memory>

namespace vorlindesk {

class ITransfer;

/// Used by one thread. A message is built in the one outgoing buffer and then sent from there.
class MDProtocol
{
public:
    /// What goes up, and what this class asks of its thread. All are called on the calling thread.
    struct Callbacks
    {
        /// A message to hand on; the bytes are intact until the call returns.
        std::function<void(const quint8 *message, int length)> messageReceived;
        std::function<void(int layoutId, int pageId, int keyId)> keyPressed;
        std::function<void()> reassemblyStarted;
        /// True when the thread was asked to end: every wait then ends with a failure.
        std::function<bool()> interrupted;
        /// Waits so many ms. @return false when the thread was asked to end meanwhile.
        std::function<bool(int)> pause;
        /// Between two blocks: true when the rest of the message is no longer wanted.
        std::function<bool()> cancelled = {};
        /// So many blocks of a message have been sent: behind the first, at most 20 times a second, and
        /// behind the last; not of messages of 50 blocks or fewer.
        std::function<void(int sentBlocks, int allBlocks)> progress = {};
    };

    /// Outcome lines and pace of a message that goes in blocks.
    struct BlockTransfer
    {
        const char *success = nullptr;
        const char *failure = nullptr;
        bool paced = true; ///< 2 ms behind every block, beside the delay that the user may have set
    };

    struct Reply
    {
        quint8 code = 0;
        quint32 length = 0;
        quint8 subcode = 0;
        quint16 value = 0; ///< the two bytes behind the subcode
    };

    MDProtocol(ITransfer &transfer, Callbacks callbacks);

    /// Builders. @return bytes of the message, or -1 when it would pass 10 MiB; sending it then fails.
    int buildBare(FunctionCode code);
    int buildPlain(FunctionCode code, const QByteArray &body);
    int buildSubcoded(Subcode subcode, const QByteArray &data);
    /// Of each id only the low 8 bits travel.
    int buildKeyAddressed(quint32 layoutId, quint32 pageId, quint32 keyId, quint32 attributeId,
                          const QByteArray &value);
    int messageSize() const { return mMessageSize; }                   ///< of the message built last
    static constexpr int LargestSingle = ReportFrame::Out::MaxPayload; ///< bytes that fit in one report

    /// Frames @p length payload bytes (0 to 57) into the scratch report. @return 7 + @p length, -1 if they do
    /// not fit.
    int frame(ReportFrame::Block flag, const quint8 *payload, int length);
    bool sendReport(int blockIndex); ///< the scratch report; the index shows only in the log

    /// Sends the built message (at most 57 bytes) as one report, logged in hex before and with the outcome
    /// behind.
    bool sendSingle();
    /// Sends the built message in blocks. A failed last block counts as success: the panel's makers want it
    /// so.
    /// @return false when blocks were left, or when nothing was sent because the message is too long, or was
    /// cancelled, see wasCancelled().
    bool sendInBlocks(const BlockTransfer &transfer);
    bool wasCancelled() const { return mWasCancelled; } ///< the last message in blocks, if not forgotten
    void forgetCancelled() { mWasCancelled = false; }
    /// The same for firmware: never a whole-message flag, no 2 ms pause; @p onBlock is told of every block.
    bool sendFirmware(const std::function<void(int block, bool sent)> &onBlock);
    quint64 failedSends() const { return mFailedSends; } ///< reports that could not be sent so far

    /// Waits until a report with @p code and @p subcode comes; a silent panel is waited for without an end,
    /// with a line per @p timeoutMs. @return 0, or a negative result on a read error or when the thread is to
    /// end.
    int waitForReply(FunctionCode code, Subcode subcode, int timeoutMs, Reply &reply);

    /// Reads one report with a time-out of 20 ms, then what waits behind it, at most 64 more.
    void poll();
    void dropReassembly() { mReassembly.drop(); }

    int blockDelay() const { return mBlockDelay; } ///< ms behind every block, 0 at start
    void setBlockDelay(int milliseconds) { mBlockDelay = milliseconds; }

private:
    enum class FlagRule { ByTotal, Firmware };
    using OnBlock = std::function<void(int block, bool sent)>;

    int build(FunctionCode code, const QByteArray &head, const QByteArray &rest);
    ReportFrame::Block blockFlag(FlagRule rule, int remaining) const;
    bool sendBlocks(FlagRule rule, std::chrono::nanoseconds pause, const OnBlock &onBlock);
    bool pauseAfterBlock(std::chrono::nanoseconds pause);
    bool giveUp(int sentBlocks, std::chrono::nanoseconds pause);
    int blockCount() const;
    void tellProgress(int sentBlocks);
    int receive(int timeoutMs);
    int receiveInSlices(int timeoutMs);
    void handleReport();
    void handleWhole(const ReportFrame::Incoming &report);
    void handleBlock(const ReportFrame::Incoming &report);
    bool handleKeyData(const ReportFrame::Incoming &report);

    ITransfer &mTransfer;
    const Callbacks mCallbacks;
    const std::unique_ptr<quint8[]> mpMessage; // 10 MiB, taken only as far as messages reach
    int mMessageSize = 0;
    ReportFrame::Report mScratch{};
    int mScratchSize = 0;
    ReportFrame::Report mReceived{};
    Reassembly mReassembly;
    int mOpenCount = 0; // of the transport, when the last report was read
    int mBlockDelay = 0;
    quint64 mFailedSends = 0;
    bool mWasCancelled = false;
    QElapsedTimer mSinceProgress; ///< since the last progress() of the message
};

} // namespace vorlindesk
