pragma ComponentBehavior: Bound

import QtQuick
import KVCenter.Controls
import KVCenter.Wave

/// The box beside the crosshair: the time and the value of each channel there.
Rectangle {
    id: box

    required property ChartViewState viewState

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
            text: qsTr("t %1").arg(box.viewState.hoverTime)
            textFormat: Text.PlainText
            font: Theme.fixedSmallFont
            color: Theme.textSecondary
        }
        Repeater {
            model: box.viewState.bridge ? box.viewState.bridge.channelNames : []

            Row {
                id: line

                required property int index
                required property string modelData

                visible: box.viewState.visibleChannels[index] ?? true
                spacing: 6

                Text {
                    width: 40
                    text: line.modelData
                    textFormat: Text.PlainText
                    elide: Text.ElideRight
                    font: Theme.fixedSmallFont
                    color: box.viewState.bridge.channelColors[line.index]
                }
                Text {
                    text: box.viewState.hoverTexts[line.index] ?? ""
                    textFormat: Text.PlainText
                    font: Theme.fixedSmallFont
                    color: Theme.text
                }
            }
        }
    }
}
