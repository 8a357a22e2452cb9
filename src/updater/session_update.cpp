#include "updater/session_update.h"

#include <utility>

#include "session/device_session.h"

SessionUpdate::SessionUpdate(DeviceSession *session, const QString &folder, QObject *parent)
    : QObject(parent), m_session(session), m_procedure(&session->port(), folder)
{
    connect(&m_procedure, &FirmwareUpdate::stepChanged, this, &SessionUpdate::onStep);
    connect(&m_procedure, &FirmwareUpdate::finished, this, &SessionUpdate::onFinished);
    connect(session, &DeviceSession::stateChanged, this, &SessionUpdate::onSessionState);
    connect(session, &DeviceSession::deviceChanged, this, &SessionUpdate::onDevice);
}

bool SessionUpdate::start(FirmwareUpdate::Order order)
{
    m_connects = !m_session->isBootloaderConnected();
    if (m_procedure.isRunning() || !m_session->lendLine())
        return false;
    m_hasLine = true;
    m_portName = m_session->portName();
    order.connects = m_connects;
    order.device = m_session->device().modelLine;
    order.port = m_portName;
    order.subject.baudRate = m_session->baudRate();
    order.subject.deviceBuild = m_session->device().buildLine;
    return m_procedure.prepare(order);
}

void SessionUpdate::onStep(UpdateStep step)
{
    if (step != UpdateStep::ComeBack)
        m_session->setLineWriting(step >= UpdateStep::Erase && step <= UpdateStep::Reset);
    else if (std::exchange(m_hasLine, false))
        m_session->returnLine(LineReturn::FirmwareStarts);
}

void SessionUpdate::onFinished(const UpdateResult &result)
{
    if (!std::exchange(m_hasLine, false))
        return;
    const bool hasConnected = m_connects && result.step > UpdateStep::Connect;
    m_session->returnLine(result.flash == FlashState::Untouched && !hasConnected ? LineReturn::AsBefore
                                                                                 : LineReturn::BootloaderStays);
}

void SessionUpdate::onSessionState()
{
    if (m_hasLine && !m_session->isOpen())
        m_procedure.lineLost();
    // The bootloader again, because someone asked for it or because the firmware does not start.
    if (m_procedure.step() == UpdateStep::ComeBack && m_session->state() == SessionState::Bootloader)
        m_procedure.cancel();
}

void SessionUpdate::onDevice()
{
    if (m_session->device().valid && m_session->portName() == m_portName)
        m_procedure.deviceCameBack(m_session->device().buildLine);
}
