import QtQuick
import KVCenter.Wave

/// A place for a chart that is there only while it has a bridge.
Loader {
    id: pane

    required property int slot
    required property WaveChartBridge bridge
    required property ChartSaver saver
    required property bool maximized
    required property bool canMaximize

    signal maximizeRequested

    active: bridge !== null
    sourceComponent: WaveChart {
        id: chart

        objectName: "chart_" + pane.slot
        bridge: pane.bridge
        maximized: pane.maximized
        canMaximize: pane.canMaximize
        onPictureRequested: pane.saver.savePicture(viewState, chart)
        onDataRequested: pane.saver.saveData(viewState)
        onMaximizeRequested: pane.maximizeRequested()
    }
}
