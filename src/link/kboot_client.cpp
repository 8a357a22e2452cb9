// The bootloader client of KbootProtocol.

#include <QEventLoop>
#include <QTimer>
#include <QtEndian>

#include <chrono>
#include <thread>
#include <utility>

#include "app/app_log.h"
#include "link/framing_packet.h"
#include "link/kboot_protocol.h"
#include "link/memory_read.h"

namespace {

using namespace framing_packet;

constexpr quint8 kEraseRegion = 0x02;
constexpr quint8 kReadMemory = 0x03;
constexpr quint8 kWriteMemory = 0x04;
constexpr quint8 kGetProperty = 0x07;
constexpr quint8 kReset = 0x0B;

constexpr quint8 kCurrentVersion = 0x01;
constexpr quint8 kFlashStart = 0x03;
constexpr quint8 kFlashSize = 0x04;
constexpr quint8 kSectorSize = 0x05;
constexpr quint8 kAvailableCommands = 0x07;
constexpr quint8 kMaxPacket = 0x0B;
constexpr quint8 kDeviceId = 0x10;
constexpr quint8 kSecurityState = 0x11;
/// Values of the security state that say "locked": of older and of newer bootloaders.
constexpr quint32 kLockedFlag = 1;
constexpr quint32 kLockedWord = 0xC33CC33C;

constexpr int kCommandHeaderSize = 4;
constexpr int kStatusSize = 4;
constexpr int kPropertySize = 4;

constexpr int kCommandWaits = 1500;
constexpr int kDataWaits = 200;
constexpr int kStatusWaits = 50; // for a response that follows an abort, or has started to arrive
constexpr int kConfirmWaits = 1500;
constexpr qint64 kStepNs = 1'000'000;
constexpr int kReadAttempts = 50;
constexpr int kReadSilenceMs = 1500;
constexpr int kReadStallMs = 30'000; // bytes come, but no packet
constexpr unsigned int kReadQuietMs = 100;
constexpr unsigned int kBeforeResetMs = 50;
constexpr qsizetype kMaxPayload = 0xFFFF; // limit of the length field

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

QByteArray KbootProtocol::pingPacket()
{
    const char ping[] = {char(kStartByte), char(kTypePing)};
    return {ping, sizeof ping};
}

bool KbootProtocol::serial_send_and_wait_resp(const QByteArray &packet, int waits)
{
    forgetReply();
    QElapsedTimer sinceSent;
    sinceSent.start();
    emit serialSend(packet);
    return waitFor(sinceSent, waits, [this] { return m_responseReceived; });
}

/// Runs an event loop until the condition holds, for at most `steps` milliseconds and the allowance from now. The
/// condition is checked only at whole milliseconds after the packet was sent, and nothing wakes up for that while no
/// bytes arrive. The rest of a millisecond is slept, because the event loop would round it up to a whole one.
bool KbootProtocol::waitFor(const QElapsedTimer &sinceSent, int steps, const std::function<bool()> &isMet)
{
    const qint64 endNs = sinceSent.nsecsElapsed() + (steps + m_replyAllowanceMs) * kStepNs;
    QEventLoop loop;
    QTimer limit;
    limit.setSingleShot(true);
    limit.setTimerType(Qt::PreciseTimer);
    QObject::connect(&limit, &QTimer::timeout, &loop, &QEventLoop::quit);
    const Wait wait{&loop, &isMet};
    const Wait *const outer = std::exchange(m_wait, &wait);
    while (!isMet() && !isCancelled() && sinceSent.nsecsElapsed() < endNs) {
        limit.start(int((endNs - sinceSent.nsecsElapsed()) / kStepNs + 1));
        loop.exec();
        if (isMet()) {
            const qint64 pastNs = sinceSent.nsecsElapsed() % kStepNs;
            std::this_thread::sleep_for(std::chrono::nanoseconds(kStepNs - pastNs));
            loop.processEvents(); // what has arrived meanwhile
        }
    }
    m_wait = outer;
    return isMet();
}

/// Something has arrived or happened that a wait may be waiting for.
void KbootProtocol::wakeWait()
{
    if (m_wait != nullptr && (isCancelled() || (*m_wait->isMet)()))
        m_wait->loop->quit();
}

void KbootProtocol::delay(unsigned int ms)
{
    QEventLoop loop;
    QTimer::singleShot(int(ms), Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

/// Leftovers of an earlier packet must neither pass for the reply nor swallow its first bytes.
void KbootProtocol::forgetReply()
{
    m_responseReceived = false;
    m_health.discardedBytes += health().pendingBytes;
    m_frameBuffer.clear();
    m_decodeState = Hunting;
}

bool KbootProtocol::cmd_packet(unsigned char tag, unsigned char paramCount, const unsigned int *params)
{
    QList<quint32> parameters;
    for (int i = 0; i < paramCount; ++i)
        parameters.append(params[i]);
    return serial_send_and_wait_resp(commandPacket(tag, parameters), kCommandWaits);
}

QByteArray KbootProtocol::commandPacket(quint8 tag, const QList<quint32> &parameters) const
{
    QByteArray payload(kCommandHeaderSize, '\0');
    payload[0] = char(tag);
    payload[3] = char(parameters.size());
    for (const quint32 parameter : parameters) {
        char bytes[sizeof(quint32)];
        qToLittleEndian(parameter, bytes);
        payload.append(bytes, sizeof bytes);
    }
    return makePacket(kTypeCommand, payload);
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
    QElapsedTimer sinceSent;
    sinceSent.start();
    emit serialSend(packet);
    waitFor(sinceSent, kDataWaits, [this] { return dataAnswer() != 0; });
    switch (dataAnswer()) {
    case kTypeAck:
        return true;
    case kTypeCommand: // the whole write has ended, successfully or not: see the status
        awaitStatus(kStatusWaits);
        return true;
    case kTypeNak:
        return fail(BootloaderFault::Refused);
    case kTypeAckAbort: // its reason may follow
        awaitStatus(kStatusWaits);
        return fail(BootloaderFault::Aborted);
    default:
        break;
    }
    AppLog::logfile(QtDebugMsg,
                    QStringLiteral("timeout!! %1 %2")
                        .arg(QString::number(m_frameBuffer.size()), QString::fromLatin1(m_frameBuffer.toHex(','))));
    return fail(BootloaderFault::NoAnswer);
}

/// The answer to a data packet; 0 while there is nothing that could be one. To the decoder an acknowledge is not a
/// packet: its two bytes just stand at the start of the frame buffer.
quint8 KbootProtocol::dataAnswer() const
{
    if (m_frameBuffer.size() < 2 || quint8(m_frameBuffer.at(0)) != kStartByte)
        return 0;
    const auto type = quint8(m_frameBuffer.at(1));
    return type >= kTypeAck && type <= kTypeCommand ? type : 0;
}

/// Waits during or after the data phase for the target's answer to the whole write.
void KbootProtocol::awaitStatus(int steps)
{
    QElapsedTimer now;
    now.start();
    waitFor(now, steps, [this] { return m_responseReceived; });
    if (noteStatus() && responseStatus() != 0)
        m_outcome.isEndedByTarget = true;
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
    serial_send_and_wait_resp(pingPacket(), kCommandWaits);
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

/// A property's value, which must have 4 bytes; otherwise the reason is noted and the result is empty.
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
    beginDownload();
    bool complete = writeSteps(image, quint32(startAddress), attempts, m_facts.maxPacketSize, OnStatus::GoOn);
    if (complete) {
        begin(BootloaderStep::Reset);
        delay(kBeforeResetMs);
        m_outcome.isConfirmed = noteStatus(); // the response to the whole write follows the last acknowledge
        complete = cmd_reset();
    }
    if (!complete && isCancelled())
        m_outcome.fault = m_cancelReason;
    return complete;
}

bool KbootProtocol::writeImage(const QByteArray &image, quint32 address, int attempts, int packetSize)
{
    beginDownload();
    m_outcome.sentPackets = 0;
    m_outcome.repeatedPackets = 0;
    m_outcome.silentRepeats = 0;
    const int largest = packetSize > 0 ? qMin(packetSize, m_facts.maxPacketSize) : m_facts.maxPacketSize;
    bool complete = writeSteps(image, address, attempts, largest, OnStatus::End);
    if (complete && !image.isEmpty()) {
        awaitStatus(kConfirmWaits);
        m_outcome.isConfirmed = noteStatus();
        complete = !isCancelled() && (m_outcome.targetStatus == 0 || fail(BootloaderFault::Aborted));
    }
    if (!complete && isCancelled())
        m_outcome.fault = m_cancelReason;
    return complete;
}

void KbootProtocol::beginDownload()
{
    m_cancelReason = BootloaderFault::None;
    m_outcome.fault = BootloaderFault::None;
    m_outcome.acknowledgedBytes = 0;
    m_outcome.targetStatus = 0;
    m_outcome.isEndedByTarget = false;
    m_outcome.isConfirmed = false;
}

/// Erases and writes; with OnStatus::End, a status other than 0 is a fault.
bool KbootProtocol::writeSteps(const QByteArray &image, quint32 address, int attempts, int packetSize,
                               OnStatus onStatus)
{
    const auto byteCount = unsigned(image.size());
    const auto isRefused = [this, onStatus] {
        noteStatus();
        return onStatus == OnStatus::End && m_outcome.targetStatus != 0;
    };
    begin(BootloaderStep::Erase);
    if (!cmd_flash_erase_region(address, byteCount))
        return fail(BootloaderFault::NoAnswer);
    if (isRefused())
        return fail(BootloaderFault::Refused);
    begin(BootloaderStep::Write);
    if (!cmd_flash_write_memory(address, byteCount))
        return fail(BootloaderFault::NoAnswer);
    if (isRefused())
        return fail(BootloaderFault::Refused);

    begin(BootloaderStep::Data);
    for (qsizetype offset = 0; offset < image.size();) {
        if (packetSize < 1)
            return fail(BootloaderFault::PacketSize);
        const QByteArray chunk = image.mid(offset, qMin<qsizetype>(packetSize, kMaxPayload));
        const bool isSent = sendChunk(chunk, attempts);
        if (m_outcome.isEndedByTarget && (!isSent || onStatus == OnStatus::End))
            return fail(BootloaderFault::Aborted);
        if (!isSent)
            return false;
        offset += chunk.size();
        if (!m_outcome.isEndedByTarget)
            m_outcome.acknowledgedBytes = offset;
        emit downloadProgress(int(offset * 100 / image.size()));
        emit downloadAdvanced(BootloaderStep::Data, m_outcome.acknowledgedBytes);
    }
    m_outcome.fault = BootloaderFault::None; // left by an attempt that was repeated
    return true;
}

bool KbootProtocol::sendChunk(const QByteArray &chunk, int attempts)
{
    for (int attempt = 0; attempt < attempts && !isCancelled(); ++attempt) {
        if (attempt > 0) {
            ++m_outcome.repeatedPackets;
            m_outcome.silentRepeats += m_outcome.fault == BootloaderFault::NoAnswer ? 1 : 0;
        }
        if (cmd_send_data_packet(chunk))
            return true;
    }
    return false;
}

BootloaderOffer KbootProtocol::inquire()
{
    m_cancelReason = BootloaderFault::None;
    BootloaderOffer offer;
    offer.commands = offered(kAvailableCommands);
    offer.flashStart = offered(kFlashStart);
    const std::optional<quint32> security = offered(kSecurityState);
    offer.isLocked = security == kLockedFlag || security == kLockedWord;
    return offer;
}

/// A property that some bootloaders lack.
std::optional<quint32> KbootProtocol::offered(quint8 property)
{
    if (isCancelled())
        return {};
    const QByteArray value = cmd_get_property(property);
    if (value.size() < kPropertySize || responseStatus() != 0U)
        return {};
    return quint32(i32(value));
}

bool KbootProtocol::cmd_flash_read_memory(unsigned int address, unsigned int byteCount)
{
    forgetReply();
    emit serialSend(commandPacket(kReadMemory, {address, byteCount}));
    return true;
}

bool KbootProtocol::readMemory(quint32 address, quint32 byteCount)
{
    m_cancelReason = BootloaderFault::None;
    m_outcome.fault = BootloaderFault::None;
    m_outcome.targetStatus = 0;
    m_memory.clear();
    begin(BootloaderStep::Verify);
    for (int attempt = 0; quint32(m_memory.size()) < byteCount && attempt < kReadAttempts; ++attempt) {
        const auto done = quint32(m_memory.size());
        m_outcome.fault = BootloaderFault::NoAnswer;
        const bool complete = readPart(address + done, byteCount - done);
        if (!complete && (isCancelled() || m_outcome.fault != BootloaderFault::NoAnswer))
            break;
    }
    if (isCancelled())
        m_outcome.fault = m_cancelReason;
    return m_outcome.fault == BootloaderFault::None;
}

/// Sends one command and collects what follows into m_memory. The fault stays NoAnswer when the target falls silent.
bool KbootProtocol::readPart(quint32 address, quint32 byteCount)
{
    MemoryRead read(m_memory, byteCount);
    m_read = &read;
    // Noise may go on for ever; what is needed, repeats included, is far less.
    const quint64 mostBytes = m_health.receivedBytes + quint64(byteCount) * 4 + 65536;
    cmd_flash_read_memory(address, byteCount);
    QElapsedTimer sincePacket;
    sincePacket.start();
    for (qsizetype had = m_memory.size(); !read.isEnded() && !isCancelled();) {
        const quint64 receivedBefore = m_health.receivedBytes;
        QElapsedTimer now;
        now.start();
        const bool advanced =
            waitFor(now, kReadSilenceMs, [&] { return read.isEnded() || m_memory.size() >= had + 16 * 1024; });
        if (m_memory.size() > had)
            sincePacket.start();
        had = m_memory.size();
        emit downloadAdvanced(BootloaderStep::Verify, had);
        const bool isSilent = !advanced && m_health.receivedBytes == receivedBefore;
        if (isSilent || sincePacket.hasExpired(kReadStallMs) || m_health.receivedBytes > mostBytes)
            break;
    }
    m_read = nullptr;
    if (read.status() != 0)
        m_outcome.targetStatus = read.status();
    if (read.isEnded())
        m_outcome.fault = read.fault();
    if (!read.isEnded() && !isCancelled()) {
        const char abort[] = {char(kStartByte), char(kTypeAckAbort)};
        emit serialSend(QByteArray(abort, sizeof abort));
        delay(kReadQuietMs);
    }
    return read.isComplete();
}

/// Takes the packet in the frame buffer while memory is being read, and answers it. False when it is not part of that.
bool KbootProtocol::takeForRead(quint8 type, bool fits)
{
    MemoryRead::Answer answer = MemoryRead::Answer::Nothing;
    if (type == kTypeData)
        answer = fits ? m_read->takeData(m_frameBuffer.mid(kHeaderSize)) : m_read->takeDamaged();
    else if (type == kTypeCommand && fits)
        answer = m_read->takeResponse(m_frameBuffer.mid(kHeaderSize));
    else
        return false;
    quint8 answerType = 0;
    switch (answer) {
    case MemoryRead::Answer::Nothing:
        return true;
    case MemoryRead::Answer::Acknowledge:
        answerType = kTypeAck;
        break;
    case MemoryRead::Answer::Repeat:
        answerType = kTypeNak;
        break;
    case MemoryRead::Answer::Abort:
        answerType = kTypeAckAbort;
        break;
    }
    const char bytes[] = {char(kStartByte), char(answerType)};
    emit serialSend(QByteArray(bytes, sizeof bytes));
    return true;
}

void KbootProtocol::restart()
{
    m_cancelReason = BootloaderFault::None;
    m_outcome = {};
    begin(BootloaderStep::Reset);
    cmd_reset();
    m_outcome.fault = m_cancelReason != BootloaderFault::None ? m_cancelReason
                      : m_responseReceived                    ? BootloaderFault::None
                                                              : BootloaderFault::NoAnswer;
}

void KbootProtocol::cancel(BootloaderFault reason)
{
    if (!isCancelled())
        m_cancelReason = reason;
    wakeWait();
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

/// Keeps the status word of the response in the frame buffer: the dialogue goes on, but the user should know. False
/// when there is no response.
bool KbootProtocol::noteStatus()
{
    const std::optional<quint32> status = responseStatus();
    if (status && m_outcome.targetStatus == 0)
        m_outcome.targetStatus = *status;
    return status.has_value();
}

/// The status word of the response in the frame buffer; none when it holds no response.
std::optional<quint32> KbootProtocol::responseStatus() const
{
    constexpr int kStatusOffset = kHeaderSize + kCommandHeaderSize;
    // A data packet counts as a response too, and leaves only its payload, which may be a single byte.
    if (!m_responseReceived || m_frameBuffer.size() < kStatusOffset + kStatusSize
        || quint8(m_frameBuffer.at(1)) != kTypeCommand)
        return {};
    return qFromLittleEndian<quint32>(m_frameBuffer.constData() + kStatusOffset);
}
