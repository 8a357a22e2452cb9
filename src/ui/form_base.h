#pragma once

#include <QMainWindow>
#include <QTimer>

#include <memory>

#include "attitude/orientation_preset.h"

class AttitudeCard;
class ConnectionCard;
class DeviceCard;
class Dialogs;
class DeviceSession;
class KvUartPort;
class LanguageMenu;
class MainActions;
class NodeCard;
class CaptureActions;
class CaptureBadge;
class CaptureActions;
class CaptureBadge;
class RecordingActions;
class RecordingBadge;
class SensorDataPanel;
class StatusLine;
class ViewWindows;
struct DetectedDevice;
struct StreamSample;

namespace Ui {
class form_base;
}

/// The main window: a client of one DeviceSession, which owns the connection. It shows the session's state at the
/// display rate, and forwards the user's requests. Main thread only.
class form_base : public QMainWindow
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(form_base)

public:
    explicit form_base(QWidget *parent = nullptr);
    ~form_base() override;

    /// "ORVEL-IMU V1.2.3"
    static QString appWindowTitle();

    /// The user's preset for the product if one is stored in the settings file, else the product's own.
    static OrientationPreset resolveOrientationPreset(const DetectedDevice &device);

    DeviceSession &session() const { return *m_session; }
    /// The user has requested a restart of the program.
    bool wantsRestart() const { return m_wantsRestart; }
    /// There are several main windows: this one and its windows carry the name of their device.
    void setNamed(bool named);
    /// The keys that work in every window are meant for this device.
    void setForeground(bool foreground);
    /// A window that belongs to this device.
    bool owns(const QWindow *window) const;
    /// The link, for callers that count the traffic through the program.
    const KvUartPort &port() const;

    // Operations of the session, for callers of the window.
    /// `source`: the name or path of a port, or any other text that SourceAddress reads; `baudRate` counts where it
    /// gives none.
    void open_port(const QString &source, int baudRate);
    /// Plays back a capture or a recording.
    void open_file(const QString &path);
    void try_read_prod_info();
    void onKbootFrameRecv(const QByteArray &payload);
    void on_orientation_preset_changed(OrientationPreset preset);

    // Not slots: their actions are not in the generated layout, but automatic connection would search for them by name.
    void on_action_sensor_dashboard_triggered();
    void on_action_wireless_gateway_dashboard_triggered();

signals:
    /// Another main window is requested.
    void newWindowWanted();

public slots:
    /// Lets the user choose a port; on acceptance opens it and starts the identification of the device.
    void on_action_serial_open_triggered();
    /// Ends the connection. Safe in every state.
    void on_action_serial_stop_triggered();
    void on_actionDevice_Settiing_triggered(); ///< misspelt on purpose: the object name has always been spelt like this
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
    void setUpWidgets();
    void setUpConnections();
    void applyFontSize(int points);
    void storeFontSize(int points);
    void showName();
    void retranslate();

    void enable_all_page(bool enabled);
    void onSessionState();
    /// Refreshes everything that the window shows; called every 20 ms while a connection is open.
    void run_uart_UItmr();
    void refresh_selected_node_views();
    void show_text(const StreamSample &sample);
    void showSummary();

    std::unique_ptr<Ui::form_base> m_ui;
    std::unique_ptr<DeviceSession> m_session;
    QTimer m_uiTimer;
    bool m_isShowingConnection = false;
    bool m_wantsRestart = false;
    bool m_isNamed = false;
    bool m_isNumbersTurn = false; ///< numbers and attitude are refreshed on every second tick

    SensorDataPanel *m_panel = nullptr;
    ConnectionCard *m_connectionCard = nullptr;
    DeviceCard *m_deviceCard = nullptr;
    NodeCard *m_nodeCard = nullptr;
    AttitudeCard *m_attitudeCard = nullptr;
    StatusLine *m_statusLine = nullptr;
    RecordingActions *m_recordingActions = nullptr;
    RecordingBadge *m_recordingBadge = nullptr;
    CaptureActions *m_captureActions = nullptr;
    CaptureBadge *m_captureBadge = nullptr;
    LanguageMenu *m_languageMenu = nullptr;
    MainActions *m_actions = nullptr;
    ViewWindows *m_views = nullptr;
    Dialogs *m_dialogs = nullptr;
};
