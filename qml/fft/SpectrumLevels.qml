pragma ComponentBehavior: Bound

import QtQuick
import KVCenter.Chart
import KVCenter.Controls
import KVCenter.Fft

/// Drawn under the curves of the spectrum: the bands with their names, and the levels of the alarm over its range of
/// frequencies.
Item {
    id: levels

    required property ChartPlot plot
    required property SpectrumViewState viewState
    required property FftChartBridge bridge

    Repeater {
        model: levels.bridge.bandPowers

        Rectangle {
            id: band

            required property int index
            required property var modelData
            readonly property real from: Math.max(0, levels.plot.toX(modelData.lowHz))
            readonly property real to: Math.min(levels.width, levels.plot.toX(modelData.highHz))

            visible: to > from
            x: from
            width: Math.max(0, to - from)
            height: levels.height
            color: index % 2 === 0 ? Theme.surfaceAlt : Theme.surface

            Text {
                anchors.right: parent.right
                anchors.rightMargin: 4
                anchors.top: parent.top
                width: parent.width - 8
                horizontalAlignment: Text.AlignRight
                elide: Text.ElideRight
                text: band.modelData.name
                textFormat: Text.PlainText
                font: Theme.smallFont
                color: Theme.textDisabled
            }
        }
    }
    Repeater {
        model: [
            {
                level: levels.viewState.watchLevel,
                color: String(Theme.warning)
            },
            {
                level: levels.viewState.alarmLevel,
                color: String(Theme.bad)
            }
        ]

        Rectangle {
            required property var modelData
            readonly property var rule: levels.bridge.alarmRule
            readonly property real from: Math.max(0, levels.plot.toX(rule.minimumHz))
            readonly property real to: rule.maximumHz > 0 ? Math.min(levels.width, levels.plot.toX(rule.maximumHz)) : levels.width

            visible: to > from && modelData.level >= levels.viewState.yViewMin && modelData.level <= levels.viewState.yViewMax
            x: from
            y: Math.round(levels.plot.toY(modelData.level))
            width: Math.max(0, to - from)
            height: 1
            color: modelData.color
        }
    }
}
