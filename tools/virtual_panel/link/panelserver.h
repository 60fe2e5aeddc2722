/// The virtual panel as a device: lets hosts find, open, read and write a PanelModel through the drop-in
/// hidapi.
#pragma once

#include "deviceconnection.h"
#include "devicelist.h"
#include "panel_model/panelmodel.h"
#include "reportsender.h"
#include "socket.h"

#include <atomic>
#include <chrono>
#include <functional>
#include <list>
#include <memory>
#include <mutex>
#include <thread>

struct LinkOptions
{
    std::uint16_t port = 0; ///< 0: any
    PathStyle paths = ownPathStyle();
    std::chrono::microseconds reportInterval{1000}; ///< between reports to the host
    std::chrono::microseconds acceptInterval{0};    ///< between reports of the host
    std::chrono::microseconds blockPause{1900};  ///< shortest between blocks of a message that needs pauses
    std::chrono::milliseconds restartTime{1000}; ///< unplugged after an upgrade
};

/// Owns its threads; all functions may be called from any thread.
class PanelServer
{
public:
    explicit PanelServer(const LinkOptions &options);
    ~PanelServer();

    /// @return false when the port is taken.
    bool start();
    std::uint16_t port() const { return mListener.port(); }

    /// Runs @p call with the model, while nobody else uses it, and sends what the panel then wants to send.
    void withModel(const std::function<void(PanelModel &)> &call);

    /// Presses a key of the page in view. @return false when the panel is unplugged or has no such key.
    bool pressKey(int key);

    /// Closes every connection, and is not listed until plug().
    void unplug();
    void plug();
    bool isPlugged() const { return mPlugged; }

    /// Changes with every change of the model or the plug.
    int revision() const { return mRevision; }
    int waitingReports() const { return mSender.waiting(); }
    ReportSender::Burst lastBurst() const { return mSender.lastBurst(); }
    /// When the host last wrote a report.
    std::chrono::steady_clock::time_point lastReport() const;

    PanelServer(const PanelServer &) = delete;
    PanelServer &operator=(const PanelServer &) = delete;

private:
    struct Client
    {
        std::shared_ptr<DeviceConnection> connection;
        std::thread thread;
        std::atomic<bool> finished = false;
    };

    void acceptLoop();
    void serve(DeviceConnection &connection);
    void sendList(Socket &socket) const;
    void serveDevice(DeviceConnection &connection);
    void forgetEarlierHost();
    void takeReport(const QByteArray &report, std::chrono::nanoseconds written);
    void takeLoss(int count);
    void checkPause(PanelModel &model, std::chrono::nanoseconds written);
    void deliver(const QByteArray &report);
    void sendOutgoing();
    void restart();
    void restartLoop();
    void closeConnections();
    void reapFinished();

    const LinkOptions mOptions;
    ListenSocket mListener;
    std::atomic<bool> mPlugged = true;
    std::atomic<int> mRevision = 0;

    mutable std::mutex mModelMutex; ///< the model and what belongs to its reports
    PanelModel mModel;
    std::chrono::nanoseconds mLastWritten{0};
    std::chrono::steady_clock::time_point mLastReport;

    std::mutex mClientsMutex;
    std::list<std::unique_ptr<Client>> mClients;

    std::mutex mRestartMutex;
    std::condition_variable mRestartWake;
    bool mRestartDue = false;
    bool mStop = false;

    ReportSender mSender; ///< its thread uses what stands above
    std::thread mAcceptThread;
    std::thread mRestartThread;
};
