pragma ComponentBehavior: Bound

import QtQuick
import KVCenter.Controls
import KVCenter.Fft

/// The box beside the crosshair: the frequency of the bin and the amplitude of each curve there.
Rectangle {
    id: box

    required property SpectrumViewState viewState

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
            text: box.viewState.hoverFrequency
            textFormat: Text.PlainText
            font: Theme.fixedSmallFont
            color: Theme.textSecondary
        }
        Repeater {
            model: box.viewState.lineNames

            Item {
                id: line

                required property int index
                required property string modelData

                visible: box.viewState.visibleLines[index] ?? true
                implicitWidth: nameText.implicitWidth + valueText.implicitWidth + 10
                implicitHeight: nameText.implicitHeight
                width: Math.max(implicitWidth, lines.width)

                Text {
                    id: nameText

                    text: line.modelData
                    textFormat: Text.PlainText
                    font: Theme.fixedSmallFont
                    color: box.viewState.lineColors[line.index]
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
