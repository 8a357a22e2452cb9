#pragma once

#include <QHash>
#include <QObject>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVariantList>

#include "app/source_clock.h"
#include "chart/marker_list.h"
#include "wave/sensor_types.h"
#include "wave/wave_chart_bridge.h"

class ChartSamples;

/// The object behind the waveform dashboard of one device: a chart per sensor type, the choice of which are shown, and
/// the grid they are laid out in. Samples are stored only while the dashboard is active; closing it empties the charts.
/// Charts that are not on the screen are not observed and cause no repaint.
///
/// A pane state is a map of "type" (key), "label" (translated), "selected" and "backend" (the type's WaveChartBridge).
/// The chart bridges belong to this object. Main thread only.
class SensorDashboardBridge : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SensorDashboardBridge)
    Q_PROPERTY(QString windowTitle READ windowTitle NOTIFY windowTitleChanged)
    Q_PROPERTY(QVariantList paneStates READ paneStates NOTIFY paneStatesChanged)
    Q_PROPERTY(QVariantList visiblePaneStates READ visiblePaneStates NOTIFY paneStatesChanged)
    Q_PROPERTY(QStringList sensorTypes READ sensorTypes CONSTANT)
    Q_PROPERTY(QStringList selectedSensorTypes READ selectedSensorTypes NOTIFY selectionChanged)
    Q_PROPERTY(int sensorCount READ sensorCount CONSTANT)
    Q_PROPERTY(int selectedCount READ selectedCount NOTIFY selectionChanged)
    Q_PROPERTY(int gridRows READ gridRows NOTIFY selectionChanged)
    Q_PROPERTY(int gridColumns READ gridColumns NOTIFY selectionChanged)
    Q_PROPERTY(bool linked READ isLinked WRITE setLinked NOTIFY linkedChanged)
    Q_PROPERTY(MarkerList *markers READ markers CONSTANT)
    Q_PROPERTY(bool playing READ playing NOTIFY playingChanged)

public:
    explicit SensorDashboardBridge(QObject *parent = nullptr);

    const QString &windowTitle() const { return m_windowTitle; }
    /// One pane state per sensor type, in the fixed order.
    QVariantList paneStates() const;
    /// The selected ones, in the same order.
    QVariantList visiblePaneStates() const;
    const QStringList &sensorTypes() const { return m_sensorTypes; }
    QStringList selectedSensorTypes() const;
    int sensorCount() const { return int(m_sensorTypes.size()); }
    int selectedCount() const { return int(selectedSensorTypes().size()); }
    int gridRows() const { return layoutForCount(selectedCount()).height(); }
    int gridColumns() const { return layoutForCount(selectedCount()).width(); }
    bool playing() const { return m_playing; }
    /// The time axes and cursors of all charts are coupled.
    bool isLinked() const { return m_linked; }
    void setLinked(bool linked);
    /// The user's markers in the stream; cleared when another stream begins.
    MarkerList *markers() { return &m_markers; }
    bool dashboardActive() const { return m_dashboardActive; }

    /// Columns (width) and rows (height) of the grid for `count` panes; empty below 1.
    static QSize layoutForCount(int count);

    /// Short name of a type in the current language.
    static QString typeLabel(const SensorType &type) { return tr(type.label); }

    /// Chart of a type; null for an unknown key.
    Q_INVOKABLE WaveChartBridge *backend(const QString &type) const { return m_bridges.value(type); }
    Q_INVOKABLE WaveChartBridge *bridge(const QString &type) const { return m_bridges.value(type); }
    /// Chart by place in sensorTypes(); null out of range.
    Q_INVOKABLE WaveChartBridge *backendAt(int index) const { return m_bridges.value(m_sensorTypes.value(index)); }
    Q_INVOKABLE bool isSensorSelected(const QString &type) const { return m_selected.value(type); }
    /// Shows or hides a type. Not saved until saveSelectionState().
    Q_INVOKABLE void setSensorSelected(const QString &type, bool selected);
    /// Shows all types.
    Q_INVOKABLE void resetSelectionsToDefault();
    /// Asks the host to play or pause; the host answers with setPlaying().
    Q_INVOKABLE void togglePlaying() { emit playToggleRequested(!m_playing); }

    /// Routes a sample to the chart of its type; dropped while inactive.
    void pushSample(const QString &type, const float *values, int n, unsigned int timestampMs);
    /// Routes all values of one sample.
    void pushSamples(const ChartSamples &samples, unsigned int timestampMs);
    void setPlaying(bool playing);
    /// The origin of the samples, for files and pictures.
    void setOrigin(const SampleOrigin &origin);
    /// The session's clock.
    void setClock(const SharedClock &clock);
    /// Samples per second.
    void setFrameRate(unsigned int samplesPerSecond);
    /// Active while the dashboard is open. Becoming inactive empties the charts.
    void setDashboardActive(bool active);
    void resetBackends();
    /// The stream restarts: clears the charts, or makes them mark the place. Filters stay as the user set them.
    void restartStream(StreamBreak kind);
    /// Notifies every chart whether it is on the screen; called automatically after each change.
    void syncObservedStates();

    /// Reads and writes the selection in the settings file at `iniPath`, with spans, hidden channels and filters of the
    /// charts and whether they are linked. Without an entry the selection stays; unknown entries are ignored.
    void loadSelectionState(const QString &iniPath);
    void saveSelectionState(const QString &iniPath) const;

    /// Updates labels and title to the current language.
    void retranslate();

signals:
    void windowTitleChanged();
    void paneStatesChanged();
    void selectionChanged();
    void layoutChanged();
    void linkedChanged();
    /// A trigger that starts recordings has caught an event.
    void recordingWanted();
    void playingChanged();
    void playToggleRequested(bool playing);

private:
    QVariantMap paneState(const QString &type) const;

    QStringList m_sensorTypes;
    QHash<QString, WaveChartBridge *> m_bridges; ///< owned as children
    QHash<QString, bool> m_selected;
    bool m_linked = false;
    MarkerList m_markers;
    bool m_playing = true;
    bool m_dashboardActive = false;
    QHash<QString, QString> m_paneLabels;
    QString m_windowTitle;
};
