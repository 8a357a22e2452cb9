#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

#include "chart/series_statistics.h"

/// What is measured on a chart, as a table: a row per series with its values at the cursors, their difference, and the
/// statistics between the cursors or over the visible range. Plain values; the texts for the screen and for the
/// clipboard are made from it.
struct MeasureTable
{
    struct Row
    {
        QString name;
        double atA = SeriesStatistics::kNone; ///< NaN without the cursor
        double atB = SeriesStatistics::kNone;
        SeriesStatistics statistics;
    };

    bool hasA = false;
    bool hasB = false;
    QList<Row> rows;

    /// What a figure is, which decides whether it carries a sign.
    enum class Figure { Value, Difference, Magnitude };
    /// The text of a figure of a row.
    using ValueText = std::function<QString(int row, double value, Figure figure)>;

    /// The column titles; the first one, over the names, is empty.
    QStringList header() const;
    /// A row as texts, in the order of the header.
    QStringList texts(int row, const ValueText &text) const;
    /// For a spreadsheet: tabs and line feeds, header first, numbers with a decimal point and all their digits.
    QString tabSeparated(const QString &firstLine) const;

private:
    QList<double> numbers(const Row &row) const;
};
