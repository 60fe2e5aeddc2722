// The part of the main window that takes what the panel sends.
#include "base/iframeworkcontext.h"
#include "base/log.h"
#include "logtext.h"
#include "mainframe.h"
#include "model/ifunctionmanager.h"
#include "statusframe.h"
#include "waitingspinnerwidget.h"
#include "widget.h"
#include "wire/customlayout.h"
#include "wire/functioncode.h"

using vorlindesk::Log;
using vorlindesk::LogLevel;

namespace {

// Both in ms.
constexpr int NextPageTimeout = 1000;
constexpr int NextRecordTimeout = 10000;

int readWaitingTime(int total, int received)
{
    return ((total - received) + 10) * 1000;
}

constexpr int code(FunctionCode functionCode)
{
    return static_cast<int>(functionCode);
}

constexpr bool isVersion(int functionCode)
{
    return functionCode == code(FunctionCode::MD_FUNCTION_CODE_HARDWARE_VERSION) ||
           functionCode == code(FunctionCode::MD_FUNCTION_CODE_SOFTWARE_VERSION);
}

} // namespace

void Widget::slotDealRecvData(const quint8 *recvData, int nBufferLen)
{
    ReceivedMessage message;
    message.bytes = QByteArray(reinterpret_cast<const char *>(recvData), qMax(0, nBufferLen));
    // Settled here, in the order of arrival, since a worker may come to a message long after the next read
    // was asked for, or the panel was unplugged.
    const int functionCode = nBufferLen > 0 ? recvData[0] : 0;
    if (functionCode == code(FunctionCode::MD_FUNCTION_CODE_READ_CONFIGFILE))
        message.firstPage = mProgress.takeFirstPage();
    else if (isVersion(functionCode))
        onConnectState(true);
    mWorkers.start([this, message] { mpReceivedData->handle(message); });
}

void Widget::onPageReceived(int layoutId, int pageId, int keyCount, bool first)
{
    mProgress.pageReceived(keyCount);
    if (first)
        mpMainFrame->showPage(layoutId, pageId);
    else if (layoutId == mpMainFrame->curLayoutId() && pageId == mpMainFrame->curPageId())
        mpMainFrame->refreshKeys();
    watchRead();
}

void Widget::onRecordReceived(int total, int received)
{
    mProgress.pictureReceived(total, received);
    if (total > 0 && received > 0)
        emit sigUpdateWaitingDialogTime(readWaitingTime(total, received));
    watchRead();
}

void Widget::onConfigurationComplete()
{
    mProgress.pageComplete();
    mContext.hideWaitingDialog();
    mpStore->setModeFlag(false);
    Log(LogLevel::Info, LogText::RefreshAll, mpMainFrame->curLayoutId(), mpMainFrame->curPageId());
    mpMainFrame->refreshKeys();
    watchRead();
}

/// While the waiting dialog is up, its time decides how long to wait; for the pages after the first one, this
/// does.
void Widget::watchRead()
{
    if (!mProgress.isReading() || mpSpinner->isSpinning())
        mReadEndTimer.stop();
    else
        mReadEndTimer.start(mProgress.state() == ReadProgress::State::PageRead ? NextPageTimeout
                                                                               : NextRecordTimeout);
    showActivity();
}

void Widget::finishRead()
{
    mReadEndTimer.stop();
    if (!mProgress.isReading())
        return;
    mpStore->setModeFlag(false);
    mReadIncomplete = !mProgress.finish();
    if (mReadIncomplete)
        Log(LogLevel::Warn, LogText::ReadGivenUp, mProgress.keysReceived(), mProgress.keysAnnounced(),
            mProgress.pages());
    else
        Log(LogLevel::Info, LogText::ReadFinished, mProgress.keysReceived(), mProgress.pages());
    mpMainFrame->refreshKeys();
    showActivity();
    if (!mSoftwareVersionKnown && !mReadIncomplete) // else it would be shown only half a minute later
        onPollTimeout();
}

void Widget::onTextReceived(int functionCode, const QString &text)
{
    if (isVersion(functionCode))
        onVersion(functionCode, text);
    else
        mpMainFrame->showDeviceValue(functionCode, text);
}

void Widget::onVersion(int functionCode, const QString &text)
{
    if (functionCode == code(FunctionCode::MD_FUNCTION_CODE_HARDWARE_VERSION)) {
        mpStatusFrame->setHardwareVersion(text);
        if (mIsFirstSync) {
            mIsFirstSync = false;
            mpStore->setModeFlag(true);
            Log(LogLevel::Info, LogText::StartAutoSync);
            emit sigStartSyncDevInfo();
        }
    } else {
        mSoftwareVersionKnown = true;
        mpStatusFrame->setSoftwareVersion(text);
        // Whenever the panel comes (back), the protocol thread asks for this version. In the middle of a read
        // it means that the rest of the answer is lost.
        if (mProgress.mustReadAgain()) {
            Log(LogLevel::Warn, LogText::ReadAgain);
            readConfiguration();
        }
    }
    showActivity();
}

void Widget::onHomeLayoutReceived(int layoutId)
{
    mpMainFrame->showDeviceValue(code(FunctionCode::MD_FUNCTION_CODE_HOME_LAYOUT), QString::number(layoutId));
}

void Widget::onCustomLayoutReceived(const QByteArray &payload)
{
    constexpr int longestTitle = 24;
    if (const auto record = CustomLayoutRecord::decode(payload))
        mpMainFrame->showDeviceValue(code(FunctionCode::MD_FUNCTION_CODE_CUSTOMLAYOUT_SET),
                                     record->title.simplified().left(longestTitle));
}

void Widget::onConnectState(bool connected)
{
    mConnected = connected;
    mpStatusFrame->setConnected(connected);
    if (!connected)
        mProgress.linkLost();
    showActivity();
}
