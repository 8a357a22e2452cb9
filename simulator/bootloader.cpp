#include "simulator/bootloader.h"

#include <QtEndian>

#include <algorithm>

namespace kvsim {

namespace {

constexpr qint64 kNsPerMs = 1'000'000;
constexpr qsizetype kMaxCommandBytes = 32;
constexpr qsizetype kCommandHeaderBytes = 4;

enum Tag : quint8 {
    EraseAll = 0x01,
    EraseRegion = 0x02,
    ReadMemory = 0x03,
    WriteMemory = 0x04,
    GetProperty = 0x07,
    Execute = 0x09,
    Reset = 0x0B,
    GenericResponse = 0xA0,
    ReadResponse = 0xA3,
    PropertyResponse = 0xA7,
};

enum Status : quint32 {
    Success = 0,
    InvalidArgument = 4,
    UnknownCommand = 10000,
    SecurityViolation = 10001,
    AbortedByHost = 10002,
    RangeInvalid = 10200,
    UnknownProperty = 10300,
};

constexpr quint32 kVersion = 0x4B020103; // 'K', 2.1.3
constexpr quint32 kDeviceId = 0x1A2B3C4D;
/// Bit tag - 1 for each command offered.
constexpr quint32 kCommands = 1U << (EraseAll - 1) | 1U << (EraseRegion - 1) | 1U << (WriteMemory - 1)
                              | 1U << (GetProperty - 1) | 1U << (Execute - 1) | 1U << (Reset - 1);
constexpr quint32 kReadCommand = 1U << (ReadMemory - 1);

} // namespace

Bootloader::Bootloader(const Settings &settings)
    : m_settings(settings), m_flash(settings.flash), m_faults(settings.seed)
{
    m_reader.setMaxPayload(std::max<qsizetype>(kMaxCommandBytes, settings.packetBytes));
}

void Bootloader::enter(qint64 nowNs)
{
    m_reader.reset();
    m_answers.clear();
    m_enteredNs = nowNs;
    m_lastAnswerNs = nowNs;
    m_spokenTo = false;
    m_writing = false;
    m_read.stop();
    m_exit = Exit::None;
}

void Bootloader::receive(QByteArrayView bytes, qint64 nowNs)
{
    if (nowNs - m_lastByteNs > kPacketTimeoutNs)
        m_reader.reset();
    m_nowNs = nowNs;
    m_lastByteNs = nowNs;
    for (const char byte : bytes) {
        if (m_exit != Exit::None)
            return;
        const bool wasIdle = m_reader.isIdle();
        const auto packet = m_reader.take(byte);
        if (packet) {
            m_texts.packet(packet->kind == PacketReader::Kind::Ping);
            handle(*packet);
        } else if (wasIdle && m_reader.isIdle()) {
            m_texts.take(byte, m_writing);
        }
    }
}

QByteArray Bootloader::takeAnswers(qint64 nowNs)
{
    QByteArray due;
    const auto end = m_answers.upper_bound(nowNs);
    for (auto it = m_answers.begin(); it != end; ++it)
        due += it->second;
    m_answers.erase(m_answers.begin(), end);
    return due;
}

Bootloader::Exit Bootloader::exit(qint64 nowNs) const
{
    if (!m_answers.empty())
        return Exit::None;
    if (m_exit != Exit::None)
        return m_exit;
    const bool waited = nowNs - m_enteredNs >= m_settings.waitMs * kNsPerMs;
    return waited && !m_spokenTo && m_firmwareWhole ? Exit::StartFirmware : Exit::None;
}

void Bootloader::handle(const PacketReader::Packet &packet)
{
    switch (packet.kind) {
    case PacketReader::Kind::Ping:
        m_spokenTo = true;
        if (!m_faults.mutePing)
            answer(encodePingResponse());
        break;
    case PacketReader::Kind::Command:
        m_spokenTo = true;
        m_writing = false;
        m_read.stop();
        handleCommand(packet.payload);
        break;
    case PacketReader::Kind::Data:
        handleData(packet.payload);
        break;
    case PacketReader::Kind::Damaged:
        answer(encodeShortPacket(PacketType::Nak));
        break;
    case PacketReader::Kind::Ack:
    case PacketReader::Kind::Nak:
    case PacketReader::Kind::AckAbort:
        handleShort(packet.kind);
        break;
    }
}

/// The host's answers to the data it reads.
void Bootloader::handleShort(PacketReader::Kind kind)
{
    if (!m_read.isActive())
        return;
    if (kind == PacketReader::Kind::AckAbort) {
        m_read.stop();
        respond(AbortedByHost, ReadMemory);
        return;
    }
    if (kind == PacketReader::Kind::Ack)
        m_read.acknowledged();
    const QByteArray packet = m_read.packet();
    if (!packet.isEmpty()) {
        answer(packet);
        return;
    }
    m_read.stop();
    respond(Success, ReadMemory);
}

void Bootloader::answerRead(quint32 address, quint32 count)
{
    const quint32 status = m_faults.locked                     ? SecurityViolation
                           : !m_faults.readsMemory             ? UnknownCommand
                           : !m_flash.contains(address, count) ? RangeInvalid
                                                               : Success;
    if (!m_faults.readsMemory && !m_faults.locked) {
        respond(status, ReadMemory);
        return;
    }
    const bool follows = status == Success;
    answer(encodeResponse(ReadResponse, littleEndian({status, follows ? count : 0}), follows ? 1 : 0));
    if (follows)
        m_read.begin(m_flash.read(address, count), m_settings.packetBytes);
}

void Bootloader::handleCommand(const QByteArray &payload)
{
    answer(encodeShortPacket(PacketType::Ack));
    if (payload.size() < kCommandHeaderBytes) {
        respond(InvalidArgument, 0);
        return;
    }
    const auto tag = quint8(payload[0]);
    const qsizetype count = quint8(payload[3]);
    const qsizetype needed = tag == EraseRegion || tag == ReadMemory || tag == WriteMemory ? 2
                             : tag == GetProperty                                          ? 1
                                                                                           : 0;
    if (payload.size() != kCommandHeaderBytes + 4 * count || count < needed) {
        respond(InvalidArgument, tag);
        return;
    }
    const auto parameter = [&payload](qsizetype i) {
        return qFromLittleEndian<quint32>(payload.constData() + kCommandHeaderBytes + 4 * i);
    };
    switch (tag) {
    case EraseAll:
        respond(erase(m_flash.geometry().base, m_flash.geometry().size), tag, m_faults.eraseMs);
        break;
    case EraseRegion:
        respond(erase(parameter(0), parameter(1)), tag, m_faults.eraseMs);
        break;
    case ReadMemory:
        answerRead(parameter(0), parameter(1));
        break;
    case WriteMemory:
        respond(beginWrite(parameter(0), parameter(1)), tag);
        break;
    case GetProperty:
        answerProperty(parameter(0));
        break;
    case Execute:
        respond(m_firmwareWhole ? Success : InvalidArgument, tag);
        if (m_firmwareWhole)
            m_exit = Exit::StartFirmware;
        break;
    case Reset:
        respond(Success, tag);
        m_exit = Exit::Reset;
        break;
    default:
        respond(UnknownCommand, tag);
        break;
    }
}

quint32 Bootloader::erase(quint32 address, quint32 count)
{
    if (!m_flash.erase(address, count))
        return RangeInvalid;
    m_firmwareWhole = m_firmwareWhole && count == 0;
    return Success;
}

quint32 Bootloader::beginWrite(quint32 address, quint32 count)
{
    if (!m_flash.contains(address, count))
        return RangeInvalid;
    m_writing = count > 0;
    m_firmwareWhole = m_firmwareWhole && count == 0;
    m_writeAddress = address;
    m_writeLeft = count;
    return Success;
}

void Bootloader::handleData(const QByteArray &payload)
{
    if (!m_writing) {
        answer(encodeShortPacket(PacketType::AckAbort));
        return;
    }
    ++m_packets;
    ++m_refusedPackets;
    BootFaults::Verdict verdict = m_faults.judge();
    const bool isTooLarge = payload.size() > m_settings.packetBytes;
    if (verdict != BootFaults::Verdict::Ignore && verdict != BootFaults::Verdict::Power) {
        if (isTooLarge)
            verdict = BootFaults::Verdict::Refuse;
        else if (quint32(payload.size()) > m_writeLeft)
            verdict = BootFaults::Verdict::Abort;
    }
    QByteArray taken = payload;
    switch (verdict) {
    case BootFaults::Verdict::Ignore:
        return;
    case BootFaults::Verdict::Refuse:
        answer(encodeShortPacket(PacketType::Nak));
        return;
    case BootFaults::Verdict::Abort:
    case BootFaults::Verdict::Status:
        m_writing = false;
        answer(encodeShortPacket(PacketType::AckAbort));
        if (verdict == BootFaults::Verdict::Status)
            respond(m_faults.endStatus, WriteMemory);
        return;
    case BootFaults::Verdict::Drop:
        answer(encodeShortPacket(PacketType::Ack));
        return;
    case BootFaults::Verdict::Power:
        m_flash.program(m_writeAddress, taken.left(taken.size() / 2));
        m_writing = false;
        m_answers.clear();
        m_exit = Exit::PowerCut;
        return;
    case BootFaults::Verdict::Flip:
        taken[taken.size() / 2] = char(taken[taken.size() / 2] ^ 0x10);
        break;
    case BootFaults::Verdict::Take:
    case BootFaults::Verdict::Late:
    case BootFaults::Verdict::NoAck:
        break;
    }
    --m_refusedPackets;
    program(taken);
    if (verdict != BootFaults::Verdict::NoAck)
        answer(encodeShortPacket(PacketType::Ack), verdict == BootFaults::Verdict::Late ? m_faults.lateMs : 0);
    if (m_writeLeft == 0) {
        m_writing = false;
        m_firmwareWhole = true;
        if (verdict != BootFaults::Verdict::NoAck)
            respond(Success, WriteMemory);
    }
}

void Bootloader::program(QByteArrayView bytes)
{
    m_flash.program(m_writeAddress, bytes);
    m_writeAddress += quint32(bytes.size());
    m_writeLeft -= quint32(bytes.size());
}

void Bootloader::answerProperty(quint32 property)
{
    const FlashMemory::Geometry &flash = m_flash.geometry();
    const std::pair<quint32, quint32> values[] = {
        {0x01, kVersion},
        {0x03, flash.base},
        {0x04, flash.size},
        {0x05, flash.sector},
        {0x07, kCommands | (m_faults.readsMemory ? kReadCommand : 0)},
        {0x0B, quint32(m_settings.packetBytes)},
        {0x10, kDeviceId},
        {0x11, m_faults.locked ? 0xC33CC33C : 0x5AA55AA5},
    };
    const auto *const row =
        std::find_if(std::begin(values), std::end(values), [property](const auto &v) { return v.first == property; });
    const bool known = row != std::end(values);
    QByteArray value = littleEndian({known ? row->second : 0});
    value.resize(m_faults.propertyBytes, '\0');
    answer(encodeResponse(PropertyResponse, littleEndian({known ? Success : UnknownProperty}) + value));
}

void Bootloader::respond(quint32 status, quint8 tag, int delayMs)
{
    answer(encodeResponse(GenericResponse, littleEndian({status, tag})), delayMs);
}

void Bootloader::answer(const QByteArray &bytes, int delayMs)
{
    if (m_answers.size() >= kMaxAnswers)
        return;
    m_lastAnswerNs = std::max(m_nowNs, m_lastAnswerNs) + delayMs * kNsPerMs;
    if (m_faults.trickleMs == 0) {
        m_answers.emplace(m_lastAnswerNs, bytes);
    } else {
        for (const char byte : bytes) {
            m_lastAnswerNs += m_faults.trickleMs * kNsPerMs;
            m_answers.emplace(m_lastAnswerNs, QByteArray(1, byte));
        }
    }
    if (m_faults.staleMs > 0)
        m_answers.emplace(m_lastAnswerNs + m_faults.staleMs * kNsPerMs, encodeShortPacket(PacketType::Ack));
}

} // namespace kvsim
