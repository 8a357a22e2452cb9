#include "link/kboot_protocol.h"

#include <QDateTime>
#include <QtEndian>

#include "link/framing_packet.h"

namespace {

using namespace framing_packet;

// While hunting, discarded bytes collect after the last packet, because whoever waits for an acknowledge looks at the
// first two. Noise without a single start byte must not fill the memory, so beyond this size they are dropped.
constexpr qsizetype kMaxDiscardedBytes = 4096;

/// A letter that every response to a ping contains.
constexpr int kPingLetterOffset = 5;

quint16 u16At(const QByteArray &bytes, int offset)
{
    return qFromLittleEndian<quint16>(bytes.constData() + offset);
}

/// Devices answer commands in ASCII lines.
bool isText(quint8 byte)
{
    return (byte >= 0x20 && byte < 0x7F) || byte == '\r' || byte == '\n' || byte == '\t';
}

} // namespace

KbootProtocol::KbootProtocol(QObject *parent) : QObject(parent)
{
    m_frameBuffer.reserve(kMaxPacketSize);
}

void KbootProtocol::serial_read(const QByteArray &data)
{
    // A receiver of kbootRecv() may spin an event loop and so re-enter this function: decode a copy.
    m_rxStaging.append(data);
    const QByteArray chunk = m_rxStaging;
    m_rxStaging.clear();
    decode(chunk);
}

void KbootProtocol::clear()
{
    m_decodeState = Hunting;
    m_expectedLength = 0;
    m_responseReceived = false;
    m_rxStaging.clear();
    m_frameBuffer.clear();
    m_health = {};
}

void KbootProtocol::decode(const QByteArray &data)
{
    m_health.receivedBytes += quint64(data.size());
    for (const char byte : data)
        decodeByte(byte);
    wakeWait();
    if (m_errorNoted) { // the clock is read once per chunk, and only for a damaged one
        m_errorNoted = false;
        m_health.lastErrorMs = m_playedMs != 0 ? m_playedMs : QDateTime::currentMSecsSinceEpoch();
    }
}

void KbootProtocol::decodeByte(char byte)
{
    if (m_decodeState == Hunting) {
        if (quint8(byte) == kStartByte) {
            startPacket();
            m_decodeState = Type;
        } else {
            countDiscarded(quint8(byte));
            if (m_frameBuffer.size() >= kMaxDiscardedBytes)
                return;
        }
        m_frameBuffer.append(byte);
        return;
    }

    m_frameBuffer.append(byte);
    switch (m_decodeState) {
    case Type:
        takeType(quint8(byte));
        break;
    case LengthLow:
    case LengthHigh:
    case CrcLow:
        ++m_decodeState;
        break;
    case CrcHigh:
        finishHeader();
        break;
    default:
        // Checked only when a byte arrives: a packet with an empty payload therefore waits for the byte after it.
        if (m_frameBuffer.size() >= m_expectedLength)
            finishPacket();
        break;
    }
}

void KbootProtocol::startPacket()
{
    if (m_frameBuffer.isDetached()) {
        m_frameBuffer.resize(0); // keeps the capacity
        return;
    }
    // The last payload is still on its way to the main thread and owns the buffer; the next packet is probably as long.
    m_frameBuffer = QByteArray();
    m_frameBuffer.reserve(m_expectedLength);
}

void KbootProtocol::takeType(quint8 type)
{
    switch (type) {
    case kTypeCommand:
    case kTypeData:
        m_decodeState = LengthLow;
        break;
    case kTypePing:
        m_responseReceived = true;
        [[fallthrough]];
    case kTypeAck:
    case kTypeNak:
    case kTypeAckAbort: // complete with its type byte; its meaning is for whoever waits for it
        m_decodeState = Hunting;
        ++m_health.controlPackets;
        m_health.controlBytes += kStartSize;
        break;
    case kTypePingResponse:
        m_expectedLength = kPingResponseSize;
        m_responseReceived = true;
        m_decodeState = Payload;
        break;
    default:
        m_decodeState = Hunting;
        if (isText(type)) { // the start byte is the letter Z
            m_health.discardedBytes += kStartSize;
        } else {
            ++m_health.unknownTypes;
            noteError(LinkError::UnknownType);
        }
        break;
    }
}

void KbootProtocol::finishHeader()
{
    m_expectedLength = u16At(m_frameBuffer, kLengthOffset) + kHeaderSize;
    m_decodeState = Payload;
    if (m_expectedLength > kMaxPacketSize) {
        m_decodeState = Hunting;
        ++m_health.overLongLengths;
        noteError(LinkError::OverLong);
    }
}

void KbootProtocol::finishPacket()
{
    m_decodeState = Hunting;
    const quint8 type = quint8(m_frameBuffer.at(1));
    const bool fits = do_crc_check(m_frameBuffer) == u16At(m_frameBuffer, kCrcOffset);
    if (fits && m_read != nullptr && type == kTypeData) {
        m_health.controlPackets++;
        m_health.controlBytes += quint64(m_frameBuffer.size());
    } else if (fits && type == kTypeData) {
        if (m_health.countData(quint64(m_frameBuffer.size())))
            m_errorNoted = false;
        m_frameBuffer.remove(0, kHeaderSize);
        emit kbootRecv(m_frameBuffer);
    } else if (fits || type == kTypePingResponse) { // whose check value is in another place
        ++m_health.controlPackets;
        m_health.controlBytes += quint64(m_frameBuffer.size());
    } else {
        ++m_health.crcErrors;
        m_health.crcErrorBytes += quint64(m_frameBuffer.size());
        noteError(LinkError::Checksum);
    }
    if (m_read != nullptr && takeForRead(type, fits))
        return;
    // Over a network, samples sent before the device restarted are still on their way: they answer nothing.
    if (fits && (type != kTypeData || m_replyAllowanceMs == 0))
        m_responseReceived = true;
    if (type == kTypePingResponse && m_frameBuffer.at(kPingLetterOffset) == 'P')
        emit pingAnswered();
}

LinkHealth KbootProtocol::health() const
{
    LinkHealth health = m_health;
    if (m_decodeState != Hunting)
        health.pendingBytes = quint64(m_frameBuffer.size());
    return health;
}

void KbootProtocol::countDiscarded(quint8 byte)
{
    ++m_health.discardedBytes;
    if (!isText(byte)) {
        ++m_health.noiseBytes;
        noteError(LinkError::Noise);
    }
}

void KbootProtocol::noteError(LinkError error)
{
    m_health.lastError = error;
    m_errorNoted = true;
}

quint16 KbootProtocol::do_crc_check(const QByteArray &packet)
{
    const auto *bytes = reinterpret_cast<const quint8 *>(packet.constData());
    quint16 crc = 0;
    crc16(&crc, bytes, quint32(qMin<qsizetype>(packet.size(), kCrcOffset)));
    if (packet.size() > kHeaderSize)
        crc16(&crc, bytes + kHeaderSize, quint32(packet.size() - kHeaderSize));
    return crc;
}

quint16 KbootProtocol::crc16(quint16 *crc, const quint8 *data, quint32 length)
{
    quint32 value = *crc;
    for (quint32 i = 0; i < length; ++i) {
        value ^= quint32(data[i]) << 8;
        for (int bit = 0; bit < 8; ++bit)
            value = (value & 0x8000U) != 0 ? (value << 1) ^ 0x1021U : value << 1;
        value &= 0xFFFFU;
    }
    *crc = quint16(value);
    return *crc;
}
