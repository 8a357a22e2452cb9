#pragma once

#include <QList>
#include <QMutex>
#include <QMutexLocker>

#include <functional>
#include <optional>
#include <thread>
#include <utility>

#include "support/frames.h"
#include "support/pty_pair.h"

/// A resident bootloader on a pseudo-terminal, answering from a separate thread: every command with an acknowledge and
/// a response, every data packet with an acknowledge. A script may replace any answer.
class BootloaderPeer
{
public:
    /// Maps a packet (or "AT+RST\r\n") and the number of packets before it to the bytes of the answer; none: the usual
    /// answer. Runs in the peer's thread.
    using Script = std::function<std::optional<QByteArray>(const QByteArray &packet, int index)>;

    explicit BootloaderPeer(Script script = {})
        : m_script(std::move(script)), m_thread([this](auto stop) { run(stop); })
    {}

    QString path() const { return m_pty.path(); }

    /// Pulls the cable. For the script.
    void unplug() { m_pty.unplug(); }

    /// Everything received, packet by packet.
    QList<QByteArray> packets() const
    {
        const QMutexLocker lock(&m_mutex);
        return m_packets;
    }

    /// Response to a command: header, status, values.
    static QByteArray response(quint8 tag, quint32 status, const QByteArray &values)
    {
        return frames::packet(frames::Bytes().u8(tag).u8(0).u8(0).u8(1).u32(status).raw(values), 0xA4);
    }
    static QByteArray ack() { return frames::hex("5A A1"); }
    static QByteArray propertyReply(const QByteArray &value) { return ack() + response(0xA7, 0, value); }

    /// A device with packets of 32 bytes, 128 KiB of flash in sectors of 1 KiB, and bootloader 2.1.3.
    static QByteArray usual(const QByteArray &packet)
    {
        if (packet.size() == 2)
            return frames::hex("5A A7 03 01 02 50 00 00 AA EA");
        if (quint8(packet.at(1)) == 0xA5)
            return ack();
        switch (quint8(packet.at(6))) {
        case 0x07:
            switch (quint8(packet.at(10))) {
            case 0x01:
                return propertyReply(frames::hex("03 01 02 4B"));
            case 0x0B:
                return propertyReply(frames::Bytes().u32(32));
            case 0x04:
                return propertyReply(frames::Bytes().u32(128 * 1024));
            case 0x10:
                return propertyReply(frames::hex("0A B1 C2 D3"));
            default:
                return propertyReply(frames::Bytes().u32(1024));
            }
        default:
            return ack() + response(0xA0, 0, frames::Bytes().u32(packet.at(6)));
        }
    }

    /// Size of the command or packet at the start of the bytes; 0 or less when it is not complete.
    static qsizetype packetSize(const QByteArray &bytes)
    {
        if (bytes.startsWith("AT"))
            return bytes.indexOf('\n') + 1;
        if (bytes.size() < 2 || quint8(bytes.at(1)) == 0xA6)
            return bytes.size() < 2 ? 0 : 2;
        if (bytes.size() < 6)
            return 0;
        const qsizetype size = 6 + qFromLittleEndian<quint16>(bytes.constData() + 2);
        return bytes.size() < size ? 0 : size;
    }

    ~BootloaderPeer() = default;
    Q_DISABLE_COPY_MOVE(BootloaderPeer)

private:
    void run(const std::stop_token &stop)
    {
        for (QByteArray pending; !stop.stop_requested();) {
            m_pty.waitForInput(5);
            pending += m_pty.read();
            for (qsizetype size = 0; (size = packetSize(pending)) > 0; pending.remove(0, size))
                answer(pending.left(size));
        }
    }

    void answer(const QByteArray &packet)
    {
        int index = 0;
        {
            const QMutexLocker lock(&m_mutex);
            index = int(m_packets.size());
            m_packets.append(packet);
        }
        const std::optional<QByteArray> scripted = m_script ? m_script(packet, index) : std::nullopt;
        if (scripted || !packet.startsWith("AT"))
            m_pty.write(scripted ? *scripted : usual(packet), 1000);
    }

    PtyPair m_pty;
    Script m_script;
    mutable QMutex m_mutex; ///< guards m_packets
    QList<QByteArray> m_packets;
    std::jthread m_thread; ///< last: ends before the other members are destroyed
};
