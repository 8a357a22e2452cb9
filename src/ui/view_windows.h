#pragma once

#include <QObject>
#include <QString>

#include <memory>

#include "session/stream_event.h"

class DeviceSession;
class MarkerList;
class QWindow;
class form_fftchart;
class form_sensor_dashboard;
class form_threed;
class form_wireless_dashboard;
struct GatewaySample;
struct NormalizedAttitude;
struct StreamSnapshot;

/// The windows that show the stream: dashboards, spectrum, 3D view. Each is created when first needed, and gets its
/// data from the session as long as it exists.
class ViewWindows : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ViewWindows)

public:
    /// `session` outlives this object.
    explicit ViewWindows(DeviceSession *session, QObject *parent = nullptr);
    ~ViewWindows() override;

    void openSensorDashboard();
    void openGatewayDashboard();
    void openSpectrum();
    void openThreeD();
    /// Passes the attitude that the 3D view shows next. Call at the display rate.
    void showAttitude(const NormalizedAttitude &attitude);
    /// Destroys all windows.
    void closeAll();
    /// The name of the device in the titles of all windows; empty for none.
    void setName(const QString &name);
    bool owns(const QWindow *window) const;

private:
    template <class Window> void name(Window *window);
    template <class Visit> void forEach(Visit visit) const;
    void onRestart(const StreamRestart &restart);
    void onSample(const StreamSample &sample);
    void onBatch(const QList<StreamSample> &samples);
    void onSnapshot(const StreamSnapshot &snapshot);
    void onState();
    void showMounting();
    void showOrigin();
    void captureAlarm();
    void followMarkers(MarkerList *markers);
    void addMarker(const QString &text, double timeS);
    QList<GatewaySample> gatewaySamples(const QList<StreamSample> &samples) const;

    DeviceSession *m_session;
    std::unique_ptr<form_threed> m_threed;
    std::unique_ptr<form_fftchart> m_spectrum;
    std::unique_ptr<form_sensor_dashboard> m_sensorDashboard;
    std::unique_ptr<form_wireless_dashboard> m_wirelessDashboard;
    bool m_isRelaying = false;
    bool m_isAlarmActive = false;
    QString m_suffix; ///< of the titles of all windows ///< a marker is being passed on and must not come back
    unsigned int m_frameRate = 0; ///< last known one, 0: none yet
};
