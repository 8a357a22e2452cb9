#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

#include "link/socket_options.h"

namespace {

// Without traffic: the first probe after 3 s, three of them 2 s apart, and the end after 9 s.
constexpr int kIdleS = 3;
constexpr int kIntervalS = 2;
constexpr int kProbes = 3;
/// With bytes on their way: they are not acknowledged for this long. A probe of the telnet protocol is sent every 5 s.
constexpr unsigned int kUnacknowledgedMs = 5000;

template <typename Value> void set(qintptr descriptor, int level, int name, Value value)
{
    ::setsockopt(int(descriptor), level, name, &value, sizeof value);
}

} // namespace

void socket_options::findDeadPeer(qintptr descriptor)
{
    set(descriptor, SOL_SOCKET, SO_KEEPALIVE, 1);
    set(descriptor, IPPROTO_TCP, TCP_KEEPIDLE, kIdleS);
    set(descriptor, IPPROTO_TCP, TCP_KEEPINTVL, kIntervalS);
    set(descriptor, IPPROTO_TCP, TCP_KEEPCNT, kProbes);
    set(descriptor, IPPROTO_TCP, TCP_USER_TIMEOUT, kUnacknowledgedMs);
}

void socket_options::endSending(qintptr descriptor)
{
    ::shutdown(int(descriptor), SHUT_WR);
}
