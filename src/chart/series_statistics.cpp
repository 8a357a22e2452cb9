#include "chart/series_statistics.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr size_t kBlock = 1024; ///< values, 8 KiB

} // namespace

void StatisticsSum::add(std::span<const double> values)
{
    for (size_t i = 0; i < values.size(); i += kBlock)
        addBlock(values.subspan(i, std::min(kBlock, values.size() - i)));
}

void StatisticsSum::addBlock(std::span<const double> values)
{
    // value - value is 0 for every finite number and NaN else: without a branch.
    qint64 count = 0;
    double sum = 0;
    double low = m_min;
    double high = m_max;
    for (const double value : values) {
        const bool isFinite = value - value == 0;
        count += isFinite;
        sum += isFinite ? value : 0;
        low = isFinite && value < low ? value : low;
        high = isFinite && value > high ? value : high;
    }
    if (count == 0)
        return;
    m_min = low;
    m_max = high;
    const double mean = sum / double(count);
    double squares = 0;
    for (const double value : values) {
        const double distance = value - value == 0 ? value - mean : 0;
        squares += distance * distance;
    }
    // Two sets are put together by their means and their squares about them.
    const double apart = mean - m_mean;
    const double all = double(m_count + count);
    m_squares += squares + apart * apart * double(m_count) * double(count) / all;
    m_mean += apart * double(count) / all;
    m_count += count;
}

SeriesStatistics StatisticsSum::result() const
{
    if (m_count == 0)
        return {};
    const double variance = m_squares / double(m_count);
    return {m_count, m_min, m_max, m_mean, std::sqrt(variance), std::sqrt(variance + m_mean * m_mean)};
}
