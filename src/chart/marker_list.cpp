#include "chart/marker_list.h"

#include <QDateTime>

#include <algorithm>
#include <cmath>

namespace {

QString oneLine(const QString &text)
{
    return text.simplified().left(MarkerList::kMaxText);
}

} // namespace

QVariant MarkerList::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const ChartMarker &marker = m_markers.at(index.row());
    switch (role) {
    case TimeRole:
        return marker.timeSec;
    case TimeTextRole:
        return QDateTime::fromMSecsSinceEpoch(marker.utcMs).toString(QStringLiteral("HH:mm:ss.zzz"));
    case TextRole:
    case Qt::DisplayRole:
        return marker.text;
    default:
        return {};
    }
}

QHash<int, QByteArray> MarkerList::roleNames() const
{
    return {{TimeRole, "markerTime"}, {TimeTextRole, "timeText"}, {TextRole, "markerText"}};
}

int MarkerList::add(ChartMarker marker)
{
    if (!std::isfinite(marker.timeSec))
        return -1;
    marker.text = oneLine(marker.text);
    if (marker.text.isEmpty())
        marker.text = tr("Marker %1").arg(++m_number);
    if (count() >= kMaxMarkers)
        remove(0);
    const auto place = std::upper_bound(m_markers.begin(), m_markers.end(), marker.timeSec,
                                        [](double time, const ChartMarker &other) { return time < other.timeSec; });
    const int row = int(place - m_markers.begin());
    beginInsertRows({}, row, row);
    m_markers.insert(row, marker);
    endInsertRows();
    emit countChanged();
    emit markersChanged();
    emit markerAdded(marker);
    return row;
}

void MarkerList::setText(int row, const QString &text)
{
    const QString line = oneLine(text);
    if (row < 0 || row >= count() || line.isEmpty() || line == m_markers.at(row).text)
        return;
    m_markers[row].text = line;
    emit dataChanged(index(row), index(row));
    emit markersChanged();
    emit markerChanged(m_markers.at(row));
}

void MarkerList::remove(int row)
{
    if (row < 0 || row >= count())
        return;
    beginRemoveRows({}, row, row);
    m_markers.removeAt(row);
    endRemoveRows();
    emit countChanged();
    emit markersChanged();
}

void MarkerList::clear()
{
    if (m_markers.isEmpty())
        return;
    beginResetModel();
    m_markers.clear();
    m_number = 0;
    endResetModel();
    emit countChanged();
    emit markersChanged();
}
