pragma ComponentBehavior: Bound

import QtQuick
import KVCenter.Chart
import KVCenter.Controls
import KVCenter.Wave

/// The waveform dashboard of one device: a bar with play, the choice of charts and the rate, and the chosen charts in a
/// grid. One chart can be shown alone. Each chart keeps what it shows while it is not chosen.
Item {
    id: dashboard

    required property SensorDashboardBridge bridge
    required property ChartSaver saver
    property string maximizedType
    /// The chart that the bar describes and that keys go to: the last one with the focus.
    property WaveChart current
    readonly property var selectedTypes: bridge.selectedSensorTypes
    readonly property var shownTypes: selectedTypes.includes(maximizedType) ? [maximizedType] : selectedTypes
    readonly property int columns: shownTypes.length > 1 ? bridge.gridColumns : 1
    readonly property int gridRows: shownTypes.length > 1 ? bridge.gridRows : 1

    function chartItems(): var {
        const items = [];
        for (let i = 0; i < panes.count; ++i)
            items.push(panes.itemAt(i));
        return items;
    }

    Keys.onPressed: event => {
        event.accepted = true;
        if (event.key === Qt.Key_Space)
            bridge.togglePlaying();
        else if (current && current.visible && current.viewState.handleKey(event.key, event.modifiers))
            return;
        else if (event.key === Qt.Key_Escape && maximizedType !== "")
            maximizedType = "";
        else
            event.accepted = false;
    }
    focus: true

    ChartLink {
        id: charts

        objectName: "link"
        linked: dashboard.bridge.linked
    }
    Rectangle {
        id: bar

        width: parent.width
        height: barItems.height + 16
        color: Theme.surface

        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: 1
            color: Theme.line
        }
        Flow {
            id: barItems

            x: 12
            y: 8
            width: parent.width - (status.visible ? status.width : 0) - tools.width - 52
            spacing: 8

            ActionButton {
                objectName: "playButton"
                primary: true
                iconName: dashboard.bridge.playing ? "pause" : "play"
                text: dashboard.bridge.playing ? qsTr("Pause") : qsTr("Play")
                hint: dashboard.bridge.playing ? qsTr("Hold the picture; recordings go on") : qsTr("Continue with the newest samples")
                keys: qsTr("Space")
                onClicked: dashboard.bridge.togglePlaying()
            }
            Repeater {
                // A number, so that the chips stay, and one keeps the focus, when their states change.
                model: dashboard.bridge.sensorCount

                Chip {
                    required property int index
                    readonly property var paneState: dashboard.bridge.paneStates[index]

                    objectName: "chip_" + paneState.type
                    text: paneState.label
                    checked: paneState.selected
                    hint: checked ? qsTr("Hide this chart") : qsTr("Show this chart")
                    onClicked: {
                        dashboard.bridge.setSensorSelected(paneState.type, checked);
                        checked = Qt.binding(() => paneState.selected);
                    }
                }
            }
        }
        ChartBarTools {
            id: tools

            anchors {
                right: status.visible ? status.left : parent.right
                rightMargin: 16
                verticalCenter: parent.verticalCenter
            }
            link: charts
            markers: dashboard.bridge.markers
            onLinkRequested: linked => dashboard.bridge.linked = linked
        }
        Text {
            id: status

            visible: dashboard.width > Theme.font.pointSize * 80
            anchors.right: parent.right
            anchors.rightMargin: 16
            anchors.verticalCenter: parent.verticalCenter
            text: dashboard.current && dashboard.selectedTypes.length > 0 ? dashboard.current.viewState.rangeText : ""
            textFormat: Text.PlainText
            font: Theme.fixedSmallFont
            color: Theme.textSecondary
        }
    }

    MarkerPanel {
        id: markerPanel

        objectName: "markerPanel"
        anchors {
            top: bar.bottom
            bottom: message.top
            right: parent.right
            margins: 8
        }
        visible: tools.listing
        markers: dashboard.bridge.markers
        onPicked: time => {
            for (const chart of charts.linked ? [dashboard.current] : dashboard.chartItems())
                chart?.viewState.showTime(time);
        }
        onDone: dashboard.current?.forceActiveFocus()
    }
    Item {
        id: grid

        readonly property int gap: 8

        anchors {
            left: parent.left
            right: markerPanel.visible ? markerPanel.left : parent.right
            top: bar.bottom
            bottom: message.top
            margins: 8
        }

        Repeater {
            id: panes

            model: dashboard.bridge.sensorTypes

            WaveChart {
                id: pane

                required property string modelData
                readonly property int place: dashboard.shownTypes.indexOf(modelData)
                readonly property real cellWidth: (grid.width - grid.gap * (dashboard.columns - 1)) / dashboard.columns
                readonly property real cellHeight: (grid.height - grid.gap * (dashboard.gridRows - 1)) / dashboard.gridRows

                objectName: "chart_" + modelData
                visible: place >= 0
                x: Math.round((Math.max(0, place) % dashboard.columns) * (cellWidth + grid.gap))
                y: Math.round(Math.floor(Math.max(0, place) / dashboard.columns) * (cellHeight + grid.gap))
                width: Math.round(cellWidth)
                height: Math.round(cellHeight)
                bridge: dashboard.bridge.backend(modelData)
                link: charts
                markers: dashboard.bridge.markers
                onMarkerAdded: row => {
                    tools.listing = true;
                    Qt.callLater(markerPanel.edit, row); // when it has been laid out
                }
                maximized: dashboard.maximizedType === modelData
                canMaximize: maximized || dashboard.shownTypes.length > 1
                onTouched: dashboard.current = pane
                Component.onCompleted: {
                    if (!dashboard.current)
                        dashboard.current = pane;
                }
                onPictureRequested: dashboard.saver.savePicture(viewState, pane)
                onDataRequested: dashboard.saver.saveData(viewState)
                onMaximizeRequested: dashboard.maximizedType = maximized ? "" : modelData
            }
        }
        EmptyState {
            objectName: "noChart"
            anchors.centerIn: parent
            width: parent.width - 40
            visible: dashboard.bridge.selectedCount === 0
            text: qsTr("No chart is chosen")
            detail: qsTr("Choose above what to show.")
        }
    }

    SavePanel {
        id: savePanel

        objectName: "savePanel"
        x: parent.width - width - 8
        y: bar.height
        visible: tools.saving
        saver: dashboard.saver
        onAboutToSave: savePanel.charts = dashboard.chartItems().filter(chart => chart.visible)
    }
    MessageRow {
        id: message

        anchors.bottom: parent.bottom
        width: parent.width
        text: dashboard.saver.message
        failed: dashboard.saver.failed
        onDismissed: dashboard.saver.clearMessage()
    }
}
