pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import KVCenter.Controls

/// A series in the legend: its name in its colour and its live value, and on request a piece of its line. A click shows
/// or hides it.
T.AbstractButton {
    id: entry

    property string name
    /// For hints and screen readers, where `name` is a short one.
    property string fullName: name
    property color color
    property bool lineShown: false
    property bool dashed: false
    property bool shown: true
    property string value

    implicitWidth: contentItem.implicitWidth + rightPadding
    implicitHeight: contentItem.implicitHeight
    rightPadding: 12
    hoverEnabled: true
    focusPolicy: Qt.TabFocus
    Accessible.role: Accessible.CheckBox
    Accessible.name: fullName
    Accessible.checked: shown

    FontMetrics {
        id: metrics

        font: Theme.strongFont
    }

    contentItem: Row {
        spacing: 5

        Row {
            anchors.verticalCenter: parent.verticalCenter
            visible: entry.lineShown
            spacing: entry.dashed ? 4 : 0

            Repeater {
                model: 2

                Rectangle {
                    width: entry.dashed ? 7 : 9
                    height: 2
                    color: entry.shown ? entry.color : Theme.textDisabled
                }
            }
        }
        Text {
            anchors.verticalCenter: parent.verticalCenter
            // Short names are numbers: they stand in columns.
            width: entry.lineShown ? Math.max(implicitWidth, 2 * metrics.advanceWidth("0")) : implicitWidth
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
        text: entry.shown ? qsTr("Hide %1").arg(entry.fullName) : qsTr("Show %1").arg(entry.fullName)
    }
}
