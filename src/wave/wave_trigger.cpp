#include "wave/wave_trigger.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr double kLapseSpans = 2;
constexpr double kMinSpan = 0.01; ///< seconds
constexpr double kMaxSpan = 60;

} // namespace

template <typename T> void WaveTrigger::set(T &member, T value)
{
    if (member == value)
        return;
    member = value;
    interrupt();
    emit settingsChanged();
}

void WaveTrigger::setOn(bool on)
{
    if (on == isOn())
        return;
    m_hasLast = false;
    m_shows = false;
    setState(on ? State::Waiting : State::Off);
    emit settingsChanged();
}

void WaveTrigger::setChannel(int channel)
{
    set(m_channel, channel);
}

void WaveTrigger::setEdge(Edge edge)
{
    set(m_edge, edge);
}

void WaveTrigger::setMode(Mode mode)
{
    set(m_mode, mode);
}

void WaveTrigger::setLevel(double level)
{
    if (std::isfinite(level))
        set(m_level, level);
}

void WaveTrigger::setBandEnd(double value)
{
    if (std::isfinite(value))
        set(m_bandEnd, value);
}

void WaveTrigger::setPreShare(double share)
{
    if (std::isfinite(share))
        set(m_preShare, std::clamp(share, 0.0, 1.0));
}

void WaveTrigger::setRecords(bool records)
{
    if (std::exchange(m_records, records) != records)
        emit settingsChanged();
}

void WaveTrigger::setSpan(double seconds)
{
    if (std::isfinite(seconds))
        set(m_span, std::clamp(seconds, kMinSpan, kMaxSpan));
}

QString WaveTrigger::stateText() const
{
    switch (m_state) {
    case State::Off:
        return tr("Off");
    case State::Waiting:
        return tr("Waiting");
    case State::Catching:
        return tr("Catching");
    case State::Held:
        return tr("Held");
    }
    return {};
}

void WaveTrigger::rearm()
{
    if (!isOn())
        return;
    m_hasLast = false;
    m_shows = false;
    setState(State::Waiting);
}

bool WaveTrigger::isEvent(double value) const
{
    if (m_edge == Edge::OutsideBand) {
        // Only leaving the band counts, so that staying outside is a single event.
        const auto [low, high] = std::minmax(m_level, m_bandEnd);
        const auto isInside = [low = low, high = high](double v) { return v >= low && v <= high; };
        return isInside(m_last) && !isInside(value);
    }
    const bool rises = m_last < m_level && value >= m_level;
    const bool falls = m_last > m_level && value <= m_level;
    return (rises && m_edge != Edge::Falling) || (falls && m_edge != Edge::Rising);
}

WaveTrigger::Step WaveTrigger::feed(double value, double timeSec)
{
    if (m_state == State::Off || m_state == State::Held)
        return Step::Nothing;
    if (m_state == State::Waiting) {
        const bool isFirst = !m_hasLast;
        const bool happened = !isFirst && std::isfinite(value) && isEvent(value);
        if (std::isfinite(value)) {
            m_last = value;
            m_hasLast = true;
        }
        if (!happened) {
            if (m_mode != Mode::Auto || !m_shows || timeSec - m_eventSec < kLapseSpans * m_span)
                return Step::Nothing;
            m_shows = false;
            return Step::Lapsed;
        }
        m_eventSec = timeSec;
        setState(State::Catching);
    }
    if (timeSec < m_eventSec + afterSec())
        return Step::Nothing;
    m_shows = true;
    m_hasLast = false;
    setState(m_mode == Mode::Single ? State::Held : State::Waiting);
    emit caught(m_eventSec);
    return Step::Caught;
}

void WaveTrigger::interrupt()
{
    m_hasLast = false;
    if (m_state == State::Catching)
        setState(State::Waiting);
}

void WaveTrigger::setState(State state)
{
    if (std::exchange(m_state, state) != state)
        emit stateChanged();
}
