#include "chart/chart_measures.h"

#include <QClipboard>
#include <QGuiApplication>

#include <algorithm>
#include <cmath>
#include <utility>

#include "app/app_language_manager.h"
#include "chart/chart_source.h"

namespace {

constexpr int kRefreshMs = 250;

} // namespace

ChartMeasures::ChartMeasures(QObject *parent) : QObject(parent)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(kRefreshMs);
    connect(&m_timer, &QTimer::timeout, this, &ChartMeasures::refresh);
    connect(&AppLanguageManager::instance(), &AppLanguageManager::languageChanged, this, &ChartMeasures::tableChanged);
}

void ChartMeasures::setViewState(PlotViewState *viewState)
{
    if (viewState == m_viewState)
        return;
    if (m_viewState)
        m_viewState->disconnect(this);
    m_viewState = viewState;
    if (viewState) {
        connect(viewState, &PlotViewState::pictureChanged, this, &ChartMeasures::schedule);
        connect(viewState, &PlotViewState::cursorsChanged, this, &ChartMeasures::schedule);
        connect(viewState, &PlotViewState::seriesChanged, this, &ChartMeasures::schedule);
    }
    emit viewStateChanged();
    m_place = {};
    refresh();
}

void ChartMeasures::setActive(bool active)
{
    if (active == m_active)
        return;
    m_active = active;
    emit activeChanged();
    m_timer.stop();
    m_place = {};
    refresh();
}

/// Soon, and at a steady pace while more keeps coming.
void ChartMeasures::schedule()
{
    if (m_active && !m_timer.isActive())
        m_timer.start();
}

void ChartMeasures::refresh()
{
    const ChartSource *source = m_active && m_viewState ? m_viewState->source() : nullptr;
    if (!source || !source->hasData()) {
        if (!m_table.rows.isEmpty()) {
            m_table = {};
            emit tableChanged();
        }
        return;
    }
    const QList<double> cursors = m_viewState->cursors();
    m_table.hasA = !std::isnan(cursors.at(0));
    m_table.hasB = !std::isnan(cursors.at(1));
    m_isBetween = m_table.hasA && m_table.hasB;
    const chart_range::Range range =
        m_isBetween ? chart_range::Range{std::min(cursors.at(0), cursors.at(1)), std::max(cursors.at(0), cursors.at(1))}
                    : chart_range::Range{m_viewState->xViewMin(), m_viewState->xViewMax()};
    Place place{source->revision(), range, m_viewState->visibleSeries()};
    if (!(place == m_place)) {
        m_place = std::move(place);
        ++m_computations;
        m_series.clear();
        m_statistics.clear();
        for (int series = 0; series < source->seriesCount(); ++series) {
            if (!m_viewState->isSeriesVisible(series))
                continue;
            m_series += series;
            m_statistics += source->statistics(series, range.min, range.max);
        }
    }
    const QList<double> atA = m_table.hasA ? source->valuesAt(cursors.at(0)) : QList<double>();
    const QList<double> atB = m_table.hasB ? source->valuesAt(cursors.at(1)) : QList<double>();
    m_table.rows.clear();
    for (qsizetype row = 0; row < m_series.size(); ++row) {
        const int series = m_series.at(row);
        m_table.rows += {source->seriesName(series), atA.value(series, SeriesStatistics::kNone),
                         atB.value(series, SeriesStatistics::kNone), m_statistics.at(row)};
    }
    emit tableChanged();
}

QString ChartMeasures::extent() const
{
    if (m_table.rows.isEmpty())
        return {};
    const QString from = m_viewState->positionText(m_place.range.min);
    const QString to = m_viewState->positionText(m_place.range.max);
    return m_isBetween ? tr("Between A and B, %1 to %2").arg(from, to) : tr("Over the view, %1 to %2").arg(from, to);
}

QVariantList ChartMeasures::rows() const
{
    QVariantList list;
    for (int row = 0; row < int(m_table.rows.size()); ++row) {
        list += m_table.texts(row, [this](int r, double value, MeasureTable::Figure figure) {
            return std::isnan(value) ? QString() : m_viewState->valueText(m_series.at(r), value, figure);
        });
    }
    return list;
}

void ChartMeasures::copy()
{
    refresh();
    if (!m_table.rows.isEmpty())
        QGuiApplication::clipboard()->setText(m_table.tabSeparated(
            QStringList{extent(), m_viewState->measurement().join(QLatin1String(", "))}.join(u'\t')));
}
