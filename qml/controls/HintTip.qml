import QtQuick
import QtQuick.Templates as T
import KVCenter.Controls

/// The one tooltip: put it into an item and bind `visible` to the item's hovered state.
T.ToolTip {
    id: control

    x: parent ? Math.round((parent.width - implicitWidth) / 2) : 0
    y: parent ? parent.height + 4 : 0
    implicitWidth: Math.min(contentItem.implicitWidth, 420) + leftPadding + rightPadding
    implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding
    margins: 4
    horizontalPadding: 8
    verticalPadding: 5
    delay: 500
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent

    contentItem: Text {
        text: control.text
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        font: Theme.smallFont
        color: Theme.toolTipText
    }
    background: Rectangle {
        radius: 4
        color: Theme.toolTip
    }
}
