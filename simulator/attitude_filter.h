#pragma once

#include "simulator/rotation.h"

namespace kvsim {

/// Attitude from angular rate and specific force: the rate is integrated, and the tilt is pulled slowly towards the
/// measured direction of gravity while the force is near 1 G. The heading has no reference:
/// the first attitude is the shortest turn that levels the device.
class AttitudeFilter
{
public:
    /// Takes the next measurement, `stepSeconds` after the previous one; the first one sets the tilt at once.
    /// @param gyr angular rate, deg/s  @param acc specific force, G
    /// @return the attitude after this measurement, always of length 1
    Quaternion update(const Vector3 &gyr, const Vector3 &acc, double stepSeconds);

private:
    Quaternion m_attitude;
    bool m_started = false;
};

} // namespace kvsim
