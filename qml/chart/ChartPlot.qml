pragma ComponentBehavior: Bound

import QtQuick
import KVCenter.Controls
import KVCenter.Chart

/// The frame of every chart: axes, grid, lines, crosshair with readout, and cursors. The wheel zooms the main axis
/// about the pointer, with Ctrl the other one, and pans sideways; dragging pans, with Shift it draws a box to zoom to; a
/// double click resets.
///
/// Items that a kind of chart adds are under the grid (`underlay`), over the lines (`overlay`), or over everything as
/// something to be dragged (`handles`), in the pixels of `area`.
Item {
    id: plot

    required property PlotViewState viewState
    property string xUnit
    /// Whether dragging moves both axes; otherwise it moves the horizontal one, with Ctrl the vertical one.
    property bool pansBothAxes: false
    /// Buttons whose double click resets.
    property int resetButtons: Qt.LeftButton
    property alias underlay: under.data
    property alias overlay: over.data
    property alias handles: grips.data
    readonly property alias area: plotArea
    readonly property real xSpan: viewState.xViewMax - viewState.xViewMin
    readonly property real ySpan: viewState.yViewMax - viewState.yViewMin

    signal pressed

    function toX(position: real): real {
        return (position - viewState.xViewMin) / xSpan * plotArea.width;
    }
    function toPosition(x: real): real {
        return viewState.xViewMin + x / plotArea.width * xSpan;
    }
    function toY(level: real): real {
        return (1 - (level - viewState.yViewMin) / ySpan) * plotArea.height;
    }
    function toLevel(y: real): real {
        return viewState.yViewMin + (1 - y / plotArea.height) * ySpan;
    }

    FontMetrics {
        id: metrics

        readonly property real digit: advanceWidth("0")

        font: Theme.smallFont
    }
    ChartAxis {
        id: xAxis

        min: plot.viewState.xViewMin
        max: plot.viewState.xViewMax
        length: plotArea.width
        spacing: metrics.digit * 9
        unit: plot.xUnit
    }
    ChartAxis {
        id: yAxis

        min: plot.viewState.yViewMin
        max: plot.viewState.yViewMax
        length: plotArea.height
        spacing: metrics.height * 2
    }

    Item {
        id: plotArea

        anchors {
            fill: parent
            // Room for the longest text; five characters at least, so that the plot seldom moves.
            leftMargin: Math.ceil(metrics.digit * Math.max(5, yAxis.labelLength)) + 8
            rightMargin: Math.ceil(Math.max(metrics.digit * 1.5, endLabels.width - 6))
            topMargin: Math.ceil(readout.implicitHeight) + 2
            bottomMargin: Math.ceil(metrics.height) + 4
        }

        Item {
            id: under

            anchors.fill: parent
            clip: true
        }
        Repeater {
            model: yAxis.count

            Item {
                id: yTick

                required property int index

                y: Math.round(plotArea.height * (1 - (yAxis.positions[index] ?? 0)))

                Rectangle {
                    width: plotArea.width
                    height: 1
                    color: Theme.line
                }
                Text {
                    x: -width - 6
                    y: -Math.round(height / 2)
                    text: yAxis.labels[yTick.index] ?? ""
                    textFormat: Text.PlainText
                    font: Theme.smallFont
                    color: Theme.textSecondary
                }
            }
        }
        Repeater {
            model: xAxis.count

            Item {
                id: xTick

                required property int index

                x: Math.round(plotArea.width * (xAxis.positions[index] ?? 0))

                Rectangle {
                    width: 1
                    height: plotArea.height
                    color: Theme.line
                }
                Text {
                    // The last one stays inside the card.
                    x: Math.min(-Math.round(width / 2), plotArea.width - xTick.x + plotArea.anchors.rightMargin - width)
                    y: plotArea.height + 4
                    text: xAxis.labels[xTick.index] ?? ""
                    textFormat: Text.PlainText
                    font: Theme.smallFont
                    color: Theme.textSecondary
                }
            }
        }

        // The name of each curve where it ends, so that colour is not all that distinguishes them.
        Item {
            id: endLabels

            readonly property var places: plot.viewState.ends.length > 1 ? plot.viewState.labelPlaces(plotArea.height, metrics.height * 0.9) : []

            objectName: "endLabels"
            x: plotArea.width + 5
            width: plot.viewState.seriesLabels.length > 1 ? longest.advanceWidth : 0

            TextMetrics {
                id: longest

                font: Theme.smallFont
                text: plot.viewState.longestLabel
            }
            Repeater {
                model: plot.viewState.seriesLabels.length > 1 ? plot.viewState.seriesLabels.length : 0

                Text {
                    required property int index
                    readonly property real place: endLabels.places[index] ?? NaN

                    visible: !isNaN(place)
                    y: isNaN(place) ? 0 : Math.round(place - height / 2)
                    text: plot.viewState.seriesLabels[index] ?? ""
                    textFormat: Text.PlainText
                    font: Theme.smallFont
                    color: plot.viewState.seriesColors[index] ?? Theme.text
                }
            }
        }
        SeriesItem {
            objectName: "series"
            anchors.fill: parent
            anchors.margins: -2 // ChartLines::kBleed: a line on the edge is not cut
            viewState: plot.viewState
        }
        // The user's markers: a flag at the foot distinguishes them from cursors and breaks.
        Repeater {
            model: plot.viewState.markerPlaces.length

            Rectangle {
                id: marker

                required property int index

                objectName: "marker"
                x: Math.round(plot.toX(plot.viewState.markerPlaces[index] ?? NaN))
                width: 1
                height: plotArea.height
                color: Theme.accentText

                Text {
                    x: 3
                    y: plotArea.height - height
                    width: Math.min(implicitWidth, plot.toX(plot.viewState.markerPlaces[marker.index + 1] ?? plot.viewState.xViewMax) - marker.x - 6)
                    visible: width > 12
                    elide: Text.ElideRight
                    text: plot.viewState.markerTexts[marker.index] ?? ""
                    textFormat: Text.PlainText
                    font: Theme.smallFont
                    color: Theme.accentText
                }
            }
        }
        Item {
            id: over

            anchors.fill: parent
        }

        MouseArea {
            id: mouse

            property real lastX: 0
            property real lastY: 0
            property bool boxing: false

            objectName: "plotMouse"
            anchors.fill: parent
            hoverEnabled: true
            acceptedButtons: Qt.LeftButton | plot.resetButtons
            cursorShape: pressedButtons & Qt.LeftButton ? Qt.ClosedHandCursor : Qt.CrossCursor
            onPressed: event => {
                lastX = event.x;
                lastY = event.y;
                boxing = event.button === Qt.LeftButton && (event.modifiers & Qt.ShiftModifier) !== 0;
                plot.pressed();
            }
            onPositionChanged: event => {
                if ((pressedButtons & Qt.LeftButton) && !boxing) {
                    const vertical = (event.modifiers & Qt.ControlModifier) !== 0;
                    if (plot.pansBothAxes || !vertical)
                        plot.viewState.panX((lastX - event.x) / width);
                    if ((plot.pansBothAxes || vertical) && event.y !== lastY)
                        plot.viewState.panY((event.y - lastY) / height);
                    lastX = event.x;
                    lastY = event.y;
                }
                plot.viewState.hoverX = plot.toPosition(event.x);
            }
            onReleased: event => {
                if (boxing)
                    plot.viewState.zoomToBox(lastX / width, 1 - lastY / height, event.x / width, 1 - event.y / height);
                boxing = false;
            }
            onCanceled: boxing = false
            onEntered: plot.viewState.hoverX = plot.toPosition(mouseX)
            onExited: plot.viewState.hoverX = NaN
            onDoubleClicked: event => {
                if (event.button & plot.resetButtons)
                    plot.viewState.reset();
            }
            onWheel: event => plot.viewState.wheel(event.angleDelta.x, event.angleDelta.y, event.x / width, 1 - event.y / height, (event.modifiers & Qt.ControlModifier) !== 0)
        }

        Rectangle {
            objectName: "zoomBox"
            visible: mouse.boxing
            x: Math.max(0, Math.min(mouse.lastX, mouse.mouseX))
            y: Math.max(0, Math.min(mouse.lastY, mouse.mouseY))
            width: Math.min(plotArea.width, Math.max(mouse.lastX, mouse.mouseX)) - x
            height: Math.min(plotArea.height, Math.max(mouse.lastY, mouse.mouseY)) - y
            color: "transparent"
            border.width: 1
            border.color: Theme.accent

            Rectangle {
                anchors.fill: parent
                color: Theme.accent
                opacity: 0.1
            }
        }
        Rectangle {
            id: crosshair

            visible: plot.viewState.hoverTexts.length > 0 && x >= 0 && x <= plotArea.width
            x: Math.round(plot.toX(plot.viewState.hoverX))
            width: 1
            height: parent.height
            color: Theme.textSecondary
        }
        Repeater {
            model: 2

            ChartCursor {
                required property int index
                readonly property double position: plot.viewState.cursors[index]

                objectName: "cursor" + name
                name: index === 0 ? "A" : "B"
                visible: position >= plot.viewState.xViewMin && position <= plot.viewState.xViewMax
                x: Math.round(plot.toX(position))
                height: plotArea.height
                onMoved: x => plot.viewState.placeCursor(index, plot.toPosition(x))
            }
        }
        Item {
            id: grips

            anchors.fill: parent
        }
        ChartReadout {
            id: readout

            objectName: "readout"
            // Starts above the value axis: a narrow plot needs the room.
            x: -plotArea.anchors.leftMargin + 4
            y: -height - 1
            width: plot.width - 4
            height: implicitHeight
            visible: crosshair.visible
            viewState: plot.viewState
        }
    }
}
