import QtQuick
import QtQuick3D
import KVCenter.Controls

/// A model of any size, centred and scaled to a radius of 50 units.
Model {
    property vector3d minimum
    property vector3d maximum
    readonly property vector3d centre: minimum.plus(maximum).times(0.5)
    readonly property real factor: 50 / Math.max(1e-9, maximum.minus(minimum).length() / 2)

    scale: Qt.vector3d(factor, factor, factor)
    position: centre.times(-factor)
    materials: DefaultMaterial {
        diffuseColor: Theme.sceneBody
        cullMode: Material.NoCulling
    }
}
