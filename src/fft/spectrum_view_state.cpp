#include "fft/spectrum_view_state.h"

#include <QRectF>

#include <algorithm>
#include <cmath>
#include <utility>

#include "app/value_format.h"

namespace {

constexpr double kMinShareX = 1e-3; ///< smallest visible part of the frequencies
constexpr double kMinAmplitudeSpan = 1e-4;
constexpr double kMinDecibelSpan = 1;
constexpr double kFittedDecibels = 80; ///< range shown below the highest level
constexpr int kWidth = 9;              ///< characters of a typical amplitude

} // namespace

SpectrumViewState::SpectrumViewState(QObject *parent) : PlotViewState(MainAxis::Y, {0, 50}, {0, 1}, parent)
{
    connect(this, &PlotViewState::viewChanged, this, &SpectrumViewState::tellAxisInForce);
}

void SpectrumViewState::tellAxisInForce()
{
    if (!m_bridge)
        return;
    const double top = m_decibels ? std::pow(10, m_y.max / 20) : m_y.max;
    m_bridge->setMaximumInForce(m_y.max == fullY().max ? 0 : top);
}

void SpectrumViewState::setBridge(FftChartBridge *bridge)
{
    if (bridge == m_bridge)
        return;
    if (m_bridge)
        m_bridge->disconnect(this);
    m_bridge = bridge;
    if (bridge) {
        m_decibels = bridge->chosenDecibels();
        for (size_t axis = 0; axis < m_visible.size(); ++axis)
            m_visible[axis] = !bridge->hiddenAxes().contains(int(axis));
        connect(bridge, &FftChartBridge::fftDataChanged, this, &SpectrumViewState::dataChanged);
        connect(bridge, &FftChartBridge::frameMetaChanged, this, &SpectrumViewState::followFrequencies);
        connect(bridge, &FftChartBridge::frameMetaChanged, this, &SpectrumViewState::seriesChanged);
        connect(bridge, &FftChartBridge::viewConfigChanged, this, &SpectrumViewState::configChanged);
        connect(bridge, &FftChartBridge::alarmPresetChanged, this, &SpectrumViewState::thresholdsChanged);
        connect(bridge, &FftChartBridge::ceilingRequested, this, [this] { setYAutomatic(false); });
        connect(bridge, &FftChartBridge::xAxisResetRequested, this, [this] { setX(fullX()); });
    }
    emit bridgeChanged();
    configChanged();
    dataChanged();
    reset();
}

void SpectrumViewState::setDecibels(bool decibels)
{
    if (decibels == m_decibels)
        return;
    m_decibels = decibels;
    reportChoices();
    m_fitAnew = m_fitted;
    m_y = fullY();
    emit viewChanged();
    emit marksChanged();
    emit thresholdsChanged();
    emit pictureChanged();
}

void SpectrumViewState::setYAutomatic(bool automatic)
{
    if (automatic == m_fitted)
        return;
    m_fitted = automatic;
    m_fitAnew = automatic;
    m_y = fullY();
    emit viewChanged();
    emit pictureChanged();
}

QList<bool> SpectrumViewState::visibleSeries() const
{
    return {m_visible[0], m_visible[1], m_visible[2], m_bridge && m_bridge->showResultant()};
}

void SpectrumViewState::setSeriesVisible(int line, bool visible)
{
    if (line == FftChartBridge::kSeries - 1 && m_bridge) {
        m_bridge->setShowResultant(visible);
    } else if (line >= 0 && line < int(m_visible.size()) && m_visible[size_t(line)] != visible) {
        m_visible[size_t(line)] = visible;
        reportChoices();
        emit seriesChanged();
        emit pictureChanged();
    }
}

void SpectrumViewState::reportChoices() const
{
    QList<int> hidden;
    for (int axis = 0; axis < int(m_visible.size()); ++axis) {
        if (!m_visible[size_t(axis)])
            hidden += axis;
    }
    if (m_bridge)
        m_bridge->setChosenView(m_decibels, hidden);
}

double SpectrumViewState::level(double amplitude) const
{
    return m_decibels ? std::max(kFloorDb, 20 * std::log10(amplitude)) : amplitude;
}

double SpectrumViewState::fitFromX() const
{
    return m_bridge ? m_bridge->steadyEndHz() : 0;
}

QString SpectrumViewState::valueText(int, double value, MeasureTable::Figure figure) const
{
    return figure == MeasureTable::Figure::Difference ? value_format::signedNumber(value, 2)
                                                      : value_format::number(value, 2);
}

QString SpectrumViewState::positionText(double frequency) const
{
    return tr("%1 Hz").arg(value_format::number(frequency, 2));
}

double SpectrumViewState::placeBeside(double frequency, int direction) const
{
    return frequency + direction * (m_bridge ? m_bridge->frequencyResolution() : 0);
}

void SpectrumViewState::setManualY(chart_range::Range range)
{
    m_fitted = false;
    setY(range);
}

QByteArray SpectrumViewState::table(bool) const
{
    return m_bridge ? m_bridge->exportSnapshotCsv().toUtf8() : QByteArray();
}

QString SpectrumViewState::pictureTitle() const
{
    return m_bridge ? m_bridge->chartTitle() + QStringLiteral(" · ") + m_bridge->valueAxisTitle() : QString();
}

QVariantList SpectrumViewState::marks() const
{
    QVariantList list;
    const auto add = [this, &list](double frequency, double amplitude, const QString &label) {
        list += QVariantMap{{QStringLiteral("frequency"), frequency},
                            {QStringLiteral("level"), level(amplitude)},
                            {QStringLiteral("label"), label}};
    };
    if (!m_bridge || !m_bridge->currentAlarmPeak().valid)
        return list;
    const FftPeakSummary peak = m_bridge->currentAlarmPeak();
    add(peak.frequency, peak.amplitude, tr("%1 Hz").arg(value_format::number(peak.frequency, 2)));
    for (const FftHarmonicPeak &harmonic : m_bridge->harmonics())
        add(harmonic.frequency, harmonic.amplitude, QStringLiteral("H%1").arg(harmonic.order));
    return list;
}

QList<bool> SpectrumViewState::apart(const QVariantList &rectangles)
{
    QList<bool> shown;
    QList<QRectF> taken;
    for (const QVariant &entry : rectangles) {
        const QRectF rectangle = entry.toRectF();
        const bool isFree =
            std::none_of(taken.begin(), taken.end(), [&](const QRectF &other) { return other.intersects(rectangle); });
        shown += isFree;
        if (isFree)
            taken += rectangle;
    }
    return shown;
}

double SpectrumViewState::watchLevel() const
{
    return m_bridge ? level(m_bridge->alarmRule().watchThreshold) : 0;
}

double SpectrumViewState::alarmLevel() const
{
    return m_bridge ? level(m_bridge->alarmRule().alarmThreshold) : 0;
}

QString SpectrumViewState::hoverTitle() const
{
    const QVariantMap bin = m_bridge ? m_bridge->queryCursor(m_hoverX) : QVariantMap();
    return bin.isEmpty() ? QString()
                         : tr("%1 Hz").arg(value_format::number(bin.value(QStringLiteral("frequency")).toDouble(), 2));
}

QStringList SpectrumViewState::hoverTexts() const
{
    QStringList texts;
    const QList<double> amplitudes = m_bridge ? m_bridge->valuesAt(m_hoverX) : QList<double>();
    for (const double amplitude : amplitudes)
        texts += amplitudeText(amplitude).rightJustified(kWidth, QChar::Nbsp);
    return texts;
}

QString SpectrumViewState::amplitudeText(double amplitude, bool isDifference) const
{
    // A difference of decibels is passed in as such.
    if (m_decibels)
        return (isDifference ? value_format::signedNumber(amplitude, 1) : value_format::number(level(amplitude), 1))
               + QStringLiteral(" dB");
    const QString number = isDifference ? value_format::signedNumber(amplitude, 2) : value_format::number(amplitude, 2);
    return m_bridge ? number + QLatin1Char(' ') + m_bridge->unit() : number;
}

QStringList SpectrumViewState::measurement() const
{
    QStringList texts;
    std::array<QList<double>, 2> amplitudes;
    for (size_t i = 0; i < m_cursors.size(); ++i) {
        amplitudes[i] = m_bridge ? m_bridge->valuesAt(m_cursors[i]) : QList<double>();
        if (!std::isnan(m_cursors[i]))
            texts += QStringLiteral("%1 %2").arg(QLatin1Char(i == 0 ? 'A' : 'B')).arg(positionText(m_cursors[i]));
    }
    if (texts.size() < 2)
        return texts;
    texts += QStringLiteral("Δf %1").arg(tr("%1 Hz").arg(value_format::signedNumber(m_cursors[1] - m_cursors[0], 2)));
    const QList<bool> visible = visibleSeries();
    const QStringList names = seriesNames();
    for (qsizetype i = 0; i < std::min(amplitudes[0].size(), amplitudes[1].size()); ++i) {
        if (visible.at(i))
            texts += QStringLiteral("Δ%1 %2").arg(
                names.at(i), amplitudeText(level(amplitudes[1].at(i)) - level(amplitudes[0].at(i)), true));
    }
    return texts;
}

/// The nearest bin.
double SpectrumViewState::cursorPlace(double frequency) const
{
    return m_bridge && m_bridge->hasData()
               ? m_bridge->queryCursor(frequency).value(QStringLiteral("frequency")).toDouble()
               : kNone;
}

/// A on the dominant peak and B on twice its frequency.
double SpectrumViewState::firstPlace(int cursor) const
{
    const double peak = m_bridge ? m_bridge->dominantPeakFrequency() : 0;
    return peak > 0 ? (cursor + 1) * peak : m_x.min + m_x.span() * (cursor + 1) / 3;
}

double SpectrumViewState::keyPlace(int) const
{
    return m_x.min + m_x.span() / 2;
}

void SpectrumViewState::zoomY(double factor, double anchor)
{
    m_fitted = false;
    setY(chart_range::zoomed(m_y, factor, anchor));
}

void SpectrumViewState::panY(double fraction)
{
    m_fitted = false;
    setY(chart_range::moved(m_y, fraction));
}

void SpectrumViewState::reset()
{
    m_fitted = true;
    m_fitAnew = true;
    m_x = fullX();
    m_y = fullY();
    emit viewChanged();
    emit pictureChanged();
}

void SpectrumViewState::fitValues(double low, double high)
{
    if (!m_fitted || !(low <= high))
        return;
    low = m_decibels ? std::max(low, high - kFittedDecibels) : 0;
    const chart_range::Range full = fullY();
    constexpr chart_range::Range kHoldsNothing{1, 0};
    const chart_range::Range current = std::exchange(m_fitAnew, false) ? kHoldsNothing : m_y;
    const chart_range::Range range =
        chart_range::fitted(current, low, high, {full.min, full.max, m_decibels ? kMinDecibelSpan : kMinAmplitudeSpan});
    setY({std::max(range.min, full.min), std::min(range.max, full.max)});
}

void SpectrumViewState::dataChanged()
{
    followFrequencies();
    if (hasCursors()) {
        if (!m_bridge || !m_bridge->hasData())
            removeCursors();
        else
            emit cursorsChanged();
    }
    if (!std::isnan(m_hoverX))
        emit hoverChanged();
    emit marksChanged();
    emit pictureChanged();
}

void SpectrumViewState::configChanged()
{
    const double ceiling = m_bridge ? m_bridge->yAxisMax() : 0;
    if (ceiling != m_ceiling) {
        m_ceiling = ceiling;
        m_fitAnew = m_fitted;
        m_y = fullY();
        emit viewChanged();
    }
    emit seriesChanged();
    emit pictureChanged();
}

void SpectrumViewState::followFrequencies()
{
    const double maxFreq = m_bridge ? m_bridge->maxFreq() : m_maxFreq;
    if (maxFreq == m_maxFreq)
        return;
    const bool wasFull = m_x == fullX();
    m_maxFreq = maxFreq;
    setX(wasFull ? fullX() : m_x);
}

chart_range::Range SpectrumViewState::fullX() const
{
    return {0, m_maxFreq};
}

chart_range::Range SpectrumViewState::fullY() const
{
    const double ceiling = m_ceiling > 0 ? m_ceiling : 1;
    return m_decibels ? chart_range::Range{kFloorDb, std::max(level(ceiling), kFloorDb + kMinDecibelSpan)}
                      : chart_range::Range{0, ceiling};
}

void SpectrumViewState::setX(chart_range::Range range)
{
    const chart_range::Range next = chart_range::limited(range, {0, m_maxFreq, m_maxFreq * kMinShareX, m_maxFreq, 0});
    if (next == m_x)
        return;
    m_x = next;
    emit viewChanged();
    emit pictureChanged();
}

void SpectrumViewState::setY(chart_range::Range range)
{
    const chart_range::Range full = fullY();
    m_y = chart_range::limited(range,
                               {full.min, full.max, m_decibels ? kMinDecibelSpan : kMinAmplitudeSpan, full.span(), 0});
    emit viewChanged();
    emit pictureChanged();
}
