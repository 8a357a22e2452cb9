#pragma once

#include <QDoubleSpinBox>

/// The ceiling of the amplitude axis. While the axis ends elsewhere, because it is fitted or was zoomed, the field says
/// where; it shows the ceiling as soon as it has the keyboard.
class CeilingField : public QDoubleSpinBox
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CeilingField)

public:
    using QDoubleSpinBox::QDoubleSpinBox;

    /// End of the axis, 0 while that is the ceiling.
    void setMaximumInForce(double maximum);
    QString textFromValue(double value) const override;

protected:
    void focusInEvent(QFocusEvent *event) override;

private:
    /// Makes the text again.
    void refreshText() { setSuffix(suffix()); }

    double m_maximumInForce = 0;
};
