#pragma once

#include <QString>
#include <QtGlobal>

/// How a device's axes lie in the body that carries it, and the convention of its Euler angles.
enum class OrientationPreset : quint32 {
    RfuEnu312 = 0, ///< x right, y forward, z up; Euler sequence 3-1-2
    FluNwuZyx = 1, ///< x forward, y left, z up; Euler sequence Z-Y-X
    None = 2,      ///< no preset: device axes are used unchanged
};

namespace product_profile {
/// Text of a preset for logs and files: "RfuEnu312", "FluNwuZyx", else "Unknown".
QString toString(OrientationPreset preset);
} // namespace product_profile
