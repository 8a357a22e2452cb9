import QtQuick
import QtQuick.Controls.Basic

/// Holds a view that needs more room than its window has. It scrolls by its bars and follows the focus; the wheel and
/// drags belong to the view.
Flickable {
    id: stage

    readonly property Item focused: Window.activeFocusItem

    interactive: false
    clip: true
    boundsBehavior: Flickable.StopAtBounds
    onFocusedChanged: {
        let inside = focused;
        while (inside && inside !== contentItem)
            inside = inside.parent;
        if (!inside || focused.width > width || focused.height > height)
            return;
        const place = focused.mapToItem(contentItem, 0, 0);
        contentX = Math.max(0, Math.min(place.x, Math.max(contentX, place.x + focused.width - width)));
        contentY = Math.max(0, Math.min(place.y, Math.max(contentY, place.y + focused.height - height)));
    }

    ScrollBar.horizontal: ScrollBar {
        policy: stage.contentWidth > stage.width ? ScrollBar.AlwaysOn : ScrollBar.AlwaysOff
    }
    ScrollBar.vertical: ScrollBar {
        policy: stage.contentHeight > stage.height ? ScrollBar.AlwaysOn : ScrollBar.AlwaysOff
    }
}
