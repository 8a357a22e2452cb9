#pragma once

#include <atomic>
#include <memory>

#include "app/play_clock.h"

/// The one clock of a session, for whatever its samples are timed with. While a device is connected it is the
/// computer's; while a file is played back, it is the time at which the bytes were received that are dealt with now,
/// and between them the play clock's. So whatever reads it gives the same at any rate of playback.
///
/// Changed in the session's thread, read in any.
class SourceClock
{
public:
    /// Nanoseconds that nobody sets; their zero means nothing.
    qint64 steadyNs() const;
    qint64 steadyMs() const { return steadyNs() / 1'000'000; }
    /// Milliseconds since 1970 (UTC).
    qint64 wallMs() const;

    bool isPlayback() const { return m_play != nullptr; }
    /// The time is that of what is played back from now on; null: the computer's. `play` outlives this, or the next
    /// call.
    void follow(const PlayClock *play);
    /// Bytes of this time are dealt with, in nanoseconds since 1970; time stands there until release().
    void hold(qint64 playNs) { m_heldNs = playNs; }
    void release() { m_heldNs = 0; }

private:
    std::atomic<const PlayClock *> m_play = nullptr;
    std::atomic<qint64> m_heldNs = 0; ///< 0: the play clock's time counts
};

/// For readers: a clock of their own, which is the computer's, until they are given their session's.
using SharedClock = std::shared_ptr<const SourceClock>;
