pragma ComponentBehavior: Bound

import QtQuick
import KVCenter.Chart
import KVCenter.Controls
import KVCenter.Fft

/// The dominant peak and its harmonics, marked over the curves.
Item {
    id: marks

    required property ChartPlot plot
    required property SpectrumViewState viewState

    Repeater {
        model: marks.viewState.marks

        Item {
            id: mark

            required property int index
            required property var modelData

            visible: modelData.frequency >= marks.viewState.xViewMin && modelData.frequency <= marks.viewState.xViewMax
            x: Math.round(marks.plot.toX(modelData.frequency))
            // Above the peak, but inside the plot.
            y: Math.round(Math.max(markText.height + 8, Math.min(marks.height - 2, marks.plot.toY(modelData.level) - 4)))

            Rectangle {
                x: -3
                y: -6
                width: 6
                height: 6
                rotation: 45
                color: mark.index === 0 ? Theme.accent : Theme.surface
                border.width: 1
                border.color: Theme.accent
            }
            Rectangle {
                anchors.fill: markText
                anchors.margins: -2
                color: "#E6FFFFFF"
            }
            Text {
                id: markText

                x: Math.max(-mark.x, Math.min(marks.width - mark.x - width, -Math.round(width / 2)))
                y: -height - 8
                text: mark.modelData.label
                textFormat: Text.PlainText
                font: Theme.fixedSmallFont
                color: Theme.accentDark
            }
        }
    }
}
