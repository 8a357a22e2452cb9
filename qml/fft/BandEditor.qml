import QtQuick
import KVCenter.Controls
import KVCenter.Fft

/// Fields for a custom band. done() is emitted when the band has been accepted.
Column {
    id: editor

    required property FftChartBridge bridge
    property real low: 0
    property real high: 0
    property string problem

    signal done

    spacing: 6
    onVisibleChanged: problem = ""

    NameField {
        id: nameField

        objectName: "bandName"
        width: parent.width
        placeholderText: qsTr("Name of the band")
    }
    Row {
        width: parent.width
        spacing: 8

        NumberField {
            objectName: "bandLow"
            width: (parent.width - 8) / 2
            unit: "Hz"
            to: 1e6
            value: editor.low
            hint: qsTr("Lower edge")
            onEntered: number => editor.low = number
        }
        NumberField {
            objectName: "bandHigh"
            width: (parent.width - 8) / 2
            unit: "Hz"
            to: 1e6
            value: editor.high
            hint: qsTr("Upper edge")
            onEntered: number => editor.high = number
        }
    }
    Text {
        width: parent.width
        visible: text !== ""
        wrapMode: Text.Wrap
        text: editor.problem
        textFormat: Text.PlainText
        font: Theme.font
        color: Theme.warning
    }
    ActionButton {
        objectName: "applyBand"
        primary: true
        text: qsTr("Measure this band")
        onClicked: {
            forceActiveFocus(); // makes the field being edited commit its number
            editor.problem = editor.bridge.tryCustomBand(nameField.text, editor.low, editor.high);
            if (editor.problem === "")
                editor.done();
        }
    }
}
