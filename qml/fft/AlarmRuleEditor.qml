pragma ComponentBehavior: Bound

import QtQuick
import KVCenter.Controls
import KVCenter.Fft

/// Fields for a custom rule. done() is emitted when a rule has been accepted.
Column {
    id: editor

    required property FftChartBridge bridge
    property var draft: ({})
    property string problem

    signal done

    function set(key: string, number: real) {
        const changed = Object.assign({}, draft);
        changed[key] = number;
        draft = changed;
    }

    spacing: 6
    onVisibleChanged: {
        if (!visible)
            return;
        draft = bridge.alarmRule;
        problem = "";
    }

    Grid {
        width: parent.width
        columns: 2
        columnSpacing: 8
        rowSpacing: 6

        Repeater {
            model: [
                {
                    key: "minimumHz",
                    label: qsTr("From"),
                    unit: "Hz"
                },
                {
                    key: "maximumHz",
                    label: qsTr("To (0: no limit)"),
                    unit: "Hz"
                },
                {
                    key: "watchThreshold",
                    label: qsTr("Watch from"),
                    unit: editor.bridge.unit
                },
                {
                    key: "alarmThreshold",
                    label: qsTr("Alarm from"),
                    unit: editor.bridge.unit
                },
                {
                    key: "triggerFrames",
                    label: qsTr("Spectra to raise"),
                    unit: ""
                },
                {
                    key: "clearFrames",
                    label: qsTr("Spectra to clear"),
                    unit: ""
                }
            ]

            Column {
                id: entry

                required property var modelData

                width: (editor.width - 8) / 2
                spacing: 2

                Text {
                    width: parent.width
                    elide: Text.ElideRight
                    text: entry.modelData.label
                    textFormat: Text.PlainText
                    font: Theme.smallFont
                    color: Theme.textSecondary
                }
                NumberField {
                    objectName: "rule_" + entry.modelData.key
                    width: parent.width
                    value: editor.draft[entry.modelData.key] ?? 0
                    unit: entry.modelData.unit
                    to: 1e6
                    hint: entry.modelData.label
                    onEntered: number => editor.set(entry.modelData.key, number)
                }
            }
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
        objectName: "applyRule"
        primary: true
        text: qsTr("Use this rule")
        onClicked: {
            forceActiveFocus(); // makes the field being edited commit its number
            editor.problem = editor.bridge.tryAlarmRule(editor.draft);
            if (editor.problem === "")
                editor.done();
        }
    }
}
