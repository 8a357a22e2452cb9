#include "fft/spectrum_controls.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

#include "app/appearance.h"
#include "app/palette.h"
#include "app/theme.h"
#include "fft/ceiling_field.h"
#include "fft/fft_window.h"

namespace {

constexpr int kMinPointsLog2 = 3; ///< 8 points
constexpr int kMaxPointsLog2 = 13;
constexpr int kDefaultPointsIndex = 6;
constexpr int kSideMargin = 12;
constexpr int kRowMargin = 8;

/// The texts belong to the translation context of the window.
struct Words
{
    Q_DECLARE_TR_FUNCTIONS(form_fftchart)
};

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

SpectrumControls::SpectrumControls(QWidget *parent)
    : QWidget(parent), m_type(new QComboBox(this)), m_points(new QComboBox(this)), m_window(new QComboBox(this)),
      m_hold(new QComboBox(this)), m_yAxisMax(new CeilingField(this)), m_start(new QPushButton(this)),
      m_pointsLabel(new QLabel(this)), m_windowLabel(new QLabel(this)), m_holdLabel(new QLabel(this)),
      m_yAxisLabel(new QLabel(this)), m_tail(new QWidget(this)), m_ignoreSteady(new QCheckBox(m_tail)),
      m_status(new QLabel(m_tail)), m_firstRow(new QHBoxLayout), m_secondRow(new QHBoxLayout)
{
    configureControls();
    layOut();
    retranslate();
}

void SpectrumControls::configureControls()
{
    m_type->setObjectName(QStringLiteral("CB_type"));
    m_points->setObjectName(QStringLiteral("CB_points"));
    m_window->setObjectName(QStringLiteral("CB_window"));
    m_hold->setObjectName(QStringLiteral("CB_hold"));
    m_yAxisMax->setObjectName(QStringLiteral("SB_y_axis_max"));
    m_start->setObjectName(QStringLiteral("BTN_start"));
    m_ignoreSteady->setObjectName(QStringLiteral("CK_ignore_steady"));
    m_status->setObjectName(QStringLiteral("label_status"));
    applyLook();
    connect(&Appearance::instance(), &Appearance::changed, this, &SpectrumControls::applyLook);

    for (int log2 = kMinPointsLog2; log2 <= kMaxPointsLog2; ++log2)
        m_points->addItem(QString::number(1 << log2));
    m_points->setCurrentIndex(kDefaultPointsIndex);
    for (const TypeRow &type : kTypes)
        m_type->addItem(Words::tr(type.name));
    for (const QString &name : fftWindowNames())
        m_window->addItem(fftWindowLabel(name));
    for (const char *hold : kHolds)
        m_hold->addItem(Words::tr(hold));
    m_yAxisMax->setDecimals(0);
    m_yAxisMax->setKeyboardTracking(false);
    m_ignoreSteady->setChecked(true);
    updateYAxisControl();

    connect(m_start, &QPushButton::clicked, this, &SpectrumControls::startClicked);
    connect(m_type, &QComboBox::currentIndexChanged, this, [this](int index) {
        updateYAxisControl();
        emit typeChosen(index);
    });
    connect(m_points, &QComboBox::currentTextChanged, this, &SpectrumControls::pointsChosen);
    connect(m_window, &QComboBox::currentIndexChanged, this, &SpectrumControls::windowChosen);
    connect(m_hold, &QComboBox::currentIndexChanged, this, &SpectrumControls::holdChosen);
    connect(m_yAxisMax, &CeilingField::valueChanged, this, [this](double value) {
        double &stored = m_storedYAxisMax[size_t(type())];
        if (qFuzzyCompare(value, stored))
            return;
        stored = value;
        emit yAxisMaxChosen(value);
    });
    connect(m_ignoreSteady, &QCheckBox::toggled, this, &SpectrumControls::ignoreSteadyValueChosen);
}

/// The window's own colours would remove the accent from the button.
void SpectrumControls::applyLook()
{
    const Palette &colors = theme::colors();
    m_start->setStyleSheet(QStringLiteral("QPushButton { background-color:%1; border-color:%1; color:%2; }"
                                          "QPushButton:focus { border-color:%3; }")
                               .arg(colors.accent.name(), colors.onAccent.name(), colors.text.name()));
}

void SpectrumControls::layOut()
{
    m_firstRow->setContentsMargins(kSideMargin, kRowMargin, kSideMargin, kRowMargin);
    m_firstRow->setSpacing(theme::kGrid);
    m_firstRow->addWidget(m_start);
    m_firstRow->addWidget(m_type);
    const std::pair<QLabel *, QWidget *> pairs[] = {
        {m_pointsLabel, m_points}, {m_windowLabel, m_window}, {m_holdLabel, m_hold}, {m_yAxisLabel, m_yAxisMax}};
    for (const auto &[label, control] : pairs) {
        label->setBuddy(control);
        m_firstRow->addSpacing(theme::kGrid / 2);
        m_firstRow->addWidget(label);
        m_firstRow->addWidget(control);
    }
    m_firstRow->addStretch(0); // takes the room while the tail, which needs it, is in the second row
    auto *tail = new QHBoxLayout(m_tail);
    tail->setContentsMargins(0, 0, 0, 0);
    tail->setSpacing(2 * theme::kGrid);
    tail->addWidget(m_ignoreSteady);
    tail->addWidget(m_status, 1);
    m_status->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_secondRow->addWidget(m_tail);

    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addLayout(m_firstRow);
    rows->addLayout(m_secondRow);

    const QList<QWidget *> inOrder{m_start, m_type, m_points, m_window, m_hold, m_yAxisMax, m_ignoreSteady};
    for (qsizetype i = 1; i < inOrder.size(); ++i)
        setTabOrder(inOrder.at(i - 1), inOrder.at(i));
    m_start->setFocus();
}

void SpectrumControls::placeTail()
{
    // Moving back requires some spare room, so that it does not move with every digit.
    const bool isFirst = m_firstRow->indexOf(m_tail) >= 0;
    const int tail = m_tail->sizeHint().width() + m_firstRow->spacing();
    const int needed = m_firstRow->sizeHint().width() + (isFirst ? 0 : tail + 6 * theme::kGrid);
    QHBoxLayout *wanted = needed <= width() ? m_firstRow : m_secondRow;
    if (wanted->indexOf(m_tail) < 0) {
        (isFirst ? m_firstRow : m_secondRow)->removeWidget(m_tail);
        wanted->addWidget(m_tail, 1);
    }
    m_secondRow->setContentsMargins(kSideMargin, 0, kSideMargin, wanted == m_secondRow ? kRowMargin : 0);
}

void SpectrumControls::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    placeTail();
}

FftSpectrumType SpectrumControls::type() const
{
    return FftSpectrumType(m_type->currentIndex());
}

QString SpectrumControls::typeName() const
{
    return Words::tr(row(type()).name);
}

QString SpectrumControls::valueAxisTitle() const
{
    return Words::tr(row(type()).axisTitle);
}

QString SpectrumControls::unit() const
{
    return QLatin1String(row(type()).unit);
}

bool SpectrumControls::ignoresSteadyValue() const
{
    return m_ignoreSteady->isChecked();
}

void SpectrumControls::setChoices(const SpectrumChoices &choices)
{
    m_storedYAxisMax = choices.ceilings;
    m_type->setCurrentIndex(choices.type);
    m_points->setCurrentText(QString::number(choices.points));
    m_window->setCurrentIndex(choices.window);
    m_hold->setCurrentIndex(choices.hold);
    m_ignoreSteady->setChecked(choices.ignoresSteady);
    updateYAxisControl();
}

void SpectrumControls::addChoices(SpectrumChoices &choices) const
{
    choices.ceilings = m_storedYAxisMax;
    for (size_t i = 0; i < std::size(kTypes); ++i) {
        if (choices.ceilings[i] == kTypes[i].defaultMax)
            choices.ceilings[i] = 0;
    }
    choices.type = m_type->currentIndex();
    choices.points = m_points->currentText().toInt();
    choices.window = m_window->currentIndex();
    choices.hold = m_hold->currentIndex();
    choices.ignoresSteady = m_ignoreSteady->isChecked();
}

void SpectrumControls::setMaximumInForce(double maximum)
{
    m_yAxisMax->setMaximumInForce(maximum);
}

void SpectrumControls::setRunning(bool running)
{
    m_running = running;
    m_start->setText(running ? Words::tr("Pause") : Words::tr("Start"));
}

void SpectrumControls::setStatus(const QString &text)
{
    m_status->setText(text);
    placeTail();
}

void SpectrumControls::retranslate()
{
    m_pointsLabel->setText(Words::tr("Sample points:"));
    m_windowLabel->setText(Words::tr("Window:"));
    m_holdLabel->setText(Words::tr("Hold:"));
    m_yAxisLabel->setText(Words::tr("Amplitude Max:"));
    m_ignoreSteady->setText(Words::tr("Ignore the steady value"));
    for (int i = 0; i < int(std::size(kTypes)); ++i)
        m_type->setItemText(i, Words::tr(kTypes[i].name));
    for (int i = 0; i < int(std::size(kHolds)); ++i)
        m_hold->setItemText(i, Words::tr(kHolds[i]));
    for (int i = 0; i < m_window->count(); ++i)
        m_window->setItemText(i, fftWindowLabel(fftWindowNames().at(i)));
    m_type->setToolTip(Words::tr("Switch between acceleration and angular velocity spectra."));
    m_points->setToolTip(Words::tr("Choose how many time-domain samples are included in each FFT calculation."));
    m_window->setToolTip(Words::tr("Select the window function applied before the FFT."));
    m_hold->setToolTip(Words::tr("Choose whether the spectrum is live, max-hold, or averaged across frames."));
    m_yAxisMax->setToolTip(Words::tr(
        "Set the visible FFT amplitude ceiling. Acceleration can be adjusted up to 32000 mG and angular velocity up to "
        "4000 deg/s."));
    m_ignoreSteady->setToolTip(Words::tr(
        "Leaves 0 Hz, and what the window spreads of it into the bins beside it, out of peak and alarm. Otherwise "
        "gravity would be the highest peak of every acceleration spectrum."));
    m_status->setToolTip(Words::tr("Shows the current sample rate and the RMSE of the resultant time-domain signal."));
    m_start->setToolTip(Words::tr("Start or pause FFT updates."));
    setRunning(m_running);
    placeTail();
}

void SpectrumControls::updateYAxisControl()
{
    const QSignalBlocker blocker(m_yAxisMax);
    m_yAxisMax->setRange(1, currentYAxisHardLimit());
    m_yAxisMax->setSingleStep(row(type()).step);
    m_yAxisMax->setSuffix(QLatin1Char(' ') + unit());
    m_yAxisMax->setValue(currentYAxisMax());
}

double SpectrumControls::currentYAxisMax()
{
    double &stored = m_storedYAxisMax[size_t(type())];
    stored = stored > 0 ? std::clamp(stored, 1.0, currentYAxisHardLimit()) : row(type()).defaultMax;
    return stored;
}

double SpectrumControls::currentYAxisHardLimit() const
{
    return row(type()).hardLimit;
}
