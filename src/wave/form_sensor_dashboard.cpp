#include "wave/form_sensor_dashboard.h"

#include "app/settings_keys.h"

form_sensor_dashboard::form_sensor_dashboard(QWindow *parent) : DashboardWindow(settings_keys::kSensorDashboard, parent)
{
    m_bridge.loadSelectionState(settings_keys::kFile);
    connect(&m_bridge, &SensorDashboardBridge::playToggleRequested, &m_bridge, &SensorDashboardBridge::setPlaying);
    setTitle(m_bridge.windowTitle());
    showView(QStringLiteral("SensorDashboard"), {{QStringLiteral("bridge"), QVariant::fromValue(&m_bridge)}});
}

form_sensor_dashboard::~form_sensor_dashboard()
{
    close();
    unload(); // the view must go before the bridge that it is bound to
}

void form_sensor_dashboard::retranslate()
{
    m_bridge.retranslate();
    setTitle(m_bridge.windowTitle());
    DashboardWindow::retranslate();
}

void form_sensor_dashboard::setOpen(bool open)
{
    m_bridge.setDashboardActive(open);
    if (!open)
        m_bridge.saveSelectionState(settings_keys::kFile);
}
