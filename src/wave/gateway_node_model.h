#pragma once

#include <QAbstractListModel>
#include <QList>

#include "wave/gateway_node_tracker.h"

/// The table of radio nodes for the view: one row per node. Rows are inserted as nodes appear and keep their place
/// until they are moved; dataChanged() is emitted for the rows whose values differ. Main thread only.
class GatewayNodeModel : public QAbstractListModel
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(GatewayNodeModel)

public:
    enum Role {
        NodeIdRole = Qt::UserRole, ///< int
        StateRole,                 ///< int, a NodeState: 0 live, 1 late, 2 gone, 3 ended
        StateTextRole,             ///< translated
        ChosenRole,                ///< bool: the node's charts are shown
        RateHzRole,                ///< double, samples per second
        AgeMsRole,                 ///< qint64, -1 when the node was never heard
        MissingRole,               ///< quint64
        TemperatureRole,           ///< float, degrees Celsius
        PressureRole,              ///< float, Pa
        RateTextRole,              ///< the same as texts; a dash for unknown values
        AgeTextRole,               ///< with unit
        MissingTextRole,
        TemperatureTextRole,
        PressureTextRole,
    };
    Q_ENUM(Role)

    explicit GatewayNodeModel(QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    const QList<GatewayNodeStatus> &nodes() const { return m_nodes; }
    /// Takes the nodes in the order of the rows; those that were listed before must be among them, in the same order.
    void update(const QList<GatewayNodeStatus> &nodes);
    void setChosen(const QList<int> &nodeIds);
    /// -1 for a row that does not exist.
    Q_INVOKABLE int nodeIdAt(int row) const { return row >= 0 && row < rowCount() ? int(m_nodes.at(row).id) : -1; }
    /// Moves a row to another place.
    void moveNode(int from, int to);
    void clear();
    /// The language has changed: updates the texts.
    void retranslate() { notifyRows(0, rowCount() - 1); }

private:
    static QString stateText(NodeState state);
    void notifyRows(int first, int last);

    QList<GatewayNodeStatus> m_nodes;
    QList<int> m_chosen;
};
