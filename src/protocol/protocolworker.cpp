#include "protocolworker.h"

#include "attributerequests.h"
#include "base/log.h"
#include "devicerequests.h"
#include "firmwareupgrade.h"
#include "keyeventdispatch.h"
#include "logtext.h"
#include "transport/hidtransfer.h"

#include <QElapsedTimer>
#include <algorithm>

namespace vorlinmodel {
namespace {

using std::chrono::milliseconds;
using vorlindesk::HIDTransfer;
using vorlindesk::Log;
using vorlindesk::LogLevel;

constexpr int FastPollingPeriod = 2; // ms, from the first message in blocks on
constexpr int WaitSlice = 100;       // ms; so long a wait may go on after the thread was asked to end
constexpr int MaxRemembered = 64;    // failed requests; an older one is logged once more

struct Kind
{
    RequestKind kind;
    RequestOperation operation;
};

constexpr Kind Kinds[] = {
    {RequestKind::MD_FUNCTION_CODE_KEY_ATTRIBUTE, processKeyAttribute},
    {RequestKind::MD_FUNCTION_CODE_HARDWARE_VERSION, processHardwareVersion},
    {RequestKind::MD_FUNCTION_CODE_SOFTWARE_VERSION, processSoftwareVersion},
    {RequestKind::MD_FUNCTION_CODE_CONFIGFILE, processConfigFile},
    {RequestKind::MD_FUNCTION_CODE_SELECT_PAGE, processSelectPage},
    {RequestKind::MD_FUNCTION_CODE_READ_CONFIGFILE, processReadConfigFile},
    {RequestKind::MD_FUNCTION_CODE_UPGRADE, processUpgrade},
    {RequestKind::SetDevicePath, processSetDevicePath},
    {RequestKind::SetBlockDelay, processSetBlockDelay},
    {RequestKind::MD_FUNCTION_CODE_CUSTOMLAYOUT_SET, processCustomLayoutSet},
    {RequestKind::MD_FUNCTION_CODE_CUSTOMLAYOUT_DEL, processCustomLayoutDel},
    {RequestKind::MD_FUNCTION_CODE_DEL_CONFIGFILE, processDelConfigFile},
    {RequestKind::MD_FUNCTION_CODE_LCD_LIGHT, processLcdLight},
    {RequestKind::MD_FUNCTION_CODE_HOME_LAYOUT, processHomeLayout},
    {RequestKind::MD_FUNCTION_CODE_SYSTEM_TYPE, processSystemType},
    {RequestKind::MD_FUNCTION_CODE_UPLOAD_FILE, processUploadFile},
};

void logUnknownKind(const Request &request)
{
    Log(LogLevel::Info, ProtocolText::UnknownKind, static_cast<int>(request.functionCode),
        static_cast<int>(request.layoutId), static_cast<int>(request.keyId),
        static_cast<int>(request.functionId), static_cast<int>(request.attributeId));
}

qint64 steadyMilliseconds()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

Request stateCheck()
{
    Request request;
    request.functionCode = static_cast<quint32>(RequestKind::MD_FUNCTION_CODE_SOFTWARE_VERSION);
    return request;
}

/// Afterwards the store, the panel or both hold other keys than single edits have put there.
bool changesAllKeys(const Request &request)
{
    constexpr RequestKind kinds[] = {
        RequestKind::MD_FUNCTION_CODE_READ_CONFIGFILE,  RequestKind::MD_FUNCTION_CODE_CONFIGFILE,
        RequestKind::MD_FUNCTION_CODE_DEL_CONFIGFILE,   RequestKind::MD_FUNCTION_CODE_CUSTOMLAYOUT_SET,
        RequestKind::MD_FUNCTION_CODE_CUSTOMLAYOUT_DEL, RequestKind::MD_FUNCTION_CODE_UPGRADE};
    return std::any_of(std::begin(kinds), std::end(kinds), [&request](RequestKind kind) {
        return static_cast<quint32>(kind) == request.functionCode;
    });
}

RequestOutcome outcome(bool sent, bool panelWasThere, bool unreadable)
{
    if (unreadable)
        return RequestOutcome::Unreadable;
    if (sent)
        return RequestOutcome::Sent;
    return panelWasThere ? RequestOutcome::Failed : RequestOutcome::NoPanel;
}

} // namespace

ProtocolWorker::ProtocolWorker(IProtocolThread &thread, const IFunctionManager &store, ProtocolShared &shared)
    : mThread(thread)
    , mStore(store)
    , mShared(shared)
    , mpTransfer(std::make_unique<HIDTransfer>())
    , mProtocol(*mpTransfer, callbacks())
    , mContext{mProtocol, *mpTransfer, store, thread, shared.queue, shared.upgrading, {}, false}
{
    QObject::connect(
        mpTransfer.get(), &vorlindesk::ITransfer::connectState, &thread,
        [this](bool connected) { onConnectState(connected); }, Qt::DirectConnection);
}

ProtocolWorker::~ProtocolWorker() = default;

vorlindesk::MDProtocol::Callbacks ProtocolWorker::callbacks()
{
    return {
        .messageReceived =
            [this](const quint8 *message, int length) {
                constexpr auto customLayout =
                    static_cast<quint8>(FunctionCode::MD_FUNCTION_CODE_CUSTOMLAYOUT_SET);
                if (length > 0 && message[0] == customLayout)
                    mContext.layouts.forgetAll(); // the panel's own take the place of those written
                emit mThread.sigDealRecvData(message, length);
            },
        .keyPressed =
            [this](int lid, int pageid, int kid) {
                onKeyPressed({lid, pageid, kid});
            },
        .reassemblyStarted = [this] { mShared.pollingPeriod = FastPollingPeriod; },
        .interrupted = [this] { return mThread.isInterruptionRequested(); },
        .pause = [this](int milliseconds) { return pause(milliseconds); },
        .cancelled = [this] { return mShared.queue.isCancelled(); },
        .progress =
            [this](int sentBlocks, int allBlocks) {
                if (mpUnderWay)
                    emit mThread.sigTransferProgress(*mpUnderWay, sentBlocks, allBlocks);
            },
    };
}

bool ProtocolWorker::init()
{
    return mpTransfer->Init();
}

void ProtocolWorker::uninitialise()
{
    mpTransfer->uninitialise();
}

void ProtocolWorker::run()
{
    mpTransfer->setErrorLogging(false);
    while (!mThread.isInterruptionRequested())
        pass();
    mpTransfer->close();
    mProtocol.dropReassembly(); // and with it the raised timer resolution
}

void ProtocolWorker::pass()
{
    QElapsedTimer stopwatch;
    stopwatch.start();
    if (const std::optional<Request> request = mShared.queue.begin()) {
        mpTransfer->setErrorLogging(true);
        mpUnderWay = &*request;
        if (!dropCancelled(*request))
            processLogged(*request);
        mpUnderWay = nullptr;
        mpTransfer->setErrorLogging(false);
        mShared.queue.end();
    }
    mContext.firmware.dropIfOld();
    pollPanel();
    rest(stopwatch.elapsed());
}

/// @return true when the request was cancelled while it waited.
bool ProtocolWorker::dropCancelled(const Request &request)
{
    if (!mShared.queue.isCancelled())
        return false;
    Log(LogLevel::Info, ProtocolText::RequestCancelled, static_cast<int>(request.functionCode));
    if (request.functionCode == static_cast<quint32>(RequestKind::MD_FUNCTION_CODE_KEY_ATTRIBUTE))
        reportCancelledAttribute(mContext, request);
    emit mThread.sigRequestDone(request, RequestOutcome::Cancelled);
    return true;
}

/// The same request over and over while no panel is there, as synchronising sends it, is logged only once.
void ProtocolWorker::processLogged(const Request &request)
{
    if (!mpTransfer->isOpen() && mAbsent.contains(request))
        mpHeld = std::make_unique<vorlindesk::HeldLog>();
    const quint64 failedSends = mProtocol.failedSends();
    const bool wasOpen = mpTransfer->isOpen();
    const int openCount = mpTransfer->openCount();
    mContext.unreadable = false;
    mProtocol.forgetCancelled();
    if (changesAllKeys(request))
        mContext.functions.forgetAll();
    process(request);
    const bool sent = mProtocol.failedSends() == failedSends;
    const bool panelWasThere = wasOpen || mpTransfer->openCount() != openCount;
    emit mThread.sigRequestDone(request, mProtocol.wasCancelled()
                                             ? RequestOutcome::Cancelled
                                             : outcome(sent, panelWasThere, mContext.unreadable));
    if (mpTransfer->isOpen()) {
        mAbsent.clear();
        if (mpHeld)
            mpHeld->release();
    } else if (mProtocol.failedSends() != failedSends && !mAbsent.contains(request)) {
        if (mAbsent.size() == MaxRemembered)
            mAbsent.removeFirst();
        mAbsent << request;
    }
    mpHeld.reset();
}

void ProtocolWorker::process(const Request &request)
{
    const auto *entry = std::find_if(std::begin(Kinds), std::end(Kinds), [&request](const Kind &kind) {
        return static_cast<quint32>(kind.kind) == request.functionCode;
    });
    if (entry == std::end(Kinds))
        logUnknownKind(request);
    else
        entry->operation(mContext, request);
}

void ProtocolWorker::pollPanel()
{
    const LinkWatch::Link before{mpTransfer->isOpen(), mpTransfer->openCount()};
    mProtocol.poll();
    const LinkWatch::Link now{mpTransfer->isOpen(), mpTransfer->openCount()};
    if (mLinkWatch.checkIsDue(before, now, steadyMilliseconds()))
        mShared.queue.post(stateCheck());
}

/// Waits for the end of the polling period; without a panel, until it is worth while to look for it again.
void ProtocolWorker::rest(qint64 elapsedMs)
{
    const qint64 period = mShared.pollingPeriod - elapsedMs;
    const qint64 wait = std::max<qint64>(period, mpTransfer->msToNextOpen());
    if (wait > 0)
        mShared.queue.waitForRequest(milliseconds(wait));
}

bool ProtocolWorker::pause(int milliseconds)
{
    for (int left = milliseconds; left > 0; left -= WaitSlice) {
        const bool interrupted =
            mShared.queue.waitForInterrupt(std::chrono::milliseconds(std::min(left, WaitSlice)));
        if (interrupted || mThread.isInterruptionRequested())
            return false;
    }
    return true;
}

void ProtocolWorker::onConnectState(bool connected)
{
    if (connected && mpHeld) { // the panel is back: what happens from here on is new
        mpHeld->release();
        mpHeld.reset();
    }
    emit mThread.sigUsbConnectState(connected);
}

void ProtocolWorker::onKeyPressed(const key_id_t &key)
{
    if (const std::optional<KeyCommand> command = commandOfKey(mStore, key))
        emit mThread.sigDealExecCommand(command->functionId, command->text);
}

} // namespace vorlinmodel
