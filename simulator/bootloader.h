#pragma once

#include <QByteArray>

#include <map>

#include "simulator/boot_faults.h"
#include "simulator/boot_packets.h"
#include "simulator/boot_read.h"
#include "simulator/boot_texts.h"
#include "simulator/flash_memory.h"

namespace kvsim {

/// The bootloader that resides in a device: it runs after every restart, and takes a new firmware over the same serial
/// line. It starts the firmware when nobody talks to it for a while. Once spoken to, and as long as the firmware is not
/// whole (erased, or written in part), it stays.
///
/// Every command is acknowledged and answered by a response packet; the data packets of a write are acknowledged one by
/// one, the last one with a response as well. It waits for acknowledges of its host only while it sends memory. A
/// packet that is left incomplete for kPacketTimeoutNs is forgotten, and a command ends the data phase of the one
/// before.
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
        int waitMs = 1000;    ///< for the host's first word; 0: the device has no bootloader
        quint64 seed = 1;     ///< of the faults' randomness
    };
    static constexpr qint64 kPacketTimeoutNs = 200'000'000;
    /// Answers that wait beyond this number are lost.
    static constexpr std::size_t kMaxAnswers = 10'000;

    explicit Bootloader(const Settings &settings);

    bool isPresent() const { return m_settings.waitMs > 0; }
    /// Begins to wait for a host.
    void enter(qint64 nowNs);
    /// Takes received bytes in pieces of any size.
    void receive(QByteArrayView bytes, qint64 nowNs);
    /// Answers whose time has come.
    QByteArray takeAnswers(qint64 nowNs);

    /// What the bootloader does next, once its answers are out.
    enum class Exit { None, Reset, StartFirmware, PowerCut };
    Exit exit(qint64 nowNs) const;

    /// Data packets that came in a data phase, refused ones included.
    quint64 packets() const { return m_packets; }
    /// Those of them that were not programmed.
    quint64 refusedPackets() const { return m_refusedPackets; }
    /// Text that came instead of packets.
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
    qint64 m_lastByteNs = 0;   // heard
    qint64 m_lastAnswerNs = 0; // due time of the last answer; what follows comes behind it
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
