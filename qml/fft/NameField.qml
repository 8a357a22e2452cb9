import QtQuick
import QtQuick.Templates as T
import KVCenter.Controls

/// A field for a short text.
T.TextField {
    id: control

    implicitWidth: Math.round(font.pointSize * 12)
    implicitHeight: Math.round(font.pointSize * 2.4 + 2)
    leftPadding: 8
    rightPadding: 8
    verticalAlignment: TextInput.AlignVCenter
    selectByMouse: true
    font: Theme.font
    color: Theme.text
    placeholderTextColor: Theme.textDisabled
    selectionColor: Theme.accent
    selectedTextColor: Theme.surface
    maximumLength: 40
    Accessible.name: placeholderText

    background: Rectangle {
        radius: 6
        color: Theme.surface
        border.width: control.activeFocus ? 2 : 1
        border.color: control.activeFocus ? Theme.accent : Theme.border

        Text {
            anchors.verticalCenter: parent.verticalCenter
            x: 8
            visible: control.text === ""
            text: control.placeholderText
            textFormat: Text.PlainText
            font: Theme.font
            color: Theme.textDisabled
        }
    }
}
