pragma ComponentBehavior: Bound

import QtQuick
import KVCenter.Chart
import KVCenter.Controls
import KVCenter.Fft

/// The chart of the spectra as a card: title and settings of the spectra, legend, measurements, plot, and buttons.
FocusScope {
    id: chart

    required property FftChartBridge bridge
    required property FftFiles files
    property string guide
    property real blockFill: 1
    property bool stale: false
    property string emptyText
    property string emptyDetail
    readonly property alias viewState: view

    activeFocusOnTab: true
    Accessible.role: Accessible.Chart
    Accessible.name: bridge.chartTitle
    Keys.onPressed: event => event.accepted = view.handleKey(event.key, event.modifiers)

    SpectrumViewState {
        id: view

        objectName: "viewState"
        bridge: chart.bridge
    }

    CardFrame {
        anchors.fill: parent
        lineColor: chart.activeFocus ? Theme.accent : Theme.line
    }

    Item {
        id: header

        anchors {
            left: parent.left
            right: parent.right
            top: parent.top
            leftMargin: 14
            rightMargin: 8
            topMargin: 6
        }
        height: tools.height

        Text {
            id: titleText

            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, parent.width - tools.width - 8)
            elide: Text.ElideRight
            text: chart.bridge.chartTitle
            textFormat: Text.PlainText
            font: Theme.strongFont
            color: Theme.text
        }
        Text {
            anchors {
                left: titleText.right
                right: tools.left
                leftMargin: 10
                rightMargin: 8
                baseline: titleText.baseline
            }
            elide: Text.ElideRight
            visible: chart.bridge.sampleRate > 0
            text: qsTr("%1 points · %2 Hz · %3 · %4 Hz per bin").arg(chart.bridge.fftSize).arg(chart.bridge.sampleRate).arg(chart.bridge.windowName).arg(chart.bridge.frequencyResolution.toPrecision(4))
            textFormat: Text.PlainText
            font: Theme.smallFont
            color: Theme.textSecondary
        }
        Row {
            id: tools

            anchors.right: parent.right
            spacing: 2

            ActionButton {
                objectName: "decibels"
                bare: true
                text: qsTr("dB")
                checked: view.decibels
                hint: view.decibels ? qsTr("Show amplitudes as they are") : qsTr("Show amplitudes in decibels")
                onClicked: view.decibels = !view.decibels
            }
            ActionButton {
                objectName: "fit"
                bare: true
                text: qsTr("Fit")
                checked: view.yAutomatic
                hint: view.yAutomatic ? qsTr("Show amplitudes up to the set maximum") : qsTr("Fit the amplitude axis to the curves beyond 0 Hz")
                onClicked: view.yAutomatic = !view.yAutomatic
            }
            ActionButton {
                id: rangeButton

                objectName: "rangeButton"
                bare: true
                checkable: true
                iconName: "range"
                hint: qsTr("Limits of the axes, size of pictures")
            }
            ActionButton {
                id: statisticsButton

                objectName: "statisticsButton"
                bare: true
                checkable: true
                iconName: "statistics"
                hint: qsTr("Statistics")
            }
            ActionButton {
                bare: true
                enabled: chart.bridge.hasData
                checked: view.hasCursors
                iconName: "cursors"
                hint: view.hasCursors ? qsTr("Remove the cursors A and B") : qsTr("Measure between the cursors A and B")
                keys: view.hasCursors ? qsTr("Esc") : qsTr("A, B")
                onClicked: view.toggleCursors()
            }
            ActionButton {
                bare: true
                iconName: "reset"
                hint: qsTr("Reset the view")
                keys: qsTr("Home")
                onClicked: view.reset()
            }
            ActionButton {
                objectName: "savePicture"
                bare: true
                enabled: chart.bridge.hasData
                iconName: "picture"
                hint: qsTr("Save a picture of the chart")
                onClicked: chart.files.savePicture(view, chart)
            }
            ActionButton {
                objectName: "saveCsv"
                bare: true
                enabled: chart.bridge.hasData
                text: "CSV"
                hint: qsTr("Save the spectra as a table")
                onClicked: chart.files.saveCsv()
            }
            ActionButton {
                objectName: "saveJson"
                bare: true
                enabled: chart.bridge.hasData
                iconName: "save"
                hint: qsTr("Save a snapshot of spectra and analysis")
                onClicked: chart.files.saveJson()
            }
            ActionButton {
                bare: true
                text: qsTr("Open…")
                hint: qsTr("Show the contents of a saved snapshot")
                onClicked: chart.files.openSnapshot()
            }
            ActionButton {
                bare: true
                text: "?"
                hint: chart.guide
            }
        }
    }

    Column {
        id: rows

        anchors {
            left: parent.left
            right: parent.right
            top: header.bottom
            leftMargin: 14
            rightMargin: 14
            topMargin: 2
        }
        spacing: 4

        Item {
            width: parent.width
            height: legend.height

            Text {
                id: axisTitle

                text: view.decibels ? qsTr("Level (dB, 0 dB = 1 %1)").arg(chart.bridge.unit) : chart.bridge.valueAxisTitle
                textFormat: Text.PlainText
                font: Theme.smallFont
                color: Theme.textSecondary
            }
            Row {
                id: legend

                anchors.right: parent.right
                spacing: 12

                Repeater {
                    model: view.seriesNames

                    ChartLegendEntry {
                        required property int index
                        required property string modelData

                        objectName: "legend_" + index
                        name: modelData
                        color: view.seriesColors[index]
                        shown: view.visibleSeries[index] ?? true
                        onClicked: view.setSeriesVisible(index, !shown)
                    }
                }
            }
        }
        Row {
            visible: rangeButton.checked
            spacing: 8

            Text {
                anchors.verticalCenter: parent.verticalCenter
                text: qsTr("Pictures")
                textFormat: Text.PlainText
                font: Theme.smallFont
                color: Theme.textSecondary
            }
            PictureChips {
                saver: chart.files
            }
        }
        ChartRangeRow {
            width: parent.width
            visible: rangeButton.checked
            viewState: view
            xUnit: "Hz"
            yUnit: view.decibels ? "dB" : chart.bridge.unit
        }
        ChartMeasurement {
            width: parent.width
            viewState: view
        }
        MeasurePanel {
            width: parent.width
            viewState: view
            measures.active: view.hasCursors || statisticsButton.checked
        }
    }

    ChartPlot {
        id: frame

        anchors {
            left: parent.left
            right: parent.right
            top: rows.bottom
            bottom: parent.bottom
            leftMargin: 10
            rightMargin: 14
            topMargin: 6
            bottomMargin: 6
        }
        viewState: view
        xUnit: "Hz"
        pansBothAxes: true
        resetButtons: Qt.RightButton | Qt.MiddleButton
        underlay: SpectrumLevels {
            anchors.fill: parent
            plot: frame
            viewState: view
            bridge: chart.bridge
        }
        overlay: SpectrumMarks {
            anchors.fill: parent
            plot: frame
            viewState: view
        }
        onPressed: chart.forceActiveFocus()
    }

    // Over the curves, below the names of the bands.
    Column {
        anchors {
            top: frame.top
            right: frame.right
            topMargin: Math.round(Theme.font.pointSize * 2.6)
            rightMargin: 30
        }
        spacing: 4

        PlotMark {
            objectName: "staleMark"
            anchors.right: parent.right
            visible: chart.stale && chart.bridge.hasData
            text: qsTranslate("WaveChart", "No new samples")
            ink: Theme.warning
        }
        PlotMark {
            objectName: "fillMark"
            anchors.right: parent.right
            visible: chart.blockFill < 1 && chart.bridge.hasData
            text: qsTr("Block %1 %").arg(Math.floor(100 * chart.blockFill))
            progress: chart.blockFill
        }
    }

    EmptyState {
        anchors.centerIn: parent
        anchors.verticalCenterOffset: 20
        width: parent.width - 40
        visible: !chart.bridge.hasData
        text: chart.emptyText
        detail: chart.emptyDetail
    }
}
