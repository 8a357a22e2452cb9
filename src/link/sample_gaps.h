#pragma once

#include <QtGlobal>

#include <array>
#include <limits>

/// Infers from the time stamps of one source which of its samples are missing, without knowing its rate: the period is
/// learned from the newest steps, in a way that gaps among them do not lengthen it. A step of one and a half periods or
/// more is a gap. A change of the source's rate is recognised after half a dozen samples, which may count as gaps;
/// rates between 850 and 1000 per second cannot be told apart from 1000 with losses. A plain value of fixed size;
/// nothing is allocated.
///
/// Stamps are milliseconds of a 32-bit clock, which may wrap. A repeated or late stamp is not a gap and fills none.
/// When the clock jumps, because the source restarted or was set, there is no way to know what is missing: nothing is
/// counted, and the steps go on from the new stamp. A step of more than a minute is taken for a silence, and counted,
/// if the computer's clock has advanced as far. Stamps of 0 mean that the sample carries no time.
class SampleGaps
{
public:
    /// What the clock shows before a sample.
    struct Step
    {
        quint64 missing = 0; ///< samples
        quint32 gapMs = 0;   ///< time since the previous sample, when some are missing
        bool jumped = false;
    };

    /// Takes the next sample. `hostMs` is its arrival on a steady clock, milliseconds.
    Step add(quint32 stampMs, qint64 hostMs);
    /// The following stamps come from another clock.
    void changeClock();

    /// A stamp other than 0 has been seen.
    bool hasClock() const { return m_hasClock; }
    /// Time between two samples in milliseconds, by their stamps, or by their arrival when they have none; 0: not
    /// known.
    double periodMs() const { return pace().periodMs; }

private:
    static constexpr int kSteps = 16;

    struct Pace
    {
        double periodMs = 0;
        double gapMs = std::numeric_limits<double>::infinity(); ///< a longer step is a gap
    };

    quint32 forwardMs(quint32 stampMs, qint64 hostMs, bool &jumped) const;
    void addStep(quint32 stepMs);
    Pace pace() const;

    bool m_hasSample = false;
    bool m_hasClock = false;
    quint32 m_stampMs = 0;
    qint64 m_hostMs = 0;
    std::array<quint32, kSteps> m_steps{}; ///< newest steps between samples in milliseconds, a ring
    int m_stepCount = 0;
};
