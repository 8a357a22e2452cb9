pragma ComponentBehavior: Bound

import QtQuick
import KVCenter.Chart
import KVCenter.Controls
import KVCenter.Wave

/// One quantity of all chosen nodes in one plot. Give it an `overlay`.
TimeChart {
    id: chart

    property NodeOverlay nodes: null

    showsLines: true
    viewState: OverlayViewState {
        overlay: chart.nodes
        active: chart.visible
        link: chart.link
        markers: chart.markers
    }
    extraTools: Repeater {
        model: chart.nodes !== null && chart.nodes.channelNames.length > 1 ? chart.nodes.channelNames : []

        Chip {
            required property int index
            required property string modelData

            objectName: "channel_" + modelData
            text: modelData
            implicitHeight: Math.round(font.pointSize * 2.4 + 2)
            horizontalPadding: 8
            checkable: false
            checked: chart.nodes !== null && chart.nodes.channel === index
            hint: qsTr("Show %1 of all chosen nodes").arg(modelData)
            onClicked: chart.nodes.channel = index
        }
    }
}
