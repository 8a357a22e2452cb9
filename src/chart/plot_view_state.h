#pragma once

#include <array>
#include <limits>

#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QTimer>
#include <QVariantList>
#include <QtQml/qqml.h>

#include "chart/chart_link.h"
#include "chart/chart_range.h"
#include "chart/marker_list.h"
#include "chart/measure_table.h"

class ChartSource;

/// What every chart with two axes has in common: the visible ranges, the measuring cursors A and B, the crosshair, and
/// the gestures and keys that move them. A chart adds its limits, where its cursors may be and what is drawn. Positions
/// on the horizontal axis are in its own unit. Main thread only.
class PlotViewState : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PlotViewState)
    QML_ELEMENT
    QML_UNCREATABLE("the base of the states of charts")
    Q_PROPERTY(ChartLink *link READ link WRITE setLink NOTIFY linkChanged)
    Q_PROPERTY(MarkerList *markers READ markers WRITE setMarkers NOTIFY markersChanged)
    Q_PROPERTY(QList<double> markerPlaces READ markerPlaces NOTIFY markersChanged)
    Q_PROPERTY(QStringList markerTexts READ markerTexts NOTIFY markersChanged)
    Q_PROPERTY(QStringList seriesNames READ seriesNames NOTIFY seriesChanged)
    Q_PROPERTY(QVariantList seriesColors READ seriesColors NOTIFY colorsChanged)
    Q_PROPERTY(QList<bool> visibleSeries READ visibleSeries NOTIFY seriesChanged)
    Q_PROPERTY(QStringList seriesLabels READ seriesLabels NOTIFY seriesChanged)
    Q_PROPERTY(QString longestLabel READ longestLabel NOTIFY seriesChanged)
    Q_PROPERTY(QList<bool> seriesDashes READ seriesDashes NOTIFY seriesChanged)
    Q_PROPERTY(QList<double> ends READ ends NOTIFY endsChanged)
    Q_PROPERTY(double xViewMin READ xViewMin NOTIFY viewChanged)
    Q_PROPERTY(double xViewMax READ xViewMax NOTIFY viewChanged)
    Q_PROPERTY(double yViewMin READ yViewMin NOTIFY viewChanged)
    Q_PROPERTY(double yViewMax READ yViewMax NOTIFY viewChanged)
    Q_PROPERTY(bool yAutomatic READ isYAutomatic WRITE setYAutomatic NOTIFY viewChanged)
    Q_PROPERTY(QList<double> cursors READ cursors NOTIFY cursorsChanged)
    Q_PROPERTY(bool hasCursors READ hasCursors NOTIFY cursorsChanged)
    Q_PROPERTY(double hoverX READ hoverX WRITE setHoverX NOTIFY hoverChanged)
    Q_PROPERTY(QString hoverTitle READ hoverTitle NOTIFY hoverChanged)
    Q_PROPERTY(QString hoverLine READ hoverLine NOTIFY hoverChanged)
    Q_PROPERTY(QStringList hoverTexts READ hoverTexts NOTIFY hoverChanged)
    Q_PROPERTY(QStringList measurement READ measurement NOTIFY cursorsChanged)

public:
    ~PlotViewState() override;

    /// What couples the chart to others; null without.
    ChartLink *link() const { return m_link; }
    void setLink(ChartLink *link);
    /// The time of position 0 on a clock that coupled charts share.
    virtual double clock() const { return 0; }
    /// The horizontal axis ends at the newest data and stays there.
    virtual bool isAtNewest() const { return false; }
    /// Takes over the cursors of a coupled chart, shifted by `shift`.
    void takeCursors(const QList<double> &cursors, double shift);

    /// The markers that are drawn in this chart; null for none.
    MarkerList *markers() const { return m_markers; }
    void setMarkers(MarkerList *markers);
    /// The visible ones, and their texts.
    QList<double> markerPlaces() const;
    QStringList markerTexts() const;
    /// Shows the surroundings of a time on the clock, without changing the width of the range.
    Q_INVOKABLE void showTime(double clockTime);

    /// What is drawn; null while there is none.
    virtual const ChartSource *source() const = 0;
    QStringList seriesNames() const;
    /// Short names, for the ends of the curves.
    QStringList seriesLabels() const;
    /// The one with the most characters.
    QString longestLabel() const;
    QList<bool> seriesDashes() const;
    /// QColors, as they are drawn now; they follow source and appearance.
    QVariantList seriesColors() const;
    /// One flag per series.
    virtual QList<bool> visibleSeries() const = 0;
    bool isSeriesVisible(int series) const { return visibleSeries().value(series); }
    Q_INVOKABLE virtual void setSeriesVisible(int series, bool visible) = 0;
    /// The level on the vertical axis for a value of the source.
    virtual double level(double value) const { return value; }
    /// Points up to this position are ignored when the vertical axis is fitted.
    virtual double fitFromX() const;
    /// The view reports which levels are visible; fits the vertical axis while that is automatic. Does nothing when
    /// `low` is above `high`.
    virtual void fitValues(double low, double high) = 0;

    /// The level of each series at the right edge, as drawn; NaN for one that does not reach it. The lines report it
    /// with each picture; endsChanged() follows ten times a second at most.
    QList<double> ends() const { return m_ends; }
    void setEnds(const QList<double> &ends);
    /// Where labels of `height` pixels stand beside a plot of `plotHeight`, see label_places.h.
    Q_INVOKABLE QList<double> labelPlaces(double plotHeight, double height) const;

    /// Everything about the pointer in one line, with names.
    QString hoverLine() const;
    /// The position under the pointer, and the value of each series there; empty when there is none.
    virtual QString hoverTitle() const = 0;
    virtual QStringList hoverTexts() const = 0;
    /// A value of a series with the digits that suit its unit; a position with its unit.
    virtual QString valueText(int series, double value, MeasureTable::Figure figure) const = 0;
    virtual QString positionText(double position) const = 0;
    /// The positions of the cursors and the differences between them, one text per quantity.
    virtual QStringList measurement() const = 0;

    /// How names of files begin, with the device and node where they are known.
    virtual QString fileStem() const = 0;
    /// The visible data, or all data, as a table for a file.
    virtual QByteArray table(bool all) const = 0;
    /// The title of a picture, and the unit of its horizontal axis.
    virtual QString pictureTitle() const = 0;
    virtual QString xUnit() const = 0;

    double xViewMin() const { return m_x.min; }
    double xViewMax() const { return m_x.max; }
    double yViewMin() const { return m_y.min; }
    double yViewMax() const { return m_y.max; }

    /// Positions of A and B, NaN for one that is not placed.
    QList<double> cursors() const { return {m_cursors.begin(), m_cursors.end()}; }
    bool hasCursors() const;
    /// Places cursor 0 (A) or 1 (B) at the position nearest to `position` that the chart allows.
    Q_INVOKABLE void placeCursor(int cursor, double position);
    /// Places both cursors, or removes them when any is placed.
    Q_INVOKABLE void toggleCursors();
    Q_INVOKABLE void removeCursors();

    /// Position under the pointer, NaN when the pointer is elsewhere.
    double hoverX() const { return m_hoverX; }
    void setHoverX(double position);

    /// The vertical axis fits itself to what is visible. Switched off, it stays as it is.
    virtual bool isYAutomatic() const = 0;
    virtual void setYAutomatic(bool automatic) = 0;
    /// Shows a range as far as the chart's limits allow; ignores one that is empty or not finite. The vertical range is
    /// then no longer automatic.
    Q_INVOKABLE void setXRange(double min, double max);
    Q_INVOKABLE void setYRange(double min, double max);
    /// Shows a part of the plot: fractions of it, y from the bottom, in any order. Too small a box is a click.
    Q_INVOKABLE void zoomToBox(double x1, double y1, double x2, double y2);

    /// Scales an axis by `factor`, below 1 zooms in. `anchor` is the place that stays fixed: 0 left or bottom, 1 right
    /// or top.
    Q_INVOKABLE void zoomX(double factor, double anchor);
    Q_INVOKABLE virtual void zoomY(double factor, double anchor) = 0;
    /// One notch or part of a notch of the wheel (120 units) at the fractions (x, y) of the plot, y from the bottom.
    /// It zooms the chart's main axis, or the other one; sideways (`angleX` more than `angleY`) it pans.
    Q_INVOKABLE void wheel(double angleX, double angleY, double x, double y, bool otherAxis);
    /// Moves an axis by a fraction of its visible part: a positive one towards larger values.
    Q_INVOKABLE void panX(double fraction);
    Q_INVOKABLE virtual void panY(double fraction) = 0;
    /// Back to the initial view.
    Q_INVOKABLE virtual void reset() = 0;

    /// The keys of a chart: arrows pan, + and - zoom (with Ctrl the other axis), Home resets, End goes to the newest, A
    /// and B place cursors at the pointer, Shift and arrows move the one placed last (with Ctrl further), Esc removes
    /// them. True when the key was one of these and had an effect.
    Q_INVOKABLE bool handleKey(int key, int modifiers);

signals:
    void linkChanged();
    void markersChanged();
    void seriesChanged();
    void colorsChanged();
    void viewChanged();
    void cursorsChanged();
    void hoverChanged();
    void endsChanged();
    /// The picture is out of date: data arrived, or what is visible changed.
    void pictureChanged();

protected:
    static constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

    /// Which axis the wheel and the keys zoom without a modifier.
    enum class MainAxis { X, Y };

    PlotViewState(MainAxis mainAxis, chart_range::Range x, chart_range::Range y, QObject *parent);

    /// Shows a range as far as the chart's limits allow.
    virtual void setX(chart_range::Range range) = 0;
    /// Where a cursor requested at `position` is placed; NaN: it cannot be placed.
    virtual double cursorPlace(double position) const = 0;
    /// Where toggleCursors() places A (0) and B (1).
    virtual double firstPlace(int cursor) const = 0;
    /// Where a key places them while the pointer is elsewhere.
    virtual double keyPlace(int cursor) const = 0;
    /// The next place for a cursor from `position` in a direction, -1 or 1.
    virtual double placeBeside(double position, int direction) const = 0;
    /// Goes to the newest data; false when the chart has no such place.
    virtual bool showNewest() { return false; }
    /// Takes a vertical range that the user has chosen.
    virtual void setManualY(chart_range::Range range) = 0;
    /// The fraction of the plot that stays fixed when the wheel is turned at `x`.
    virtual double wheelAnchorX(double x) const { return x; }
    /// The anchor of zooming by keys, as in zoomX() and zoomY().
    virtual double keyAnchorX() const { return 0.5; }
    virtual double keyAnchorY() const { return 0.5; }

    chart_range::Range m_x;
    chart_range::Range m_y;
    std::array<double, 2> m_cursors{kNone, kNone};
    double m_hoverX = kNone;

private:
    bool moveCursor(int direction, int steps);

    const MainAxis m_mainAxis;
    QPointer<ChartLink> m_link;
    QPointer<MarkerList> m_markers;
    QList<double> m_ends;
    QTimer m_endsTimer;
    QElapsedTimer m_sinceEnds;
    int m_activeCursor = 0; ///< the one that keys move
};

/// Makes the type of the marker list known to views, which get the list from their window.
struct MarkerListForeign
{
    Q_GADGET
    QML_FOREIGN(MarkerList)
    QML_NAMED_ELEMENT(MarkerList)
    QML_UNCREATABLE("comes with the window")
};
