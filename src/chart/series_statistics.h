#pragma once

#include <QtGlobal>

#include <limits>
#include <span>

/// Summary statistics of a set of values. Values that are not finite are left out. Without a value all figures but the
/// count are NaN.
struct SeriesStatistics
{
    static constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

    qint64 count = 0;
    double min = kNone;
    double max = kNone;
    double mean = kNone;
    double deviation = kNone; ///< standard deviation of the values themselves: divided by their number
    double rms = kNone;       ///< root of the mean square

    double peakToPeak() const { return max - min; }
};

/// Collects values in runs, in one pass over memory, and stays exact for small movements on a large offset: the
/// deviation of each block is taken from its own mean, while it is in the cache.
class StatisticsSum
{
public:
    void add(std::span<const double> values);
    SeriesStatistics result() const;

private:
    void addBlock(std::span<const double> values);

    qint64 m_count = 0;
    double m_min = std::numeric_limits<double>::infinity();
    double m_max = -std::numeric_limits<double>::infinity();
    double m_mean = 0;
    double m_squares = 0; ///< sum of squared distances from the mean
};
