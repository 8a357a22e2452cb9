#include "attitude/obj_geometry.h"

#include "attitude/obj_reader.h"

void ObjGeometry::setSource(const QUrl &source)
{
    if (source == m_source)
        return;
    m_source = source;
    m_error.clear();
    clear();
    if (!source.isEmpty()) {
        if (const auto mesh = ObjReader::read(source.toLocalFile(), &m_error)) {
            setVertexData(mesh->vertices);
            setStride(TriangleMesh::kStride);
            setBounds(mesh->minimum, mesh->maximum);
            setPrimitiveType(PrimitiveType::Triangles);
            addAttribute(Attribute::PositionSemantic, 0, Attribute::F32Type);
            addAttribute(Attribute::NormalSemantic, TriangleMesh::kStride / 2, Attribute::F32Type);
        }
    }
    update();
    emit sourceChanged();
}
