#include "device/command_session.h"

#include "device/command_broker.h"
#include "device/info_reply.h"

namespace {

/// Bit times per byte on the line: 10, and a margin.
constexpr float kBitTimesPerByteMs = 12000.0F;
constexpr quint32 kResumeWindowMs = 50;
constexpr int kResumeAgainMs = 2000;
constexpr int kResumesAgain = 5;

} // namespace

CommandSession::CommandSession(QObject *parent) : QObject(parent)
{
    m_resumeTimer.setSingleShot(true);
    m_resumeTimer.setInterval(kResumeAgainMs);
    connect(&m_resumeTimer, &QTimer::timeout, this, &CommandSession::resumeAgain);
}

void CommandSession::setBroker(CommandBroker *broker)
{
    m_broker = broker;
    emit stateChanged();
}

void CommandSession::setBaud(int baud)
{
    if (baud > 0)
        m_baudRate = baud;
}

void CommandSession::setConnected(bool connected)
{
    ++m_connection;
    m_connected = connected;
    endOperation();
    m_outputStopped = false;
    m_lastReadWasNoise = false;
    m_resumeTimer.stop();
    emit outcome({});
    emit stateChanged();
}

void CommandSession::suspend(bool suspended)
{
    if (suspended == m_suspended)
        return;
    m_suspended = suspended;
    if (suspended) {
        m_resumeTimer.stop();
        endOperation();
    }
    emit stateChanged();
}

/// A running operation waits further down the stack: it returns at once and sends nothing more.
void CommandSession::endOperation()
{
    m_operationEnded = m_busy;
    if (m_busy && m_broker != nullptr)
        m_broker->abort();
}

void CommandSession::noteData()
{
    m_dataSinceResume = true;
    m_resumeTimer.stop();
}

bool CommandSession::isBusy() const
{
    return m_busy || (m_broker != nullptr && m_broker->isCollecting());
}

const ProductProfile &CommandSession::profile() const
{
    return m_device.profile != nullptr ? *m_device.profile : product_profile::profile(ProductKey::None);
}

void CommandSession::clearDevice()
{
    m_device = {};
    emit deviceChanged();
}

QStringList CommandSession::readInfo()
{
    if (!begin())
        return {};
    const QPointer<CommandSession> self(this);
    QStringList lines = readInfoNow();
    if (self != nullptr)
        end();
    return lines;
}

QStringList CommandSession::readInfoNow()
{
    if (m_broker == nullptr)
        return {};
    const QPointer<CommandSession> self(this);
    const quint64 connection = m_connection;
    const QList<SettingsCommand> sequence = allowed(settings_command_adapter::buildReadInfoSequence(byteTimeMs()));
    m_currentCommand = sequence.constLast().text.trimmed();
    emit stateChanged();
    logCommands(sequence);
    const QByteArray reply = m_broker->executeSequence(sequence);
    if (self == nullptr || m_operationEnded)
        return {};

    QStringList lines;
    const info_reply::Kind kind = info_reply::kindOf(reply);
    if (kind == info_reply::Kind::Text)
        lines = info_reply::lines(reply);
    if (kind == info_reply::Kind::Noise)
        emit logLine(QLatin1String("< ") + tr("(noise)"));
    else
        logReply(lines);
    m_resumesLeft = lines.isEmpty() ? 0 : kResumesAgain; // no device is there, or one whose output is now stopped
    if (m_connected && !sendResume(kResumeWindowMs))
        return {};
    if (connection != m_connection || m_operationEnded)
        return {};
    m_outputStopped = false;
    lines = info_reply::withoutLateAnswers(lines);
    m_device = product_resolver::resolve(lines);
    m_lastReadWasNoise = kind == info_reply::Kind::Noise;
    const Outcome failure = m_lastReadWasNoise ? Outcome::Noise : Outcome::NoReply;
    emit outcome({m_device.valid ? Outcome::Nothing : failure, {}, false});
    emit deviceChanged();
    return lines;
}

void CommandSession::save(const SettingsSaveRequest &request)
{
    const QList<SettingsCommand> sequence = allowed(settings_command_adapter::buildSaveSequence(profile(), request));
    if (sequence.isEmpty() || !begin())
        return;
    QStringList commands;
    for (const SettingsCommand &command : sequence) {
        if (command.waitMs > 0)
            commands.append(command.text.trimmed());
    }
    QList<QByteArray> replies;
    const QPointer<CommandSession> self(this);
    const quint64 connection = m_connection;
    const auto announce = [this, &sequence](qsizetype i) {
        m_currentCommand = sequence[i].text.trimmed();
        emit stateChanged();
        logCommands({sequence[i]});
    };
    announce(0);
    m_broker->executeSequence(sequence, [&](qsizetype i, const QByteArray &reply) {
        // Settings must not reach a device that has been plugged in meanwhile.
        if (self == nullptr || connection != m_connection || m_operationEnded)
            return false;
        if (sequence[i].waitMs > 0) {
            replies.append(reply);
            logReply(info_reply::lines(reply));
        }
        if (i + 1 < sequence.size())
            announce(i + 1);
        return true;
    });
    if (self == nullptr)
        return;
    if (m_broker == nullptr || connection != m_connection || m_operationEnded) {
        end();
        return;
    }
    readInfoNow();
    if (self == nullptr)
        return;
    if (connection == m_connection && !m_operationEnded) {
        const CommandOutcome answered = CommandOutcome::ofWrites(commands, replies);
        if (answered.kind == Outcome::Refused)
            emit outcome(answered);
        else if (m_device.valid)
            emit outcome({Outcome::Saved, {}, false});
    }
    end();
}

void CommandSession::runHotkey(SettingsHotkeyAction action)
{
    const QString text = settings_command_adapter::hotkeyCommand(profile(), action);
    if (text.isEmpty() || !begin())
        return;
    emit outcome({});
    m_resumeTimer.stop();
    const QPointer<CommandSession> self(this);
    m_outputStopped =
        action == SettingsHotkeyAction::StopOutput
        || (m_outputStopped && action != SettingsHotkeyAction::Reset && action != SettingsHotkeyAction::Reboot);
    execute(text, replyWindowMs());
    if (self != nullptr)
        end();
}

void CommandSession::resumeOutput(bool waitForReply)
{
    if (!begin())
        return;
    emit outcome({});
    m_outputStopped = false;
    m_resumesLeft = kResumesAgain;
    if (sendResume(waitForReply ? kResumeWindowMs : 0))
        end();
}

/// False when this object did not survive the wait.
bool CommandSession::sendResume(quint32 waitMs)
{
    m_resumeTimer.stop();
    m_dataSinceResume = false;
    const QPointer<CommandSession> self(this);
    const bool isCurrent = execute(settings_command_adapter::buildResumeOutputCommand(), waitMs).has_value();
    if (self == nullptr)
        return false;
    if (isCurrent && waitMs > 0 && m_broker != nullptr && m_broker->lastResult().isEmpty() && !m_dataSinceResume
        && m_resumesLeft > 0)
        m_resumeTimer.start();
    return true;
}

void CommandSession::resumeAgain()
{
    if (!begin()) { // a command from the user is running
        if (m_connected && !m_suspended)
            m_resumeTimer.start();
        return;
    }
    --m_resumesLeft;
    if (sendResume(kResumeWindowMs))
        end();
}

bool CommandSession::begin()
{
    if (isBusy() || !m_connected || m_suspended || m_broker == nullptr)
        return false;
    m_busy = true;
    return true;
}

void CommandSession::end()
{
    m_busy = false;
    m_operationEnded = false;
    m_currentCommand.clear();
    emit stateChanged();
}

/// Sends one command. No value when its connection, this object or the operation ended before the reply.
std::optional<QStringList> CommandSession::execute(const QString &text, quint32 waitMs)
{
    if (m_broker == nullptr || m_operationEnded)
        return std::nullopt;
    const QPointer<CommandSession> self(this);
    const quint64 connection = m_connection;
    m_currentCommand = text.trimmed();
    emit stateChanged();
    logCommands({{text, waitMs}});
    const QByteArray reply = m_broker->executeCommand(text, waitMs > 0 ? waitMs + m_allowanceMs : 0);
    if (self == nullptr || connection != m_connection || m_operationEnded)
        return std::nullopt;
    const QStringList lines = info_reply::lines(reply);
    if (waitMs > 0)
        logReply(lines);
    return lines;
}

/// The same commands with windows for replies over a network.
QList<SettingsCommand> CommandSession::allowed(QList<SettingsCommand> commands) const
{
    for (SettingsCommand &command : commands) {
        if (command.waitMs > 0)
            command.waitMs += m_allowanceMs;
    }
    return commands;
}

void CommandSession::logCommands(const QList<SettingsCommand> &commands)
{
    for (qsizetype i = 0; i < commands.size();) {
        qsizetype next = i + 1;
        while (next < commands.size() && commands[next].text == commands[i].text)
            ++next;
        const QString times = next - i > 1 ? QStringLiteral(" (%1x)").arg(next - i) : QString();
        emit logLine(QLatin1String("> ") + commands[i].text.trimmed() + times);
        i = next;
    }
}

void CommandSession::logReply(const QStringList &lines)
{
    for (const QString &line : lines)
        emit logLine(QLatin1String("< ") + line);
    if (lines.isEmpty())
        emit logLine(QLatin1String("< ") + tr("(no reply)"));
}

float CommandSession::byteTimeMs() const
{
    return kBitTimesPerByteMs / float(m_baudRate);
}

/// The window for an information reply; no other reply is longer.
quint32 CommandSession::replyWindowMs() const
{
    return settings_command_adapter::buildReadInfoSequence(byteTimeMs()).constLast().waitMs;
}
