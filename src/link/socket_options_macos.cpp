#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

#include "link/socket_options.h"

namespace {

// Without traffic: the first probe after 3 s, three of them 2 s apart. With bytes on their way: 5 s.
constexpr int kIdleS = 3;
constexpr int kIntervalS = 2;
constexpr int kProbes = 3;
constexpr int kUnacknowledgedS = 5;

void set(qintptr descriptor, int level, int name, int value)
{
    ::setsockopt(int(descriptor), level, name, &value, sizeof value);
}

} // namespace

void socket_options::findDeadPeer(qintptr descriptor)
{
    set(descriptor, SOL_SOCKET, SO_KEEPALIVE, 1);
    set(descriptor, IPPROTO_TCP, TCP_KEEPALIVE, kIdleS);
    set(descriptor, IPPROTO_TCP, TCP_KEEPINTVL, kIntervalS);
    set(descriptor, IPPROTO_TCP, TCP_KEEPCNT, kProbes);
    set(descriptor, IPPROTO_TCP, TCP_RXT_CONNDROPTIME, kUnacknowledgedS);
}

void socket_options::endSending(qintptr descriptor)
{
    ::shutdown(int(descriptor), SHUT_WR);
}
