pragma ComponentBehavior: Bound

import QtQuick
import KVCenter.Controls
import KVCenter.Fft

/// The alarm: status, what it means and what to do, its thresholds and events; preset or custom rule.
PanelSection {
    id: panel

    required property FftChartBridge bridge
    readonly property int severity: bridge.alarmSeverityLevel
    readonly property color ink: [Theme.good, Theme.warning, Theme.bad][severity]

    title: qsTr("Alarm")
    aside: Rectangle {
        width: statusText.implicitWidth + 20
        height: statusText.implicitHeight + 6
        radius: height / 2
        color: [Theme.goodSoft, Theme.warningSoft, Theme.badSoft][panel.severity]
        border.width: 1
        border.color: panel.ink

        Text {
            id: statusText

            objectName: "alarmStatus"
            anchors.centerIn: parent
            text: panel.bridge.alarmStatusLabel
            textFormat: Text.PlainText
            font: Theme.strongFont
            color: panel.ink
        }
    }

    Flow {
        width: parent.width
        spacing: 4

        Repeater {
            model: panel.bridge.alarmPresetNames

            Chip {
                required property int index
                required property string modelData

                objectName: "preset_" + index
                text: modelData
                horizontalPadding: 9
                checkable: false
                checked: panel.bridge.alarmPresetIndex === index && !panel.bridge.hasCustomAlarmRule
                hint: qsTr("Judge the spectra by this preset")
                onClicked: panel.bridge.alarmPresetIndex = index
            }
        }
        Chip {
            objectName: "customRule"
            text: qsTr("Custom…")
            horizontalPadding: 9
            checkable: false
            checked: panel.bridge.hasCustomAlarmRule
            hint: qsTr("Set thresholds and frequencies yourself")
            onClicked: editor.visible = !editor.visible
        }
    }
    AlarmRuleEditor {
        id: editor

        objectName: "ruleEditor"
        width: parent.width
        visible: false
        bridge: panel.bridge
        onDone: visible = false
    }
    Text {
        width: parent.width
        wrapMode: Text.Wrap
        text: panel.bridge.alarmHeadline
        textFormat: Text.PlainText
        font: Theme.strongFont
        color: Theme.text
    }
    Text {
        width: parent.width
        wrapMode: Text.Wrap
        text: panel.bridge.alarmMeaning
        textFormat: Text.PlainText
        font: Theme.font
        color: Theme.text
    }
    Text {
        width: parent.width
        wrapMode: Text.Wrap
        text: panel.bridge.alarmRecommendedAction
        textFormat: Text.PlainText
        font: Theme.font
        color: Theme.accentText
    }
    Text {
        width: parent.width
        wrapMode: Text.Wrap
        text: panel.bridge.alarmThresholdSummary
        textFormat: Text.PlainText
        font: Theme.smallFont
        color: Theme.textSecondary
    }
    Column {
        width: parent.width
        visible: panel.bridge.alarmTimeline.length > 0

        Repeater {
            model: panel.bridge.alarmTimeline

            Row {
                id: event

                required property var modelData

                spacing: 6

                Rectangle {
                    anchors.verticalCenter: parent.verticalCenter
                    width: 8
                    height: 8
                    radius: 4
                    color: event.modelData.active ? Theme.bad : Theme.good
                }
                Text {
                    text: event.modelData.time
                    textFormat: Text.PlainText
                    font: Theme.fixedSmallFont
                    color: Theme.text
                }
                Text {
                    text: event.modelData.text
                    textFormat: Text.PlainText
                    font: Theme.fixedSmallFont
                    color: Theme.textSecondary
                }
            }
        }
    }
}
