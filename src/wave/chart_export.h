#pragma once

#include <QByteArray>
#include <QString>

class WaveChartBridge;

/// What a chart gives to files.
namespace chart_export {

/// The samples with times from `xMin` to `xMax` (seconds before the newest), oldest first, unfiltered by what is shown:
///
///     time (s),X (G),Y (G),Z (G),Norm (G)
///     -0.010,0.125,-1,0.5,1.125
///
/// Lines end with a line feed; numbers have a decimal point in every language; what is no number is "nan", "inf" or
/// "-inf".
QByteArray csv(const WaveChartBridge &bridge, double xMin, double xMax);

/// Writes a file whole or not at all. On failure `reason` holds the system's words.
bool write(const QString &path, const QByteArray &content, QString &reason);

} // namespace chart_export
