#pragma once

#include <QTimer>
#include <QUdpSocket>

#include <array>

#include "link/byte_source.h"

/// Datagrams from one host and port; each is a chunk, in the order of arrival. They have no numbers: one that is lost
/// or late is not noticed here. One byte, a line end, is sent at the start, from which the other end learns where to
/// send: again every second until something arrives, and after 5 s of silence, for an end that has started again.
/// Nothing else is sent.
class UdpSource : public ByteSource
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(UdpSource)

public:
    explicit UdpSource(const SourceAddress &address, QObject *parent = nullptr);
    ~UdpSource() override;

    void open() override;
    void close() override;
    bool isOpen() const override { return m_phase == Phase::Open; }

private:
    enum class Phase { Closed, LookingUp, Open };

    void onConnected();
    void onReadyRead();
    void onError(QAbstractSocket::SocketError error);
    void ask();
    void fail(SourceFault fault, const QString &detail = {});

    QUdpSocket m_socket;
    QTimer m_silence;
    std::array<char, 65536> m_datagram{}; ///< the largest fits
    Phase m_phase = Phase::Closed;
};
