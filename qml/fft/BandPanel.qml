pragma ComponentBehavior: Bound

import QtQuick
import KVCenter.Controls
import KVCenter.Fft

/// The dominant peak with its harmonics, the powers of the bands, and the coherence of the axes.
PanelSection {
    id: panel

    required property FftChartBridge bridge

    title: qsTr("Peak and bands")
    aside: [
        ActionButton {
            objectName: "resetBands"
            bare: true
            visible: panel.bridge.hasCustomBands
            iconName: "reset"
            hint: qsTr("Back to the automatic bands")
            onClicked: panel.bridge.resetBandDefinitions()
        },
        ActionButton {
            objectName: "addBand"
            bare: true
            text: qsTr("Add band…")
            hint: qsTr("Measure the power of a band of your own")
            onClicked: editor.visible = !editor.visible
        }
    ]

    BandEditor {
        id: editor

        objectName: "bandEditor"
        width: parent.width
        visible: false
        bridge: panel.bridge
        onDone: visible = false
    }
    Text {
        objectName: "peakText"
        width: parent.width
        wrapMode: Text.Wrap
        visible: panel.bridge.dominantPeakAxis !== ""
        text: qsTr("Peak: %1 Hz on %2, %3 %4").arg(panel.bridge.dominantPeakFrequency.toFixed(2)).arg(panel.bridge.dominantPeakAxis).arg(panel.bridge.dominantPeakAmplitude.toFixed(2)).arg(panel.bridge.unit)
        textFormat: Text.PlainText
        font: Theme.fixedSmallFont
        color: Theme.text
    }
    Text {
        width: parent.width
        wrapMode: Text.Wrap
        visible: panel.bridge.harmonicSummary !== ""
        text: panel.bridge.harmonicSummary
        textFormat: Text.PlainText
        font: Theme.fixedSmallFont
        color: Theme.textSecondary
    }
    Column {
        width: parent.width
        spacing: 2

        Repeater {
            model: panel.bridge.bandPowers

            Item {
                id: band

                required property var modelData

                width: parent.width
                height: nameText.implicitHeight

                Text {
                    id: nameText

                    width: parent.width - powerText.width - 8
                    elide: Text.ElideRight
                    text: qsTr("%1, %2–%3 Hz").arg(band.modelData.name).arg(band.modelData.lowHz.toFixed(1)).arg(band.modelData.highHz.toFixed(1))
                    textFormat: Text.PlainText
                    font: Theme.smallFont
                    color: Theme.textSecondary
                }
                Text {
                    id: powerText

                    anchors.right: parent.right
                    text: (band.modelData.rising ? "↑ " : "") + band.modelData.rmsEquivalent.toFixed(2) + " " + panel.bridge.unit
                    textFormat: Text.PlainText
                    font: Theme.fixedSmallFont
                    color: Theme.text
                }
            }
        }
    }
    SwitchBox {
        width: parent.width
        text: qsTr("Coherence of the axes")
        checked: panel.bridge.coherenceEnabled
        hint: qsTr("How alike the spectra of two axes are in shape, from 0 to 1")
        onToggled: panel.bridge.coherenceEnabled = checked
    }
    Text {
        width: parent.width
        wrapMode: Text.Wrap
        visible: panel.bridge.coherenceEnabled
        text: panel.bridge.coherenceSummary
        textFormat: Text.PlainText
        font: Theme.fixedSmallFont
        color: Theme.textSecondary
    }
}
