#include "attitude/home_references.h"

void HomeReferences::setMounting(const QString &product, OrientationPreset preset)
{
    m_product = product;
    m_preset = preset;
}

std::optional<QQuaternion> HomeReferences::current() const
{
    const auto home = m_homes.constFind(key());
    return home != m_homes.constEnd() ? std::optional(*home) : std::nullopt;
}
