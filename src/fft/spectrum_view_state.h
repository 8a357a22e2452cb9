#pragma once

#include <array>
#include <limits>

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QVariantList>
#include <QtQml/qqml.h>

#include "fft/fft_chart_bridge.h"
#include "wave/chart_range.h"

/// What the spectrum view shows of its bridge: the visible ranges of both axes, which curves, the cursors A and B, the
/// crosshair, and the texts that go with them. The view binds to it and passes gestures on.
///
/// Frequencies are in Hz from 0 to half the sample rate. Levels are what the value axis counts: the amplitude itself,
/// from 0 to the ceiling that the user set, or with `decibels` 20 log10 of it (0 dB is 1 of the unit), from kFloorDb.
/// With `fitted` the value axis fits itself to the visible curves beyond 0 Hz instead of going up to the ceiling; a
/// zoom or pan of the user ends that. Main thread only; the bridge is not owned and may die first.
class SpectrumViewState : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SpectrumViewState)
    QML_ELEMENT
    Q_PROPERTY(FftChartBridge *bridge READ bridge WRITE setBridge NOTIFY bridgeChanged)
    Q_PROPERTY(double xViewMin READ xViewMin NOTIFY viewChanged)
    Q_PROPERTY(double xViewMax READ xViewMax NOTIFY viewChanged)
    Q_PROPERTY(double yViewMin READ yViewMin NOTIFY viewChanged)
    Q_PROPERTY(double yViewMax READ yViewMax NOTIFY viewChanged)
    Q_PROPERTY(bool decibels READ decibels WRITE setDecibels NOTIFY viewChanged)
    Q_PROPERTY(bool fitted READ isFitted WRITE setFitted NOTIFY viewChanged)
    Q_PROPERTY(QStringList lineNames READ lineNames NOTIFY linesChanged)
    Q_PROPERTY(QVariantList lineColors READ lineColors CONSTANT)
    Q_PROPERTY(QList<bool> visibleLines READ visibleLines NOTIFY linesChanged)
    Q_PROPERTY(QVariantList marks READ marks NOTIFY marksChanged)
    Q_PROPERTY(double watchLevel READ watchLevel NOTIFY thresholdsChanged)
    Q_PROPERTY(double alarmLevel READ alarmLevel NOTIFY thresholdsChanged)
    Q_PROPERTY(double hoverX READ hoverX WRITE setHoverX NOTIFY hoverChanged)
    Q_PROPERTY(QString hoverFrequency READ hoverFrequency NOTIFY hoverChanged)
    Q_PROPERTY(QStringList hoverTexts READ hoverTexts NOTIFY hoverChanged)
    Q_PROPERTY(QList<double> cursors READ cursors NOTIFY cursorsChanged)
    Q_PROPERTY(bool hasCursors READ hasCursors NOTIFY cursorsChanged)
    Q_PROPERTY(QStringList measurement READ measurement NOTIFY cursorsChanged)

public:
    static constexpr int kLines = 4; ///< X, Y, Z and the resultant
    static constexpr double kFloorDb = -60;

    explicit SpectrumViewState(QObject *parent = nullptr);

    FftChartBridge *bridge() const { return m_bridge; }
    void setBridge(FftChartBridge *bridge);

    double xViewMin() const { return m_x.min; }
    double xViewMax() const { return m_x.max; }
    double yViewMin() const { return m_y.min; }
    double yViewMax() const { return m_y.max; }
    bool decibels() const { return m_decibels; }
    void setDecibels(bool decibels);
    bool isFitted() const { return m_fitted; }
    void setFitted(bool fitted);

    QStringList lineNames() const;
    QVariantList lineColors() const;
    QList<bool> visibleLines() const;
    Q_INVOKABLE void setLineVisible(int line, bool visible);

    /// Level of an amplitude.
    double level(double amplitude) const;
    /// The dominant peak and its harmonics: maps of "frequency", "level" and "label".
    QVariantList marks() const;
    double watchLevel() const;
    double alarmLevel() const;

    /// Frequency under the pointer, NaN when it is elsewhere.
    double hoverX() const { return m_hoverX; }
    void setHoverX(double frequency);
    QString hoverFrequency() const;
    /// Amplitude of each line at the bin nearest to the pointer; empty without one.
    QStringList hoverTexts() const;

    /// A and B, NaN while they are not placed.
    QList<double> cursors() const { return {m_cursors[0], m_cursors[1]}; }
    bool hasCursors() const;
    /// What the cursors measure: their bins, and with both the differences.
    QStringList measurement() const;
    /// Places cursor 0 (A) or 1 (B) at the bin nearest to a frequency.
    Q_INVOKABLE void placeCursor(int cursor, double frequency);
    /// A on the dominant peak and B on twice its frequency, or none when there are some.
    Q_INVOKABLE void toggleCursors();
    Q_INVOKABLE void removeCursors();

    /// Scales an axis by `factor` (below 1 zooms in) about `anchor`, a fraction of its visible part.
    Q_INVOKABLE void zoomX(double factor, double anchor);
    Q_INVOKABLE void zoomY(double factor, double anchor);
    /// A turn of the wheel by `angleDelta` eighths of a degree at the fractions x and y of the plot, from bottom left.
    Q_INVOKABLE void wheel(double angleDelta, double x, double y, bool frequencyAxis);
    /// Moves an axis by a fraction of its visible part.
    Q_INVOKABLE void panX(double fraction);
    Q_INVOKABLE void panY(double fraction);
    /// All frequencies, amplitudes up to the ceiling.
    Q_INVOKABLE void reset();
    /// The keys of the chart: arrows pan, + and - zoom (with Ctrl the frequencies), Home resets, A and B place cursors
    /// at the pointer, Esc removes them. True when it was one of them and had an effect.
    Q_INVOKABLE bool handleKey(int key, int modifiers);

    /// Told by the view which levels are visible; fits the value axis while that is wanted.
    void fitLevels(double low, double high);

signals:
    void bridgeChanged();
    void viewChanged();
    void linesChanged();
    void marksChanged();
    void thresholdsChanged();
    void hoverChanged();
    void cursorsChanged();
    /// The picture is out of date: spectra arrived, or what is visible changed.
    void pictureChanged();

private:
    void dataChanged();
    void configChanged();
    void followFrequencies();
    chart_range::Range fullX() const;
    chart_range::Range fullY() const;
    void setX(chart_range::Range range);
    void setY(chart_range::Range range);
    QString amplitudeText(double amplitude, bool isDifference = false) const;
    QList<double> amplitudesAt(double frequency) const;

    QPointer<FftChartBridge> m_bridge;
    chart_range::Range m_x{0, 50};
    chart_range::Range m_y{0, 1};
    bool m_decibels = false;
    bool m_fitted = false;
    bool m_fitAnew = false; ///< whatever is visible now
    double m_maxFreq = 50;
    double m_ceiling = 0;
    std::array<bool, 3> m_visible{true, true, true};
    double m_hoverX = std::numeric_limits<double>::quiet_NaN();
    std::array<double, 2> m_cursors;
};

/// Makes the bridge known to views, which get it from their window.
struct FftChartBridgeForeign
{
    Q_GADGET
    QML_FOREIGN(FftChartBridge)
    QML_NAMED_ELEMENT(FftChartBridge)
    QML_UNCREATABLE("comes with the window")
};
