#pragma once

#include <array>
#include <functional>
#include <optional>

#include <QList>
#include <QPointF>

#include "chart/circular_sample_buffer.h"
#include "link/node_data.h"

enum class FftSpectrumType { Acceleration, AngularVelocity };
enum class FftHoldMode { Live, MaxHold, AvgHold };

/// One request for three spectra.
struct FftBatch
{
    quint64 id = 0;
    int rateHz = 0;
    std::array<QList<double>, 3> samples; ///< X, Y, Z, oldest first; fewer than the size until the rings are full
};

/// The outcome of a result that came back.
struct FftResultOutcome
{
    bool accepted = false;    ///< it belongs to the batch in flight
    bool batchClosed = false; ///< it was the last one of its batch
    bool fullBlock = false;   ///< the batch was cut from full rings: its spectra show no padding
    QList<QPointF> points;    ///< the spectrum to show, after an anchor at (0, 0); empty if there is none
    double nyquistHz = 0;
};

/// How well the spectra keep up.
struct FftTelemetry
{
    int droppedBatches = 0;
    int clippedSamples = 0;
    int completedBatches = 0;
    double lastLatencyMs = 0;
    double meanLatencyMs = 0;
    double maxLatencyMs = 0;

    /// 1 is perfect; dropped batches, clipped samples and a mean latency above 20 ms reduce it.
    double health() const;
};

/// The sampling side of the spectrum: keeps the newest samples of the three axes and of their norm, knows their rate,
/// cuts batches of three requests from them, and holds or averages the results. At most one batch is in flight; a
/// result of any other is ignored. A plain class of the main thread: every call takes constant time, except for the
/// statistics of the norm, which are computed again every kRecomputeEvery samples, and nextBatch(), which copies the
/// rings.
///
/// Bad samples: a component that is not finite is replaced by the newest good one of its axis (0 before there is one)
/// and counts as clipped. So the spacing of the samples is preserved, and neither rings nor statistics nor held spectra
/// ever contain a value that is not finite.
///
/// Time stamps that stand still or run back are stored as 1 ms after the newest one. They serve only to estimate the
/// rate, for callers that do not know it: after the clock has jumped far back it reads 1000 Hz. So a caller that knows
/// that a stream restarts calls restart().
///
/// A block that is not full is padded with zeros, which spreads a steady value over the spectrum. So holds and averages
/// restart with the first full one.
class FftSampler
{
public:
    static constexpr int kDefaultPoints = 512;
    static constexpr int kRecomputeEvery = 4096;
    /// Milliseconds of a monotonic clock.
    using Clock = std::function<qint64()>;

    /// Without an argument, uses the host's clock.
    explicit FftSampler(Clock clock = {});

    FftSpectrumType spectrumType() const { return m_type; }
    /// Capacity of the rings, which is the size of the spectra.
    int pointCount() const { return m_axes[0].capacity(); }
    /// Each of these takes effect with a reset(). A change of type also clears the samples, whose unit is different.
    void setSpectrumType(FftSpectrumType type);
    void setHoldMode(FftHoldMode mode) { m_hold = mode; }
    /// Restarts with rings of `points` samples, at least 1: abandons the batch in flight, clears held spectra, time
    /// stamps, rate and telemetry. The newest samples that fit stay.
    void reset(int points);
    /// The stream restarts: a reset() that also clears the samples.
    void restart();
    /// Ignores the remaining results of the batch in flight.
    void abandonBatch();

    /// Takes one sample. A rate of 0 or less is estimated from the time stamps. True when the rate changed.
    bool append(const node_data_t &sample, int sampleRateHz);

    /// Samples per second, 0 while unknown.
    int currentRateHz() const { return m_rateHz; }
    /// The rate of the displayed spectra: of the batch in flight, else of the last complete one, else the current one.
    int presentationRateHz() const;
    /// Standard deviation of the norm over the last pointCount() samples, in the unit of the spectrum.
    double normDeviation() const;

    /// A batch waits for results.
    bool isBatchInFlight() const { return m_batchId != 0; }
    /// The fraction of a block that the rings hold, 0 to 1.
    double blockFill() const { return double(m_axes[0].count()) / pointCount(); }
    /// No sample has arrived for 2 s on the host's clock; for a slow stream, for six periods but at most 10 s.
    bool isStale() const;

    /// The samples for the next three spectra. Nothing without samples or rate, from a stream that is stale, or while a
    /// batch is in flight: that counts as a dropped one.
    std::optional<FftBatch> nextBatch();
    /// Takes the spectrum of a channel (0 to 2) and returns what to show for it.
    FftResultOutcome takeResult(quint64 batchId, int channel, const QList<QPointF> &points);

    const FftTelemetry &telemetry() const { return m_telemetry; }

private:
    struct Held
    {
        QList<QPointF> points;
        int averaged = 0;
    };

    qint64 hostElapsedMs();
    qint64 resolveSampleTimestampMs(unsigned int deviceMs);
    qint64 fallbackSampleTimestampMs();
    qint64 newestStampMs() const;
    bool updateSampleRateEstimate(int sampleRateHz);
    int estimateWindowSampleRate() const;
    void appendVectorSample(const float (&vector)[3], float scale);
    void updateClippingCount(const float (&vector)[3], float scale);
    void addNorm(double value);
    void recomputeNormStatistics();
    const QList<QPointF> &applyHoldResult(int channel, const QList<QPointF> &points);
    void finishResult(FftResultOutcome &outcome);

    Clock m_clock;
    FftSpectrumType m_type = FftSpectrumType::Acceleration;
    FftHoldMode m_hold = FftHoldMode::Live;

    std::array<CircularSampleBuffer, 3> m_axes;
    CircularSampleBuffer m_norms;
    CircularSampleBuffer m_stamps; ///< milliseconds

    double m_normMean = 0;
    double m_normSquares = 0; ///< sum of squared deviations from the mean
    int m_normUpdates = 0;    ///< samples since the statistics were computed from the ring

    qint64 m_newestHostMs = 0; ///< when the newest sample arrived
    std::optional<qint64> m_hostStartMs;
    std::optional<qint64> m_deviceOffsetMs; ///< device time minus host time

    int m_rateHz = 0;
    int m_completedRateHz = 0;

    quint64 m_nextBatchId = 1;
    quint64 m_batchId = 0; ///< batch in flight; 0 none
    int m_expectedResults = 0;
    int m_batchRateHz = 0;
    qint64 m_batchStartMs = 0;
    bool m_batchIsFull = false;
    bool m_heldIsFull = false; ///< the held spectra come from full blocks

    std::array<Held, 3> m_held;
    FftTelemetry m_telemetry;
};
