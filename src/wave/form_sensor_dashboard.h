#pragma once

#include <QtQml/qqml.h>

#include "wave/dashboard_window.h"
#include "wave/sensor_dashboard_bridge.h"

/// The waveform window of one device. Push samples into bridge(): they are stored while the window is open. The choice
/// of charts is read from the settings file at construction and written when the window is closed.
class form_sensor_dashboard : public DashboardWindow
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(form_sensor_dashboard)

public:
    explicit form_sensor_dashboard(QWindow *parent = nullptr);
    ~form_sensor_dashboard() override;

    SensorDashboardBridge &bridge() { return m_bridge; }

    void retranslate() override;

protected:
    void setOpen(bool open) override;

private:
    SensorDashboardBridge m_bridge;
};

/// Makes the bridge's type known to views, which get the bridge from their window.
struct SensorDashboardBridgeForeign
{
    Q_GADGET
    QML_FOREIGN(SensorDashboardBridge)
    QML_NAMED_ELEMENT(SensorDashboardBridge)
    QML_UNCREATABLE("comes with the window")
};
