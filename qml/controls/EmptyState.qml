import QtQuick
import KVCenter.Controls

/// The text in an empty view: a heading, and under it what to do next.
Column {
    id: control

    property string text
    property string detail

    spacing: 4

    Text {
        width: control.width
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.WordWrap
        text: control.text
        textFormat: Text.PlainText
        font: Theme.strongFont
        color: Theme.textSecondary
    }
    Text {
        visible: text !== ""
        width: control.width
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.WordWrap
        text: control.detail
        textFormat: Text.PlainText
        font: Theme.font
        color: Theme.textSecondary
    }
}
