import QtQuick
import QtQuick3D
import KVCenter.Controls
import KVCenter.ThreeD

/// A body in its attitude over a ground with compass marks. World axes are those of the display frame: X forward or
/// north, Y up, Z to the right or east. A unit is 1/50 of a model's radius.
///
/// Left drag and arrow keys turn the camera around the body, right or middle drag moves it, the wheel and + and - zoom;
/// a double-click and Home reset it.
Item {
    id: scene

    required property AttitudeBackend attitude
    /// What is wrong with the model; empty when it is shown.
    readonly property string modelError: objModel.error || meshModel.error || body.error
    readonly property string sourceName: String(attitude.objSource).toLowerCase()

    CameraRig {
        id: rig

        onChanged: marks.revision++
    }
    Connections {
        target: scene.attitude

        function onCameraResetRequested() {
            rig.reset();
        }
    }

    ObjGeometry {
        id: objModel

        source: scene.sourceName.endsWith(".obj") ? scene.attitude.objSource : ""
    }
    MeshFile {
        id: meshModel

        source: scene.sourceName.endsWith(".mesh") ? scene.attitude.objSource : ""
    }

    Node {
        id: world

        Node {
            position: rig.position
            rotation: rig.rotation

            // From over the left shoulder, so that every side shows its shape.
            DirectionalLight {
                eulerRotation: Qt.vector3d(-18, -24, 0)
                brightness: 0.4
            }
        }
        DirectionalLight {
            eulerRotation: Qt.vector3d(-65, -35, 0)
            brightness: 0.4
            ambientColor: Theme.sceneLight
        }

        Ground {}

        Node {
            rotation: scene.attitude.quaternion

            BodyModel {
                id: body

                source: scene.attitude.objSource
                objModel: objModel
                meshModel: meshModel
            }
            BodyAxes {
                attitude: scene.attitude
            }
        }
        // The home reference: a ghost of the body in the stored pose.
        Node {
            rotation: scene.attitude.homeQuaternion
            visible: scene.attitude.homeReferenceActive
            opacity: 0.22

            BodyModel {
                source: scene.attitude.homeReferenceActive ? scene.attitude.objSource : ""
                objModel: objModel
                meshModel: meshModel
            }
        }
        Node {
            position: rig.position
            rotation: rig.rotation

            PerspectiveCamera {
                id: camera

                z: rig.distance
                fieldOfView: 32
                clipNear: 5
                clipFar: 3000
            }
        }
    }
    // After the world, so that it is destroyed after it: parts of the world that have not been drawn yet remove
    // themselves from its list.
    View3D {
        id: view

        objectName: "view3D"
        anchors.fill: parent
        camera: camera
        importScene: world
        renderMode: View3D.Inline
        // Without an intermediate image, which costs more than the scene where there is no GPU.
        environment: SceneEnvironment {
            backgroundMode: SceneEnvironment.Transparent
        }
    }

    SceneMarks {
        id: marks

        anchors.fill: parent
        view: view
        attitude: scene.attitude
        onWidthChanged: revision++
        onHeightChanged: revision++
    }

    CameraMouse {
        anchors.fill: parent
        rig: rig
        focus: true
    }
    Text {
        anchors {
            left: parent.left
            right: parent.right
            bottom: parent.bottom
            margins: 10
        }
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.WordWrap
        text: qsTr("Drag to turn, right-drag to move, wheel to zoom, double-click to reset")
        textFormat: Text.PlainText
        font: Theme.smallFont
        color: Theme.textSecondary
    }
}
