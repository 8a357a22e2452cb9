pragma ComponentBehavior: Bound

import QtQuick
import KVCenter.Chart
import KVCenter.Controls
import KVCenter.Wave

/// The level of a chart's trigger as a line across the plot, and the other end of a band; both are dragged by their
/// handles.
Item {
    id: levels

    required property ChartPlot plot
    required property WaveTrigger trigger

    component Level: Item {
        id: level

        required property double value

        signal moved(double value)

        y: Math.round(levels.plot.toY(value))
        width: levels.width
        visible: y >= 0 && y <= levels.height

        Repeater {
            model: Math.max(0, Math.ceil(level.width / 8))

            Rectangle {
                required property int index

                x: index * 8
                width: 4
                height: 1
                color: Theme.accent
            }
        }
        Rectangle {
            id: handle

            x: parent.width - width
            y: -Math.round(height / 2)
            width: label.implicitWidth + 8
            height: label.implicitHeight + 2
            radius: 3
            color: Theme.accent

            Text {
                id: label

                anchors.centerIn: parent
                text: "T"
                textFormat: Text.PlainText
                font: Theme.fixedSmallFont
                color: Theme.surface
            }
        }
        MouseArea {
            objectName: "triggerHandle"
            anchors.fill: handle
            anchors.margins: -4
            cursorShape: Qt.SplitVCursor
            preventStealing: true
            onPositionChanged: event => level.moved(levels.plot.toLevel(mapToItem(levels, event.x, event.y).y))
        }
    }

    Level {
        value: levels.trigger.level
        onMoved: value => levels.trigger.level = value
    }
    Level {
        visible: levels.trigger.edge === WaveTrigger.OutsideBand && y >= 0 && y <= levels.height
        value: levels.trigger.bandEnd
        onMoved: value => levels.trigger.bandEnd = value
    }
}
