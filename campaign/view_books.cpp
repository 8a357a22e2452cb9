#include "campaign/view_books.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

#include "attitude/attitude_convention.h"
#include "attitude/form_threed.h"
#include "campaign/user.h"
#include "link/stream_dispatcher.h"
#include "session/device_session.h"
#include "ui/sensor_data_panel.h"
#include "wave/form_sensor_dashboard.h"
#include "wave/form_wireless_dashboard.h"

namespace {

constexpr int kLookMs = 20;
constexpr int kLooksPerPose = 10;
constexpr double kRememberedSec = 1.5;
constexpr double kSpanSec = 5;
constexpr double kSpanShare = 0.05;
constexpr double kSpanSlackSec = 0.5; // for frames that a device holds back and sends at once
constexpr double kExact = 1e-6;
constexpr double kShown = 6e-4; // the numbers have three decimals
constexpr double kSamePose = 0.9999;
constexpr qsizetype kExamples = 10;

bool isFinite(const std::array<double, 3> &values)
{
    return std::all_of(values.begin(), values.end(), [](double value) { return std::isfinite(value); });
}

template <class Window> Window *opened(const char *className)
{
    return windows::isOpen(className) ? static_cast<Window *>(windows::find(className)) : nullptr;
}

} // namespace

ViewBooks::ViewBooks(form_base &window) : m_window(window), m_session(window.session())
{
    const StreamDispatcher *dispatcher = &m_session.dispatcher();
    const auto rememberAll = [this](const QList<node_data_t> &nodes) {
        for (const node_data_t &node : nodes)
            remember(node);
    };
    connect(dispatcher, &StreamDispatcher::singleNodeFrame, this, &ViewBooks::remember);
    connect(dispatcher, &StreamDispatcher::gatewayBatch62, this, rememberAll);
    connect(dispatcher, &StreamDispatcher::gatewayBatch63, this, rememberAll);
    connect(&m_session, &DeviceSession::sampleReceived, this, [this](const StreamSample &sample) {
        const node_data_t &node = sample.snapshot.sample;
        if (m_sent.size() > 1)
            judge({node.acc[0], node.acc[1], node.acc[2]}, kExact, "stream");
    });
    connect(&m_session, &DeviceSession::streamRestarted, this, [this](const StreamRestart &restart) {
        if (restart.kind == StreamBreak::NewConnection)
            m_sent.clear();
    });
    connect(&m_timer, &QTimer::timeout, this, &ViewBooks::look);
    m_clock.start();
    m_timer.start(kLookMs);
}

void ViewBooks::remember(const node_data_t &node)
{
    std::deque<Sent> &sent = m_sent[node.id];
    const double now = wallSec();
    sent.push_back({now, node});
    // Including the one before a long silence: windows show it until they refresh.
    while (sent.size() > 1 && sent[1].wallSec < now - kRememberedSec)
        sent.pop_front();
}

/// A window may be late and show an old value. A value that another node has just sent, and the followed one has not,
/// is a stranger.
void ViewBooks::judge(const Test &isOf, const char *where)
{
    ++m_findings.looks;
    const quint8 followed = m_session.followedNode().value_or(0);
    bool isStranger = false;
    for (auto node = m_sent.cbegin(); node != m_sent.cend(); ++node) {
        if (!std::any_of(node->begin(), node->end(), [&isOf](const Sent &one) { return isOf(one.node); }))
            continue;
        if (node.key() == followed)
            return;
        isStranger = true;
    }
    if (!isStranger)
        return;
    ++m_findings.strangers;
    note(QStringLiteral("%1: not of node %2").arg(QLatin1String(where)).arg(followed));
}

void ViewBooks::judge(const Vector &acc, double tolerance, const char *where)
{
    if (!isFinite(acc)) // does not identify its node
        return;
    judge(
        [&](const node_data_t &node) {
            // Written so that NaN matches no node.
            return std::abs(double(node.acc[0]) - acc[0]) <= tolerance
                   && std::abs(double(node.acc[1]) - acc[1]) <= tolerance
                   && std::abs(double(node.acc[2]) - acc[2]) <= tolerance;
        },
        where);
}

/// The acceleration that the main window shows; nothing when it shows none, or something that is not a number.
std::optional<ViewBooks::Vector> ViewBooks::numbersOfPanel() const
{
    static const QRegularExpression number(QStringLiteral("\\t([^\\t]+) G$"), QRegularExpression::MultilineOption);
    Vector acc{};
    size_t count = 0;
    bool isNumber = true;
    auto found = number.globalMatch(m_window.findChild<SensorDataPanel *>()->text());
    while (found.hasNext() && isNumber && count < acc.size())
        acc[count++] = found.next().captured(1).replace(QChar(0x2212), u'-').toDouble(&isNumber);
    return isNumber && count == acc.size() ? std::optional(acc) : std::nullopt;
}

void ViewBooks::look()
{
    const auto *dashboard = opened<form_sensor_dashboard>("form_sensor_dashboard");
    const WaveChartBridge *chart = nullptr;
    if (dashboard != nullptr && const_cast<form_sensor_dashboard *>(dashboard)->bridge().playing())
        chart = const_cast<form_sensor_dashboard *>(dashboard)->bridge().bridge(QStringLiteral("acc"));
    measure(m_sensorSpan, chart, "sensor dashboard");
    if (auto *gateway = opened<form_wireless_dashboard>("form_wireless_dashboard")) {
        GatewayDashboardBridge &bridge = gateway->bridge();
        if (bridge.chosenNodes().isEmpty() && bridge.nodeCount() > 0)
            bridge.setNodeChosen(bridge.nodeModel()->nodes().constFirst().id, true);
        const QVariantList panes = bridge.panes();
        measure(m_gatewaySpan,
                panes.isEmpty() || !bridge.playing()
                    ? nullptr
                    : qobject_cast<WaveChartBridge *>(
                        panes.constFirst().toMap().value(QStringLiteral("backend")).value<QObject *>()),
                "gateway dashboard");
    }
    if (m_sent.size() < 2 || !m_session.isOpen() || !m_session.newestSample())
        return;
    if (chart != nullptr && chart->hasData()) {
        const QVariantList values = chart->getValuesAtTime(0);
        judge({values.value(0).toDouble(), values.value(1).toDouble(), values.value(2).toDouble()}, kExact,
              "sensor dashboard");
    }
    if (const std::optional<Vector> acc = numbersOfPanel())
        judge(*acc, kShown, "numbers");
    if (++m_looks % kLooksPerPose == 0)
        lookAtPose();
}

void ViewBooks::lookAtPose()
{
    auto *threed = opened<form_threed>("form_threed");
    if (threed == nullptr || !threed->isPlotting())
        return;
    const QQuaternion shown = threed->backend().quaternion();
    if (shown.isIdentity()) // no attitude, or none yet
        return;
    judge(
        [&shown](const node_data_t &node) {
            for (const bool hasQuat : {true, false}) {
                for (const OrientationPreset preset : {OrientationPreset::RfuEnu312, OrientationPreset::FluNwuZyx}) {
                    const NormalizedAttitude attitude =
                        attitude_convention::normalizeAttitude({node, hasQuat, true}, preset);
                    if (std::abs(QQuaternion::dotProduct(attitude.quaternion, shown)) > float(kSamePose))
                        return true;
                }
            }
            return false;
        },
        "3D view");
}

void ViewBooks::measure(Span &span, const WaveChartBridge *chart, const char *name)
{
    if (chart == nullptr || !chart->hasData() || chart->newestTimeSec() < span.newestSec || !m_session.isOpen()) {
        span = {};
        return;
    }
    const double newest = chart->newestTimeSec();
    if (span.isOpen && newest <= span.newestSec)
        return;
    span.newestSec = newest;
    const double now = wallSec();
    if (!span.isOpen) {
        span = {true, now, newest, newest};
        return;
    }
    const double wall = now - span.wallSec;
    if (wall < kSpanSec)
        return;
    const double axis = newest - span.axisSec;
    ++m_findings.spans;
    if (std::abs(axis - wall) > kSpanShare * wall + kSpanSlackSec) {
        ++m_findings.wrongSpans;
        note(QStringLiteral("%1: %2 s became %3 s").arg(QLatin1String(name)).arg(wall).arg(axis));
    }
    span = {true, now, newest, newest};
}

void ViewBooks::note(const QString &example)
{
    if (m_findings.examples.size() < kExamples)
        m_findings.examples += QString::number(wallSec(), 'f', 1) + QStringLiteral(" s: ") + example;
}
