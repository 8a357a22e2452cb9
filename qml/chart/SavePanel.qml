pragma ComponentBehavior: Bound

import QtQuick
import KVCenter.Controls
import KVCenter.Chart

/// Saves all charts of a window at once: which samples, how large a picture. `charts` are its items, each with its
/// `viewState`.
Rectangle {
    id: panel

    required property ChartSaver saver
    property var charts: []

    /// The panel is about to save: time to set `charts`.
    signal aboutToSave

    width: rows.width + 24
    height: rows.height + 24
    radius: 8
    color: Theme.surface
    border.width: 1
    border.color: Theme.border

    MouseArea {
        anchors.fill: parent // items under the panel get no clicks
        onWheel: event => event.accepted = true
    }
    Column {
        id: rows

        x: 12
        y: 12
        spacing: 8

        Text {
            text: qsTr("Samples")
            textFormat: Text.PlainText
            font: Theme.strongFont
            color: Theme.text
        }
        Row {
            spacing: 4

            Chip {
                objectName: "visibleSamples"
                checkable: false
                checked: !panel.saver.allSamples
                text: qsTr("Visible")
                onClicked: panel.saver.allSamples = false
            }
            Chip {
                objectName: "allSamples"
                checkable: false
                checked: panel.saver.allSamples
                text: qsTr("All")
                onClicked: panel.saver.allSamples = true
            }
            ActionButton {
                objectName: "saveAllData"
                text: qsTr("Save tables…")
                hint: qsTr("A CSV file of each chart")
                onClicked: {
                    panel.aboutToSave();
                    panel.saver.saveAllData(panel.charts);
                }
            }
        }
        Text {
            text: qsTr("Pictures")
            textFormat: Text.PlainText
            font: Theme.strongFont
            color: Theme.text
        }
        Row {
            spacing: 4

            PictureChips {
                saver: panel.saver
            }
            ActionButton {
                objectName: "saveAllPictures"
                text: qsTr("Save pictures…")
                hint: qsTr("A picture of each chart")
                onClicked: {
                    panel.aboutToSave();
                    panel.saver.saveAllPictures(panel.charts);
                }
            }
        }
        Text {
            width: Math.min(implicitWidth, Theme.font.pointSize * 40)
            wrapMode: Text.WordWrap
            text: qsTr("The buttons of each chart save only that chart, in the same way.")
            textFormat: Text.PlainText
            font: Theme.smallFont
            color: Theme.textSecondary
        }
    }
}
