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
#include <QSignalBlocker>
#include <QSurfaceFormat>
#include <QThread>
#include <QVBoxLayout>

#include <chrono>
#include <cmath>

#include "app/settings_keys.h"
#include "app/theme.h"
#include "fft/fft_files.h"
#include "fft/fft_trans.h"

namespace {

constexpr std::chrono::milliseconds kTickInterval{50};
constexpr std::chrono::seconds kThreadDeadline{3};
constexpr QSize kMinimumSize{960, 560};
constexpr QSize kDefaultSize{1280, 690};
constexpr int kMinPointsLog2 = 3; ///< 8 points
constexpr int kMaxPointsLog2 = 13;
constexpr int kDefaultPointsIndex = 6;

/// What differs between the two types of spectrum.
struct TypeRow
{
    const char *name;
    const char *axisTitle;
    const char *unit;
    double defaultMax;
    double hardLimit;
    double step;
};

constexpr TypeRow kTypes[] = {
    {QT_TRANSLATE_NOOP("form_fftchart", "Acceleration"), QT_TRANSLATE_NOOP("form_fftchart", "Value (mG)"), "mG", 16000,
     32000, 100},
    {QT_TRANSLATE_NOOP("form_fftchart", "Angular Velocity"), QT_TRANSLATE_NOOP("form_fftchart", "Value (deg/s)"),
     "deg/s", 2000, 4000, 10},
};
constexpr const char *kHolds[] = {QT_TRANSLATE_NOOP("form_fftchart", "Live"),
                                  QT_TRANSLATE_NOOP("form_fftchart", "Max Hold"),
                                  QT_TRANSLATE_NOOP("form_fftchart", "Avg Hold")};

const TypeRow &row(FftSpectrumType type)
{
    return kTypes[int(type)];
}

} // namespace

form_fftchart::form_fftchart(QWidget *parent)
    : QWidget(parent, Qt::Window), m_type(new QComboBox(this)), m_points(new QComboBox(this)),
      m_window(new QComboBox(this)), m_hold(new QComboBox(this)), m_yAxisMax(new QDoubleSpinBox(this)),
      m_start(new QPushButton(this)), m_pointsLabel(new QLabel(this)), m_windowLabel(new QLabel(this)),
      m_holdLabel(new QLabel(this)), m_yAxisLabel(new QLabel(this)), m_status(new QLabel(this)),
      m_controls(new QHBoxLayout), m_statusRow(new QHBoxLayout), m_accelerationMax(kTypes[0].defaultMax),
      m_angularVelocityMax(kTypes[1].defaultMax)
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

void form_fftchart::configureControls()
{
    m_type->setObjectName(QStringLiteral("CB_type"));
    m_points->setObjectName(QStringLiteral("CB_points"));
    m_window->setObjectName(QStringLiteral("CB_window"));
    m_hold->setObjectName(QStringLiteral("CB_hold"));
    m_yAxisMax->setObjectName(QStringLiteral("SB_y_axis_max"));
    m_start->setObjectName(QStringLiteral("BTN_start"));
    m_status->setObjectName(QStringLiteral("label_status"));
    // The window's own colours would take the accent from the button.
    m_start->setStyleSheet(QStringLiteral("background-color:%1; border-color:%1; color:%2;")
                               .arg(theme::kAccent.name(), theme::kSurface.name()));

    for (int log2 = kMinPointsLog2; log2 <= kMaxPointsLog2; ++log2)
        m_points->addItem(QString::number(1 << log2));
    m_points->setCurrentIndex(kDefaultPointsIndex);
    for (const TypeRow &type : kTypes)
        m_type->addItem(tr(type.name));
    for (const QString &name : fftWindowNames())
        m_window->addItem(fftWindowLabel(name));
    for (const char *hold : kHolds)
        m_hold->addItem(tr(hold));
    m_yAxisMax->setDecimals(0);
    m_yAxisMax->setKeyboardTracking(false);
    m_pointsLabel->setBuddy(m_points);
    m_windowLabel->setBuddy(m_window);
    m_holdLabel->setBuddy(m_hold);
    m_yAxisLabel->setBuddy(m_yAxisMax);
    m_status->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    updateYAxisControl();

    m_controls->setContentsMargins(12, 8, 12, 8);
    m_controls->setSpacing(theme::kGrid);
    m_controls->addWidget(m_start);
    m_controls->addWidget(m_type);
    const std::pair<QLabel *, QWidget *> pairs[] = {
        {m_pointsLabel, m_points}, {m_windowLabel, m_window}, {m_holdLabel, m_hold}, {m_yAxisLabel, m_yAxisMax}};
    for (const auto &pair : pairs) {
        m_controls->addSpacing(theme::kGrid / 2);
        m_controls->addWidget(pair.first);
        m_controls->addWidget(pair.second);
    }
    m_controls->addStretch(1);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(m_controls);
    layout->addLayout(m_statusRow);

    QMetaObject::connectSlotsByName(this);
    connect(m_points, &QComboBox::currentTextChanged, this, &form_fftchart::onFftCalPointTextChanged);
}

void form_fftchart::placeStatus()
{
    // Some room to spare on the way back, so that it does not move with every digit.
    const bool isFirst = m_controls->indexOf(m_status) >= 0;
    const int status = m_status->sizeHint().width() + m_controls->spacing();
    const int needed = m_controls->sizeHint().width() + (isFirst ? 0 : status + 6 * theme::kGrid);
    QHBoxLayout *row = needed <= width() ? m_controls : m_statusRow;
    if (row->indexOf(m_status) >= 0)
        return;
    (isFirst ? m_controls : m_statusRow)->removeWidget(m_status);
    row->addWidget(m_status, row == m_statusRow ? 1 : 0);
    m_statusRow->setContentsMargins(12, 0, 12, row == m_statusRow ? 8 : 0);
}

void form_fftchart::retranslateDynamicUi()
{
    setWindowTitle(tr("FFT Analysis"));
    m_pointsLabel->setText(tr("Sample points:"));
    m_windowLabel->setText(tr("Window:"));
    m_holdLabel->setText(tr("Hold:"));
    m_yAxisLabel->setText(tr("Amplitude Max:"));
    for (int i = 0; i < int(std::size(kTypes)); ++i)
        m_type->setItemText(i, tr(kTypes[i].name));
    for (int i = 0; i < int(std::size(kHolds)); ++i)
        m_hold->setItemText(i, tr(kHolds[i]));
    for (int i = 0; i < m_window->count(); ++i)
        m_window->setItemText(i, fftWindowLabel(fftWindowNames().at(i)));
    m_type->setToolTip(tr("Switch between acceleration and angular velocity spectra."));
    m_points->setToolTip(tr("Choose how many time-domain samples are included in each FFT calculation."));
    m_window->setToolTip(tr("Select the window function applied before the FFT."));
    m_hold->setToolTip(tr("Choose whether the spectrum is live, max-hold, or averaged across frames."));
    m_yAxisMax->setToolTip(tr("Set the visible FFT amplitude ceiling. Acceleration can be adjusted up to 32000 mG and "
                              "angular velocity up to 4000 deg/s."));
    m_status->setToolTip(tr("Shows the current sample rate and the RMSE of the resultant time-domain signal."));
    m_start->setToolTip(tr("Start or pause FFT updates."));
    m_start->setText(m_timer.isActive() ? tr("Pause") : tr("Start"));
    if (m_view)
        m_view->engine()->retranslate();
    setViewProperty("guide", currentChartInteractionGuide());
    updateStatus();
    syncBridgeViewConfig();
}

void form_fftchart::initChartParam()
{
    m_view = new QQuickView;
    // Lines, icons and texts bring their own smooth edges: multisampling would only cost.
    QSurfaceFormat surface = m_view->format();
    surface.setSamples(0);
    m_view->setFormat(surface);
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
    m_engine->initSize(m_pointCount);
    m_engine->setWindowType(m_windowType);
    connect(m_thread, &QThread::finished, m_engine, &QObject::deleteLater);
    m_engine->moveToThread(m_thread);
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
        syncFrequencyAxisState(true);
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

void form_fftchart::on_CB_type_currentIndexChanged(int index)
{
    m_sampler.setSpectrumType(FftSpectrumType(index));
    updateYAxisControl();
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

void form_fftchart::on_SB_y_axis_max_valueChanged(double value)
{
    if (qFuzzyCompare(value, storedYAxisMax()))
        return;
    storedYAxisMax() = value;
    applyYAxisRangeToChart();
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
    if (!m_engine)
        return;
    const auto configure = [engine = m_engine, points = m_pointCount, type = m_windowType] {
        engine->initSize(points);
        engine->setWindowType(type);
    };
    QMetaObject::invokeMethod(m_engine, configure); // queued: the engine lives on its own thread
}

void form_fftchart::clearRenderedFftData()
{
    m_bridge.clearResults();
}

void form_fftchart::updateYAxisControl()
{
    const QSignalBlocker blocker(m_yAxisMax);
    const TypeRow &type = row(m_sampler.spectrumType());
    m_yAxisMax->setRange(1, currentYAxisHardLimit());
    m_yAxisMax->setSingleStep(type.step);
    m_yAxisMax->setSuffix(QLatin1Char(' ') + QLatin1String(type.unit));
    m_yAxisMax->setValue(currentYAxisMax());
}

void form_fftchart::applyYAxisRangeToChart()
{
    m_bridge.setYAxisMax(currentYAxisMax());
}

double &form_fftchart::storedYAxisMax()
{
    return isAcceleration() ? m_accelerationMax : m_angularVelocityMax;
}

double form_fftchart::currentYAxisMax()
{
    double &stored = storedYAxisMax();
    stored = stored > 0 ? std::clamp(stored, 1.0, currentYAxisHardLimit()) : row(m_sampler.spectrumType()).defaultMax;
    return stored;
}

double form_fftchart::currentYAxisHardLimit() const
{
    return row(m_sampler.spectrumType()).hardLimit;
}

void form_fftchart::syncFrequencyAxisState(bool rateChanged)
{
    syncBridgeMeta();
    if (!rateChanged || !m_refitX)
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

void form_fftchart::updateStatus()
{
    m_status->setText(
        tr("Sample Frequency:%1Hz, RMSE of Norm:%2")
            .arg(QString::number(m_sampler.currentRateHz()), QString::number(m_sampler.normDeviation(), 'f', 2)));
    placeStatus();
}

QString form_fftchart::currentChartTitle() const
{
    return tr("FFT %1").arg(tr(row(m_sampler.spectrumType()).name));
}

QString form_fftchart::currentWindowName() const
{
    return fftWindowNames().value(int(m_windowType));
}

QString form_fftchart::currentValueAxisTitle() const
{
    return tr(row(m_sampler.spectrumType()).axisTitle);
}

QString form_fftchart::currentUnit() const
{
    return QLatin1String(row(m_sampler.spectrumType()).unit);
}

QString form_fftchart::currentChartInteractionGuide() const
{
    return tr(
        "Hover to inspect frequency and amplitude. Mouse wheel zooms Y, Ctrl + wheel zooms X, left drag pans, and "
        "right or middle double-click resets the view.");
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
