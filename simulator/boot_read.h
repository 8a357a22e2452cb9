#pragma once

#include <QByteArray>

namespace kvsim {

/// The data phase of a read-memory command in the bootloader: the next packet goes out when the host has acknowledged
/// the one before. What the host does not answer is not sent again.
class BootRead
{
public:
    /// Begins with all bytes to be read.
    void begin(const QByteArray &bytes, int packetBytes);
    void stop() { m_isActive = false; }
    bool isActive() const { return m_isActive; }

    /// The packet to send now, again after a negative acknowledge; empty: all is sent.
    QByteArray packet() const;
    /// The host has acknowledged what was sent last: the response first, then packet by packet.
    void acknowledged();

private:
    QByteArray m_bytes;
    qsizetype m_offset = 0;
    qsizetype m_packetBytes = 0;
    bool m_isActive = false;
    bool m_isAnnounced = false; // the response's own acknowledge has come
};

} // namespace kvsim
