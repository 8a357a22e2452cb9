#pragma once

#include <QFrame>

#include <memory>

#include "attitude/attitude_convention.h"

class DeviceSession;
class ToolADI;
class ValueStrip;

namespace Ui {
class AttitudeCard;
}

/// Attitude of the followed node: the indicator, and roll, pitch and yaw as numbers.
class AttitudeCard : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(AttitudeCard)

public:
    /// `session` outlives this widget.
    explicit AttitudeCard(DeviceSession *session, QWidget *parent = nullptr);
    ~AttitudeCard() override;

    /// Shows the newest sample in the current mounting. Call at the display rate.
    void refresh();
    /// The attitude shown: not valid when there is none.
    const NormalizedAttitude &attitude() const { return m_attitude; }
    /// The angles as lines "caption<TAB>text unit", for the clipboard.
    QStringList lines() const;

protected:
    void changeEvent(QEvent *event) override;

private:
    void nameAngles();

    std::unique_ptr<Ui::AttitudeCard> m_ui;
    DeviceSession *m_session;
    ToolADI *m_adi;
    ValueStrip *m_angles;
    NormalizedAttitude m_attitude;
};
