// The 3D view under its fixed path. Its window sets the context property "backend".
import QtQuick
import KVCenter.ThreeD

Item {
    /// What is wrong with the backend's model; empty when it is shown.
    readonly property string modelError: scene.modelError

    ThreeDScene {
        id: scene

        anchors.fill: parent
        attitude: backend
    }
}
