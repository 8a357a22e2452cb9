#include "link/link_health.h"

#include "link/framing_packet.h"

quint64 LinkHealth::rejectedBytes() const
{
    using namespace framing_packet;
    return crcErrorBytes + overLongLengths * kHeaderSize + unknownTypes * kStartSize;
}

bool LinkHealth::addsUp() const
{
    return receivedBytes == dataBytes + controlBytes + rejectedBytes() + discardedBytes + leadingBytes + pendingBytes;
}
