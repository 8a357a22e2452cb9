#pragma once

#include <array>
#include <limits>

#include <QList>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QVariantList>
#include <QtQml/qqml.h>

#include "chart/chart_link.h"
#include "chart/chart_range.h"
#include "chart/marker_list.h"
#include "chart/measure_table.h"

class ChartSource;

/// What every chart with two axes has in common: the visible ranges, the measuring cursors A and B, the crosshair, and
/// the gestures and keys that move them. A chart adds its limits, where its cursors may stand and what is drawn.
/// Positions on the horizontal axis are in its own unit. Main thread only.
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
    /// Position 0 on a clock that coupled charts share.
    virtual double clock() const { return 0; }
    /// The horizontal axis ends at the newest data and stays there.
    virtual bool isAtNewest() const { return false; }
    /// Takes the cursors of a coupled chart, `shift` later.
    void takeCursors(const QList<double> &cursors, double shift);

    /// The markers that are drawn in this chart; null for none.
    MarkerList *markers() const { return m_markers; }
    void setMarkers(MarkerList *markers);
    /// Those that are visible, and their texts.
    QList<double> markerPlaces() const;
    QStringList markerTexts() const;
    /// Shows the surroundings of a place on the clock, as wide as what is shown.
    Q_INVOKABLE void showTime(double clockTime);

    /// What is drawn; null while there is none.
    virtual const ChartSource *source() const = 0;
    QStringList seriesNames() const;
    /// QColors, as they are drawn now; they follow source and appearance.
    QVariantList seriesColors() const;
    /// One flag per series.
    virtual QList<bool> visibleSeries() const = 0;
    bool isSeriesVisible(int series) const { return visibleSeries().value(series); }
    Q_INVOKABLE virtual void setSeriesVisible(int series, bool visible) = 0;
    /// What the vertical axis counts for a value of the source.
    virtual double level(double value) const { return value; }
    /// Points up to this position say nothing about the range that the vertical axis should have.
    virtual double fitFromX() const;
    /// Told by the view which levels are visible; fits the vertical axis while that is automatic. Nothing happens when
    /// `low` is above `high`.
    virtual void fitValues(double low, double high) = 0;

    /// All that is said about the pointer in one line, with names.
    QString hoverLine() const;
    /// The position under the pointer, and the value of each series there; empty where there is none.
    virtual QString hoverTitle() const = 0;
    virtual QStringList hoverTexts() const = 0;
    /// A value of a series with its unit's digits, a position with its unit.
    virtual QString valueText(int series, double value, MeasureTable::Figure figure) const = 0;
    virtual QString positionText(double position) const = 0;
    /// Where the cursors are and what lies between them, one text per quantity.
    virtual QStringList measurement() const = 0;

    /// How names of files begin, with the device and node where they are known.
    virtual QString fileStem() const = 0;
    /// What is visible as a table for a file, or all that there is.
    virtual QByteArray table(bool all) const = 0;
    /// The words over a picture, and the unit of the horizontal axis in it.
    virtual QString pictureTitle() const = 0;
    virtual QString xUnit() const = 0;

    double xViewMin() const { return m_x.min; }
    double xViewMax() const { return m_x.max; }
    double yViewMin() const { return m_y.min; }
    double yViewMax() const { return m_y.max; }

    /// Positions of A and B, NaN for one that is not placed.
    QList<double> cursors() const { return {m_cursors.begin(), m_cursors.end()}; }
    bool hasCursors() const;
    /// Places cursor 0 (A) or 1 (B) where the chart lets it stand next to `position`.
    Q_INVOKABLE void placeCursor(int cursor, double position);
    /// Both cursors, or none when there are some.
    Q_INVOKABLE void toggleCursors();
    Q_INVOKABLE void removeCursors();

    /// Position under the pointer, NaN when it is elsewhere.
    double hoverX() const { return m_hoverX; }
    void setHoverX(double position);

    /// The vertical axis fits itself to what is visible. Switched off, it stays as it is.
    virtual bool isYAutomatic() const = 0;
    virtual void setYAutomatic(bool automatic) = 0;
    /// Shows a range as far as the chart's limits let it; nothing for one that is empty or not finite. A vertical range
    /// is no longer automatic.
    Q_INVOKABLE void setXRange(double min, double max);
    Q_INVOKABLE void setYRange(double min, double max);
    /// Shows a part of the plot: fractions of it, y from the bottom, in any order. Too small a box is a click.
    Q_INVOKABLE void zoomToBox(double x1, double y1, double x2, double y2);

    /// Scales an axis by `factor`, below 1 zooms in. `anchor` is the place that stays: 0 left or bottom, 1 right or
    /// top.
    Q_INVOKABLE void zoomX(double factor, double anchor);
    Q_INVOKABLE virtual void zoomY(double factor, double anchor) = 0;
    /// One notch or part of a notch of the wheel (120 units) at the fractions (x, y) of the plot, y from the bottom.
    /// It zooms the chart's main axis, or the other one; sideways (`angleX` more than `angleY`) it pans.
    Q_INVOKABLE void wheel(double angleX, double angleY, double x, double y, bool otherAxis);
    /// Moves an axis by a fraction of its visible part: a positive one towards larger values.
    Q_INVOKABLE void panX(double fraction);
    Q_INVOKABLE virtual void panY(double fraction) = 0;
    /// Back to what is shown at first.
    Q_INVOKABLE virtual void reset() = 0;

    /// The keys of a chart: arrows pan, + and - zoom (with Ctrl the other axis), Home resets, End goes to the newest, A
    /// and B place cursors at the pointer, Shift and arrows move the one placed last (with Ctrl further), Esc removes
    /// them. True when it was one of them and had an effect.
    Q_INVOKABLE bool handleKey(int key, int modifiers);

signals:
    void linkChanged();
    void markersChanged();
    void seriesChanged();
    void colorsChanged();
    void viewChanged();
    void cursorsChanged();
    void hoverChanged();
    /// The picture is out of date: data arrived, or what is visible changed.
    void pictureChanged();

protected:
    static constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

    /// Which axis the wheel and the keys zoom without a modifier.
    enum class MainAxis { X, Y };

    PlotViewState(MainAxis mainAxis, chart_range::Range x, chart_range::Range y, QObject *parent);

    /// Shows a range as far as the chart's limits let it.
    virtual void setX(chart_range::Range range) = 0;
    /// Where a cursor stands that is wanted at `position`; NaN: it cannot be placed.
    virtual double cursorPlace(double position) const = 0;
    /// Where toggleCursors() places A (0) and B (1).
    virtual double firstPlace(int cursor) const = 0;
    /// Where a key places them while the pointer is elsewhere.
    virtual double keyPlace(int cursor) const = 0;
    /// The place for a cursor next to `position` in a direction, -1 or 1.
    virtual double placeBeside(double position, int direction) const = 0;
    /// Goes to the newest data; false when there is nothing like it.
    virtual bool showNewest() { return false; }
    /// Takes a vertical range that the user has chosen.
    virtual void setManualY(chart_range::Range range) = 0;
    /// The fraction of the plot that stays where it is when the wheel turns at `x`.
    virtual double wheelAnchorX(double x) const { return x; }
    /// What keys leave in its place when they zoom, as in zoomX() and zoomY().
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
    int m_activeCursor = 0; ///< the one that keys move
};

/// Makes the list of markers known to views, which get it from their window.
struct MarkerListForeign
{
    Q_GADGET
    QML_FOREIGN(MarkerList)
    QML_NAMED_ELEMENT(MarkerList)
    QML_UNCREATABLE("comes with the window")
};
