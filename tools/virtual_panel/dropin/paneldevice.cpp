#include "paneldevice.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

std::uint16_t panelPort()
{
    const char *value = std::getenv(PanelLink::PortVariable);
    const long port = value != nullptr ? std::strtol(value, nullptr, 10) : 0;
    return port > 0 && port <= 0xFFFF ? static_cast<std::uint16_t>(port) : PanelLink::DefaultPort;
}

std::unique_ptr<PanelDevice> PanelDevice::open(const std::string &path)
{
    Socket socket = Socket::connectLocal(panelPort());
    std::uint8_t opened = 0;
    if (!socket.isOpen() || !socket.sendAll(&PanelLink::Open, 1) || !socket.sendText(path) ||
        !socket.receiveValue(opened) || opened == 0)
        return nullptr;
    return std::unique_ptr<PanelDevice>(new PanelDevice(std::move(socket)));
}

PanelDevice::PanelDevice(Socket socket)
    : mSocket(std::move(socket))
    , mThread([this] { receiveLoop(); })
{}

PanelDevice::~PanelDevice()
{
    mSocket.shutdown();
    mThread.join();
}

int PanelDevice::write(const unsigned char *data, std::size_t length)
{
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    const auto written = std::chrono::duration_cast<std::chrono::nanoseconds>(now).count();
    {
        const std::lock_guard lock(mSendMutex);
        std::string frame(1, PanelLink::Write);
        for (int shift = 0; shift < 64; shift += 8)
            frame.push_back(static_cast<char>((written >> shift) & 0xFF));
        frame.push_back(static_cast<char>(length & 0xFF));
        frame.push_back(static_cast<char>((length >> 8) & 0xFF));
        frame.append(reinterpret_cast<const char *>(data), length);
        if (!mSocket.sendAll(frame.data(), frame.size()))
            return -1;
    }
    std::unique_lock lock(mMutex);
    const std::uint64_t mine = ++mWritten;
    constexpr std::chrono::seconds patience(5);
    const bool taken = mChanged.wait_for(lock, patience, [&] { return mGone || mTaken >= mine; });
    return taken && mTaken >= mine ? static_cast<int>(length) : -1;
}

int PanelDevice::read(unsigned char *data, std::size_t length, int milliseconds)
{
    std::unique_lock lock(mMutex);
    const auto ready = [this] {
        return mGone || !mRing.empty();
    };
    if (milliseconds < 0)
        mChanged.wait(lock, ready);
    else if (!mChanged.wait_for(lock, std::chrono::milliseconds(milliseconds), ready))
        return 0;
    if (mGone) // also with reports left, as on Linux
        return -1;
    const std::size_t count = std::min(length, PanelLink::ReportSize);
    std::copy_n(mRing.front().begin(), count, data);
    mRing.pop_front();
    return static_cast<int>(count);
}

void PanelDevice::receiveLoop()
{
    while (receiveFrame()) {
    }
    mSocket.shutdown(); // the panel may wait for our end: on Windows its own shutdown does not wake its
                        // receiving
    {
        const std::lock_guard lock(mMutex);
        mGone = true;
    }
    mChanged.notify_all();
}

bool PanelDevice::receiveFrame()
{
    char kind = 0;
    if (!mSocket.receiveAll(&kind, 1))
        return false;
    if (kind == PanelLink::Taken) {
        const std::lock_guard lock(mMutex);
        ++mTaken;
        mChanged.notify_all();
        return true;
    }
    Report report;
    if (kind != PanelLink::Report || !mSocket.receiveAll(report.data(), report.size()))
        return false;
    store(report);
    return true;
}

void PanelDevice::store(const Report &report)
{
    {
        const std::lock_guard lock(mMutex);
        if (mRing.size() < RingSize) {
            mRing.push_back(report);
            mChanged.notify_all();
            return;
        }
    }
    const std::lock_guard lock(mSendMutex);
    mSocket.sendAll(&PanelLink::Lost, 1);
    mSocket.sendValue(std::uint32_t{1});
}
