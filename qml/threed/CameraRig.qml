import QtQuick
import QtQuick3D

/// Where the camera looks from: on a sphere around `position`. The default is behind the body, to its right and above.
QtObject {
    id: rig

    /// Degrees; 0 looks to -Z, -90 to +X.
    property real azimuth: defaultAzimuth
    /// Degrees above the ground.
    property real elevation: defaultElevation
    property real distance: defaultDistance
    property vector3d position: Qt.vector3d(0, 0, 0)
    readonly property quaternion rotation: Quaternion.fromEulerAngles(-elevation, azimuth, 0)

    readonly property real defaultAzimuth: -62
    readonly property real defaultElevation: 20
    readonly property real defaultDistance: 290
    readonly property real reach: 150

    signal changed

    function reset() {
        azimuth = defaultAzimuth;
        elevation = defaultElevation;
        distance = defaultDistance;
        position = Qt.vector3d(0, 0, 0);
        changed();
    }
    function turn(dAzimuth: real, dElevation: real) {
        azimuth = (azimuth + dAzimuth) % 360;
        elevation = Math.max(-89, Math.min(89, elevation + dElevation));
        changed();
    }
    /// A factor above 1 moves closer.
    function zoom(factor: real) {
        distance = Math.max(90, Math.min(1200, distance / factor));
        changed();
    }
    /// In units of the picture plane, to the right and up.
    function move(right: real, up: real) {
        const to = position.plus(rotation.times(Qt.vector3d(right, up, 0)));
        const inReach = value => Math.max(-reach, Math.min(reach, value));
        position = Qt.vector3d(inReach(to.x), inReach(to.y), inReach(to.z));
        changed();
    }
}
