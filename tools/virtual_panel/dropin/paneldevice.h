/// An opened virtual panel, as hidapi's handle sees it.
#pragma once

#include "socket.h"

#include "linkprotocol.h"

#include <array>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

/// A thread of its own takes the panel's reports into a ring of the size that Linux has for a device; what
/// comes while it is full is dropped, and the panel is told. One thread may write while another reads.
class PanelDevice
{
public:
    static constexpr std::size_t RingSize = 63;

    /// @return nothing when no panel answers to @p path.
    static std::unique_ptr<PanelDevice> open(const std::string &path);
    ~PanelDevice();

    /// @return bytes written, or -1 when the panel is gone.
    int write(const unsigned char *data, std::size_t length);
    /// @param milliseconds below 0 waits without end. @return bytes read, 0 for a time-out, -1 when the panel
    /// is gone.
    int read(unsigned char *data, std::size_t length, int milliseconds);

    PanelDevice(const PanelDevice &) = delete;
    PanelDevice &operator=(const PanelDevice &) = delete;

private:
    using Report = std::array<unsigned char, PanelLink::ReportSize>;

    explicit PanelDevice(Socket socket);
    void receiveLoop();
    bool receiveFrame();
    void store(const Report &report);

    Socket mSocket;
    std::mutex mSendMutex;
    std::mutex mMutex;
    std::condition_variable mChanged;
    std::deque<Report> mRing;
    std::uint64_t mTaken = 0; ///< writes that the panel has taken
    std::uint64_t mWritten = 0;
    bool mGone = false;
    std::thread mThread;
};

/// Where the panel listens: VIRTUAL_PANEL_PORT or the default.
std::uint16_t panelPort();
