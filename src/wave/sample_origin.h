#pragma once

#include <QString>

/// Whose samples a chart shows, for files and pictures.
struct SampleOrigin
{
    QString device; ///< product or model; empty: not known
    int node = -1;  ///< id of the node; -1: not known

    bool operator==(const SampleOrigin &) const = default;

    /// "HI14 node 3", in one line; empty when nothing is known.
    QString text() const
    {
        const QString name = device.simplified();
        return node < 0 ? name : (name + QStringLiteral(" node %1").arg(node)).trimmed();
    }
};
