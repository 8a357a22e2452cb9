#include "session/stream_timeline.h"

#include <algorithm>
#include <cmath>

#include "link/clock_step.h"

namespace {

constexpr double kGapMs = 1000;
constexpr double kGapPeriods = 5;
constexpr double kPausePeriods = 2.5; ///< a commanded pause shows from here on
constexpr double kPauseMs = 100;

// Clocks that differ by more than this have not merely drifted. Buffers on the way hold a few seconds at most.
constexpr double kClocksDifferMs = 5000;
constexpr double kAfterGapMs =
    2000; ///< the same for the first sample after a silence, which has not waited in a buffer
constexpr double kClocksDifferShare = 0.05; ///< more than any quartz

// Samples without stamps follow the computer's clock slowly, so that bursts of arrivals are spread evenly.
constexpr double kMeasureMs = 100; ///< arrivals are used as they are until the pace is known
constexpr int kMeasureArrivals = 3;
constexpr double kTimeGain = 0.1;
constexpr double kPeriodGain = 0.004;
constexpr double kLostMs = 250;
constexpr double kLostPeriods = 3;
constexpr double kClockGain = 0.05; ///< how fast the two clocks of a node are pulled together
constexpr double kMinPeriodMs = 0.05;

bool differs(double deviceMs, double hostMs)
{
    const double toleranceMs = deviceMs > kGapMs ? kAfterGapMs : kClocksDifferMs;
    return std::abs(deviceMs - hostMs) > std::max(toleranceMs, hostMs * kClocksDifferShare);
}

} // namespace

StreamTimeline::Place StreamTimeline::next(Clock clock, quint32 stampMs, double hostMs, quint32 interruptions)
{
    const bool isFirst = !m_hasSample;
    const double hostStepMs = isFirst ? 0 : std::max(hostMs - m_hostMs, 0.0);
    bool jumped = false;
    double timeMs = std::max(hostMs, 1.0);
    if (stampMs != 0)
        timeMs = isFirst ? timeMs : byStamp(clock, stampMs, hostStepMs, &jumped);
    else
        timeMs = isFirst ? timeMs : byArrival(hostMs);

    Place place;
    place.timeMs = std::max(timeMs, m_timeMs);
    place.stepMs = isFirst ? 0 : place.timeMs - m_timeMs;
    const double periodMs = this->periodMs();
    const bool wasInterrupted = interruptions != m_interruptions;
    if (isFirst)
        place.brokenBy = StreamBreak::None;
    else if (jumped)
        place.brokenBy = StreamBreak::ClockRestarted;
    else if (wasInterrupted && place.stepMs > std::max(kPausePeriods * periodMs, kPauseMs))
        place.brokenBy = StreamBreak::OutputStopped;
    else if (periodMs > 0 && place.stepMs > std::max(kGapPeriods * periodMs, kGapMs))
        place.brokenBy = StreamBreak::Gap;
    else if (place.stepMs > 0)
        addStep(place.stepMs);

    if (stampMs != 0) {
        Anchor &anchor = m_anchors[size_t(clock)];
        if (!anchor.isSet || jumped || ClockStep::between(anchor.stampMs, stampMs).kind != ClockStep::Repeated)
            anchor = {true, stampMs, place.timeMs};
        m_lastClock = clock;
        m_arrivals = 0;
    }
    if (stampMs != 0 || isFirst)
        m_offsetMs = place.timeMs - hostMs;
    m_hasSample = true;
    m_timeMs = place.timeMs;
    m_hostMs = hostMs;
    m_interruptions = interruptions;
    return place;
}

double StreamTimeline::byStamp(Clock clock, quint32 stampMs, double hostStepMs, bool *jumped)
{
    const Anchor &anchor = m_anchors[size_t(clock)];
    const double byHostMs = m_timeMs + hostStepMs;
    if (!anchor.isSet)
        return byHostMs;
    const ClockStep step = ClockStep::between(anchor.stampMs, stampMs);
    if (step.kind == ClockStep::Repeated)
        return m_timeMs;
    const double forwardMs = step.kind == ClockStep::Forward ? step.ms : quint32(stampMs - anchor.stampMs);
    const double candidateMs = anchor.timeMs + forwardMs;
    if (step.kind == ClockStep::Forward && clock == m_lastClock && forwardMs <= kGapMs)
        return candidateMs;
    *jumped = differs(candidateMs - m_timeMs, hostStepMs);
    if (*jumped)
        return byHostMs;
    return clock == m_lastClock ? candidateMs : candidateMs + kClockGain * (byHostMs - candidateMs);
}

double StreamTimeline::byArrival(double hostMs)
{
    const double targetMs = hostMs + m_offsetMs;
    if (m_arrivalPeriodMs <= 0)
        return measuredArrival(hostMs, targetMs);
    const double predictedMs = m_timeMs + m_arrivalPeriodMs;
    const double lateMs = targetMs - predictedMs;
    if (lateMs > std::max(kLostMs, kLostPeriods * m_arrivalPeriodMs))
        return targetMs;
    if (lateMs < -kLostMs) { // the stream has become faster
        m_arrivalPeriodMs = 0;
        m_arrivals = 0;
        return measuredArrival(hostMs, targetMs);
    }
    m_arrivalPeriodMs = std::max(m_arrivalPeriodMs + kPeriodGain * lateMs, kMinPeriodMs);
    return predictedMs + kTimeGain * lateMs;
}

/// Places samples as they arrive, until enough have arrived to know their pace.
double StreamTimeline::measuredArrival(double hostMs, double targetMs)
{
    if (m_arrivals == 0)
        m_firstArrivalMs = hostMs;
    else if (m_arrivals >= kMeasureArrivals && hostMs - m_firstArrivalMs >= kMeasureMs)
        m_arrivalPeriodMs = (hostMs - m_firstArrivalMs) / m_arrivals;
    ++m_arrivals;
    return targetMs;
}

void StreamTimeline::addStep(double stepMs)
{
    m_steps[size_t(m_stepCount % kSteps)] = float(stepMs);
    m_stepCount = m_stepCount + 1 < 2 * kSteps ? m_stepCount + 1 : kSteps;
}

double StreamTimeline::periodMs() const
{
    const int count = std::min(m_stepCount, kSteps);
    if (count == 0)
        return 0;
    std::array<float, kSteps> sorted = m_steps;
    const auto middle = sorted.begin() + count / 2;
    std::nth_element(sorted.begin(), middle, sorted.begin() + count);
    return double(*middle);
}
