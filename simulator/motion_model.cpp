#include "simulator/motion_model.h"

#include <cmath>

namespace kvsim {

namespace {

struct Angle
{
    double degrees;
    double degreesPerSecond;
};

Angle swing(double amplitude, double hertz, double seconds, double phase)
{
    const double omega = 2.0 * kPi * hertz;
    return {amplitude * std::sin(omega * seconds + phase), amplitude * omega * std::cos(omega * seconds + phase)};
}

} // namespace

std::array<float, 3> toFloats(const Vector3 &v)
{
    return {float(v[0]), float(v[1]), float(v[2])};
}

void setAttitude(ImuSample &sample, const Quaternion &attitude, AxisConvention convention)
{
    const EulerAngles angles = eulerOf(attitude, convention);
    sample.roll = float(angles.roll);
    sample.pitch = float(angles.pitch);
    sample.yaw = float(angles.yaw);
    sample.quat = {float(attitude.w), float(attitude.x), float(attitude.y), float(attitude.z)};
    sample.acc = toFloats(rotatedBack(attitude, {0.0, 0.0, 1.0}));
    sample.mag = toFloats(rotatedBack(attitude, worldMagneticField(convention)));
}

ImuSample MotionModel::sampleAt(double seconds, double phase) const
{
    Angle roll{0.0, 0.0};
    Angle pitch{0.0, 0.0};
    Angle yaw{phase / kRadiansPerDegree, 0.0};
    switch (m_kind) {
    case MotionKind::Rest:
        break;
    case MotionKind::Swing:
        roll = swing(25.0, 0.50, seconds, phase);
        pitch = swing(15.0, 0.31, seconds, 1.3 * phase);
        yaw = swing(40.0, 0.10, seconds, 0.7 * phase);
        break;
    case MotionKind::Spin:
        roll = swing(10.0, 0.25, seconds, phase);
        pitch = swing(5.0, 0.40, seconds, phase);
        yaw = {std::remainder(90.0 * seconds + yaw.degrees, 360.0), 90.0};
        break;
    }
    const EulerAngles angles{roll.degrees, pitch.degrees, yaw.degrees};
    const EulerAngles rates{roll.degreesPerSecond, pitch.degreesPerSecond, yaw.degreesPerSecond};

    ImuSample sample;
    setAttitude(sample, quaternionOf(angles, m_convention), m_convention);
    sample.gyr = toFloats(bodyRate(angles, rates, m_convention));
    sample.temperature = float(25.0 + 1.5 * std::sin(seconds / 60.0));
    sample.pressure = float(101325.0 + 12.0 * std::sin(seconds / 20.0 + phase));
    return sample;
}

} // namespace kvsim
