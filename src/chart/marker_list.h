#pragma once

#include <QAbstractListModel>
#include <QList>
#include <QString>

/// A place in the stream that the user wants to find again.
struct ChartMarker
{
    double timeSec = 0; ///< on the stream's clock, as ChartSource's positions plus PlotViewState::clock()
    qint64 utcMs = 0;   ///< time of day, milliseconds since 1970 in UTC
    QString text;       ///< one line

    bool operator==(const ChartMarker &) const = default;
};

/// The markers of a window with charts, by time: the model of its list, the markers that its charts draw, and those
/// that recordings take over by markerAdded() and markerChanged(). At most kMaxMarkers; the oldest are dropped.
/// Main thread only.
class MarkerList : public QAbstractListModel
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MarkerList)
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum Role {
        TimeRole = Qt::UserRole, ///< double, seconds
        TimeTextRole,            ///< local time of day
        TextRole,                ///< QString
    };
    Q_ENUM(Role)

    static constexpr int kMaxMarkers = 1000;
    static constexpr int kMaxText = 200; ///< characters

    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex &parent = {}) const override { return parent.isValid() ? 0 : count(); }
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    int count() const { return int(m_markers.size()); }
    const QList<ChartMarker> &markers() const { return m_markers; }
    /// Adds a marker in order of time, with a default text ("Marker 3") when it has none, and returns its row. A time
    /// that is not finite adds nothing: -1.
    int add(ChartMarker marker);
    /// Blanks at the ends and line breaks are removed.
    Q_INVOKABLE void setText(int row, const QString &text);
    Q_INVOKABLE void remove(int row);
    void clear();

signals:
    void countChanged();
    /// Any change: whatever draws them has to repaint.
    void markersChanged();
    void markerAdded(const ChartMarker &marker);
    void markerChanged(const ChartMarker &marker);

private:
    QList<ChartMarker> m_markers; ///< by time
    int m_number = 0;             ///< of the last one that got a default text
};
