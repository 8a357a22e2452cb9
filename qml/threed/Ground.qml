import QtQuick
import QtQuick3D
import KVCenter.Controls
import QtQuick3D.Helpers

/// The ground below the body: a level grid, and an arrow to the north (+X).
Node {
    y: -58

    Model {
        eulerRotation.x: 90
        geometry: GridGeometry {
            horizontalLines: 11
            verticalLines: 11
            horizontalStep: 16
            verticalStep: 16
        }
        materials: DefaultMaterial {
            lighting: DefaultMaterial.NoLighting
            diffuseColor: Theme.sceneGrid
        }
    }
    Model {
        source: "#Cone"
        x: 70
        eulerRotation.z: -90
        scale: Qt.vector3d(0.02, 0.3, 0.12)
        materials: [mark]
    }
    DefaultMaterial {
        id: mark

        lighting: DefaultMaterial.NoLighting
        diffuseColor: Theme.sceneNorth
    }
}
