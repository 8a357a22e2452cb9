pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import KVCenter.Controls
import KVCenter.Wave

/// The radio nodes of a gateway, one row each, sixteen of them without scrolling. A click or Space chooses a node for the
/// charts, Alt and the arrow keys move it. Rows keep their place, whatever happens to their nodes.
FocusScope {
    id: table

    required property GatewayDashboardBridge bridge
    /// More nodes than allowed were requested.
    property bool refused: false
    readonly property int fullRows: 16

    function toggle(nodeId: int, chosen: bool) {
        refused = !bridge.setNodeChosen(nodeId, !chosen);
    }

    /// Moves the current node, and its charts.
    function move(rows: int) {
        bridge.moveNode(bridge.nodeModel.nodeIdAt(list.currentIndex), rows);
    }

    implicitWidth: columns.implicitWidth + 2 * columns.x + 10

    component Heading: Text {
        property int characters: 0

        width: Math.ceil(Math.max(implicitWidth, characters * metrics.averageCharacterWidth))
        horizontalAlignment: Text.AlignRight
        textFormat: Text.PlainText
        font: Theme.smallFont
        color: Theme.textSecondary
    }
    component Figure: Text {
        horizontalAlignment: Text.AlignRight
        anchors.verticalCenter: parent?.verticalCenter
        textFormat: Text.PlainText
        font: Theme.fixedFont
        color: Theme.text
    }

    FontMetrics {
        id: metrics

        font: Theme.fixedFont
    }
    FontMetrics {
        id: words

        font: Theme.strongFont
    }

    Rectangle {
        anchors.fill: parent
        radius: 8
        color: Theme.surface
        border.width: 1
        border.color: Theme.line
    }

    Row {
        id: columns

        x: 12
        y: 8
        spacing: 10

        Item {
            id: boxHead

            width: 16
            height: 1
        }
        Heading {
            id: idHead

            characters: 3
            text: qsTr("Node")
        }
        Heading {
            id: stateHead

            width: Math.ceil(Math.max(implicitWidth, 24 + words.averageCharacterWidth * 6))
            horizontalAlignment: Text.AlignLeft
            text: qsTr("State")
        }
        Heading {
            id: rateHead

            characters: 6
            text: qsTr("Rate\nHz")
        }
        Heading {
            id: ageHead

            characters: 7
            text: qsTr("Newest\nago")
        }
        Heading {
            id: missingHead

            characters: 6
            text: qsTr("Missing\nsamples")
        }
        Heading {
            id: temperatureHead

            characters: 5
            text: qsTr("Temp.\n°C")
        }
        Heading {
            id: pressureHead

            characters: 7
            text: qsTr("Pressure\nPa")
        }
    }

    ListView {
        id: list

        objectName: "nodeList"
        anchors {
            left: parent.left
            right: parent.right
            top: columns.bottom
            bottom: foot.top
            topMargin: 6
            bottomMargin: 4
            leftMargin: 1
            rightMargin: 1
        }
        focus: true
        activeFocusOnTab: true
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        keyNavigationEnabled: true
        model: table.bridge.nodeModel
        Keys.onPressed: event => {
            if ((event.modifiers & Qt.AltModifier) && (event.key === Qt.Key_Up || event.key === Qt.Key_Down)) {
                event.accepted = true;
                table.move(event.key === Qt.Key_Up ? -1 : 1);
                return;
            }
            event.accepted = [Qt.Key_Space, Qt.Key_Return, Qt.Key_Enter].includes(event.key) && currentItem !== null;
            if (event.accepted)
                (currentItem as T.ItemDelegate).clicked();
        }
        T.ScrollBar.vertical: SlimScrollBar {
        }

        delegate: T.ItemDelegate {
            id: row

            required property int index
            required property int nodeId
            required property int nodeState
            required property string stateText
            required property bool chosen
            required property string rateText
            required property string ageText
            required property string missingText
            required property string temperatureText
            required property string pressureText
            readonly property color ink: nodeState >= 2 ? Theme.textSecondary : Theme.text

            objectName: "node_" + nodeId
            width: list.width
            height: Math.max(Math.ceil(words.height) + 4, Math.min(34, Math.floor(list.height / table.fullRows)))
            hoverEnabled: true
            focusPolicy: Qt.NoFocus
            Accessible.role: Accessible.CheckBox
            Accessible.name: qsTr("Node %1, %2").arg(nodeId).arg(stateText)
            Accessible.checked: chosen
            onClicked: {
                list.currentIndex = index;
                list.forceActiveFocus();
                table.toggle(nodeId, chosen);
            }

            background: Rectangle {
                color: row.nodeState === 2 ? Theme.badSoft : row.nodeState === 1 ? Theme.warningSoft : row.chosen ? Theme.accentSoft : row.hovered ? Theme.background : Theme.surface
                border.width: row.ListView.isCurrentItem && list.activeFocus ? 2 : 0
                border.color: Theme.accent

                Rectangle {
                    width: 3
                    height: parent.height
                    visible: row.chosen
                    color: Theme.accent
                }
                Rectangle {
                    anchors.bottom: parent.bottom
                    width: parent.width
                    height: 1
                    color: Theme.line
                }
            }
            contentItem: Item {
                Row {
                    x: columns.x - 1
                    height: parent.height
                    spacing: columns.spacing

                    Rectangle {
                        anchors.verticalCenter: parent.verticalCenter
                        width: boxHead.width
                        height: width
                        radius: 3
                        color: row.chosen ? Theme.accent : Theme.surface
                        border.width: 1
                        border.color: row.chosen ? Theme.accent : Theme.border

                        // A tick: the right and the lower edge of a box that stands on its corner.
                        Item {
                            anchors.centerIn: parent
                            anchors.verticalCenterOffset: -1
                            width: 5
                            height: 9
                            rotation: 45
                            visible: row.chosen

                            Rectangle {
                                anchors.right: parent.right
                                width: 2
                                height: parent.height
                                antialiasing: true
                                color: Theme.surface
                            }
                            Rectangle {
                                anchors.bottom: parent.bottom
                                width: parent.width
                                height: 2
                                antialiasing: true
                                color: Theme.surface
                            }
                        }
                    }
                    Figure {
                        width: idHead.width
                        font: Theme.fixedFont
                        text: row.nodeId
                    }
                    NodeStateMark {
                        anchors.verticalCenter: parent.verticalCenter
                        width: stateHead.width
                        nodeState: row.nodeState
                        text: row.stateText
                    }
                    Figure {
                        width: rateHead.width
                        color: row.ink
                        text: row.rateText
                    }
                    Figure {
                        width: ageHead.width
                        text: row.ageText
                    }
                    Figure {
                        width: missingHead.width
                        text: row.missingText
                    }
                    Figure {
                        width: temperatureHead.width
                        color: row.ink
                        text: row.temperatureText
                    }
                    Figure {
                        width: pressureHead.width
                        color: row.ink
                        text: row.pressureText
                    }
                }
            }
        }
    }

    Row {
        id: movers

        anchors {
            right: parent.right
            bottom: parent.bottom
            margins: 4
        }
        visible: list.count > 1

        ActionButton {
            objectName: "moveUp"
            bare: true
            iconName: "up"
            hint: qsTr("Move the node and its charts up")
            keys: qsTr("Alt+Up")
            onClicked: table.move(-1)
        }
        ActionButton {
            objectName: "moveDown"
            bare: true
            iconName: "down"
            hint: qsTr("Move the node and its charts down")
            keys: qsTr("Alt+Down")
            onClicked: table.move(1)
        }
    }
    Text {
        id: foot

        anchors {
            left: parent.left
            right: movers.visible ? movers.left : parent.right
            bottom: parent.bottom
            margins: 8
            leftMargin: 12
        }
        objectName: "foot"
        wrapMode: Text.WordWrap
        text: table.refused ? qsTr("%1 nodes are already shown. Remove one first.").arg(table.bridge.maxChosenNodes) : qsTr("%1 of %2 nodes chosen for charts").arg(table.bridge.chosenNodes.length).arg(table.bridge.maxChosenNodes)
        textFormat: Text.PlainText
        font: Theme.smallFont
        color: table.refused ? Theme.warning : Theme.textSecondary
    }
}
