#include "fft/ceiling_field.h"

#include "app/value_format.h"

void CeilingField::setMaximumInForce(double maximum)
{
    if (maximum == m_maximumInForce)
        return;
    m_maximumInForce = maximum;
    if (!hasFocus())
        refreshText();
}

QString CeilingField::textFromValue(double value) const
{
    if (m_maximumInForce > 0 && !hasFocus())
        return tr("now %1").arg(value_format::number(m_maximumInForce, m_maximumInForce < 100 ? 2 : 0));
    return QDoubleSpinBox::textFromValue(value);
}

void CeilingField::focusInEvent(QFocusEvent *event)
{
    refreshText();
    QDoubleSpinBox::focusInEvent(event);
}
