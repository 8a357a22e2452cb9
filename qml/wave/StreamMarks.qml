pragma ComponentBehavior: Bound

import QtQuick
import KVCenter.Chart
import KVCenter.Controls
import KVCenter.Wave

/// Notes about the stream over the lines of a chart: where they are broken, and why, and where the store ends.
Item {
    id: marks

    required property ChartPlot plot
    required property WaveViewState viewState

    Repeater {
        model: marks.viewState.breakSeconds.length

        Rectangle {
            id: breakMark

            required property int index
            readonly property bool major: index < marks.viewState.majorBreaks
            readonly property real seconds: marks.viewState.breakSeconds[index] ?? NaN
            readonly property real room: index === 0 || index === marks.viewState.majorBreaks ? x : x - marks.plot.toX(marks.viewState.breakSeconds[index - 1] ?? NaN)

            objectName: major ? "breakMark" : "missingMark"
            visible: seconds >= marks.viewState.xViewMin && seconds <= marks.viewState.xViewMax
            x: Math.round(marks.plot.toX(seconds))
            y: major ? 0 : marks.height - height
            width: 1
            // Missing samples are marked at the axis only: there may be many such places.
            height: major ? marks.height : Math.min(marks.height, 8)
            color: Theme.warning

            Text {
                // Left of the line: the silence is there, not the samples.
                x: -width - 3
                y: breakMark.major ? 0 : breakMark.height - height
                visible: width + 6 <= breakMark.room
                text: marks.viewState.breakTexts[breakMark.index] ?? ""
                textFormat: Text.PlainText
                font: Theme.smallFont
                color: Theme.warning
            }
        }
    }
    Text {
        objectName: "storeEnd"
        // Within the empty part, at its end.
        readonly property real end: marks.plot.toX(marks.viewState.storeEnd)

        visible: end > 0
        x: Math.max(2, end - width - 6)
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 2
        text: marks.viewState.storeEndText
        textFormat: Text.PlainText
        font: Theme.smallFont
        color: Theme.textSecondary
    }
}
