import QtQuick
import QtQuick.Templates as T
import KVCenter.Controls

/// A narrow bar that is visible only while there is something to scroll.
T.ScrollBar {
    id: bar

    implicitWidth: 10
    padding: 2
    minimumSize: 0.08
    visible: size < 0.999
    policy: T.ScrollBar.AlwaysOn

    contentItem: Rectangle {
        implicitWidth: 6
        radius: width / 2
        color: bar.pressed || bar.hovered ? Theme.textSecondary : Theme.border
    }
}
