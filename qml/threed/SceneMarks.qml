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
    /// Incremented when the camera or the size has changed: places are computed again.
    property int revision: 0

    // Places are not known before the first frame.
    Connections {
        target: marks.Window.window
        enabled: !first.seen

        function onFrameSwapped() {
            first.seen = true;
            marks.revision++;
        }
    }
    QtObject {
        id: first

        property bool seen: false
    }

    /// Place in the picture; z is above 0 in front of the camera. `revision` only makes bindings depend on it.
    function seenAt(place, revision) {
        return view.camera ? view.mapFrom3DScene(place) : Qt.vector3d(0, 0, -1);
    }

    component Mark: Text {
        required property vector3d place
        readonly property vector3d seen: marks.seenAt(place, marks.revision)

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
        color: Theme.axisX
    }
    AxisMark {
        axis: marks.attitude.bodyAxisY
        text: "Y"
        color: Theme.axisY
    }
    AxisMark {
        axis: marks.attitude.bodyAxisZ
        text: "Z"
        color: Theme.axisZ
    }
    Repeater {
        model: [
            {
                text: qsTr("N", "north"),
                place: Qt.vector3d(104, -58, 0)
            },
            {
                text: qsTr("E", "east"),
                place: Qt.vector3d(0, -58, 90)
            },
            {
                text: qsTr("S", "south"),
                place: Qt.vector3d(-90, -58, 0)
            },
            {
                text: qsTr("W", "west"),
                place: Qt.vector3d(0, -58, -90)
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
