#pragma once

#include <QtGlobal>

#include <optional>

namespace kvsim {

/// Says when frames are due: frame k at start + k / rate, computed by counting, not by adding up, so that no error
/// accumulates however late or irregularly it is called. Times are nanoseconds of one monotonic clock.
class FrameClock
{
public:
    /// A pause longer than this (a stopped process, a sleeping computer) is skipped instead of being caught up.
    static constexpr qint64 kLongestCatchUpNs = 500'000'000;

    /// Begins a new count; the first frame is due at `nowNs`.
    void restart(qint64 nowNs, double rateHz);

    /// The moment of the next frame that is due by now, each one handed out once; nothing when none is.
    std::optional<qint64> takeDue(qint64 nowNs);

private:
    qint64 momentOf(quint64 frame) const;

    qint64 m_startNs = 0;
    double m_rateHz = 100.0;
    quint64 m_next = 0;
};

} // namespace kvsim
