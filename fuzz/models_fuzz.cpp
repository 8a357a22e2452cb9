// A model file, fed into the OBJ reader and the mesh file check. Input: the file.

#include <QUrl>

#include <cmath>
#include <cstring>

#include "attitude/mesh_file.h"
#include "attitude/obj_reader.h"
#include "fuzz/support/fuzz_input.h"
#include "fuzz/support/memory_file.h"
#include "fuzz/support/require.h"

namespace {

constexpr int kFloatsPerVertex = 6;

bool isBox(const QVector3D &minimum, const QVector3D &maximum)
{
    for (int axis = 0; axis < 3; ++axis) {
        if (!std::isfinite(minimum[axis]) || !std::isfinite(maximum[axis]) || minimum[axis] > maximum[axis])
            return false;
    }
    return true;
}

void checkMesh(const TriangleMesh &mesh)
{
    const qsizetype vertices = mesh.vertices.size() / TriangleMesh::kStride;
    require(vertices > 0 && vertices % 3 == 0 && mesh.vertices.size() % TriangleMesh::kStride == 0,
            "a model consists of whole triangles");
    require(vertices / 3 <= ObjReader::kMaxTriangles, "triangles are bounded");
    require(isBox(mesh.minimum, mesh.maximum), "a model has a box");
    for (qsizetype i = 0; i < vertices; ++i) {
        float vertex[kFloatsPerVertex];
        std::memcpy(vertex, mesh.vertices.constData() + i * TriangleMesh::kStride, sizeof vertex);
        for (int axis = 0; axis < 3; ++axis)
            require(vertex[axis] >= mesh.minimum[axis] && vertex[axis] <= mesh.maximum[axis],
                    "every vertex lies in the box");
        const QVector3D normal(vertex[3], vertex[4], vertex[5]);
        require(std::abs(normal.length() - 1.0F) < 0.01F, "normals are unit vectors");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static MemoryFile file;
    file.write(FuzzInput(data, size).rest());

    QString error;
    const std::optional<TriangleMesh> model = ObjReader::read(file.path(), &error);
    require(model.has_value() == error.isEmpty(), "what cannot be shown is reported");
    if (model)
        checkMesh(*model);

    MeshFile mesh;
    mesh.setSource(QUrl::fromLocalFile(file.path()));
    require(!mesh.error().isEmpty() || isBox(mesh.minimum(), mesh.maximum()), "a mesh has a box");
    return 0;
}
