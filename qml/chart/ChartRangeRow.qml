pragma ComponentBehavior: Bound

import QtQuick
import KVCenter.Controls
import KVCenter.Chart

/// Fields for the ranges of a chart: both ends of each axis, and whether the vertical one fits itself. A kind of chart
/// puts its own choices in front (`presets`).
Flow {
    id: row

    required property PlotViewState viewState
    property string xUnit
    property string yUnit
    property alias presets: presetRow.data

    spacing: 6

    Row {
        id: presetRow

        spacing: 4
    }
    NumberField {
        implicitWidth: Math.round(font.pointSize * 7)
        objectName: "xFrom"
        value: Math.round(row.viewState.xViewMin * 1e6) / 1e6
        from: -1e9
        to: 1e9
        unit: row.xUnit
        hint: qsTr("Left end of the horizontal axis")
        onEntered: number => row.viewState.setXRange(number, row.viewState.xViewMax)
    }
    NumberField {
        implicitWidth: Math.round(font.pointSize * 7)
        objectName: "xTo"
        value: Math.round(row.viewState.xViewMax * 1e6) / 1e6
        from: -1e9
        to: 1e9
        unit: row.xUnit
        hint: qsTr("Right end of the horizontal axis")
        onEntered: number => row.viewState.setXRange(row.viewState.xViewMin, number)
    }
    NumberField {
        implicitWidth: Math.round(font.pointSize * 7)
        objectName: "yFrom"
        value: Math.round(row.viewState.yViewMin * 1e6) / 1e6
        from: -1e30
        to: 1e30
        unit: row.yUnit
        hint: qsTr("Lower end of the value axis")
        onEntered: number => row.viewState.setYRange(number, row.viewState.yViewMax)
    }
    NumberField {
        implicitWidth: Math.round(font.pointSize * 7)
        objectName: "yTo"
        value: Math.round(row.viewState.yViewMax * 1e6) / 1e6
        from: -1e30
        to: 1e30
        unit: row.yUnit
        hint: qsTr("Upper end of the value axis")
        onEntered: number => row.viewState.setYRange(row.viewState.yViewMin, number)
    }
    SwitchBox {
        objectName: "yAutomatic"
        text: qsTr("Automatic values")
        hint: qsTr("Fit the value axis to what is visible")
        checked: row.viewState.yAutomatic
        onToggled: {
            row.viewState.yAutomatic = checked;
            checked = Qt.binding(() => row.viewState.yAutomatic);
        }
    }
}
