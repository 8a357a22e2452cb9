#pragma once

#include "simulator/imu_sample.h"
#include "simulator/rotation.h"

namespace kvsim {

enum class MotionKind { Rest, Swing, Spin };

/// A rigid body that turns about its sensor. Its Euler angles are closed-form functions of time, and everything the
/// sensor reads follows from them: the angular rate is their derivative in device axes, the specific force is gravity
/// alone (a level device at rest reads +1 G on its z axis) and the magnetic field is the earth's, both seen from the
/// body.
class MotionModel
{
public:
    MotionModel(MotionKind kind, AxisConvention convention) : m_kind(kind), m_convention(convention) {}

    /// The sample at a time in seconds. Bodies with different phases (radians) move differently; at rest the phase is
    /// the heading. Id and time stamp are left to the caller.
    ImuSample sampleAt(double seconds, double phase = 0.0) const;

private:
    MotionKind m_kind;
    AxisConvention m_convention;
};

/// Fills attitude, specific force, magnetic field and Euler angles of a body that does not accelerate.
void setAttitude(ImuSample &sample, const Quaternion &attitude, AxisConvention convention);

std::array<float, 3> toFloats(const Vector3 &v);

} // namespace kvsim
