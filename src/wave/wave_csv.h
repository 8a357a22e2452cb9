#pragma once

#include <QByteArray>

class WaveChartBridge;

/// The samples of a chart as a table for files.
namespace wave_csv {

/// The samples with times from `xMin` to `xMax` (seconds before the newest), oldest first, unfiltered by what is shown:
///
///     time (s),X (G),Y (G),Z (G),Norm (G)
///     -0.010,0.125,-1,0.5,1.125
///
/// Lines end with a line feed; numbers have a decimal point in every language; what is no number is "nan", "inf" or
/// "-inf".
QByteArray table(const WaveChartBridge &bridge, double xMin, double xMax);

} // namespace wave_csv
