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
    readonly property var list: viewState.marks
    /// Where the labels would be, and which of them have room: a harmonic gives way to the peak and to lower harmonics.
    readonly property var places: list.map(mark => {
        const labelWidth = metrics.advanceWidth(mark.label) + 4;
        const x = Math.round(plot.toX(mark.frequency));
        const y = Math.round(Math.max(metrics.height + 8, Math.min(height - 2, plot.toY(mark.level) - 4)));
        return Qt.rect(Math.max(0, Math.min(width - labelWidth, x - Math.round(labelWidth / 2))), y - metrics.height - 8, labelWidth, metrics.height);
    })
    readonly property var shown: viewState.apart(places)

    FontMetrics {
        id: metrics

        font: Theme.fixedSmallFont
    }
    Repeater {
        model: marks.list

        Item {
            id: mark

            required property int index
            required property var modelData

            visible: modelData.frequency >= marks.viewState.xViewMin && modelData.frequency <= marks.viewState.xViewMax
            x: Math.round(marks.plot.toX(modelData.frequency))
            // Above the peak, but inside the plot.
            y: Math.round(Math.max(metrics.height + 8, Math.min(marks.height - 2, marks.plot.toY(modelData.level) - 4)))

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
                visible: markText.visible
                anchors.margins: -2
                color: Qt.alpha(Theme.surface, 0.9)
            }
            Text {
                id: markText

                objectName: "markLabel"
                visible: marks.shown[mark.index] ?? false
                x: (marks.places[mark.index]?.x ?? 0) + 2 - mark.x
                y: -height - 8
                text: mark.modelData.label
                textFormat: Text.PlainText
                font: Theme.fixedSmallFont
                color: Theme.accentText
            }
        }
    }
}
