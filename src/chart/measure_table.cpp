#include "chart/measure_table.h"

#include <QCoreApplication>

#include <cmath>

namespace {

constexpr int kMagnitudes = 3; ///< the last figures: deviation, RMS, peak to peak
constexpr int kDigits = 9;     ///< brings a 32-bit value back exactly

QString word(const char *text)
{
    return QCoreApplication::translate("MeasureTable", text);
}

} // namespace

QStringList MeasureTable::header() const
{
    QStringList header{QString()};
    if (hasA)
        header += QStringLiteral("A");
    if (hasB)
        header += QStringLiteral("B");
    if (hasA && hasB)
        header += QStringLiteral("Δ");
    return header
           + QStringList{
               word(QT_TRANSLATE_NOOP("MeasureTable", "Minimum")), word(QT_TRANSLATE_NOOP("MeasureTable", "Maximum")),
               word(QT_TRANSLATE_NOOP("MeasureTable", "Mean")),    word(QT_TRANSLATE_NOOP("MeasureTable", "Std. dev.")),
               word(QT_TRANSLATE_NOOP("MeasureTable", "RMS")),     word(QT_TRANSLATE_NOOP("MeasureTable", "Peak-peak")),
               word(QT_TRANSLATE_NOOP("MeasureTable", "Count"))};
}

/// All figures of a row but the count.
QList<double> MeasureTable::numbers(const Row &row) const
{
    QList<double> list;
    if (hasA)
        list += row.atA;
    if (hasB)
        list += row.atB;
    if (hasA && hasB)
        list += row.atB - row.atA;
    const SeriesStatistics &s = row.statistics;
    return list + QList<double>{s.min, s.max, s.mean, s.deviation, s.rms, s.peakToPeak()};
}

QStringList MeasureTable::texts(int row, const ValueText &text) const
{
    const QList<double> figures = numbers(rows.at(row));
    QStringList cells{rows.at(row).name};
    for (qsizetype i = 0; i < figures.size(); ++i)
        cells += text(row, figures.at(i),
                      i + kMagnitudes >= figures.size() ? Figure::Magnitude
                      : hasA && hasB && i == 2          ? Figure::Difference
                                                        : Figure::Value);
    return cells << QString::number(rows.at(row).statistics.count);
}

QString MeasureTable::tabSeparated(const QString &firstLine) const
{
    QString text = firstLine + u'\n' + header().join(u'\t') + u'\n';
    for (const Row &row : rows) {
        text += row.name;
        for (const double figure : numbers(row))
            text += u'\t' + (std::isfinite(figure) ? QString::number(figure, 'g', kDigits) : QString());
        text += u'\t' + QString::number(row.statistics.count) + u'\n';
    }
    return text;
}
