#include "wave/form_wireless_dashboard.h"

#include "app/settings_keys.h"

namespace {

constexpr QSize kLeastSize{900, 480}; ///< the table and charts that can be read

} // namespace

form_wireless_dashboard::form_wireless_dashboard(QWindow *parent)
    : DashboardWindow(settings_keys::kWirelessDashboard, parent)
{
    setLeastSize(kLeastSize);
    setTitle(m_bridge.windowTitle());
    showView(QStringLiteral("GatewayDashboard"), {{QStringLiteral("bridge"), QVariant::fromValue(&m_bridge)}});
}

form_wireless_dashboard::~form_wireless_dashboard()
{
    close();
    unload(); // the view goes before the bridge that it is bound to
}

void form_wireless_dashboard::retranslate()
{
    m_bridge.retranslate();
    setTitle(m_bridge.windowTitle());
    DashboardWindow::retranslate();
}
