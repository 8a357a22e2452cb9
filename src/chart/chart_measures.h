#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

#include "chart/measure_table.h"
#include "chart/plot_view_state.h"

/// The table of what is measured on a chart, for a view: values at the cursors, and the statistics between both cursors
/// or, unless both are placed, over the visible range. It follows the chart four times a second while it is active, and
/// computes only when the data or the positions have changed. Main thread only.
class ChartMeasures : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ChartMeasures)
    QML_ELEMENT
    Q_PROPERTY(PlotViewState *viewState READ viewState WRITE setViewState NOTIFY viewStateChanged)
    Q_PROPERTY(bool active READ isActive WRITE setActive NOTIFY activeChanged)
    Q_PROPERTY(QString extent READ extent NOTIFY tableChanged)
    Q_PROPERTY(QStringList header READ header NOTIFY tableChanged)
    Q_PROPERTY(QVariantList rows READ rows NOTIFY tableChanged)

public:
    explicit ChartMeasures(QObject *parent = nullptr);

    PlotViewState *viewState() const { return m_viewState; }
    void setViewState(PlotViewState *viewState);
    /// An inactive table is empty and costs nothing.
    bool isActive() const { return m_active; }
    void setActive(bool active);

    /// What the statistics cover, as a sentence.
    QString extent() const;
    QStringList header() const { return m_table.rows.isEmpty() ? QStringList() : m_table.header(); }
    /// A list of texts per visible series, in the order of the header.
    QVariantList rows() const;
    const MeasureTable &table() const { return m_table; }
    /// Brings the table up to date at once.
    void refresh();
    /// How often statistics were computed, for measurements.
    int computations() const { return m_computations; }

    /// Copies the table to the clipboard, for a spreadsheet.
    Q_INVOKABLE void copy();

signals:
    void viewStateChanged();
    void activeChanged();
    void tableChanged();

private:
    /// What the statistics depend on.
    struct Place
    {
        quint64 revision = 0;
        chart_range::Range range;
        QList<bool> visible;
        bool operator==(const Place &) const = default;
    };

    void schedule();

    QPointer<PlotViewState> m_viewState;
    bool m_active = false;
    MeasureTable m_table;
    QList<int> m_series; ///< of the rows
    QList<SeriesStatistics> m_statistics;
    Place m_place;
    bool m_isBetween = false;
    int m_computations = 0;
    QTimer m_timer;
};
