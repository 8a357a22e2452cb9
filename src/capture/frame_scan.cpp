#include "capture/frame_scan.h"

#include <QtEndian>

#include <algorithm>
#include <cstring>

#include "capture/frame_crc.h"
#include "link/framing_packet.h"

namespace {

using namespace framing_packet;

/// Devices answer commands in ASCII lines.
constexpr bool isText(quint8 byte)
{
    return (byte >= 0x20 && byte < 0x7F) || byte == '\r' || byte == '\n' || byte == '\t';
}

quint16 u16At(const quint8 *bytes)
{
    return qFromLittleEndian<quint16>(bytes);
}

} // namespace

void FrameScan::reset()
{
    m_health = {};
    m_pending.clear();
    m_done = 0;
    m_errorNoted = false;
}

LinkHealth FrameScan::health() const
{
    LinkHealth health = m_health;
    health.pendingBytes = quint64(m_pending.size());
    return health;
}

void FrameScan::feed(QByteArrayView block, qint64 timeMs)
{
    m_health.receivedBytes += quint64(block.size());
    const auto *bytes = reinterpret_cast<const quint8 *>(block.data());
    const quint8 *end = bytes + block.size();

    while (!m_pending.isEmpty() && bytes < end) {
        // No packet is longer, so its end lies in what is added, or all of the block is added.
        const qsizetype before = m_pending.size();
        m_pending.append(reinterpret_cast<const char *>(bytes), std::min<qsizetype>(end - bytes, kMaxPacketSize));
        const qsizetype taken = takePacket(reinterpret_cast<const quint8 *>(m_pending.constData()), m_pending.size());
        if (taken > 0) {
            bytes += taken - before;
            m_pending.resize(0);
        } else {
            bytes += m_pending.size() - before;
        }
    }
    while (bytes < end) {
        const auto *start = static_cast<const quint8 *>(std::memchr(bytes, kStartByte, size_t(end - bytes)));
        takeOutside(bytes, (start != nullptr ? start : end) - bytes);
        if (start == nullptr)
            break;
        const qsizetype taken = takePacket(start, end - start);
        if (taken == 0) {
            m_pending.append(reinterpret_cast<const char *>(start), end - start);
            break;
        }
        bytes = start + taken;
    }
    if (m_errorNoted) {
        m_errorNoted = false;
        m_health.lastErrorMs = timeMs;
    }
}

void FrameScan::takeOutside(const quint8 *bytes, qsizetype size)
{
    const auto noise = size - std::count_if(bytes, bytes + size, isText);
    m_health.discardedBytes += quint64(size);
    m_done += size;
    if (noise > 0) {
        m_health.noiseBytes += quint64(noise);
        noteError(LinkError::Noise);
    }
}

/// Takes what begins with a start byte. The number of its bytes; 0 when more are needed to know what it is.
qsizetype FrameScan::takePacket(const quint8 *bytes, qsizetype size)
{
    if (size < kStartSize)
        return 0;
    qsizetype length = 0;
    switch (const quint8 type = bytes[1]) {
    case kTypeCommand:
    case kTypeData:
        if (size < kHeaderSize)
            return 0;
        length = u16At(bytes + kLengthOffset) + kHeaderSize;
        if (length > kMaxPacketSize) {
            ++m_health.overLongLengths;
            noteError(LinkError::OverLong);
            m_done += kHeaderSize;
            return kHeaderSize;
        }
        length = std::max<qsizetype>(length, kHeaderSize + 1); // an empty payload ends with the byte after it
        break;
    case kTypePingResponse:
        length = kPingResponseSize;
        break;
    case kTypePing:
    case kTypeAck:
    case kTypeNak:
    case kTypeAckAbort:
        ++m_health.controlPackets;
        m_health.controlBytes += kStartSize;
        m_done += kStartSize;
        return kStartSize;
    default:
        m_done += kStartSize;
        if (isText(type)) { // the start byte is the letter Z
            m_health.discardedBytes += kStartSize;
        } else {
            ++m_health.unknownTypes;
            noteError(LinkError::UnknownType);
        }
        return kStartSize;
    }
    return size < length ? 0 : takeChecked(bytes, length);
}

qsizetype FrameScan::takeChecked(const quint8 *bytes, qsizetype length)
{
    m_done += length;
    const quint8 type = bytes[1];
    const quint16 crc = frameCrc(frameCrc(0, bytes, kCrcOffset), bytes + kHeaderSize, length - kHeaderSize);
    const bool fits = crc == u16At(bytes + kCrcOffset);
    if (fits && type == kTypeData) {
        if (m_health.countData(quint64(length)))
            m_errorNoted = false;
        if (m_sink)
            m_sink(QByteArrayView(bytes + kHeaderSize, length - kHeaderSize), m_done);
    } else if (fits || type == kTypePingResponse) { // whose check value is in another place
        ++m_health.controlPackets;
        m_health.controlBytes += quint64(length);
    } else {
        ++m_health.crcErrors;
        m_health.crcErrorBytes += quint64(length);
        noteError(LinkError::Checksum);
    }
    return length;
}

void FrameScan::noteError(LinkError error)
{
    m_health.lastError = error;
    m_errorNoted = true;
}
