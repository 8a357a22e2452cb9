#include "simulator/boot_read.h"

#include <algorithm>

#include "simulator/boot_packets.h"
#include "simulator/frame_encoder.h"

namespace kvsim {

void BootRead::begin(const QByteArray &bytes, int packetBytes)
{
    m_bytes = bytes;
    m_offset = 0;
    m_packetBytes = std::max(1, packetBytes);
    m_isActive = true;
    m_isAnnounced = false;
}

QByteArray BootRead::packet() const
{
    const QByteArray payload = m_bytes.mid(m_offset, m_packetBytes);
    return payload.isEmpty() ? QByteArray() : encodePacket(quint8(PacketType::Data), payload);
}

void BootRead::acknowledged()
{
    if (m_isAnnounced)
        m_offset += m_packetBytes;
    m_isAnnounced = true;
}

} // namespace kvsim
