#include "ui/view_windows.h"

#include <QWindow>

#include <utility>

#include "app/window_host.h"
#include "attitude/attitude_convention.h"
#include "attitude/form_threed.h"
#include "chart/marker_list.h"
#include "device/product_profile.h"
#include "fft/form_fftchart.h"
#include "link/stream_dispatcher.h"
#include "record/recorder.h"
#include "session/device_session.h"
#include "session/link_monitor.h"
#include "session/playback.h"
#include "session/playback_inbox.h"
#include "session/session_capture.h"
#include "wave/form_sensor_dashboard.h"
#include "wave/form_wireless_dashboard.h"
#include "wave/sample_feed.h"

namespace {

constexpr int kEstimateRate = 0; // the time stamps give the rate more exactly than a count per second

/// What a sample carries for the charts; angles can also be derived from its quaternion.
SampleFields chartFields(const StreamSample &sample, const NormalizedAttitude &attitude)
{
    return attitude.valid ? sample.fields | SampleField::Euler : sample.fields;
}

QString title(const QWidget *window)
{
    return window->windowTitle();
}

QString title(const QWindow *window)
{
    return window->title();
}

void setTitle(QWidget *window, const QString &text)
{
    window->setWindowTitle(text);
}

void setTitle(QWindow *window, const QString &text)
{
    window->setTitle(text);
}

const QWindow *asWindow(const QWidget *window)
{
    return window->windowHandle();
}

const QWindow *asWindow(const QWindow *window)
{
    return window;
}

} // namespace

ViewWindows::ViewWindows(DeviceSession *session, QObject *parent) : QObject(parent), m_session(session)
{
    connect(session, &DeviceSession::streamRestarted, this, &ViewWindows::onRestart);
    connect(session, &DeviceSession::sampleReceived, this, &ViewWindows::onSample);
    connect(session, &DeviceSession::batchReceived, this, &ViewWindows::onBatch);
    connect(session, &DeviceSession::stateChanged, this, &ViewWindows::onState);
    connect(session, &DeviceSession::presetChanged, this, &ViewWindows::showMounting);
    connect(session, &DeviceSession::deviceChanged, this, &ViewWindows::showMounting);
    connect(session, &DeviceSession::deviceChanged, this, &ViewWindows::showOrigin);
    connect(&session->recorder(), &Recorder::markerAdded, this,
            [this](unsigned int, const QString &text, double timeS) { addMarker(text, timeS); });
    connect(&session->capture(), &SessionCapture::markerAdded, this, &ViewWindows::addMarker);
    connect(&session->dispatcher(), &StreamDispatcher::streamSnapshotChanged, this, &ViewWindows::onSnapshot);
}

ViewWindows::~ViewWindows() = default;

void ViewWindows::openSensorDashboard()
{
    if (!m_sensorDashboard) {
        m_sensorDashboard = std::make_unique<form_sensor_dashboard>();
        m_sensorDashboard->bridge().setClock(m_session->clock());
        if (m_frameRate > 0)
            m_sensorDashboard->bridge().setFrameRate(m_frameRate);
        name(static_cast<QWindow *>(m_sensorDashboard.get()));
        followMarkers(m_sensorDashboard->bridge().markers());
        connect(&m_sensorDashboard->bridge(), &SensorDashboardBridge::recordingWanted, &m_session->recorder(), [this] {
            if (m_session->allows(SessionAction::StartRecording) && !m_session->recorder().isRecording())
                m_session->recorder().startAgain();
        });
        showOrigin();
    }
    WindowHost::bringUp(m_sensorDashboard.get());
}

void ViewWindows::openGatewayDashboard()
{
    if (!m_wirelessDashboard) {
        m_wirelessDashboard = std::make_unique<form_wireless_dashboard>();
        m_wirelessDashboard->bridge().setClock(m_session->clock());
        if (m_frameRate > 0)
            m_wirelessDashboard->setFrameRate(m_frameRate);
        name(static_cast<QWindow *>(m_wirelessDashboard.get()));
        followMarkers(m_wirelessDashboard->bridge().markers());
        showOrigin();
    }
    WindowHost::bringUp(m_wirelessDashboard.get());
}

void ViewWindows::openSpectrum()
{
    if (!m_spectrum) {
        m_spectrum = std::make_unique<form_fftchart>();
        name(m_spectrum.get());
        m_spectrum->setClock(m_session->clock());
        PlaybackInbox *const inbox = &m_session->playback().inbox();
        inbox->waitFor(m_spectrum.get(), [spectrum = m_spectrum.get()] { return spectrum->isBatchPending(); });
        connect(m_spectrum.get(), &form_fftchart::batchEnded, inbox, &PlaybackInbox::wake);
        connect(&m_spectrum->bridge(), &FftChartBridge::alarmStateChanged, this, &ViewWindows::captureAlarm);
    }
    WindowHost::bringUp(m_spectrum.get());
}

void ViewWindows::openThreeD()
{
    if (!m_threed) {
        m_threed = std::make_unique<form_threed>();
        name(m_threed.get());
        showMounting();
        connect(m_threed.get(), &form_threed::orientationPresetChanged, m_session, &DeviceSession::setPreset);
    }
    WindowHost::bringUp(m_threed.get());
}

void ViewWindows::closeAll()
{
    m_threed.reset();
    m_spectrum.reset();
    m_sensorDashboard.reset();
    m_wirelessDashboard.reset();
}

template <class Visit> void ViewWindows::forEach(Visit visit) const
{
    if (m_threed)
        visit(m_threed.get());
    if (m_spectrum)
        visit(m_spectrum.get());
    if (m_sensorDashboard)
        visit(static_cast<QWindow *>(m_sensorDashboard.get()));
    if (m_wirelessDashboard)
        visit(static_cast<QWindow *>(m_wirelessDashboard.get()));
}

/// A new window: its title ends with the device's name, also after it was translated.
template <class Window> void ViewWindows::name(Window *window)
{
    const auto follow = [this, window] { setTitle(window, title(window) + m_suffix); };
    connect(window, &Window::windowTitleChanged, this, [this, window, follow] {
        if (!title(window).endsWith(m_suffix))
            follow();
    });
    follow();
}

void ViewWindows::setName(const QString &name)
{
    const QString before = std::exchange(m_suffix, name.isEmpty() ? QString() : QStringLiteral(" - ") + name);
    if (before == m_suffix)
        return;
    forEach([this, &before](auto *window) {
        const QString old = title(window);
        setTitle(window, (old.endsWith(before) ? old.chopped(before.size()) : old) + m_suffix);
    });
}

bool ViewWindows::owns(const QWindow *window) const
{
    bool isOwn = false;
    forEach([&isOwn, window](auto *candidate) { isOwn |= asWindow(candidate) == window; });
    return isOwn;
}

void ViewWindows::showAttitude(const NormalizedAttitude &attitude)
{
    if (m_threed)
        m_threed->setAttitude(attitude);
}

void ViewWindows::showMounting()
{
    if (m_threed)
        m_threed->setMounting(product_profile::toString(m_session->profile().key), m_session->preset());
}

/// The origin of the samples in the charts, for their files.
void ViewWindows::showOrigin()
{
    const QString device = m_session->device().valid ? product_profile::toString(m_session->profile().key) : QString();
    if (m_sensorDashboard)
        m_sensorDashboard->bridge().setOrigin({device, m_session->followedNode().value_or(-1)});
    if (m_wirelessDashboard)
        m_wirelessDashboard->bridge().setDevice(device);
}

/// Markers of charts go into the running recording. A marker whose text changes is written again.
void ViewWindows::followMarkers(MarkerList *markers)
{
    const auto record = [this](const ChartMarker &marker) {
        if (m_isRelaying)
            return;
        m_isRelaying = true;
        if (!m_session->recorder().addMarker(marker.text, marker.timeSec))
            m_session->capture().addMarker(marker.text, marker.timeSec);
        m_isRelaying = false;
    };
    connect(markers, &MarkerList::markerAdded, this, record);
    connect(markers, &MarkerList::markerChanged, this, record);
}

/// The spectrum's alarm goes into the running capture, when it is raised and when it ends.
void ViewWindows::captureAlarm()
{
    const FftChartBridge &bridge = m_spectrum->bridge();
    const bool isActive = bridge.alarmState() == FftAlarmState::Active;
    if (isActive == m_isAlarmActive)
        return;
    m_isAlarmActive = isActive;
    m_session->capture().addEvent(capture_event::kAlarm, isActive ? QStringLiteral("raised") : QStringLiteral("ended"),
                                  {{QLatin1String("axis"), bridge.dominantPeakAxis()},
                                   {QLatin1String("frequency_hz"), bridge.dominantPeakFrequency()},
                                   {QLatin1String("amplitude"), bridge.dominantPeakAmplitude()},
                                   {QLatin1String("unit"), bridge.unit()}});
}

/// Adds a marker that was set elsewhere to the charts.
void ViewWindows::addMarker(const QString &text, double timeS)
{
    if (m_isRelaying)
        return;
    m_isRelaying = true;
    const ChartMarker marker{timeS, m_session->clock()->wallMs(), text};
    if (m_sensorDashboard)
        m_sensorDashboard->bridge().markers()->add(marker);
    if (m_wirelessDashboard)
        m_wirelessDashboard->bridge().markers()->add(marker);
    m_isRelaying = false;
}

void ViewWindows::onRestart(const StreamRestart &restart)
{
    if (restart.kind != StreamBreak::ClockRestarted)
        showOrigin(); // another node may be followed now
    if (m_spectrum)
        m_spectrum->restartStream();
    if (m_spectrum && restart.kind == StreamBreak::OtherPlace)
        m_spectrum->bridge().setAlarmRule(m_spectrum->bridge().alarmRule()); // it belongs to the place that was left
    if (m_sensorDashboard)
        m_sensorDashboard->bridge().restartStream(restart.kind);
    if (m_wirelessDashboard && restart.kind != StreamBreak::OtherNode && emptiesViews(restart.kind))
        m_wirelessDashboard->clear();
}

void ViewWindows::onSample(const StreamSample &sample)
{
    if (m_spectrum)
        m_spectrum->appendData(sample.snapshot.sample, kEstimateRate);
    if (!m_sensorDashboard || !m_sensorDashboard->bridge().dashboardActive())
        return;
    const NormalizedAttitude attitude = attitude_convention::normalizeAttitude(sample.snapshot, sample.preset);
    const std::array euler{attitude.euler.x(), attitude.euler.y(), attitude.euler.z()};
    const node_data_t &node = sample.snapshot.sample;
    m_sensorDashboard->bridge().pushSamples(ChartSamples(node, euler, chartFields(sample, attitude)), node.time_ms);
}

void ViewWindows::onBatch(const QList<StreamSample> &samples)
{
    if (m_wirelessDashboard && m_wirelessDashboard->isVisible())
        m_wirelessDashboard->updateGatewaySamples(gatewaySamples(samples));
}

QList<GatewaySample> ViewWindows::gatewaySamples(const QList<StreamSample> &samples) const
{
    QList<GatewaySample> list;
    list.reserve(samples.size());
    for (const StreamSample &sample : samples) {
        const NormalizedAttitude attitude = attitude_convention::normalizeAttitude(sample.snapshot, sample.preset);
        GatewaySample entry;
        entry.node = sample.snapshot.sample;
        if (attitude.valid) {
            entry.node.roll = attitude.euler.x();
            entry.node.pitch = attitude.euler.y();
            entry.node.yaw = attitude.euler.z();
        }
        entry.timestampMs = entry.node.time_ms;
        entry.fields = chartFields(sample, attitude);
        const NodeHealth &health = m_session->linkMonitor().node(entry.node.id);
        entry.missing = health.missing;
        entry.hasClock = health.hasClock;
        entry.brokenBy = sample.brokenBy;
        list.append(entry);
    }
    return list;
}

/// Charts and filters use the last known rate: none is known in the first second.
void ViewWindows::onSnapshot(const StreamSnapshot &snapshot)
{
    if (snapshot.measured_frame_rate == 0 || snapshot.measured_frame_rate == m_frameRate)
        return;
    m_frameRate = snapshot.measured_frame_rate;
    if (m_sensorDashboard)
        m_sensorDashboard->bridge().setFrameRate(m_frameRate);
    if (m_wirelessDashboard)
        m_wirelessDashboard->setFrameRate(m_frameRate);
}

void ViewWindows::onState()
{
    if (m_wirelessDashboard)
        m_wirelessDashboard->setEnded(!m_session->isOpen());
}
