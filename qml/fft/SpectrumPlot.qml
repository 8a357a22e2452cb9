pragma ComponentBehavior: Bound

import QtQuick
import KVCenter.Controls
import KVCenter.Fft
import KVCenter.Wave

/// Axes, grid, bands, thresholds, curves, marks, crosshair and cursors of the spectrum. The wheel zooms the amplitudes
/// about the pointer, with Ctrl the frequencies; dragging with the left button pans; a double click with the right or
/// middle button resets.
Item {
    id: plot

    required property SpectrumViewState viewState
    required property FftChartBridge bridge
    readonly property real xSpan: viewState.xViewMax - viewState.xViewMin
    readonly property real ySpan: viewState.yViewMax - viewState.yViewMin

    signal pressed

    function toX(frequency: real): real {
        return (frequency - viewState.xViewMin) / xSpan * area.width;
    }
    function toFrequency(x: real): real {
        return viewState.xViewMin + x / area.width * xSpan;
    }
    function toY(level: real): real {
        return (1 - (level - viewState.yViewMin) / ySpan) * area.height;
    }

    FontMetrics {
        id: metrics

        readonly property real digit: advanceWidth("0")

        font: Theme.smallFont
    }
    ChartAxis {
        id: frequencyAxis

        min: plot.viewState.xViewMin
        max: plot.viewState.xViewMax
        length: area.width
        spacing: metrics.digit * 9
        unit: "Hz"
    }
    ChartAxis {
        id: levelAxis

        min: plot.viewState.yViewMin
        max: plot.viewState.yViewMax
        length: area.height
        spacing: metrics.height * 2
    }

    Item {
        id: area

        anchors {
            fill: parent
            leftMargin: Math.ceil(metrics.digit * Math.max(5, levelAxis.labelLength)) + 8
            rightMargin: Math.ceil(metrics.digit * 3)
            topMargin: Math.ceil(metrics.height / 2)
            bottomMargin: Math.ceil(metrics.height) + 4
        }

        Item {
            anchors.fill: parent
            clip: true

            Repeater {
                model: plot.bridge.bandPowers

                Rectangle {
                    id: band

                    required property int index
                    required property var modelData
                    readonly property real from: Math.max(0, plot.toX(modelData.lowHz))
                    readonly property real to: Math.min(area.width, plot.toX(modelData.highHz))

                    visible: to > from
                    x: from
                    width: Math.max(0, to - from)
                    height: area.height
                    color: index % 2 === 0 ? "#F9FAFB" : Theme.surface

                    Text {
                        anchors.right: parent.right
                        anchors.rightMargin: 4
                        anchors.top: parent.top
                        width: parent.width - 8
                        horizontalAlignment: Text.AlignRight
                        elide: Text.ElideRight
                        text: band.modelData.name
                        textFormat: Text.PlainText
                        font: Theme.smallFont
                        color: Theme.textDisabled
                    }
                }
            }
        }
        Repeater {
            model: levelAxis.count

            Item {
                id: levelTick

                required property int index

                y: Math.round(area.height * (1 - (levelAxis.positions[index] ?? 0)))

                Rectangle {
                    width: area.width
                    height: 1
                    color: Theme.line
                }
                Text {
                    x: -width - 6
                    y: -Math.round(height / 2)
                    text: levelAxis.labels[levelTick.index] ?? ""
                    textFormat: Text.PlainText
                    font: Theme.smallFont
                    color: Theme.textSecondary
                }
            }
        }
        Repeater {
            model: frequencyAxis.count

            Item {
                id: frequencyTick

                required property int index

                x: Math.round(area.width * (frequencyAxis.positions[index] ?? 0))

                Rectangle {
                    width: 1
                    height: area.height
                    color: Theme.line
                }
                Text {
                    x: Math.min(-Math.round(width / 2), area.width - frequencyTick.x + area.anchors.rightMargin - width)
                    y: area.height + 4
                    text: frequencyAxis.labels[frequencyTick.index] ?? ""
                    textFormat: Text.PlainText
                    font: Theme.smallFont
                    color: Theme.textSecondary
                }
            }
        }

        // The levels of the alarm, as far as its frequencies reach.
        Repeater {
            model: [
                {
                    level: plot.viewState.watchLevel,
                    color: String(Theme.warning)
                },
                {
                    level: plot.viewState.alarmLevel,
                    color: "#B91C1C"
                }
            ]

            Rectangle {
                required property var modelData
                readonly property var rule: plot.bridge.alarmRule
                readonly property real from: Math.max(0, plot.toX(rule.minimumHz))
                readonly property real to: rule.maximumHz > 0 ? Math.min(area.width, plot.toX(rule.maximumHz)) : area.width

                visible: to > from && modelData.level >= plot.viewState.yViewMin && modelData.level <= plot.viewState.yViewMax
                x: from
                y: Math.round(plot.toY(modelData.level))
                width: Math.max(0, to - from)
                height: 1
                color: modelData.color
            }
        }

        SpectrumLines {
            objectName: "lines"
            anchors.fill: parent
            viewState: plot.viewState
        }

        Repeater {
            model: plot.viewState.marks

            Item {
                id: mark

                required property int index
                required property var modelData

                visible: modelData.frequency >= plot.viewState.xViewMin && modelData.frequency <= plot.viewState.xViewMax
                x: Math.round(plot.toX(modelData.frequency))
                // Above the peak, but inside the plot.
                y: Math.round(Math.max(markText.height + 8, Math.min(area.height - 2, plot.toY(modelData.level) - 4)))

                Rectangle {
                    x: -3
                    y: -6
                    width: 6
                    height: 6
                    rotation: 45
                    color: mark.index === 0 ? Theme.accent : Theme.surface
                    border.width: 1
                    border.color: Theme.accent
                }
                Rectangle {
                    anchors.fill: markText
                    anchors.margins: -2
                    color: "#E6FFFFFF"
                }
                Text {
                    id: markText

                    x: Math.max(-mark.x, Math.min(area.width - mark.x - width, -Math.round(width / 2)))
                    y: -height - 8
                    text: mark.modelData.label
                    textFormat: Text.PlainText
                    font: Theme.fixedSmallFont
                    color: Theme.accentDark
                }
            }
        }

        MouseArea {
            id: mouse

            property real lastX: 0
            property real lastY: 0

            objectName: "plotMouse"
            anchors.fill: parent
            hoverEnabled: true
            acceptedButtons: Qt.LeftButton | Qt.RightButton | Qt.MiddleButton
            cursorShape: pressedButtons & Qt.LeftButton ? Qt.ClosedHandCursor : Qt.CrossCursor
            onPressed: event => {
                lastX = event.x;
                lastY = event.y;
                plot.pressed();
            }
            onPositionChanged: event => {
                if (pressedButtons & Qt.LeftButton) {
                    plot.viewState.panX((lastX - event.x) / width);
                    if (event.y !== lastY)
                        plot.viewState.panY((event.y - lastY) / height);
                    lastX = event.x;
                    lastY = event.y;
                }
                plot.viewState.hoverX = plot.toFrequency(event.x);
            }
            onExited: plot.viewState.hoverX = NaN
            onDoubleClicked: event => {
                if (event.button !== Qt.LeftButton)
                    plot.viewState.reset();
            }
            onWheel: event => plot.viewState.wheel(event.angleDelta.y || event.angleDelta.x, event.x / width, 1 - event.y / height, (event.modifiers & Qt.ControlModifier) !== 0)
        }

        Rectangle {
            id: crosshair

            visible: mouse.containsMouse && plot.viewState.hoverTexts.length > 0
            x: Math.round(plot.toX(plot.viewState.hoverX))
            width: 1
            height: parent.height
            color: Theme.textSecondary
        }
        Repeater {
            model: 2

            ChartCursor {
                required property int index
                readonly property real frequency: plot.viewState.cursors[index]

                objectName: "cursor" + name
                name: index === 0 ? "A" : "B"
                visible: frequency >= plot.viewState.xViewMin && frequency <= plot.viewState.xViewMax
                x: Math.round(plot.toX(frequency))
                height: area.height
                onMoved: x => plot.viewState.placeCursor(index, plot.toFrequency(x))
            }
        }
        SpectrumReadout {
            visible: crosshair.visible
            x: crosshair.x + 10 + width <= area.width ? crosshair.x + 10 : Math.max(0, crosshair.x - 10 - width)
            y: 8 + metrics.height
            viewState: plot.viewState
        }
    }
}
