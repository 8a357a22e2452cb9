#include "link/rfc2217_source.h"

#include "app/app_log.h"

namespace {

constexpr int kAnswerMs = 2000;
constexpr int kNopMs = 5000;

} // namespace

Rfc2217Source::Rfc2217Source(const SourceAddress &address, QObject *parent)
    : TcpSource(address, parent), m_client(address.baudRate), m_answerLimit(this), m_nopTimer(this)
{
    m_answerLimit.setSingleShot(true);
    m_answerLimit.setInterval(kAnswerMs);
    m_nopTimer.setInterval(kNopMs);
    connect(&m_answerLimit, &QTimer::timeout, this, &Rfc2217Source::goOnWithout);
    connect(&m_nopTimer, &QTimer::timeout, this, [this] { sendRaw(QByteArray("\xFF\xF1", 2)); });
}

void Rfc2217Source::open()
{
    m_decoder = {};
    m_client = ComPortClient(address().baudRate);
    TcpSource::open();
}

void Rfc2217Source::close()
{
    m_answerLimit.stop();
    m_nopTimer.stop();
    TcpSource::close();
}

void Rfc2217Source::begin()
{
    sendRaw(m_client.start());
    m_answerLimit.start();
    m_nopTimer.start();
}

QByteArray Rfc2217Source::decode(const QByteArray &bytes)
{
    QList<telnet::Event> events;
    QByteArray data = m_decoder.decode(bytes, &events);
    QByteArray answers;
    for (const telnet::Event &event : events)
        answers += m_client.take(event);
    if (!answers.isEmpty())
        sendRaw(answers);
    if (!events.isEmpty() && !isOpen()) // not now: the bytes that came along are handed on first
        QMetaObject::invokeMethod(this, &Rfc2217Source::takeState, Qt::QueuedConnection);
    return data;
}

void Rfc2217Source::takeState()
{
    if (!isConnected() || isOpen())
        return;
    switch (m_client.state()) {
    case ComPortClient::State::Waiting:
        return;
    case ComPortClient::State::Ready:
        m_answerLimit.stop();
        return becomeOpen();
    case ComPortClient::State::BaudDiffers:
        return fail(SourceFault::SettingsRefused, QString::number(m_client.serverBaud()));
    case ComPortClient::State::LineDiffers:
        return fail(SourceFault::SettingsRefused);
    }
}

void Rfc2217Source::goOnWithout()
{
    AppLog::logfile(QtWarningMsg, m_client.isComPort()
                                      ? QStringLiteral("the serial server did not confirm the settings of its port")
                                      : QStringLiteral("the serial server did not agree to set its port"));
    becomeOpen();
}
