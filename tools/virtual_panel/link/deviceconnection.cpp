#include "deviceconnection.h"

#include "linkprotocol.h"

#include <algorithm>
#include <thread>
#include <utility>

DeviceConnection::DeviceConnection(Socket socket)
    : mSocket(std::move(socket))
{}

void DeviceConnection::run(const Callbacks &callbacks, std::chrono::microseconds acceptInterval)
{
    open();
    while (takeFrame(callbacks, acceptInterval)) {
    }
}

void DeviceConnection::open()
{
    const std::lock_guard lock(mSendMutex);
    mOpen = mSocket.sendValue(std::uint8_t{1});
}

void DeviceConnection::send(const QByteArray &report)
{
    const QByteArray frame =
        QByteArray(1, PanelLink::Report) + report.leftJustified(PanelLink::ReportSize, '\0', true);
    const std::lock_guard lock(mSendMutex);
    if (mOpen)
        mSocket.sendAll(frame.constData(), static_cast<std::size_t>(frame.size()));
}

bool DeviceConnection::takeFrame(const Callbacks &callbacks, std::chrono::microseconds acceptInterval)
{
    char kind = 0;
    if (!mSocket.receiveAll(&kind, 1))
        return false;
    if (kind == PanelLink::Write)
        return takeWrite(callbacks, acceptInterval);
    std::uint32_t count = 0;
    if (kind != PanelLink::Lost || !mSocket.receiveValue(count))
        return false;
    callbacks.lost(static_cast<int>(count));
    return true;
}

bool DeviceConnection::takeWrite(const Callbacks &callbacks, std::chrono::microseconds acceptInterval)
{
    std::uint64_t written = 0;
    std::string bytes;
    if (!mSocket.receiveValue(written) || !mSocket.receiveText(bytes))
        return false;
    std::this_thread::sleep_until(mNextAccept);
    mNextAccept = std::max(mNextAccept, std::chrono::steady_clock::now()) + acceptInterval;
    callbacks.report(QByteArray::fromStdString(bytes),
                     std::chrono::nanoseconds(static_cast<std::int64_t>(written)));
    const std::lock_guard lock(mSendMutex);
    return mSocket.sendAll(&PanelLink::Taken, 1);
}
