#pragma once

#include <QPointer>
#include <QStringList>
#include <QtQml/qqml.h>

#include "wave/time_view_state.h"
#include "wave/wave_chart_bridge.h"

/// What one waveform chart shows of its bridge: which channels, why its curves are broken, what its trigger does, and
/// the texts that go with them. Views bind to it and pass on gestures; several kinds of window use it. Main thread
/// only; the bridge is not owned and may be destroyed first.
class WaveViewState : public TimeViewState
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(WaveViewState)
    QML_ELEMENT
    Q_PROPERTY(WaveChartBridge *bridge READ bridge WRITE setBridge NOTIFY bridgeChanged)
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

    QString name() const override;
    QString unit() const override;
    QString rangeText() const override;

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

    QString valueText(int channel, double value, MeasureTable::Figure figure) const override;
    QString fileStem() const override;
    QByteArray table(bool all) const override;
    QString pictureTitle() const override;

signals:
    void bridgeChanged();
    void breaksChanged();
    void storeEndChanged();
    void marksCatchesChanged();

protected:
    const TimeSource *timeSource() const override { return m_bridge; }
    QString paddedText(int channel, double value) const override;
    double firstSpan() const override { return m_bridge ? m_bridge->choices().spanSec : 0; }
    void choicesChanged() override;
    void timeMoved() override;

private:
    QList<BreakMark> visibleMarks(const QList<BreakMark> &marks) const;

    QPointer<WaveChartBridge> m_bridge;
    bool m_hasBreaks = false;
    bool m_storeEndSeen = false;
    bool m_marksCatches = false;
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
