pragma ComponentBehavior: Bound

import QtQuick
import KVCenter.Controls
import KVCenter.Fft

/// The spectrum view: the chart, and beside it the panels of the analysis. The window sets the properties that are not
/// bound: whether it is `running`, how much of a block has arrived, from 0 to 1, whether the stream is `stale`, and the
/// `guide`.
Item {
    id: view

    required property FftChartBridge bridge
    required property FftFiles files
    property bool running: false
    property real blockFill: 1
    property bool stale: false
    property string guide

    readonly property int gap: 8

    SpectrumChart {
        id: chart

        objectName: "chart"
        anchors {
            left: parent.left
            right: panels.left
            top: parent.top
            bottom: message.top
            margins: view.gap
        }
        bridge: view.bridge
        files: view.files
        guide: view.guide
        blockFill: view.blockFill
        stale: view.stale
        emptyText: view.running ? qsTr("Waiting for samples") : qsTr("No spectrum yet")
        emptyDetail: view.running ? qsTr("The selected node is not sending any at the moment.") : qsTr("Press Start above.")
        focus: true
    }

    Flickable {
        id: panels

        objectName: "panels"
        anchors {
            right: parent.right
            top: parent.top
            bottom: message.top
            topMargin: view.gap
            bottomMargin: view.gap
            rightMargin: view.gap
        }
        width: Math.round(Math.max(324, Math.min(view.width * 0.36, Theme.font.pointSize * 34)))
        contentHeight: column.height
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        interactive: contentHeight > height

        Column {
            id: column

            width: panels.width - (bar.visible ? bar.width : 0)
            spacing: view.gap

            AlarmPanel {
                width: parent.width
                bridge: view.bridge
            }
            BandPanel {
                width: parent.width
                bridge: view.bridge
            }
            PanelSection {
                width: parent.width
                title: qsTr("Quality")

                Repeater {
                    // The summary consists of several parts.
                    model: view.bridge.healthSummary.split(" | ")

                    Text {
                        required property string modelData

                        width: column.width - 28
                        wrapMode: Text.WordWrap
                        text: modelData
                        textFormat: Text.PlainText
                        font: Theme.fixedSmallFont
                        color: Theme.textSecondary
                    }
                }
            }
        }
        SlimScrollBar {
            id: bar

            parent: panels
            anchors.right: parent.right
            height: parent.height
            orientation: Qt.Vertical
            size: panels.visibleArea.heightRatio
            position: panels.visibleArea.yPosition
            onPositionChanged: {
                if (pressed)
                    panels.contentY = position * panels.contentHeight;
            }
        }
    }

    MessageRow {
        id: message

        anchors.bottom: parent.bottom
        width: parent.width
        text: view.files.message
        failed: view.files.failed
        onDismissed: view.files.clearMessage()
    }

    Item {
        anchors.fill: parent

        PointHandler {
            acceptedButtons: Qt.AllButtons
            // The window around the view has the focus; a click in here has to fetch it, or fields do not respond to
            // keys.
            onActiveChanged: {
                if (active)
                    view.Window.window.requestActivate();
            }
        }
    }
}
