// The 3D view under its fixed path. Its window sets the context property "backend".
import QtQuick
import KVCenter.ThreeD

Item {
    /// What is wrong with the model of the backend; empty when it is shown.
    readonly property string modelError: scene.modelError

    ThreeDScene {
        id: scene

        anchors.fill: parent
        attitude: backend
    }
}
