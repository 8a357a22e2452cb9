#pragma once

#include <QObject>
#include <QString>
#include <QUrl>
#include <QVector3D>
#include <QtQml/qqmlregistration.h>

/// Gatekeeper for models in the toolkit's binary format (.mesh, as balsam writes it): the renderer loads such a file
/// itself and trusts every number in it, so this class checks them first. On failure `error` holds a sentence for the
/// user and the file must not be shown.
///
/// A file holds one triangle mesh of format version 5, at most 64 MiB. Little endian; every part is followed by padding
/// to the next multiple of 4, or by 4 bytes where it already ends on one:
///
///     bytes   part
///     12      header: u32 0xC8A07F4D, u16 version, u16 flags, u32 size of what follows up to the directory
///     56      14 u32: -, attributes, vertex stride, -, bytes of vertices, index type (3 u16, 5 u32), -, bytes of
///             indices, -, subsets, -, joints, draw mode (7 triangles), winding
///     16 n    attributes: u32 -, component type (10 float), components, offset in the vertex
///             their names: u32 length, the characters with a NUL
///             vertices
///             indices
///     48 n    subsets: u32 indices, first index, 6 floats box, u32 -, name length, 2 u32 -
///             their names in UTF-16 with a NUL
///     16      directory: u64 offset of the mesh (0), u32 id, u32 -
///     16      u32 0x21207DD9, u32 1, u32 -, u32 number of meshes (1)
class MeshFile : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MeshFile)
    QML_ELEMENT
    Q_PROPERTY(QUrl source READ source WRITE setSource NOTIFY sourceChanged)
    Q_PROPERTY(QString error READ error NOTIFY sourceChanged)
    /// Corners of the box around the model.
    Q_PROPERTY(QVector3D minimum READ minimum NOTIFY sourceChanged)
    Q_PROPERTY(QVector3D maximum READ maximum NOTIFY sourceChanged)

public:
    explicit MeshFile(QObject *parent = nullptr) : QObject(parent) {}

    QUrl source() const { return m_source; }
    /// Checks a local file. An empty URL is no error.
    void setSource(const QUrl &source);
    QString error() const { return m_error; }
    QVector3D minimum() const { return m_minimum; }
    QVector3D maximum() const { return m_maximum; }

signals:
    void sourceChanged();

private:
    QString check(const QString &path);

    QUrl m_source;
    QString m_error;
    QVector3D m_minimum;
    QVector3D m_maximum;
};
