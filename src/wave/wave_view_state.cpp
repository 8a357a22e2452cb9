#include "wave/wave_view_state.h"

#include <cmath>

#include "wave/chart_text.h"
#include "wave/wave_csv.h"

WaveViewState::WaveViewState(QObject *parent) : TimeViewState(parent) {}

void WaveViewState::setBridge(WaveChartBridge *bridge)
{
    if (bridge == m_bridge)
        return;
    if (m_bridge) {
        m_bridge->disconnect(this);
        m_bridge->trigger()->disconnect(this);
    }
    m_bridge = bridge;
    QList<bool> visible(bridge ? bridge->channelCount() : 0, true);
    if (bridge) {
        for (const int hidden : bridge->choices().hidden) {
            if (hidden >= 0 && hidden < visible.size())
                visible[hidden] = false;
        }
        connect(bridge, &WaveChartBridge::dataChanged, this, &WaveViewState::samplesChanged);
        connect(bridge, &WaveChartBridge::chartTitleChanged, this, &WaveViewState::titleChanged);
        connect(bridge->trigger(), &WaveTrigger::caught, this, [this](double eventSec) {
            if (m_marksCatches && markers())
                markers()->add({eventSec, m_bridge->utcMsAt(eventSec - m_bridge->newestTimeSec()), tr("Trigger")});
        });
        connect(bridge, &WaveChartBridge::holdsChanged, this, [this] {
            goLive(); // the caught span is as long as the view, or the newest samples are requested again
            refreshStale();
        });
        connect(bridge, &WaveChartBridge::playingChanged, this, &WaveViewState::refreshStale);
    }
    changeSource(visible);
    emit bridgeChanged();
}

QString WaveViewState::name() const
{
    return m_bridge ? chart_text::name(m_bridge->chartTitle()) : QString();
}

QString WaveViewState::unit() const
{
    return m_bridge ? chart_text::unit(m_bridge->chartTitle()) : QString();
}

QString WaveViewState::rangeText() const
{
    return m_bridge ? chart_text::range(*m_bridge, m_x.min, m_x.max) : QString();
}

QString WaveViewState::valueText(int channel, double value, MeasureTable::Figure figure) const
{
    return m_bridge ? chart_text::figure(*m_bridge, channel, value, figure) : QString();
}

QString WaveViewState::fileStem() const
{
    return m_bridge ? chart_text::fileStem(m_bridge->sensorType(), m_bridge->origin()) : QStringLiteral("chart");
}

QByteArray WaveViewState::table(bool all) const
{
    if (!m_bridge)
        return {};
    return all ? wave_csv::table(*m_bridge, m_bridge->xHistoryMin(), 0) : wave_csv::table(*m_bridge, m_x.min, m_x.max);
}

QString WaveViewState::pictureTitle() const
{
    return m_bridge
               ? QStringList{m_bridge->chartTitle(), m_bridge->origin().text()}.join(QStringLiteral("  ")).trimmed()
               : QString();
}

QList<BreakMark> WaveViewState::visibleMarks(const QList<BreakMark> &marks) const
{
    QList<BreakMark> visible;
    for (const BreakMark &mark : marks) {
        const double seconds = mark.timeSec - m_bridge->newestTimeSec();
        if (seconds >= m_x.min && seconds <= m_x.max)
            visible += mark;
    }
    return visible;
}

QList<double> WaveViewState::breakSeconds() const
{
    QList<double> seconds;
    if (m_bridge) {
        for (const BreakMark &mark : visibleMarks(m_bridge->breakMarks()) + visibleMarks(m_bridge->missingMarks()))
            seconds += mark.timeSec - m_bridge->newestTimeSec();
    }
    return seconds;
}

QStringList WaveViewState::breakTexts() const
{
    QStringList texts;
    if (m_bridge) {
        for (const BreakMark &mark : visibleMarks(m_bridge->breakMarks()) + visibleMarks(m_bridge->missingMarks()))
            texts += chart_text::curveBreak(mark);
    }
    return texts;
}

int WaveViewState::majorBreaks() const
{
    return m_bridge ? int(visibleMarks(m_bridge->breakMarks()).size()) : 0;
}

void WaveViewState::setTriggerOn(bool on)
{
    if (!m_bridge)
        return;
    WaveTrigger &trigger = *m_bridge->trigger();
    if (on) {
        trigger.setSpan(m_x.span());
        if (trigger.level() <= m_y.min || trigger.level() >= m_y.max)
            trigger.setLevel((m_y.min + m_y.max) / 2);
    }
    trigger.setOn(on);
    if (!on)
        m_bridge->release();
}

void WaveViewState::setMarksCatches(bool mark)
{
    if (mark == m_marksCatches)
        return;
    m_marksCatches = mark;
    emit marksCatchesChanged();
}

double WaveViewState::storeEnd() const
{
    return m_bridge && m_bridge->isStoreFull() && m_x.min < m_bridge->xHistoryMin() ? m_bridge->xHistoryMin() : kNone;
}

QString WaveViewState::storeEndText() const
{
    return std::isnan(storeEnd()) ? QString() : chart_text::storeLimit(*m_bridge);
}

QString WaveViewState::paddedText(int channel, double value) const
{
    return chart_text::paddedValue(*m_bridge, channel, value);
}

void WaveViewState::choicesChanged()
{
    if (!m_bridge)
        return;
    QList<int> hidden;
    for (int channel = 0; channel < visibleSeries().size(); ++channel) {
        if (!isSeriesVisible(channel))
            hidden += channel;
    }
    m_bridge->setChosenView(m_x.span(), hidden);
    if (m_bridge->trigger()->isOn() && !m_bridge->holds())
        m_bridge->trigger()->setSpan(m_x.span());
}

void WaveViewState::timeMoved()
{
    const bool hasBreaks = m_bridge && (!m_bridge->breakMarks().isEmpty() || !m_bridge->missingMarks().isEmpty());
    if (hasBreaks || m_hasBreaks)
        emit breaksChanged();
    m_hasBreaks = hasBreaks;
    const bool storeEndSeen = !std::isnan(storeEnd());
    if (storeEndSeen || m_storeEndSeen)
        emit storeEndChanged();
    m_storeEndSeen = storeEndSeen;
    TimeViewState::timeMoved();
}
