#pragma once

#include <QByteArray>

#include <map>

#include "simulator/boot_faults.h"
#include "simulator/boot_packets.h"
#include "simulator/boot_read.h"
#include "simulator/boot_texts.h"
#include "simulator/flash_memory.h"

namespace kvsim {

/// The resident bootloader of a device: it runs after every restart and accepts new firmware over the same serial line.
/// It starts the firmware when no host talks to it for a while. Once a host has talked to it, or while the firmware is
/// incomplete (erased, or partly written), it keeps running.
///
/// Every command is acknowledged and answered by a response packet; the data packets of a write are acknowledged one by
/// one, the last one also with a response. It waits for acknowledges from its host only while it sends memory. A packet
/// that stays incomplete for kPacketTimeoutNs is forgotten, and a command ends the data phase of the previous one.
///
/// No port and no clock of its own: bytes and times are handed in, answers handed out. Times are nanoseconds of any
/// monotonic clock.
class Bootloader
{
public:
    struct Settings
    {
        FlashMemory::Geometry flash;
        int packetBytes = 32; ///< largest payload of a data packet, as reported
        int waitMs = 1000;    ///< for the host's first packet; 0: the device has no bootloader
        quint64 seed = 1;     ///< seed of random faults
    };
    static constexpr qint64 kPacketTimeoutNs = 200'000'000;
    /// Waiting answers beyond this number are lost.
    static constexpr std::size_t kMaxAnswers = 10'000;

    explicit Bootloader(const Settings &settings);

    bool isPresent() const { return m_settings.waitMs > 0; }
    /// Starts waiting for a host.
    void enter(qint64 nowNs);
    /// Takes received bytes in chunks of any size.
    void receive(QByteArrayView bytes, qint64 nowNs);
    /// Answers that are due.
    QByteArray takeAnswers(qint64 nowNs);

    /// What the bootloader does next, once its answers are out.
    enum class Exit { None, Reset, StartFirmware, PowerCut };
    Exit exit(qint64 nowNs) const;

    /// Data packets that arrived in a data phase, refused ones included.
    quint64 packets() const { return m_packets; }
    /// Those of them that were not programmed.
    quint64 refusedPackets() const { return m_refusedPackets; }
    /// Text that arrived instead of packets.
    const BootTexts &texts() const { return m_texts; }
    BootFaults &faults() { return m_faults; }
    const FlashMemory &flash() const { return m_flash; }

private:
    void handle(const PacketReader::Packet &packet);
    void handleCommand(const QByteArray &payload);
    void handleData(const QByteArray &payload);
    void handleShort(PacketReader::Kind kind);
    void program(QByteArrayView bytes);
    void answerRead(quint32 address, quint32 count);
    quint32 erase(quint32 address, quint32 count);
    quint32 beginWrite(quint32 address, quint32 count);
    void answerProperty(quint32 property);
    void answer(const QByteArray &bytes, int delayMs = 0);
    void respond(quint32 status, quint8 tag, int delayMs = 0);

    Settings m_settings;
    FlashMemory m_flash;
    BootFaults m_faults;
    BootTexts m_texts;
    PacketReader m_reader;
    BootRead m_read;
    std::multimap<qint64, QByteArray> m_answers; // by the time they are due
    qint64 m_nowNs = 0;
    qint64 m_lastByteNs = 0;   // received
    qint64 m_lastAnswerNs = 0; // due time of the last answer; later answers follow it
    qint64 m_enteredNs = 0;
    bool m_spokenTo = false;
    bool m_firmwareWhole = true;
    bool m_writing = false; // a data phase
    quint32 m_writeAddress = 0;
    quint32 m_writeLeft = 0;
    Exit m_exit = Exit::None;
    quint64 m_packets = 0;
    quint64 m_refusedPackets = 0;
};

} // namespace kvsim
