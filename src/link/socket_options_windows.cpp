#include <winsock2.h>
#include <ws2tcpip.h>

#include <mstcpip.h>

#include "link/socket_options.h"

namespace {

// The system sends ten probes by itself: the first after 3 s, the others 600 ms apart, and the end after 9 s.
constexpr ULONG kIdleMs = 3000;
constexpr ULONG kIntervalMs = 600;
/// With bytes on their way.
constexpr DWORD kUnacknowledgedS = 5;

} // namespace

void socket_options::findDeadPeer(qintptr descriptor)
{
    tcp_keepalive keepAlive{1, kIdleMs, kIntervalMs};
    DWORD returned = 0;
    ::WSAIoctl(SOCKET(descriptor), SIO_KEEPALIVE_VALS, &keepAlive, sizeof keepAlive, nullptr, 0, &returned, nullptr,
               nullptr);
    DWORD seconds = kUnacknowledgedS;
    ::setsockopt(SOCKET(descriptor), IPPROTO_TCP, TCP_MAXRT, reinterpret_cast<const char *>(&seconds), sizeof seconds);
}

void socket_options::endSending(qintptr descriptor)
{
    ::shutdown(SOCKET(descriptor), SD_SEND);
}
