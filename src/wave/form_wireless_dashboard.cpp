#include "wave/form_wireless_dashboard.h"

namespace {

constexpr QLatin1String kSettingsGroup("WIRELESS_DASHBOARD");

} // namespace

form_wireless_dashboard::form_wireless_dashboard(QWindow *parent) : DashboardWindow(kSettingsGroup, parent)
{
    setTitle(m_bridge.windowTitle());
    loadView(QStringLiteral("GatewayDashboard"), {{QStringLiteral("bridge"), QVariant::fromValue(&m_bridge)}});
}

form_wireless_dashboard::~form_wireless_dashboard()
{
    close();
    setSource({}); // the view goes before the bridge that it is bound to
}

void form_wireless_dashboard::retranslate()
{
    m_bridge.retranslate();
    setTitle(m_bridge.windowTitle());
    DashboardWindow::retranslate();
}
