pragma ComponentBehavior: Bound

import QtQuick
import KVCenter.Chart
import KVCenter.Controls
import KVCenter.Wave

/// Where the stream of a chart started again, and why.
Item {
    id: marks

    required property ChartPlot plot
    required property WaveViewState viewState

    Repeater {
        model: marks.viewState.breakSeconds.length

        Rectangle {
            id: breakMark

            required property int index
            readonly property real seconds: marks.viewState.breakSeconds[index] ?? NaN

            objectName: "breakMark"
            visible: seconds >= marks.viewState.xViewMin && seconds <= marks.viewState.xViewMax
            x: Math.round(marks.plot.toX(seconds))
            width: 1
            height: marks.height
            color: Theme.warning

            Text {
                // Left of the line: the silence is there, not the samples.
                x: Math.max(-breakMark.x, -width - 3)
                text: marks.viewState.breakTexts[breakMark.index] ?? ""
                textFormat: Text.PlainText
                font: Theme.smallFont
                color: Theme.warning
            }
        }
    }
}
