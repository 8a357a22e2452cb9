pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import KVCenter.Controls
import KVCenter.Chart

/// The list of markers: each with its time of day and an editable text, a button that shows it in the charts, and one
/// that removes it. edit() gives the focus to a text; Return and Esc give it back (`done`).
Rectangle {
    id: panel

    required property MarkerList markers

    signal picked(double time)
    signal done

    /// Gives the focus to the text of a marker.
    function edit(row: int) {
        list.forceLayout();
        list.positionViewAtIndex(row, ListView.Contain);
        list.itemAtIndex(row)?.edit();
    }

    width: Math.round(Theme.font.pointSize * 32)
    radius: 8
    color: Theme.surface
    border.width: 1
    border.color: Theme.line

    Text {
        id: title

        x: 12
        y: 10
        text: qsTr("Markers")
        textFormat: Text.PlainText
        font: Theme.strongFont
        color: Theme.text
    }
    EmptyState {
        anchors.centerIn: parent
        width: parent.width - 24
        visible: panel.markers.count === 0
        text: qsTr("No markers")
        detail: qsTr("M sets one at the pointer, or at the newest sample.")
    }
    ListView {
        id: list

        objectName: "markerList"
        anchors {
            fill: parent
            leftMargin: 12
            rightMargin: 6
            topMargin: title.height + 18
            bottomMargin: 8
        }
        clip: true
        spacing: 2
        boundsBehavior: Flickable.StopAtBounds
        model: panel.markers
        T.ScrollBar.vertical: SlimScrollBar {
            x: list.width - width
        }

        delegate: Row {
            id: entry

            required property int index
            required property double markerTime
            required property string timeText
            required property string markerText

            function edit() {
                field.forceActiveFocus();
                field.selectAll();
            }

            spacing: 4

            ActionButton {
                objectName: "showMarker"
                bare: true
                text: entry.timeText
                hint: qsTr("Show this place")
                onClicked: panel.picked(entry.markerTime)
            }
            T.TextField {
                id: field

                objectName: "markerText"
                anchors.verticalCenter: parent.verticalCenter
                width: Math.max(40, list.width - x - 40)
                height: Math.round(Theme.font.pointSize * 2.4 + 2)
                leftPadding: 6
                rightPadding: 6
                verticalAlignment: TextInput.AlignVCenter
                selectByMouse: true
                autoScroll: activeFocus // without the focus it shows the beginning
                text: entry.markerText
                font: Theme.font
                color: Theme.text
                selectionColor: Theme.accent
                selectedTextColor: Theme.surface
                maximumLength: 200
                Accessible.name: qsTr("Text of the marker")
                onEditingFinished: {
                    panel.markers.setText(entry.index, text);
                    text = Qt.binding(() => entry.markerText);
                }
                onAccepted: panel.done()
                Keys.onEscapePressed: {
                    text = Qt.binding(() => entry.markerText);
                    panel.done();
                }

                background: Rectangle {
                    radius: 6
                    color: Theme.surface
                    border.width: field.activeFocus ? 2 : 1
                    border.color: field.activeFocus ? Theme.accent : Theme.line
                }
            }
            ActionButton {
                bare: true
                iconName: "close"
                hint: qsTr("Remove this marker")
                onClicked: panel.markers.remove(entry.index)
            }
        }
    }
}
