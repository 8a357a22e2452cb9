#include "simulator/rotation.h"

#include <algorithm>
#include <cmath>

namespace kvsim {

namespace {

constexpr int kYawAxis = 2;

int pitchAxis(AxisConvention convention)
{
    return convention == AxisConvention::FluZyx ? 1 : 0;
}

int rollAxis(AxisConvention convention)
{
    return convention == AxisConvention::FluZyx ? 0 : 1;
}

double degreesOf(double radians)
{
    return radians / kRadiansPerDegree;
}

} // namespace

Quaternion operator*(const Quaternion &a, const Quaternion &b)
{
    return {a.w * b.w - a.x * b.x - a.y * b.y - a.z * b.z, a.w * b.x + a.x * b.w + a.y * b.z - a.z * b.y,
            a.w * b.y - a.x * b.z + a.y * b.w + a.z * b.x, a.w * b.z + a.x * b.y - a.y * b.x + a.z * b.w};
}

Quaternion conjugated(const Quaternion &q)
{
    return {q.w, -q.x, -q.y, -q.z};
}

Quaternion normalized(const Quaternion &q)
{
    const double length = std::sqrt(q.w * q.w + q.x * q.x + q.y * q.y + q.z * q.z);
    if (!(length > 0.0) || !std::isfinite(length))
        return {};
    return {q.w / length, q.x / length, q.y / length, q.z / length};
}

Quaternion rotationAbout(int axis, double degrees)
{
    const double half = degrees * kRadiansPerDegree / 2.0;
    const double sine = std::sin(half);
    return {std::cos(half), axis == 0 ? sine : 0.0, axis == 1 ? sine : 0.0, axis == 2 ? sine : 0.0};
}

Vector3 rotated(const Quaternion &q, const Vector3 &v)
{
    const Quaternion result = q * Quaternion{0.0, v[0], v[1], v[2]} * conjugated(q);
    return {result.x, result.y, result.z};
}

Vector3 rotatedBack(const Quaternion &q, const Vector3 &v)
{
    return rotated(conjugated(q), v);
}

Vector3 crossed(const Vector3 &a, const Vector3 &b)
{
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

double lengthOf(const Vector3 &v)
{
    return std::hypot(v[0], v[1], v[2]);
}

Quaternion quaternionOf(const EulerAngles &angles, AxisConvention convention)
{
    return rotationAbout(kYawAxis, angles.yaw) * rotationAbout(pitchAxis(convention), angles.pitch)
           * rotationAbout(rollAxis(convention), angles.roll);
}

EulerAngles eulerOf(const Quaternion &q, AxisConvention convention)
{
    // Columns of the rotation matrix: where the device axes point in the world.
    const Vector3 x = rotated(q, {1, 0, 0});
    const Vector3 y = rotated(q, {0, 1, 0});
    const Vector3 z = rotated(q, {0, 0, 1});
    if (convention == AxisConvention::FluZyx)
        return {degreesOf(std::atan2(y[2], z[2])), degreesOf(std::asin(std::clamp(-x[2], -1.0, 1.0))),
                degreesOf(std::atan2(x[1], x[0]))};
    return {degreesOf(std::atan2(-x[2], z[2])), degreesOf(std::asin(std::clamp(y[2], -1.0, 1.0))),
            degreesOf(std::atan2(-y[0], y[1]))};
}

Vector3 bodyRate(const EulerAngles &angles, const EulerAngles &rates, AxisConvention convention)
{
    // Each rate acts about an axis of the frame that its rotation starts from; the later rotations carry it along.
    Vector3 rate{};
    rate[kYawAxis] = rates.yaw;
    rate = rotatedBack(rotationAbout(pitchAxis(convention), angles.pitch), rate);
    rate[std::size_t(pitchAxis(convention))] += rates.pitch;
    rate = rotatedBack(rotationAbout(rollAxis(convention), angles.roll), rate);
    rate[std::size_t(rollAxis(convention))] += rates.roll;
    return rate;
}

Vector3 worldMagneticField(AxisConvention convention)
{
    constexpr double kNorth = 20.0;
    constexpr double kUp = -45.0;
    return convention == AxisConvention::FluZyx ? Vector3{kNorth, 0.0, kUp} : Vector3{0.0, kNorth, kUp};
}

} // namespace kvsim
