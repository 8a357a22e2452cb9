#include "campaign/scenario.h"

#include <QAction>
#include <QListWidget>

#include "campaign/campaign.h"
#include "campaign/user.h"
#include "record/recorder.h"
#include "record/recording_target.h"
#include "session/device_session.h"
#include "wave/form_sensor_dashboard.h"

namespace {

void trigger(form_base &window, const char *action)
{
    window.findChild<QAction *>(QLatin1String(action))->trigger(); // does nothing when it is disabled
}

// A window's class and the action that opens it.
struct WindowRow
{
    const char *className;
    const char *action;
};

/// Closes a window if it is open, then opens it.
template <const WindowRow &row> void reopen(form_base &window)
{
    if (windows::isOpen(row.className))
        QMetaObject::invokeMethod(windows::find(row.className), "close");
    trigger(window, row.action);
}

template <const WindowRow &row> void open(form_base &window)
{
    trigger(window, row.action);
}

constexpr WindowRow kSensorDashboard{"form_sensor_dashboard", "action_sensor_dashboard"};
constexpr WindowRow kGatewayDashboard{"form_wireless_dashboard", "action_wireless_gateway_dashboard"};
constexpr WindowRow kSpectrum{"form_fftchart", "actionFFT_Chart"};
constexpr WindowRow kThreeD{"form_threed", "action3D_view"};
constexpr WindowRow kRecorder{"form_record", "action_export_data"};
constexpr WindowRow kSettings{"form_settings", "actionDevice_Settiing"};
constexpr WindowRow kUpdater{"form_updater", "action_firmware_update"};
constexpr WindowRow kAbout{"form_about", "actionAbout"};
constexpr WindowRow kLinkHealth{"form_link_health", "action_link_health"};

void pickNode(form_base &window)
{
    auto *nodes = window.findChild<QListWidget *>(QStringLiteral("list_nodes"));
    if (nodes->count() > 0)
        nodes->setCurrentRow((nodes->currentRow() + 1) % nodes->count());
}

void toggleDashboard(form_base &)
{
    if (auto *dashboard = static_cast<form_sensor_dashboard *>(windows::find(kSensorDashboard.className)))
        dashboard->bridge().togglePlaying();
}

void toggleRecording(form_base &window)
{
    Recorder *recorder = &window.session().recorder();
    if (recorder->isRecording())
        recorder->stop();
    recorder->waitForFile();
    scenario::startRecording(window);
}

void cancelPortDialog(form_base &window)
{
    trigger(window, "action_serial_open");
    QMetaObject::invokeMethod(windows::find("form_com_select"), "reject");
}

constexpr QSize kPlainSize{1280, 700};

void resizeWindow(form_base &window)
{
    window.resize(window.size() == kPlainSize ? QSize(1000, 640) : kPlainSize);
}

} // namespace

const QList<scenario::Device> &scenario::devices()
{
    static const QList<Device> rows{
        {"gateway, layouts 62 and 63", "--device gateway --layout dynamic --nodes 16 --rate 50", true},
        {"module, full records", "--device mz221 --layout 91 --rate 1000 --vibration 50:0.5:z --motion swing", false},
        {"gateway, layout 62", "--device gateway --layout 62 --nodes 16 --rate 100", true},
        {"module, compact records", "--device mz226 --layout 93 --rate 400 --baud 4000000", false},
        {"gateway, layout 63", "--device gateway --layout 63 --nodes 8 --rate 200", true},
        {"module, small items", "--device kv104 --layout items --rate 250 --motion spin", false},
    };
    return rows;
}

const QList<scenario::Fault> &scenario::faults()
{
    static const QList<Fault> rows{
        {"flipped bits", Suits::All, true, [](Campaign &c) { c.during({"noise 3"}, {"noise 0"}); }},
        {"lost bytes", Suits::All, true, [](Campaign &c) { c.during({"drop 2"}, {"drop 0"}); }},
        {"inserted bytes", Suits::All, true, [](Campaign &c) { c.during({"insert 2"}, {"insert 0"}); }},
        {"hardly a byte right", Suits::All, true,
         [](Campaign &c) {
             c.during({"noise 60", "drop 20", "insert 20"}, {"noise 0", "drop 0", "insert 0"});
         }},
        {"gap", Suits::All, false, [](Campaign &c) { c.during({"gap 900"}, {}); }},
        {"bursts", Suits::All, false, [](Campaign &c) { c.during({"burst 24"}, {"burst 1"}); }},
        {"silent", Suits::All, false, [](Campaign &c) { c.during({"silent on"}, {"silent off"}); }},
        {"silent when opened", Suits::All, false,
         [](Campaign &c) {
             c.control("silent on");
             c.reopenPort();
             c.during({}, {"silent off"});
         }},
        {"deaf", Suits::All, false,
         [](Campaign &c) {
             c.control("deaf on");
             c.identify();
             c.during({}, {"deaf off"});
         }},
        {"wrong device", Suits::All, false,
         [](Campaign &c) {
             c.control("wrong-device on");
             c.reopenPort();
             c.during({}, {"wrong-device off"});
             c.identify();
         }},
        {"reply of 2 MB", Suits::All, false,
         [](Campaign &c) {
             c.control("reply 2");
             c.identify();
             c.during({}, {"reply 0"});
             c.identify();
         }},
        {"reply that is not text", Suits::All, true,
         [](Campaign &c) {
             c.control("reply-binary on");
             c.identify();
             c.during({}, {"reply-binary off"});
             c.identify();
         }},
        {"values that are not numbers", Suits::All, false,
         [](Campaign &c) { c.during({"values nan"}, {"values normal"}); }},
        {"restart of the device", Suits::All, false, [](Campaign &c) { c.during({"restart"}, {}); }},
        {"cable pulled and plugged in", Suits::All, false,
         [](Campaign &c) {
             c.during({"unplug"}, {"replug"});
             c.openPort();
         }},
        {"port closed and opened", Suits::All, false, [](Campaign &c) { c.reopenPort(); }},
        {"port closed while it opens", Suits::All, false,
         [](Campaign &c) {
             c.closePort();
             c.openPort();
             c.closePort();
         }},
        {"port opened while it opens", Suits::All, false,
         [](Campaign &c) {
             c.openPort();
             c.openPort();
         }},
        {"another rate", Suits::All, false, [](Campaign &c) { c.during({"rate 7"}, {"rate 300"}); }},
        {"nodes that come and go", Suits::Gateway, false,
         [](Campaign &c) {
             for (const char *nodes : {"nodes 3", "nodes 16", "nodes 1", "nodes 12"})
                 c.during({nodes}, {});
         }},
        {"new node ids in every batch", Suits::Gateway, false,
         [](Campaign &c) { c.during({"rotate-ids on"}, {"rotate-ids off"}); }},
    };
    return rows;
}

const QList<scenario::Habit> &scenario::habits()
{
    static const QList<Habit> rows{
        {"sensor dashboard reopened", reopen<kSensorDashboard>},
        {"gateway dashboard reopened", reopen<kGatewayDashboard>},
        {"spectrum reopened", reopen<kSpectrum>},
        {"3D view reopened", reopen<kThreeD>},
        {"recording dialog reopened", reopen<kRecorder>},
        {"device settings reopened", reopen<kSettings>},
        {"firmware update reopened", reopen<kUpdater>},
        {"about box reopened", reopen<kAbout>},
        {"link health reopened", reopen<kLinkHealth>},
        {"English", [](form_base &w) { trigger(w, "action_language_EN"); }},
        {"Simplified Chinese", [](form_base &w) { trigger(w, "action_language_CN"); }},
        {"Traditional Chinese", [](form_base &w) { trigger(w, "action_language_TC"); }},
        {"Japanese", [](form_base &w) { trigger(w, "action_language_JA"); }},
        {"Korean", [](form_base &w) { trigger(w, "action_language_KO"); }},
        {"small font", [](form_base &w) { trigger(w, "actionFontSmall"); }},
        {"medium font", [](form_base &w) { trigger(w, "actionFontMedium"); }},
        {"big font", [](form_base &w) { trigger(w, "actionFontBig"); }},
        {"another node", pickNode},
        {"dashboard paused or resumed", toggleDashboard},
        {"spectrum started or paused", [](form_base &) { windows::press(kSpectrum.className, "BTN_start"); }},
        {"another kind of spectrum", [](form_base &) { windows::pickNext(kSpectrum.className, "CB_type"); }},
        {"another length of spectrum", [](form_base &) { windows::pickNext(kSpectrum.className, "CB_points"); }},
        {"another hold of the spectrum", [](form_base &) { windows::pickNext(kSpectrum.className, "CB_hold"); }},
        {"home pose set", [](form_base &) { windows::press(kThreeD.className, "BTNSetHome"); }},
        {"another model", [](form_base &) { windows::pickNext(kThreeD.className, "CBModel"); }},
        {"another mounting", [](form_base &) { windows::pickNext(kThreeD.className, "CBRotationPreset"); }},
        {"recording stopped and started", toggleRecording},
        {"values copied", [](form_base &w) { trigger(w, "action_copy_values"); }},
        {"port dialog cancelled", cancelPortDialog},
        {"another size of the main window", resizeWindow},
    };
    return rows;
}

const QList<scenario::Habit> &scenario::openings()
{
    static const QList<Habit> rows{
        {"sensor dashboard", open<kSensorDashboard>},
        {"gateway dashboard", open<kGatewayDashboard>},
        {"spectrum", open<kSpectrum>},
        {"3D view", open<kThreeD>},
        {"recording dialog", open<kRecorder>},
        {"device settings", open<kSettings>},
        {"firmware update", open<kUpdater>},
        {"about box", open<kAbout>},
        {"link health", open<kLinkHealth>},
    };
    return rows;
}

void scenario::setPlainLook(form_base &window)
{
    window.resize(kPlainSize);
    windows::pick(kThreeD.className, "CBModel", 0);
    windows::pick(kSpectrum.className, "CB_type", 0);
    windows::pick(kSpectrum.className, "CB_points", 0);
    trigger(window, "action_language_EN");
    trigger(window, "actionFontMedium");
}

void scenario::startRecording(form_base &window)
{
    const recording_target::Target target = recording_target::remembered();
    window.session().recorder().start(target.folder, target.name);
}
