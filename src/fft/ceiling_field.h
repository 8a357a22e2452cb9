#pragma once

#include <QDoubleSpinBox>

/// Field for the ceiling of the amplitude axis. While the axis ends elsewhere, because it is fitted or was zoomed, the
/// field shows that end; it shows the ceiling as soon as it has the focus.
class CeilingField : public QDoubleSpinBox
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CeilingField)

public:
    using QDoubleSpinBox::QDoubleSpinBox;

    /// Upper end of the axis, 0 while that is the ceiling.
    void setMaximumInForce(double maximum);
    QString textFromValue(double value) const override;

protected:
    void focusInEvent(QFocusEvent *event) override;

private:
    /// Updates the text.
    void refreshText() { setSuffix(suffix()); }

    double m_maximumInForce = 0;
};
