#pragma once

#include <QByteArray>

class NodeOverlay;
class WaveChartBridge;

/// The samples of a chart as a table for files.
namespace wave_csv {

/// The samples with times from `xMin` to `xMax` (seconds before the newest), oldest first, whatever channels are
/// visible:
///
///     # HI14 node 3
///     time (s),UTC,X (G),Y (G),Z (G),Norm (G)
///     12.345,2026-01-31T12:00:00.000Z,0.125,-1,0.5,1.125
///
/// The first line is there when the device or the node is known. Times are stream times, and UTC by the computer's
/// clock at the newest sample. Lines end with a line feed; numbers have a decimal point in every language; values that
/// are not finite are "nan", "inf" or "-inf".
QByteArray table(const WaveChartBridge &bridge, double xMin, double xMax);

/// The same for one quantity of several nodes: a column per node, a line per time. A node without a sample of that time
/// has an empty field.
///
///     # HI14
///     time (s),UTC,node 1 X (G),node 2 X (G)
QByteArray table(const NodeOverlay &overlay, double xMin, double xMax);

} // namespace wave_csv
