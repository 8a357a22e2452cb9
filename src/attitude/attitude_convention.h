#pragma once

#include <QQuaternion>
#include <QVector3D>

#include <array>

#include "attitude/orientation_preset.h"
#include "link/node_data.h"

/// Nine values of a 3x3 matrix, row by row: a11, a12, a13, a21, a22, a23, a31, a32, a33.
using AxisMatrix = std::array<float, 9>;

/// A node's attitude in the display frame (X forward, Y up, Z to the right), whatever the device's own axes are.
struct NormalizedAttitude
{
    bool valid = false;          ///< the node carried a usable attitude
    bool fromQuaternion = false; ///< it came from the node's quaternion, else from its Euler angles
    QQuaternion quaternion;      ///< display attitude; identity when not valid
    QVector3D euler;             ///< degrees: x roll, y pitch, z yaw; zero when not valid
    AxisMatrix axisMatrix = {};  ///< matrix A of the preset: v_display = transposed(A) * v_device
};

/// The part of a NormalizedAttitude that is derived from three angles and a preset.
struct DisplayAttitude
{
    QQuaternion quaternion;
    AxisMatrix axisMatrix = {};
};

/// Device attitude to display attitude. Pure functions in single precision; angles are degrees.
///
/// In the display frame a positive roll lowers the right side, a positive pitch raises the nose, and a positive yaw of
/// the rotation turns the nose to the left (counter-clockwise seen from above).
namespace attitude_convention {

/// Display attitude of a node. A quaternion is preferred; one that is nearly zero or not finite does not count. Euler
/// angles are reported as given, except that FluNwuZyx negates pitch and yaw; they are not wrapped.
NormalizedAttitude normalizeAttitude(const NodeSnapshot &node, OrientationPreset preset);

/// Display attitude of roll, pitch and yaw. For FluNwuZyx the yaw turns the other way. Without a preset the result is
/// the identity, whatever the angles.
DisplayAttitude toDisplayAttitude(float roll, float pitch, float yaw, OrientationPreset preset);
QQuaternion toDisplayQuaternion(float roll, float pitch, float yaw, OrientationPreset preset);

/// Roll and yaw in (-180, 180], pitch in [-90, 90]. A quaternion that is not finite gives NaN.
QVector3D displayEulerFromQuaternion(const QQuaternion &quaternion);

/// Angles of `a` as seen from `b`: of normalized(a) * conjugate(normalized(b)).
QVector3D relativeDisplayEuler(const QQuaternion &a, const QQuaternion &b);

} // namespace attitude_convention
