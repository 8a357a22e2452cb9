#pragma once

#include <QByteArray>

#include "link/bootloader_state.h"

/// What a target sends after a read-memory command, taken packet by packet as it comes off the line, and how each has
/// to be answered. Payloads, little-endian:
///
///     response to the command    A3, flags (1: data follow), 0, 2, status u32, byte count u32
///     data                       flash contents, in order; carries no address
///     response at the end        A0, 0, 0, 2, status u32, 03, 0, 0, 0
///
/// The target goes on after an acknowledge and repeats a packet after a negative one. No port and no clock: the owner
/// ends a read that no longer advances. Any bytes may arrive; at most the bytes requested are kept.
class MemoryRead
{
public:
    /// Appends what arrives to `bytes`, at most `byteCount` (above 0).
    MemoryRead(QByteArray &bytes, quint32 byteCount) : m_bytes(bytes), m_left(byteCount) {}

    enum class Answer { Nothing, Acknowledge, Repeat, Abort };
    Answer takeResponse(const QByteArray &payload);
    Answer takeData(const QByteArray &payload);
    /// A data packet whose check value does not match.
    Answer takeDamaged();

    /// Nothing more is expected: either everything has arrived, or it has failed.
    bool isEnded() const { return m_state == State::Ended; }
    bool isComplete() const { return isEnded() && m_left == 0 && m_fault == BootloaderFault::None; }
    /// Why it failed; also None while it has not ended.
    BootloaderFault fault() const { return m_fault; }
    /// The target's reason; 0 when it gave none.
    quint32 status() const { return m_status; }

private:
    enum class State { Announced, Data, Ended };

    Answer end(BootloaderFault fault, Answer answer);

    QByteArray &m_bytes;
    quint32 m_left;
    State m_state = State::Announced;
    BootloaderFault m_fault = BootloaderFault::None;
    quint32 m_status = 0;
    int m_damaged = 0; ///< in a row
};
