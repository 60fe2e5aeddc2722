// The receiving half of MDProtocol: waiting for a reply, polling, and what a received report leads to.
#include "mdprotocol.h"

#include "base/log.h"
#include "logtext.h"
#include "transport/itransfer.h"
#include "wire/applicationmessage.h"

#include <QtEndian>
#include <algorithm>

namespace vorlindesk {
namespace {

using ReportFrame::Block;
namespace In = ReportFrame::In;

constexpr int PollTimeout = 20;         // ms
constexpr int MaxWaitingReports = 64;   // Linux keeps 63 unread reports
constexpr int WaitSlice = 100;          // ms; so long a wait may go on after the thread was asked to end
constexpr int ActionListAttribute = 15; // the panel sends an action list under this id, not a key press
constexpr int KeyIds = 3;               // layout, page and key id: the least that a key event carries

// Of a reply within its report: it must fit in one, so that nothing is put together.
constexpr int ReplyCode = In::PayloadOffset;
constexpr int ReplyLength = In::PayloadOffset + ApplicationMessage::LengthOffset;
constexpr int ReplySubcode = In::PayloadOffset + ApplicationMessage::BodyOffset;
constexpr int ReplyValue = In::PayloadOffset + ApplicationMessage::SubcodeDataOffset;

constexpr FunctionCode HandedOn[] = {
    FunctionCode::MD_FUNCTION_CODE_HARDWARE_VERSION, FunctionCode::MD_FUNCTION_CODE_SOFTWARE_VERSION,
    FunctionCode::MD_FUNCTION_CODE_READ_CONFIGFILE,  FunctionCode::MD_FUNCTION_CODE_LCD_LIGHT,
    FunctionCode::MD_FUNCTION_CODE_HOME_LAYOUT,      FunctionCode::MD_FUNCTION_CODE_SYSTEM_TYPE,
};

bool isHandedOn(quint8 code)
{
    return std::find(std::begin(HandedOn), std::end(HandedOn), static_cast<FunctionCode>(code)) !=
           std::end(HandedOn);
}

MDProtocol::Reply replyOf(const ReportFrame::Report &report)
{
    MDProtocol::Reply reply;
    reply.code = report[ReplyCode];
    reply.length = qFromLittleEndian<quint32>(report.data() + ReplyLength);
    reply.subcode = report[ReplySubcode];
    reply.value = qFromLittleEndian<quint16>(report.data() + ReplyValue);
    return reply;
}

void logReply(const MDProtocol::Reply &reply)
{
    Log(LogLevel::Info, ProtocolText::ReplyCode, unsigned{reply.code});
    Log(LogLevel::Info, ProtocolText::ReplyLength, reply.length, static_cast<int>(reply.length));
    Log(LogLevel::Info, ProtocolText::ReplySubcode, unsigned{reply.subcode});
}

} // namespace

int MDProtocol::receive(int timeoutMs)
{
    const int result = mTransfer.Recv(mReceived.data(), timeoutMs);
    // A link that was closed since the last report, for whatever reason, has lost the rest of a message.
    if (mTransfer.openCount() != mOpenCount) {
        mOpenCount = mTransfer.openCount();
        mReassembly.drop();
    }
    return result;
}

int MDProtocol::receiveInSlices(int timeoutMs)
{
    int result = 0;
    for (int left = timeoutMs; left > 0 && result == 0; left -= WaitSlice) {
        if (mCallbacks.interrupted())
            return -1;
        result = receive(std::min(left, WaitSlice));
    }
    return result;
}

int MDProtocol::waitForReply(FunctionCode code, Subcode subcode, int timeoutMs, Reply &reply)
{
    const auto wantedCode = static_cast<quint8>(code);
    const auto wantedSubcode = static_cast<quint8>(subcode);
    for (;;) {
        const int result = receiveInSlices(timeoutMs);
        if (result < 0)
            return result;
        if (result == 0) {
            Log(LogLevel::Warn, ProtocolText::ReplyTimeout, unsigned{wantedCode}, unsigned{wantedSubcode});
            continue;
        }
        Log(LogLevel::Info, "%s", hexDump(mReceived.data(), ReportFrame::Size).constData());
        reply = replyOf(mReceived);
        if (reply.code == wantedCode && reply.subcode == wantedSubcode) {
            logReply(reply);
            return 0;
        }
        if (mCallbacks.interrupted()) // a panel that floods us must not keep the program from ending either
            return -1;
    }
}

void MDProtocol::poll()
{
    if (receive(PollTimeout) <= 0)
        return;
    handleReport();
    for (int more = 0; more < MaxWaitingReports && receive(0) > 0; ++more)
        handleReport();
}

void MDProtocol::handleReport()
{
    const ReportFrame::Incoming report = ReportFrame::decodeIncoming(mReceived);
    if (report.flag == static_cast<quint8>(Block::Whole))
        handleWhole(report);
    else if (report.flag <= static_cast<quint8>(Block::Last))
        handleBlock(report);
}

void MDProtocol::handleWhole(const ReportFrame::Incoming &report)
{
    if (report.length == 0)
        return;
    const quint8 code = report.payload[0];
    const bool keyData = code == static_cast<quint8>(FunctionCode::MD_FUNCTION_CODE_KEY_ATTRIBUTE);
    if (keyData ? handleKeyData(report) : isHandedOn(code))
        mCallbacks.messageReceived(report.payload, report.length);
}

/// @return true when the report is to be handed on; a key press is dealt with here.
bool MDProtocol::handleKeyData(const ReportFrame::Incoming &report)
{
    const ApplicationMessage::View view = *ApplicationMessage::view(report.payload, report.length);
    if (view.bodySize < KeyIds) {
        Log(LogLevel::Error, ProtocolText::KeyDataShort, view.bodySize);
        return false;
    }
    const int attributeId = view.bodySize > KeyIds ? view.body[KeyIds] : 0;
    Log(LogLevel::Info, ProtocolText::ApplicationCode, unsigned{view.code});
    Log(LogLevel::Info, ProtocolText::ApplicationLength, view.length, static_cast<int>(view.length));
    Log(LogLevel::Info, ProtocolText::KeyCommand, view.body[0], view.body[1], view.body[2], attributeId);
    if (attributeId == ActionListAttribute)
        return true;
    mCallbacks.keyPressed(view.body[0], view.body[1], view.body[2]);
    return false;
}

void MDProtocol::handleBlock(const ReportFrame::Incoming &report)
{
    if (!mReassembly.isReceiving())
        mCallbacks.reassemblyStarted();
    mReassembly.append(report.payload, report.length);
    if (report.flag != static_cast<quint8>(Block::Last))
        return;
    const int length = mReassembly.finish();
    if (length > 0)
        mCallbacks.messageReceived(mReassembly.data(), length);
}

} // namespace vorlindesk
