#include "app/play_clock.h"

#include <algorithm>
#include <cmath>

/// Of the paced clock, as if everything had been handed out. Call with the lock held.
qint64 PlayClock::unlimited() const
{
    if (m_isPaused || m_rate == kUnthrottled)
        return m_startPlay;
    return m_startPlay + qint64(m_rate * double(m_steady() - m_startSteady));
}

void PlayClock::restart(qint64 playNs)
{
    m_startPlay = playNs;
    m_startSteady = m_steady();
}

qint64 PlayClock::nowNs() const
{
    const QMutexLocker locker(&m_lock);
    return std::min(unlimited(), m_limit);
}

double PlayClock::rate() const
{
    const QMutexLocker locker(&m_lock);
    return m_rate;
}

bool PlayClock::isPaused() const
{
    const QMutexLocker locker(&m_lock);
    return m_isPaused;
}

void PlayClock::setRate(double rate)
{
    const QMutexLocker locker(&m_lock);
    restart(std::min(unlimited(), m_limit));
    m_rate = rate == kUnthrottled || !std::isfinite(rate) ? kUnthrottled : std::clamp(rate, kSlowest, kFastest);
}

void PlayClock::setPaused(bool paused)
{
    const QMutexLocker locker(&m_lock);
    restart(std::min(unlimited(), m_limit));
    m_isPaused = paused;
}

void PlayClock::jump(qint64 playNs)
{
    const QMutexLocker locker(&m_lock);
    m_limit = kNever;
    restart(playNs);
}

void PlayClock::setLimit(qint64 playNs)
{
    const QMutexLocker locker(&m_lock);
    m_limit = playNs;
    if (m_rate == kUnthrottled && !m_isPaused && playNs != kNever)
        restart(std::max(m_startPlay, playNs));
}

qint64 PlayClock::waitNs(qint64 playNs) const
{
    const QMutexLocker locker(&m_lock);
    if (m_isPaused)
        return kNever;
    if (m_rate == kUnthrottled)
        return 0;
    return std::max<qint64>(0, qint64(double(playNs - unlimited()) / m_rate));
}

qint64 PlayClock::lagNs() const
{
    const QMutexLocker locker(&m_lock);
    if (m_rate == kUnthrottled || m_isPaused || m_limit == kNever)
        return 0;
    return std::max<qint64>(0, qint64(double(unlimited() - m_limit) / m_rate));
}
