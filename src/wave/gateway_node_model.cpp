#include "wave/gateway_node_model.h"

#include <cmath>

#include "app/value_format.h"

namespace {

QString quantity(const GatewayNodeStatus &node, SampleField field, double value, int decimals)
{
    return (node.fields & field) && std::isfinite(value) ? value_format::number(value, decimals)
                                                         : value_format::absent();
}

} // namespace

QString GatewayNodeModel::stateText(NodeState state)
{
    switch (state) {
    case NodeState::Live:
        return tr("Live");
    case NodeState::Late:
        return tr("Late");
    case NodeState::Gone:
        return tr("Gone");
    case NodeState::Ended:
        return tr("Ended");
    }
    return {};
}

GatewayNodeModel::GatewayNodeModel(QObject *parent) : QAbstractListModel(parent) {}

int GatewayNodeModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_nodes.size());
}

QVariant GatewayNodeModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const GatewayNodeStatus &node = m_nodes.at(index.row());
    switch (role) {
    case NodeIdRole:
        return int(node.id);
    case StateRole:
        return int(node.state);
    case StateTextRole:
        return stateText(node.state);
    case ChosenRole:
        return m_chosen.contains(int(node.id));
    case RateHzRole:
        return node.rateHz;
    case AgeMsRole:
        return node.ageMs;
    case MissingRole:
        return node.missing;
    case TemperatureRole:
        return node.temperature;
    case PressureRole:
        return node.pressure;
    case RateTextRole:
        return node.state == NodeState::Ended ? value_format::absent() : value_format::number(node.rateHz, 1);
    case AgeTextRole:
        if (node.ageMs < 0)
            return value_format::absent();
        if (node.ageMs < 1000)
            return tr("%1 ms").arg(node.ageMs);
        if (node.ageMs < 100000)
            return tr("%1 s").arg(value_format::number(double(node.ageMs) / 1000.0, 1));
        return tr("%1 min").arg(node.ageMs / 60000);
    case MissingTextRole:
        return node.hasClock ? QString::number(node.missing) : value_format::absent();
    case TemperatureTextRole:
        return quantity(node, SampleField::Temperature, double(node.temperature), 1);
    case PressureTextRole:
        return quantity(node, SampleField::Pressure, double(node.pressure), 0);
    default:
        return {};
    }
}

QHash<int, QByteArray> GatewayNodeModel::roleNames() const
{
    return {{NodeIdRole, "nodeId"},
            {StateRole, "nodeState"},
            {StateTextRole, "stateText"},
            {ChosenRole, "chosen"},
            {RateHzRole, "rateHz"},
            {AgeMsRole, "ageMs"},
            {MissingRole, "missing"},
            {TemperatureRole, "temperature"},
            {PressureRole, "pressure"},
            {RateTextRole, "rateText"},
            {AgeTextRole, "ageText"},
            {MissingTextRole, "missingText"},
            {TemperatureTextRole, "temperatureText"},
            {PressureTextRole, "pressureText"}};
}

void GatewayNodeModel::update(const QList<GatewayNodeStatus> &nodes)
{
    int firstChanged = int(nodes.size());
    int lastChanged = -1;
    for (int row = 0; row < int(nodes.size()); ++row) {
        const GatewayNodeStatus &node = nodes.at(row);
        if (row == int(m_nodes.size()) || m_nodes.at(row).id != node.id) {
            beginInsertRows({}, row, row);
            m_nodes.insert(row, node);
            endInsertRows();
        } else if (!(m_nodes.at(row) == node)) {
            m_nodes[row] = node;
            firstChanged = qMin(firstChanged, row);
            lastChanged = row;
        }
    }
    notifyRows(firstChanged, lastChanged);
}

void GatewayNodeModel::setChosen(const QList<int> &nodeIds)
{
    m_chosen = nodeIds;
    notifyRows(0, rowCount() - 1);
}

void GatewayNodeModel::moveNode(int from, int to)
{
    if (from == to || from < 0 || to < 0 || from >= rowCount() || to >= rowCount())
        return;
    beginMoveRows({}, from, from, {}, to > from ? to + 1 : to);
    m_nodes.move(from, to);
    endMoveRows();
}

void GatewayNodeModel::clear()
{
    beginResetModel();
    m_nodes.clear();
    endResetModel();
}

void GatewayNodeModel::notifyRows(int first, int last)
{
    if (first <= last)
        emit dataChanged(index(first), index(last));
}
