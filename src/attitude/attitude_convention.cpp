#include "attitude/attitude_convention.h"

#include <QMatrix3x3>

#include <cmath>

namespace {

constexpr float kDegreesPerRadian = 57.29578F;
constexpr float kMinQuaternionLengthSquared = 0.000001F;

constexpr AxisMatrix kRfuEnuAxes = {0, 0, 1, 1, 0, 0, 0, 1, 0};
constexpr AxisMatrix kFluNwuAxes = {1, 0, 0, 0, 0, -1, 0, 1, 0};
constexpr AxisMatrix kIdentityAxes = {1, 0, 0, 0, 1, 0, 0, 0, 1};

const AxisMatrix &axesOf(OrientationPreset preset)
{
    switch (preset) {
    case OrientationPreset::RfuEnu312:
        return kRfuEnuAxes;
    case OrientationPreset::FluNwuZyx:
        return kFluNwuAxes;
    case OrientationPreset::None:
        break;
    }
    return kIdentityAxes;
}

float wrapped(float degrees)
{
    while (degrees > 180.0F)
        degrees -= 360.0F;
    while (degrees <= -180.0F)
        degrees += 360.0F;
    return degrees;
}

bool isUsable(const QQuaternion &quaternion)
{
    // Infinity is checked separately from the length: a long quaternion's square overflows, but its direction is still
    // good.
    return quaternion.lengthSquared() > kMinQuaternionLengthSquared && std::isfinite(quaternion.length());
}

QQuaternion inDisplayAxes(const QQuaternion &device, const AxisMatrix &axes)
{
    const QMatrix3x3 a(axes.data());
    const QMatrix3x3 rotation = a.transposed() * device.normalized().toRotationMatrix() * a;
    return QQuaternion::fromRotationMatrix(rotation).normalized();
}

} // namespace

NormalizedAttitude attitude_convention::normalizeAttitude(const NodeSnapshot &node, OrientationPreset preset)
{
    NormalizedAttitude result;
    result.axisMatrix = axesOf(preset);

    const float *q = node.sample.quat;
    const QQuaternion device(q[0], q[1], q[2], q[3]);
    if (node.has_quat && isUsable(device)) {
        result.valid = true;
        result.fromQuaternion = true;
        result.quaternion = inDisplayAxes(device, result.axisMatrix);
        result.euler = displayEulerFromQuaternion(result.quaternion);
    } else if (node.has_euler) {
        // Yaw of FluNwuZyx is negated here for the reported angles and once more for the rotation: the numbers that
        // users know from these devices have that sign, while the rotation follows the device.
        const float sign = preset == OrientationPreset::FluNwuZyx ? -1.0F : 1.0F;
        result.valid = true;
        result.euler = QVector3D(node.sample.roll, sign * node.sample.pitch, sign * node.sample.yaw);
        result.quaternion = toDisplayQuaternion(result.euler.x(), result.euler.y(), result.euler.z(), preset);
    }
    return result;
}

DisplayAttitude attitude_convention::toDisplayAttitude(float roll, float pitch, float yaw, OrientationPreset preset)
{
    if (preset != OrientationPreset::RfuEnu312 && preset != OrientationPreset::FluNwuZyx)
        return {QQuaternion(), kIdentityAxes};
    const float turn = preset == OrientationPreset::FluNwuZyx ? -yaw : yaw;
    const QQuaternion quaternion = QQuaternion::fromAxisAndAngle(0, 1, 0, turn)
                                   * QQuaternion::fromAxisAndAngle(0, 0, 1, pitch)
                                   * QQuaternion::fromAxisAndAngle(1, 0, 0, roll);
    return {quaternion, axesOf(preset)};
}

QQuaternion attitude_convention::toDisplayQuaternion(float roll, float pitch, float yaw, OrientationPreset preset)
{
    return toDisplayAttitude(roll, pitch, yaw, preset).quaternion;
}

QVector3D attitude_convention::displayEulerFromQuaternion(const QQuaternion &quaternion)
{
    const QMatrix3x3 m = quaternion.normalized().toRotationMatrix();
    float sinPitch = m(1, 0); // rounding can carry it past 1
    if (sinPitch > 1.0F)
        sinPitch = 1.0F;
    else if (sinPitch <= -1.0F)
        sinPitch = -1.0F;
    const float roll = std::atan2(-m(1, 2), m(1, 1));
    const float pitch = std::asin(sinPitch);
    const float yaw = std::atan2(-m(2, 0), m(0, 0));
    return {wrapped(roll * kDegreesPerRadian), wrapped(pitch * kDegreesPerRadian), wrapped(yaw * kDegreesPerRadian)};
}

QVector3D attitude_convention::relativeDisplayEuler(const QQuaternion &a, const QQuaternion &b)
{
    return displayEulerFromQuaternion(a.normalized() * b.normalized().conjugated());
}
