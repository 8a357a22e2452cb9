#pragma once

#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QTimer>
#include <QtQml/qqml.h>

#include "chart/plot_view_state.h"
#include "wave/wave_chart_bridge.h"

/// What one chart view shows of its bridge: the visible ranges of both axes, which channels, the measuring cursors, the
/// crosshair, and the texts that go with them. Views bind to it and pass on gestures; several kinds of window use it.
///
/// Time is in seconds before the newest sample, as everywhere in charts. While the view follows (its right end is the
/// newest sample) the range is fixed and the samples move through it; once moved into the history it stays on the same
/// samples, i.e. it moves with them until they leave the history. The cursors stay on their samples in the same way.
///
/// The value axis fits itself to the visible values until the user zooms or pans it; reset() makes it automatic again.
/// Main thread only; the bridge is not owned and may be destroyed first.
class WaveViewState : public PlotViewState
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(WaveViewState)
    QML_ELEMENT
    Q_PROPERTY(WaveChartBridge *bridge READ bridge WRITE setBridge NOTIFY bridgeChanged)
    Q_PROPERTY(bool active READ isActive WRITE setActive NOTIFY activeChanged)
    Q_PROPERTY(bool hasData READ hasData NOTIFY hasDataChanged)
    Q_PROPERTY(bool stale READ isStale NOTIFY staleChanged)
    Q_PROPERTY(bool following READ isFollowing NOTIFY viewChanged)
    Q_PROPERTY(double span READ span WRITE setSpan NOTIFY viewChanged)
    Q_PROPERTY(QList<double> spanPresets READ spanPresets CONSTANT)
    Q_PROPERTY(QString name READ name NOTIFY titleChanged)
    Q_PROPERTY(QString unit READ unit NOTIFY titleChanged)
    Q_PROPERTY(QStringList liveTexts READ liveTexts NOTIFY liveTextsChanged)
    Q_PROPERTY(QString rangeText READ rangeText NOTIFY rangeTextChanged)
    Q_PROPERTY(QList<double> breakSeconds READ breakSeconds NOTIFY breaksChanged)
    Q_PROPERTY(QStringList breakTexts READ breakTexts NOTIFY breaksChanged)
    Q_PROPERTY(int majorBreaks READ majorBreaks NOTIFY breaksChanged)
    Q_PROPERTY(bool marksCatches READ marksCatches WRITE setMarksCatches NOTIFY marksCatchesChanged)
    Q_PROPERTY(double storeEnd READ storeEnd NOTIFY storeEndChanged)
    Q_PROPERTY(QString storeEndText READ storeEndText NOTIFY storeEndChanged)

public:
    explicit WaveViewState(QObject *parent = nullptr);

    WaveChartBridge *bridge() const { return m_bridge; }
    void setBridge(WaveChartBridge *bridge);
    /// An inactive view ignores its samples; it catches up when it becomes active.
    bool isActive() const { return m_active; }
    void setActive(bool active);
    bool hasData() const { return m_hasData; }
    /// The picture has stopped although nobody paused it: no sample has arrived for at least two seconds, or for six of
    /// the stream's periods if these are longer (at most ten seconds).
    bool isStale() const { return m_stale; }

    /// The newest sample is at the right edge and stays there.
    bool isFollowing() const { return m_x.max >= 0; }
    bool isAtNewest() const override { return isFollowing(); }
    /// Stamp of the newest sample that the view knows, in seconds.
    double clock() const override { return m_newest; }
    bool isYAutomatic() const override { return m_yAutomatic; }
    void setYAutomatic(bool automatic) override;
    /// Visible span in seconds. Setting it keeps the right end, so that a live view stays live.
    double span() const { return m_x.span(); }
    void setSpan(double seconds);
    QList<double> spanPresets() const { return {1, 5, 10, 30, 60}; }
    /// Back to the newest samples; span and value range stay.
    Q_INVOKABLE void goLive();

    /// The chart's title without its unit, and the unit.
    QString name() const;
    QString unit() const;
    const ChartSource *source() const override { return m_bridge; }
    QList<bool> visibleSeries() const override { return m_visibleChannels; }
    void setSeriesVisible(int channel, bool visible) override;
    /// The newest value of each channel, padded to a constant width, ten times a second.
    QStringList liveTexts() const { return m_liveTexts; }

    /// The rate and the visible part of the history, "400 Hz · last 10 s of 60 s", for a status line.
    QString rangeText() const;

    QStringList measurement() const override;

    /// Where the visible curves are broken, and why, one entry per place in each list: first those where the stream
    /// restarted or was paused (majorBreaks() of them), then those where samples are missing; each oldest first.
    QList<double> breakSeconds() const;
    QStringList breakTexts() const;
    int majorBreaks() const;

    /// Switches the bridge's trigger. Switched on, it catches as many seconds as are visible, at a level in the middle
    /// of the visible values when its own level is not among them.
    Q_INVOKABLE void setTriggerOn(bool on);
    /// A marker is set at each event that the trigger catches.
    bool marksCatches() const { return m_marksCatches; }
    void setMarksCatches(bool mark);

    /// Where the axis shows times that the full store no longer holds, the end of these; else NaN. And the text shown
    /// there.
    double storeEnd() const;
    QString storeEndText() const;

    QString hoverTitle() const override;
    QStringList hoverTexts() const override;

    /// Adds a marker under the pointer, or at the newest sample while it is elsewhere. Returns its row, -1 without
    /// samples.
    Q_INVOKABLE int addMarker();

    QString valueText(int channel, double value, MeasureTable::Figure figure) const override;
    QString positionText(double seconds) const override;
    QString fileStem() const override;
    QByteArray table(bool all) const override;
    QString pictureTitle() const override;
    QString xUnit() const override { return QStringLiteral("s"); }

    /// Makes the value axis manual.
    void zoomY(double factor, double anchor) override;
    void panY(double fraction) override;
    /// The last ten seconds, following, values fitted.
    void reset() override;

    void fitValues(double low, double high) override;

signals:
    void bridgeChanged();
    void activeChanged();
    void hasDataChanged();
    void staleChanged();
    void titleChanged();
    void liveTextsChanged();
    void rangeTextChanged();
    void breaksChanged();
    void storeEndChanged();
    void marksCatchesChanged();

protected:
    void setX(chart_range::Range window) override;
    double cursorPlace(double seconds) const override;
    double firstPlace(int cursor) const override;
    double keyPlace(int cursor) const override { return firstPlace(cursor); }
    double placeBeside(double seconds, int direction) const override;
    bool showNewest() override;
    void setManualY(chart_range::Range range) override;
    /// A live view stays live.
    double wheelAnchorX(double x) const override { return isFollowing() ? 1 : x; }
    double keyAnchorX() const override { return isFollowing() ? 1 : 0.5; }

private:
    void samplesChanged();
    void followTime();
    void startOver();
    void updateLiveTexts();
    void setStale(bool stale);
    void awaitSamples();
    void moveMarks();
    void reportChoices();
    ChartMarker markerHere() const;
    QList<BreakMark> visibleMarks(const QList<BreakMark> &marks) const;
    chart_range::TimeLimits timeLimits() const;
    chart_range::ValueLimits valueLimits() const;
    void setY(chart_range::Range range, bool automatic);

    QPointer<WaveChartBridge> m_bridge;
    bool m_active = true;
    bool m_hasData = false;
    bool m_stale = false;
    bool m_hasBreaks = false;
    bool m_storeEndSeen = false;
    bool m_marksCatches = false;
    bool m_yAutomatic = true;
    double m_newest = 0; ///< stamp of the newest sample when time was last followed, seconds
    QList<bool> m_visibleChannels;
    QStringList m_liveTexts;
    QTimer m_liveTimer;
    QTimer m_staleTimer; ///< runs from the first pause after the last samples
    QElapsedTimer m_sinceLiveTexts;
};

/// Makes the bridge's type known to views, which get the bridge from their window.
struct WaveChartBridgeForeign
{
    Q_GADGET
    QML_FOREIGN(WaveChartBridge)
    QML_NAMED_ELEMENT(WaveChartBridge)
    QML_UNCREATABLE("owned by a dashboard")
};

struct WaveTriggerForeign
{
    Q_GADGET
    QML_FOREIGN(WaveTrigger)
    QML_NAMED_ELEMENT(WaveTrigger)
    QML_UNCREATABLE("comes with the bridge")
};
