#include "panelserver.h"

#include "linkprotocol.h"

#include <utility>
#include <vector>

using namespace std::chrono_literals;

PanelServer::PanelServer(const LinkOptions &options)
    : mOptions(options)
    , mSender(options.reportInterval, [this](const QByteArray &report) { deliver(report); })
{
    mModel.setChangeCallback([this] { ++mRevision; });
}

PanelServer::~PanelServer()
{
    if (mAcceptThread.joinable()) {
        mListener.stop();
        mAcceptThread.join();
    }
    {
        const std::lock_guard lock(mRestartMutex);
        mStop = true;
    }
    mRestartWake.notify_one();
    if (mRestartThread.joinable())
        mRestartThread.join();
    mSender.clear();
    closeConnections();
    for (const auto &client : mClients)
        client->thread.join();
}

bool PanelServer::start()
{
    if (!mListener.listenLocal(mOptions.port))
        return false;
    mAcceptThread = std::thread([this] { acceptLoop(); });
    mRestartThread = std::thread([this] { restartLoop(); });
    return true;
}

void PanelServer::withModel(const std::function<void(PanelModel &)> &call)
{
    const std::lock_guard lock(mModelMutex);
    call(mModel);
    sendOutgoing();
}

bool PanelServer::pressKey(int key)
{
    bool pressed = false;
    if (mPlugged)
        withModel([&](PanelModel &model) { pressed = model.pressKey(key); });
    return pressed;
}

void PanelServer::unplug()
{
    mPlugged = false;
    {
        const std::lock_guard lock(mModelMutex);
        mModel.resetLink();
        mModel.noteEvent(QStringLiteral("unplugged"));
    }
    mSender.clear();
    closeConnections();
}

void PanelServer::plug()
{
    const std::lock_guard lock(mModelMutex);
    mPlugged = true;
    mModel.noteEvent(QStringLiteral("plugged in"));
}

std::chrono::steady_clock::time_point PanelServer::lastReport() const
{
    const std::lock_guard lock(mModelMutex);
    return mLastReport;
}

void PanelServer::acceptLoop()
{
    for (;;) {
        Socket socket = mListener.accept();
        if (!socket.isOpen())
            return;
        reapFinished();
        const std::lock_guard lock(mClientsMutex);
        mClients.push_back(std::make_unique<Client>());
        Client &client = *mClients.back();
        client.connection = std::make_shared<DeviceConnection>(std::move(socket));
        client.thread = std::thread([this, &client] {
            serve(*client.connection);
            client.connection->close();
            client.finished = true;
        });
    }
}

void PanelServer::serve(DeviceConnection &connection)
{
    char kind = 0;
    if (!connection.socket().receiveAll(&kind, 1))
        return;
    if (kind == PanelLink::List)
        sendList(connection.socket());
    else if (kind == PanelLink::Open)
        serveDevice(connection);
}

void PanelServer::sendList(Socket &socket) const
{
    const auto devices = mPlugged ? panelCollections(mOptions.paths) : std::vector<ListedDevice>();
    socket.sendValue(static_cast<std::uint8_t>(devices.size()));
    for (const ListedDevice &device : devices) {
        socket.sendText(device.path);
        for (const std::uint16_t number :
             {device.vendorId, device.productId, device.release, device.usagePage, device.usage})
            socket.sendValue(number);
        socket.sendValue(device.interfaceNumber);
        for (const std::string &text : {device.serial, device.manufacturer, device.product})
            socket.sendText(text);
    }
}

void PanelServer::serveDevice(DeviceConnection &connection)
{
    std::string path;
    if (!connection.socket().receiveText(path))
        return;
    if (path != reportPath(mOptions.paths) || !mPlugged) {
        connection.socket().sendValue(std::uint8_t{0});
        return;
    }
    forgetEarlierHost();
    connection.run(
        {[this](const QByteArray &report, std::chrono::nanoseconds written) { takeReport(report, written); },
         [this](int count) {
             takeLoss(count);
         }},
        mOptions.acceptInterval);
}

/// What a host left half said, or half heard, ends with the next one that opens the panel.
void PanelServer::forgetEarlierHost()
{
    {
        const std::lock_guard lock(mModelMutex);
        mModel.resetLink();
        mLastWritten = 0ns;
        mModel.noteEvent(QStringLiteral("opened by a host"));
    }
    mSender.clear();
}

void PanelServer::takeReport(const QByteArray &report, std::chrono::nanoseconds written)
{
    bool unplugDue = false;
    bool restartDue = false;
    {
        const std::lock_guard lock(mModelMutex);
        if (!mPlugged)
            return;
        mLastReport = std::chrono::steady_clock::now();
        const bool pauseNeeded = mModel.awaitsPausedBlock();
        mModel.receive(report);
        if (pauseNeeded)
            checkPause(mModel, written);
        mLastWritten = written;
        unplugDue = mModel.takeUnplug();
        restartDue = mModel.takeRestart();
        sendOutgoing();
    }
    if (restartDue)
        restart();
    else if (unplugDue)
        unplug();
}

void PanelServer::takeLoss(int count)
{
    const std::lock_guard lock(mModelMutex);
    mModel.noteViolation(QStringLiteral("the host lost %1 reports: it did not read them in time").arg(count));
}

/// The host's own clock tells when it wrote, so that a busy machine is not taken for a hasty host.
void PanelServer::checkPause(PanelModel &model, std::chrono::nanoseconds written)
{
    const auto pause = std::chrono::duration_cast<std::chrono::microseconds>(written - mLastWritten);
    if (pause < mOptions.blockPause)
        model.noteViolation(QStringLiteral("only %1 us after the block before").arg(pause.count()));
}

void PanelServer::deliver(const QByteArray &report)
{
    std::vector<std::shared_ptr<DeviceConnection>> connections;
    {
        const std::lock_guard lock(mClientsMutex);
        for (const auto &client : mClients)
            connections.push_back(client->connection);
    }
    for (const auto &connection : connections)
        connection->send(report);
}

void PanelServer::sendOutgoing()
{
    const QList<QByteArray> keyEvents = mModel.takeKeyEvents();
    const QList<QByteArray> others = mModel.takeOutgoing();
    if (!mPlugged)
        return;
    mSender.pushUrgent(keyEvents);
    mSender.push(others);
}

void PanelServer::restart()
{
    unplug();
    {
        const std::lock_guard lock(mRestartMutex);
        mRestartDue = true;
    }
    mRestartWake.notify_one();
}

void PanelServer::restartLoop()
{
    std::unique_lock lock(mRestartMutex);
    for (;;) {
        mRestartWake.wait(lock, [this] { return mStop || mRestartDue; });
        if (mRestartWake.wait_for(lock, mOptions.restartTime, [this] { return mStop; }))
            return;
        mRestartDue = false;
        lock.unlock();
        plug();
        lock.lock();
    }
}

void PanelServer::closeConnections()
{
    const std::lock_guard lock(mClientsMutex);
    for (const auto &client : mClients)
        client->connection->close();
}

void PanelServer::reapFinished()
{
    std::list<std::unique_ptr<Client>> finished;
    {
        const std::lock_guard lock(mClientsMutex);
        for (auto client = mClients.begin(); client != mClients.end();) {
            const auto next = std::next(client);
            if ((*client)->finished)
                finished.splice(finished.end(), mClients, client);
            client = next;
        }
    }
    for (const auto &client : finished)
        client->thread.join();
}
