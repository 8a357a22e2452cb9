#include "link/sample_gaps.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "link/clock_step.h"

namespace {

constexpr int kKnownSteps = 5;   ///< steps after which the period counts as known
constexpr double kGap = 1.5;     ///< a step of this many periods is a gap
constexpr int kRoundedShare = 6; ///< rounding makes one step in this many longer
constexpr qint64 kClocksDifferMs = 1000;
constexpr qint64 kClocksDifferShare = 20; ///< a twentieth of the time, more than any quartz

} // namespace

SampleGaps::Step SampleGaps::add(quint32 stampMs, qint64 hostMs)
{
    Step step;
    if (m_hasClock && stampMs != 0) {
        const quint32 ms = forwardMs(stampMs, hostMs, step.jumped);
        if (ms > 0) {
            const Pace known = pace(); // before it includes this step
            if (ms > known.gapMs) {
                step.missing = quint64(std::max(std::lround(ms / known.periodMs) - 1, 0L));
                step.gapMs = step.missing > 0 ? ms : 0;
            }
            addStep(ms);
        }
        if (ms > 0 || step.jumped)
            m_stampMs = stampMs;
    } else if (stampMs != 0) {
        m_hasClock = true;
        m_stampMs = stampMs;
        m_stepCount = 0; // steps by arrival
    } else if (!m_hasClock && m_hasSample) {
        addStep(quint32(std::clamp<qint64>(hostMs - m_hostMs, 0, ClockStep::kMaxStepMs)));
    }
    m_hasSample = true;
    m_hostMs = hostMs;
    return step;
}

/// The clock's step forward; 0 for a repeated or late stamp, and after a jump.
quint32 SampleGaps::forwardMs(quint32 stampMs, qint64 hostMs, bool &jumped) const
{
    const ClockStep step = ClockStep::between(m_stampMs, stampMs);
    jumped = step.kind == ClockStep::Jump;
    if (!jumped)
        return step.ms;
    const quint32 forward = stampMs - m_stampMs;
    const qint64 passed = hostMs - m_hostMs;
    jumped = std::abs(passed - qint64(forward)) > std::max(kClocksDifferMs, passed / kClocksDifferShare);
    return jumped ? 0 : forward;
}

void SampleGaps::changeClock()
{
    m_hasClock = false;
    m_stepCount = 0;
}

void SampleGaps::addStep(quint32 stepMs)
{
    m_steps[size_t(m_stepCount % kSteps)] = stepMs;
    // The count continues as the ring's write position, within a fixed range.
    m_stepCount = m_stepCount + 1 < 2 * kSteps ? m_stepCount + 1 : kSteps;
}

SampleGaps::Pace SampleGaps::pace() const
{
    const int count = std::min(m_stepCount, kSteps);
    if (count == 0)
        return {};
    // The mean of the steps that are not gaps. The median decides which these are; by itself it would be off by the
    // rounding of a clock in whole milliseconds.
    std::array<quint32, kSteps> sorted = m_steps;
    const auto middle = sorted.begin() + (count - 1) / 2;
    std::nth_element(sorted.begin(), middle, sorted.begin() + count);
    double limit = kGap * *middle;
    // At periods between one and two milliseconds, steps of both lengths alternate.
    const auto longer = std::count(sorted.begin(), sorted.begin() + count, *middle + 1);
    const bool isRounded = longer * kRoundedShare >= count;
    if (isRounded)
        limit = std::max(limit, double(*middle + 1));
    double sum = 0;
    int used = 0;
    for (int i = 0; i < count; ++i) {
        if (m_steps[size_t(i)] <= limit) {
            sum += m_steps[size_t(i)];
            ++used;
        }
    }
    const double period = sum / used;
    if (count < (*middle > 1 ? kKnownSteps : kSteps))
        return {period, std::numeric_limits<double>::infinity()};
    return {period, std::max(kGap * period, isRounded ? limit : 0)};
}
