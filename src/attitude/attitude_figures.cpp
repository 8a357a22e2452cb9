#include "attitude/attitude_figures.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>

#include <cmath>
#include <limits>

#include "app/palette.h"
#include "app/quiet_label.h"
#include "app/theme.h"
#include "app/value_format.h"

namespace {

constexpr std::array kQuaternionColors{&Palette::axisW, &Palette::axisX, &Palette::axisY, &Palette::axisZ};

/// With a sign, all equally wide; a dash for anything that is not a number.
QString figure(float value, int decimals, const QString &unit)
{
    if (!std::isfinite(value))
        return value_format::absent();
    return value_format::signedNumber(double(value), decimals).rightJustified(decimals + 5) + unit;
}

void setInk(QLabel *label, const QColor &color)
{
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, color);
    label->setPalette(palette);
}

} // namespace

AttitudeFigures::AttitudeFigures(QWidget *parent) : QWidget(parent)
{
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(theme::kGrid);
    grid->setVerticalSpacing(2);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(2, 1);
    for (QLabel *&label : m_names)
        label = new QLabel(this);
    for (QLabel *&label : m_values) {
        label = new QLabel(this);
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    for (int column = 0; column < 2; ++column) {
        QLabel *head = m_names[size_t(column)];
        head->setAlignment(Qt::AlignRight);
        grid->addWidget(head, 0, column + 1);
        for (int row = 0; row < 3; ++row)
            grid->addWidget(m_values[size_t(column) * 3 + size_t(row)], row + 1, column + 1);
    }
    for (size_t row = 0; row < 3; ++row) {
        grid->addWidget(m_names[row + 2], int(row) + 1, 0);
    }
    constexpr int kQuaternionRow = 5;
    grid->setRowMinimumHeight(kQuaternionRow - 1, theme::kGrid / 2);
    grid->addWidget(m_names[5], kQuaternionRow, 0);
    for (size_t i = 0; i < 4; ++i) {
        m_values[6 + i]->setObjectName(QStringLiteral("VAL_q%1").arg(i));
        grid->addWidget(m_values[6 + i], kQuaternionRow + int(i / 2), 1 + int(i % 2));
    }
    static constexpr std::array kValueNames{"VAL_roll", "VAL_pitch", "VAL_yaw", "VAL_droll", "VAL_dpitch", "VAL_dyaw"};
    for (size_t i = 0; i < kValueNames.size(); ++i)
        m_values[i]->setObjectName(QLatin1String(kValueNames[i]));
    setTexts();
    setFonts();
    setColors();
    show({}, {});
}

void AttitudeFigures::show(const NormalizedAttitude &live, const std::optional<QVector3D> &relative)
{
    constexpr float kNoNumber = std::numeric_limits<float>::quiet_NaN();
    const QString degree = QStringLiteral("°");
    const QVector4D q = live.quaternion.toVector4D();
    const std::array<float, 4> quaternion{q.w(), q.x(), q.y(), q.z()};
    for (int axis = 0; axis < 3; ++axis) {
        setTextIfChanged(m_values[size_t(axis)], figure(live.valid ? live.euler[axis] : kNoNumber, 2, degree));
        setTextIfChanged(m_values[size_t(axis) + 3], figure(relative ? (*relative)[axis] : kNoNumber, 2, degree));
    }
    for (size_t i = 0; i < quaternion.size(); ++i)
        setTextIfChanged(m_values[i + 6],
                         QLatin1Char("WXYZ"[i])
                             + figure(live.valid ? quaternion[i] : kNoNumber, 4, {}).rightJustified(9));
}

void AttitudeFigures::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        setTexts();
    else if (event->type() == QEvent::FontChange)
        setFonts();
    else if (event->type() == QEvent::PaletteChange)
        setColors();
    QWidget::changeEvent(event);
}

void AttitudeFigures::setTexts()
{
    const std::array texts{tr("Live"), tr("Delta"), tr("Roll"), tr("Pitch"), tr("Yaw"), tr("Quaternion")};
    for (size_t i = 0; i < texts.size(); ++i)
        m_names[i]->setText(texts[i]);
}

void AttitudeFigures::setColors()
{
    const Palette &colors = theme::colors();
    for (const size_t name : {0, 1, 5})
        setInk(m_names[name], colors.textSecondary);
    for (size_t i = 0; i < kQuaternionColors.size(); ++i) {
        setInk(m_values[6 + i], colors.*kQuaternionColors[i]);
        if (i > 0)
            setInk(m_names[1 + i], colors.*kQuaternionColors[i]);
    }
}

void AttitudeFigures::setFonts()
{
    const QFont fixed = theme::fixedPitchFont(font().pointSizeF());
    // Leaves room for the longest number.
    const int width = QFontMetrics(fixed).horizontalAdvance(QStringLiteral("W  +0.1234"));
    for (QLabel *label : m_values) {
        label->setFont(fixed);
        label->setMinimumWidth(width);
    }
}
