#include "widget.h"

#include "base/iframeworkcontext.h"
#include "base/language.h"
#include "base/log.h"
#include "base/paths.h"
#include "base/systemsettings.h"
#include "logtext.h"
#include "mainframe.h"
#include "ui_common/messagebox.h"
#include "model/ifunctionmanager.h"
#include "protocol/iprotocolthread.h"
#include "statusframe.h"
#include "ui_common/style.h"
#include "waitingspinnerwidget.h"

#include <QVBoxLayout>

using vorlindesk::Log;
using vorlindesk::LogLevel;
using vorlindesk::TextId;
using vorlinmodel::IProtocolThread;
using vorlinmodel::RequestKind;

namespace {

// All in ms.
constexpr int AskVersionInterval = 2000;
constexpr int SyncStartedInterval = 3000;
constexpr int PollInterval = 30000;
constexpr int ReadShowTime = 100000;

constexpr int VersionArgument = 10; // what the requests carry in their value; the panel is not sent it
constexpr int ReadArgument = 60;

constexpr QSize DefaultSize(1024, 640);
constexpr QSize TimeoutBoxSize(200, 100);

} // namespace

Widget::Widget(vorlindesk::IFrameworkContext &context, vorlindesk::IDesktop &desktop, QWidget *parent)
    : QWidget(parent)
    , mContext(context)
    , mpStore(context.functionManager())
    , mHostActions(desktop)
{
    setObjectName(QStringLiteral("mainwindow"));
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QString::fromLatin1(Style::Window) + QLatin1Char(';') + context.fontStyle());
    setWindowTitle(QCoreApplication::applicationName());
    resize(DefaultSize);
    mReady = setUp();
}

Widget::~Widget()
{
    mWorkers.cancel(); // they use the handler, the mailbox and the store
}

bool Widget::setUp()
{
    if (!setupStatusFrame()) {
        Log(LogLevel::Error, LogText::SetupStatusFrameError);
        return false;
    }
    setupSpinner();
    if (!setupMainFrame()) {
        Log(LogLevel::Error, LogText::SetupMainFrameError);
        return false;
    }
    layOutFrames();
    connectTimers();
    IReceivedData &receiver = *this;
    mpReceivedData =
        std::make_unique<ReceivedDataHandler>(*mpStore, mHandOver, receiver, ReceivedDataHandler::Options());
    if (IProtocolThread *thread = mContext.protocolThread())
        connectProtocolThread(*thread);
    connect(mContext.languageManager(), &vorlindesk::LanguageManager::sigLanguageChanged, this,
            &Widget::retranslate);
    if (vorlindesk::SystemSettings::autoSyncEnable())
        mSyncTimer.start();
    return true;
}

bool Widget::setupStatusFrame()
{
    const auto *language = mContext.languageManager();
    if (!language)
        return false;
    mpStatusFrame = new StatusFrame(*language, this);
    connect(mpStatusFrame, &StatusFrame::sigReadDeviceConfig, this, &Widget::readConfiguration);
    return true;
}

void Widget::setupSpinner()
{
    mpSpinner = new WaitingSpinnerWidget(this);
    connect(mpSpinner, &WaitingSpinnerWidget::sigRequestId, this, &Widget::slogDealRequestId);
    connect(&mContext, &vorlindesk::IFrameworkContext::sigShowWaitingDialog, mpSpinner,
            &WaitingSpinnerWidget::start);
    connect(&mContext, &vorlindesk::IFrameworkContext::sigHideWaitingDialog, mpSpinner,
            &WaitingSpinnerWidget::stop);
}

bool Widget::setupMainFrame()
{
    if (!mpStore)
        return false;
    mpMainFrame = new MainFrame(mContext, *mpStore, this);
    return true;
}

void Widget::layOutFrames()
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(mpStatusFrame, 1);
    layout->addWidget(mpMainFrame, 9);
}

/// The thread's signals arrive on it. They are taken there and handed over: a queued connection would do,
/// too, but the bytes of a message are gone by the time that it is delivered.
void Widget::connectProtocolThread(IProtocolThread &thread)
{
    connect(
        &thread, &IProtocolThread::sigDealRecvData, this,
        [this](const quint8 *recvData, qint32 nBufferLen) {
            const QByteArray bytes(reinterpret_cast<const char *>(recvData), qMax(0, nBufferLen));
            mHandOver.post([this, bytes] {
                slotDealRecvData(reinterpret_cast<const quint8 *>(bytes.constData()), bytes.size());
            });
        },
        Qt::DirectConnection);
    connect(
        &thread, &IProtocolThread::sigUsbConnectState, this,
        [this](bool connected) { mHandOver.post([this, connected] { onConnectState(connected); }); },
        Qt::DirectConnection);
    connect(
        &thread, &IProtocolThread::sigSendVideoFinished, this,
        [this](qint32 result) { mHandOver.post([this, result] { slotDealProtocolSendResult(result); }); },
        Qt::DirectConnection);
    connect(
        &thread, &IProtocolThread::sigDealExecCommand, this,
        [this](qint32 fid, const QString &command) {
            mHandOver.post([this, fid, command] { slotExecCommand(fid, command); });
        },
        Qt::DirectConnection);
}

void Widget::connectTimers()
{
    connect(this, &Widget::sigUpdateWaitingDialogTime, this, &Widget::slotUpdateWaitingDialogTime);
    connect(this, &Widget::sigStartSyncDevInfo, this, &Widget::slotSyncDevInfo);
    mSyncTimer.setObjectName(QStringLiteral("syncTimer"));
    mPollTimer.setObjectName(QStringLiteral("pollTimer"));
    mReadEndTimer.setObjectName(QStringLiteral("readEndTimer"));
    connect(&mSyncTimer, &QTimer::timeout, this, &Widget::slotTimerSyncOut);
    mSyncTimer.setInterval(AskVersionInterval);
    connect(&mPollTimer, &QTimer::timeout, this, &Widget::onPollTimeout);
    mPollTimer.start(PollInterval);
    connect(&mReadEndTimer, &QTimer::timeout, this, &Widget::finishRead);
    mReadEndTimer.setSingleShot(true);
}

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
    mReadEndTimer.stop();
    mReadIncomplete = false;
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
    using Activity = MainFrame::Activity;
    mpStatusFrame->setReading(mProgress.isReading());
    if (!mConnected)
        mpMainFrame->showActivity(Activity::Looking);
    else if (mProgress.isReading())
        mpMainFrame->showActivity(Activity::Reading, mProgress.keysReceived(), mProgress.keysAnnounced());
    else
        mpMainFrame->showActivity(mReadIncomplete ? Activity::ReadIncomplete : Activity::Connected);
}

void Widget::retranslate()
{
    mpStatusFrame->retranslate();
    mpMainFrame->retranslate();
}

void Widget::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    if (mpSpinner)
        mpSpinner->centreOnParent();
}
