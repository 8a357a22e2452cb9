#pragma once

#include <QTimer>
#include <QWidget>

#include "fft/fft_chart_bridge.h"
#include "fft/fft_sampler.h"
#include "fft/fft_window.h"
#include "fft/spectrum_choices.h"

class FftFiles;
class FftTrans;
class QuickWindow;
class QThread;
class SpectrumControls;

/// The spectrum window: a row of controls above the declarative view "qrc:/qml/FFTChartView.qml". It owns the parts and
/// connects them: samples go through the FftSampler to the FftTrans on its own thread, and the results to the
/// FftChartBridge. Main thread only.
///
/// View and engine exist while the window is open. Closing destroys them, pauses, and abandons a batch in flight;
/// showing the window again restarts the stream. Samples are taken only while the window is visible.
///
/// The alarm judges full blocks of a living stream: it waits while the rings fill, and without new samples nothing is
/// analysed at all. Both are shown over the chart. Settings other than the alarm's own do not affect its state and
/// events.
class form_fftchart : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(form_fftchart)

public:
    explicit form_fftchart(QWidget *parent = nullptr);
    ~form_fftchart() override;

    /// Takes a sample of the selected node. A rate in Hz of 0 or less is estimated from the time stamps.
    void appendData(node_data_t sample, int sampleRateHz);

    /// The stream of samples restarts: another connection or node, a clock that restarted, output that was stopped on
    /// purpose, a gap. Samples, rate, time stamps, statistics, held spectra and the batch in flight are discarded, and
    /// the chart is cleared. The alarm keeps its state and events; running or paused stays, too.
    void restartStream();

    /// The session's clock, before the first sample. While it plays a file back, blocks are cut when samples of that
    /// time arrive, so that any rate analyses the same ones; who plays waits while isBatchPending().
    void setClock(const SharedClock &clock);
    bool isBatchPending() const { return m_sampler.isBatchInFlight(); }

    bool isChartInitialized() const { return m_view != nullptr; }
    /// Rate of the spectra that are shown, 0 while there are none.
    int presentationSampleRate() const { return m_sampler.presentationRateHz(); }
    FftChartBridge &bridge() { return m_bridge; }

signals:
    /// All results of a batch are there.
    void batchEnded();
    /// One request of a batch, to the engine's thread.
    void start_fft_cal(unsigned long long batchId, signed char channel, int sampleRateHz, QList<double> samples);
    /// Samples per block and window of the blocks that follow, to the engine's thread.
    void engineConfigured(int points, FftWindowType type);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;

private slots:
    void on_BTN_start_clicked();
    void on_CB_type_currentIndexChanged(int index);
    void on_CB_window_currentIndexChanged(int index);
    void on_CB_hold_currentIndexChanged(int index);
    void onFftCalPointTextChanged(const QString &text);
    void on_SB_y_axis_max_valueChanged(double value);
    void onIgnoreSteadyValueChosen(bool ignore);
    void get_fft_result(unsigned long long batchId, signed char channel, const QList<QPointF> &points,
                        int maxAmplitude);
    void onTimer50ms();

private:
    void applyLook();
    void configureControls();
    void retranslateDynamicUi();
    void initChartParam();
    void endView();
    void setViewProperty(const char *name, const QVariant &value);
    void initFFTParam();
    void releaseResources();
    void refreshChartState();
    void resetFftBuffers();
    void startAgain();
    void restoreChoices();
    void saveChoices();
    void clearRenderedFftData();
    void startFFTCal();
    void tickByPlayTime();
    void setRunning(bool running);
    void applyYAxisRangeToChart();
    void syncFrequencyAxisState();
    void syncBridgeMeta();
    void syncBridgeViewConfig();
    void syncBridgeRuntimeTelemetry();
    void updateStatus();
    void updateMarks();
    QString currentChartTitle() const;
    QString currentWindowName() const;
    QString currentValueAxisTitle() const;
    QString currentChartInteractionGuide() const;

    SpectrumControls *m_controls;
    FftChartBridge m_bridge;
    SharedClock m_clock = std::make_shared<SourceClock>();
    FftSampler m_sampler;
    qint64 m_lastTickMs = 0; ///< of what is played back
    QTimer m_timer;
    FftWindowType m_windowType = FftWindowType::Rectangular;
    int m_pointCount = FftSampler::kDefaultPoints;
    SpectrumChoices m_choices; ///< as stored
    bool m_refitX = false;     ///< show all frequencies when the rate is known

    QThread *m_thread = nullptr;
    FftTrans *m_engine = nullptr;   ///< lives and dies in m_thread
    QWidget *m_container = nullptr; ///< this and the next two exist while the window is open
    QuickWindow *m_view = nullptr;  ///< owned by its container
    FftFiles *m_files = nullptr;
};
