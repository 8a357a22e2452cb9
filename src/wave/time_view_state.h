#pragma once

#include <QElapsedTimer>
#include <QStringList>
#include <QTimer>
#include <QtQml/qqml.h>

#include "chart/plot_view_state.h"
#include "wave/time_source.h"

/// What a view over time shows of its source: the visible ranges of both axes, the measuring cursors and the newest
/// values. A kind of chart adds what is drawn, and its texts.
///
/// Time is in seconds before the newest sample, as everywhere in charts. While the view follows (its right end is the
/// newest sample) the range is fixed and the samples move through it; once moved into the history it stays on the same
/// samples, i.e. it moves with them until they leave the history. The cursors stay on their samples in the same way.
///
/// The value axis fits itself to the visible values until the user zooms or pans it; reset() makes it automatic again.
/// Main thread only.
class TimeViewState : public PlotViewState
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(TimeViewState)
    QML_ELEMENT
    QML_UNCREATABLE("the base of the states of charts over time")
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

public:
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
    /// Adds a marker under the pointer, or at the newest sample while it is elsewhere. Returns its row, -1 without
    /// samples.
    Q_INVOKABLE int addMarker();

    const ChartSource *source() const override { return timeSource(); }
    /// What is drawn, without its unit, and the unit.
    virtual QString name() const = 0;
    virtual QString unit() const = 0;
    QList<bool> visibleSeries() const override { return m_visible; }
    void setSeriesVisible(int series, bool visible) override;
    /// The newest value of each series, padded to a constant width, ten times a second.
    QStringList liveTexts() const { return m_liveTexts; }
    /// The rate and the visible part of the history, "400 Hz · last 10 s of 60 s", for a status line.
    virtual QString rangeText() const = 0;

    QStringList measurement() const override;
    QString hoverTitle() const override;
    QStringList hoverTexts() const override;
    QString positionText(double seconds) const override;
    QString xUnit() const override { return QStringLiteral("s"); }

    /// Makes the value axis manual.
    void zoomY(double factor, double anchor) override;
    void panY(double fraction) override;
    /// The last ten seconds, following, values fitted.
    void reset() override;

    void fitValues(double low, double high) override;

signals:
    void activeChanged();
    void hasDataChanged();
    void staleChanged();
    void titleChanged();
    void liveTextsChanged();
    void rangeTextChanged();

protected:
    explicit TimeViewState(QObject *parent);

    /// What is drawn; null while there is none.
    virtual const TimeSource *timeSource() const = 0;
    /// A value of a series, padded to the width of usual ones.
    virtual QString paddedText(int series, double value) const = 0;
    /// The span to begin with; 0: the usual one.
    virtual double firstSpan() const { return 0; }
    /// The user has changed the span, or which series are visible.
    virtual void choicesChanged() {}
    /// The visible part of the time axis has changed, or samples have moved through it.
    virtual void timeMoved();

    /// Another source: everything begins again. `visible` has one flag per series.
    void changeSource(const QList<bool> &visible);
    /// Other series of the same source.
    void changeSeries(const QList<bool> &visible);
    void samplesChanged();
    /// Nothing is awaited for a moment: the picture is fresh again.
    void refreshStale();

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
    void followTime();
    void startOver();
    void updateLiveTexts();
    void setStale(bool stale);
    void awaitSamples();
    ChartMarker markerHere() const;
    double oldest() const;
    chart_range::ValueLimits valueLimits() const;
    void setY(chart_range::Range range, bool automatic);

    bool m_active = true;
    bool m_hasData = false;
    bool m_stale = false;
    bool m_yAutomatic = true;
    double m_newest = 0; ///< stamp of the newest sample when time was last followed, seconds
    QList<bool> m_visible;
    QStringList m_liveTexts;
    QTimer m_liveTimer;
    QTimer m_staleTimer; ///< runs from the first pause after the last samples
    QElapsedTimer m_sinceLiveTexts;
};
