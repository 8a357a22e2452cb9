pragma ComponentBehavior: Bound

import QtQuick
import KVCenter.Chart
import KVCenter.Wave

/// A place for a chart that is there only while it has a bridge.
Item {
    id: pane

    required property int slot
    required property WaveChartBridge bridge
    required property ChartSaver saver
    required property ChartLink link
    required property bool maximized
    required property bool canMaximize

    signal maximizeRequested

    Repeater {
        // The chart keeps its bridge to its own end.
        model: pane.bridge !== null ? [pane.bridge] : []

        WaveChart {
            id: chart

            required property WaveChartBridge modelData

            objectName: "chart_" + pane.slot
            anchors.fill: parent
            bridge: modelData
            link: pane.link
            maximized: pane.maximized
            canMaximize: pane.canMaximize
            onPictureRequested: pane.saver.savePicture(viewState, chart)
            onDataRequested: pane.saver.saveData(viewState)
            onMaximizeRequested: pane.maximizeRequested()
        }
    }
}
