#include "wave/sensor_dashboard_bridge.h"

#include <utility>

#include <QSettings>

#include "wave/sample_feed.h"

namespace {

const QString kSelectionKey = QStringLiteral("SENSOR_DASHBOARD/SELECTED_SENSORS");
const QString kLinkedKey = QStringLiteral("SENSOR_DASHBOARD/LINKED");

/// Before the keys of a chart's choices: "SENSOR_DASHBOARD/ACC".
QString choicePrefix(const QString &type)
{
    return QStringLiteral("SENSOR_DASHBOARD/") + type.toUpper();
}

} // namespace

SensorDashboardBridge::SensorDashboardBridge(QObject *parent) : QObject(parent)
{
    for (const SensorType &type : ::sensorTypes()) {
        m_sensorTypes += type.key;
        auto *chart = new WaveChartBridge(type.key, this);
        connect(chart->trigger(), &WaveTrigger::caught, this, [this, chart] {
            if (chart->trigger()->records())
                emit recordingWanted();
        });
        m_bridges.insert(type.key, chart);
        m_selected.insert(type.key, true);
    }
    retranslate();
}

QVariantList SensorDashboardBridge::paneStates() const
{
    QVariantList states;
    for (const QString &type : m_sensorTypes)
        states += paneState(type);
    return states;
}

QVariantList SensorDashboardBridge::visiblePaneStates() const
{
    QVariantList states;
    for (const QString &type : selectedSensorTypes())
        states += paneState(type);
    return states;
}

QVariantMap SensorDashboardBridge::paneState(const QString &type) const
{
    return {{QStringLiteral("type"), type},
            {QStringLiteral("label"), m_paneLabels.value(type)},
            {QStringLiteral("selected"), isSensorSelected(type)},
            {QStringLiteral("backend"), QVariant::fromValue<QObject *>(backend(type))}};
}

QStringList SensorDashboardBridge::selectedSensorTypes() const
{
    QStringList selected;
    for (const QString &type : m_sensorTypes) {
        if (isSensorSelected(type))
            selected += type;
    }
    return selected;
}

QSize SensorDashboardBridge::layoutForCount(int count)
{
    if (count < 1)
        return {0, 0};
    if (count <= 3)
        return {count, 1};
    return {count == 4 ? 2 : 3, 2};
}

void SensorDashboardBridge::setSensorSelected(const QString &type, bool selected)
{
    const auto flag = m_selected.find(type);
    if (flag == m_selected.end() || *flag == selected)
        return;
    *flag = selected;
    syncObservedStates();
    emit selectionChanged();
    emit paneStatesChanged();
}

void SensorDashboardBridge::resetSelectionsToDefault()
{
    for (bool &flag : m_selected)
        flag = true;
    syncObservedStates();
    emit selectionChanged();
    emit paneStatesChanged();
}

void SensorDashboardBridge::pushSample(const QString &type, const float *values, int n, unsigned int timestampMs)
{
    WaveChartBridge *chart = m_dashboardActive ? bridge(type) : nullptr;
    if (chart)
        chart->pushSample(values, n, timestampMs);
}

void SensorDashboardBridge::pushSamples(const ChartSamples &samples, unsigned int timestampMs)
{
    for (const ChartSample &sample : samples)
        pushSample(m_sensorTypes.at(sample.type), sample.values.data(), sample.count, timestampMs);
}

void SensorDashboardBridge::setPlaying(bool playing)
{
    if (playing == m_playing)
        return;
    m_playing = playing;
    for (WaveChartBridge *chart : std::as_const(m_bridges))
        chart->setPlaying(playing);
    emit playingChanged();
}

void SensorDashboardBridge::setLinked(bool linked)
{
    if (linked == m_linked)
        return;
    m_linked = linked;
    emit linkedChanged();
}

void SensorDashboardBridge::setClock(const SharedClock &clock)
{
    for (WaveChartBridge *chart : std::as_const(m_bridges))
        chart->setClock(clock);
}

void SensorDashboardBridge::setOrigin(const SampleOrigin &origin)
{
    for (WaveChartBridge *chart : std::as_const(m_bridges))
        chart->setOrigin(origin);
}

void SensorDashboardBridge::setFrameRate(unsigned int samplesPerSecond)
{
    for (WaveChartBridge *chart : std::as_const(m_bridges))
        chart->setFrameRate(samplesPerSecond);
}

void SensorDashboardBridge::setDashboardActive(bool active)
{
    if (active == m_dashboardActive)
        return;
    m_dashboardActive = active;
    syncObservedStates();
    if (!active) {
        resetBackends();
        return;
    }
    for (WaveChartBridge *chart : std::as_const(m_bridges))
        chart->restoreFilter();
}

void SensorDashboardBridge::resetBackends()
{
    for (WaveChartBridge *chart : std::as_const(m_bridges))
        chart->reset();
}

void SensorDashboardBridge::restartStream(StreamBreak kind)
{
    if (emptiesViews(kind))
        m_markers.clear();
    for (WaveChartBridge *chart : std::as_const(m_bridges)) {
        if (emptiesViews(kind))
            chart->restart();
        else
            chart->markBreak(kind);
    }
}

void SensorDashboardBridge::syncObservedStates()
{
    for (const QString &type : std::as_const(m_sensorTypes))
        m_bridges.value(type)->setObserved(m_dashboardActive && isSensorSelected(type));
}

void SensorDashboardBridge::loadSelectionState(const QString &iniPath)
{
    const QSettings settings(iniPath, QSettings::IniFormat);
    setLinked(settings.value(kLinkedKey).toBool());
    for (const QString &type : std::as_const(m_sensorTypes))
        m_bridges.value(type)->restoreChoices(ViewChoices::read(settings, choicePrefix(type)));
    if (!settings.contains(kSelectionKey))
        return;
    const QStringList stored = settings.value(kSelectionKey).toStringList();
    bool changed = false;
    for (const QString &type : std::as_const(m_sensorTypes)) {
        const bool selected = stored.contains(type);
        changed |= std::exchange(m_selected[type], selected) != selected;
    }
    if (!changed)
        return;
    syncObservedStates();
    emit selectionChanged();
    emit paneStatesChanged();
    emit layoutChanged();
}

void SensorDashboardBridge::saveSelectionState(const QString &iniPath) const
{
    QSettings settings(iniPath, QSettings::IniFormat);
    settings.setValue(kSelectionKey, selectedSensorTypes());
    settings.setValue(kLinkedKey, m_linked);
    for (const QString &type : m_sensorTypes)
        m_bridges.value(type)->choices().write(settings, choicePrefix(type));
    settings.sync();
}

void SensorDashboardBridge::retranslate()
{
    for (const SensorType &type : ::sensorTypes())
        m_paneLabels.insert(type.key, typeLabel(type));
    m_windowTitle = tr("Sensor Dashboard");
    emit windowTitleChanged();
    emit paneStatesChanged();
}
