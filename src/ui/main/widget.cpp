#include "widget.h"

#include "backups.h"
#include "base/iframeworkcontext.h"
#include "base/language.h"
#include "base/log.h"
#include "base/paths.h"
#include "logtext.h"
#include "mainframe.h"
#include "model/ifunctionmanager.h"
#include "statusframe.h"
#include "ui_common/messagebox.h"
#include "waitingspinnerwidget.h"

using vorlindesk::Log;
using vorlindesk::LogLevel;
using vorlindesk::TextId;
using vorlinmodel::RequestKind;

namespace {

// All in ms.
constexpr int SyncStartedInterval = 3000;
constexpr int ReadShowTime = 100000;

constexpr int VersionArgument = 10; // what the requests carry in their value; the panel is not sent it
constexpr int ReadArgument = 60;

constexpr QSize TimeoutBoxSize(200, 100);

} // namespace

void Widget::slotTimerSyncOut()
{
    if (mpMainFrame->isTransferInProgress())
        return;
    // Without a panel the question is asked over and over, but said only once.
    if (!mAskedForVersion || mConnected || !mIsFirstSync)
        Log(LogLevel::Info, LogText::FirstSync, mIsFirstSync ? 1 : 0);
    if (mIsFirstSync) {
        mAskedForVersion = true;
        mContext.sendRequest(RequestKind::MD_FUNCTION_CODE_HARDWARE_VERSION, VersionArgument);
        return;
    }
    mSyncTimer.stop();
    Log(LogLevel::Info, LogText::SyncDevInfo);
    if (!mProgress.isReading()) // the person may have asked for it meanwhile
        readConfiguration();
}

void Widget::readConfiguration()
{
    Log(LogLevel::Info, LogText::ReadRequested);
    if (areFilesInUse()) {
        mReadWhenReleased = true;
        return;
    }
    mReadEndTimer.stop();
    mReadIncomplete = false;
    beginEditorRead();
    mReceivedKeys.clear();
    mProgress.begin();
    mpStore->setModeFlag(true);
    mContext.showWaitingDialog(static_cast<int>(RequestKind::MD_FUNCTION_CODE_READ_CONFIGFILE), ReadShowTime);
    mContext.sendRequest(RequestKind::MD_FUNCTION_CODE_READ_CONFIGFILE, ReadArgument);
    showActivity();
}

void Widget::slotSyncDevInfo()
{
    mSyncTimer.setInterval(SyncStartedInterval);
    if (QDir(vorlindesk::Paths::devConfigFolder()).exists())
        return;
    vorlindesk::Paths::createPath(vorlindesk::Paths::devConfigFolder());
    vorlindesk::Paths::createPath(vorlindesk::Paths::imageFolder());
}

void Widget::onPollTimeout()
{
    // The next page of a read may still be on its way when the mode flag is clear already.
    if (mIsFirstSync || mpStore->getModeFlag() || mProgress.isReading() ||
        mpMainFrame->isTransferInProgress())
        return;
    mContext.sendRequest(RequestKind::MD_FUNCTION_CODE_SOFTWARE_VERSION, VersionArgument);
}

void Widget::slotDealProtocolSendResult(int nResult)
{
    Log(LogLevel::Debug, LogText::ProtocolSendResult, nResult);
    mContext.hideWaitingDialog();
    watchRead();
}

void Widget::slotUpdateWaitingDialogTime(int nTime)
{
    mpSpinner->updateShowTime(nTime);
}

void Widget::slogDealRequestId(int nRequestId)
{
    const auto &language = *mContext.languageManager();
    QString text;
    switch (static_cast<RequestKind>(nRequestId)) {
    case RequestKind::MD_FUNCTION_CODE_CONFIGFILE:
        text = language.Text(TextId::ImportFailed) + QLatin1Char('!');
        break;
    case RequestKind::MD_FUNCTION_CODE_KEY_ATTRIBUTE:
        text = language.Text(TextId::ImportVideoFailed) + QLatin1Char('!');
        break;
    case RequestKind::MD_FUNCTION_CODE_READ_CONFIGFILE:
        text = language.Text(TextId::ReadFailed) + QLatin1Char('!');
        mpStore->setModeFlag(false);
        finishRead();
        break;
    default:
        break;
    }
    MessageBox::warn(this, text, TimeoutBoxSize);
}

void Widget::slotExecCommand(int nFid, const QString &strCmd)
{
    mHostActions.execute(nFid, strCmd);
}

void Widget::showActivity()
{
    using Activity = StatusFrame::Activity;
    const bool reading = mProgress.isReading();
    mpStatusFrame->setReading(reading);
    mpMainFrame->setReading(reading || mEditorReads);
    if (!mConnected)
        mpStatusFrame->showActivity(Activity::Looking);
    else if (reading)
        mpStatusFrame->showActivity(Activity::Reading, mProgress.keysReceived(), mProgress.keysAnnounced());
    else
        mpStatusFrame->showActivity(mReadIncomplete ? Activity::ReadIncomplete : Activity::Connected);
}
