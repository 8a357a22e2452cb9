#pragma once

#include <array>
#include <vector>

#include <QMap>
#include <QObject>
#include <QTimer>
#include <QVariantList>

#include "app/source_clock.h"
#include "chart/marker_list.h"
#include "wave/gateway_node_model.h"
#include "wave/gateway_node_tracker.h"
#include "wave/node_overlay.h"
#include "wave/sample_feed.h"
#include "wave/wave_chart_bridge.h"

/// The object behind the dashboard of a wireless gateway: the table of its radio nodes, and a set of charts (one per
/// sensor type) for each of them, at most 16. Samples of all nodes are collected from the first one on, and the chosen
/// nodes are shown: choosing a node shows its history. The table is refreshed four times a second while the dashboard
/// is active. While it is inactive, samples are dropped at once and only the choices are kept.
///
/// A pane is a map of "nodeId", "type" (key), "backend" (the WaveChartBridge, titled "Node 3 · Acceleration (G)") and
/// "slot": a number from 0 to maxPaneCount - 1 that stays with the chart, so that the view can leave it unchanged while
/// others come and go. While the nodes are overlaid there is a pane per sensor type instead, with "overlay" (a
/// NodeOverlay of all chosen nodes) in place of the backend.
///
/// A node that was chosen once is chosen again as soon as it is heard. Nodes are in the order of their ids until the
/// user arranges them. Main thread only.
class GatewayDashboardBridge : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(GatewayDashboardBridge)
    Q_PROPERTY(QString windowTitle READ windowTitle NOTIFY textsChanged)
    Q_PROPERTY(GatewayNodeModel *nodeModel READ nodeModel CONSTANT)
    Q_PROPERTY(QString summary READ summary NOTIFY nodesRefreshed)
    Q_PROPERTY(int nodeCount READ nodeCount NOTIFY nodesRefreshed)
    Q_PROPERTY(QList<int> chosenNodes READ chosenNodes NOTIFY panesChanged)
    Q_PROPERTY(int maxChosenNodes READ maxChosenNodes CONSTANT)
    Q_PROPERTY(int maxPaneCount READ maxPaneCount CONSTANT)
    Q_PROPERTY(QVariantList typeStates READ typeStates NOTIFY panesChanged)
    Q_PROPERTY(QVariantList panes READ panes NOTIFY panesChanged)
    Q_PROPERTY(int paneColumns READ paneColumns NOTIFY panesChanged)
    Q_PROPERTY(bool ended READ isEnded NOTIFY nodesRefreshed)
    Q_PROPERTY(bool overlaid READ isOverlaid WRITE setOverlaid NOTIFY panesChanged)
    Q_PROPERTY(bool linked READ isLinked WRITE setLinked NOTIFY linkedChanged)
    Q_PROPERTY(MarkerList *markers READ markers CONSTANT)
    Q_PROPERTY(bool playing READ playing NOTIFY playingChanged)
    Q_PROPERTY(int frameRate READ frameRate NOTIFY frameRateChanged)

public:
    static constexpr int kMaxChosenNodes = 16;

    explicit GatewayDashboardBridge(QObject *parent = nullptr);

    QString windowTitle() const { return tr("Wireless Gateway Dashboard"); }
    GatewayNodeModel *nodeModel() { return &m_nodeModel; }
    /// How many nodes there are and how many of them are late or gone, or that the connection has ended.
    QString summary() const;
    int nodeCount() const { return m_nodeModel.rowCount(); }
    /// Ids in the order of the table.
    QList<int> chosenNodes() const;
    int maxChosenNodes() const { return kMaxChosenNodes; }
    int maxPaneCount() const { return (kMaxChosenNodes + 1) * kSensorTypeCount; }
    /// A map of "type", "label" and "selected" per sensor type.
    QVariantList typeStates() const;
    /// The charts to show, in the order in which they fill the grid row by row: type by type, or node by node where
    /// each node then fills a row.
    QVariantList panes() const;
    /// Columns of the grid: up to three panes are stacked, so that their time axes can be compared; more are laid out
    /// in two columns, more than eight in three.
    int paneColumns() const;
    /// The displayed data belong to a connection that has ended.
    bool isEnded() const { return m_ended; }
    bool playing() const { return m_playing; }
    /// One plot per sensor type shows a quantity of all chosen nodes.
    bool isOverlaid() const { return m_overlaid; }
    void setOverlaid(bool overlaid);
    /// The time axes and cursors of all charts are coupled.
    bool isLinked() const { return m_linked; }
    void setLinked(bool linked);
    /// The user's markers in the streams of the nodes, which share a clock; cleared when another gateway is connected.
    MarkerList *markers() { return &m_markers; }
    int frameRate() const { return int(m_frameRate); }
    bool dashboardActive() const { return m_active; }

    /// Shows or hides the charts of a node; false when 16 are chosen already or the id is out of 0 to 255.
    Q_INVOKABLE bool setNodeChosen(int nodeId, bool chosen);
    /// Moves a node by `rows` in the table, and its charts accordingly.
    Q_INVOKABLE void moveNode(int nodeId, int rows);
    Q_INVOKABLE void setTypeSelected(const QString &type, bool selected);
    /// A paused dashboard freezes its charts; the table goes on.
    Q_INVOKABLE void setPlaying(bool playing);

    /// The session's clock, before the first samples.
    void setClock(const SharedClock &clock) { m_clock = clock; }
    /// Milliseconds of the clock, for host times.
    qint64 hostNowMs() const { return m_clock->steadyMs(); }
    /// Takes the samples of a batch that arrived at `hostMs`.
    void updateGatewaySamples(const QList<GatewaySample> &samples, qint64 hostMs);
    /// The same for one that arrives now.
    void updateGatewaySamples(const QList<GatewaySample> &samples) { updateGatewaySamples(samples, hostNowMs()); }
    /// The gateway's product, for files and pictures.
    void setDevice(const QString &device);
    /// Batches per second, and so each node's samples per second.
    void setFrameRate(unsigned int samplesPerSecond);
    /// Active while the dashboard is open. Becoming inactive clears nodes and samples; the choices stay.
    void setDashboardActive(bool active);
    /// The connection has ended: nodes, curves and choices stay as they are, marked as ended, and samples are ignored.
    /// clear() at the next opening ends that too.
    void setEnded(bool ended);
    /// Reads and writes what the user has chosen: nodes and their order, types, overlay, linking, spans and filters. In
    /// the settings file at `iniPath`; nonsensical entries are ignored.
    void loadChoices(const QString &iniPath);
    void saveChoices(const QString &iniPath);
    /// Clears nodes and samples: another gateway may be connected next.
    void clear();
    /// Brings the table up to date as of `hostMs`; called automatically while active.
    void refresh(qint64 hostMs);
    void refresh() { refresh(hostNowMs()); }
    /// The language has changed: updates the texts.
    void retranslate();

signals:
    void nodesRefreshed();
    void panesChanged();
    void linkedChanged();
    void playingChanged();
    void frameRateChanged();
    void textsChanged();

private:
    struct NodeCharts
    {
        quint8 id = 0;
        int slot = -1;                                            ///< 0 to kMaxChosenNodes - 1 while it is chosen
        std::array<WaveChartBridge *, kSensorTypeCount> charts{}; ///< owned as children; null until needed

        bool isChosen() const { return slot >= 0; }
    };

    NodeCharts *collect(quint8 id);
    NodeCharts *insertNode(quint8 id);
    /// Nodes in the order of the table: those that were arranged first, the others by id.
    bool isBefore(int nodeId, int otherId) const;
    QList<const NodeCharts *> chosenCharts() const;
    void updateOverlays();
    void rememberChoices();
    WaveChartBridge *chartOf(NodeCharts &node, size_t type);
    int freeSlot() const;
    static void nameChart(WaveChartBridge *chart, int nodeId);
    static void dropCharts(const NodeCharts &node);
    void dropUnchosen();
    NodeCharts *findCharts(int nodeId);
    int chosenCount() const;
    void notifyChosen();
    void updateRefreshing();
    void forgetSamples();
    void syncObserved();
    int selectedTypeCount() const;

    SharedClock m_clock = std::make_shared<SourceClock>();
    GatewayNodeTracker m_tracker;
    GatewayNodeModel m_nodeModel;
    std::vector<NodeCharts> m_charts;                         ///< at most kMaxChosenNodes, by ascending id
    QList<int> m_wanted;                                      ///< ids that are chosen as soon as they are heard
    QList<int> m_order;                                       ///< ids that the user has arranged
    std::array<NodeOverlay *, kSensorTypeCount> m_overlays{}; ///< owned as children
    QMap<QString, ViewChoices> m_choices; ///< of charts, by "N3_ACC"; those that differ from the usual ones
    bool m_overlaid = false;
    bool m_linked = false;
    std::array<bool, kSensorTypeCount> m_selectedTypes;
    MarkerList m_markers;
    QString m_device;
    bool m_playing = true;
    bool m_active = false;
    bool m_ended = false;
    unsigned int m_frameRate = 100; ///< samples per second
    QTimer m_refreshTimer;
};
