pragma ComponentBehavior: Bound

import QtQuick
import KVCenter.Controls

/// The ground of a card with rounded corners. A rounded rectangle as a whole is blended pixel by pixel, also where plain
/// items cover it; here only its corners are.
Item {
    id: card

    property color lineColor: Theme.line
    readonly property int radius: 8

    Repeater {
        model: 4

        Rectangle {
            required property int index

            x: index % 2 === 0 ? 0 : card.width - width
            y: index < 2 ? 0 : card.height - height
            width: 2 * card.radius
            height: width
            radius: card.radius
            color: Theme.surface
            border.width: 1
            border.color: card.lineColor
        }
    }
    // Ground and edges side by side: nothing is drawn twice.
    component Part: Rectangle {
        color: Theme.surface
    }
    component Edge: Rectangle {
        color: card.lineColor
    }

    Part {
        x: 1
        y: card.radius
        width: card.width - 2
        height: card.height - 2 * card.radius
    }
    Part {
        x: card.radius
        y: 1
        width: card.width - 2 * card.radius
        height: card.radius - 1
    }
    Part {
        x: card.radius
        y: card.height - card.radius
        width: card.width - 2 * card.radius
        height: card.radius - 1
    }
    Edge {
        x: card.radius
        width: card.width - 2 * card.radius
        height: 1
    }
    Edge {
        x: card.radius
        y: card.height - 1
        width: card.width - 2 * card.radius
        height: 1
    }
    Edge {
        y: card.radius
        width: 1
        height: card.height - 2 * card.radius
    }
    Edge {
        x: card.width - 1
        y: card.radius
        width: 1
        height: card.height - 2 * card.radius
    }
}
