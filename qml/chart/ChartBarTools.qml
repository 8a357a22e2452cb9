import QtQuick
import KVCenter.Controls
import KVCenter.Chart

/// The buttons in the bar of a window with several charts: save them all, list the markers, couple the charts. The
/// window shows its panels according to `saving` and `listing`, and couples on `linkRequested`.
Row {
    id: tools

    required property ChartLink link
    required property MarkerList markers
    property bool saving: false
    property alias listing: markerButton.checked

    signal linkRequested(bool linked)

    spacing: 4

    ActionButton {
        objectName: "saveButton"
        checked: tools.saving
        iconName: "save"
        hint: qsTr("Save charts")
        onClicked: tools.saving = !tools.saving
    }
    ActionButton {
        id: markerButton

        objectName: "markerButton"
        checkable: true
        iconName: "marker"
        text: tools.markers.count > 0 ? String(tools.markers.count) : ""
        hint: qsTr("List of markers; M sets one")
    }
    ActionButton {
        objectName: "linkButton"
        checked: tools.link.linked
        iconName: "link"
        hint: checked ? qsTr("Let each chart have its own time axis and cursors") : qsTr("Couple time axes and cursors of all charts")
        onClicked: tools.linkRequested(!tools.link.linked)
    }
}
