pragma ComponentBehavior: Bound

import QtQuick
import QtQuick3D
import KVCenter.Controls
import KVCenter.ThreeD

/// The texts in the picture: always upright, sharp and readable, at places of the scene.
Item {
    id: marks

    required property View3D view
    required property AttitudeBackend attitude
    /// Raised when the camera or the size has changed: places are worked out again.
    property int revision: 0

    component Mark: Text {
        required property vector3d place
        readonly property vector3d seen: {
            marks.revision;
            return marks.view.mapFrom3DScene(place);
        }

        x: Math.round(seen.x - width / 2)
        y: Math.round(seen.y - height / 2)
        visible: seen.z > 0
        textFormat: Text.PlainText
        font: Theme.strongFont
    }
    component AxisMark: Mark {
        property vector3d axis

        place: marks.attitude.quaternion.times(axis.normalized().times(76))
        visible: seen.z > 0 && axis.length() > 0.5
    }

    AxisMark {
        axis: marks.attitude.bodyAxisX
        text: "X"
        color: SceneColors.axisX
    }
    AxisMark {
        axis: marks.attitude.bodyAxisY
        text: "Y"
        color: SceneColors.axisY
    }
    AxisMark {
        axis: marks.attitude.bodyAxisZ
        text: "Z"
        color: SceneColors.axisZ
    }
    Repeater {
        model: [
            {
                text: qsTr("N", "north"),
                place: Qt.vector3d(122, -58, 0)
            },
            {
                text: qsTr("E", "east"),
                place: Qt.vector3d(0, -58, 110)
            },
            {
                text: qsTr("S", "south"),
                place: Qt.vector3d(-110, -58, 0)
            },
            {
                text: qsTr("W", "west"),
                place: Qt.vector3d(0, -58, -110)
            }
        ]

        Mark {
            required property int index
            required property var modelData

            place: modelData.place
            text: modelData.text
            font: index === 0 ? Theme.strongFont : Theme.smallFont
            color: index === 0 ? Theme.text : Theme.textSecondary
        }
    }
}
