#pragma once

#include <QByteArray>

namespace kvsim {

/// The data phase of a read-memory command in the bootloader: the next packet goes out when the host has acknowledged
/// the previous one. Packets that the host does not answer are not repeated.
class BootRead
{
public:
    /// Starts with all bytes to be read.
    void begin(const QByteArray &bytes, int packetBytes);
    void stop() { m_isActive = false; }
    bool isActive() const { return m_isActive; }

    /// The packet to send now, or to repeat after a negative acknowledge; empty: everything is sent.
    QByteArray packet() const;
    /// The host has acknowledged what was sent last: first the response, then each packet.
    void acknowledged();

private:
    QByteArray m_bytes;
    qsizetype m_offset = 0;
    qsizetype m_packetBytes = 0;
    bool m_isActive = false;
    bool m_isAnnounced = false; // the response itself has been acknowledged
};

} // namespace kvsim
