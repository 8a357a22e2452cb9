#include "device/command_broker.h"

#include <QEventLoop>
#include <QTimer>

#include <limits>

#include "app/app_log.h"
#include "link/kv_uart_port.h"

namespace {

constexpr qsizetype kMaxReplyBytes = 0x100000;
constexpr qsizetype kMaxPreviewBytes = 80;

QString previewBytes(const QByteArray &bytes)
{
    QByteArray preview = bytes.left(kMaxPreviewBytes);
    preview.replace('\r', "\\r").replace('\n', "\\n");
    return QString::fromLatin1(preview);
}

} // namespace

CommandBroker::CommandBroker(QObject *parent) : QObject(parent) {}

void CommandBroker::attachPort(KvUartPort *port)
{
    if (port == m_port)
        return;
    if (m_port != nullptr) {
        disconnect(m_port, &KvUartPort::serialRecv, this, &CommandBroker::serialRecv);
        disconnect(this, &CommandBroker::serialSend, m_port, &KvUartPort::serialSend);
    }
    m_port = port;
    if (port == nullptr) {
        AppLog::logfile(QtInfoMsg, QStringLiteral("command-broker detached from uart-port"));
        return;
    }
    connect(port, &KvUartPort::serialRecv, this, &CommandBroker::serialRecv);
    connect(this, &CommandBroker::serialSend, port, &KvUartPort::serialSend);
    AppLog::logfile(QtInfoMsg, QStringLiteral("command-broker attached to uart-port"));
}

QByteArray CommandBroker::sendAndCollect(const QByteArray &bytes, unsigned int windowMs)
{
    QByteArray reply;
    collect(bytes, windowMs, &reply);
    return reply;
}

QByteArray CommandBroker::executeCommand(const QString &text, unsigned int windowMs)
{
    if (text.isEmpty()) {
        m_lastResult.clear();
        return {};
    }
    QByteArray reply;
    const Window window = collect(text.toUtf8(), windowMs, &reply);
    if (window != Window::BrokerGone) {
        m_lastResult = reply;
        m_cutShort = window == Window::CutShort;
    }
    return reply;
}

QByteArray CommandBroker::executeSequence(const QList<SettingsCommand> &commands)
{
    return executeSequence(commands, {});
}

QByteArray CommandBroker::executeSequence(const QList<SettingsCommand> &commands, const Observer &observer)
{
    const QPointer<CommandBroker> self(this);
    const quint64 aborts = m_aborts;
    AppLog::logfile(QtInfoMsg, QStringLiteral("command sequence start count=%1").arg(commands.size()));
    // A local: an event during a window may try a command of its own, which overwrites the last result.
    QByteArray result;
    m_lastResult.clear();
    bool cutShort = false;
    for (qsizetype i = 0; i < commands.size() && !cutShort; ++i) {
        if (commands[i].text.isEmpty())
            continue;
        const Window window = collect(commands[i].text.toUtf8(), commands[i].waitMs, &result);
        if (window == Window::BrokerGone)
            return {};
        const bool goesOn = window == Window::CutShort || !observer || observer(i, result);
        if (self == nullptr)
            return {};
        cutShort = window == Window::CutShort || aborts != m_aborts;
        if (!goesOn)
            break;
    }
    m_lastResult = result;
    m_cutShort = cutShort;
    AppLog::logfile(
        QtInfoMsg,
        QStringLiteral("command sequence finish count=%1 response_bytes=%2").arg(commands.size()).arg(result.size()));
    return result;
}

CommandBroker::Window CommandBroker::collect(const QByteArray &bytes, unsigned int windowMs, QByteArray *reply)
{
    reply->clear();
    if (m_collecting) {
        AppLog::logfile(QtWarningMsg, QStringLiteral("command rejected while another command is in flight"));
        return Window::Complete;
    }
    m_collecting = true;
    m_windowOpen = true;
    m_buffer.clear();
    m_truncationReported = false;
    AppLog::logfile(QtDebugMsg, QStringLiteral("command send window_ms=%1 bytes=%2 preview=\"%3\"")
                                    .arg(windowMs)
                                    .arg(bytes.size())
                                    .arg(previewBytes(bytes)));
    emit serialSend(bytes);

    const Window window = windowMs > 0 ? runWindow(windowMs) : Window::Complete;
    if (window == Window::BrokerGone)
        return window;
    AppLog::logfile(QtDebugMsg,
                    windowMs == 0
                        ? QStringLiteral("command complete window_ms=0 response_bytes=%1").arg(m_buffer.size())
                        : QStringLiteral("command complete response_bytes=%1 preview=\"%2\"")
                              .arg(m_buffer.size())
                              .arg(previewBytes(m_buffer)));
    m_windowOpen = false;
    m_collecting = false;
    *reply = m_buffer;
    return window;
}

CommandBroker::Window CommandBroker::runWindow(unsigned int windowMs)
{
    const QPointer<CommandBroker> self(this);
    const quint64 aborts = m_aborts;
    QEventLoop loop;
    m_loop = &loop;
    QTimer timer;
    timer.setSingleShot(true);
    timer.setTimerType(Qt::PreciseTimer); // a coarse one may end a long window 5 % early
    // A modal loop above this one may delay the return indefinitely; the reply ends here.
    connect(&timer, &QTimer::timeout, this, [this] { m_windowOpen = false; });
    connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
    connect(this, &QObject::destroyed, &loop, &QEventLoop::quit);
    timer.start(int(qMin(windowMs, unsigned(std::numeric_limits<int>::max()))));
    loop.exec();
    if (self == nullptr)
        return Window::BrokerGone;
    m_loop = nullptr;
    return timer.isActive() || aborts != m_aborts ? Window::CutShort : Window::Complete;
}

void CommandBroker::abort()
{
    ++m_aborts;
    m_windowOpen = false;
    if (m_loop != nullptr)
        m_loop->quit();
}

void CommandBroker::serialRecv(const QByteArray &data)
{
    if (!m_windowOpen || data.isEmpty())
        return;
    const qsizetype room = kMaxReplyBytes - m_buffer.size();
    m_buffer.append(data.constData(), qMin(room, data.size()));
    if (data.size() > room && !m_truncationReported) {
        m_truncationReported = true;
        AppLog::logfile(QtWarningMsg, QStringLiteral("command response truncated at %1 bytes").arg(kMaxReplyBytes));
    }
}
