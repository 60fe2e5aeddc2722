/// The main window.
#pragma once

#include "base/handover.h"
#include "hostactions.h"
#include "model/keyid.h"
#include "platform/desktop.h"
#include "readprogress.h"
#include "receiveddata.h"
#include "receiveworkers.h"

#include <QTimer>
#include <QVector>
#include <QWidget>
#include <memory>

class FuncTabFrame;
class GalleryFrame;
class MainFrame;
class StatusFrame;
class WaitingSpinnerWidget;
struct EditorContext;

namespace vorlindesk {
class IFrameworkContext;
}
namespace vorlinmodel {
class IFunctionManager;
class IProtocolThread;
} // namespace vorlinmodel

/// Stands between the panel and what the person sees: takes what the protocol thread reports, and keeps the
/// model in step with the panel. @p context must outlive it; the protocol thread must have ended before it is
/// destroyed.
class Widget : public QWidget, private IReceivedData
{
    Q_OBJECT
public:
    explicit Widget(vorlindesk::IFrameworkContext &context,
                    vorlindesk::IDesktop &desktop = vorlindesk::systemDesktop(), QWidget *parent = nullptr);
    ~Widget() override;

    bool isReady() const { return mReady; } ///< false when a step of the set-up failed, which is logged

    /// Asks the panel for its whole configuration, under the waiting dialog.
    void readConfiguration();

signals:
    void sigStartSyncDevInfo();
    void sigUpdateWaitingDialogTime(int nTime); ///< ms

public slots:
    /// @p recvData is needed only during the call.
    void slotDealRecvData(const quint8 *recvData, int nBufferLen);
    void slotDealProtocolSendResult(int nResult);
    void slogDealRequestId(int nRequestId); ///< the waiting dialog's time ran out
    void slotSyncDevInfo();
    void slotTimerSyncOut();
    void slotExecCommand(int nFid, const QString &strCmd);
    void slotUpdateWaitingDialogTime(int nTime); ///< ms

protected:
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    bool setUp();
    bool setupStatusFrame();
    bool setupIconListFrame();
    bool setupFunctionTabFrame();
    void setupSpinner();
    bool setupMainFrame();
    void layOutFrames();
    void connectFrames();
    void restoreState();
    void saveAll();
    void connectProtocolThread(vorlinmodel::IProtocolThread &thread);
    void connectTimers();

    void onPageReceived(const ReceivedPage &page) override;
    void onRecordReceived(int total, int received) override;
    void onConfigurationComplete() override;
    void onTextReceived(int code, const QString &text) override;
    void onHomeLayoutReceived(int layoutId) override;
    void onCustomLayoutReceived(const QByteArray &payload) override;

    void onConnectState(bool connected);
    void onPanelCame();
    void onVersion(int code, const QString &text);
    void onPollTimeout();
    bool areFilesInUse() const;
    bool mustWait(int functionCode);
    void onFilesReleased();
    void watchRead();
    void onReadEndTimeout();
    void finishRead();
    void beginEditorRead();
    void onReadMessageHandled();
    void endEditorRead();
    void endReadNow();
    void showActivity();
    void retranslate();

    vorlindesk::IFrameworkContext &mContext;
    vorlinmodel::IFunctionManager *mpStore;
    vorlindesk::IDesktop &mDesktop;
    HostActions mHostActions;
    std::unique_ptr<EditorContext> mpEditor; ///< outlives the main frame
    StatusFrame *mpStatusFrame = nullptr;
    GalleryFrame *mpIconListFrame = nullptr;
    FuncTabFrame *mpFuncTabFrame = nullptr;
    QWidget *mpLeftColumn = nullptr;
    WaitingSpinnerWidget *mpSpinner = nullptr;
    MainFrame *mpMainFrame = nullptr;
    QTimer mSyncTimer{this};
    QTimer mPollTimer{this};
    QTimer mReadEndTimer{this}; ///< runs out when no more of the configuration comes
    bool mReady = false;
    bool mIsFirstSync = true;
    bool mAskedForVersion = false;
    bool mConnected = false;
    bool mWasConnected = false; ///< before the panel was last seen to go
    bool mSoftwareVersionKnown = false;
    bool mReadIncomplete = false;
    bool mReadWhole = false;        ///< the panel sent all it has; not only what it chose to send
    bool mReadWhenReleased = false; ///< see areFilesInUse()
    bool mAllSaved = false;
    ReadProgress mProgress;
    bool mEditorReads = false;                    ///< between the editor's beginRead() and endRead()
    int mReadMessages = 0;                        ///< of a read, that workers have not finished yet
    QVector<vorlinmodel::key_id_t> mReceivedKeys; ///< of the pages since the read began
    vorlindesk::HandOver mHandOver;
    std::unique_ptr<ReceivedDataHandler> mpReceivedData;
    ReceiveWorkers mWorkers;
};

/// Width of the column with menu and gallery in a window of @p windowWidth pixels.
int leftColumnWidth(int windowWidth);
