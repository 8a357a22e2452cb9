#include "simulator/control_console.h"

#include <QSocketNotifier>

#include <cerrno>

#include <unistd.h>

#include "simulator/controls.h"
#include "simulator/simulator.h"

namespace kvsim {

namespace {

QString statisticsLine(const Simulator &simulator)
{
    const Simulator::Statistics s = simulator.statistics();
    const BootTexts &texts = simulator.device().bootloader().texts();
    return QStringLiteral("stats: frames=%1 frames_sent=%2 frames_intact=%3 dropped=%4 unheard=%5 bytes=%6 "
                          "bootloader=%7 packets=%8 refused=%9 records_missing=%10 boot_text_commands=%11 "
                          "boot_text_in_data=%12 boot_restarts=%13 boot_texts=%14")
        .arg(s.frames)
        .arg(s.sent)
        .arg(s.intact)
        .arg(s.dropped)
        .arg(s.unheard)
        .arg(s.bytes)
        .arg(s.inBootloader ? 1 : 0)
        .arg(s.packets)
        .arg(s.refused)
        .arg(s.missing)
        .arg(texts.commands())
        .arg(texts.betweenData())
        .arg(texts.restarts())
        .arg(QString::fromLatin1(texts.last().join('|').replace(' ', '_')));
}

QString errorLine(const QString &reason)
{
    return QStringLiteral("error: ") + reason;
}

} // namespace

ControlConsole::ControlConsole(Simulator &simulator, QObject *parent) : QObject(parent), m_simulator(simulator) {}

ControlConsole::~ControlConsole() = default;

QStringList ControlConsole::execute(const QString &line)
{
    const QString ok = QStringLiteral("ok");
    if (line.trimmed() == u"stats")
        return {statisticsLine(m_simulator), ok};
    if (line.trimmed() == u"quit") {
        emit quitRequested();
        return {ok};
    }
    const QString problem = runControl(m_simulator, line);
    return {problem.isEmpty() ? ok : errorLine(problem)};
}

void ControlConsole::listen(int descriptor)
{
    m_descriptor = descriptor;
    m_notifier = std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &ControlConsole::readAvailable);
}

void ControlConsole::readAvailable()
{
    char buffer[4096];
    const ssize_t count = ::read(m_descriptor, buffer, sizeof(buffer));
    if (count < 0 && (errno == EAGAIN || errno == EINTR))
        return;
    if (count <= 0) {
        m_notifier->setEnabled(false);
        emit quitRequested();
        return;
    }
    for (const char byte : QByteArrayView(buffer, count)) {
        if (byte != '\n') {
            m_lineTooLong = m_lineTooLong || m_input.size() >= kMaxLineBytes;
            if (!m_lineTooLong)
                m_input += byte;
            continue;
        }
        const QStringList answers = m_lineTooLong ? QStringList{errorLine(QStringLiteral("the line is too long"))}
                                                  : execute(QString::fromUtf8(m_input));
        m_input.clear();
        m_lineTooLong = false;
        for (const QString &answer : answers)
            emit answered(answer);
    }
}

} // namespace kvsim
