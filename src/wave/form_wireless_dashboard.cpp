#include "wave/form_wireless_dashboard.h"

#include "app/settings_keys.h"

namespace {

constexpr QSize kLeastSize{900, 480}; ///< room for a readable table and charts

} // namespace

form_wireless_dashboard::form_wireless_dashboard(QWindow *parent)
    : DashboardWindow(settings_keys::kWirelessDashboard, parent)
{
    setLeastSize(kLeastSize);
    m_bridge.loadChoices(settings_keys::kFile);
    setTitle(m_bridge.windowTitle());
    showView(QStringLiteral("GatewayDashboard"), {{QStringLiteral("bridge"), QVariant::fromValue(&m_bridge)}});
}

form_wireless_dashboard::~form_wireless_dashboard()
{
    close();
    unload(); // the view must go before the bridge that it is bound to
}

void form_wireless_dashboard::retranslate()
{
    m_bridge.retranslate();
    setTitle(m_bridge.windowTitle());
    DashboardWindow::retranslate();
}

void form_wireless_dashboard::setOpen(bool open)
{
    m_bridge.setDashboardActive(open);
    if (!open)
        m_bridge.saveChoices(settings_keys::kFile);
}
