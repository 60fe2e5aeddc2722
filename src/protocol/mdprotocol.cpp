#include "mdprotocol.h"

#include "base/log.h"
#include "logtext.h"
#include "platform/timing.h"
#include "transport/itransfer.h"
#include "wire/applicationmessage.h"

#include <QtEndian>
#include <algorithm>
#include <cstring>

namespace vorlindesk {
namespace {

using ReportFrame::Block;

constexpr std::chrono::nanoseconds BlockPause = std::chrono::milliseconds(2); // paces the panel
constexpr std::chrono::nanoseconds NoPause{0};
constexpr int ManyBlocks = 50;          // fewer are sent before anybody has read a progress
constexpr qint64 ProgressInterval = 50; // ms

QByteArray lowBytes(std::initializer_list<quint32> ids)
{
    QByteArray bytes;
    for (const quint32 id : ids)
        bytes.append(static_cast<char>(id & 0xFFU));
    return bytes;
}

} // namespace

MDProtocol::MDProtocol(ITransfer &transfer, Callbacks callbacks)
    : mTransfer(transfer)
    , mCallbacks(std::move(callbacks))
    , mpMessage(std::make_unique_for_overwrite<quint8[]>(ApplicationMessage::MaxSize))
    , mOpenCount(transfer.openCount())
{}

int MDProtocol::buildBare(FunctionCode code)
{
    mpMessage[0] = static_cast<quint8>(code);
    return mMessageSize = 1;
}

int MDProtocol::buildPlain(FunctionCode code, const QByteArray &body)
{
    return build(code, {}, body);
}

int MDProtocol::buildSubcoded(Subcode subcode, const QByteArray &data)
{
    return build(FunctionCode::UpgradeChannel, lowBytes({static_cast<quint32>(subcode)}), data);
}

int MDProtocol::buildKeyAddressed(quint32 layoutId, quint32 pageId, quint32 keyId, quint32 attributeId,
                                  const QByteArray &value)
{
    return build(FunctionCode::MD_FUNCTION_CODE_KEY_ATTRIBUTE,
                 lowBytes({layoutId, pageId, keyId, attributeId}), value);
}

int MDProtocol::build(FunctionCode code, const QByteArray &head, const QByteArray &rest)
{
    using namespace ApplicationMessage;
    const qint64 bodySize = qint64{head.size()} + rest.size();
    if (BodyOffset + bodySize > MaxSize)
        return mMessageSize = -1;
    quint8 *message = mpMessage.get();
    message[0] = static_cast<quint8>(code);
    qToLittleEndian(static_cast<quint32>(bodySize), message + LengthOffset);
    std::memcpy(message + BodyOffset, head.constData(), static_cast<size_t>(head.size()));
    std::memcpy(message + BodyOffset + head.size(), rest.constData(), static_cast<size_t>(rest.size()));
    return mMessageSize = static_cast<int>(BodyOffset + bodySize);
}

int MDProtocol::frame(Block flag, const quint8 *payload, int length)
{
    return mScratchSize = ReportFrame::encode(flag, payload, length, mScratch);
}

bool MDProtocol::sendReport(int blockIndex)
{
    const bool sent = mTransfer.Send(blockIndex, mScratch.data(), mScratchSize);
    if (!sent)
        ++mFailedSends;
    return sent;
}

bool MDProtocol::sendSingle()
{
    if (frame(Block::Whole, mpMessage.get(), mMessageSize) < 0) {
        Log(LogLevel::Error, ProtocolText::RequestError);
        return false;
    }
    Log(LogLevel::Info, "%s", hexDump(mScratch.data(), mScratchSize).constData());
    const bool sent = sendReport(0);
    if (sent)
        Log(LogLevel::Info, ProtocolText::RequestOk);
    else
        Log(LogLevel::Error, ProtocolText::RequestError);
    return sent;
}

bool MDProtocol::sendInBlocks(const BlockTransfer &transfer)
{
    mWasCancelled = false;
    if (mMessageSize >= 0)
        Log(LogLevel::Info, ProtocolText::MessageLength, mMessageSize);
    const bool done = sendBlocks(FlagRule::ByTotal, transfer.paced ? BlockPause : NoPause, {});
    Log(done ? LogLevel::Info : LogLevel::Error, "%s", done ? transfer.success : transfer.failure);
    return done;
}

bool MDProtocol::sendFirmware(const std::function<void(int, bool)> &onBlock)
{
    return sendBlocks(FlagRule::Firmware, NoPause, onBlock);
}

Block MDProtocol::blockFlag(FlagRule rule, int remaining) const
{
    if (remaining > LargestSingle)
        return Block::More;
    // A message of exactly 57 bytes is one report flagged "last", not "whole". The panel wants it so.
    constexpr int LargestWhole = LargestSingle - 1;
    return rule == FlagRule::ByTotal && mMessageSize <= LargestWhole ? Block::Whole : Block::Last;
}

bool MDProtocol::sendBlocks(FlagRule rule, std::chrono::nanoseconds pause, const OnBlock &onBlock)
{
    if (mMessageSize < 0)
        return false;
    int offset = 0;
    for (int block = 1; offset < mMessageSize; ++block) {
        const int remaining = mMessageSize - offset;
        if (rule == FlagRule::ByTotal && remaining > 1 && mCallbacks.cancelled && mCallbacks.cancelled())
            return giveUp(block - 1, pause);
        const int length = std::min(remaining, LargestSingle);
        frame(blockFlag(rule, remaining), mpMessage.get() + offset, length);
        offset += length;
        const bool sent = sendReport(block);
        Log(LogLevel::Info, ProtocolText::BlockSent, block);
        if (!sent)
            Log(LogLevel::Error, ProtocolText::BlockFailed, block);
        if (onBlock)
            onBlock(block, sent);
        else if (sent)
            tellProgress(block);
        if (!sent || !pauseAfterBlock(pause))
            break;
    }
    return offset >= mMessageSize; // also when only the last block failed
}

/// The panel takes every block for a part of the message until one is flagged "last": without that it would
/// read the next message as the rest of this one. So the message is closed by a block with a single zero
/// byte. It then ends before the length that it has announced, by which the panel knows that it was given up,
/// and keeps what it had. (With one byte left, the message would be whole with that block: then it is sent.)
bool MDProtocol::giveUp(int sentBlocks, std::chrono::nanoseconds pause)
{
    constexpr quint8 nothing = 0;
    mWasCancelled = true;
    Log(LogLevel::Info, ProtocolText::TransferCancelled, sentBlocks, blockCount());
    if (sentBlocks == 0)
        return false; // the panel knows nothing of it
    frame(Block::Last, &nothing, 1);
    if (sendReport(sentBlocks + 1))
        pauseAfterBlock(pause);
    return false;
}

int MDProtocol::blockCount() const
{
    return (mMessageSize + LargestSingle - 1) / LargestSingle;
}

void MDProtocol::tellProgress(int sentBlocks)
{
    const int all = blockCount();
    if (all <= ManyBlocks || !mCallbacks.progress)
        return;
    if (sentBlocks > 1 && sentBlocks < all && mSinceProgress.elapsed() < ProgressInterval)
        return;
    mSinceProgress.start();
    mCallbacks.progress(sentBlocks, all);
}

bool MDProtocol::pauseAfterBlock(std::chrono::nanoseconds pause)
{
    if (pause > NoPause)
        preciseSleep(pause);
    if (mBlockDelay > 0)
        return mCallbacks.pause(mBlockDelay);
    return !mCallbacks.interrupted();
}

} // namespace vorlindesk
