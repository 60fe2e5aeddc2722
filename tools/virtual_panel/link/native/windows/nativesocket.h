/// Names and calls in which the socket interfaces of the systems differ: Winsock.
#pragma once

#include <winsock2.h>
#include <ws2tcpip.h>

#include <cstdint>

using NativeLength = int;
inline constexpr int NativeSendFlags = 0;
inline constexpr int NativeShutdownBoth = SD_BOTH;

inline void startNetwork()
{
    static const int started = [] {
        WSADATA data;
        return WSAStartup(MAKEWORD(2, 2), &data);
    }();
    static_cast<void>(started);
}

inline SOCKET nativeHandle(std::intptr_t handle)
{
    return static_cast<SOCKET>(handle);
}

inline bool wasInterrupted()
{
    return false;
}

inline void closeNative(std::intptr_t handle)
{
    ::closesocket(nativeHandle(handle));
}

/// Windows tries a refused local connection three times over two seconds, unless it is not waited for.
inline bool connectNative(std::intptr_t handle, const sockaddr_in &address)
{
    u_long nonBlocking = 1;
    ::ioctlsocket(nativeHandle(handle), static_cast<long>(FIONBIO), &nonBlocking);
    ::connect(nativeHandle(handle), reinterpret_cast<const sockaddr *>(&address), sizeof address);
    fd_set writable;
    FD_ZERO(&writable);
    FD_SET(nativeHandle(handle), &writable);
    timeval patience{0, 200000};
    const bool connected = ::select(0, nullptr, &writable, nullptr, &patience) == 1;
    nonBlocking = 0;
    ::ioctlsocket(nativeHandle(handle), static_cast<long>(FIONBIO), &nonBlocking);
    return connected;
}

/// Windows gives the port of an ended program at once; its option of that name would allow two listeners.
inline void reuseAddress(std::intptr_t) {}
