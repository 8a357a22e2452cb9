#pragma once

#include <QList>

/// The user's choices for a chart, which are remembered: they outlive the samples.
struct ViewChoices
{
    double spanSec = 10;
    QList<int> hidden;   ///< channels, ascending
    double filterHz = 0; ///< cutoff of the low-pass filter; 0: off

    bool operator==(const ViewChoices &) const = default;
};
