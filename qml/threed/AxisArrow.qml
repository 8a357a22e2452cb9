import QtQuick
import QtQuick3D

/// An arrow from the origin along `direction`; without a direction it is hidden.
Node {
    id: arrow

    property vector3d direction
    property color color
    readonly property vector3d unit: direction.normalized()
    // Turns +Y, the axis of the toolkit's bodies, into the direction.
    readonly property vector3d turnAxis: Math.abs(unit.y) > 0.9999 ? Qt.vector3d(1, 0, 0) : Qt.vector3d(0, 1, 0).crossProduct(unit)

    visible: direction.length() > 0.5
    rotation: Quaternion.fromAxisAndAngle(turnAxis, Math.acos(Math.max(-1, Math.min(1, unit.y))) * 180 / Math.PI)

    Model {
        source: "#Cylinder"
        y: 32
        scale: Qt.vector3d(0.014, 0.64, 0.014)
        materials: [ink]
    }
    Model {
        source: "#Cone"
        y: 64
        scale: Qt.vector3d(0.05, 0.09, 0.05)
        materials: [ink]
    }
    DefaultMaterial {
        id: ink

        lighting: DefaultMaterial.NoLighting
        diffuseColor: arrow.color
    }
}
