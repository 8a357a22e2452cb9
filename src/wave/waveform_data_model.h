#pragma once

#include <algorithm>
#include <array>
#include <memory>
#include <span>
#include <vector>

#include <QList>
#include <QObject>
#include <QPointF>

#include "wave/low_pass_filter.h"

/// Sample store behind one waveform chart: the newest 32768 samples of a fixed number of channels with one millisecond
/// stamp per sample, an optional low-pass filter per channel on input, and the chart's queries on output.
///
/// Samples are addressed by offset: 0 is the newest, k the k-th older one, at storage slot (head() + k) mod kCapacity.
/// The age of an offset is the time from it to the newest sample in seconds; charts plot x = -age, so the newest sample
/// is at x = 0 and history extends to the left. Stamps increase strictly, hence ages increase strictly with the offset.
///
/// All memory is allocated at construction. Main thread only; nothing is locked and nothing is emitted. For a channel
/// out of range, queries return an empty result or 0, and setters do nothing.
class WaveformDataModel : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(WaveformDataModel)

public:
    static constexpr int kCapacity = 32768;

    explicit WaveformDataModel(int channelCount, QObject *parent = nullptr);
    ~WaveformDataModel() override;

    int channelCount() const { return int(m_values.size()); }
    /// Slot of the newest sample.
    int head() const { return m_head; }
    /// Samples stored, 0 to kCapacity.
    int count() const { return m_count; }
    bool hasData() const { return m_hasData; }

    /// Appends one sample of `n` values, stamped with nextTimestampMs(timestampMs). Channels beyond n keep what their
    /// slot held before; values beyond the channel count are ignored. Values that are not finite are stored as they are
    /// and do not reach the filter, which would never forget them.
    void pushSample(const float *values, int n, unsigned int timestampMs);
    /// What separates the next sample from the one before it.
    enum class Part : char {
        None,
        Gap, ///< some time without samples: a curve is broken where that is wide enough to be visible
        Cut, ///< another section of the stream: a curve is always broken
    };
    void breakLine(Part part) { m_nextPart = std::max(m_nextPart, part); }
    /// Whether the sample at an offset is separated from the one before it.
    bool isParted(int offset) const { return m_parts[size_t(slotAt(offset))] != char(Part::None); }
    /// Replaces the contents by the offsets `first` to `last` - 1 of another store with as many channels.
    void takeSamples(const WaveformDataModel &from, int first, int last);
    /// Clears samples and filter settings; the frame rate stays.
    void reset();

    /// Samples per second. Filters that are already built keep their coefficient.
    void setFrameRate(unsigned int samplesPerSecond) { m_frameRate = samplesPerSecond; }
    /// Switching on builds the filter again. Throws std::domain_error like LowPassFilter, leaving the channel without a
    /// filter.
    void setFilterEnabled(int channel, bool enabled);
    bool filterEnabled(int channel) const;
    /// Cutoff in Hz; 0 leaves the channel unfiltered. Throws like setFilterEnabled() when the filter is on.
    void setFilterCutoff(int channel, double hz);
    double filterCutoff(int channel) const;
    /// Builds the channel's filter from cutoff and frame rate, its output at 0; none when either is 0.
    void rebuildFilter(int channel);
    /// Sets the output of all filters back to 0; their coefficients stay.
    void restartFilters();

    /// Enough samples arrived since markRedrawn(): one below 60 samples/s, else a thirtieth of a second's worth.
    bool shouldRedraw() const;
    void markRedrawn() { m_samplesSinceRedraw = 0; }

    /// Value at a storage slot (not an offset), 0 to kCapacity - 1, which is not checked.
    double rawValue(int channel, int slot) const;

    /// Samples pushed or dropped so far: changes with the contents.
    quint64 revision() const { return m_revision; }
    /// The values of the offsets `first` to `last` - 1 as stored, newest first: one run or two.
    std::array<std::span<const double>, 2> runs(int channel, int first, int last) const;

    /// Age of the oldest sample in seconds.
    double historyDurationSec() const;
    /// Stamp in milliseconds, 0 outside of 0 to count() - 1.
    quint64 timestampAtSampleOffset(int offset) const;
    /// Age in seconds, 0 outside of 0 to count() - 1.
    double ageSecAtSampleOffset(int offset) const;
    /// Offset of the sample nearest to the time |t| seconds before the newest; of two equally near the older; -1
    /// without data.
    int sampleOffsetAtTime(double t) const;
    /// First offset whose age is not below `ageSec`; count() when there is none.
    int lowerBoundSampleForAge(double ageSec) const;
    /// First offset whose age is above `ageSec`; count() when there is none.
    int upperBoundSampleForAge(double ageSec) const;
    /// The samples with x in [xMin, xMax] are the offsets `first` to `last` - 1. Both are 0 without data.
    void resolveTimeWindow(double xMin, double xMax, int &first, int &last) const;
    /// The stamp given to a sample with `timestampMs`: for the first sample unchanged, then always later than the last
    /// one; 0 means "no clock" and is spaced by fallbackTimestampStepMs().
    quint64 nextTimestampMs(unsigned int timestampMs) const;
    /// Nominal frame period in milliseconds, at least 1.
    unsigned int fallbackTimestampStepMs() const;

    /// Points (-offset, value) of the offsets `first` to `last` - 1, newest first.
    void getVisibleRawPoints(int channel, int first, int last, QList<QPointF> &out) const;
    /// Points (-age, value) of the samples with x in [xMin, xMax], newest first.
    void getVisibleRawPointsByTime(int channel, double xMin, double xMax, QList<QPointF> &out) const;
    /// Like getVisibleRawPoints(), reduced to at most `maxPoints` points: minimum and maximum of each of maxPoints / 2
    /// buckets, in the order in which they occurred. A bucket without a number yields NaN; otherwise NaN values are
    /// left out. Returns the number of points; a budget of 1 yields 0 and leaves `out` as it was.
    int getDecimatedPoints(int channel, int first, int last, int maxPoints, QList<QPointF> &out) const;
    /// The same for a time window with x = -age.
    int getDecimatedPointsByTime(int channel, double xMin, double xMax, int maxPoints, QList<QPointF> &out) const;

    /// The points of a curve for the samples with x in [xMin, xMax] and one more on either side: like
    /// getDecimatedPointsByTime(), with a NaN point where two samples are separated. Gaps narrower than a bucket are
    /// invisible and break nothing, so that there are at most four points per point of the budget.
    void getCurve(int channel, double xMin, double xMax, int maxPoints, QList<QPointF> &out) const;

private:
    bool hasChannel(int channel) const { return channel >= 0 && channel < channelCount(); }
    int slotAt(int offset) const { return (m_head + offset) % kCapacity; }
    int nextParted(int first, int last) const;
    template <class XAt> void appendRaw(int channel, int first, int last, QList<QPointF> &out, XAt xAt) const;
    template <class XAt>
    void appendBuckets(int channel, int first, int last, int buckets, QList<QPointF> &out, XAt xAt) const;
    template <class XAt> void rawPoints(int channel, int first, int last, QList<QPointF> &out, XAt xAt) const;
    template <class XAt>
    int bucketPoints(int channel, int first, int last, int maxPoints, QList<QPointF> &out, XAt xAt) const;

    QList<QList<double>> m_values; ///< per channel, per slot
    QList<quint64> m_timestamps;   ///< milliseconds, per slot
    std::vector<std::unique_ptr<LowPassFilter>> m_filters;
    QList<bool> m_filterEnabled;
    QList<double> m_filterCutoff; ///< Hz
    std::vector<char> m_parts;    ///< per slot, a Part: what separates its sample from the one before
    int m_partCount = 0;          ///< slots that hold one
    Part m_nextPart = Part::None;
    int m_head = 0;
    int m_count = 0;
    bool m_hasData = false;
    unsigned int m_frameRate = 100; ///< samples per second
    unsigned int m_samplesSinceRedraw = 0;
    quint64 m_lastTimestamp = 0; ///< milliseconds
    quint64 m_revision = 0;
};
