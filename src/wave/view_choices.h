#pragma once

#include <QList>

/// What the user chose about a chart, to be remembered: it outlives the samples.
struct ViewChoices
{
    double spanSec = 10;
    QList<int> hidden;   ///< channels, ascending
    double filterHz = 0; ///< cutoff of the low-pass filter; 0: off

    bool operator==(const ViewChoices &) const = default;
};
