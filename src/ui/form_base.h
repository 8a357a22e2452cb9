#pragma once

#include <QElapsedTimer>
#include <QMainWindow>
#include <QPointer>
#include <QSerialPort>
#include <QTimer>

#include <array>
#include <memory>
#include <optional>

#include "attitude/attitude_convention.h"
#include "device/product_resolver.h"
#include "link/stream_state.h"
#include "wave/gateway_sample.h"
#include "wave/sample_clock.h"

class CommandBroker;
class ImuParser;
class KvUartPort;
class LinkMonitor;
class QLabel;
class QMessageBox;
class QScrollArea;
class QToolButton;
class SensorDataPanel;
class StreamDispatcher;
class ToolADI;
class ValueStrip;
class form_about;
class form_com_select;
class form_fftchart;
class form_link_health;
class form_record;
class form_sensor_dashboard;
class form_settings;
class form_threed;
class form_updater;
class form_wireless_dashboard;

namespace Ui {
class form_base;
}

/// The main window: owner of every long-lived object and of one serial connection at a time. It opens and closes the
/// port, has the product identified, runs the 20 ms tick and routes decoded data to the views; it decodes, formats and
/// draws nothing itself.
///
/// Identification waits in nested event loops, so every handler may run inside a wait of another: a session number
/// tells a continued handler whether the connection it belongs to is still the one that is open.
class form_base : public QMainWindow
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(form_base)

public:
    explicit form_base(QWidget *parent = nullptr);
    ~form_base() override;

    /// "ORVEL-IMU V1.2.3"
    static QString appWindowTitle();

    /// The user's preset for the product where one is stored in the settings file, else the product's own.
    static OrientationPreset resolveOrientationPreset(const DetectedDevice &device);

    /// The link, for those who count what passes through the program.
    const KvUartPort &port() const { return *m_port; }

    // Not slots: their actions are not in the generated layout, and would be looked for by name.
    void on_action_sensor_dashboard_triggered();
    void on_action_wireless_gateway_dashboard_triggered();

public slots:
    /// Lets the user choose a port; on acceptance opens it and has the device identified.
    void on_action_serial_open_triggered();
    /// Ends the connection. Safe in every state.
    void on_action_serial_stop_triggered();
    void on_actionDevice_Settiing_triggered();
    void on_action_export_data_triggered();
    void on_action_firmware_update_triggered();
    void on_actionFFT_Chart_triggered();
    void on_action3D_view_triggered();
    void on_actionAbout_triggered();
    void on_actionFontSmall_triggered();
    void on_actionFontMedium_triggered();
    void on_actionFontBig_triggered();

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    // construction
    void setUpPanels();
    void setUpActions();
    void setUpConnections();
    void applyFontSize(int points);
    void storeFontSize(int points);
    void retranslate();
    void setUpLanguages();
    void chooseLanguage(const QString &setting);

    // connection
    void onPortChosen();
    void open_port();
    void closeConnection();
    void leaveDeviceStreaming();
    void enable_all_page(bool enabled);
    void onSerialError(QSerialPort::SerialPortError error);
    void showPortError(const QString &reason);
    void try_read_prod_info();
    void on_form_settings_closed();
    void takeDetectedDevice(const DetectedDevice &device);
    void clearDetectedDevice();
    void on_orientation_preset_changed(OrientationPreset preset);
    const ProductProfile &currentProfile() const;
    bool isStreamLive() const;
    void onBootloaderChanged();

    // stream and views
    void onKbootFrameRecv(const QByteArray &payload);
    void onSelectedNodeChanged(const node_data_t &node);
    void onSnapshotChanged(const StreamSnapshot &snapshot);
    void handleGatewayBatch();
    /// The samples of a gateway batch with the angles that the mounting asks for.
    QList<GatewaySample> buildWirelessDashboardSamples(const DecodedFrame &frame) const;
    /// Feeds the sensor dashboard with a sample of the selected node; `timestampMs` is the device's clock.
    void update_charts(const node_data_t &node, const std::array<float, 3> &euler, unsigned int timestampMs);
    void forgetChartHistory();
    void showRecordingState();
    /// A node that joins or leaves shifts the places of the others: stays with the node that the user picked.
    void followChosenNode(const QList<node_data_t> &nodes);
    void run_uart_UItmr();
    void showLinkHealth();
    void update_status_bar_text(const StreamSnapshot &snapshot);
    void updateConnectionPanel(const StreamSnapshot &snapshot);
    void update_wireless_node_list(const QList<node_data_t> &nodes);
    void refresh_selected_node_views();
    void show_text(const node_data_t &node, const std::array<float, 3> &euler);
    void showSummary();
    void showDevice();
    void copyValues();
    bool isStreaming() const;

    std::unique_ptr<Ui::form_base> m_ui;
    SensorDataPanel *m_panel = nullptr;
    QScrollArea *m_scrollArea = nullptr;
    QLabel *m_statusLabel = nullptr;
    QLabel *m_nodeLabel = nullptr;
    QLabel *m_trafficLabel = nullptr;
    QToolButton *m_connectButton = nullptr;
    ToolADI *m_adi = nullptr;
    ValueStrip *m_angles = nullptr;

    std::unique_ptr<KvUartPort> m_port;
    form_com_select *m_portDialog = nullptr; ///< created when first asked for
    form_settings *m_settingsDialog = nullptr;
    form_about *m_aboutDialog = nullptr; ///< created when first asked for
    form_updater *m_updater = nullptr;   ///< created when first asked for
    form_record *m_recordDialog = nullptr;
    QToolButton *m_recordButton = nullptr;
    LinkMonitor *m_linkMonitor = nullptr;
    form_link_health *m_linkHealth = nullptr;                     ///< created when first asked for
    std::unique_ptr<form_threed> m_threed;                        ///< created when first asked for
    std::unique_ptr<form_fftchart> m_spectrum;                    ///< created when first asked for
    std::unique_ptr<form_sensor_dashboard> m_sensorDashboard;     ///< created when first asked for
    std::unique_ptr<form_wireless_dashboard> m_wirelessDashboard; ///< created when first asked for
    QPointer<QMessageBox> m_errorBox;

    ImuParser *m_parser = nullptr;
    StreamDispatcher *m_dispatcher = nullptr;
    CommandBroker *m_broker = nullptr;
    QTimer m_uiTimer;
    QTimer *m_retryTimer = nullptr;

    // the connection
    unsigned int m_session = 0; ///< counts openings and closings
    QElapsedTimer m_openedAt;
    DetectedDevice m_device;
    OrientationPreset m_preset = OrientationPreset::RfuEnu312;
    qint64 m_lastReadMs = -1; ///< when the last read of product information ended, on m_clock
    bool m_productInfoRequested = false;
    bool m_liveStreamSkipLogged = false;
    int m_readsAfterUpdate = 0; ///< readings still allowed to interrupt the stream of new firmware

    // what the views show
    SampleClock m_chartClock;       ///< time of the charts, from the selected node's clock
    int m_chartNodeId = -1;         ///< node that the charts show, -1: none yet
    NormalizedAttitude m_attitude;  ///< of the newest sample of the selected node
    QElapsedTimer m_clock;          ///< steady time of the traces
    qint64 m_lastFrameMs = -1;      ///< on m_clock, -1: none in this connection
    qint64 m_lastFollowMs = 0;      ///< on m_clock
    qint64 m_statusHeldUntilMs = 0; ///< on m_clock: till then the texts of opening stay
    QList<quint8> m_shownNodeIds;
    std::optional<quint8> m_chosenNodeId; ///< the node that the user picked, followed when its place changes
};
