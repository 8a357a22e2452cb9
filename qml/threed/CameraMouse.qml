import QtQuick

/// Mouse and key input of the picture.
MouseArea {
    id: area

    required property CameraRig rig
    property point last

    acceptedButtons: Qt.LeftButton | Qt.RightButton | Qt.MiddleButton
    cursorShape: pressed ? Qt.ClosedHandCursor : Qt.OpenHandCursor

    onPressed: event => {
        last = Qt.point(event.x, event.y);
        forceActiveFocus();
        Window.window.requestActivate(); // keys are handled here after a click
    }
    onPositionChanged: event => {
        const dx = event.x - last.x;
        const dy = event.y - last.y;
        last = Qt.point(event.x, event.y);
        if (event.buttons & Qt.LeftButton) {
            rig.turn(-0.4 * dx, 0.4 * dy);
        } else {
            const units = 0.57 * rig.distance / Math.max(1, height);
            rig.move(-dx * units, dy * units);
        }
    }
    onWheel: event => rig.zoom(Math.pow(1.1, event.angleDelta.y / 120))
    onDoubleClicked: rig.reset()

    Keys.onPressed: event => {
        event.accepted = true;
        switch (event.key) {
        case Qt.Key_Left:
            rig.turn(5, 0);
            break;
        case Qt.Key_Right:
            rig.turn(-5, 0);
            break;
        case Qt.Key_Up:
            rig.turn(0, 5);
            break;
        case Qt.Key_Down:
            rig.turn(0, -5);
            break;
        case Qt.Key_Plus:
        case Qt.Key_Equal:
            rig.zoom(1.1);
            break;
        case Qt.Key_Minus:
            rig.zoom(1 / 1.1);
            break;
        case Qt.Key_Home:
            rig.reset();
            break;
        default:
            event.accepted = false;
        }
    }
}
