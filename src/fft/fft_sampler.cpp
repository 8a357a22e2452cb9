#include "fft/fft_sampler.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <limits>

namespace {

constexpr float kAccelerationScale = 1000.0F; ///< G to mG
constexpr float kAngularVelocityScale = 1.0F;
constexpr double kAccelerationLimit = 16000.0;   ///< mG
constexpr double kAngularVelocityLimit = 2000.0; ///< deg/s
constexpr double kUnknownNyquistHz = 50.0;
constexpr int kChannels = 3;
// A stream counts as dead after the same time as in the waveform charts.
constexpr double kMinStaleMs = 2000;
constexpr double kMaxStaleMs = 10000; ///< the last period may have been a gap in the stream
constexpr double kStalePeriods = 6;

qint64 steadyMs()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

/// Counters of a program that runs for weeks saturate.
void countUp(int &counter)
{
    counter += counter < std::numeric_limits<int>::max();
}

} // namespace

double FftTelemetry::health() const
{
    const double dropped = std::clamp(droppedBatches * 0.05, 0.0, 0.45);
    const double clipped = std::clamp(clippedSamples * 0.01, 0.0, 0.25);
    const double late = (meanLatencyMs - 20.0) / 100.0;
    return late > 0 ? std::max(0.0, 1.0 - dropped - clipped - std::min(late, 0.3)) : 1.0 - dropped - clipped;
}

FftSampler::FftSampler(Clock clock) : m_clock(clock ? std::move(clock) : steadyMs)
{
    reset(kDefaultPoints);
}

void FftSampler::setSpectrumType(FftSpectrumType type)
{
    if (type == m_type)
        return;
    m_type = type;
    for (CircularSampleBuffer &axis : m_axes)
        axis.clear();
}

void FftSampler::restart()
{
    for (CircularSampleBuffer &axis : m_axes)
        axis.clear();
    reset(pointCount());
}

void FftSampler::reset(int points)
{
    abandonBatch();
    m_held = {};
    m_heldIsFull = false;
    m_telemetry = {};
    m_rateHz = 0;
    m_completedRateHz = 0;
    m_hostStartMs.reset();
    m_deviceOffsetMs.reset();
    for (CircularSampleBuffer &axis : m_axes)
        axis.setCapacity(points);
    m_stamps.setCapacity(points);
    m_stamps.clear(); // the clock may be a different one
    m_norms.setCapacity(points);
    m_norms.clear();
    recomputeNormStatistics();
}

void FftSampler::abandonBatch()
{
    m_batchId = 0;
    m_expectedResults = 0;
    m_batchRateHz = 0;
}

bool FftSampler::append(const node_data_t &sample, int sampleRateHz)
{
    m_newestHostMs = m_clock();
    qint64 stamp = sample.time_ms == 0 ? fallbackSampleTimestampMs() : resolveSampleTimestampMs(sample.time_ms);
    if (m_stamps.count() > 0)
        stamp = std::max(stamp, newestStampMs() + 1);
    m_stamps.push(double(stamp));
    const bool rateChanged = updateSampleRateEstimate(sampleRateHz);
    if (m_type == FftSpectrumType::Acceleration)
        appendVectorSample(sample.acc, kAccelerationScale);
    else
        appendVectorSample(sample.gyr, kAngularVelocityScale);
    return rateChanged;
}

int FftSampler::presentationRateHz() const
{
    if (m_batchId != 0 && m_batchRateHz > 0)
        return m_batchRateHz;
    return m_completedRateHz > 0 ? m_completedRateHz : m_rateHz;
}

double FftSampler::normDeviation() const
{
    return m_normSquares > 0 ? std::sqrt(m_normSquares / m_norms.count()) : 0.0;
}

bool FftSampler::isStale() const
{
    const int count = m_stamps.count();
    if (count == 0)
        return false; // nothing that could continue
    const double periodMs = count > 1 ? m_stamps.at(count - 1) - m_stamps.at(count - 2) : 0;
    return double(m_clock() - m_newestHostMs) >= std::clamp(kStalePeriods * periodMs, kMinStaleMs, kMaxStaleMs);
}

std::optional<FftBatch> FftSampler::nextBatch()
{
    if (m_batchId != 0) {
        countUp(m_telemetry.droppedBatches);
        return std::nullopt;
    }
    if (m_axes[0].count() == 0 || m_rateHz < 1 || isStale())
        return std::nullopt;
    m_batchRateHz = m_rateHz;
    m_expectedResults = kChannels;
    m_batchId = m_nextBatchId++;
    m_batchStartMs = m_clock();
    m_batchIsFull = m_axes[0].isFull();
    return FftBatch{m_batchId, m_batchRateHz, {m_axes[0].toList(), m_axes[1].toList(), m_axes[2].toList()}};
}

FftResultOutcome FftSampler::takeResult(quint64 batchId, int channel, const QList<QPointF> &points)
{
    FftResultOutcome outcome;
    if (batchId == 0 || batchId != m_batchId)
        return outcome;
    outcome.accepted = true;
    outcome.fullBlock = m_batchIsFull;
    if (m_batchIsFull && !m_heldIsFull) {
        m_held = {};
        m_heldIsFull = true;
    }
    if (!points.isEmpty() && channel >= 0 && channel < kChannels) {
        // The drawn curve starts at the origin.
        outcome.points.reserve(points.size() + 1);
        outcome.points.append(QPointF(0.0, 0.0));
        outcome.points.append(applyHoldResult(channel, points));
        outcome.nyquistHz = m_batchRateHz > 0 ? m_batchRateHz * 0.5 : kUnknownNyquistHz;
    }
    finishResult(outcome);
    return outcome;
}

void FftSampler::finishResult(FftResultOutcome &outcome)
{
    if (--m_expectedResults > 0)
        return;
    outcome.batchClosed = true;
    if (m_batchRateHz > 0)
        m_completedRateHz = m_batchRateHz;
    abandonBatch();
    const auto latency = double(m_clock() - m_batchStartMs);
    FftTelemetry &t = m_telemetry;
    countUp(t.completedBatches);
    t.lastLatencyMs = latency;
    t.meanLatencyMs += (latency - t.meanLatencyMs) / t.completedBatches;
    t.maxLatencyMs = std::max(t.maxLatencyMs, latency);
}

const QList<QPointF> &FftSampler::applyHoldResult(int channel, const QList<QPointF> &points)
{
    if (m_hold == FftHoldMode::Live)
        return points;
    auto &[held, averaged] = m_held[size_t(channel)];
    if (held.size() != points.size()) {
        held = points;
        averaged = 1;
        return held;
    }
    countUp(averaged);
    for (qsizetype i = 0; i < points.size(); ++i) {
        const double y = points.at(i).y();
        double &heldY = held[i].ry();
        held[i].rx() = points.at(i).x();
        if (m_hold == FftHoldMode::AvgHold)
            heldY += (y - heldY) / averaged;
        else if (y > heldY)
            heldY = y;
    }
    return held;
}

qint64 FftSampler::hostElapsedMs()
{
    const qint64 now = m_clock();
    if (!m_hostStartMs)
        m_hostStartMs = now;
    return now - *m_hostStartMs;
}

qint64 FftSampler::resolveSampleTimestampMs(unsigned int deviceMs)
{
    m_deviceOffsetMs = qint64(deviceMs) - hostElapsedMs();
    return deviceMs;
}

qint64 FftSampler::fallbackSampleTimestampMs()
{
    const qint64 elapsed = hostElapsedMs();
    if (!m_deviceOffsetMs)
        m_deviceOffsetMs = m_stamps.count() > 0 ? newestStampMs() - elapsed : 0;
    return std::max<qint64>(elapsed + *m_deviceOffsetMs, 0);
}

qint64 FftSampler::newestStampMs() const
{
    return std::llround(m_stamps.at(m_stamps.count() - 1));
}

bool FftSampler::updateSampleRateEstimate(int sampleRateHz)
{
    const int rate = sampleRateHz >= 1 ? sampleRateHz : estimateWindowSampleRate();
    if (rate < 1 || rate == m_rateHz)
        return false;
    m_rateHz = rate;
    return true;
}

int FftSampler::estimateWindowSampleRate() const
{
    const int count = m_stamps.count();
    const double span = m_stamps.at(count - 1) - m_stamps.at(0);
    if (count < 2 || span <= 0)
        return 0;
    return std::max(1, int(std::lround((count - 1) * 1000.0 / span)));
}

void FftSampler::appendVectorSample(const float (&vector)[3], float scale)
{
    updateClippingCount(vector, scale);
    float good[kChannels];
    for (int i = 0; i < kChannels; ++i) {
        CircularSampleBuffer &axis = m_axes[size_t(i)];
        const bool finite = std::isfinite(vector[i]);
        const double value = finite ? double(vector[i]) * double(scale) : axis.at(axis.count() - 1);
        good[i] = finite ? vector[i] : float(value / double(scale));
        axis.push(value);
    }
    const float length = std::sqrt(good[0] * good[0] + good[1] * good[1] + good[2] * good[2]);
    // The squares of values far beyond any sensor's range would overflow.
    addNorm(double(scale)
            * (std::isfinite(length) ? double(length) : std::hypot(double(good[0]), double(good[1]), double(good[2]))));
}

void FftSampler::updateClippingCount(const float (&vector)[3], float scale)
{
    const double limit = scale >= kAccelerationScale ? kAccelerationLimit : kAngularVelocityLimit;
    for (const float component : vector) {
        if (!std::isfinite(component) || std::abs(double(component) * double(scale)) >= limit)
            countUp(m_telemetry.clippedSamples);
    }
}

void FftSampler::addNorm(double value)
{
    // Welford's update, with the oldest value taken out first when the ring is full.
    const bool full = m_norms.isFull();
    const double oldest = m_norms.at(0);
    const int previous = m_norms.count();
    m_norms.push(value);
    const int count = m_norms.count();
    if (full && count >= 2) {
        const double mean = (m_normMean * count - oldest) / (count - 1);
        m_normSquares -= (oldest - mean) * (oldest - m_normMean);
        m_normMean = mean;
    }
    if (count < 2 || previous == 0) {
        m_normMean = value;
        m_normSquares = 0;
    } else {
        const double before = m_normMean;
        m_normMean += (value - before) / count;
        m_normSquares += (value - before) * (value - m_normMean);
    }
    if (++m_normUpdates >= kRecomputeEvery)
        recomputeNormStatistics();
}

void FftSampler::recomputeNormStatistics()
{
    m_normUpdates = 0;
    m_normMean = 0;
    m_normSquares = 0;
    const int count = m_norms.count();
    for (int i = 0; i < count; ++i)
        m_normMean += m_norms.at(i) / count;
    for (int i = 0; i < count; ++i)
        m_normSquares += (m_norms.at(i) - m_normMean) * (m_norms.at(i) - m_normMean);
}
