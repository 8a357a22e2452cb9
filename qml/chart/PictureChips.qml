pragma ComponentBehavior: Bound

import QtQuick
import KVCenter.Controls
import KVCenter.Chart

/// How pictures are saved: the size of PNG, or SVG.
Row {
    id: chips

    required property ChartSaver saver

    spacing: 4

    Repeater {
        model: 4

        Chip {
            required property int index

            objectName: "scale_" + (index + 1)
            checkable: false
            checked: !chips.saver.svg && chips.saver.pictureScale === index + 1
            horizontalPadding: 10
            text: qsTr("%1x").arg(index + 1)
            hint: qsTr("PNG at %1 times the size").arg(index + 1)
            onClicked: {
                chips.saver.svg = false;
                chips.saver.pictureScale = index + 1;
            }
        }
    }
    Chip {
        objectName: "svg"
        checkable: false
        checked: chips.saver.svg
        horizontalPadding: 10
        text: "SVG"
        onClicked: chips.saver.svg = true
    }
}
