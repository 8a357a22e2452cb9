#include "link/tcp_source.h"

#include <QNetworkProxy>
#include <QRegularExpression>

#include <algorithm>

#include "link/socket_options.h"

namespace {

constexpr int kConnectMs = 10'000;
constexpr qint64 kMaxUnsentBytes = 1024 * 1024;
/// Longer than what servers say before they close a connection.
constexpr qsizetype kMaxTextBytes = 512;
constexpr qsizetype kMaxReasonLength = 120;
/// What was sent longer ago has arrived, or never will.
constexpr qint64 kRecentMs = 500;
/// Serial servers collect bytes for up to 20 ms, and behind one that is near there may be a tunnel to one that is far.
constexpr int kNetworkMs = 250;
constexpr int kMaxAllowanceMs = 1000;

/// The last line of what a server has said; empty when it is not text.
QString lastLine(const QByteArray &bytes)
{
    const bool isText = std::all_of(bytes.cbegin(), bytes.cend(), [](char c) {
        return (c >= ' ' && c <= '~') || c == '\r' || c == '\n' || c == '\t';
    });
    if (!isText)
        return {};
    const QByteArray line = bytes.trimmed();
    return QString::fromLatin1(line.mid(line.lastIndexOf('\n') + 1)).left(kMaxReasonLength);
}

} // namespace

TcpSource::TcpSource(const SourceAddress &address, QObject *parent)
    : ByteSource(address, parent), m_socket(this), m_connectLimit(this)
{
    m_socket.setProxy(QNetworkProxy::NoProxy);
    m_connectLimit.setSingleShot(true);
    m_connectLimit.setInterval(kConnectMs);
    connect(&m_connectLimit, &QTimer::timeout, this, [this] { fail(SourceFault::NoAnswer); });
    // The time that the look-up of the name takes says nothing about the way.
    connect(&m_socket, &QAbstractSocket::hostFound, this, [this] { m_sinceConnecting.start(); });
    connect(&m_socket, &QAbstractSocket::connected, this, &TcpSource::onConnected);
    // Queued: waiting for bytes to be written also reads, and must neither deliver nor close inside the caller's call.
    connect(&m_socket, &QIODevice::readyRead, this, &TcpSource::onReadyRead, Qt::QueuedConnection);
    connect(&m_socket, &QAbstractSocket::errorOccurred, this, &TcpSource::onError, Qt::QueuedConnection);
}

TcpSource::~TcpSource()
{
    m_socket.disconnect(this); // its destructor reports the end
}

void TcpSource::open()
{
    m_phase = Phase::Connecting;
    m_firstBytes.clear();
    m_isTextOnly = true;
    m_sinceConnecting.start();
    m_connectLimit.start();
    m_socket.connectToHost(address().name, address().port);
}

void TcpSource::close()
{
    m_phase = Phase::Closed;
    m_connectLimit.stop();
    m_socket.abort();
}

void TcpSource::onConnected()
{
    if (m_phase != Phase::Connecting)
        return;
    m_connectLimit.stop();
    m_connectMs = m_sinceConnecting.elapsed();
    m_socket.setSocketOption(QAbstractSocket::LowDelayOption, 1);
    socket_options::findDeadPeer(m_socket.socketDescriptor());
    m_phase = Phase::Talking;
    begin();
}

void TcpSource::becomeOpen()
{
    if (m_phase != Phase::Talking)
        return;
    m_phase = Phase::Open;
    emit opened();
}

void TcpSource::onReadyRead()
{
    if (!isConnected() || m_socket.bytesAvailable() <= 0)
        return;
    const qint64 nowNs = steadyNs();
    const QByteArray bytes = decode(m_socket.readAll());
    if (bytes.isEmpty())
        return;
    m_isTextOnly = m_isTextOnly && m_firstBytes.size() + bytes.size() <= kMaxTextBytes;
    if (m_isTextOnly)
        m_firstBytes += bytes;
    emit received(bytes, nowNs);
}

void TcpSource::onError(QAbstractSocket::SocketError error)
{
    if (m_phase == Phase::Closed || m_socket.state() == QAbstractSocket::ConnectedState)
        return; // closed already; or a wait was over before everything was written
    onReadyRead();
    switch (error) {
    case QAbstractSocket::RemoteHostClosedError:
        return reportEnd();
    case QAbstractSocket::HostNotFoundError:
        return fail(SourceFault::HostNotFound);
    case QAbstractSocket::ConnectionRefusedError:
        return fail(SourceFault::Refused);
    case QAbstractSocket::SocketTimeoutError:
        return fail(isConnected() ? SourceFault::Lost : SourceFault::NoAnswer);
    default:
        return fail(isConnected() ? SourceFault::Lost : SourceFault::Unreachable, m_socket.errorString());
    }
}

/// The other end has closed the connection. Serial servers say why, if at all, in a line of text.
void TcpSource::reportEnd()
{
    static const QRegularExpression inUse(QStringLiteral("in use|busy"), QRegularExpression::CaseInsensitiveOption);
    const QString reason = m_isTextOnly ? lastLine(m_firstBytes) : QString();
    if (reason.contains(inUse))
        fail(SourceFault::PortInUse);
    else if (!reason.isEmpty())
        fail(SourceFault::ServerSpoke, reason);
    else
        fail(SourceFault::Ended);
}

void TcpSource::fail(SourceFault fault, const QString &detail)
{
    const SourceFailure why = failure(fault, detail);
    close();
    emit failed(why);
}

qint64 TcpSource::write(const QByteArray &bytes)
{
    return isOpen() && sendRaw(encode(bytes)) ? bytes.size() : -1;
}

bool TcpSource::sendRaw(const QByteArray &bytes)
{
    if (!isConnected() || m_socket.bytesToWrite() + bytes.size() > kMaxUnsentBytes)
        return false;
    m_sinceWrite.start();
    return m_socket.write(bytes) == bytes.size();
}

bool TcpSource::waitForBytesWritten(int ms)
{
    const QDeadlineTimer limit(ms);
    m_socket.flush();
    while (m_socket.bytesToWrite() > 0 && !limit.hasExpired()) {
        if (!m_socket.waitForBytesWritten(int(limit.remainingTime())))
            break;
    }
    return m_socket.state() == QAbstractSocket::ConnectedState && m_socket.bytesToWrite() == 0;
}

/// A connection that is closed with bytes still to be read is reset, and the other end may drop what was sent last.
/// So it is told that nothing more comes, and answers by closing its own half. But not at once: a serial server that
/// finds the end together with the last bytes closes its port before it has written them.
void TcpSource::finish(int ms)
{
    if (!m_sinceWrite.isValid() || m_sinceWrite.elapsed() > kRecentMs)
        return;
    const QDeadlineTimer limit(ms);
    if (!waitForBytesWritten(ms))
        return;
    m_phase = Phase::Closed; // what still arrives belongs to nobody
    drain(QDeadlineTimer(std::min<qint64>(ms / 2, qMax<qint64>(0, kRecentMs - m_sinceWrite.elapsed()))));
    if (m_socket.state() == QAbstractSocket::ConnectedState)
        socket_options::endSending(m_socket.socketDescriptor());
    drain(limit);
}

/// Reads for nobody until then, or until the other end closes the connection.
void TcpSource::drain(QDeadlineTimer until)
{
    while (m_socket.state() == QAbstractSocket::ConnectedState && !until.hasExpired()) {
        if (m_socket.waitForReadyRead(int(until.remainingTime())))
            m_socket.skip(m_socket.bytesAvailable());
    }
}

int TcpSource::replyAllowanceMs() const
{
    return int(std::min<qint64>(kMaxAllowanceMs, kNetworkMs + 2 * m_connectMs));
}
