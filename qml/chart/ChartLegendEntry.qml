import QtQuick
import QtQuick.Templates as T
import KVCenter.Controls

/// A channel in the legend: its name in its colour and its live value. A click shows or hides it.
T.AbstractButton {
    id: entry

    property string name
    property color color
    property bool shown: true
    property string value

    implicitWidth: contentItem.implicitWidth + rightPadding
    implicitHeight: contentItem.implicitHeight
    rightPadding: 12
    hoverEnabled: true
    focusPolicy: Qt.TabFocus
    Accessible.role: Accessible.CheckBox
    Accessible.name: name
    Accessible.checked: shown

    contentItem: Row {
        spacing: 5

        Text {
            anchors.verticalCenter: parent.verticalCenter
            text: entry.name
            textFormat: Text.PlainText
            font.family: Theme.strongFont.family
            font.pointSize: Theme.smallFont.pointSize
            font.weight: Theme.strongFont.weight
            font.strikeout: !entry.shown
            color: entry.shown ? entry.color : Theme.textDisabled
        }
        Text {
            anchors.verticalCenter: parent.verticalCenter
            visible: text !== ""
            text: entry.value
            textFormat: Text.PlainText
            font: Theme.fixedSmallFont
            color: entry.shown ? Theme.text : Theme.textDisabled
        }
    }
    background: Rectangle {
        anchors.fill: parent
        anchors.leftMargin: -4
        anchors.rightMargin: 6
        radius: 4
        color: entry.hovered ? Theme.background : "transparent"
        border.width: entry.visualFocus ? 2 : 0
        border.color: Theme.accent
    }

    HintTip {
        visible: entry.hovered
        text: entry.shown ? qsTr("Hide %1").arg(entry.name) : qsTr("Show %1").arg(entry.name)
    }
}
