import QtQuick
import QtQuick.Templates as T
import KVCenter.Controls

/// A pill that is on or off. `hint` is its tooltip.
T.Button {
    id: control

    property string hint

    checkable: true
    implicitWidth: contentItem.implicitWidth + leftPadding + rightPadding
    implicitHeight: Math.round(Theme.font.pointSize * 2.4 + 8)
    horizontalPadding: 14
    hoverEnabled: true
    focusPolicy: Qt.TabFocus
    Accessible.role: Accessible.CheckBox
    Accessible.name: text
    Accessible.checkable: true
    Accessible.checked: checked

    contentItem: Text {
        text: control.text
        textFormat: Text.PlainText
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        font: Theme.font
        color: !control.enabled ? Theme.textDisabled : control.checked ? Theme.accentText : Theme.textSecondary
    }
    background: Rectangle {
        radius: height / 2
        color: control.down ? Theme.line : control.checked ? Theme.accentSoft : control.hovered ? Theme.background : Theme.surface
        border.width: control.visualFocus ? 2 : 1
        border.color: control.visualFocus || control.checked ? Theme.accent : Theme.border
    }

    HintTip {
        visible: control.hovered && text !== ""
        text: control.hint
    }
}
