#pragma once

#include <QByteArray>
#include <QObject>

/// Deframer of the serial link: a byte-driven state machine that finds framing packets in the stream, checks them and
/// hands the payload of each good data packet upward. Lives in the port worker's thread; it has no lock.
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
/// Nothing is reported for bad input; the decoder returns to hunting from the byte that follows and never looks at a
/// rejected packet's bytes again. A packet may be split over any number of reads.
class KbootProtocol : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(KbootProtocol)

public:
    explicit KbootProtocol(QObject *parent = nullptr);

    /// Feeds one chunk as it was read from the port. The chunk may hold any part of any number of packets.
    void serial_read(const QByteArray &data);

    /// Feeds bytes through the state machine; results are kbootRecv() and responseReceived().
    void decode(const QByteArray &data);

    /// Forgets a packet in progress, all collected bytes and the response flag.
    void clear();

    /// CRC of a packet: over bytes 0..3 and everything from byte 6 on, starting from 0. The packet's own CRC field is
    /// passed over. A packet of fewer than 6 bytes gives the CRC of its first four bytes at most.
    static quint16 do_crc_check(const QByteArray &packet);

    /// Running CRC-16/XMODEM (polynomial 0x1021, no reflection, no final XOR): continues from `*crc` over `length`
    /// bytes, stores the result back and returns it.
    static quint16 crc16(quint16 *crc, const quint8 *data, quint32 length);

    /// Bytes of the packet in progress or just ended; while hunting, the discarded bytes behind them. The type byte of
    /// an acknowledge stays here for whoever waits for it.
    const QByteArray &frameBuffer() const { return m_frameBuffer; }

    /// A packet that counts as a response (types 0xA4 to 0xA7) has arrived since the flag was last cleared.
    bool responseReceived() const { return m_responseReceived; }

signals:
    /// Payload of one good data packet (type 0xA5) without its header. Emitted from inside decode(), in stream order.
    void kbootRecv(QByteArray payload);

    /// Bytes that this object wants written to the port.
    void serialSend(QByteArray data);

private:
    enum State { Hunting, Type, LengthLow, LengthHigh, CrcLow, CrcHigh, Payload };

    void decodeByte(char byte);
    void startPacket();
    void takeType(quint8 type);
    void finishHeader();
    void finishPacket();

    QByteArray m_rxStaging;
    QByteArray m_frameBuffer;
    int m_decodeState = Hunting;
    int m_expectedLength = 0;
    bool m_responseReceived = false;
};
