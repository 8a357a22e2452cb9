import QtQuick
import KVCenter.Controls

/// A card of the side panel: a title, with items beside it, and a column of contents.
Rectangle {
    id: section

    property string title
    default property alias contents: body.data
    property alias aside: beside.data

    implicitHeight: body.y + body.height + 12
    height: implicitHeight
    radius: 8
    color: Theme.surface
    border.width: 1
    border.color: Theme.line

    Text {
        id: heading

        x: 14
        anchors.verticalCenter: beside.verticalCenter
        width: parent.width - beside.width - 30
        elide: Text.ElideRight
        text: section.title
        textFormat: Text.PlainText
        font: Theme.strongFont
        color: Theme.text
    }
    Row {
        id: beside

        anchors.right: parent.right
        anchors.rightMargin: 10
        y: 8
        height: Math.max(heading.implicitHeight, childrenRect.height)
        spacing: 4
    }
    Column {
        id: body

        x: 14
        y: beside.y + beside.height + 6
        width: parent.width - 28
        spacing: 6
    }
}
