#include "wave/waveform_data_model.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numbers>
#include <span>
#include <utility>

namespace {

constexpr unsigned int kThrottledRate = 60; ///< samples/s from which redraws are fewer than samples
constexpr unsigned int kRedrawsPerSecond = 30;

/// Extremes of one bucket. `low` and `high` are NaN when it holds no number.
struct Extremes
{
    double low;
    double high;
    bool highIsNewer;
};

/// A bucket as it lies in the ring: one run of slots, or two when it passes the end of the storage.
using Runs = std::array<std::span<const double>, 2>;

Extremes findExtremes(const Runs &runs)
{
    constexpr double kMax = std::numeric_limits<double>::max();
    // Comparisons with NaN are false, so it moves neither.
    double low = kMax;
    double high = -kMax;
    for (const auto &run : runs) {
        for (const double value : run) {
            low = value < low ? value : low;
            high = value > high ? value : high;
        }
    }
    // Infinities of one sign move only one of them, NaN neither; what was stored is finer than kMax.
    if (low == kMax)
        low = high == -kMax ? std::numeric_limits<double>::quiet_NaN() : high;
    if (high == -kMax)
        high = low;
    // Whichever is found first is the newer; the search ends long before the bucket does.
    for (const auto &run : runs) {
        for (const double value : run) {
            if (value == low)
                return {low, high, false};
            if (value == high)
                return {low, high, true};
        }
    }
    return {low, high, false};
}

} // namespace

WaveformDataModel::WaveformDataModel(int channelCount, QObject *parent)
    : QObject(parent), m_values(std::max(channelCount, 0), QList<double>(kCapacity, 0.0)), m_timestamps(kCapacity, 0),
      m_filters(size_t(std::max(channelCount, 0))), m_filterEnabled(std::max(channelCount, 0), false),
      m_filterCutoff(std::max(channelCount, 0), 0.0), m_parts(kCapacity, char(Part::None))
{
    // The copies above share one storage; detach them now rather than at the first sample.
    for (QList<double> &values : m_values)
        values.detach();
}

WaveformDataModel::~WaveformDataModel() = default;

void WaveformDataModel::pushSample(const float *values, int n, unsigned int timestampMs)
{
    const quint64 stamp = nextTimestampMs(timestampMs);
    m_head = m_hasData ? (m_head + kCapacity - 1) % kCapacity : 0;
    m_hasData = true;
    ++m_samplesSinceRedraw;
    ++m_revision;
    m_count = std::min(m_count + 1, kCapacity);
    char &part = m_parts[size_t(m_head)];
    m_partCount += int(m_nextPart != Part::None) - int(part != char(Part::None));
    part = char(std::exchange(m_nextPart, Part::None));
    m_timestamps[m_head] = stamp;
    m_lastTimestamp = stamp;
    for (int i = 0; i < std::min(n, channelCount()); ++i) {
        double x = double(values[i]);
        LowPassFilter *filter = m_filterEnabled.at(i) ? m_filters[size_t(i)].get() : nullptr;
        if (filter && std::isfinite(x)) {
            filter->update(x);
            x = filter->getOutput();
        }
        m_values[i][m_head] = x;
    }
}

void WaveformDataModel::takeSamples(const WaveformDataModel &from, int first, int last)
{
    reset();
    first = std::max(first, 0);
    last = std::min(last, from.m_count);
    if (first >= last || from.channelCount() != channelCount())
        return;
    m_count = last - first;
    m_hasData = true;
    for (int slot = 0; slot < m_count; ++slot) {
        const int source = from.slotAt(first + slot);
        m_timestamps[slot] = from.m_timestamps.at(source);
        m_parts[size_t(slot)] = from.m_parts[size_t(source)];
        m_partCount += m_parts[size_t(slot)] != char(Part::None);
        for (int channel = 0; channel < channelCount(); ++channel)
            m_values[channel][slot] = from.m_values.at(channel).at(source);
    }
    m_lastTimestamp = m_timestamps.at(0);
    m_frameRate = from.m_frameRate;
}

void WaveformDataModel::reset()
{
    m_head = 0;
    m_count = 0;
    m_hasData = false;
    ++m_revision;
    m_samplesSinceRedraw = 0;
    m_lastTimestamp = 0;
    m_nextPart = Part::None;
    m_partCount = 0;
    std::fill(m_parts.begin(), m_parts.end(), char(Part::None));
    m_timestamps.fill(0);
    for (QList<double> &values : m_values)
        values.fill(0.0);
    m_filterEnabled.fill(false);
    m_filterCutoff.fill(0.0);
    for (auto &filter : m_filters)
        filter.reset();
}

void WaveformDataModel::setFilterEnabled(int channel, bool enabled)
{
    if (!hasChannel(channel))
        return;
    m_filterEnabled[channel] = enabled;
    if (enabled)
        rebuildFilter(channel);
}

bool WaveformDataModel::filterEnabled(int channel) const
{
    return hasChannel(channel) && m_filterEnabled.at(channel);
}

void WaveformDataModel::setFilterCutoff(int channel, double hz)
{
    if (!hasChannel(channel))
        return;
    m_filterCutoff[channel] = hz;
    if (m_filterEnabled.at(channel))
        rebuildFilter(channel);
}

double WaveformDataModel::filterCutoff(int channel) const
{
    return hasChannel(channel) ? m_filterCutoff.at(channel) : 0.0;
}

void WaveformDataModel::rebuildFilter(int channel)
{
    if (!hasChannel(channel))
        return;
    auto &filter = m_filters[size_t(channel)];
    filter.reset();
    if (m_filterCutoff.at(channel) > 0 && m_frameRate != 0)
        filter = std::make_unique<LowPassFilter>(2 * std::numbers::pi * m_filterCutoff.at(channel),
                                                 1.0 / double(m_frameRate));
}

void WaveformDataModel::restartFilters()
{
    for (const auto &filter : m_filters) {
        if (filter)
            filter->restart();
    }
}

bool WaveformDataModel::shouldRedraw() const
{
    return m_samplesSinceRedraw >= (m_frameRate < kThrottledRate ? 1 : m_frameRate / kRedrawsPerSecond);
}

double WaveformDataModel::rawValue(int channel, int slot) const
{
    return hasChannel(channel) ? m_values.at(channel).at(slot) : 0.0;
}

std::array<std::span<const double>, 2> WaveformDataModel::runs(int channel, int first, int last) const
{
    first = std::max(first, 0);
    last = std::min(last, m_count);
    if (!hasChannel(channel) || first >= last)
        return {};
    const double *values = m_values.at(channel).constData();
    const int start = m_head + first;
    const int stop = m_head + last;
    const int wrapped = std::max(start - kCapacity, 0);
    return {std::span(values + std::min(start, kCapacity), values + std::min(stop, kCapacity)),
            std::span(values + wrapped, values + std::max(stop - kCapacity, 0))};
}

double WaveformDataModel::historyDurationSec() const
{
    return m_count < 2 ? 0.0 : ageSecAtSampleOffset(m_count - 1);
}

quint64 WaveformDataModel::timestampAtSampleOffset(int offset) const
{
    return offset >= 0 && offset < m_count ? m_timestamps.at(slotAt(offset)) : 0;
}

double WaveformDataModel::ageSecAtSampleOffset(int offset) const
{
    if (offset < 0 || offset >= m_count)
        return 0.0;
    return double(m_timestamps.at(m_head) - m_timestamps.at(slotAt(offset))) / 1000.0;
}

int WaveformDataModel::sampleOffsetAtTime(double t) const
{
    if (!m_hasData)
        return -1;
    const double age = std::abs(t);
    const int i = lowerBoundSampleForAge(age);
    if (i == 0)
        return 0;
    if (i >= m_count)
        return m_count - 1;
    return age - ageSecAtSampleOffset(i - 1) >= ageSecAtSampleOffset(i) - age ? i : i - 1;
}

int WaveformDataModel::lowerBoundSampleForAge(double ageSec) const
{
    int low = 0;
    int high = m_count;
    while (low < high) {
        const int middle = (low + high) / 2;
        if (ageSecAtSampleOffset(middle) < ageSec)
            low = middle + 1;
        else
            high = middle;
    }
    return low;
}

int WaveformDataModel::upperBoundSampleForAge(double ageSec) const
{
    int low = 0;
    int high = m_count;
    while (low < high) {
        const int middle = (low + high) / 2;
        if (ageSecAtSampleOffset(middle) > ageSec)
            high = middle;
        else
            low = middle + 1;
    }
    return low;
}

void WaveformDataModel::resolveTimeWindow(double xMin, double xMax, int &first, int &last) const
{
    first = last = 0;
    if (!m_hasData)
        return;
    const double nearAge = xMax < 0 ? -xMax : 0.0;
    const double farAge = xMin <= 0 && -xMin > nearAge ? -xMin : nearAge;
    last = upperBoundSampleForAge(farAge);
    first = std::min(lowerBoundSampleForAge(nearAge), last);
}

quint64 WaveformDataModel::nextTimestampMs(unsigned int timestampMs) const
{
    if (!m_hasData)
        return timestampMs;
    if (timestampMs == 0)
        return m_lastTimestamp + fallbackTimestampStepMs();
    return std::max(m_lastTimestamp + 1, quint64(timestampMs));
}

unsigned int WaveformDataModel::fallbackTimestampStepMs() const
{
    return m_frameRate == 0 ? 1U : std::max(1U, unsigned(std::lround(1000.0 / m_frameRate)));
}

void WaveformDataModel::getVisibleRawPoints(int channel, int first, int last, QList<QPointF> &out) const
{
    rawPoints(channel, first, last, out, [](int offset) { return -double(offset); });
}

void WaveformDataModel::getVisibleRawPointsByTime(int channel, double xMin, double xMax, QList<QPointF> &out) const
{
    int first = 0;
    int last = 0;
    resolveTimeWindow(xMin, xMax, first, last);
    rawPoints(channel, first, last, out, [this](int offset) { return -ageSecAtSampleOffset(offset); });
}

int WaveformDataModel::getDecimatedPoints(int channel, int first, int last, int maxPoints, QList<QPointF> &out) const
{
    return bucketPoints(channel, first, last, maxPoints, out, [](int offset) { return -double(offset); });
}

int WaveformDataModel::getDecimatedPointsByTime(int channel, double xMin, double xMax, int maxPoints,
                                                QList<QPointF> &out) const
{
    int first = 0;
    int last = 0;
    resolveTimeWindow(xMin, xMax, first, last);
    return bucketPoints(channel, first, last, maxPoints, out,
                        [this](int offset) { return -ageSecAtSampleOffset(offset); });
}

void WaveformDataModel::getCurve(int channel, double xMin, double xMax, int maxPoints, QList<QPointF> &out) const
{
    out.clear();
    int first = 0;
    int last = 0;
    resolveTimeWindow(xMin, xMax, first, last);
    first = std::max(first - 1, 0);
    last = std::min(last + 1, m_count);
    if (!hasChannel(channel) || first >= last || maxPoints < 2)
        return;
    const auto xAt = [this](int offset) { return -ageSecAtSampleOffset(offset); };
    const double bucketSec = (xAt(first) - xAt(last - 1)) / (double(maxPoints) / 2);
    const double budget = double(maxPoints) / (last - first);
    const auto append = [&](int from, int to) {
        const int buckets = std::max(1, int((to - from) * budget / 2));
        if (to - from <= 2 * buckets)
            appendRaw(channel, from, to, out, xAt);
        else
            appendBuckets(channel, from, to, buckets, out, xAt);
    };
    int from = first;
    for (int newer = nextParted(first, last - 1); newer < last - 1; newer = nextParted(newer + 1, last - 1)) {
        const bool isCut = m_parts[size_t(slotAt(newer))] == char(Part::Cut);
        if ((!isCut && xAt(newer) - xAt(newer + 1) < bucketSec) || out.size() > 3 * qsizetype(maxPoints))
            continue;
        append(from, newer + 1);
        out.append({xAt(newer), std::numeric_limits<double>::quiet_NaN()});
        from = newer + 1;
    }
    append(from, last);
}

/// The first offset from `first` to `last` - 1 that is separated from the sample before it, else `last`.
int WaveformDataModel::nextParted(int first, int last) const
{
    if (m_partCount == 0)
        return last;
    while (first < last) {
        // A run of slots that does not pass the end of the storage.
        const auto begin = m_parts.begin() + slotAt(first);
        const auto end = begin + std::min(last - first, kCapacity - slotAt(first));
        const auto found = std::find_if(begin, end, [](char part) { return part != char(Part::None); });
        first += int(found - begin);
        if (found != end)
            break;
    }
    return first;
}

template <class XAt>
void WaveformDataModel::rawPoints(int channel, int first, int last, QList<QPointF> &out, XAt xAt) const
{
    out.clear();
    first = std::max(first, 0);
    last = std::min(last, m_count);
    if (hasChannel(channel) && first < last)
        appendRaw(channel, first, last, out, xAt);
}

template <class XAt>
int WaveformDataModel::bucketPoints(int channel, int first, int last, int maxPoints, QList<QPointF> &out, XAt xAt) const
{
    first = std::max(first, 0);
    last = std::min(last, m_count);
    if (!hasChannel(channel) || maxPoints < 1 || first >= last) {
        out.clear();
        return 0;
    }
    if (maxPoints == 1 && last - first > 1)
        return 0;
    out.clear();
    if (maxPoints >= last - first)
        appendRaw(channel, first, last, out, xAt);
    else
        appendBuckets(channel, first, last, maxPoints / 2, out, xAt);
    return int(out.size());
}

template <class XAt>
void WaveformDataModel::appendRaw(int channel, int first, int last, QList<QPointF> &out, XAt xAt) const
{
    const double *values = m_values.at(channel).constData();
    const qsizetype begin = out.size();
    out.resize(begin + last - first);
    QPointF *point = out.data() + begin;
    for (int offset = first; offset < last; ++offset)
        *point++ = QPointF(xAt(offset), values[slotAt(offset)]);
}

/// Two points for each of `buckets` buckets, which hold at least two samples each.
template <class XAt>
void WaveformDataModel::appendBuckets(int channel, int first, int last, int buckets, QList<QPointF> &out, XAt xAt) const
{
    const double step = double(last - first) / buckets;
    const qsizetype begin = out.size();
    out.resize(begin + 2 * qsizetype(buckets));
    QPointF *point = out.data() + begin;
    for (int bucket = 0; bucket < buckets; ++bucket) {
        const int from = first + int(bucket * step);
        const int to = std::min(first + int((bucket + 1) * step), last);
        const Extremes extremes = findExtremes(runs(channel, from, to));
        *point++ = QPointF(xAt(from), extremes.highIsNewer ? extremes.high : extremes.low);
        *point++ = QPointF(xAt(to - 1), extremes.highIsNewer ? extremes.low : extremes.high);
    }
}
