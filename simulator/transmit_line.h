#pragma once

#include <QByteArray>
#include <QList>

#include <deque>

namespace kvsim {

/// The device's transmit buffer and the serial line after it. Bytes leave in order and no faster than the baud rate;
/// when the line cannot keep up, whole frames are refused, as in a device whose buffer is full. No port and no clock:
/// the owner advances the time, takes the bytes that have left and reports how many the port took.
class TransmitLine
{
public:
    /// Frames are refused beyond this many bytes when the baud rate is unlimited or the reader is slow.
    static constexpr qsizetype kMaxBacklogBytes = 64 * 1024;
    /// Replies are refused beyond this many bytes.
    static constexpr qsizetype kMaxReplyBacklogBytes = 128 * 1024 * 1024;

    /// @param baudRate bits per second, 10 per byte; 0: bytes leave at once
    explicit TransmitLine(int baudRate) : m_bytesPerSecond(double(baudRate) / 10.0) {}

    struct Frame
    {
        QByteArray bytes;
        bool isIntact = true; ///< no fault touched it
    };

    /// Runs the line until `nowNs`, nanoseconds; with a time before the last one, only unlimited lines release their
    /// bytes.
    void advance(qint64 nowNs);

    /// Takes frames that go out together, all or none.
    /// @return false when the buffer has no room: they are lost
    bool pushFrames(const QList<Frame> &frames);
    /// Takes a text reply; it is queued after what is already in the buffer.
    bool pushReply(const QByteArray &bytes);

    /// Time from the last advance() until all bytes have left, nanoseconds; 0 when none are waiting.
    qint64 remainingNs() const;

    /// The bytes that have left the device and are waiting for the port.
    QByteArrayView ready() const { return QByteArrayView(m_bytes).sliced(m_taken, m_left - m_taken); }
    /// The port took the first `count` bytes of ready().
    void take(qsizetype count);
    /// Discards all waiting bytes; frames among them are not counted as sent.
    /// @return how many frames were lost
    int clear();

    quint64 sentBytes() const { return m_sentBytes; }
    /// Frames whose last byte the port took.
    quint64 sentFrames() const { return m_sentFrames; }
    /// Those of them that no fault had touched.
    quint64 sentIntactFrames() const { return m_sentIntactFrames; }

private:
    struct Mark
    {
        quint64 end; // position after the frame's last byte, counted like m_sentBytes
        bool isIntact;
    };

    void append(const QByteArray &bytes);

    double m_bytesPerSecond;
    double m_credit = 0.0; // bytes that the line may still carry by m_nowNs
    qint64 m_nowNs = 0;
    QByteArray m_bytes;
    qsizetype m_taken = 0; // bytes of m_bytes taken by the port
    qsizetype m_left = 0;  // bytes of m_bytes that have left the device
    std::deque<Mark> m_marks;
    quint64 m_acceptedBytes = 0;
    quint64 m_sentBytes = 0;
    quint64 m_sentFrames = 0;
    quint64 m_sentIntactFrames = 0;
};

} // namespace kvsim
