#pragma once

#include <QtGlobal>

#include <array>

#include "session/stream_event.h"

/// The time of one node's stream in milliseconds since the connection was opened, whatever clock its samples carry: it
/// never runs backwards, does not jump when a clock does, and continues with the computer's clock where the device
/// sends no time.
///
/// A node may have two clocks: its own (single records and full batches) and its gateway's (compact batches). Each is
/// mapped onto the common time line. Stamps are 32-bit milliseconds that wrap; 0 means that the sample carries none and
/// is placed by the measured pace of arrival. A stamp that repeats, or is up to a second late, gets the newest time
/// again.
///
/// A plain value of fixed size; nothing is allocated.
class StreamTimeline
{
public:
    enum class Clock { Node, Gateway };

    struct Place
    {
        double timeMs = 0; ///< at least 1
        double stepMs = 0; ///< since the previous sample
        StreamBreak brokenBy = StreamBreak::None;
    };

    /// Places the next sample. `hostMs` is its arrival in milliseconds since the port was opened, on a steady clock.
    /// `interruptions` counts the commands so far that may have held the output back.
    Place next(Clock clock, quint32 stampMs, double hostMs, quint32 interruptions);

    /// Median of the newest steps between samples in milliseconds; 0 while unknown.
    double periodMs() const;

private:
    static constexpr int kSteps = 15;

    /// One device clock on the time line.
    struct Anchor
    {
        bool isSet = false;
        quint32 stampMs = 0; ///< of its newest sample
        double timeMs = 0;   ///< where that stands
    };

    double byStamp(Clock clock, quint32 stampMs, double hostStepMs, bool *jumped);
    double byArrival(double hostMs);
    double measuredArrival(double hostMs, double targetMs);
    void addStep(double stepMs);

    bool m_hasSample = false;
    double m_timeMs = 0;
    double m_hostMs = 0;
    quint32 m_interruptions = 0;
    Clock m_lastClock = Clock::Node;
    std::array<Anchor, 2> m_anchors;

    // samples without a stamp
    double m_offsetMs = 0;        ///< stream time minus host time
    double m_arrivalPeriodMs = 0; ///< 0: not measured yet
    double m_firstArrivalMs = 0;
    int m_arrivals = 0; ///< while the pace is being measured

    std::array<float, kSteps> m_steps{}; ///< newest steps, a ring
    int m_stepCount = 0;
};
