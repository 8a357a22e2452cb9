// The row of controls above the spectrum view, with the texts that follow from them.

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QQmlEngine>
#include <QQuickView>
#include <QSignalBlocker>

#include <algorithm>

#include "app/theme.h"
#include "fft/form_fftchart.h"

namespace {

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

    const QList<QWidget *> inOrder{m_start, m_type, m_points, m_window, m_hold, m_yAxisMax};
    for (qsizetype i = 1; i < inOrder.size(); ++i)
        setTabOrder(inOrder.at(i - 1), inOrder.at(i));
    m_start->setFocus();

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
