import QtQuick
import KVCenter.Controls
import KVCenter.Wave

/// Switch and cutoff of a chart's low-pass filter. A refused setting is explained beside them.
Flow {
    id: row

    property WaveChartBridge bridge: null
    property double cutoffHz: 10
    property string problem

    function apply(on: bool, hz: double) {
        problem = bridge.trySetFilter(on, hz);
        toggle.checked = bridge.filterOn;
    }

    spacing: 8
    // A chart that is shown again finds its filter as it was left.
    Component.onCompleted: {
        if (bridge !== null && bridge.filterOn) {
            cutoffHz = bridge.filterCutoffHz;
            toggle.checked = true;
        }
    }

    Connections {
        target: row.bridge
        function onFilterChanged() {
            toggle.checked = row.bridge.filterOn;
        }
        // The title changes with the language, and so must the sentence.
        function onChartTitleChanged() {
            if (row.problem !== "")
                row.apply(true, row.cutoffHz);
        }
    }
    SwitchBox {
        id: toggle

        objectName: "filterSwitch"
        text: qsTr("Low-pass filter")
        onToggled: row.apply(checked, row.cutoffHz)
    }
    NumberField {
        objectName: "filterCutoff"
        implicitWidth: Math.round(font.pointSize * 10)
        value: row.cutoffHz
        // No number is reverted silently: the filter says what it refuses.
        from: -1e99
        to: 1e99
        unit: "Hz"
        hint: qsTr("Cutoff frequency")
        onEntered: number => {
            row.cutoffHz = number;
            row.apply(toggle.checked || row.problem !== "", number);
        }
    }
    Text {
        id: force

        objectName: "filterForce"
        visible: row.bridge !== null && row.bridge.filterOn && Math.abs(row.bridge.filterForceHz / row.bridge.filterCutoffHz - 1) > 0.02
        width: Math.min(implicitWidth, row.width)
        topPadding: 4
        wrapMode: Text.WordWrap
        text: visible ? qsTr("In force: %1 Hz, as the rate is now %2 Hz").arg(Number(row.bridge.filterForceHz.toPrecision(3))).arg(row.bridge.rateHz) : ""
        textFormat: Text.PlainText
        font: Theme.smallFont
        color: Theme.warning
    }
    ActionButton {
        objectName: "filterAgain"
        bare: true
        visible: force.visible
        text: qsTr("Apply %1 Hz").arg(row.bridge !== null ? row.bridge.filterCutoffHz : 0)
        onClicked: row.apply(true, row.bridge.filterCutoffHz)
    }
    Text {
        objectName: "filterProblem"
        visible: text !== ""
        width: Math.min(implicitWidth, row.width)
        topPadding: 4
        wrapMode: Text.WordWrap
        text: row.problem
        textFormat: Text.PlainText
        font: Theme.smallFont
        color: Theme.warning
    }
}
