#include "link/link_health.h"

#include "link/framing_packet.h"

bool LinkHealth::countData(quint64 length)
{
    const bool isFirst = dataPackets == 0;
    if (isFirst) {
        LinkHealth fresh;
        fresh.receivedBytes = receivedBytes;
        fresh.controlPackets = controlPackets;
        fresh.controlBytes = controlBytes;
        fresh.leadingBytes = rejectedBytes() + discardedBytes;
        *this = fresh;
    }
    ++dataPackets;
    dataBytes += length;
    return isFirst;
}

quint64 LinkHealth::rejectedBytes() const
{
    using namespace framing_packet;
    return crcErrorBytes + overLongLengths * kHeaderSize + unknownTypes * kStartSize;
}

bool LinkHealth::addsUp() const
{
    return receivedBytes == dataBytes + controlBytes + rejectedBytes() + discardedBytes + leadingBytes + pendingBytes;
}
