import QtQuick
import KVCenter.Controls

/// One sentence at the edge of a window, until it is dismissed; messages of success disappear on their own. Without a
/// text it takes no room.
Rectangle {
    id: row

    property string text
    property bool failed: false

    signal dismissed

    height: text === "" ? 0 : closeButton.height + 8
    visible: text !== ""
    color: Theme.surface

    Timer {
        interval: 6000
        running: row.text !== "" && !row.failed
        onTriggered: row.dismissed()
    }
    Rectangle {
        width: parent.width
        height: 1
        color: Theme.line
    }
    Text {
        anchors {
            left: parent.left
            right: closeButton.left
            leftMargin: 16
            rightMargin: 8
            verticalCenter: parent.verticalCenter
        }
        elide: Text.ElideMiddle
        text: row.text
        textFormat: Text.PlainText
        font: Theme.font
        color: row.failed ? Theme.warning : Theme.textSecondary
    }
    ActionButton {
        id: closeButton

        anchors.right: parent.right
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        bare: true
        iconName: "close"
        hint: qsTr("Dismiss")
        onClicked: row.dismissed()
    }
}
