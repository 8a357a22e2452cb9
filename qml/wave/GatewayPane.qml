pragma ComponentBehavior: Bound

import QtQuick
import KVCenter.Chart
import KVCenter.Wave

/// A place for a chart that exists only while it has a bridge.
Item {
    id: pane

    required property int slot
    required property WaveChartBridge bridge
    required property ChartSaver saver
    required property ChartLink link
    required property MarkerList markers
    required property bool maximized
    required property bool canMaximize

    signal maximizeRequested
    signal markerAdded(int row)

    readonly property WaveViewState viewState: chartRepeater.count > 0 ? (chartRepeater.itemAt(0) as WaveChart)?.viewState ?? null : null

    Repeater {
        id: chartRepeater

        // The chart keeps its bridge until it is destroyed.
        model: pane.bridge !== null ? [pane.bridge] : []

        WaveChart {
            id: chart

            required property WaveChartBridge modelData

            objectName: "chart_" + pane.slot
            anchors.fill: parent
            bridge: modelData
            link: pane.link
            markers: pane.markers
            onMarkerAdded: row => pane.markerAdded(row)
            maximized: pane.maximized
            canMaximize: pane.canMaximize
            onPictureRequested: pane.saver.savePicture(viewState, chart)
            onDataRequested: pane.saver.saveData(viewState)
            onMaximizeRequested: pane.maximizeRequested()
        }
    }
}
