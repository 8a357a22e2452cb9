#include "attitude/obj_reader.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <sstream>
#include <vector>

#include <tiny_obj_loader.h>

namespace {

constexpr float kMaxCoordinate = 1e9F;
constexpr int kNone = -1;

struct Corner
{
    int position = kNone;
    int normal = kNone;
};

/// What the parser has delivered so far. Corners count from 0; a bad one is detected when it is looked up.
struct Collected
{
    std::vector<QVector3D> positions;
    std::vector<QVector3D> normals;
    std::vector<std::array<Corner, 3>> triangles;
    bool hasTooMany = false;
};

/// Indices of the file count from 1, negative ones from the newest backwards; 0 means a missing one.
int fromZero(int index, size_t count)
{
    if (index > 0)
        return index - 1;
    const qint64 back = qint64(count) + index;
    return index < 0 && back >= 0 ? int(back) : kNone;
}

void takePosition(void *collected, float x, float y, float z, float /*w*/)
{
    static_cast<Collected *>(collected)->positions.emplace_back(x, y, z);
}

void takeNormal(void *collected, float x, float y, float z)
{
    static_cast<Collected *>(collected)->normals.emplace_back(x, y, z);
}

void takeFace(void *collected, tinyobj::index_t *indices, int count)
{
    auto &all = *static_cast<Collected *>(collected);
    const auto corner = [&](int i) {
        return Corner{fromZero(indices[i].vertex_index, all.positions.size()),
                      fromZero(indices[i].normal_index, all.normals.size())};
    };
    for (int i = 2; i < count; ++i) {
        if (qsizetype(all.triangles.size()) == ObjReader::kMaxTriangles) {
            all.hasTooMany = true;
            return;
        }
        all.triangles.push_back({corner(0), corner(i - 1), corner(i)});
    }
}

bool isUsable(const QVector3D &position)
{
    return std::abs(position.x()) <= kMaxCoordinate && std::abs(position.y()) <= kMaxCoordinate
           && std::abs(position.z()) <= kMaxCoordinate;
}

/// The text in the one form that the parser reads: without byte order mark and comments, with line feeds, and with
/// lines continued by "\" joined. Empty lines after these preserve the line numbers. A comment ends with its line, even
/// after a "\", which may end a folder's name.
std::string plainText(QByteArrayView text)
{
    static constexpr QByteArrayView kByteOrderMark("\xEF\xBB\xBF");
    if (text.startsWith(kByteOrderMark))
        text = text.sliced(kByteOrderMark.size());
    std::string plain;
    plain.reserve(size_t(text.size()) + 1);
    size_t continued = 0;
    bool isComment = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n')
            continue;
        if (c == '\n' || c == '\r') {
            if (!isComment && !plain.empty() && plain.back() == '\\') {
                plain.back() = ' ';
                ++continued;
                continue;
            }
            plain.append(continued + 1, '\n');
            continued = 0;
            isComment = false;
        } else if (c == '#') {
            isComment = true;
        } else if (!isComment) {
            plain += c;
        }
    }
    return plain;
}

/// The parser reads a word that is not a number as 0. Returns the number of the first such line, 0 when there is none.
qsizetype badCoordinateLine(QByteArrayView text)
{
    qsizetype number = 0;
    for (qsizetype start = 0; start < text.size(); ++number) {
        qsizetype end = text.indexOf('\n', start);
        if (end < 0)
            end = text.size();
        const QByteArrayView line = text.sliced(start, end - start);
        const bool isVertex = line.startsWith("v ") || line.startsWith("v\t");
        const QByteArrayView figures = isVertex ? line.sliced(1) : QByteArrayView();
        if (std::any_of(figures.begin(), figures.end(), [](char c) { return !std::strchr("0123456789+-.eE \t", c); }))
            return number + 1;
        start = end + 1;
    }
    return 0;
}

QVector3D normalOr(const Collected &all, int index, const QVector3D &flat)
{
    if (index < 0 || size_t(index) >= all.normals.size())
        return flat;
    const QVector3D normal = all.normals[size_t(index)].normalized();
    return normal.length() > 0.5F && std::isfinite(normal.length()) ? normal : flat;
}

} // namespace

std::optional<TriangleMesh> ObjReader::read(const QString &path, QString *error)
{
    const auto failed = [error](const QString &text) {
        *error = text;
        return std::nullopt;
    };
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return failed(tr("The OBJ file cannot be read: %1").arg(file.errorString()));
    const qint64 size = file.size();
    if (size > kMaxFileBytes)
        return failed(tr("The OBJ file is larger than %1 MiB.").arg(kMaxFileBytes >> 20));
    const QByteArray bytes = file.read(size);
    if (bytes.contains('\0'))
        return failed(tr("The file is not an OBJ model: it holds no text."));
    const std::string text = plainText(bytes);
    if (const qsizetype line = badCoordinateLine(text))
        return failed(tr("Line %1 of the OBJ file contains a coordinate that is not a number.").arg(line));

    Collected all;
    tinyobj::callback_t take;
    take.vertex_cb = takePosition;
    take.normal_cb = takeNormal;
    take.index_cb = takeFace;
    std::istringstream stream(text);
    std::string details;
    if (!tinyobj::LoadObjWithCallback(stream, take, &all, nullptr, &details, &details))
        return failed(tr("The file is not an OBJ model."));
    if (all.hasTooMany)
        return failed(tr("The OBJ model has more than %1 triangles.").arg(kMaxTriangles));

    TriangleMesh mesh;
    mesh.vertices.reserve(qsizetype(all.triangles.size()) * 3 * TriangleMesh::kStride);
    const float highest = kMaxCoordinate;
    mesh.minimum = {highest, highest, highest};
    mesh.maximum = -mesh.minimum;
    for (const auto &triangle : all.triangles) {
        std::array<QVector3D, 3> at;
        for (size_t i = 0; i < at.size(); ++i) {
            const int index = triangle[i].position;
            if (index < 0 || size_t(index) >= all.positions.size())
                return failed(tr("The OBJ file is damaged: a face names a vertex that does not exist."));
            at[i] = all.positions[size_t(index)];
            if (!isUsable(at[i]))
                return failed(tr("The OBJ model has coordinates that are not finite or too large."));
        }
        const QVector3D flat = QVector3D::crossProduct(at[1] - at[0], at[2] - at[0]).normalized();
        if (flat.isNull())
            continue; // has no area
        for (size_t i = 0; i < at.size(); ++i) {
            const QVector3D normal = normalOr(all, triangle[i].normal, flat);
            const std::array<float, 6> vertex{at[i].x(), at[i].y(), at[i].z(), normal.x(), normal.y(), normal.z()};
            static_assert(sizeof(vertex) == TriangleMesh::kStride);
            mesh.vertices.append(reinterpret_cast<const char *>(vertex.data()), TriangleMesh::kStride);
            for (int axis = 0; axis < 3; ++axis) {
                mesh.minimum[axis] = std::min(mesh.minimum[axis], at[i][axis]);
                mesh.maximum[axis] = std::max(mesh.maximum[axis], at[i][axis]);
            }
        }
    }
    if (mesh.vertices.isEmpty())
        return failed(tr("The OBJ file holds no faces to show."));
    return mesh;
}
