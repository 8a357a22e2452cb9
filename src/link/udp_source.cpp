#include "link/udp_source.h"

#include <QHostAddress>
#include <QNetworkProxy>

namespace {

constexpr int kFirstSilenceMs = 1000;
constexpr int kSilenceMs = 5000;
/// Bursts wait here while the thread is busy; the system may grant less.
constexpr int kReceiveBufferBytes = 4 * 1024 * 1024;
constexpr int kMaxDatagrams = 1000; // in one go, so that a flood does not keep the thread from closing

/// The same port here for every connection to a source: a server cannot know when a client over UDP has left, and may
/// take only one. So who comes back is still the one that it knows.
quint16 ownPort(const SourceAddress &address)
{
    constexpr quint16 kFirst = 49152; // from here on ports are free for such use
    constexpr quint16 kCount = 16384;
    return quint16(kFirst + qChecksum(address.shortText().toUtf8()) % kCount);
}

} // namespace

UdpSource::UdpSource(const SourceAddress &address, QObject *parent)
    : ByteSource(address, parent), m_socket(this), m_silence(this)
{
    m_socket.setProxy(QNetworkProxy::NoProxy);
    connect(&m_silence, &QTimer::timeout, this, &UdpSource::ask);
    connect(&m_socket, &QAbstractSocket::connected, this, &UdpSource::onConnected);
    connect(&m_socket, &QIODevice::readyRead, this, &UdpSource::onReadyRead);
    connect(&m_socket, &QAbstractSocket::errorOccurred, this, &UdpSource::onError, Qt::QueuedConnection);
}

UdpSource::~UdpSource()
{
    m_socket.disconnect(this);
}

void UdpSource::open()
{
    m_phase = Phase::LookingUp;
    if (!m_socket.bind(QHostAddress(QHostAddress::Any), ownPort(address()), QAbstractSocket::DontShareAddress))
        m_socket.bind();
    m_socket.connectToHost(address().name, address().port); // datagrams of others are dropped by the system
}

void UdpSource::close()
{
    m_phase = Phase::Closed;
    m_silence.stop();
    m_socket.abort();
}

void UdpSource::onConnected()
{
    if (m_phase != Phase::LookingUp)
        return;
    m_socket.setSocketOption(QAbstractSocket::ReceiveBufferSizeSocketOption, kReceiveBufferBytes);
    m_phase = Phase::Open;
    ask();
    m_silence.start(kFirstSilenceMs);
    emit opened();
}

void UdpSource::ask()
{
    m_socket.write("\n", 1);
}

void UdpSource::onReadyRead()
{
    // Read without a question first: asking for a pending datagram swallows the refusal of an earlier one.
    for (int i = 0; i < kMaxDatagrams && m_phase == Phase::Open; ++i) {
        const qint64 nowNs = steadyNs();
        const qint64 size = m_socket.readDatagram(m_datagram.data(), qint64(m_datagram.size()));
        if (size < 0)
            return;
        m_silence.start(kSilenceMs);
        if (size > 0)
            emit received(QByteArray(m_datagram.data(), size), nowNs);
    }
}

void UdpSource::onError(QAbstractSocket::SocketError error)
{
    switch (m_phase == Phase::Closed ? QAbstractSocket::UnknownSocketError : error) {
    case QAbstractSocket::HostNotFoundError:
        return fail(SourceFault::HostNotFound);
    case QAbstractSocket::ConnectionRefusedError:
    case QAbstractSocket::RemoteHostClosedError:
        return fail(SourceFault::Refused);
    case QAbstractSocket::NetworkError:
        return fail(SourceFault::Unreachable, m_socket.errorString());
    default:
        return; // a datagram that could not be sent or read
    }
}

void UdpSource::fail(SourceFault fault, const QString &detail)
{
    const SourceFailure why = failure(fault, detail);
    close();
    emit failed(why);
}
