#include "fft/form_fftchart.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QDeadlineTimer>
#include <QDebug>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QSettings>
#include <QSurfaceFormat>
#include <QThread>
#include <QVBoxLayout>

#include <chrono>

#include "app/frame_gate.h"
#include "app/settings_keys.h"
#include "app/theme.h"
#include "fft/fft_files.h"
#include "fft/fft_trans.h"

namespace {

constexpr std::chrono::milliseconds kTickInterval{50};
constexpr std::chrono::seconds kThreadDeadline{3};
constexpr QSize kMinimumSize{960, 560};
constexpr QSize kDefaultSize{1280, 690};

} // namespace

form_fftchart::form_fftchart(QWidget *parent)
    : QWidget(parent, Qt::Window), m_type(new QComboBox(this)), m_points(new QComboBox(this)),
      m_window(new QComboBox(this)), m_hold(new QComboBox(this)), m_yAxisMax(new QDoubleSpinBox(this)),
      m_start(new QPushButton(this)), m_pointsLabel(new QLabel(this)), m_windowLabel(new QLabel(this)),
      m_holdLabel(new QLabel(this)), m_yAxisLabel(new QLabel(this)), m_status(new QLabel(this)),
      m_controls(new QHBoxLayout), m_statusRow(new QHBoxLayout)
{
    setObjectName(QStringLiteral("form_fftchart"));
    setStyleSheet(QStringLiteral("background-color:white; color:black;"));
    setMinimumSize(kMinimumSize);
    configureControls();
    m_timer.setInterval(kTickInterval);
    connect(&m_timer, &QTimer::timeout, this, &form_fftchart::onTimer50ms);
    retranslateDynamicUi();
    resetFftBuffers();
    if (!restoreGeometry(QSettings(settings_keys::kFile, QSettings::IniFormat)
                             .value(settings_keys::kSpectrumGeometry)
                             .toByteArray()))
        resize(kDefaultSize);
}

form_fftchart::~form_fftchart()
{
    releaseResources();
    // The view goes before the bridge that it is bound to.
    if (m_view)
        m_view->setSource({});
}

void form_fftchart::initChartParam()
{
    m_view = new QQuickView;
    // Lines, icons and texts bring their own smooth edges: multisampling would only cost.
    QSurfaceFormat surface = m_view->format();
    surface.setSamples(0);
    m_view->setFormat(surface);
    new FrameGate(m_view);
    m_view->setColor(theme::kBackground);
    m_view->setResizeMode(QQuickView::SizeRootObjectToView);
    m_view->engine()->addImportPath(QStringLiteral("qrc:/qt/qml"));
    winId(); // dialogs belong to this window
    m_files = new FftFiles(m_bridge, windowHandle(), this);
    m_view->setInitialProperties({{QStringLiteral("bridge"), QVariant::fromValue(&m_bridge)},
                                  {QStringLiteral("files"), QVariant::fromValue(m_files)},
                                  {QStringLiteral("guide"), currentChartInteractionGuide()}});
    m_view->setSource(QUrl(QStringLiteral("qrc:/qml/FFTChartView.qml")));
    if (m_view->status() == QQuickView::Error)
        qWarning() << "FFTChartView.qml errors:" << m_view->errors();
    QWidget *container = QWidget::createWindowContainer(m_view, this);
    container->setFocusPolicy(Qt::StrongFocus);
    layout()->addWidget(container);
    static_cast<QVBoxLayout *>(layout())->setStretchFactor(container, 1);
    applyYAxisRangeToChart();
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
    // An engine that ends still takes leave of all that it is connected with, in its own thread.
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
    if (isVisible() && m_sampler.append(sample, sampleRateHz))
        syncFrequencyAxisState();
}

void form_fftchart::onTimer50ms()
{
    updateStatus();
    startFFTCal();
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
    m_bridge.commitResults();
    syncBridgeMeta();
    syncBridgeRuntimeTelemetry();
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
    m_start->setText(running ? tr("Pause") : tr("Start"));
    setViewProperty("running", running);
    if (!running)
        return;
    m_bridge.requestXAxisReset();
    onTimer50ms();
}

void form_fftchart::refreshChartState()
{
    resetFftBuffers();
    syncBridgeViewConfig();
}

void form_fftchart::resetFftBuffers()
{
    m_sampler.reset(m_pointCount);
    m_refitX = true;
    clearRenderedFftData();
    syncBridgeMeta();
    syncBridgeRuntimeTelemetry();
    emit engineConfigured(m_pointCount, m_windowType);
}

void form_fftchart::clearRenderedFftData()
{
    m_bridge.clearResults();
}

/// The sample rate is another one.
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
                           rate > 0 ? rate * 0.5 : 0.0, currentWindowName(), currentUnit()});
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
    QWidget::showEvent(event);
}

void form_fftchart::closeEvent(QCloseEvent *event)
{
    releaseResources();
    QSettings(settings_keys::kFile, QSettings::IniFormat).setValue(settings_keys::kSpectrumGeometry, saveGeometry());
    QWidget::closeEvent(event);
}

void form_fftchart::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    placeStatus();
}

void form_fftchart::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslateDynamicUi();
}
