import QtQuick
import KVCenter.Controls

/// A few words about the samples, over the plot. `progress` fills it from the left, from 0 to 1.
Rectangle {
    id: mark

    property alias text: label.text
    property color ink: Theme.accentText
    property real progress: 0

    width: label.implicitWidth + 16
    height: label.implicitHeight + 6
    radius: height / 2
    color: Theme.surface
    border.width: 1
    border.color: mark.ink

    Rectangle {
        x: 1
        y: 1
        visible: mark.progress > 0
        width: Math.max(height, Math.min(mark.progress, 1) * (parent.width - 2))
        height: parent.height - 2
        radius: height / 2
        color: mark.ink
        opacity: 0.15
    }
    Text {
        id: label

        anchors.centerIn: parent
        textFormat: Text.PlainText
        font: Theme.strongFont
        color: mark.ink
    }
}
