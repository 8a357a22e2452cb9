#pragma once

#include <QList>
#include <QPointF>
#include <QString>

#include "chart/series_statistics.h"

/// What a chart draws: named series of values over one horizontal axis. The bridges implement it, and it is all that
/// chart/ knows about them. Positions are in the unit of the horizontal axis (seconds before the newest sample, or Hz),
/// values in that of the vertical one. Main thread only.
class ChartSource
{
public:
    /// Series, numbered from 0.
    virtual int seriesCount() const = 0;
    /// For the legend, in the language of the interface.
    virtual QString seriesName(int series) const = 0;
    /// A short name, which stands at the end of the curve.
    virtual QString seriesLabel(int series) const { return seriesName(series); }
    virtual bool isSeriesDashed(int) const { return false; }
    /// 0xRRGGBB.
    virtual quint32 seriesRgb(int series) const = 0;
    /// The series that is painted at a position in the z-order, 0 the lowest.
    virtual int seriesAtLayer(int layer) const { return layer; }
    virtual bool hasData() const = 0;
    /// The points of a series from `xMin` to `xMax` and one more on either side, so that lines reach the edges of the
    /// plot, reduced to about `maxPoints` without losing a peak. Positions rise or fall throughout. A value that is not
    /// finite breaks the line. `out` is overwritten and its memory reused.
    virtual void seriesPoints(int series, double xMin, double xMax, int maxPoints, QList<QPointF> &out) const = 0;
    /// The value of each series at the place nearest to `x`; empty without data.
    virtual QList<double> valuesAt(double x) const = 0;

    /// Statistics of the values of a series from `xMin` to `xMax`, in one pass over them.
    virtual SeriesStatistics statistics(int series, double xMin, double xMax) const = 0;
    /// Changes with the data: results computed from them stay valid as long as it does not change.
    virtual quint64 revision() const = 0;

protected:
    ~ChartSource() = default;
};
