pragma ComponentBehavior: Bound

import QtQuick
import KVCenter.Chart
import KVCenter.Wave

/// A place for a chart that exists only while it has a bridge or an overlay.
Item {
    id: pane

    required property int slot
    required property WaveChartBridge bridge
    required property NodeOverlay overlay
    required property ChartSaver saver
    required property ChartLink link
    required property MarkerList markers
    required property bool playing
    required property bool maximized
    required property bool canMaximize

    signal maximizeRequested
    signal markerAdded(int row)

    readonly property TimeViewState viewState: chartRepeater.count > 0 ? (chartRepeater.itemAt(0) as WaveChart)?.viewState ?? null : overlayRepeater.count > 0 ? (overlayRepeater.itemAt(0) as OverlayChart)?.viewState ?? null : null

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
    Repeater {
        id: overlayRepeater

        model: pane.overlay !== null ? [pane.overlay] : []

        OverlayChart {
            id: overlayChart

            required property NodeOverlay modelData

            objectName: "overlay_" + modelData.sensorType
            anchors.fill: parent
            nodes: modelData
            playing: pane.playing
            link: pane.link
            markers: pane.markers
            onMarkerAdded: row => pane.markerAdded(row)
            maximized: pane.maximized
            canMaximize: pane.canMaximize
            onPictureRequested: pane.saver.savePicture(viewState, overlayChart)
            onDataRequested: pane.saver.saveData(viewState)
            onMaximizeRequested: pane.maximizeRequested()
        }
    }
}
