#pragma once

#include <QHash>
#include <QQuaternion>
#include <QString>

#include <optional>

#include "attitude/orientation_preset.h"

/// The poses that the 3D window compares with. A home reference belongs to a product's mounting: it was captured in
/// that product's axes, stays when the connection is closed or another product is connected, and is used again when its
/// own product returns. Kept until it is cleared or the program ends. Main thread only.
class HomeReferences
{
public:
    /// From now on this mounting's home is used. `product` is the product's key; empty: none is known.
    void setMounting(const QString &product, OrientationPreset preset);
    const QString &product() const { return m_product; }

    /// The home of the current mounting, in display axes; empty when none was captured.
    std::optional<QQuaternion> current() const;
    void capture(const QQuaternion &pose) { m_homes.insert(key(), pose); }
    /// Forgets the current mounting's home only.
    void clear() { m_homes.remove(key()); }

private:
    using Key = std::pair<QString, quint32>;

    Key key() const { return {m_product, quint32(m_preset)}; }

    QHash<Key, QQuaternion> m_homes;
    QString m_product;
    OrientationPreset m_preset = OrientationPreset::RfuEnu312;
};
