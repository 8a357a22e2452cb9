#include "simulator/attitude_filter.h"

#include <cmath>

namespace kvsim {

namespace {

constexpr double kTiltGain = 0.5; // 1/s: tilt errors decay with a time constant of 2 s
constexpr double kLowestForce = 0.7;
constexpr double kHighestForce = 1.3;

// The shortest rotation that turns the measured up direction to the world's z axis.
Quaternion levelled(const Vector3 &acc)
{
    const double length = lengthOf(acc);
    if (!(length > 0.0))
        return {};
    const Vector3 up{acc[0] / length, acc[1] / length, acc[2] / length};
    if (up[2] < -0.999999)
        return rotationAbout(0, 180.0);
    const Vector3 axis = crossed(up, {0.0, 0.0, 1.0});
    return normalized({1.0 + up[2], axis[0], axis[1], axis[2]});
}

} // namespace

Quaternion AttitudeFilter::update(const Vector3 &gyr, const Vector3 &acc, double stepSeconds)
{
    if (!m_started) {
        m_started = true;
        m_attitude = levelled(acc);
        return m_attitude;
    }
    Vector3 rate{gyr[0] * kRadiansPerDegree, gyr[1] * kRadiansPerDegree, gyr[2] * kRadiansPerDegree};
    const double force = lengthOf(acc);
    if (force > kLowestForce && force < kHighestForce) {
        const Vector3 error = crossed(acc, rotatedBack(m_attitude, {0.0, 0.0, 1.0}));
        for (std::size_t i = 0; i < 3; ++i)
            rate[i] += kTiltGain * error[i] / force;
    }
    const double angle = lengthOf(rate) * stepSeconds;
    const double scale = angle > 1e-12 ? std::sin(angle / 2.0) / lengthOf(rate) : stepSeconds / 2.0;
    m_attitude =
        normalized(m_attitude * Quaternion{std::cos(angle / 2.0), rate[0] * scale, rate[1] * scale, rate[2] * scale});
    return m_attitude;
}

} // namespace kvsim
