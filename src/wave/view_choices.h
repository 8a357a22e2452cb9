#pragma once

#include <QList>
#include <QSettings>
#include <QString>

/// The user's choices for a chart, which are remembered: they outlive the samples.
struct ViewChoices
{
    double spanSec = 10;
    QList<int> hidden;   ///< channels, ascending
    double filterHz = 0; ///< cutoff of the low-pass filter; 0: off

    bool operator==(const ViewChoices &) const = default;

    /// Reads and writes the keys PREFIX_SPAN, PREFIX_HIDDEN and PREFIX_FILTER_HZ; nonsensical values are ignored.
    static ViewChoices read(const QSettings &settings, const QString &prefix);
    void write(QSettings &settings, const QString &prefix) const;
};
