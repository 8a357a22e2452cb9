pragma ComponentBehavior: Bound

import QtQuick
import KVCenter.Chart
import KVCenter.Controls
import KVCenter.Wave

/// The chart of one sensor type of one device, with low-pass filter and trigger. Give it a `bridge`.
TimeChart {
    id: chart

    property WaveChartBridge bridge: null

    playing: bridge === null || bridge.playing
    viewState: WaveViewState {
        id: view

        bridge: chart.bridge
        active: chart.visible
        link: chart.link
        markers: chart.markers
    }
    extraTools: [
        ActionButton {
            id: filterButton

            objectName: "filterButton"
            bare: true
            visible: !chart.narrow && chart.bridge !== null && chart.bridge.hasFilter
            checkable: true
            iconName: "filter"
            hint: qsTr("Low-pass filter")
            // A filter that is on stays visible.
            onClicked: checked = checked || chart.bridge.filterOn
            Component.onCompleted: checked = chart.bridge !== null && chart.bridge.filterOn
        },
        ActionButton {
            id: triggerButton

            objectName: "triggerButton"
            bare: true
            visible: !chart.narrow
            checkable: true
            iconName: "trigger"
            hint: qsTr("Trigger")
        }
    ]
    extraRows: [
        ChartFilterRow {
            width: parent.width
            visible: (filterButton.checked && filterButton.visible) || (chart.bridge !== null && chart.bridge.filterOn)
            bridge: chart.bridge
        },
        Repeater {
            model: chart.bridge !== null && (triggerButton.checked || chart.bridge.trigger.on) ? [chart.bridge] : []

            TriggerRow {
                required property WaveChartBridge modelData

                objectName: "triggerRow"
                width: parent?.width ?? 0
                viewState: view
                bridge: modelData
            }
        }
    ]
    overlay: StreamMarks {
        anchors.fill: parent
        plot: chart.plot
        viewState: view
    }
    handles: Repeater {
        model: chart.bridge !== null && chart.bridge.trigger.on ? [chart.bridge.trigger] : []

        TriggerLevel {
            required property WaveTrigger modelData

            anchors.fill: parent
            plot: chart.plot
            trigger: modelData
        }
    }
}
