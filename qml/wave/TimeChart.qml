pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import KVCenter.Chart
import KVCenter.Controls
import KVCenter.Wave

/// A chart over time as a card: title, legend with live values, plot with axes, crosshair and cursors, and its own
/// buttons. The window around it answers the requests: pictureRequested() and dataRequested() with a file dialog,
/// maximizeRequested() by its layout. What it shows is in `viewState`. A kind of chart adds buttons (`extraTools`), rows
/// under the legend (`extraRows`), and what the plot frame takes.
FocusScope {
    id: chart

    required property TimeViewState viewState
    property bool playing: true
    /// A sample of each line stands in the legend, with the short name.
    property bool showsLines: false
    property ChartLink link: null
    property MarkerList markers: null
    property bool maximized: false
    property bool canMaximize: true
    readonly property string emptyText: playing ? qsTr("Waiting for samples") : qsTr("Paused")
    readonly property alias plot: frame
    property alias extraTools: toolSlot.data
    property alias extraRows: rowSlot.data
    property alias overlay: frame.overlay
    property alias handles: frame.handles
    /// Too low for live values beside the names, and too narrow for all buttons.
    readonly property bool low: height < Theme.font.pointSize * 24
    readonly property bool narrow: width < Theme.font.pointSize * 36

    signal pictureRequested
    signal dataRequested
    signal maximizeRequested
    /// This chart got the focus: by the pointer, a click or the Tab key.
    signal touched
    /// The M key set a marker.
    signal markerAdded(int row)

    activeFocusOnTab: true
    Accessible.role: Accessible.Chart
    Accessible.name: chart.viewState.name
    onActiveFocusChanged: {
        if (activeFocus)
            touched();
    }
    Keys.onPressed: event => {
        event.accepted = chart.viewState.handleKey(event.key, event.modifiers);
        if (event.key === Qt.Key_M && event.modifiers === Qt.NoModifier && markers !== null) {
            const row = chart.viewState.addMarker();
            event.accepted = true;
            if (row >= 0)
                markerAdded(row);
        }
    }

    HoverHandler {
        // Keys go to the chart under the pointer, but never take the focus from a field being edited, nor from a button
        // that was reached by keys: it may have moved the charts below a resting pointer.
        onHoveredChanged: {
            const item = chart.Window.activeFocusItem;
            if (hovered && !(item instanceof TextInput) && !(item as T.AbstractButton)?.visualFocus)
                chart.forceActiveFocus();
        }
    }
    CardFrame {
        anchors.fill: parent
        lineColor: chart.activeFocus ? Theme.accent : Theme.line
    }

    Item {
        id: header

        anchors {
            left: parent.left
            right: parent.right
            top: parent.top
            leftMargin: 14
            rightMargin: 8
            topMargin: 6
        }
        height: tools.height

        Text {
            id: titleText

            anchors.verticalCenter: parent.verticalCenter
            width: Math.max(0, Math.min(implicitWidth, parent.width - tools.width - unitText.width - 12))
            elide: Text.ElideRight
            text: chart.viewState.name
            textFormat: Text.PlainText
            font: Theme.strongFont
            color: Theme.text
        }
        Text {
            id: unitText

            anchors.left: titleText.right
            anchors.leftMargin: 6
            anchors.baseline: titleText.baseline
            text: chart.viewState.unit
            textFormat: Text.PlainText
            font: Theme.font
            color: Theme.textSecondary
        }
        Row {
            id: tools

            anchors.right: parent.right
            spacing: 2

            ActionButton {
                bare: true
                visible: !chart.viewState.following
                checked: true
                text: qsTr("Live")
                objectName: "liveButton"
                hint: qsTr("Back to the newest samples")
                keys: qsTr("End")
                onClicked: chart.viewState.goLive()
            }
            Row {
                id: toolSlot

                spacing: tools.spacing
            }
            ActionButton {
                id: rangeButton

                objectName: "rangeButton"
                bare: true
                visible: !chart.narrow
                checkable: true
                iconName: "range"
                hint: qsTr("Span and limits of the axes")
            }
            ActionButton {
                id: statisticsButton

                objectName: "statisticsButton"
                bare: true
                visible: !chart.narrow
                checkable: true
                iconName: "statistics"
                hint: qsTr("Statistics")
            }
            ActionButton {
                objectName: "cursorsButton"
                bare: true
                visible: !chart.narrow
                enabled: chart.viewState.hasData
                checked: chart.viewState.hasCursors
                iconName: "cursors"
                hint: chart.viewState.hasCursors ? qsTr("Remove the measuring cursors") : qsTr("Measure between two cursors")
                keys: chart.viewState.hasCursors ? qsTr("Esc") : qsTr("A, B")
                onClicked: chart.viewState.toggleCursors()
            }
            ActionButton {
                bare: true
                visible: !chart.narrow
                iconName: "reset"
                hint: qsTr("Reset the view")
                keys: qsTr("Home")
                onClicked: chart.viewState.reset()
            }
            ActionButton {
                bare: true
                objectName: "savePicture"
                visible: !chart.narrow
                enabled: chart.viewState.hasData
                iconName: "picture"
                hint: qsTr("Save a picture of the chart")
                onClicked: chart.pictureRequested()
            }
            ActionButton {
                bare: true
                objectName: "saveData"
                visible: !chart.narrow
                enabled: chart.viewState.hasData
                iconName: "save"
                hint: qsTr("Save the visible samples")
                onClicked: chart.dataRequested()
            }
            ActionButton {
                bare: true
                objectName: "maximizeButton"
                visible: chart.canMaximize
                iconName: chart.maximized ? "restore" : "maximize"
                hint: chart.maximized ? qsTr("Show all charts") : qsTr("Show this chart alone")
                onClicked: chart.maximizeRequested()
            }
        }
    }

    Column {
        id: rows

        anchors {
            left: parent.left
            right: parent.right
            top: header.bottom
            leftMargin: 14
            rightMargin: 14
            topMargin: 2
        }
        spacing: 4

        Flow {
            width: parent.width

            Repeater {
                model: chart.viewState.seriesNames

                ChartLegendEntry {
                    required property int index
                    required property string modelData

                    objectName: "legend_" + modelData
                    name: chart.showsLines ? chart.viewState.seriesLabels[index] ?? "" : modelData
                    fullName: modelData
                    lineShown: chart.showsLines
                    dashed: chart.viewState.seriesDashes[index] ?? false
                    color: chart.viewState.seriesColors[index] ?? Theme.text
                    shown: chart.viewState.visibleSeries[index] ?? true
                    value: chart.low ? "" : chart.viewState.liveTexts[index] ?? ""
                    onClicked: chart.viewState.setSeriesVisible(index, !shown)
                }
            }
        }
        Column {
            id: rowSlot

            width: parent.width
            spacing: parent.spacing
        }
        ChartRangeRow {
            objectName: "rangeRow"
            width: parent.width
            visible: rangeButton.checked && rangeButton.visible
            viewState: chart.viewState
            xUnit: "s"
            yUnit: chart.viewState.unit
            presets: Repeater {
                model: chart.viewState.spanPresets

                Chip {
                    required property double modelData

                    objectName: "span_" + modelData
                    text: qsTr("%1 s").arg(modelData)
                    implicitHeight: Math.round(font.pointSize * 2.4 + 2)
                    horizontalPadding: 8
                    checkable: false
                    checked: Math.abs(chart.viewState.span - modelData) < 0.001
                    hint: qsTr("Show %1 seconds").arg(modelData)
                    onClicked: chart.viewState.span = modelData
                }
            }
        }
        ChartMeasurement {
            width: parent.width
            viewState: chart.viewState
        }
        // In a low chart the plot needs the room: the button opens the table.
        MeasurePanel {
            objectName: "measurePanel"
            width: parent.width
            maximumHeight: Math.max(30, chart.height * 0.3)
            viewState: chart.viewState
            measures.active: chart.visible && ((chart.viewState.hasCursors && !chart.low) || (statisticsButton.checked && statisticsButton.visible))
        }
    }

    ChartPlot {
        id: frame

        anchors {
            left: parent.left
            right: parent.right
            top: rows.bottom
            bottom: parent.bottom
            leftMargin: 10
            rightMargin: 14
            topMargin: 6
            bottomMargin: 6
        }
        viewState: chart.viewState
        xUnit: "s"
        onPressed: chart.forceActiveFocus()
    }

    // Over the frozen lines, so that the title keeps its room.
    PlotMark {
        objectName: "staleMark"
        anchors {
            top: rows.bottom
            right: parent.right
            topMargin: 14
            rightMargin: 22
        }
        visible: chart.viewState.stale
        text: qsTr("No new samples")
        ink: Theme.warning
    }

    EmptyState {
        anchors.centerIn: parent
        anchors.verticalCenterOffset: 20
        width: parent.width - 40
        visible: !chart.viewState.hasData
        text: chart.emptyText
    }
}
