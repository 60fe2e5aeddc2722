/// Names and calls in which the socket interfaces of the systems differ: POSIX.
#pragma once

#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>

using NativeLength = std::size_t;
inline constexpr int NativeSendFlags = MSG_NOSIGNAL; // a panel that went away is no reason to die
inline constexpr int NativeShutdownBoth = SHUT_RDWR;

inline void startNetwork() {}

inline int nativeHandle(std::intptr_t handle)
{
    return static_cast<int>(handle);
}

inline bool wasInterrupted()
{
    return errno == EINTR;
}

inline void closeNative(std::intptr_t handle)
{
    ::close(nativeHandle(handle));
}

inline bool connectNative(std::intptr_t handle, const sockaddr_in &address)
{
    return ::connect(nativeHandle(handle), reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0;
}

/// A panel that is started again gets its port at once.
inline void reuseAddress(std::intptr_t handle)
{
    const int on = 1;
    ::setsockopt(nativeHandle(handle), SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
}
