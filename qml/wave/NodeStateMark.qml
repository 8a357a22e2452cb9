import QtQuick
import KVCenter.Controls

/// The state of a radio node, by shape, colour and word: a green disc is live, an amber diamond late, a red ring gone,
/// a grey bar ended.
Row {
    id: mark

    /// 0 live, 1 late, 2 gone, 3 ended.
    required property int nodeState
    required property string text
    readonly property color ink: [Theme.good, Theme.warning, Theme.bad][nodeState] ?? Theme.textSecondary

    spacing: 8

    Item {
        width: 12
        height: 12
        anchors.verticalCenter: parent.verticalCenter

        Rectangle {
            anchors.centerIn: parent
            width: mark.nodeState === 1 ? 9 : 11
            height: mark.nodeState === 3 ? 3 : width
            radius: mark.nodeState === 1 ? 0 : height / 2
            rotation: mark.nodeState === 1 ? 45 : 0
            antialiasing: true
            color: mark.nodeState === 2 ? "transparent" : mark.ink
            border.width: mark.nodeState === 2 ? 2 : 0
            border.color: mark.ink
        }
    }
    Text {
        anchors.verticalCenter: parent.verticalCenter
        text: mark.text
        textFormat: Text.PlainText
        font: mark.nodeState === 0 || mark.nodeState === 3 ? Theme.font : Theme.strongFont
        color: mark.nodeState === 0 ? Theme.textSecondary : mark.ink
    }
}
