pragma ComponentBehavior: Bound

import QtQuick
import KVCenter.Controls
import KVCenter.Wave

/// The trigger of a chart: what it waits for and what it does then.
Flow {
    id: row

    required property WaveViewState viewState
    required property WaveChartBridge bridge
    readonly property WaveTrigger trigger: bridge.trigger

    spacing: 6

    component Choice: Chip {
        implicitHeight: Math.round(font.pointSize * 2.4 + 2)
        horizontalPadding: 8
        checkable: false
    }

    SwitchBox {
        objectName: "triggerSwitch"
        text: qsTr("Trigger")
        checked: row.trigger.on
        onToggled: {
            row.viewState.setTriggerOn(checked);
            checked = Qt.binding(() => row.trigger.on);
        }
    }
    Repeater {
        model: row.bridge.channelNames

        Choice {
            required property int index
            required property string modelData

            text: modelData
            checked: row.trigger.channel === index
            hint: qsTr("Watch %1").arg(modelData)
            onClicked: row.trigger.channel = index
        }
    }
    Repeater {
        model: [
            {
                edge: WaveTrigger.Rising,
                text: "↑",
                hint: qsTr("Rising through the level")
            },
            {
                edge: WaveTrigger.Falling,
                text: "↓",
                hint: qsTr("Falling through the level")
            },
            {
                edge: WaveTrigger.Either,
                text: "↕",
                hint: qsTr("Crossing the level either way")
            },
            {
                edge: WaveTrigger.OutsideBand,
                text: qsTr("Band"),
                hint: qsTr("Leaving the band between two levels")
            }
        ]

        Choice {
            required property var modelData

            objectName: "edge_" + modelData.edge
            text: modelData.text
            Accessible.name: modelData.hint
            checked: row.trigger.edge === modelData.edge
            hint: modelData.hint
            onClicked: row.trigger.edge = modelData.edge
        }
    }
    NumberField {
        objectName: "triggerLevel"
        implicitWidth: Math.round(font.pointSize * 7)
        value: Number(row.trigger.level.toPrecision(6))
        from: -1e30
        to: 1e30
        unit: row.viewState.unit
        hint: qsTr("Trigger level; drag its line to change it")
        onEntered: number => row.trigger.level = number
    }
    NumberField {
        visible: row.trigger.edge === WaveTrigger.OutsideBand
        implicitWidth: Math.round(font.pointSize * 7)
        value: Number(row.trigger.bandEnd.toPrecision(6))
        from: -1e30
        to: 1e30
        unit: row.viewState.unit
        hint: qsTr("Other end of the band")
        onEntered: number => row.trigger.bandEnd = number
    }
    NumberField {
        objectName: "preShare"
        implicitWidth: Math.round(font.pointSize * 6)
        value: Math.round(row.trigger.preShare * 100)
        from: 0
        to: 100
        unit: "%"
        hint: qsTr("Share of the picture before the event")
        onEntered: number => row.trigger.preShare = number / 100
    }
    Repeater {
        model: [
            {
                mode: WaveTrigger.Auto,
                text: qsTr("Auto"),
                hint: qsTr("Run live while nothing happens")
            },
            {
                mode: WaveTrigger.Normal,
                text: qsTr("Normal"),
                hint: qsTr("Hold each event until the next")
            },
            {
                mode: WaveTrigger.Single,
                text: qsTr("Single"),
                hint: qsTr("Hold the first event")
            }
        ]

        Choice {
            required property var modelData

            objectName: "mode_" + modelData.mode
            text: modelData.text
            checked: row.trigger.mode === modelData.mode
            hint: modelData.hint
            onClicked: row.trigger.mode = modelData.mode
        }
    }
    SwitchBox {
        objectName: "markCatches"
        text: qsTr("Set a marker")
        hint: qsTr("Mark each event that was caught")
        checked: row.viewState.marksCatches
        onToggled: row.viewState.marksCatches = checked
    }
    SwitchBox {
        objectName: "recordCatches"
        text: qsTr("Record")
        hint: qsTr("Start a recording with the event, with the last folder and name")
        checked: row.trigger.records
        onToggled: row.trigger.records = checked
    }
    Text {
        objectName: "triggerState"
        topPadding: 4
        text: row.trigger.stateText
        textFormat: Text.PlainText
        font: Theme.smallFont
        color: Theme.textSecondary
    }
    ActionButton {
        objectName: "releaseButton"
        bare: true
        visible: row.bridge.holds
        checked: true
        text: qsTr("Release")
        hint: qsTr("Back to the live samples; wait for the next event")
        onClicked: row.bridge.release()
    }
}
