#pragma once

#include <QByteArray>
#include <QElapsedTimer>
#include <QObject>

#include <functional>

#include "link/bootloader_state.h"
#include "link/link_health.h"

class MemoryRead;
class QEventLoop;

/// Deframer of the serial link: a byte-driven state machine that finds framing packets in the stream, checks them and
/// hands the payload of each good data packet upward; and, in the same packet format, the host's side of the dialogue
/// with a resident bootloader. Lives in the port worker's thread; it has no lock.
///
/// Framing packet, multi-byte fields little-endian:
///
///     offset  width  field
///     0       1      start byte 0x5A
///     1       1      packet type 0xA1..0xA7
///     2       2      payload length n
///     4       2      CRC-16/XMODEM over bytes 0..3 and the payload
///     6       n      payload
///
/// Bad input is not reported, only counted; the decoder returns to hunting from the byte that follows and never looks
/// at a rejected packet's bytes again. A packet may be split over any number of reads.
///
/// The client waits in nested event loops, and checks what has arrived at whole milliseconds after sending. Except
/// while reading memory it acknowledges nothing that the target sends. connect() and download() act on no status word;
/// writeImage() and readMemory(), the steps of an update that is verified by reading back, stop at one. A command
/// packet's payload:
///
///     offset  width  field
///     0       1      command tag
///     1       2      flags and reserved, 0
///     3       1      number of parameters
///     4       4 n    parameters, u32
class KbootProtocol : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(KbootProtocol)

public:
    explicit KbootProtocol(QObject *parent = nullptr);

    /// When the bytes that follow were received, in milliseconds since 1970; 0: now, by the computer's clock.
    void setPlayedTime(qint64 wallMs) { m_playedMs = wallMs; }

    /// Feeds one chunk as it was read from the port. The chunk may hold any part of any number of packets.
    void serial_read(const QByteArray &data);

    /// Feeds bytes through the state machine; results are kbootRecv() and responseReceived().
    void decode(const QByteArray &data);

    /// Forgets a packet in progress, all collected bytes, the response flag and the counts.
    void clear();

    /// CRC of a packet: over bytes 0..3 and everything from byte 6 on, starting from 0. The packet's own CRC field is
    /// skipped. A packet of fewer than 6 bytes gives the CRC of its first four bytes at most.
    static quint16 do_crc_check(const QByteArray &packet);

    /// Running CRC-16/XMODEM (polynomial 0x1021, no reflection, no final XOR): continues from `*crc` over `length`
    /// bytes, stores the result there and returns it.
    static quint16 crc16(quint16 *crc, const quint8 *data, quint32 length);

    /// Bytes of the packet in progress or just ended; while hunting, followed by the discarded bytes. The type byte of
    /// an acknowledge stays here for whoever waits for it.
    const QByteArray &frameBuffer() const { return m_frameBuffer; }

    /// A packet that counts as a response (types 0xA4 to 0xA7) has arrived since the flag was last cleared.
    bool responseReceived() const { return m_responseReceived; }

    /// What has been decoded and lost since the last clear(). This object's thread.
    LinkHealth health() const;

    using QObject::connect;
    /// Pings the bootloader and reads its facts; an unanswered ping is not a fault, a property that is missing or does
    /// not have 4 bytes is. Takes up to 3 s when nothing answers.
    bool connect();

    /// Erases the size of the image from `startAddress` on, writes the image in packets of the target's maximum size,
    /// each sent up to `attempts` times, and resets the target. False at the first step that fails.
    bool download(const QByteArray &image, int startAddress, int attempts);

    /// The same without the reset, in packets of at most `packetSize` bytes (0: the target's maximum size). It stops at
    /// the first status other than 0, and waits up to 1.5 s for the target's answer to the whole write.
    bool writeImage(const QByteArray &image, quint32 address, int attempts, int packetSize);

    /// The two bytes that a bootloader answers and a firmware ignores.
    static QByteArray pingPacket();

    /// Queries what the bootloader offers beyond its facts. Takes up to 4.5 s when it does not answer.
    BootloaderOffer inquire();

    /// Reads flash into memory(). False when the target refuses or what arrives makes no sense; damaged packets are
    /// requested again, as is the rest after 1.5 s of silence.
    bool readMemory(quint32 address, quint32 byteCount);
    /// What the last readMemory() read, from its address on; less than requested when it failed.
    const QByteArray &memory() const { return m_memory; }

    /// Has the target start its firmware. Waits at most 1500 ms for the response.
    void restart();

    /// Ends a connect() or download() that is waiting: it returns false at its next step, with the fault `reason`. The
    /// first reason counts.
    void cancel(BootloaderFault reason = BootloaderFault::PortClosed);

    /// Notes that the port failed before connect() or download() could run.
    void portFailed(BootloaderStep step);

    /// Answers come over a network: every wait for the target takes this much longer, in milliseconds, and a data
    /// packet is no answer. 0: a cable. clear() keeps it.
    void setReplyAllowance(int ms) { m_replyAllowanceMs = ms; }

    /// Sends one command and waits 1500 ms for a response; true when one arrived.
    bool cmd_packet(unsigned char tag, unsigned char paramCount, const unsigned int *params);
    /// Value of a property: the response without framing header, command header and status word. Without a response,
    /// whatever is in the frame buffer.
    QByteArray cmd_get_property(unsigned char property);
    bool cmd_flash_erase_region(unsigned int address, unsigned int byteCount);
    bool cmd_flash_write_memory(unsigned int address, unsigned int byteCount);
    /// Always true: a target that resets may be too quick to answer.
    bool cmd_reset();
    /// Sends one data packet and waits 200 ms for its acknowledge. Payloads of up to 65535 bytes.
    bool cmd_send_data_packet(const QByteArray &payload);

    /// Announces a read; memory() then takes what arrives. See readMemory().
    bool cmd_flash_read_memory(unsigned int address, unsigned int byteCount);

    /// Sends a packet and waits for a response for at most `waits` steps of 1 ms.
    bool serial_send_and_wait_resp(const QByteArray &packet, int waits);
    /// Runs an event loop for `ms` milliseconds.
    static void delay(unsigned int ms);

    /// Facts as the last connect() read them; how the last connect() or download() went. Other threads may read them
    /// while neither runs.
    const BootloaderFacts &facts() const { return m_facts; }
    const BootloaderOutcome &outcome() const { return m_outcome; }

signals:
    /// Payload of one good data packet (type 0xA5) without its header. Emitted from inside decode(), in stream order.
    void kbootRecv(QByteArray payload);

    /// A complete response to a ping has arrived, requested or not.
    void pingAnswered();

    /// Bytes that this object wants written to the port.
    void serialSend(QByteArray data);

    /// The target has acknowledged this percentage of the image, 0 to 100. Emitted after each data packet.
    void downloadProgress(int percent);

    /// A step begins, or this many bytes of the image have been acknowledged by the target, or read back.
    void downloadAdvanced(BootloaderStep step, qint64 bytes);

private:
    enum State { Hunting, Type, LengthLow, LengthHigh, CrcLow, CrcHigh, Payload };

    void decodeByte(char byte);
    void startPacket();
    void takeType(quint8 type);
    void finishHeader();
    void finishPacket();
    void countDiscarded(quint8 byte);
    void noteError(LinkError error);

    // client
    enum class OnStatus { GoOn, End };
    /// A wait in progress: what it waits for, and the loop to leave when that has arrived.
    struct Wait
    {
        QEventLoop *loop;
        const std::function<bool()> *isMet;
    };

    bool waitFor(const QElapsedTimer &sinceSent, int steps, const std::function<bool()> &isMet);
    void wakeWait();
    QByteArray commandPacket(quint8 tag, const QList<quint32> &parameters) const;
    void beginDownload();
    bool connectSteps();
    bool writeSteps(const QByteArray &image, quint32 address, int attempts, int packetSize, OnStatus onStatus);
    bool sendChunk(const QByteArray &chunk, int attempts);
    quint8 dataAnswer() const;
    void awaitStatus(int steps);
    bool takeForRead(quint8 type, bool fits);
    bool readPart(quint32 address, quint32 byteCount);
    std::optional<quint32> offered(quint8 property);
    void begin(BootloaderStep step);
    bool fail(BootloaderFault fault);
    bool isCancelled() const { return m_cancelReason != BootloaderFault::None; }
    void forgetReply();
    bool noteStatus();
    std::optional<quint32> responseStatus() const;
    QByteArray propertyValue(quint8 property);

    QByteArray m_rxStaging;
    QByteArray m_frameBuffer;
    int m_decodeState = Hunting;
    int m_expectedLength = 0;
    bool m_responseReceived = false;
    LinkHealth m_health;
    bool m_errorNoted = false; ///< in the chunk being decoded
    qint64 m_playedMs = 0;     ///< see setPlayedTime()

    int m_replyAllowanceMs = 0;
    BootloaderFacts m_facts;
    BootloaderOutcome m_outcome;
    QByteArray m_memory;
    MemoryRead *m_read = nullptr;                           ///< while readMemory() runs
    const Wait *m_wait = nullptr;                           ///< the innermost
    BootloaderFault m_cancelReason = BootloaderFault::None; ///< of the operation that runs, or ran last
};
