#pragma once

#include <QtQml/qqml.h>

#include "wave/dashboard_window.h"
#include "wave/gateway_dashboard_bridge.h"

/// The window of a wireless gateway: its radio nodes in a table, and charts of the nodes that the user chooses. Data
/// passed to it are ignored unless it is open.
class form_wireless_dashboard : public DashboardWindow
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(form_wireless_dashboard)

public:
    explicit form_wireless_dashboard(QWindow *parent = nullptr);
    ~form_wireless_dashboard() override;

    GatewayDashboardBridge &bridge() { return m_bridge; }

    /// Takes the samples of one batch that has just arrived.
    void updateGatewaySamples(const QList<GatewaySample> &samples) { m_bridge.updateGatewaySamples(samples); }
    /// Batches per second.
    void setFrameRate(unsigned int batchesPerSecond) { m_bridge.setFrameRate(batchesPerSecond); }
    /// The connection has ended: everything stays, marked as ended, until clear() at the next opening.
    void setEnded(bool ended) { m_bridge.setEnded(ended); }
    /// Clears the data of the gateway: nodes and charts.
    void clear() { m_bridge.clear(); }

    void retranslate() override;

protected:
    void setOpen(bool open) override;

private:
    GatewayDashboardBridge m_bridge;
};

/// Make the types of the bridge and its table known to views, which get them from their window.
struct GatewayDashboardBridgeForeign
{
    Q_GADGET
    QML_FOREIGN(GatewayDashboardBridge)
    QML_NAMED_ELEMENT(GatewayDashboardBridge)
    QML_UNCREATABLE("comes with the window")
};

struct GatewayNodeModelForeign
{
    Q_GADGET
    QML_FOREIGN(GatewayNodeModel)
    QML_NAMED_ELEMENT(GatewayNodeModel)
    QML_UNCREATABLE("comes with the bridge")
};
