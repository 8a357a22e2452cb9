import QtQuick
import QtQuick3D
import KVCenter.ThreeD

/// The device's axes, fixed to the body.
Node {
    id: axes

    required property AttitudeBackend attitude

    AxisArrow {
        direction: axes.attitude.bodyAxisX
        color: SceneColors.axisX
    }
    AxisArrow {
        direction: axes.attitude.bodyAxisY
        color: SceneColors.axisY
    }
    AxisArrow {
        direction: axes.attitude.bodyAxisZ
        color: SceneColors.axisZ
    }
}
