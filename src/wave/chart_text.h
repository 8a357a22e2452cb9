#pragma once

#include <QString>
#include <QStringList>

#include "chart/measure_table.h"
#include "wave/curve_break.h"
#include "wave/sample_origin.h"

class WaveChartBridge;

/// Texts beside a chart: pure functions of the bridge's description.
namespace chart_text {

/// The part of a chart title before its unit: "Acceleration" of "Acceleration (G)".
QString name(const QString &chartTitle);
/// The unit in the title's brackets, "G"; empty when there is none.
QString unit(const QString &chartTitle);

/// The unit for files: like unit(), but empty for a quantity that has none.
QString fileUnit(const WaveChartBridge &bridge);

/// How names of files begin: "acc_HI14_node3" for the quantity "acc", without characters that file systems refuse.
QString fileStem(const QString &quantity, const SampleOrigin &origin);

/// Digits after the point for values of a sensor type.
int decimals(const QString &sensorType);

/// A channel's value with the type's digits; quantities that can be negative always have a sign.
QString value(const WaveChartBridge &bridge, int channel, double value);
/// Like value(), padded with blanks on the left to a width that typical values of the type do not exceed: in a
/// fixed-pitch font nothing moves when the sign or size of a value changes.
QString paddedValue(const WaveChartBridge &bridge, int channel, double value);

/// "−2.900 s"
QString time(double seconds);

/// Why a curve is broken, in a word or two.
QString curveBreak(const BreakMark &mark);

/// The extent of the store, for an axis that reaches further back: "Store: 32.8 s".
QString storeLimit(const WaveChartBridge &bridge);

/// The rate, and which seconds of the stored history a view from `xMin` to `xMax` shows: "400 Hz · last 10 s of 60 s".
QString range(const WaveChartBridge &bridge, double xMin, double xMax);

/// A figure of a measurement: differences always have a sign, magnitudes none.
QString figure(const WaveChartBridge &bridge, int channel, double value, MeasureTable::Figure figure);

/// The times of the cursors `a` and `b` (seconds, NaN for one that is not placed), and if both are placed the time
/// between them and its inverse.
QStringList measurement(double a, double b);

} // namespace chart_text
