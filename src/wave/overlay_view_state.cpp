#include "wave/overlay_view_state.h"

#include <cmath>

#include "app/app_language_manager.h"
#include "app/value_format.h"
#include "wave/chart_text.h"
#include "wave/sensor_dashboard_bridge.h"
#include "wave/sensor_types.h"
#include "wave/wave_csv.h"

OverlayViewState::OverlayViewState(QObject *parent) : TimeViewState(parent)
{
    connect(&AppLanguageManager::instance(), &AppLanguageManager::languageChanged, this, [this] {
        emit titleChanged();
        emit seriesChanged();
    });
}

void OverlayViewState::setOverlay(NodeOverlay *overlay)
{
    if (overlay == m_overlay)
        return;
    if (m_overlay)
        m_overlay->disconnect(this);
    m_overlay = overlay;
    if (overlay) {
        connect(overlay, &NodeOverlay::dataChanged, this, &OverlayViewState::samplesChanged);
        connect(overlay, &NodeOverlay::nodesChanged, this, &OverlayViewState::takeNodes);
        connect(overlay, &NodeOverlay::playingChanged, this, &OverlayViewState::refreshStale);
        connect(overlay, &NodeOverlay::channelChanged, this, [this] {
            setYAutomatic(true);
            emit titleChanged();
        });
    }
    m_ids.clear();
    changeSource({});
    takeNodes();
    emit overlayChanged();
}

/// A node that comes or goes changes neither the range nor which of the others are visible.
void OverlayViewState::takeNodes()
{
    QList<int> ids;
    QList<bool> visible;
    if (m_overlay) {
        for (const NodeOverlay::Node &node : m_overlay->nodes()) {
            ids += node.id;
            visible += m_ids.contains(node.id) ? isSeriesVisible(int(m_ids.indexOf(node.id))) : true;
        }
    }
    m_ids = ids;
    changeSeries(visible);
    emit titleChanged();
}

QString OverlayViewState::name() const
{
    if (!m_overlay || !m_overlay->anyChart())
        return {};
    const QString channel = m_overlay->channelNames().value(m_overlay->channel());
    const QString quantity = SensorDashboardBridge::typeLabel(*findSensorType(m_overlay->sensorType()));
    return m_overlay->channelNames().size() > 1 ? quantity + u' ' + channel : quantity;
}

QString OverlayViewState::unit() const
{
    return m_overlay && m_overlay->anyChart() ? chart_text::unit(m_overlay->anyChart()->chartTitle()) : QString();
}

QString OverlayViewState::rangeText() const
{
    return m_overlay && m_overlay->anyChart() ? chart_text::range(*m_overlay->anyChart(), m_x.min, m_x.max) : QString();
}

QString OverlayViewState::valueText(int, double value, MeasureTable::Figure figure) const
{
    return m_overlay && m_overlay->anyChart()
               ? chart_text::figure(*m_overlay->anyChart(), m_overlay->channel(), value, figure)
               : QString();
}

QString OverlayViewState::paddedText(int, double value) const
{
    const WaveChartBridge *chart = m_overlay->anyChart();
    if (!chart)
        return value_format::absent();
    const QString text = chart_text::paddedValue(*chart, m_overlay->channel(), std::isnan(value) ? 0 : value);
    return std::isnan(value) ? value_format::absent().rightJustified(text.size()) : text;
}

QString OverlayViewState::fileStem() const
{
    if (!m_overlay || !m_overlay->anyChart())
        return QStringLiteral("chart");
    return chart_text::fileStem(m_overlay->sensorType() + u'_' + m_overlay->channelNames().value(m_overlay->channel()),
                                {m_overlay->anyChart()->origin().device, -1})
           + QStringLiteral("_nodes");
}

QByteArray OverlayViewState::table(bool all) const
{
    if (!m_overlay)
        return {};
    return all ? wave_csv::table(*m_overlay, m_overlay->timeLimits().history, 0)
               : wave_csv::table(*m_overlay, m_x.min, m_x.max);
}

QString OverlayViewState::pictureTitle() const
{
    QString title = name();
    if (!unit().isEmpty())
        title += QStringLiteral(" (") + unit() + u')';
    return m_overlay && m_overlay->anyChart()
               ? (title + QStringLiteral("  ") + m_overlay->anyChart()->origin().device).trimmed()
               : title;
}
