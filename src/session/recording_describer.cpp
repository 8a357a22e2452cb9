#include "session/recording_describer.h"

#include <cmath>

#include "device/device_settings.h"
#include "link/stream_dispatcher.h"
#include "record/recorder.h"
#include "session/device_session.h"
#include "session/session_capture.h"

namespace {

constexpr double kSameRate = 0.05; // a count of packets per second is never perfectly steady

} // namespace

RecordingDescriber::RecordingDescriber(DeviceSession *session) : QObject(session), m_session(session)
{
    connect(session, &DeviceSession::stateChanged, this, &RecordingDescriber::update);
    connect(session, &DeviceSession::deviceChanged, this, &RecordingDescriber::update);
    connect(session, &DeviceSession::presetChanged, this, &RecordingDescriber::update);
    connect(&session->dispatcher(), &StreamDispatcher::streamSnapshotChanged, this, &RecordingDescriber::update);
}

void RecordingDescriber::update()
{
    if (!m_session->isOpen() || m_session->state() == SessionState::Closing) // earlier files keep what was known
        return;
    // A device that does not answer a second time is still the one that answered on this connection.
    RecordingContext context = m_session->state() == SessionState::Opening ? RecordingContext() : m_told;
    context.port = m_session->portName();
    context.baudRate = m_session->baudRate();
    context.mounting = product_profile::toString(m_session->preset());
    const int rate = int(m_session->dispatcher().snapshot().measured_frame_rate);
    if (rate > 0 && std::abs(rate - context.measuredRateHz) > context.measuredRateHz * kSameRate)
        context.measuredRateHz = rate;
    if (const DetectedDevice &device = m_session->device(); device.valid) {
        context.product = m_session->profile().displayName;
        context.model = device.modelLine;
        context.build = device.buildLine;
        context.uuid = device.uuidLine;
        context.outputRateHz = DeviceSettings::fromInfo(device.infoLines).outputRateHz.value_or(0);
    }
    if (context == m_told)
        return;
    m_told = context;
    m_session->recorder().setContext(context);
    m_session->capture().setContext(context);
}
