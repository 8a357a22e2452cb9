#pragma once

#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include "wave/time_source.h"
#include "wave/wave_chart_bridge.h"

/// One quantity of several radio nodes over one time axis: a series per node, each the chosen channel of that node's
/// chart. The newest sample of any node is at 0; a node that has fallen silent ends before it.
///
/// dataChanged() is emitted about 30 times a second at most, however many nodes there are. Main thread only; the charts
/// are not owned and may be destroyed first.
class NodeOverlay : public QObject, public TimeSource
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(NodeOverlay)
    Q_PROPERTY(QString sensorType READ sensorType CONSTANT)
    Q_PROPERTY(QStringList channelNames READ channelNames CONSTANT)
    Q_PROPERTY(int channel READ channel WRITE setChannel NOTIFY channelChanged)

public:
    /// Curves that can be distinguished: kCurveCount colours, solid and dashed.
    static constexpr int kMaxNodes = 16;

    struct Node
    {
        int id = 0;
        int look = 0; ///< 0 to kMaxNodes - 1: colour and dash, which stay with the node while it is shown
        QPointer<WaveChartBridge> chart;
    };

    /// Overlays charts of the sensor type `sensorType`.
    explicit NodeOverlay(const QString &sensorType, QObject *parent = nullptr);

    const QString &sensorType() const { return m_sensorType; }
    QStringList channelNames() const;
    /// The channel that is drawn; one out of range is ignored.
    int channel() const { return m_channel; }
    void setChannel(int channel);
    /// In the order of the legend; kMaxNodes at most.
    const QList<Node> &nodes() const { return m_nodes; }
    void setNodes(const QList<Node> &nodes);
    /// The chart that names quantity and unit; null without nodes.
    const WaveChartBridge *anyChart() const;
    /// The newest time of a node relative to the newest of all, seconds, 0 or negative.
    double lagSec(const Node &node) const;
    /// The newest values are older than one would wait for: the node is silent.
    bool isSilent(const Node &node, double seconds) const;

    int seriesCount() const override { return int(m_nodes.size()); }
    QString seriesName(int series) const override;
    QString seriesLabel(int series) const override;
    quint32 seriesRgb(int series) const override;
    bool isSeriesDashed(int series) const override;
    bool hasData() const override;
    void seriesPoints(int series, double xMin, double xMax, int maxPoints, QList<QPointF> &out) const override;
    /// NaN for a node that has no sample there.
    QList<double> valuesAt(double seconds) const override;
    SeriesStatistics statistics(int series, double xMin, double xMax) const override;
    quint64 revision() const override;

    double newestTimeSec() const override;
    chart_range::TimeLimits timeLimits() const override;
    chart_range::ValueLimits valueLimits() const override;
    double xDefaultMin() const override { return -10; }
    double placeBeside(double seconds, int direction) const override;
    double newestPeriodSec() const override;
    bool awaitsSamples() const override;
    qint64 utcMsAt(double seconds) const override;

signals:
    void dataChanged();
    void nodesChanged();
    void channelChanged();
    /// Pause and play, or a trigger holds one of the charts.
    void playingChanged();

private:
    const Node *newestNode() const;

    QString m_sensorType;
    int m_channel = 0;
    QList<Node> m_nodes;
    quint64 m_generation = 0; ///< counts changes of nodes and channel
    QElapsedTimer m_sinceNotified;
    QTimer m_notifyTimer;
};
