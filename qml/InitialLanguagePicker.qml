// The first thing that a new user sees: the choice of the language. It is independent of the program's other
// components, so that nothing else has to work for it. Every name is written in its own language; the few other words
// are English.
import QtQuick

Rectangle {
    id: root

    // Options: maps with "label", "code" and "recommended".
    property var languageOptions: []
    property int preferredIndex: 0
    property int selectedIndex: 0

    readonly property int minimumDialogWidth: 540
    readonly property int minimumDialogHeight: 600
    readonly property int preferredDialogWidth: 660
    readonly property int preferredDialogHeight: 760
    readonly property int maximumDialogWidth: 860
    readonly property int maximumDialogHeight: 960

    /// Colours by the names of Palette.
    property var colors: ({})
    readonly property color accent: colors.accent
    readonly property color ink: colors.text
    readonly property color inkSecondary: colors.textSecondary

    signal confirmRequested
    signal cancelRequested

    color: colors.background
    focus: true

    function move(step: int): void {
        const count = root.languageOptions.length;
        if (count > 0)
            root.selectedIndex = Math.max(0, Math.min(count - 1, root.selectedIndex + step));
    }

    Keys.onUpPressed: move(-1)
    Keys.onDownPressed: move(1)
    Keys.onReturnPressed: confirmRequested()
    Keys.onEnterPressed: confirmRequested()
    Keys.onEscapePressed: cancelRequested()

    component PushButton: Rectangle {
        id: button

        property string text
        property bool primary: false
        signal clicked

        implicitWidth: Math.max(120, label.implicitWidth + 48)
        implicitHeight: 40
        radius: 8
        color: primary ? (area.containsMouse ? root.colors.accentPressed : root.accent) : (area.containsMouse ? root.colors.surfaceAlt : root.colors.surface)
        border.color: primary ? color : root.colors.border

        Accessible.role: Accessible.Button
        Accessible.name: text

        Text {
            id: label
            anchors.centerIn: parent
            text: button.text
            font.pixelSize: 15
            color: button.primary ? root.colors.onAccent : root.ink
        }
        MouseArea {
            id: area
            anchors.fill: parent
            hoverEnabled: true
            onClicked: button.clicked()
        }
    }

    Column {
        id: heading
        anchors {
            left: parent.left
            right: parent.right
            top: parent.top
            margins: 40
        }
        spacing: 8

        Text {
            text: "Choose Language"
            font.pixelSize: 28
            font.weight: Font.DemiBold
            color: root.ink
        }
        Text {
            width: parent.width
            text: "It can be changed at any time in the main window's menu bar."
            wrapMode: Text.WordWrap
            font.pixelSize: 15
            color: root.inkSecondary
        }
    }

    ListView {
        id: list
        anchors {
            left: parent.left
            right: parent.right
            top: heading.bottom
            bottom: buttons.top
            leftMargin: 40
            rightMargin: 40
            topMargin: 24
            bottomMargin: 24
        }
        clip: true
        spacing: 12
        boundsBehavior: Flickable.StopAtBounds
        model: root.languageOptions
        currentIndex: root.selectedIndex
        highlightFollowsCurrentItem: true

        delegate: Rectangle {
            id: option

            required property int index
            required property var modelData
            readonly property bool chosen: index === root.selectedIndex

            width: ListView.view.width
            height: 68
            radius: 10
            color: root.colors.surface
            border.width: chosen ? 2 : 1
            border.color: chosen ? root.accent : (optionArea.containsMouse ? root.colors.hover : root.colors.edge)

            Accessible.role: Accessible.RadioButton
            Accessible.name: modelData.label
            Accessible.checked: chosen

            Rectangle {
                id: dot
                anchors {
                    left: parent.left
                    leftMargin: 20
                    verticalCenter: parent.verticalCenter
                }
                width: 20
                height: 20
                radius: 10
                border.width: option.chosen ? 6 : 1.5
                border.color: option.chosen ? root.accent : root.colors.borderStrong
                color: root.colors.surface
            }
            Text {
                anchors {
                    left: dot.right
                    leftMargin: 16
                    right: badge.visible ? badge.left : parent.right
                    rightMargin: 16
                    verticalCenter: parent.verticalCenter
                }
                text: option.modelData.label
                elide: Text.ElideRight
                font.pixelSize: 19
                font.weight: option.chosen ? Font.DemiBold : Font.Normal
                color: root.ink
            }
            Rectangle {
                id: badge
                anchors {
                    right: parent.right
                    rightMargin: 20
                    verticalCenter: parent.verticalCenter
                }
                visible: option.modelData.recommended
                width: badgeText.implicitWidth + 20
                height: 26
                radius: 13
                color: root.colors.mark

                Text {
                    id: badgeText
                    anchors.centerIn: parent
                    text: "System"
                    font.pixelSize: 13
                    color: root.colors.accentText
                }
            }
            MouseArea {
                id: optionArea
                anchors.fill: parent
                hoverEnabled: true
                onClicked: root.selectedIndex = option.index
                onDoubleClicked: root.confirmRequested()
            }
        }
    }

    Row {
        id: buttons
        anchors {
            right: parent.right
            bottom: parent.bottom
            margins: 40
        }
        spacing: 12

        PushButton {
            text: "Cancel"
            onClicked: root.cancelRequested()
        }
        PushButton {
            text: "OK"
            primary: true
            onClicked: root.confirmRequested()
        }
    }
}
