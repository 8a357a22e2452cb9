#pragma once

#include "link/com_port_client.h"
#include "link/tcp_source.h"

/// A serial port over the network with its settings (RFC 2217): sets the rate, 8N1 and no flow control before it counts
/// as open. A server that does not answer within 2 s is used as it is; one that sets another rate is not used. A NOP
/// every 5 s shows both ends that the other is there.
class Rfc2217Source : public TcpSource
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Rfc2217Source)

public:
    explicit Rfc2217Source(const SourceAddress &address, QObject *parent = nullptr);

    void open() override;
    void close() override;

protected:
    void begin() override;
    QByteArray decode(const QByteArray &bytes) override;
    QByteArray encode(const QByteArray &bytes) override { return telnet::doubled(bytes); }

private:
    void goOnWithout();
    void takeState();

    TelnetDecoder m_decoder;
    ComPortClient m_client;
    QTimer m_answerLimit;
    QTimer m_nopTimer;
};
