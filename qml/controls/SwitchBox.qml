import QtQuick
import QtQuick.Templates as T
import KVCenter.Controls

/// A switch with its text.
T.Switch {
    id: control

    property string hint

    implicitWidth: contentItem.implicitWidth
    implicitHeight: Math.max(indicator.height, contentItem.implicitHeight) + 4
    hoverEnabled: true
    focusPolicy: Qt.TabFocus
    Accessible.role: Accessible.CheckBox
    Accessible.name: text
    Accessible.checkable: true
    Accessible.checked: checked

    indicator: Rectangle {
        y: Math.round((control.height - height) / 2)
        width: 30
        height: 16
        radius: 8
        color: control.checked ? Theme.accent : Theme.borderStrong
        border.width: control.visualFocus ? 2 : 0
        border.color: Theme.text

        Rectangle {
            x: control.checked ? parent.width - width - 2 : 2
            y: 2
            width: 12
            height: 12
            radius: 6
            color: Theme.surface
        }
    }
    contentItem: Text {
        leftPadding: control.indicator.width + 8
        verticalAlignment: Text.AlignVCenter
        text: control.text
        textFormat: Text.PlainText
        font: Theme.font
        color: control.enabled ? Theme.text : Theme.textDisabled
    }

    HintTip {
        visible: control.hovered && text !== ""
        text: control.hint
    }
}
