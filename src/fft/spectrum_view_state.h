#pragma once

#include <array>

#include <QPointer>
#include <QStringList>
#include <QVariantList>
#include <QtQml/qqml.h>

#include "chart/plot_view_state.h"
#include "fft/fft_chart_bridge.h"

/// What the spectrum view shows of its bridge: the visible ranges of both axes, which curves, the cursors A and B, the
/// crosshair, and the texts that go with them. The view binds to it and passes on gestures.
///
/// Frequencies are in Hz from 0 to half the sample rate. Levels are the values on the vertical axis: the amplitude
/// itself, from 0 to the ceiling that the user set, or with `decibels` 20 log10 of it (0 dB is 1 of the unit), from
/// kFloorDb. The automatic value axis fits itself to the visible curves beyond 0 Hz; a zoom or pan by the user ends
/// that, and so does a new ceiling, to which the axis then extends. Main thread only; the bridge is not owned and may
/// be destroyed first.
class SpectrumViewState : public PlotViewState
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SpectrumViewState)
    QML_ELEMENT
    Q_PROPERTY(FftChartBridge *bridge READ bridge WRITE setBridge NOTIFY bridgeChanged)
    Q_PROPERTY(bool decibels READ decibels WRITE setDecibels NOTIFY viewChanged)
    Q_PROPERTY(QVariantList marks READ marks NOTIFY marksChanged)
    Q_PROPERTY(double watchLevel READ watchLevel NOTIFY thresholdsChanged)
    Q_PROPERTY(double alarmLevel READ alarmLevel NOTIFY thresholdsChanged)

public:
    static constexpr double kFloorDb = -60;

    explicit SpectrumViewState(QObject *parent = nullptr);

    FftChartBridge *bridge() const { return m_bridge; }
    void setBridge(FftChartBridge *bridge);

    bool decibels() const { return m_decibels; }
    void setDecibels(bool decibels);
    bool isYAutomatic() const override { return m_fitted; }
    void setYAutomatic(bool automatic) override;

    const ChartSource *source() const override { return m_bridge; }
    QList<bool> visibleSeries() const override;
    void setSeriesVisible(int line, bool visible) override;
    double level(double amplitude) const override;
    double fitFromX() const override;
    void fitValues(double low, double high) override;

    /// The dominant peak and its harmonics, the most important first: maps of "frequency", "level" and "label".
    QVariantList marks() const;
    /// Which of these rectangles can be shown without overlap; earlier ones take precedence.
    Q_INVOKABLE static QList<bool> apart(const QVariantList &rectangles);
    double watchLevel() const;
    double alarmLevel() const;

    /// Position and values of the bin nearest to the pointer.
    QString hoverTitle() const override;
    QStringList hoverTexts() const override;

    /// The bins of the cursors, and if both are placed the differences.
    QStringList measurement() const override;

    /// An amplitude, also where levels are shown: statistics of decibels would mean nothing.
    QString valueText(int series, double value, MeasureTable::Figure figure) const override;
    QString positionText(double frequency) const override;
    QString fileStem() const override { return QStringLiteral("spectrum"); }
    /// Always all spectra: they are short.
    QByteArray table(bool all) const override;
    QString pictureTitle() const override;
    QString xUnit() const override { return QStringLiteral("Hz"); }

    void zoomY(double factor, double anchor) override;
    void panY(double fraction) override;
    /// All frequencies, amplitudes fitted.
    void reset() override;

signals:
    void bridgeChanged();
    void marksChanged();
    void thresholdsChanged();

protected:
    void setX(chart_range::Range range) override;
    double cursorPlace(double frequency) const override;
    double firstPlace(int cursor) const override;
    double keyPlace(int cursor) const override;
    double keyAnchorY() const override { return 0; }
    double placeBeside(double frequency, int direction) const override;
    void setManualY(chart_range::Range range) override;

private:
    void reportChoices() const;
    void dataChanged();
    void configChanged();
    void tellAxisInForce();
    void followFrequencies();
    chart_range::Range fullX() const;
    chart_range::Range fullY() const;
    void setY(chart_range::Range range);
    QString amplitudeText(double amplitude, bool isDifference = false) const;

    QPointer<FftChartBridge> m_bridge;
    bool m_decibels = false;
    bool m_fitted = true;
    bool m_fitAnew = true; ///< whatever is visible now
    double m_maxFreq = 50;
    double m_ceiling = 0;
    std::array<bool, 3> m_visible{true, true, true};
};

/// Makes the bridge's type known to views, which get the bridge from their window.
struct FftChartBridgeForeign
{
    Q_GADGET
    QML_FOREIGN(FftChartBridge)
    QML_NAMED_ELEMENT(FftChartBridge)
    QML_UNCREATABLE("comes with the window")
};
