pragma ComponentBehavior: Bound

import QtQuick
import KVCenter.Controls
import KVCenter.Wave

/// Axes, grid, lines, crosshair and cursors of a chart. The wheel zooms time about the pointer, with Ctrl the values;
/// dragging pans, with Ctrl the values too; a double click resets.
Item {
    id: plot

    required property ChartViewState viewState
    readonly property real xSpan: viewState.xViewMax - viewState.xViewMin

    signal pressed

    function toX(seconds: real): real {
        return (seconds - viewState.xViewMin) / xSpan * area.width;
    }
    function toSeconds(x: real): real {
        return viewState.xViewMin + x / area.width * xSpan;
    }

    FontMetrics {
        id: metrics

        readonly property real digit: advanceWidth("0")

        font: Theme.smallFont
    }
    ChartAxis {
        id: timeAxis

        min: plot.viewState.xViewMin
        max: plot.viewState.xViewMax
        length: area.width
        spacing: metrics.digit * 9
        unit: "s"
    }
    ChartAxis {
        id: valueAxis

        min: plot.viewState.yViewMin
        max: plot.viewState.yViewMax
        length: area.height
        spacing: metrics.height * 2
    }

    Item {
        id: area

        anchors {
            fill: parent
            // Room for the longest text; five characters at least, so that the plot seldom moves.
            leftMargin: Math.ceil(metrics.digit * Math.max(5, valueAxis.labelLength)) + 8
            rightMargin: Math.ceil(metrics.digit * 1.5)
            topMargin: Math.ceil(metrics.height / 2)
            bottomMargin: Math.ceil(metrics.height) + 4
        }

        Repeater {
            model: valueAxis.count

            Item {
                id: valueTick

                required property int index

                y: Math.round(area.height * (1 - (valueAxis.positions[index] ?? 0)))

                Rectangle {
                    width: area.width
                    height: 1
                    color: Theme.line
                }
                Text {
                    x: -width - 6
                    y: -Math.round(height / 2)
                    text: valueAxis.labels[valueTick.index] ?? ""
                    textFormat: Text.PlainText
                    font: Theme.smallFont
                    color: Theme.textSecondary
                }
            }
        }
        Repeater {
            model: timeAxis.count

            Item {
                id: timeTick

                required property int index

                x: Math.round(area.width * (timeAxis.positions[index] ?? 0))

                Rectangle {
                    width: 1
                    height: area.height
                    color: Theme.line
                }
                Text {
                    // The last one keeps inside the card.
                    x: Math.min(-Math.round(width / 2), area.width - timeTick.x + area.anchors.rightMargin - width)
                    y: area.height + 4
                    text: timeAxis.labels[timeTick.index] ?? ""
                    textFormat: Text.PlainText
                    font: Theme.smallFont
                    color: Theme.textSecondary
                }
            }
        }

        SeriesItem {
            objectName: "series"
            anchors.fill: parent
            viewState: plot.viewState
        }

        // Where the stream started again.
        Repeater {
            model: plot.viewState.breakSeconds.length

            Rectangle {
                id: breakMark

                required property int index
                readonly property real seconds: plot.viewState.breakSeconds[index] ?? NaN

                objectName: "breakMark"
                visible: seconds >= plot.viewState.xViewMin && seconds <= plot.viewState.xViewMax
                x: Math.round(plot.toX(seconds))
                width: 1
                height: area.height
                color: Theme.warning

                Text {
                    // Left of the line: the silence is there, not the samples.
                    x: Math.max(-breakMark.x, -width - 3)
                    text: plot.viewState.breakTexts[breakMark.index] ?? ""
                    textFormat: Text.PlainText
                    font: Theme.smallFont
                    color: Theme.warning
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
            cursorShape: pressed ? Qt.ClosedHandCursor : Qt.CrossCursor
            onPressed: event => {
                lastX = event.x;
                lastY = event.y;
                plot.pressed();
            }
            onPositionChanged: event => {
                if (pressed) {
                    if (event.modifiers & Qt.ControlModifier)
                        plot.viewState.panY((event.y - lastY) / height);
                    else
                        plot.viewState.panX((lastX - event.x) / width);
                    lastX = event.x;
                    lastY = event.y;
                }
                plot.viewState.hoverX = plot.toSeconds(event.x);
            }
            onExited: plot.viewState.hoverX = NaN
            onDoubleClicked: plot.viewState.reset()
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

                readonly property double seconds: plot.viewState.cursors[index]

                objectName: "cursor" + name
                name: index === 0 ? "A" : "B"
                visible: seconds >= plot.viewState.xViewMin && seconds <= plot.viewState.xViewMax
                x: Math.round(plot.toX(seconds))
                height: area.height
                onMoved: x => plot.viewState.placeCursor(index, plot.toSeconds(x))
            }
        }
        ChartReadout {
            visible: crosshair.visible
            // Beside the crosshair, on the side that has room.
            x: crosshair.x + 10 + width <= area.width ? crosshair.x + 10 : Math.max(0, crosshair.x - 10 - width)
            y: 8
            viewState: plot.viewState
        }
    }
}
