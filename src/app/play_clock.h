#pragma once

#include <QMutex>

#include <functional>
#include <limits>

#include "app/steady_time.h"

/// The time of what is played back, in nanoseconds since 1970 as it was when it was received:
///
///     play time = start + rate x steady time since the start
///
/// It is never summed up from intervals, so it does not drift; a new start is set only by a pause, a new rate and a
/// jump. It waits for the player: it does not pass the time of what has not been handed out yet. Any thread.
class PlayClock
{
public:
    static constexpr double kSlowest = 0.1;
    static constexpr double kFastest = 50;
    static constexpr double kUnthrottled = 0; ///< time passes as fast as data are handed out
    static constexpr qint64 kNever = std::numeric_limits<qint64>::max();

    using Steady = std::function<qint64()>;
    explicit PlayClock(Steady steady = &steadyNs) : m_steady(std::move(steady)) {}
    Q_DISABLE_COPY_MOVE(PlayClock)

    qint64 nowNs() const;
    double rate() const;
    bool isPaused() const;

    /// kUnthrottled, or a rate that is clamped to kSlowest..kFastest.
    void setRate(double rate);
    /// A clock starts paused.
    void setPaused(bool paused);
    /// Time goes on from here.
    void jump(qint64 playNs);

    /// Time does not pass this, see above. Without a rate it is this.
    void setLimit(qint64 playNs);
    /// Steady nanoseconds until a time; 0 when it has come, kNever while paused.
    qint64 waitNs(qint64 playNs) const;
    /// By how many steady nanoseconds the player is late: time would be past the limit.
    qint64 lagNs() const;

private:
    qint64 unlimited() const;
    void restart(qint64 playNs);

    Steady m_steady;
    mutable QMutex m_lock; ///< guards all below
    double m_rate = 1;
    bool m_isPaused = true;
    qint64 m_startPlay = 0;
    qint64 m_startSteady = 0;
    qint64 m_limit = kNever;
};
