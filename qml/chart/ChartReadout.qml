pragma ComponentBehavior: Bound

import QtQuick
import KVCenter.Controls
import KVCenter.Chart

/// One line over the plot, so that no curve is covered and a low plot has room for it: the position under the pointer
/// and the value of each visible series there. In a narrow chart the values are shown in their colours without names.
Item {
    id: readout

    required property PlotViewState viewState
    readonly property bool terse: full.width > width

    /// Invisible: measures how much room the names would take.
    TextMetrics {
        id: full

        font: Theme.fixedSmallFont
        text: readout.visible ? readout.viewState.hoverLine : ""
    }
    FontMetrics {
        id: metrics

        font: Theme.fixedSmallFont
    }
    clip: true
    // The same whether it is visible or not, so that the plot below does not jump.
    implicitHeight: Math.ceil(metrics.height)

    Row {
        id: line

        spacing: readout.terse ? 4 : 8

        Text {
            text: readout.viewState.hoverTitle
            textFormat: Text.PlainText
            font: Theme.fixedSmallFont
            color: Theme.textSecondary
        }
        Repeater {
            model: readout.visible ? readout.viewState.hoverTexts.length : 0

            Row {
                id: entry

                required property int index
                readonly property color ink: readout.viewState.seriesColors[index] ?? Theme.text

                visible: readout.viewState.visibleSeries[index] ?? true
                spacing: 3

                Text {
                    visible: !readout.terse
                    text: readout.viewState.seriesNames[entry.index] ?? ""
                    textFormat: Text.PlainText
                    font: Theme.fixedSmallFont
                    color: entry.ink
                }
                Text {
                    text: readout.viewState.hoverTexts[entry.index] ?? ""
                    textFormat: Text.PlainText
                    font: Theme.fixedSmallFont
                    color: readout.terse ? entry.ink : Theme.text
                }
            }
        }
    }
}
