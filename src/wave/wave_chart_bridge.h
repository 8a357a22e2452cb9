#pragma once

#include <QList>
#include <QObject>
#include <QPointF>
#include <QString>
#include <QStringList>
#include <QVariantList>

#include <memory>
#include <optional>

#include "app/source_clock.h"
#include "link/sample_gaps.h"
#include "session/stream_event.h"
#include "wave/curve_break.h"
#include "wave/sample_origin.h"
#include "wave/time_source.h"
#include "wave/view_choices.h"
#include "wave/wave_trigger.h"
#include "wave/waveform_data_model.h"

struct SensorType;

/// The object behind one waveform chart: owns the samples of one sensor type, describes the chart to the view, notifies
/// it when to repaint and answers its queries. The time axis counts seconds before the newest sample: 0 is the newest,
/// negative is older.
///
/// dataChanged() is emitted at most once per pass of the event loop, about 30 times a second for fast streams, and
/// never while nobody observes the chart. Main thread only.
class WaveChartBridge : public QObject, public TimeSource
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(WaveChartBridge)
    Q_PROPERTY(QString sensorType READ sensorType CONSTANT)
    Q_PROPERTY(QString chartTitle READ chartTitle NOTIFY chartTitleChanged)
    Q_PROPERTY(int channelCount READ channelCount CONSTANT)
    Q_PROPERTY(QStringList channelNames READ channelNames CONSTANT)
    Q_PROPERTY(QVariantList channelColors READ channelColors CONSTANT)
    Q_PROPERTY(double yMin READ yMin CONSTANT)
    Q_PROPERTY(double yMax READ yMax CONSTANT)
    Q_PROPERTY(bool playing READ playing NOTIFY playingChanged)
    Q_PROPERTY(bool hasFilter READ hasFilter CONSTANT)
    Q_PROPERTY(bool filterOn READ filterOn NOTIFY filterChanged)
    Q_PROPERTY(double filterCutoffHz READ filterCutoffHz NOTIFY filterChanged)
    Q_PROPERTY(double filterForceHz READ filterForceHz NOTIFY filterChanged)
    Q_PROPERTY(bool hasData READ hasData NOTIFY dataChanged)
    Q_PROPERTY(WaveTrigger *trigger READ trigger CONSTANT)
    Q_PROPERTY(bool holds READ holds NOTIFY holdsChanged)
    Q_PROPERTY(unsigned int framerate READ framerate NOTIFY framerateChanged)
    Q_PROPERTY(double rateHz READ rateHz NOTIFY framerateChanged)
    Q_PROPERTY(double xLimitMin READ xLimitMin CONSTANT)
    Q_PROPERTY(double xLimitMax READ xLimitMax CONSTANT)
    Q_PROPERTY(double xHistoryMin READ xHistoryMin NOTIFY viewLimitsChanged)
    Q_PROPERTY(double xDefaultMin READ xDefaultMin CONSTANT)
    Q_PROPERTY(double xMaxViewDuration READ xMaxViewDuration CONSTANT)
    Q_PROPERTY(double xMinZoom READ xMinZoom CONSTANT)
    Q_PROPERTY(double xSnapStep READ xSnapStep CONSTANT)
    Q_PROPERTY(double yMinZoom READ yMinZoom CONSTANT)

public:
    /// `sensorType` is a key of sensorTypes(); any other gives a chart without channels or title.
    explicit WaveChartBridge(const QString &sensorType, QObject *parent = nullptr);

    const QString &sensorType() const { return m_sensorType; }
    const QString &chartTitle() const { return m_chartTitle; }
    int channelCount() const { return m_model.channelCount(); }
    QStringList channelNames() const;
    QVariantList channelColors() const;
    /// Value range of the axis.
    double yMin() const;
    double yMax() const;
    bool playing() const { return m_playing; }
    bool hasFilter() const;
    bool hasData() const override { return model().hasData(); }
    /// Samples per second as applied; a change during a pause takes effect when the pause ends.
    unsigned int framerate() const { return m_appliedFrameRate; }
    /// The same, of a type that views know.
    double rateHz() const { return m_appliedFrameRate; }

    double xLimitMin() const { return -60; }
    double xLimitMax() const { return 0; }
    /// Time of the oldest sample in seconds.
    double xHistoryMin() const { return -model().historyDurationSec(); }
    double xDefaultMin() const override { return -10; }
    double xMaxViewDuration() const { return 60; }
    double xMinZoom() const { return 0.01; }
    double xSnapStep() const { return 0.001; }
    double yMinZoom() const;

    /// Points of one channel for the visible time range, newest first, at most `maxPoints`.
    Q_INVOKABLE QList<QPointF> getDecimatedPoints(int channel, double tMin, double tMax, int maxPoints) const;
    /// Values of all channels of the sample nearest to `timeSec`; empty without data.
    Q_INVOKABLE QVariantList getValuesAtTime(double timeSec) const;
    Q_INVOKABLE int headIndex() const { return model().head(); }
    Q_INVOKABLE double newestTimeSec() const override { return double(model().timestampAtSampleOffset(0)) / 1000.0; }
    int seriesCount() const override { return channelCount(); }
    QString seriesName(int channel) const override { return channelNames().value(channel); }
    quint32 seriesRgb(int channel) const override;
    void seriesPoints(int channel, double xMin, double xMax, int maxPoints, QList<QPointF> &out) const override;
    QList<double> valuesAt(double timeSec) const override;
    SeriesStatistics statistics(int channel, double xMin, double xMax) const override;
    quint64 revision() const override { return model().revision() ^ (holds() ? kHeldBit : 0); }

    chart_range::TimeLimits timeLimits() const override;
    chart_range::ValueLimits valueLimits() const override { return {yMin(), yMax(), yMinZoom()}; }
    double placeBeside(double seconds, int direction) const override;
    double newestPeriodSec() const override { return model().ageSecAtSampleOffset(1); }
    bool awaitsSamples() const override { return m_playing && !holds(); }

    /// The user's choices. The view reports span and channels; the filter is kept up to date here; restoring them
    /// switches the filter, where the rate allows it.
    const ViewChoices &choices() const { return m_choices; }
    void setChosenView(double spanSec, const QList<int> &hidden);
    void restoreChoices(const ViewChoices &choices);
    void restoreFilter();

    /// The origin of the samples, as far as the owner knows.
    const SampleOrigin &origin() const { return m_origin; }
    void setOrigin(const SampleOrigin &origin) { m_origin = origin; }
    /// The session's clock, for when samples arrive.
    void setClock(const SharedClock &clock) { m_clock = clock; }
    qint64 utcMsAt(double timeSec) const override { return m_newestUtcMs + qRound64((timeSec - liveLagSec()) * 1000); }

    /// The displayed samples: all, or those that the trigger has caught.
    const WaveformDataModel &model() const { return m_caught ? *m_caught : m_model; }

    /// Waits for an event in the samples. What it catches is shown until release(), while the live samples continue to
    /// be stored.
    WaveTrigger *trigger() { return &m_trigger; }
    bool holds() const { return m_caught != nullptr; }
    /// Shows the live samples again, and waits for the next event.
    Q_INVOKABLE void release();

    /// Appends a sample of up to channelCount() values; it is dropped while paused, so that a paused chart keeps its
    /// picture.
    void pushSample(const float *values, int n, unsigned int timestampMs);
    void setPlaying(bool playing);
    /// Whether the chart is on the screen.
    void setObserved(bool observed);
    /// Samples per second, 0 counts as 1; applied at once while playing.
    void setFrameRate(unsigned int samplesPerSecond);
    /// Applies the rate even while paused and does not affect the rate requested by setFrameRate().
    void applyFrameRate(unsigned int samplesPerSecond);
    /// Clears the samples and, deliberately, the filter settings.
    void reset();
    /// Clears the samples and keeps the filter settings: another stream begins.
    void restart();
    /// The stream restarts with the next sample: keeps the picture, remembers the place, and restarts the filters.
    void markBreak(StreamBreak kind);
    /// The newest places within the history where the curves are broken, oldest first. Those where samples are missing
    /// are kept separately: there may be many.
    const QList<BreakMark> &breakMarks() const { return m_breakMarks; }
    const QList<BreakMark> &missingMarks() const { return m_missingMarks; }
    /// The store is full: older samples are gone, though the axis may reach further back.
    bool isStoreFull() const { return model().count() == WaveformDataModel::kCapacity; }

    /// Filter of one channel; both may throw, see WaveformDataModel.
    void setFilterEnabled(int channel, bool enabled);
    void setFilterCutoff(int channel, double hz);
    Q_INVOKABLE bool filterEnabled(int channel) const { return m_model.filterEnabled(channel); }
    Q_INVOKABLE double filterCutoff(int channel) const { return m_model.filterCutoff(channel); }
    /// Filter switch and cutoff in Hz of all channels, for users: returns an empty text, or a sentence that says why
    /// the filter stays off.
    Q_INVOKABLE QString trySetFilter(bool on, double hz);
    /// Whether any channel's filter is on.
    bool filterOn() const;
    /// Cutoff in Hz of the first channel.
    double filterCutoffHz() const { return m_model.filterCutoff(0); }
    /// The cutoff in force, Hz: filters keep their coefficient when the rate changes, so that their cutoff moves with
    /// it until they are switched or changed.
    double filterForceHz() const { return filterCutoffHz() * m_appliedFrameRate / m_filterRate; }

    /// Words before the title, where several charts of a type are shown side by side.
    void setTitlePrefix(const QString &prefix);
    /// Updates the title to the current language.
    void retranslate();

signals:
    void dataChanged();
    void chartTitleChanged();
    void playingChanged();
    void framerateChanged();
    void viewLimitsChanged();
    void filterChanged();
    void holdsChanged();

private:
    static constexpr quint64 kHeldBit = quint64(1) << 63;

    /// Seconds from the newest sample shown to the newest of all.
    double liveLagSec() const
    {
        return m_caught ? double(m_model.timestampAtSampleOffset(0)) / 1000.0 - newestTimeSec() : 0;
    }
    void feedTrigger();
    void hold();
    void drop();
    void notifyView();
    void switchFilters(bool on);
    static void addMark(QList<BreakMark> &marks, const BreakMark &mark);
    void forgetOldMarks(QList<BreakMark> &marks) const;

    QString m_sensorType;
    const SensorType *m_type; ///< null for an unknown key
    WaveformDataModel m_model;
    QString m_titlePrefix;
    QString m_chartTitle;
    bool m_playing = true;
    unsigned int m_appliedFrameRate = 100;
    unsigned int m_requestedFrameRate = 100;
    unsigned int m_filterRate = 100; ///< that the filters were built for
    QList<BreakMark> m_breakMarks;
    QList<BreakMark> m_missingMarks;
    std::optional<CurveBreak> m_pendingBreak; ///< waits for the first sample after it
    SampleGaps m_gaps;
    SharedClock m_clock = std::make_shared<SourceClock>();
    qint64 m_newestUtcMs = 0;
    SampleOrigin m_origin;
    ViewChoices m_choices;
    WaveTrigger m_trigger;
    std::unique_ptr<WaveformDataModel> m_caught; ///< shown instead
    bool m_observed = false;
    bool m_updatePosted = false;
};
