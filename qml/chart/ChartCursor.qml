pragma ComponentBehavior: Bound

import QtQuick
import KVCenter.Controls

/// A measuring cursor: a dashed line with a flag to drag it by. `moved` gives the new place in the parent's pixels.
Item {
    id: cursor

    property string name

    signal moved(real x)

    Repeater {
        model: Math.max(0, Math.ceil(cursor.height / 8))

        Rectangle {
            required property int index

            y: index * 8
            width: 1
            height: Math.min(5, cursor.height - y)
            color: Theme.accent
        }
    }
    Rectangle {
        id: flag

        x: -Math.round(width / 2)
        width: Math.max(height, label.implicitWidth + 8)
        height: label.implicitHeight + 2
        radius: 3
        color: Theme.accent

        Text {
            id: label

            anchors.centerIn: parent
            text: cursor.name
            textFormat: Text.PlainText
            font: Theme.fixedSmallFont
            color: Theme.surface
        }
    }
    MouseArea {
        x: -Math.round(width / 2)
        width: Math.max(flag.width, 12)
        height: parent.height
        cursorShape: Qt.SplitHCursor
        preventStealing: true
        onPositionChanged: event => cursor.moved(mapToItem(cursor.parent, event.x, event.y).x)
    }
}
