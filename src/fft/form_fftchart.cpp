#include "fft/form_fftchart.h"

#include <QCloseEvent>
#include <QDeadlineTimer>
#include <QQuickItem>
#include <QSettings>
#include <QThread>
#include <QVBoxLayout>

#include <chrono>
#include <utility>

#include "app/appearance.h"
#include "app/content_area.h"
#include "app/palette.h"
#include "app/quick_window.h"
#include "app/settings_keys.h"
#include "app/theme.h"
#include "app/window_host.h"
#include "fft/fft_files.h"
#include "fft/fft_trans.h"
#include "fft/spectrum_controls.h"

namespace {

constexpr std::chrono::milliseconds kTickInterval{50};
constexpr std::chrono::seconds kThreadDeadline{3};
constexpr QSize kLeastView{880, 470}; ///< below this the view scrolls
constexpr QSize kSmallestView{160, 120};
constexpr QSize kDefaultSize{1280, 690};

} // namespace

form_fftchart::form_fftchart(QWidget *parent)
    : QWidget(parent, Qt::Window), m_controls(new SpectrumControls(this)),
      m_sampler([this] { return m_clock->steadyMs(); })
{
    setObjectName(QStringLiteral("form_fftchart"));
    applyLook();
    connect(&Appearance::instance(), &Appearance::changed, this, &form_fftchart::applyLook);
    configureControls();
    m_timer.setInterval(kTickInterval);
    connect(&m_timer, &QTimer::timeout, this, &form_fftchart::onTimer50ms);
    retranslateDynamicUi();
    resetFftBuffers();
    restoreChoices();
    if (!WindowHost::attachBare(this, settings_keys::kSpectrumGeometry)->hasPlace())
        resize(kDefaultSize);
}

form_fftchart::~form_fftchart()
{
    releaseResources();
    saveChoices();
    endView(); // goes before the bridge that it is bound to
}

void form_fftchart::applyLook()
{
    const Palette &colors = theme::colors();
    setStyleSheet(colors.isDark
                      ? QStringLiteral("background-color:%1; color:%2;").arg(colors.surface.name(), colors.text.name())
                      : QStringLiteral("background-color:white; color:black;"));
}

void form_fftchart::configureControls()
{
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    auto *controls = new ContentArea(m_controls, this);
    controls->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    rows->addWidget(controls);
    connect(m_controls, &SpectrumControls::startClicked, this, &form_fftchart::on_BTN_start_clicked);
    connect(m_controls, &SpectrumControls::typeChosen, this, &form_fftchart::on_CB_type_currentIndexChanged);
    connect(m_controls, &SpectrumControls::pointsChosen, this, &form_fftchart::onFftCalPointTextChanged);
    connect(m_controls, &SpectrumControls::windowChosen, this, &form_fftchart::on_CB_window_currentIndexChanged);
    connect(m_controls, &SpectrumControls::holdChosen, this, &form_fftchart::on_CB_hold_currentIndexChanged);
    connect(m_controls, &SpectrumControls::yAxisMaxChosen, this, &form_fftchart::on_SB_y_axis_max_valueChanged);
    connect(m_controls, &SpectrumControls::ignoreSteadyValueChosen, this, &form_fftchart::onIgnoreSteadyValueChosen);
    connect(&m_bridge, &FftChartBridge::maximumInForceChanged, m_controls, &SpectrumControls::setMaximumInForce);
    m_bridge.setIgnoreSteadyValue(m_controls->ignoresSteadyValue());
}

void form_fftchart::restoreChoices()
{
    QSettings settings(settings_keys::kFile, QSettings::IniFormat);
    settings.beginGroup(settings_keys::kSpectrum);
    m_choices = SpectrumChoices::read(settings);
    m_bridge.restoreChoices(m_choices);
    m_controls->setChoices(m_choices);
}

void form_fftchart::saveChoices()
{
    SpectrumChoices choices;
    m_controls->addChoices(choices);
    m_bridge.addChoices(choices);
    if (choices == m_choices)
        return;
    m_choices = choices;
    QSettings settings(settings_keys::kFile, QSettings::IniFormat);
    settings.beginGroup(settings_keys::kSpectrum);
    choices.write(settings);
}

void form_fftchart::initChartParam()
{
    m_view = new QuickWindow(0);
    m_view->setLeastSize(kLeastView);
    if (!m_files) {
        winId(); // dialogs belong to this window
        m_files = new FftFiles(m_bridge, windowHandle(), this);
    }
    m_view->load(QUrl(QStringLiteral("qrc:/qml/FFTChartView.qml")),
                 {{QStringLiteral("bridge"), QVariant::fromValue(&m_bridge)},
                  {QStringLiteral("files"), QVariant::fromValue(m_files)},
                  {QStringLiteral("guide"), currentChartInteractionGuide()}});
    m_container = QWidget::createWindowContainer(m_view, this);
    m_container->setFocusPolicy(Qt::StrongFocus);
    m_container->setMinimumSize(kSmallestView);
    static_cast<QVBoxLayout *>(layout())->addWidget(m_container, 1);
    applyYAxisRangeToChart();
}

/// A closed window keeps nothing that it has drawn with.
void form_fftchart::endView()
{
    m_view = nullptr;
    delete std::exchange(m_container, nullptr);
}

void form_fftchart::setViewProperty(const char *name, const QVariant &value)
{
    if (m_view && m_view->rootObject()) // it may have failed to load
        m_view->rootObject()->setProperty(name, value);
}

void form_fftchart::initFFTParam()
{
    qRegisterMetaType<quint64>();
    qRegisterMetaType<QList<QPointF>>();
    qRegisterMetaType<QVector<double>>();
    m_thread = new QThread(this);
    m_thread->setObjectName(QStringLiteral("FftTrans"));
    m_engine = new FftTrans;
    m_engine->configure(m_pointCount, m_windowType);
    connect(m_thread, &QThread::finished, m_engine, &QObject::deleteLater);
    m_engine->moveToThread(m_thread);
    connect(this, &form_fftchart::engineConfigured, m_engine, &FftTrans::configure);
    connect(this, &form_fftchart::start_fft_cal, m_engine, &FftTrans::fftCalculate);
    connect(m_engine, &FftTrans::fftResult, this, &form_fftchart::get_fft_result);
    m_thread->start();
}

void form_fftchart::releaseResources()
{
    setRunning(false);
    m_sampler.abandonBatch();
    if (!m_thread)
        return;
    // While it is being destroyed, the engine still disconnects from its peers, in its own thread.
    disconnect(m_engine);
    m_engine->disconnect(this);
    m_engine = nullptr;
    m_thread->quit();
    if (m_thread->wait(QDeadlineTimer(kThreadDeadline))) {
        delete m_thread;
    } else {
        qWarning("The spectrum's thread does not end; it is left to itself.");
        m_thread->setParent(nullptr);
        connect(m_thread, &QThread::finished, m_thread, &QObject::deleteLater);
    }
    m_thread = nullptr;
}

void form_fftchart::appendData(node_data_t sample, int sampleRateHz)
{
    if (!isVisible())
        return;
    if (m_clock->isPlayback())
        tickByPlayTime();
    if (m_sampler.append(sample, sampleRateHz))
        syncFrequencyAxisState();
}

void form_fftchart::onTimer50ms()
{
    updateStatus();
    if (!m_clock->isPlayback())
        startFFTCal();
}

/// Before a sample that arrived at this time. After another place of the file time may have gone back.
void form_fftchart::tickByPlayTime()
{
    const qint64 nowMs = m_clock->steadyMs();
    const qint64 passedMs = nowMs - m_lastTickMs;
    if (!m_timer.isActive() || (passedMs >= 0 && passedMs < kTickInterval.count()))
        return;
    const bool isEven = passedMs >= 0 && passedMs < 2 * kTickInterval.count();
    m_lastTickMs = isEven ? m_lastTickMs + kTickInterval.count() : nowMs;
    startFFTCal();
}

void form_fftchart::setClock(const SharedClock &clock)
{
    m_clock = clock;
    m_bridge.setClock(clock);
}

void form_fftchart::startFFTCal()
{
    const int dropped = m_sampler.telemetry().droppedBatches;
    const std::optional<FftBatch> batch = m_sampler.nextBatch();
    if (!batch) {
        if (m_sampler.telemetry().droppedBatches != dropped)
            syncBridgeRuntimeTelemetry();
        return;
    }
    syncBridgeMeta();
    for (size_t channel = 0; channel < batch->samples.size(); ++channel)
        emit start_fft_cal(batch->id, static_cast<signed char>(channel), batch->rateHz, batch->samples[channel]);
}

void form_fftchart::get_fft_result(unsigned long long batchId, signed char channel, const QList<QPointF> &points, int)
{
    const FftResultOutcome outcome = m_sampler.takeResult(batchId, channel, points);
    if (!outcome.points.isEmpty())
        m_bridge.setFftResult(channel, outcome.points, outcome.nyquistHz);
    if (!outcome.batchClosed)
        return;
    m_bridge.setAlarmSuspended(!outcome.fullBlock); // padding raises no alarm
    m_bridge.commitResults();
    syncBridgeMeta();
    syncBridgeRuntimeTelemetry();
    emit batchEnded();
}

void form_fftchart::on_BTN_start_clicked()
{
    setRunning(!m_timer.isActive());
}

void form_fftchart::setRunning(bool running)
{
    if (running == m_timer.isActive())
        return;
    if (running)
        m_timer.start();
    else
        m_timer.stop();
    m_controls->setRunning(running);
    setViewProperty("running", running);
    updateMarks();
    if (!running)
        return;
    m_bridge.requestXAxisReset();
    onTimer50ms();
}

void form_fftchart::on_CB_type_currentIndexChanged(int index)
{
    m_sampler.setSpectrumType(FftSpectrumType(index));
    refreshChartState();
    applyYAxisRangeToChart();
}

void form_fftchart::on_CB_window_currentIndexChanged(int index)
{
    m_windowType = FftWindowType(index);
    refreshChartState();
}

void form_fftchart::on_CB_hold_currentIndexChanged(int index)
{
    m_sampler.setHoldMode(FftHoldMode(index));
    refreshChartState();
}

void form_fftchart::onFftCalPointTextChanged(const QString &text)
{
    m_pointCount = text.toInt();
    refreshChartState();
}

void form_fftchart::on_SB_y_axis_max_valueChanged(double)
{
    applyYAxisRangeToChart();
    m_bridge.requestCeiling();
}

void form_fftchart::onIgnoreSteadyValueChosen(bool ignore)
{
    m_bridge.setIgnoreSteadyValue(ignore);
}

void form_fftchart::applyYAxisRangeToChart()
{
    m_bridge.setYAxisMax(m_controls->currentYAxisMax());
}

void form_fftchart::refreshChartState()
{
    resetFftBuffers();
    syncBridgeViewConfig();
}

void form_fftchart::resetFftBuffers()
{
    m_sampler.reset(m_pointCount);
    startAgain();
    emit engineConfigured(m_pointCount, m_windowType);
}

void form_fftchart::restartStream()
{
    m_sampler.restart();
    m_lastTickMs = 0;
    startAgain();
}

/// Updates everything that shows the sampler's data after it has restarted.
void form_fftchart::startAgain()
{
    m_refitX = true;
    m_bridge.setAlarmSuspended(true);
    clearRenderedFftData();
    syncBridgeMeta();
    syncBridgeRuntimeTelemetry();
    updateStatus();
}

void form_fftchart::clearRenderedFftData()
{
    m_bridge.clearResults();
}

/// The sample rate has changed.
void form_fftchart::syncFrequencyAxisState()
{
    syncBridgeMeta();
    updateStatus();
    if (!m_refitX)
        return;
    m_bridge.requestXAxisReset();
    m_refitX = false;
}

void form_fftchart::syncBridgeMeta()
{
    const int rate = m_sampler.presentationRateHz();
    m_bridge.setFrameMeta({m_pointCount, rate, m_pointCount > 0 && rate > 0 ? double(rate) / m_pointCount : 0.0,
                           rate > 0 ? rate * 0.5 : 0.0, currentWindowName(), m_controls->unit()});
}

void form_fftchart::syncBridgeViewConfig()
{
    m_bridge.setChartTitle(currentChartTitle());
    m_bridge.setValueAxisTitle(currentValueAxisTitle());
}

void form_fftchart::syncBridgeRuntimeTelemetry()
{
    const FftTelemetry &t = m_sampler.telemetry();
    m_bridge.setRuntimeTelemetry(t.droppedBatches, t.clippedSamples, t.lastLatencyMs, t.meanLatencyMs, t.maxLatencyMs,
                                 t.health());
}

void form_fftchart::showEvent(QShowEvent *event)
{
    if (!m_view)
        initChartParam();
    if (!m_thread)
        initFFTParam();
    if (!event->spontaneous())
        restartStream(); // earlier samples are not part of the stream that is live now
    QWidget::showEvent(event);
}

void form_fftchart::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    if (!event->spontaneous()) {
        saveChoices();
        endView();
    }
}

void form_fftchart::closeEvent(QCloseEvent *event)
{
    releaseResources();
    QWidget::closeEvent(event);
}

void form_fftchart::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslateDynamicUi();
}

void form_fftchart::retranslateDynamicUi()
{
    setWindowTitle(tr("FFT Analysis"));
    m_controls->retranslate();
    setViewProperty("guide", currentChartInteractionGuide());
    updateStatus();
    syncBridgeViewConfig();
}

void form_fftchart::updateStatus()
{
    m_controls->setStatus(
        tr("Sample Frequency:%1Hz, RMSE of Norm:%2")
            .arg(QString::number(m_sampler.currentRateHz()), QString::number(m_sampler.normDeviation(), 'f', 2)));
    updateMarks();
}

/// The chart's note about the samples while it runs.
void form_fftchart::updateMarks()
{
    const bool stale = m_timer.isActive() && m_sampler.isStale();
    setViewProperty("stale", stale);
    setViewProperty("blockFill", m_timer.isActive() ? m_sampler.blockFill() : 1.0);
}

QString form_fftchart::currentChartTitle() const
{
    return tr("FFT %1").arg(m_controls->typeName());
}

QString form_fftchart::currentWindowName() const
{
    return fftWindowNames().value(int(m_windowType));
}

QString form_fftchart::currentValueAxisTitle() const
{
    return m_controls->valueAxisTitle();
}

QString form_fftchart::currentChartInteractionGuide() const
{
    return tr(
        "Hover to inspect frequency and amplitude. Mouse wheel zooms Y, Ctrl + wheel zooms X, left drag pans, and "
        "right or middle double-click resets the view.");
}
