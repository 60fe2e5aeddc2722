// The part of the main window that takes what the panel sends.
#include "backups.h"
#include "base/iframeworkcontext.h"
#include "base/log.h"
#include "logtext.h"
#include "mainframe.h"
#include "model/ifunctionmanager.h"
#include "statusframe.h"
#include "ui_editor/editorcontext.h"
#include "ui_editor/functionconfigwidget.h"
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
    if (mustWait(functionCode))
        return;
    if (functionCode == code(FunctionCode::MD_FUNCTION_CODE_READ_CONFIGFILE)) {
        message.firstPage = mProgress.takeFirstPage();
        beginEditorRead(); // a panel may also send a page by itself
    } else if (isVersion(functionCode)) {
        onConnectState(true);
    } else if (functionCode == code(FunctionCode::MD_FUNCTION_CODE_HOME_LAYOUT)) {
        message.answersHomeSetting = mpEditor->layouts.takeHomeReply();
    }
    if (!mEditorReads) {
        mWorkers.start([this, message] { mpReceivedData->handle(message); });
        return;
    }
    ++mReadMessages;
    mWorkers.start([this, message] {
        mpReceivedData->handle(message);
        mHandOver.post([this] { onReadMessageHandled(); });
    });
}

/// A read would change what is backed up or replaced, and a saving that is under way what is read: that one
/// takes seconds on a slow disk, for which the window does not wait. onFilesReleased() tells of the end.
bool Widget::areFilesInUse() const
{
    return mpMainFrame->backups().isHolding() || (!mEditorReads && mpEditor->edits.isSaving());
}

/// Part of the configuration that a panel sends by itself while the files are in use: it is dropped, and all
/// of it read afterwards.
bool Widget::mustWait(int functionCode)
{
    const bool isPage = functionCode == code(FunctionCode::MD_FUNCTION_CODE_READ_CONFIGFILE);
    const bool isLayout = functionCode == code(FunctionCode::MD_FUNCTION_CODE_CUSTOMLAYOUT_SET);
    const bool waits = isPage ? areFilesInUse() : isLayout && mpMainFrame->backups().isHolding();
    if (!waits)
        return false;
    mReadWhenReleased = true;
    return true;
}

void Widget::onFilesReleased()
{
    if (std::exchange(mReadWhenReleased, false))
        readConfiguration();
}

/// Before the store is changed: the editor keeps what the panel has not taken.
void Widget::beginEditorRead()
{
    if (std::exchange(mEditorReads, true))
        return;
    mReadWhole = false;
    mReceivedKeys.clear();
    mpEditor->edits.beginRead();
    mpMainFrame->setReading(true);
}

void Widget::onReadMessageHandled()
{
    --mReadMessages;
    endEditorRead();
}

/// When the read is over, and nothing that belongs to it can change the store any more.
void Widget::endEditorRead()
{
    if (!mEditorReads || mReadMessages > 0 || mProgress.isReading())
        return;
    mEditorReads = false;
    mpEditor->edits.endRead(mReadWhole, mReceivedKeys);
    mpMainFrame->editor().refreshKeys();
    mpMainFrame->setReading(false);
}

/// What has come so far stays; messages that no worker has begun with are dropped.
void Widget::endReadNow()
{
    mWorkers.cancel();
    mReadMessages = 0;
    mReadWhole = false;
    mProgress.finish();
    endEditorRead();
}

void Widget::onPageReceived(const ReceivedPage &page)
{
    mProgress.pageReceived(page.keyCount);
    mReceivedKeys += page.keys;
    FunctionConfigWidget &editor = mpMainFrame->editor();
    if (page.first)
        editor.showDevicePage(page.layoutId, page.pageId);
    else if (page.layoutId == editor.curLayoutId() && page.pageId == editor.curPageId())
        editor.refreshKeys();
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
    FunctionConfigWidget &editor = mpMainFrame->editor();
    Log(LogLevel::Info, LogText::RefreshAll, editor.curLayoutId(), editor.curPageId());
    editor.refreshKeys();
    watchRead();
}

/// While the waiting dialog is up, its time decides how long to wait; for the pages after the first one, this
/// does.
void Widget::watchRead()
{
    if (!mProgress.isReading() || mpSpinner->isSpinning())
        mReadEndTimer.stop();
    else if (!mConnected || mProgress.state() == ReadProgress::State::PageRead)
        mReadEndTimer.start(NextPageTimeout);
    else
        mReadEndTimer.start(NextRecordTimeout);
    showActivity();
}

void Widget::onReadEndTimeout()
{
    if (mReadMessages > 0) // something has come, and is still being decoded
        watchRead();
    else
        finishRead();
}

void Widget::finishRead()
{
    mReadEndTimer.stop();
    if (!mProgress.isReading())
        return;
    mpStore->setModeFlag(false);
    mReadIncomplete = !mProgress.finish();
    mReadWhole = !mReadIncomplete && mProgress.wasAskedFor() && !mProgress.mustReadAgain();
    if (mReadIncomplete)
        Log(LogLevel::Warn, LogText::ReadGivenUp, mProgress.keysReceived(), mProgress.keysAnnounced(),
            mProgress.pages());
    else
        Log(LogLevel::Info, LogText::ReadFinished, mProgress.keysReceived(), mProgress.pages());
    endEditorRead();
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
    mpMainFrame->showDeviceValue(functionCode, text);
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
    const auto record = CustomLayoutRecord::decode(payload);
    if (!record)
        return;
    if (mpMainFrame->backups().isHolding()) { // it came before, and took its time on the way
        mReadWhenReleased = true;
        return;
    }
    mpEditor->layouts.takeFromPanel(*record);
    mpMainFrame->showDeviceValue(code(FunctionCode::MD_FUNCTION_CODE_CUSTOMLAYOUT_SET),
                                 record->title.simplified().left(longestTitle));
}

void Widget::onConnectState(bool connected)
{
    const bool came = connected && !mConnected;
    const bool went = !connected && mConnected;
    mConnected = connected;
    mpStatusFrame->setConnected(connected);
    mpMainFrame->setConnected(connected);
    if (came)
        onPanelCame();
    if (!connected)
        mProgress.linkLost();
    if (went) {
        mWasConnected = true;
        mpEditor->layouts.linkLost();
        if (mProgress.isReading()) { // no more will come
            mContext.hideWaitingDialog();
            watchRead();
        }
    }
    showActivity();
}

/// The requests go out before any that reads the panel, since they are queued before it.
void Widget::onPanelCame()
{
    mpEditor->layouts.sendPending(); // a panel has to know a layout before its keys
    mpEditor->edits.sendPending();
    if (!mWasConnected)
        return;
    // It shows whatever it shows after its start.
    const FunctionConfigWidget &editor = mpMainFrame->editor();
    mContext.sendRequest(vorlinmodel::RequestKind::MD_FUNCTION_CODE_SELECT_PAGE, editor.curLayoutId(),
                         editor.curPageId());
}
