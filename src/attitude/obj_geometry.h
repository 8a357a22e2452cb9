#pragma once

#include <QString>
#include <QUrl>
#include <QtQuick3D/QQuick3DGeometry>

/// Geometry of a model in a local .obj file, read when `source` is set. On failure it is empty and `error` holds a
/// sentence for the user. Main thread.
class ObjGeometry : public QQuick3DGeometry
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ObjGeometry)
    QML_ELEMENT
    Q_PROPERTY(QUrl source READ source WRITE setSource NOTIFY sourceChanged)
    Q_PROPERTY(QString error READ error NOTIFY sourceChanged)
    /// Corners of the box around the model.
    Q_PROPERTY(QVector3D minimum READ boundsMin NOTIFY sourceChanged)
    Q_PROPERTY(QVector3D maximum READ boundsMax NOTIFY sourceChanged)

public:
    explicit ObjGeometry(QQuick3DObject *parent = nullptr) : QQuick3DGeometry(parent) {}

    QUrl source() const { return m_source; }
    /// An empty URL empties the geometry without an error.
    void setSource(const QUrl &source);
    QString error() const { return m_error; }

signals:
    void sourceChanged();

private:
    QUrl m_source;
    QString m_error;
};
