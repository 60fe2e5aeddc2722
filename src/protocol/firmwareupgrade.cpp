#include "firmwareupgrade.h"

#include "base/log.h"
#include "devicerequests.h"
#include "logtext.h"

#include <QElapsedTimer>

namespace vorlinmodel {
namespace {

using vorlindesk::Log;
using vorlindesk::LogLevel;
using Reply = vorlindesk::MDProtocol::Reply;
namespace Text = ProtocolText;

constexpr int ResponseTimeout = 1000; // ms per read
constexpr int CrcTimeout = 5000;      // ms per read: the panel sums up the whole file first
constexpr qint64 ProgressPeriod = 50; // ms; the lines tell of every block, the bar need not
constexpr qint32 Available = 1;
constexpr qint32 NotAvailable = -1;
constexpr qint32 Delivered = 1;
constexpr qint32 NotDelivered = 0;
constexpr char CrcMatched = 0;
constexpr char CrcMismatch = 1;

/// One upgrade; its steps run in the order of Steps until one fails.
class Upgrade
{
public:
    Upgrade(DeviceContext &context, const Request &request)
        : mContext(context)
        , mRequest(request)
        , mFileName(request.fileName)
    {}

    void run();

private:
    struct Step
    {
        const char *name;
        bool (Upgrade::*run)();
    };
    static const Step Steps[];

    bool announce();
    bool readFile();
    bool requestUpgrade();
    bool dropWaitingRequests();
    bool erase();
    bool transfer();
    bool receiveCrc();
    bool compareCrc();
    bool sendStatus();

    void say(const QString &line) { emit mContext.events.logMessageSignal(line); }
    void say(const char *line) { say(QString::fromLatin1(line)); }
    void sayReply(const Reply &reply);
    bool send(Subcode subcode, const QByteArray &data = {});
    bool awaitReply(Subcode subcode, int timeoutMs, Reply &reply);
    void sayProgress(int sentBlocks, int allBlocks, bool isLast);

    DeviceContext &mContext;
    const Request &mRequest;
    const QString mFileName;
    QElapsedTimer mSinceProgress;
    QByteArray mFirmware;
    quint16 mFileCrc = 0;
    quint16 mPanelCrc = 0;
    char mStatus = CrcMismatch;
};

const Upgrade::Step Upgrade::Steps[] = {
    {"announce", &Upgrade::announce},
    {"read the file", &Upgrade::readFile},
    {"request the upgrade", &Upgrade::requestUpgrade},
    {"drop the requests that wait", &Upgrade::dropWaitingRequests},
    {"erase", &Upgrade::erase},
    {"transfer", &Upgrade::transfer},
    {"receive the checksum", &Upgrade::receiveCrc},
    {"compare the checksums", &Upgrade::compareCrc},
    {"send the status", &Upgrade::sendStatus},
};

void Upgrade::run()
{
    mContext.protocol
        .dropReassembly(); // what comes now are answers; the rest of a message would be lost among them
    for (const Step &step : Steps) {
        if (!(this->*step.run)()) {
            Log(LogLevel::Warn, Text::UpgradeEnded, step.name);
            return;
        }
    }
}

bool Upgrade::send(Subcode subcode, const QByteArray &data)
{
    mContext.protocol.buildSubcoded(subcode, data);
    return mContext.protocol.sendSingle();
}

bool Upgrade::awaitReply(Subcode subcode, int timeoutMs, Reply &reply)
{
    return mContext.protocol.waitForReply(FunctionCode::UpgradeChannel, subcode, timeoutMs, reply) == 0;
}

void Upgrade::sayReply(const Reply &reply)
{
    say(QString::asprintf(Text::UpgradeReplyCode, unsigned{reply.code}));
    say(QString::asprintf(Text::UpgradeReplyLength, reply.length, static_cast<int>(reply.length)));
    say(QString::asprintf(Text::UpgradeReplySubcode, unsigned{reply.subcode}));
}

bool Upgrade::announce()
{
    const int delay = mContext.protocol.blockDelay();
    Log(LogLevel::Info, Text::UpgradeDelay, delay);
    say(QString::asprintf(Text::UpgradeFile, qUtf8Printable(mFileName), delay));
    return true;
}

bool Upgrade::readFile()
{
    switch (mContext.firmware.load(mFileName)) {
    case FirmwareFile::Problem::None:
        break;
    case FirmwareFile::Problem::TooLarge: // not at the transfer: the panel would have erased its own by then
        say(Text::UpgradeTransferError);
        say(Text::UpgradeTransferFailed);
        return false;
    case FirmwareFile::Problem::Unreadable:
        say(QString::asprintf(Text::UpgradeOpenFailed, qUtf8Printable(mFileName)));
        return false;
    }
    mFirmware = mContext.firmware.bytes();
    mFileCrc = mContext.firmware.crc();
    say(QString::asprintf(Text::UpgradeOpened, qUtf8Printable(mFileName)));
    say(QString::asprintf(Text::UpgradeFileSize, static_cast<int>(mFirmware.size()), unsigned{mFileCrc}));
    say(Text::UpgradeHidOpen);
    return true;
}

bool Upgrade::requestUpgrade()
{
    if (!send(Subcode::UpgradeRequest)) {
        say(Text::UpgradeRequestError);
        emit mContext.events.sigSendUpdateAvailable(NotAvailable);
        say(Text::UpgradeRequestFailed);
        return false;
    }
    say(Text::UpgradeRequestOk);
    emit mContext.events.sigSendUpdateAvailable(Available);
    Reply reply;
    if (!awaitReply(Subcode::UpgradeResponse, ResponseTimeout, reply)) {
        say(Text::UpgradeResponseError);
        say(Text::UpgradeRequestFailed);
        return false;
    }
    say(Text::UpgradeResponseOk);
    sayReply(reply);
    return true;
}

bool Upgrade::dropWaitingRequests()
{
    say(Text::UpgradeRequested);
    // They were meant for the firmware that goes now. Who posted them learns that the panel does not have
    // them; an upgrade that was asked for twice is no news to the dialog, which would take it for the end of
    // this one.
    for (const Request &request : mContext.queue.clear()) {
        if (request.functionCode != mRequest.functionCode)
            emit mContext.events.sigRequestDone(request, RequestOutcome::NoPanel);
    }
    return true;
}

bool Upgrade::erase()
{
    if (!send(Subcode::EraseRequest)) {
        say(Text::EraseRequestError);
        return false;
    }
    say(Text::EraseRequestOk);
    Reply reply;
    if (!awaitReply(Subcode::EraseResponse, ResponseTimeout, reply)) {
        say(Text::EraseResponseError);
        return false;
    }
    say(Text::EraseResponseOk);
    sayReply(reply);
    return true;
}

/// Behind the first block, behind the last that was sent, and at most 20 times a second between them.
void Upgrade::sayProgress(int sentBlocks, int allBlocks, bool isLast)
{
    const bool isDue = !mSinceProgress.isValid() || mSinceProgress.hasExpired(ProgressPeriod);
    if (sentBlocks == 0 || (!isDue && !isLast))
        return;
    mSinceProgress.start();
    emit mContext.events.sigTransferProgress(mRequest, sentBlocks, allBlocks);
}

bool Upgrade::transfer()
{
    using vorlindesk::MDProtocol;
    mContext.protocol.buildSubcoded(Subcode::FirmwareData, mFirmware);
    Log(LogLevel::Info, Text::UpgradeTransferBegins);
    constexpr int blockSize = MDProtocol::LargestSingle;
    const int allBlocks = (mContext.protocol.messageSize() + blockSize - 1) / blockSize;
    const bool done = mContext.protocol.sendFirmware([this, allBlocks](int block, bool sent) {
        say(sent ? QString::asprintf(Text::UpgradeBlockOk, block)
                 : QString::asprintf(Text::BlockFailed, block));
        const bool isLast = !sent || block == allBlocks;
        sayProgress(sent ? block : block - 1, allBlocks, isLast);
    });
    if (!done) {
        say(Text::UpgradeTransferError);
        say(Text::UpgradeTransferFailed);
        return false;
    }
    Log(LogLevel::Info, Text::UpgradeTransferOk);
    say(Text::UpgradeTransferred);
    return true;
}

bool Upgrade::receiveCrc()
{
    say(Text::CrcBegin);
    Reply reply;
    if (!awaitReply(Subcode::CrcReport, CrcTimeout, reply)) {
        say(Text::CrcError);
        say(Text::CrcFailed);
        return false;
    }
    mPanelCrc = reply.value;
    say(QString::asprintf(Text::CrcReceived, unsigned{mPanelCrc}));
    return true;
}

bool Upgrade::compareCrc()
{
    say(QString::asprintf(Text::CrcBoth, unsigned{mFileCrc}, unsigned{mPanelCrc}));
    mStatus = mFileCrc == mPanelCrc ? CrcMatched : CrcMismatch;
    say(mStatus == CrcMatched ? Text::CrcEqual : Text::CrcDifferent);
    return true; // the panel is told either way
}

bool Upgrade::sendStatus()
{
    if (!send(Subcode::UpgradeStatus, QByteArray(1, mStatus))) {
        say(Text::UpgradeStatusError);
        emit mContext.events.sigUpgradeFinished(NotDelivered);
        return false;
    }
    // Said after a mismatch too: that the status was delivered is the success, the panel acts on it by
    // itself.
    say(Text::UpgradeDone);
    say(Text::UpgradeRestart);
    emit mContext.events.sigUpgradeFinished(Delivered);
    return true;
}

} // namespace

void processUpgrade(DeviceContext &context, const Request &request)
{
    Log(LogLevel::Info, Text::Upgrade, qUtf8Printable(request.fileName));
    context.upgrading = true;
    takeDevicePath(context, request);
    Upgrade(context, request).run();
    context.upgrading = false;
}

} // namespace vorlinmodel
