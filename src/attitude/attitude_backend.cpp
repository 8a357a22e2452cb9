#include "attitude/attitude_backend.h"

#include <cmath>

BodyAxesBasis BodyAxesBasis::fromAxisMatrix(const AxisMatrix &matrix)
{
    const auto row = [&matrix](size_t i) { return QVector3D(matrix[i], matrix[i + 1], matrix[i + 2]); };
    return {row(0), row(3), row(6)};
}

void AttitudeBackend::setAttitude(const QQuaternion &quaternion, const QVector3D &euler)
{
    if (!std::isfinite(quaternion.length()) || (quaternion == m_quaternion && euler == m_euler))
        return;
    m_quaternion = quaternion;
    m_euler = euler;
    emit orientationChanged();
}

void AttitudeBackend::setObjSource(const QUrl &source)
{
    if (source == m_objSource)
        return;
    m_objSource = source;
    emit objSourceChanged();
}

void AttitudeBackend::setBodyAxes(const BodyAxesBasis &axes)
{
    if (axes == m_bodyAxes)
        return;
    m_bodyAxes = axes;
    emit bodyAxesChanged();
}

void AttitudeBackend::setHomeReference(const QQuaternion &quaternion, bool active)
{
    if (!std::isfinite(quaternion.length()) || (quaternion == m_homeQuaternion && active == m_homeReferenceActive))
        return;
    m_homeQuaternion = quaternion;
    m_homeReferenceActive = active;
    emit homeReferenceChanged();
}

void AttitudeBackend::setRelativeEuler(const QVector3D &euler)
{
    m_relativeEuler = euler;
}
