#include "socket.h"

#include "nativesocket.h"

#include <cstring>
#include <utility>

namespace {

sockaddr_in localAddress(std::uint16_t port)
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

Socket::Handle newSocket()
{
    startNetwork();
    return static_cast<Socket::Handle>(::socket(AF_INET, SOCK_STREAM, 0));
}

/// Reports are small and urgent: none may wait for another to share a packet with.
void sendAtOnce(Socket::Handle handle)
{
    const int on = 1;
    setsockopt(nativeHandle(handle), IPPROTO_TCP, TCP_NODELAY, reinterpret_cast<const char *>(&on),
               sizeof on);
}

} // namespace

Socket::Socket(Socket &&other) noexcept
    : mHandle(std::exchange(other.mHandle, None))
{}

Socket &Socket::operator=(Socket &&other) noexcept
{
    std::swap(mHandle, other.mHandle);
    return *this;
}

Socket::~Socket()
{
    if (mHandle != None)
        closeNative(mHandle);
}

Socket Socket::connectLocal(std::uint16_t port)
{
    Socket socket(newSocket());
    if (!socket.isOpen())
        return socket;
    const sockaddr_in address = localAddress(port);
    if (!connectNative(socket.mHandle, address))
        return {};
    sendAtOnce(socket.mHandle);
    return socket;
}

bool Socket::sendAll(const void *bytes, std::size_t size)
{
    const char *next = static_cast<const char *>(bytes);
    while (size > 0) {
        const auto sent =
            ::send(nativeHandle(mHandle), next, static_cast<NativeLength>(size), NativeSendFlags);
        if (sent <= 0) {
            if (sent < 0 && wasInterrupted())
                continue;
            return false;
        }
        next += sent;
        size -= static_cast<std::size_t>(sent);
    }
    return true;
}

bool Socket::receiveAll(void *bytes, std::size_t size)
{
    char *next = static_cast<char *>(bytes);
    while (size > 0) {
        const auto received = ::recv(nativeHandle(mHandle), next, static_cast<NativeLength>(size), 0);
        if (received <= 0) {
            if (received < 0 && wasInterrupted())
                continue;
            return false;
        }
        next += received;
        size -= static_cast<std::size_t>(received);
    }
    return true;
}

void Socket::shutdown()
{
    if (mHandle != None)
        ::shutdown(nativeHandle(mHandle), NativeShutdownBoth);
}

bool Socket::sendText(const std::string &text)
{
    return sendValue(static_cast<std::uint16_t>(text.size())) && sendAll(text.data(), text.size());
}

bool Socket::receiveText(std::string &text)
{
    std::uint16_t length = 0;
    if (!receiveValue(length))
        return false;
    text.resize(length);
    return receiveAll(text.data(), length);
}

bool ListenSocket::listenLocal(std::uint16_t port)
{
    mSocket = Socket(newSocket());
    if (!mSocket.isOpen())
        return false;
    const auto handle = mSocket.handle();
    reuseAddress(handle);
    sockaddr_in address = localAddress(port);
    constexpr int backlog = 16;
    socklen_t size = sizeof address;
    auto *native = reinterpret_cast<sockaddr *>(&address);
    if (::bind(nativeHandle(handle), native, size) != 0 || ::listen(nativeHandle(handle), backlog) != 0 ||
        ::getsockname(nativeHandle(handle), native, &size) != 0)
        return false;
    mPort = ntohs(address.sin_port);
    return true;
}

Socket ListenSocket::accept()
{
    Socket connection(
        static_cast<Socket::Handle>(::accept(nativeHandle(mSocket.handle()), nullptr, nullptr)));
    if (mStopped)
        return {};
    if (connection.isOpen())
        sendAtOnce(connection.handle());
    return connection;
}

void ListenSocket::stop()
{
    mStopped = true;
    Socket::connectLocal(mPort); // wakes accept(), on every system alike
}
