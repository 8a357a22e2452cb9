import QtQuick
import QtQuick3D
import KVCenter.ThreeD

/// The model of a source: a built-in scene, which has the right size, or a file of one of the two kinds, fitted to it.
Node {
    id: body

    property url source
    required property ObjGeometry objModel
    required property MeshFile meshModel
    readonly property bool isScene: String(source).endsWith(".qml")
    readonly property string error: isScene && builtIn.status === Loader3D.Error ? qsTr("The model cannot be shown.") : ""

    Loader3D {
        id: builtIn

        active: body.isScene
        source: body.isScene ? body.source : ""
    }
    FittedModel {
        visible: String(body.objModel.source) !== "" && body.objModel.error === ""
        geometry: visible ? body.objModel : null
        minimum: body.objModel.minimum
        maximum: body.objModel.maximum
    }
    FittedModel {
        visible: String(body.meshModel.source) !== "" && body.meshModel.error === ""
        source: visible ? body.meshModel.source : ""
        minimum: body.meshModel.minimum
        maximum: body.meshModel.maximum
    }
}
