import QtQuick
import QtQuick.Templates as T
import KVCenter.Controls

/// The one button: with text, icon or both. `primary` fills it with the accent; `bare` shows frame and background only
/// on hovering, for buttons inside cards. `hint` is the tooltip, `keys` the shortcut named in it.
T.Button {
    id: control

    property bool primary: false
    property bool bare: false
    property string iconName
    property string hint
    property string keys
    readonly property color ink: !enabled ? (primary ? Theme.onAccentFaint : Theme.textDisabled) : primary ? Theme.onAccent : checked ? Theme.accentText : Theme.textSecondary

    implicitWidth: Math.max(implicitHeight, contentItem.implicitWidth + leftPadding + rightPadding)
    implicitHeight: Math.round(Theme.font.pointSize * 2.4 + (bare ? 2 : 8))
    horizontalPadding: text === "" ? 4 : 12
    verticalPadding: 4
    hoverEnabled: true
    focusPolicy: Qt.TabFocus
    Accessible.name: text === "" ? hint : text

    contentItem: Item {
        implicitWidth: children[0].implicitWidth
        implicitHeight: children[0].implicitHeight

        Row {
            anchors.centerIn: parent
            spacing: 6

            Icon {
                visible: name !== ""
                anchors.verticalCenter: parent.verticalCenter
                width: 16
                height: 16
                name: control.iconName
                color: control.ink
            }
            Text {
                visible: text !== ""
                anchors.verticalCenter: parent.verticalCenter
                text: control.text
                textFormat: Text.PlainText
                font: Theme.font
                color: control.ink
            }
        }
    }
    background: Rectangle {
        radius: 6
        color: {
            if (control.primary)
                return !control.enabled ? Theme.accentFaint : control.down || control.hovered ? Theme.accentPressed : Theme.accent;
            if (control.down)
                return Theme.pressed;
            if (control.checked)
                return Theme.accentSoft;
            return control.hovered ? Theme.background : control.bare ? "transparent" : Theme.surface;
        }
        border.width: control.visualFocus ? 2 : control.bare ? 0 : 1
        border.color: control.visualFocus ? (control.primary ? Theme.text : Theme.accent) : control.primary ? color : Theme.border
    }

    HintTip {
        visible: control.hovered && text !== ""
        text: control.keys === "" ? control.hint : qsTr("%1 (%2)").arg(control.hint).arg(control.keys)
    }
}
