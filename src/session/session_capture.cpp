#include "session/session_capture.h"

#include <array>
#include <chrono>
#include <cmath>

#include "app/steady_time.h"
#include "device/product_profile.h"
#include "link/kv_uart_port.h"
#include "record/recorder.h"
#include "record/recording_context.h"
#include "record/recording_target.h"
#include "session/device_session.h"
#include "session/link_monitor.h"

namespace {

constexpr std::chrono::seconds kLossInterval{1};
constexpr double kMsPerSecond = 1000;

// Words in files: the same in all languages.
constexpr std::array<QLatin1String, kSessionStateCount> kStates{
    QLatin1String("closed"),   QLatin1String("opening"), QLatin1String("identifying"),
    QLatin1String("live"),     QLatin1String("silent"),  QLatin1String("bootloader"),
    QLatin1String("updating"), QLatin1String("closing"), QLatin1String("waiting")};

QLatin1String breakName(StreamBreak kind)
{
    switch (kind) {
    case StreamBreak::None:
        break;
    case StreamBreak::NewConnection:
        return QLatin1String("new_connection");
    case StreamBreak::OtherNode:
        return QLatin1String("other_node");
    case StreamBreak::OtherPlace:
        return QLatin1String("other_place");
    case StreamBreak::ClockRestarted:
        return QLatin1String("clock_restarted");
    case StreamBreak::OutputStopped:
        return QLatin1String("output_stopped");
    case StreamBreak::Gap:
        return QLatin1String("gap");
    }
    return QLatin1String("none");
}

} // namespace

SessionCapture::SessionCapture(DeviceSession *session) : QObject(session), m_session(session)
{
    const KvUartPort *port = &session->port();
    connect(port, &KvUartPort::chunkReceived, &m_writer, &CaptureWriter::addReceived, Qt::DirectConnection);
    connect(port, &KvUartPort::chunkSent, &m_writer, &CaptureWriter::addSent, Qt::DirectConnection);
    connect(session, &DeviceSession::samplesReceived, this, &SessionCapture::onSamples);
    connect(session, &DeviceSession::stateChanged, this, &SessionCapture::onState);
    connect(session, &DeviceSession::deviceChanged, this, &SessionCapture::onDevice);
    connect(session, &DeviceSession::streamRestarted, this, &SessionCapture::onRestart);
    connect(&session->recorder(), &Recorder::markerAdded, this,
            [this](unsigned int, const QString &text, double timeS) { writeMarker(text, timeS); });
    connect(&m_writer, &CaptureWriter::opened, this, &SessionCapture::capturingChanged);
    connect(&m_writer, &CaptureWriter::ended, this, &SessionCapture::capturingChanged);
    connect(&m_writer, &CaptureWriter::dropped, this, &SessionCapture::problemChanged);
    connect(&m_writer, &CaptureWriter::failed, this, [this] {
        m_lossTimer.stop();
        emit problemChanged();
        emit capturingChanged();
    });
    m_lossTimer.setInterval(kLossInterval);
    connect(&m_lossTimer, &QTimer::timeout, this, &SessionCapture::checkLosses);
}

void SessionCapture::start()
{
    if (m_writer.isCapturing() || m_session->isPlayback())
        return;
    const LinkReport report = m_session->linkMonitor().report();
    m_missing = report.samples.missing;
    m_damaged = report.link.rejectedBytes() + report.link.discardedBytes;
    const recording_target::Target target = recording_target::remembered();
    m_writer.start(target.folder, target.name, m_context);
    m_state.clear();
    onState();
    onDevice();
    m_lossTimer.start();
    emit problemChanged();
    emit capturingChanged();
}

void SessionCapture::stop()
{
    if (!m_writer.isCapturing())
        return;
    checkLosses();
    m_lossTimer.stop();
    m_writer.stop();
    emit capturingChanged();
}

QString SessionCapture::problem() const
{
    if (m_writer.fault().any())
        return m_writer.fault().text();
    if (m_writer.droppedCount() > 0)
        return tr("The disk is too slow. Not captured: %1 chunks or samples.").arg(m_writer.droppedCount());
    return {};
}

bool SessionCapture::addMarker(const QString &text, double timeS)
{
    if (!m_writer.isCapturing())
        return false;
    writeMarker(text, timeS);
    emit markerAdded(text, timeS);
    return true;
}

void SessionCapture::writeMarker(const QString &text, double timeS)
{
    QJsonObject more;
    if (std::isfinite(timeS))
        more.insert(QLatin1String("stream_time_ms"), timeS * kMsPerSecond);
    addEvent(capture_event::kMarker, text, more);
}

void SessionCapture::addEvent(const char *kind, const QString &text, const QJsonObject &more)
{
    if (m_writer.isCapturing())
        m_writer.addEvent({steadyNs(), QLatin1String(kind), text, more});
}

void SessionCapture::setContext(const RecordingContext &context)
{
    m_context = {context.port, context.baudRate,     context.product,        context.model,   context.build,
                 context.uuid, context.outputRateHz, context.measuredRateHz, context.mounting};
    m_writer.setContext(m_context);
}

void SessionCapture::onState()
{
    const QString state = kStates.at(size_t(m_session->state()));
    if (state == m_state)
        return;
    m_state = state;
    addEvent(capture_event::kState, state, {{QLatin1String("source"), m_session->portName()}});
}

void SessionCapture::onDevice()
{
    if (!m_session->device().valid)
        return;
    const DetectedDevice &device = m_session->device();
    addEvent(capture_event::kIdentification, m_session->profile().displayName,
             {{QLatin1String("model"), device.modelLine}, {QLatin1String("build"), device.buildLine}});
}

void SessionCapture::onRestart(const StreamRestart &restart)
{
    QJsonObject more{{QLatin1String("number"), double(restart.number)}};
    if (!emptiesViews(restart.kind)) {
        more.insert(QLatin1String("stream_time_ms"), double(restart.timeMs));
        more.insert(QLatin1String("silent_ms"), double(restart.silentMs));
    }
    addEvent(capture_event::kRestart, breakName(restart.kind), more);
}

void SessionCapture::onSamples(const QList<StreamSample> &samples)
{
    if (!m_writer.isCapturing())
        return;
    const qint64 now = steadyNs();
    for (const StreamSample &sample : samples) {
        CaptureSample captured{sample.snapshot.sample, sample.fields, double(sample.snapshot.sample.time_ms)};
        captured.node.time_ms = sample.deviceMs;
        m_writer.addSample(captured, now);
    }
}

/// Losses are counted elsewhere; the capture says when they grew.
void SessionCapture::checkLosses()
{
    const LinkReport report = m_session->linkMonitor().report();
    const quint64 damaged = report.link.rejectedBytes() + report.link.discardedBytes;
    if (report.samples.missing > m_missing || damaged > m_damaged) {
        QJsonObject more;
        if (report.samples.missing > m_missing)
            more.insert(QLatin1String("missing"), double(report.samples.missing - m_missing));
        if (damaged > m_damaged)
            more.insert(QLatin1String("bytes"), double(damaged - m_damaged));
        addEvent(capture_event::kLoss, QStringLiteral("samples or bytes were lost"), more);
    }
    m_missing = report.samples.missing; // a new connection counts from zero
    m_damaged = damaged;
}
