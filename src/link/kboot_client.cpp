// The bootloader client of KbootProtocol.

#include <QEventLoop>
#include <QTimer>
#include <QtEndian>

#include "app/app_log.h"
#include "link/framing_packet.h"
#include "link/kboot_protocol.h"

namespace {

using namespace framing_packet;

constexpr quint8 kEraseRegion = 0x02;
constexpr quint8 kWriteMemory = 0x04;
constexpr quint8 kGetProperty = 0x07;
constexpr quint8 kReset = 0x0B;

constexpr quint8 kCurrentVersion = 0x01;
constexpr quint8 kFlashSize = 0x04;
constexpr quint8 kSectorSize = 0x05;
constexpr quint8 kMaxPacket = 0x0B;
constexpr quint8 kDeviceId = 0x10;

constexpr int kCommandHeaderSize = 4;
constexpr int kStatusSize = 4;
constexpr int kPropertySize = 4;

constexpr int kCommandWaits = 1500;
constexpr int kDataWaits = 200;
constexpr unsigned int kBeforeResetMs = 50;
constexpr qsizetype kMaxPayload = 0xFFFF; // what the length field can tell

QByteArray makePacket(quint8 type, const QByteArray &payload)
{
    QByteArray packet(kHeaderSize, '\0');
    packet[0] = char(kStartByte);
    packet[1] = char(type);
    qToLittleEndian(quint16(payload.size()), packet.data() + kLengthOffset);
    packet += payload;
    qToLittleEndian(KbootProtocol::do_crc_check(packet), packet.data() + kCrcOffset);
    return packet;
}

int i32(const QByteArray &value)
{
    return qFromLittleEndian<qint32>(value.constData());
}

} // namespace

bool KbootProtocol::serial_send_and_wait_resp(const QByteArray &packet, int waits)
{
    forgetReply();
    emit serialSend(packet);
    for (int step = 0; step < waits && !m_responseReceived && !isCancelled(); ++step)
        delay(1);
    return m_responseReceived;
}

void KbootProtocol::delay(unsigned int ms)
{
    QEventLoop loop;
    QTimer::singleShot(int(ms), Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

/// Whatever is left of an earlier packet must neither pass for the reply nor swallow its first bytes.
void KbootProtocol::forgetReply()
{
    m_responseReceived = false;
    m_health.discardedBytes += health().pendingBytes;
    m_frameBuffer.clear();
    m_decodeState = Hunting;
}

bool KbootProtocol::cmd_packet(unsigned char tag, unsigned char paramCount, const unsigned int *params)
{
    QByteArray payload(kCommandHeaderSize, '\0');
    payload[0] = char(tag);
    payload[3] = char(paramCount);
    for (int i = 0; i < paramCount; ++i) {
        char bytes[sizeof(quint32)];
        qToLittleEndian(quint32(params[i]), bytes);
        payload.append(bytes, sizeof bytes);
    }
    return serial_send_and_wait_resp(makePacket(kTypeCommand, payload), kCommandWaits);
}

QByteArray KbootProtocol::cmd_get_property(unsigned char property)
{
    const unsigned int tag = property;
    if (!cmd_packet(kGetProperty, 1, &tag))
        return m_frameBuffer;
    return m_frameBuffer.mid(kHeaderSize + kCommandHeaderSize + kStatusSize);
}

bool KbootProtocol::cmd_flash_erase_region(unsigned int address, unsigned int byteCount)
{
    const unsigned int params[] = {address, byteCount};
    return cmd_packet(kEraseRegion, 2, params);
}

bool KbootProtocol::cmd_flash_write_memory(unsigned int address, unsigned int byteCount)
{
    const unsigned int params[] = {address, byteCount};
    return cmd_packet(kWriteMemory, 2, params);
}

bool KbootProtocol::cmd_reset()
{
    cmd_packet(kReset, 0, nullptr);
    return true;
}

bool KbootProtocol::cmd_send_data_packet(const QByteArray &payload)
{
    if (payload.size() > kMaxPayload)
        return fail(BootloaderFault::PacketSize);
    const QByteArray packet = makePacket(kTypeData, payload);
    forgetReply();
    ++m_outcome.sentPackets;
    emit serialSend(packet);
    // An acknowledge is no packet to the decoder: its two bytes just stand at the start of the frame buffer.
    for (int check = 0; check < kDataWaits && !isCancelled(); ++check) {
        if (m_frameBuffer.size() >= 2 && quint8(m_frameBuffer.at(0)) == kStartByte) {
            switch (quint8(m_frameBuffer.at(1))) {
            case kTypeAck:
            case kTypeCommand:
                return true;
            case kTypeNak:
                return fail(BootloaderFault::Refused);
            case kTypeAckAbort:
                return fail(BootloaderFault::Aborted);
            default:
                break;
            }
        }
        delay(1);
    }
    AppLog::logfile(QtDebugMsg,
                    QStringLiteral("timeout!! %1 %2")
                        .arg(QString::number(m_frameBuffer.size()), QString::fromLatin1(m_frameBuffer.toHex(','))));
    return fail(BootloaderFault::NoAnswer);
}

bool KbootProtocol::connect()
{
    m_cancelReason = BootloaderFault::None;
    m_outcome = {};
    forgetReply();
    const bool connected = connectSteps();
    if (isCancelled())
        m_outcome.fault = m_cancelReason;
    return connected && !isCancelled();
}

bool KbootProtocol::connectSteps()
{
    begin(BootloaderStep::Ping);
    const char ping[] = {char(kStartByte), char(kTypePing)};
    serial_send_and_wait_resp(QByteArray(ping, sizeof ping), kCommandWaits);
    const auto takeVersion = [this](const char *bytes) {
        m_facts.versionBugfix = quint8(bytes[0]);
        m_facts.versionMinor = quint8(bytes[1]);
        m_facts.versionMajor = quint8(bytes[2]);
    };
    if (m_frameBuffer.size() > 4 && quint8(m_frameBuffer.at(0)) == kStartByte
        && quint8(m_frameBuffer.at(1)) == kTypePingResponse)
        takeVersion(m_frameBuffer.constData() + 2);

    begin(BootloaderStep::Properties);
    QByteArray value = propertyValue(kCurrentVersion);
    if (value.isEmpty())
        return false;
    takeVersion(value.constData());
    value = propertyValue(kMaxPacket);
    if (value.isEmpty())
        return false;
    m_facts.maxPacketSize = i32(value);
    value = propertyValue(kFlashSize);
    if (value.isEmpty())
        return false;
    m_facts.flashSizeKb = i32(value) / 1024;
    value = propertyValue(kDeviceId);
    m_facts.deviceId = QString::fromLatin1(value.toHex());
    if (value.isEmpty())
        return false;
    value = propertyValue(kSectorSize);
    if (value.isEmpty())
        return false;
    m_facts.sectorSize = i32(value);
    return true;
}

/// A property's value, which has to have 4 bytes; else the reason is noted and it is empty.
QByteArray KbootProtocol::propertyValue(quint8 property)
{
    if (isCancelled())
        return {};
    QByteArray value = cmd_get_property(property);
    if (value.size() == kPropertySize)
        return value;
    fail(m_responseReceived ? BootloaderFault::WrongAnswer : BootloaderFault::NoAnswer);
    return {};
}

bool KbootProtocol::download(const QByteArray &image, int startAddress, int attempts)
{
    m_cancelReason = BootloaderFault::None;
    m_outcome.fault = BootloaderFault::None;
    m_outcome.acknowledgedBytes = 0;
    m_outcome.targetStatus = 0;
    m_outcome.isConfirmed = false;
    const bool complete = downloadSteps(image, startAddress, attempts);
    if (!complete && isCancelled())
        m_outcome.fault = m_cancelReason;
    return complete;
}

bool KbootProtocol::downloadSteps(const QByteArray &image, int startAddress, int attempts)
{
    const auto address = unsigned(startAddress);
    const auto byteCount = unsigned(image.size());
    begin(BootloaderStep::Erase);
    if (!cmd_flash_erase_region(address, byteCount))
        return fail(BootloaderFault::NoAnswer);
    noteStatus();
    begin(BootloaderStep::Write);
    if (!cmd_flash_write_memory(address, byteCount))
        return fail(BootloaderFault::NoAnswer);
    noteStatus();

    begin(BootloaderStep::Data);
    for (qsizetype offset = 0; offset < image.size();) {
        if (m_facts.maxPacketSize < 1)
            return fail(BootloaderFault::PacketSize);
        const QByteArray chunk = image.mid(offset, qMin<qsizetype>(m_facts.maxPacketSize, kMaxPayload));
        if (!sendChunk(chunk, attempts))
            return false;
        offset += chunk.size();
        m_outcome.acknowledgedBytes = offset;
        emit downloadProgress(int(offset * 100 / image.size()));
        emit downloadAdvanced(BootloaderStep::Data, offset);
    }

    begin(BootloaderStep::Reset);
    m_outcome.fault = BootloaderFault::None; // of an attempt that was repeated
    delay(kBeforeResetMs);
    m_outcome.isConfirmed = noteStatus(); // the response to the whole write comes behind the last acknowledge
    return cmd_reset();
}

bool KbootProtocol::sendChunk(const QByteArray &chunk, int attempts)
{
    for (int attempt = 0; attempt < attempts && !isCancelled(); ++attempt) {
        if (attempt > 0)
            ++m_outcome.repeatedPackets;
        if (cmd_send_data_packet(chunk))
            return true;
    }
    return false;
}

void KbootProtocol::restart()
{
    m_cancelReason = BootloaderFault::None;
    m_outcome = {};
    begin(BootloaderStep::Reset);
    cmd_reset();
    m_outcome.fault = m_cancelReason;
}

void KbootProtocol::cancel(BootloaderFault reason)
{
    if (!isCancelled())
        m_cancelReason = reason;
}

void KbootProtocol::portFailed(BootloaderStep step)
{
    m_outcome.step = step;
    m_outcome.fault = BootloaderFault::PortClosed;
    m_outcome.acknowledgedBytes = 0;
}

void KbootProtocol::begin(BootloaderStep step)
{
    m_outcome.step = step;
    emit downloadAdvanced(step, m_outcome.acknowledgedBytes);
}

bool KbootProtocol::fail(BootloaderFault fault)
{
    m_outcome.fault = fault;
    return false;
}

/// Keeps the status word of the response in the frame buffer: the dialogue goes on, but the user shall know. False when
/// there is no response.
bool KbootProtocol::noteStatus()
{
    constexpr int kStatusOffset = kHeaderSize + kCommandHeaderSize;
    // A data packet counts as a response as well, and leaves nothing but its payload, which may be one byte.
    if (!m_responseReceived || m_frameBuffer.size() < kStatusOffset + kStatusSize
        || quint8(m_frameBuffer.at(1)) != kTypeCommand)
        return false;
    if (m_outcome.targetStatus == 0)
        m_outcome.targetStatus = qFromLittleEndian<quint32>(m_frameBuffer.constData() + kStatusOffset);
    return true;
}
