#pragma once

#include <array>

namespace kvsim {

using Vector3 = std::array<double, 3>;

constexpr double kPi = 3.14159265358979323846;
constexpr double kRadiansPerDegree = kPi / 180.0;

/// Unit quaternion; as an attitude it turns device vectors into world vectors.
struct Quaternion
{
    double w = 1.0;
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
};

/// Angles in degrees, or their derivatives in deg/s.
struct EulerAngles
{
    double roll = 0.0;
    double pitch = 0.0;
    double yaw = 0.0;
};

/// Device axes, world axes and the order of the Euler rotations.
enum class AxisConvention {
    FluZyx, ///< x forward, y left, z up in a north-west-up world; yaw about z, pitch about y, roll about x
    RfuZxy, ///< x right, y forward, z up in an east-north-up world; yaw about z, pitch about x, roll about y
};

Quaternion operator*(const Quaternion &a, const Quaternion &b);
Quaternion conjugated(const Quaternion &q);
/// Scaled to length 1; identity when the length is 0 or not finite.
Quaternion normalized(const Quaternion &q);
/// Rotation about a coordinate axis (0 x, 1 y, 2 z) by an angle in degrees.
Quaternion rotationAbout(int axis, double degrees);

/// Device vector to world vector.
Vector3 rotated(const Quaternion &q, const Vector3 &v);
/// World vector to device vector.
Vector3 rotatedBack(const Quaternion &q, const Vector3 &v);
Vector3 crossed(const Vector3 &a, const Vector3 &b);
double lengthOf(const Vector3 &v);

Quaternion quaternionOf(const EulerAngles &angles, AxisConvention convention);
/// Roll and yaw within (-180, 180], pitch within +-90 degrees.
EulerAngles eulerOf(const Quaternion &q, AxisConvention convention);

/// Angular rate in device axes, deg/s, of a body whose Euler angles are `angles` and change at `rates`.
Vector3 bodyRate(const EulerAngles &angles, const EulerAngles &rates, AxisConvention convention);

/// The earth's magnetic field in world axes, uT: 20 to the north and 45 downwards.
Vector3 worldMagneticField(AxisConvention convention);

} // namespace kvsim
