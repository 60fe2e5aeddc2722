/// Blocking sockets on the local machine. Without Qt.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <string>

/// One connection. Sending and receiving may happen on two threads; shutdown() on any.
class Socket
{
public:
    using Handle = std::intptr_t;
    static constexpr Handle None = -1;

    Socket() = default;
    explicit Socket(Handle handle)
        : mHandle(handle)
    {}
    Socket(Socket &&other) noexcept;
    Socket &operator=(Socket &&other) noexcept;
    ~Socket();

    /// Connects to a port of this machine; not isOpen() when nobody listens, which shows at once.
    static Socket connectLocal(std::uint16_t port);

    bool isOpen() const { return mHandle != None; }
    Handle handle() const { return mHandle; }
    bool sendAll(const void *bytes, std::size_t size);
    bool receiveAll(void *bytes, std::size_t size);
    /// Ends both directions: calls that wait on other threads return false.
    void shutdown();

    template <typename Value>
    bool sendValue(Value value); ///< unsigned, little-endian
    template <typename Value>
    bool receiveValue(Value &value);
    bool sendText(const std::string &text); ///< u16 length, bytes
    bool receiveText(std::string &text);

private:
    Handle mHandle = None;
};

/// A listening port of this machine.
class ListenSocket
{
public:
    /// @param port 0 takes any. @return whether it is listening.
    bool listenLocal(std::uint16_t port);
    std::uint16_t port() const { return mPort; }
    /// Waits for a connection; a closed socket once stop() was called.
    Socket accept();
    /// Any thread.
    void stop();

private:
    Socket mSocket;
    std::uint16_t mPort = 0;
    std::atomic<bool> mStopped = false;
};

template <typename Value>
bool Socket::sendValue(Value value)
{
    unsigned char bytes[sizeof(Value)];
    for (unsigned char &byte : bytes) {
        byte = static_cast<unsigned char>(value & 0xFF);
        value = static_cast<Value>(sizeof(Value) > 1 ? value >> (sizeof(Value) > 1 ? 8 : 0) : 0);
    }
    return sendAll(bytes, sizeof bytes);
}

template <typename Value>
bool Socket::receiveValue(Value &value)
{
    unsigned char bytes[sizeof(Value)];
    if (!receiveAll(bytes, sizeof bytes))
        return false;
    value = 0;
    for (std::size_t i = 0; i < sizeof bytes; ++i)
        value = static_cast<Value>(value | static_cast<Value>(static_cast<Value>(bytes[i]) << (8 * i)));
    return true;
}
