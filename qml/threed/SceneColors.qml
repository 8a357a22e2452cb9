pragma Singleton

import QtQuick

/// Colours of the scene; those of axes are the same as in numbers and charts.
QtObject {
    readonly property color axisX: "#AB221D"
    readonly property color axisY: "#0D8B4D"
    readonly property color axisZ: "#4153AF"
    readonly property color grid: "#D8DCE3"
    readonly property color north: "#4B5563"
}
