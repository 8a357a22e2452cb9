#include "chart/series_statistics.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

namespace {

constexpr size_t kBlock = 1024; ///< values, 8 KiB
constexpr size_t kLanes = 4;

} // namespace

void StatisticsSum::add(std::span<const double> values)
{
    for (size_t i = 0; i < values.size(); i += kBlock)
        addBlock(values.subspan(i, std::min(kBlock, values.size() - i)));
}

void StatisticsSum::addBlock(std::span<const double> values)
{
    // Lanes side by side, so that no sum waits for the one before. value - value is 0 for every finite number and NaN
    // otherwise.
    std::array<double, kLanes> counts{};
    std::array<double, kLanes> sums{};
    std::array<double, kLanes> lows;
    std::array<double, kLanes> highs;
    lows.fill(m_min);
    highs.fill(m_max);
    const auto each = [values](auto take) {
        size_t i = 0;
        for (; i + kLanes <= values.size(); i += kLanes) {
            for (size_t lane = 0; lane < kLanes; ++lane)
                take(lane, values[i + lane]);
        }
        for (; i < values.size(); ++i)
            take(0, values[i]);
    };
    each([&](size_t lane, double value) {
        const bool isFinite = value - value == 0;
        const double low = lows[lane];
        const double high = highs[lane];
        counts[lane] += isFinite ? 1.0 : 0.0;
        sums[lane] += isFinite ? value : 0.0;
        lows[lane] = isFinite && value < low ? value : low;
        highs[lane] = isFinite && value > high ? value : high;
    });
    const double count = std::accumulate(counts.begin(), counts.end(), 0.0);
    if (count == 0)
        return;
    m_min = *std::min_element(lows.begin(), lows.end());
    m_max = *std::max_element(highs.begin(), highs.end());
    const double mean = std::accumulate(sums.begin(), sums.end(), 0.0) / count;
    std::array<double, kLanes> squares{};
    each([&](size_t lane, double value) {
        const double distance = value - value == 0 ? value - mean : 0.0;
        squares[lane] += distance * distance;
    });
    // Two sets are combined by their means and the sums of squares about them.
    const double apart = mean - m_mean;
    const double all = double(m_count) + count;
    m_squares += std::accumulate(squares.begin(), squares.end(), 0.0) + apart * apart * double(m_count) * count / all;
    m_mean += apart * count / all;
    m_count += qint64(count);
}

SeriesStatistics StatisticsSum::result() const
{
    if (m_count == 0)
        return {};
    const double variance = m_squares / double(m_count);
    return {m_count, m_min, m_max, m_mean, std::sqrt(variance), std::sqrt(variance + m_mean * m_mean)};
}
