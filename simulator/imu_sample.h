#pragma once

#include <array>

#include <QtGlobal>

namespace kvsim {

/// What one module measures at one moment, in the units that the wire carries.
struct ImuSample
{
    quint8 id = 1;                         ///< module id, or radio node id on a gateway
    float temperature = 25.0F;             ///< degrees Celsius
    float pressure = 101325.0F;            ///< Pa
    quint32 timeMs = 0;                    ///< device time since its last restart
    std::array<float, 3> acc{};            ///< specific force, G
    std::array<float, 3> gyr{};            ///< angular rate, deg/s
    std::array<float, 3> mag{};            ///< magnetic field, uT
    float roll = 0.0F;                     ///< degrees
    float pitch = 0.0F;                    ///< degrees
    float yaw = 0.0F;                      ///< degrees
    std::array<float, 4> quat{1, 0, 0, 0}; ///< W, X, Y, Z; turns device vectors into world vectors
};

} // namespace kvsim
