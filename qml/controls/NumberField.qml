import QtQuick
import QtQuick.Templates as T
import KVCenter.Controls

/// A number with its unit, with a decimal point in every language. `value` is the last accepted number;
/// `entered(number)` reports a new one after Return or when the field loses the focus. A text that is not a number from
/// `from` to `to` is reverted.
T.TextField {
    id: control

    property double value: 0
    property double from: 0
    property double to: 1e9
    property string unit
    property string hint

    signal entered(double number)

    function show() {
        text = String(value);
    }
    function take() {
        const number = Number(text.trim().replace(",", "."));
        if (text.trim() === "" || isNaN(number) || number < from || number > to)
            show();
        else if (number !== value)
            entered(number);
        else
            show();
    }

    onValueChanged: show()
    onEditingFinished: take()
    onAccepted: focus = false
    Component.onCompleted: show()
    Keys.onEscapePressed: {
        show();
        focus = false;
    }

    implicitWidth: Math.round(font.pointSize * 8)
    implicitHeight: Math.round(font.pointSize * 2.4 + 2)
    leftPadding: 8
    rightPadding: unitText.implicitWidth + 12
    verticalAlignment: TextInput.AlignVCenter
    horizontalAlignment: TextInput.AlignRight
    selectByMouse: true
    font: Theme.fixedSmallFont
    color: enabled ? Theme.text : Theme.textDisabled
    selectionColor: Theme.accent
    selectedTextColor: Theme.surface
    maximumLength: 12
    Accessible.name: hint

    background: Rectangle {
        radius: 6
        color: Theme.surface
        border.width: control.activeFocus ? 2 : 1
        border.color: control.activeFocus ? Theme.accent : Theme.border
    }

    Text {
        id: unitText

        anchors.right: parent.right
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        text: control.unit
        textFormat: Text.PlainText
        font: Theme.smallFont
        color: Theme.textSecondary
    }
    HintTip {
        visible: control.hovered && text !== ""
        text: control.hint
    }
}
