#include "link/memory_read.h"

#include <QtEndian>

namespace {

constexpr quint8 kReadResponse = 0xA3;
constexpr quint8 kGenericResponse = 0xA0;
constexpr quint8 kReadMemory = 0x03;
constexpr qsizetype kResponseSize = 12;
constexpr int kStatusOffset = 4;
constexpr int kCountOffset = 8;
constexpr int kMaxDamagedInARow = 20;

quint32 u32At(const QByteArray &payload, int offset)
{
    return qFromLittleEndian<quint32>(payload.constData() + offset);
}

} // namespace

MemoryRead::Answer MemoryRead::takeResponse(const QByteArray &payload)
{
    if (m_state == State::Ended || payload.size() < kResponseSize)
        return Answer::Nothing;
    const auto tag = quint8(payload.at(0));
    const quint32 status = u32At(payload, kStatusOffset);
    if (m_state == State::Announced && (tag == kReadResponse || (tag == kGenericResponse && status != 0))) {
        m_status = status;
        if (status != 0)
            return end(BootloaderFault::Refused, Answer::Acknowledge);
        if (u32At(payload, kCountOffset) != m_left)
            return end(BootloaderFault::WrongAnswer, Answer::Abort);
        m_state = State::Data;
        return Answer::Acknowledge;
    }
    // A late answer to something else is not an answer to this.
    if (m_state == State::Data && tag == kGenericResponse && payload.at(kCountOffset) == char(kReadMemory)) {
        m_status = status;
        return end(status != 0 || m_left > 0 ? BootloaderFault::Aborted : BootloaderFault::None, Answer::Acknowledge);
    }
    return Answer::Nothing;
}

MemoryRead::Answer MemoryRead::takeData(const QByteArray &payload)
{
    if (m_state != State::Data)
        return Answer::Nothing; // samples, or the rest of an earlier read
    if (payload.isEmpty() || quint64(payload.size()) > m_left)
        return end(BootloaderFault::WrongAnswer, Answer::Abort);
    m_damaged = 0;
    m_bytes += payload;
    m_left -= quint32(payload.size());
    return Answer::Acknowledge;
}

MemoryRead::Answer MemoryRead::takeDamaged()
{
    if (m_state != State::Data)
        return Answer::Nothing;
    if (++m_damaged > kMaxDamagedInARow)
        return end(BootloaderFault::WrongAnswer, Answer::Abort);
    return Answer::Repeat;
}

MemoryRead::Answer MemoryRead::end(BootloaderFault fault, Answer answer)
{
    m_fault = fault;
    m_state = State::Ended;
    return answer;
}
