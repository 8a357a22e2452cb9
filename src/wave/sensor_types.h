#pragma once

#include <array>
#include <span>

#include <QColor>
#include <QLatin1String>
#include <QString>

/// One series of a waveform chart.
struct SensorChannel
{
    QLatin1String name; ///< fixed text, the same in all languages
    QColor color;
};

/// The chart of one kind of quantity: a row of the table below.
struct SensorType
{
    QLatin1String key; ///< "acc", "gyr", ...; also the name in the settings file
    const char *title; ///< chart title with unit, source text in the context WaveChartBridge
    const char *label; ///< short name, source text in the context SensorDashboardBridge
    std::span<const SensorChannel> channels;
    double yMin; ///< value range of the axis, in the unit of the title
    double yMax;
    double yMinZoom; ///< smallest span the value axis may be zoomed to
    bool hasFilter;  ///< the chart offers the low-pass filter
};

inline constexpr int kSensorTypeCount = 6;

/// The quantities that have waveform charts, in the order of their panes: acceleration, angular rate, magnetic field,
/// Euler angles, quaternion, pressure.
const std::array<SensorType, kSensorTypeCount> &sensorTypes();

/// The row of a key, or null when there is none. Keys are case-sensitive.
const SensorType *findSensorType(const QString &key);
