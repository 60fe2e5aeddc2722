/// One host that has opened the panel.
#pragma once

#include "socket.h"

#include <QByteArray>
#include <chrono>
#include <cstdint>
#include <functional>
#include <mutex>

class DeviceConnection
{
public:
    /// Both are called on the connection's thread.
    struct Callbacks
    {
        /// A report, and when the host wrote it by its own steady clock.
        std::function<void(const QByteArray &report, std::chrono::nanoseconds written)> report;
        /// The host's ring dropped reports.
        std::function<void(int count)> lost;
    };

    explicit DeviceConnection(Socket socket);

    /// For what comes before the panel is open; only on the connection's thread.
    Socket &socket() { return mSocket; }

    /// Tells the host that the panel is open, then takes frames until it closes or close() is called. Reports
    /// that come faster than @p acceptInterval are held back, as by a bus.
    void run(const Callbacks &callbacks, std::chrono::microseconds acceptInterval);

    /// Any thread. A report for a host that has not opened the panel, or is gone, is lost.
    void send(const QByteArray &report);
    void close() { mSocket.shutdown(); }

private:
    void open();
    bool takeFrame(const Callbacks &callbacks, std::chrono::microseconds acceptInterval);
    bool takeWrite(const Callbacks &callbacks, std::chrono::microseconds acceptInterval);

    Socket mSocket;
    std::mutex mSendMutex;
    bool mOpen = false; ///< under the mutex: no report may overtake the answer to "open"
    std::chrono::steady_clock::time_point mNextAccept;
};
