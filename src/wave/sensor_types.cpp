#include "wave/sensor_types.h"

#include <QtGlobal>

#include <algorithm>

namespace {

constexpr QColor kX{0xAB, 0x22, 0x1D};
constexpr QColor kY{0x0D, 0x8B, 0x4D};
constexpr QColor kZ{0x41, 0x53, 0xAF};
constexpr QColor kBlack{0x00, 0x00, 0x00};
constexpr QColor kGray{0x80, 0x80, 0x80};

constexpr std::array kVector{SensorChannel{QLatin1String("X"), kX}, SensorChannel{QLatin1String("Y"), kY},
                             SensorChannel{QLatin1String("Z"), kZ}, SensorChannel{QLatin1String("Norm"), kBlack}};
constexpr std::array kAngles{SensorChannel{QLatin1String("Roll"), kX}, SensorChannel{QLatin1String("Pitch"), kY},
                             SensorChannel{QLatin1String("Yaw"), kZ}};
constexpr std::array kQuaternion{SensorChannel{QLatin1String("W"), kGray}, SensorChannel{QLatin1String("X"), kX},
                                 SensorChannel{QLatin1String("Y"), kY}, SensorChannel{QLatin1String("Z"), kZ}};
constexpr std::array kPressure{SensorChannel{QLatin1String("Pressure"), kBlack}};

constexpr std::array<SensorType, kSensorTypeCount> kTypes{{
    {QLatin1String("acc"), QT_TRANSLATE_NOOP("WaveChartBridge", "Acceleration (G)"),
     QT_TRANSLATE_NOOP("SensorDashboardBridge", "Acceleration"), kVector, -32, 32, 0.1, true},
    {QLatin1String("gyr"), QT_TRANSLATE_NOOP("WaveChartBridge", "Angular Velocity (°/s)"),
     QT_TRANSLATE_NOOP("SensorDashboardBridge", "Angular Velocity"), kVector, -4000, 4000, 0.1, true},
    {QLatin1String("mag"), QT_TRANSLATE_NOOP("WaveChartBridge", "Magnetic Field (μT)"),
     QT_TRANSLATE_NOOP("SensorDashboardBridge", "Magnetic Field"), kVector, -1600, 1600, 0.1, false},
    {QLatin1String("eul"), QT_TRANSLATE_NOOP("WaveChartBridge", "Euler Angles (°)"),
     QT_TRANSLATE_NOOP("SensorDashboardBridge", "Euler Angles"), kAngles, -200, 200, 0.1, false},
    {QLatin1String("quat"), QT_TRANSLATE_NOOP("WaveChartBridge", "Quaternion (Norm)"),
     QT_TRANSLATE_NOOP("SensorDashboardBridge", "Quaternion"), kQuaternion, -1, 1, 0.1, false},
    {QLatin1String("prs"), QT_TRANSLATE_NOOP("WaveChartBridge", "Pressure (Pa)"),
     QT_TRANSLATE_NOOP("SensorDashboardBridge", "Pressure"), kPressure, 95000, 105000, 10, false},
}};

} // namespace

const std::array<SensorType, kSensorTypeCount> &sensorTypes()
{
    return kTypes;
}

const SensorType *findSensorType(const QString &key)
{
    const auto type = std::find_if(kTypes.begin(), kTypes.end(), [&key](const SensorType &t) { return t.key == key; });
    return type == kTypes.end() ? nullptr : &*type;
}
