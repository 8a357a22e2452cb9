#include "chart/chart_axis.h"

#include <algorithm>

#include "app/value_format.h"
#include "chart/axis_ticks.h"

void ChartAxis::setUnit(const QString &unit)
{
    if (unit == m_unit)
        return;
    m_unit = unit;
    update();
}

int ChartAxis::labelLength() const
{
    qsizetype longest = 0;
    for (const QString &label : m_labels)
        longest = std::max(longest, label.size());
    return int(longest);
}

void ChartAxis::set(double &member, double value)
{
    if (value == member)
        return;
    member = value;
    update();
}

void ChartAxis::update()
{
    m_positions.clear();
    m_labels.clear();
    const double span = m_max - m_min;
    const int intervals = m_spacing > 0 ? int(std::clamp(m_length / m_spacing, 0.0, 60.0)) : 0;
    if (intervals > 0) {
        const double step = axis_ticks::step(span, intervals);
        const int decimals = axis_ticks::decimals(step);
        for (const double value : axis_ticks::values(m_min, m_max, step)) {
            m_positions += (value - m_min) / span;
            m_labels += value_format::number(value, decimals) + (m_unit.isEmpty() ? QString() : u' ' + m_unit);
        }
    }
    emit ticksChanged();
}
