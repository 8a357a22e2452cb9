pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import KVCenter.Controls
import KVCenter.Chart

/// The measurements on a chart, as a table: values at the cursors and statistics; a button copies it.
Item {
    id: panel

    required property PlotViewState viewState
    property alias measures: table

    visible: table.header.length > 0
    implicitHeight: visible ? head.height + Math.min(grid.height, maximumHeight) + 2 : 0
    /// With more rows it scrolls.
    property real maximumHeight: 120

    ChartMeasures {
        id: table

        viewState: panel.viewState
    }
    Item {
        id: head

        width: parent.width
        height: copyButton.height

        Text {
            objectName: "measureExtent"
            anchors {
                left: parent.left
                right: copyButton.left
                verticalCenter: parent.verticalCenter
            }
            elide: Text.ElideRight
            text: table.extent
            textFormat: Text.PlainText
            font: Theme.smallFont
            color: Theme.textSecondary
        }
        ActionButton {
            id: copyButton

            objectName: "copyMeasures"
            anchors.right: parent.right
            bare: true
            text: qsTr("Copy")
            hint: qsTr("Copy the table for a spreadsheet")
            onClicked: table.copy()
        }
    }
    Flickable {
        id: flick

        anchors {
            left: parent.left
            right: parent.right
            top: head.bottom
            bottom: parent.bottom
        }
        contentWidth: grid.width
        contentHeight: grid.height
        clip: true
        interactive: contentWidth > width || contentHeight > height
        T.ScrollBar.vertical: SlimScrollBar {
            x: flick.width - width
        }

        Grid {
            id: grid

            objectName: "measureGrid"
            columns: table.header.length
            columnSpacing: 12
            horizontalItemAlignment: Grid.AlignRight

            Repeater {
                model: table.header

                Text {
                    required property string modelData

                    text: modelData || " " // an empty item takes no place in a grid
                    textFormat: Text.PlainText
                    font: Theme.smallFont
                    color: Theme.textSecondary
                }
            }
            Repeater {
                // A number, so that the cells stay while their texts change.
                model: table.rows.length * table.header.length

                Text {
                    required property int index

                    text: (table.rows[Math.floor(index / table.header.length)] ?? [])[index % table.header.length] || " "
                    textFormat: Text.PlainText
                    font: Theme.fixedSmallFont
                    color: index % table.header.length === 0 ? Theme.textSecondary : Theme.text
                }
            }
        }
    }
}
