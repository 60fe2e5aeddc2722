// The part of the main window that puts it together.
#include "backups.h"
#include "base/iframeworkcontext.h"
#include "base/language.h"
#include "base/log.h"
#include "base/systemsettings.h"
#include "functabframe.h"
#include "logtext.h"
#include "mainframe.h"
#include "protocol/iprotocolthread.h"
#include "statusframe.h"
#include "ui_common/messagebox.h"
#include "ui_common/style.h"
#include "ui_editor/editorcontext.h"
#include "ui_editor/functionconfigwidget.h"
#include "ui_editor/galleryframe.h"
#include "upgradedialog.h"
#include "waitingspinnerwidget.h"
#include "widget.h"
#include "windowstate.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QVBoxLayout>

using vorlindesk::Log;
using vorlindesk::LogLevel;
using vorlinmodel::IProtocolThread;

namespace {

// All in ms.
constexpr int AskVersionInterval = 2000;
constexpr int PollInterval = 30000;

constexpr QSize DefaultSize(1024, 640);

} // namespace

int leftColumnWidth(int windowWidth)
{
    return windowWidth / 7 + 50;
}

Widget::Widget(vorlindesk::IFrameworkContext &context, vorlindesk::IDesktop &desktop, QWidget *parent)
    : QWidget(parent)
    , mContext(context)
    , mpStore(context.functionManager())
    , mDesktop(desktop)
    , mHostActions(desktop)
{
    setObjectName(QStringLiteral("mainwindow"));
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QString::fromLatin1(Style::Window) + QString::fromLatin1(Style::Menu) +
                  QString::fromLatin1(Style::ScrollBars) + QStringLiteral("* {%1}").arg(context.fontStyle()));
    setWindowTitle(QCoreApplication::applicationName());
    resize(DefaultSize);
    mReady = setUp();
}

Widget::~Widget()
{
    endReadNow();       // the workers use the handler, the mailbox and the store
    delete mpMainFrame; // its pages use the editor's context
}

bool Widget::setUp()
{
    mpLeftColumn = new QWidget(this);
    if (!setupStatusFrame()) {
        Log(LogLevel::Error, LogText::SetupStatusFrameError);
        return false;
    }
    if (!setupIconListFrame()) {
        Log(LogLevel::Error, LogText::SetupIconListFrameError);
        return false;
    }
    if (!setupFunctionTabFrame()) {
        Log(LogLevel::Error, LogText::SetupFunctionTabFrameError);
        return false;
    }
    setupSpinner();
    if (!setupMainFrame()) {
        Log(LogLevel::Error, LogText::SetupMainFrameError);
        return false;
    }
    layOutFrames();
    connectFrames();
    connectTimers();
    IReceivedData &receiver = *this;
    ReceivedDataHandler::Options options;
    options.clearCustomLayouts = [this] {
        mpEditor->layouts.clearForPanel();
    };
    mpReceivedData = std::make_unique<ReceivedDataHandler>(*mpStore, mHandOver, receiver, options);
    if (IProtocolThread *thread = mContext.protocolThread())
        connectProtocolThread(*thread);
    restoreState();
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
    return true;
}

bool Widget::setupIconListFrame()
{
    mpIconListFrame = new GalleryFrame(*mContext.languageManager(), mpLeftColumn);
    return mpIconListFrame->setup();
}

bool Widget::setupFunctionTabFrame()
{
    mpFuncTabFrame = new FuncTabFrame(*mContext.languageManager(), mpLeftColumn);
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
    mpEditor = std::make_unique<EditorContext>(mContext);
    mpMainFrame = new MainFrame(*mpEditor, mDesktop, this);
    return mpMainFrame->setup();
}

void Widget::layOutFrames()
{
    auto *left = new QVBoxLayout(mpLeftColumn);
    left->setContentsMargins(0, 0, 0, 0);
    left->setSpacing(0);
    left->addWidget(mpFuncTabFrame, 2);
    left->addWidget(mpIconListFrame, 3);
    auto *body = new QHBoxLayout;
    body->addWidget(mpLeftColumn);
    body->addWidget(mpMainFrame, 1);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(mpStatusFrame, 1);
    layout->addLayout(body, 9);
    mpFuncTabFrame->setFocus();
}

void Widget::connectFrames()
{
    connect(mpStatusFrame, &StatusFrame::sigReadDeviceConfig, this, &Widget::readConfiguration);
    connect(mpFuncTabFrame, &FuncTabFrame::sigSelected, mpMainFrame, &MainFrame::select);
    connect(mpMainFrame, &MainFrame::sigPageSelected, mpFuncTabFrame, &FuncTabFrame::showSelected);
    connect(&mpMainFrame->backups(), &Backups::sigReleased, this, &Widget::onFilesReleased);
    connect(&mpEditor->edits, &KeyEdits::sigSaved, this, &Widget::onFilesReleased);
    connect(mpMainFrame, &MainFrame::sigGalleryChanged, mpIconListFrame, &GalleryFrame::refresh);
    connect(mpIconListFrame, &GalleryFrame::sigItemChosen, this,
            [this](const QString &picture, const QString &video) {
                mpMainFrame->takeGalleryItem(picture, video);
            });
    connect(mContext.languageManager(), &vorlindesk::LanguageManager::sigLanguageChanged, this,
            &Widget::retranslate);
    // A request to end from outside, or from the session, comes without a close event.
    connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this, &Widget::saveAll);
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
    connect(&mReadEndTimer, &QTimer::timeout, this, &Widget::onReadEndTimeout);
    mReadEndTimer.setSingleShot(true);
}

void Widget::restoreState()
{
    const WindowState state = loadWindowState();
    if (!state.geometry.isEmpty())
        restoreGeometry(state.geometry); // onto a screen that is there
    mpMainFrame->editor().setKeyboardCurLayoutAndPage(state.layoutId, state.pageId, false);
}

void Widget::saveAll()
{
    if (!mReady || std::exchange(mAllSaved, true))
        return;
    endReadNow();
    mReadWhenReleased = false;
    mpMainFrame->backups().finish(); // first: a backup that has taken the place of the keys is what is saved
    const FunctionConfigWidget &editor = mpMainFrame->editor();
    saveWindowState({saveGeometry(), editor.curLayoutId(), editor.curPageId()});
    if (!mpEditor->edits.saveNow())
        Log(LogLevel::Error, LogText::KeysNotSaved);
}

void Widget::closeEvent(QCloseEvent *event)
{
    const bool leave = HIDUpgradeDialog::confirmLeave(mContext, this);
    if (!leave || (mReady && !mpMainFrame->confirmLeave())) {
        event->ignore();
        return;
    }
    saveAll();
    QWidget::closeEvent(event);
}

void Widget::retranslate()
{
    mpStatusFrame->retranslate();
    mpFuncTabFrame->retranslate();
    mpIconListFrame->retranslate();
    mpMainFrame->retranslate();
}

void Widget::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (mReady)
        mpMainFrame->backups().startAutomatic();
}

void Widget::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    if (mpLeftColumn)
        mpLeftColumn->setFixedWidth(leftColumnWidth(width()));
    if (mpSpinner)
        mpSpinner->centreOnParent();
}
