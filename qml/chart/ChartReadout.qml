pragma ComponentBehavior: Bound

import QtQuick
import KVCenter.Controls
import KVCenter.Chart

/// The box beside the crosshair: the position and the value of each visible series there.
Rectangle {
    id: box

    required property PlotViewState viewState

    width: lines.width + 16
    height: lines.height + 12
    radius: 5
    color: "#F2FFFFFF"
    border.width: 1
    border.color: Theme.border

    Column {
        id: lines

        x: 8
        y: 6
        spacing: 1

        Text {
            text: box.viewState.hoverTitle
            textFormat: Text.PlainText
            font: Theme.fixedSmallFont
            color: Theme.textSecondary
        }
        Repeater {
            model: box.viewState.seriesNames

            Item {
                id: line

                required property int index
                required property string modelData

                visible: box.viewState.visibleSeries[index] ?? true
                implicitWidth: nameText.implicitWidth + valueText.implicitWidth + 10
                implicitHeight: nameText.implicitHeight
                width: Math.max(implicitWidth, lines.width)

                Text {
                    id: nameText

                    text: line.modelData
                    textFormat: Text.PlainText
                    font: Theme.fixedSmallFont
                    color: box.viewState.seriesColors[line.index] ?? Theme.text
                }
                Text {
                    id: valueText

                    anchors.right: parent.right
                    text: box.viewState.hoverTexts[line.index] ?? ""
                    textFormat: Text.PlainText
                    font: Theme.fixedSmallFont
                    color: Theme.text
                }
            }
        }
    }
}
