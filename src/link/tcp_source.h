#pragma once

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QTcpSocket>
#include <QTimer>

#include "link/byte_source.h"

/// Bytes over a TCP connection, as serial servers give them: raw, perhaps with a line of text in front, which goes
/// through like everything else. Connecting has a limit of 10 s; a peer that is gone is found out within 10 s. A peer
/// that does not read what it is sent loses what exceeds 1 MiB.
///
/// Base of protocols on top of TCP: they may talk before the source counts as open, and change the bytes on their way.
class TcpSource : public ByteSource
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(TcpSource)

public:
    explicit TcpSource(const SourceAddress &address, QObject *parent = nullptr);
    ~TcpSource() override;

    void open() override;
    void close() override;
    bool isOpen() const override { return m_phase == Phase::Open; }
    qint64 write(const QByteArray &bytes) override;
    bool waitForBytesWritten(int ms) override;
    void finish(int ms) override;
    int replyAllowanceMs() const override;

protected:
    /// The connection stands: talk, then call becomeOpen().
    virtual void begin() { becomeOpen(); }
    /// Bytes from the other end to those of the device.
    virtual QByteArray decode(const QByteArray &bytes) { return bytes; }
    /// Bytes for the device to those for the other end.
    virtual QByteArray encode(const QByteArray &bytes) { return bytes; }

    void becomeOpen();
    /// Closes and reports.
    void fail(SourceFault fault, const QString &detail = {});
    /// Sends bytes as they are. False when they cannot be sent.
    bool sendRaw(const QByteArray &bytes);
    bool isConnected() const { return m_phase == Phase::Talking || m_phase == Phase::Open; }

private:
    enum class Phase { Closed, Connecting, Talking, Open };

    void onConnected();
    void onReadyRead();
    void onError(QAbstractSocket::SocketError error);
    void reportEnd();
    void drain(QDeadlineTimer until);

    QTcpSocket m_socket;
    QTimer m_connectLimit;
    QElapsedTimer m_sinceConnecting;
    QElapsedTimer m_sinceWrite;
    Phase m_phase = Phase::Closed;
    qint64 m_connectMs = 0;   ///< the connection took this long
    QByteArray m_firstBytes;  ///< of the device's, while they can be a text of the server
    bool m_isTextOnly = true; ///< nothing but m_firstBytes has arrived
};
