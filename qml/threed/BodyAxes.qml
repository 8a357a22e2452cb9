import QtQuick
import QtQuick3D
import KVCenter.Controls
import KVCenter.ThreeD

/// The device's axes, fixed to the body.
Node {
    id: axes

    required property AttitudeBackend attitude

    AxisArrow {
        direction: axes.attitude.bodyAxisX
        color: Theme.axisX
    }
    AxisArrow {
        direction: axes.attitude.bodyAxisY
        color: Theme.axisY
    }
    AxisArrow {
        direction: axes.attitude.bodyAxisZ
        color: Theme.axisZ
    }
}
