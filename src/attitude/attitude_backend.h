#pragma once

#include <QObject>
#include <QQuaternion>
#include <QUrl>
#include <QVector3D>
#include <QtQml/qqmlregistration.h>

#include "attitude/attitude_convention.h"

/// The device's axes as vectors of the display frame (X forward, Y up, Z to the right) while the body is level and
/// faces forward.
struct BodyAxesBasis
{
    QVector3D x{1, 0, 0};
    QVector3D y{0, 1, 0};
    QVector3D z{0, 0, 1};

    /// Rows of a preset's matrix: a device vector is turned into the display frame by its transpose.
    static BodyAxesBasis fromAxisMatrix(const AxisMatrix &matrix);

    bool operator==(const BodyAxesBasis &) const = default;
};

/// What the 3D scene shows: it binds to these properties, which the window sets. Setters that change nothing emit
/// nothing; values that are not finite are ignored. Main thread.
class AttitudeBackend : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(AttitudeBackend)
    QML_ELEMENT
    QML_UNCREATABLE("comes with the window")
    /// Body to display frame.
    Q_PROPERTY(QQuaternion quaternion READ quaternion NOTIFY orientationChanged)
    Q_PROPERTY(QQuaternion homeQuaternion READ homeQuaternion NOTIFY homeReferenceChanged)
    Q_PROPERTY(bool homeReferenceActive READ homeReferenceActive NOTIFY homeReferenceChanged)
    /// The model: ".qml" a built-in scene, ".obj" read at run time, ".mesh" used unchanged.
    Q_PROPERTY(QUrl objSource READ objSource NOTIFY objSourceChanged)
    /// The device's axes fixed to the body, see BodyAxesBasis.
    Q_PROPERTY(QVector3D bodyAxisX READ bodyAxisX NOTIFY bodyAxesChanged)
    Q_PROPERTY(QVector3D bodyAxisY READ bodyAxisY NOTIFY bodyAxesChanged)
    Q_PROPERTY(QVector3D bodyAxisZ READ bodyAxisZ NOTIFY bodyAxesChanged)

public:
    explicit AttitudeBackend(QObject *parent = nullptr) : QObject(parent) {}

    QQuaternion quaternion() const { return m_quaternion; }
    /// Display angles of quaternion(), degrees: x roll, y pitch, z yaw.
    QVector3D euler() const { return m_euler; }
    QQuaternion homeQuaternion() const { return m_homeQuaternion; }
    bool homeReferenceActive() const { return m_homeReferenceActive; }
    /// Display angles relative to the home reference, degrees, as given to the last setRelativeEuler().
    QVector3D relativeEuler() const { return m_relativeEuler; }
    QUrl objSource() const { return m_objSource; }
    QVector3D bodyAxisX() const { return m_bodyAxes.x; }
    QVector3D bodyAxisY() const { return m_bodyAxes.y; }
    QVector3D bodyAxisZ() const { return m_bodyAxes.z; }

    void setAttitude(const QQuaternion &quaternion, const QVector3D &euler);
    void setObjSource(const QUrl &source);
    void setBodyAxes(const BodyAxesBasis &axes);
    void setHomeReference(const QQuaternion &quaternion, bool active);
    void setRelativeEuler(const QVector3D &euler);
    /// Puts the view's camera back to its initial place.
    void resetCamera() { emit cameraResetRequested(); }

signals:
    void orientationChanged();
    void homeReferenceChanged();
    void objSourceChanged();
    void bodyAxesChanged();
    void cameraResetRequested();

private:
    QQuaternion m_quaternion;
    QVector3D m_euler;
    QQuaternion m_homeQuaternion;
    QVector3D m_relativeEuler;
    QUrl m_objSource;
    BodyAxesBasis m_bodyAxes;
    bool m_homeReferenceActive = false;
};
