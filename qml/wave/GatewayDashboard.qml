pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import KVCenter.Chart
import KVCenter.Controls
import KVCenter.Wave

/// The dashboard of a wireless gateway: a bar with play and the choice of charts, the nodes on the left, the charts of
/// the chosen nodes on the right.
Item {
    id: dashboard

    required property GatewayDashboardBridge bridge
    required property ChartSaver saver
    readonly property var panes: bridge.panes
    property int maximizedSlot: -1
    readonly property var shownPanes: panes.some(pane => pane.slot === maximizedSlot) ? panes.filter(pane => pane.slot === maximizedSlot) : panes

    focus: true
    Keys.onPressed: event => {
        event.accepted = true;
        if (event.key === Qt.Key_Space)
            bridge.setPlaying(!bridge.playing);
        else if (event.key === Qt.Key_Escape && maximizedSlot >= 0)
            maximizedSlot = -1;
        else if (event.key === Qt.Key_PageDown || event.key === Qt.Key_PageUp)
            charts.scroll((event.key === Qt.Key_PageDown ? 1 : -1) * charts.height * 0.8);
        else
            event.accepted = false;
    }

    ChartLink {
        id: chartLink

        objectName: "link"
        linked: dashboard.bridge.linked
    }
    FontMetrics {
        id: metrics

        font: Theme.font
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
            width: parent.width - status.width - tools.width - 52
            spacing: 8

            ActionButton {
                objectName: "playButton"
                primary: true
                iconName: dashboard.bridge.playing ? "pause" : "play"
                text: dashboard.bridge.playing ? qsTr("Pause") : qsTr("Play")
                hint: dashboard.bridge.playing ? qsTr("Freeze the charts; the table keeps updating") : qsTr("Continue with the newest samples")
                keys: qsTr("Space")
                onClicked: dashboard.bridge.setPlaying(!dashboard.bridge.playing)
            }
            Chip {
                objectName: "overlayChip"
                text: qsTr("Overlay")
                checked: dashboard.bridge.overlaid
                hint: checked ? qsTr("Show each node in a chart of its own") : qsTr("Show one quantity of all chosen nodes in one plot")
                onClicked: {
                    dashboard.bridge.overlaid = checked;
                    checked = Qt.binding(() => dashboard.bridge.overlaid);
                }
            }
            Repeater {
                // A number, so that the chips stay when their states change.
                model: dashboard.bridge.typeStates.length

                Chip {
                    required property int index
                    readonly property var typeState: dashboard.bridge.typeStates[index]

                    objectName: "chip_" + typeState.type
                    text: typeState.label
                    checked: typeState.selected
                    hint: checked ? qsTr("Hide these charts") : qsTr("Show these charts of the chosen nodes")
                    onClicked: {
                        dashboard.bridge.setTypeSelected(typeState.type, checked);
                        checked = Qt.binding(() => typeState.selected);
                    }
                }
            }
        }
        ChartBarTools {
            id: tools

            anchors {
                right: status.left
                rightMargin: 16
                verticalCenter: parent.verticalCenter
            }
            link: chartLink
            markers: dashboard.bridge.markers
            onLinkRequested: linked => dashboard.bridge.linked = linked
        }
        Text {
            id: status

            anchors.right: parent.right
            anchors.rightMargin: 16
            anchors.verticalCenter: parent.verticalCenter
            text: dashboard.bridge.nodeCount === 0 ? "" : dashboard.bridge.ended ? dashboard.bridge.summary : qsTr("%1 · %2 Hz").arg(dashboard.bridge.summary).arg(dashboard.bridge.frameRate)
            textFormat: Text.PlainText
            font: Theme.fixedSmallFont
            color: Theme.textSecondary
        }
    }

    Item {
        id: work

        anchors {
            left: parent.left
            right: parent.right
            top: bar.bottom
            bottom: message.top
            margins: 8
        }
        visible: dashboard.bridge.nodeCount > 0
        onVisibleChanged: if (visible)
            table.forceActiveFocus()

        GatewayNodeTable {
            id: table

            width: implicitWidth
            height: parent.height
            bridge: dashboard.bridge
        }

        MarkerPanel {
            id: markerPanel

            objectName: "markerPanel"
            anchors.right: parent.right
            height: parent.height
            visible: tools.listing
            markers: dashboard.bridge.markers
            onPicked: time => {
                for (const pane of charts.panes())
                    pane.viewState?.showTime(time);
            }
            onDone: table.forceActiveFocus()
        }

        Flickable {
            id: charts

            function panes(): var {
                const items = [];
                for (let i = 0; i < paneRepeater.count; ++i) {
                    if (paneRepeater.itemAt(i).visible)
                        items.push(paneRepeater.itemAt(i));
                }
                return items;
            }

            function scroll(distance: real) {
                contentY = Math.max(0, Math.min(contentY + distance, contentHeight - height));
            }

            readonly property int gap: 8
            readonly property int columns: dashboard.shownPanes.length > 1 ? dashboard.bridge.paneColumns : 1
            readonly property int rows: Math.ceil(dashboard.shownPanes.length / columns)
            readonly property int barWidth: contentHeight > height + 1 ? 12 : 0
            readonly property real cellWidth: (width - barWidth - gap * (columns - 1)) / columns
            readonly property real cellHeight: Math.max(metrics.height * 11, (height - gap * (rows - 1)) / rows)

            anchors {
                left: table.right
                leftMargin: 8
                right: markerPanel.visible ? markerPanel.left : parent.right
                rightMargin: markerPanel.visible ? 8 : 0
                top: parent.top
                bottom: parent.bottom
            }
            // Dragging belongs to the charts, and the wheel over their plots.
            interactive: false
            onContentHeightChanged: scroll(0)
            clip: true
            contentHeight: Math.max(0, rows * (cellHeight + gap) - gap)
            T.ScrollBar.vertical: SlimScrollBar {
                x: charts.width - width
            }

            WheelHandler {
                onWheel: event => charts.scroll(-event.angleDelta.y)
            }

            Repeater {
                id: paneRepeater

                model: dashboard.bridge.maxPaneCount

                GatewayPane {
                    required property int index
                    readonly property int place: dashboard.shownPanes.findIndex(pane => pane.slot === index)

                    slot: index
                    bridge: dashboard.panes.find(pane => pane.slot === index)?.backend ?? null
                    overlay: dashboard.panes.find(pane => pane.slot === index)?.overlay ?? null
                    playing: dashboard.bridge.playing
                    saver: dashboard.saver
                    link: chartLink
                    markers: dashboard.bridge.markers
                    onMarkerAdded: row => {
                        tools.listing = true;
                        Qt.callLater(markerPanel.edit, row); // when it has been laid out
                    }
                    maximized: dashboard.maximizedSlot === index
                    canMaximize: maximized || dashboard.shownPanes.length > 1
                    // Charts that have been scrolled out of view cost nothing.
                    visible: place >= 0 && y + height > charts.contentY && y < charts.contentY + charts.height
                    x: Math.round((place % charts.columns) * (charts.cellWidth + charts.gap))
                    y: Math.round(Math.floor(place / charts.columns) * (charts.cellHeight + charts.gap))
                    width: Math.round(charts.cellWidth)
                    height: Math.round(charts.cellHeight)
                    onMaximizeRequested: dashboard.maximizedSlot = maximized ? -1 : index
                }
            }
        }
        EmptyState {
            objectName: "noChart"
            x: charts.x
            width: charts.width
            anchors.verticalCenter: parent.verticalCenter
            visible: dashboard.panes.length === 0
            text: dashboard.bridge.chosenNodes.length > 0 ? qsTr("No chart is chosen") : qsTr("No node is chosen")
            detail: dashboard.bridge.chosenNodes.length > 0 ? qsTr("Choose above what to show.") : qsTr("Click a node in the table to see its waveforms. Up to %1 nodes are shown together.").arg(dashboard.bridge.maxChosenNodes)
        }
    }

    EmptyState {
        objectName: "noNode"
        anchors.centerIn: parent
        width: parent.width - 40
        visible: !work.visible
        text: qsTr("Waiting for samples")
        detail: qsTr("Connect a wireless gateway; its nodes appear here.")
    }

    SavePanel {
        id: savePanel

        objectName: "savePanel"
        x: parent.width - width - 8
        y: bar.height
        visible: tools.saving
        saver: dashboard.saver
        onAboutToSave: savePanel.charts = charts.panes()
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
