#pragma once

#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QTimer>
#include <QtQml/qqml.h>

#include <array>
#include <limits>

#include "wave/chart_range.h"
#include "wave/wave_chart_bridge.h"

/// What one chart view shows of its bridge: the visible ranges of both axes, which channels, the measuring cursors, the
/// crosshair, and the texts that go with them. Views bind to it and pass gestures on; several kinds of window use it.
///
/// Time is in seconds before the newest sample, as everywhere in charts. While the view follows (its right end is the
/// newest sample) the window stands and the samples pass; once it was moved into the history it stays on the same
/// samples, i.e. it moves with them until they leave the history. The cursors stay on their samples in the same way.
///
/// The value axis fits itself to the visible values until the user zooms or pans it; reset() goes back to that.
/// Main thread only; the bridge is not owned and may die first.
class ChartViewState : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ChartViewState)
    QML_ELEMENT
    Q_PROPERTY(WaveChartBridge *bridge READ bridge WRITE setBridge NOTIFY bridgeChanged)
    Q_PROPERTY(bool active READ isActive WRITE setActive NOTIFY activeChanged)
    Q_PROPERTY(bool hasData READ hasData NOTIFY hasDataChanged)
    Q_PROPERTY(double xViewMin READ xViewMin NOTIFY viewChanged)
    Q_PROPERTY(double xViewMax READ xViewMax NOTIFY viewChanged)
    Q_PROPERTY(double yViewMin READ yViewMin NOTIFY viewChanged)
    Q_PROPERTY(double yViewMax READ yViewMax NOTIFY viewChanged)
    Q_PROPERTY(bool following READ isFollowing NOTIFY viewChanged)
    Q_PROPERTY(bool yAutomatic READ isYAutomatic NOTIFY viewChanged)
    Q_PROPERTY(QString name READ name NOTIFY titleChanged)
    Q_PROPERTY(QString unit READ unit NOTIFY titleChanged)
    Q_PROPERTY(QList<bool> visibleChannels READ visibleChannels NOTIFY channelsChanged)
    Q_PROPERTY(QStringList liveTexts READ liveTexts NOTIFY liveTextsChanged)
    Q_PROPERTY(QString rangeText READ rangeText NOTIFY rangeTextChanged)
    Q_PROPERTY(QList<double> cursors READ cursors NOTIFY cursorsChanged)
    Q_PROPERTY(bool hasCursors READ hasCursors NOTIFY cursorsChanged)
    Q_PROPERTY(QStringList measurement READ measurement NOTIFY cursorsChanged)
    Q_PROPERTY(double hoverX READ hoverX WRITE setHoverX NOTIFY hoverChanged)
    Q_PROPERTY(QString hoverTime READ hoverTime NOTIFY hoverChanged)
    Q_PROPERTY(QStringList hoverTexts READ hoverTexts NOTIFY hoverChanged)

public:
    explicit ChartViewState(QObject *parent = nullptr);

    WaveChartBridge *bridge() const { return m_bridge; }
    void setBridge(WaveChartBridge *bridge);
    /// An inactive view ignores its samples; it catches up when it becomes active.
    bool isActive() const { return m_active; }
    void setActive(bool active);
    bool hasData() const { return m_hasData; }

    double xViewMin() const { return m_x.min; }
    double xViewMax() const { return m_x.max; }
    double yViewMin() const { return m_y.min; }
    double yViewMax() const { return m_y.max; }
    /// The newest sample is at the right edge and stays there.
    bool isFollowing() const { return m_x.max >= 0; }
    bool isYAutomatic() const { return m_yAutomatic; }

    /// The chart's title without its unit, and the unit.
    QString name() const;
    QString unit() const;
    /// One flag per channel.
    QList<bool> visibleChannels() const { return m_visibleChannels; }
    /// The newest value of each channel, padded to a constant width, ten times a second.
    QStringList liveTexts() const { return m_liveTexts; }

    /// The rate and the visible part of the history, "400 Hz · last 10 s of 60 s", for a status line.
    QString rangeText() const;

    /// Times of the cursors A and B in seconds, NaN for one that is not placed.
    QList<double> cursors() const { return {m_cursors.begin(), m_cursors.end()}; }
    bool hasCursors() const;
    /// What the cursors measure, one text per quantity; empty unless both are placed.
    QStringList measurement() const;

    /// Time under the pointer, NaN for none.
    double hoverX() const { return m_hoverX; }
    void setHoverX(double seconds);
    QString hoverTime() const;
    /// The values of all channels at that time.
    QStringList hoverTexts() const;

    Q_INVOKABLE void setChannelVisible(int channel, bool visible);
    /// Zooms the time axis; below 1 zooms in. `anchor` is the place that stays, 0 the left edge to 1 the right edge.
    Q_INVOKABLE void zoomX(double factor, double anchor);
    /// Zooms the value axis and makes it manual; `anchor` is 0 at the bottom to 1 at the top.
    Q_INVOKABLE void zoomY(double factor, double anchor);
    /// One notch or part of a notch of the wheel (120 units) at the fractions (x, y) of the plot, y from the bottom.
    Q_INVOKABLE void wheel(double angleDelta, double x, double y, bool valueAxis);
    /// Moves by a fraction of what is visible: a positive one towards newer samples and larger values.
    Q_INVOKABLE void panX(double fraction);
    Q_INVOKABLE void panY(double fraction);
    /// The last ten seconds, following, values fitted.
    Q_INVOKABLE void reset();

    /// Places cursor 0 (A) or 1 (B) at a time in seconds; it keeps to the history.
    Q_INVOKABLE void placeCursor(int cursor, double seconds);
    /// Both cursors at a third and two thirds of the view, or none when there are some.
    Q_INVOKABLE void toggleCursors();
    Q_INVOKABLE void removeCursors();

    /// The keys of a chart: arrows pan, + and - zoom (with Ctrl the value axis), Home resets, A and B place cursors at
    /// the pointer, Esc removes them. True when it was one of them and had an effect.
    Q_INVOKABLE bool handleKey(int key, int modifiers);

    /// Told by the view which values are visible; fits the value axis while that is automatic. Nothing happens when
    /// `low` is above `high`.
    void fitValues(double low, double high);

signals:
    void bridgeChanged();
    void activeChanged();
    void hasDataChanged();
    void viewChanged();
    void titleChanged();
    void channelsChanged();
    void liveTextsChanged();
    void rangeTextChanged();
    void cursorsChanged();
    void hoverChanged();
    /// The picture is out of date: samples arrived, or what is visible changed.
    void pictureChanged();

private:
    void samplesChanged();
    void followTime();
    void startOver();
    void updateLiveTexts();
    double keyTime(double fraction) const;
    chart_range::TimeLimits timeLimits() const;
    chart_range::ValueLimits valueLimits() const;
    void setX(chart_range::Range window);
    void setY(chart_range::Range range, bool automatic);

    QPointer<WaveChartBridge> m_bridge;
    bool m_active = true;
    bool m_hasData = false;
    chart_range::Range m_x{-10, 0};
    chart_range::Range m_y{-1, 1};
    bool m_yAutomatic = true;
    double m_newest = 0; ///< stamp of the newest sample when time was last followed, seconds
    QList<bool> m_visibleChannels;
    QStringList m_liveTexts;
    QTimer m_liveTimer;
    QElapsedTimer m_sinceLiveTexts;
    std::array<double, 2> m_cursors;
    double m_hoverX = std::numeric_limits<double>::quiet_NaN();
};

/// Makes the bridge known to views, which get it from their window.
struct WaveChartBridgeForeign
{
    Q_GADGET
    QML_FOREIGN(WaveChartBridge)
    QML_NAMED_ELEMENT(WaveChartBridge)
    QML_UNCREATABLE("owned by a dashboard")
};
