#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QVector3D>

#include <optional>

/// Triangles for the graphics processor, three vertices each, none of them shared.
struct TriangleMesh
{
    /// Bytes per vertex: 6 floats in the machine's order, position x y z at 0, unit normal x y z at 12.
    static constexpr int kStride = 24;

    QByteArray vertices;
    QVector3D minimum; ///< corners of the box around all vertices
    QVector3D maximum;
};

/// Reads model files in the text format OBJ: positions, normals and polygons; materials and textures are ignored. A
/// polygon becomes a fan of triangles. Corners without a usable normal get that of their triangle. Lines may end in LF,
/// CR LF or CR, contain comments, and be continued by a trailing "\"; a byte order mark is skipped.
///
/// The file may hold anything. It is refused with a sentence for the user when it is not text, refers to a corner that
/// does not exist, has coordinates that are not finite numbers up to a thousand million, holds no triangle, or is
/// larger than 64 MiB or a million triangles.
class ObjReader
{
    Q_DECLARE_TR_FUNCTIONS(ObjReader)

public:
    static constexpr qint64 kMaxFileBytes = 64 * 1024 * 1024;
    static constexpr qsizetype kMaxTriangles = 1'000'000;

    /// Empty on failure, with a sentence in `error`.
    static std::optional<TriangleMesh> read(const QString &path, QString *error);
};
