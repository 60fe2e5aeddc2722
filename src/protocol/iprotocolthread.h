/// The worker thread that talks with the panel.
#pragma once

#include "base/request.h"

#include <QThread>

namespace vorlinmodel {

/// What became of a request.
enum class RequestOutcome {
    Sent,       ///< all its reports were written, or there was nothing to write
    NoPanel,    ///< no panel was there
    Failed,     ///< the panel was there, and a report could not be written
    Unreadable, ///< nothing was written: a file that belongs to the request cannot be read, or is too long
    Cancelled,  ///< by cancelTransfer(): the panel keeps what it had
};

class IProtocolThread : public QThread
{
    Q_OBJECT
public:
    using QThread::QThread;

    /// Prepares the transport; once, before the thread is started. @return false when the HID library fails.
    virtual bool Init() = 0;
    /// Appends a copy to the queue. Any thread; never waits.
    virtual void postRequest(const Request &request) = 0;
    virtual void clearRequests() = 0;
    /// Moves the oldest request out of the queue. @return false when there is none.
    virtual bool takeRequest(Request &request) = 0;
    /// Gives up every request equal to @p request: one that waits is dropped when its turn comes; of one that
    /// is sent in blocks no more blocks go out. RequestOutcome::Cancelled follows, or another outcome when it
    /// was too late. Any thread; never waits.
    virtual void cancelTransfer(const Request &request) = 0;
    virtual bool isUpgrading() const = 0;  ///< any thread
    virtual int pollingPeriod() const = 0; ///< ms; 10 at start, 2 after the first multi-block message
    virtual void setPollingPeriod(int milliseconds) = 0;
    /// Asks the thread to end and waits for it, at most 2 s, also in the middle of a wait for a silent panel.
    virtual void stop() = 0;

    /// Emits sigDealExecCommand on behalf of the model, which cannot see this class. Any thread.
    void execCommand(int fid, const QString &command) { emit sigDealExecCommand(fid, command); }

signals: // all emitted on this thread, except by execCommand()
    void sigUsbConnectState(bool isConnect);
    void logMessageSignal(const QString &message); ///< a line for the upgrade dialog
    /// A whole message. @p recvData is valid only until the signal returns: connect directly and copy.
    void sigDealRecvData(const quint8 *recvData, qint32 nBufferLen);
    void sigDealExecCommand(qint32 nFid, const QString &strCmd);
    void sigSendScriptFinished();
    void sigSendVideoFinished(qint32 nResult);
    void sigSendUpdateAvailable(qint32 nResult);
    void sigUpgradeFinished(qint32 nResult);
    /// Once per request, in the order of the queue. Connect directly, and hand the values over.
    void sigRequestDone(const vorlinmodel::Request &request, vorlinmodel::RequestOutcome outcome);
    /// Of a request that takes more than 50 blocks: behind its first block, then at most 20 times a second,
    /// and behind its last. @p sentBlocks is 1 to @p allBlocks. Connect directly, and hand the values over.
    void sigTransferProgress(const vorlinmodel::Request &request, int sentBlocks, int allBlocks);
};

} // namespace vorlinmodel
