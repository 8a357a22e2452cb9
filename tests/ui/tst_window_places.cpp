#include <QScreen>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <functional>
#include <memory>

#include "app/settings_keys.h"
#include "attitude/form_threed.h"
#include "session/device_session.h"
#include "ui/form_com_select.h"
#include "ui/form_link_health.h"
#include "ui/form_settings.h"
#include "updater/form_updater.h"
#include "wave/form_sensor_dashboard.h"
#include "wave/form_wireless_dashboard.h"

namespace {

/// A window of either kind, for the duration of a run of the program.
struct AnyWindow
{
    std::unique_ptr<QWidget> widget;
    std::unique_ptr<QWindow> window;

    void show() const
    {
        if (widget)
            widget->show();
        else
            window->show();
    }
    bool isExposed() const
    {
        return widget ? QTest::qWaitForWindowExposed(widget.get()) : QTest::qWaitForWindowExposed(window.get());
    }
    QRect place() const { return widget ? widget->geometry() : window->geometry(); }
    void setPlace(const QRect &place) const
    {
        if (widget)
            widget->setGeometry(place);
        else
            window->setGeometry(place);
    }
    bool close() const { return widget ? widget->close() : window->close(); }
};

} // namespace

/// Every window that remembers its size and place: moved, closed, and opened again by the next run of the program.
class TestWindowPlaces : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;
    DeviceSession m_session;

private slots:
    void initTestCase() { QVERIFY(QDir::setCurrent(m_folder.path())); }

    void eachIsWhereItWas()
    {
        const auto make = [](QWidget *widget) { return AnyWindow{std::unique_ptr<QWidget>(widget), nullptr}; };
        const auto view = [](QWindow *window) { return AnyWindow{nullptr, std::unique_ptr<QWindow>(window)}; };
        const std::pair<const char *, std::function<AnyWindow()>> rows[] = {
            {"settings", [&] { return make(new form_settings(&m_session)); }},
            {"port",
             [&] { return make(new form_com_select(nullptr, [] { return QList<port_choice::PortEntry>(); })); }},
            {"update", [&] { return make(new form_updater(&m_session)); }},
            {"link health", [&] { return make(new form_link_health(&m_session.linkMonitor())); }},
            {"3D", [&] { return make(new form_threed); }},
            {"sensor dashboard", [&] { return view(new form_sensor_dashboard); }},
            {"gateway dashboard", [&] { return view(new form_wireless_dashboard); }}};
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        // Where it was left; a place on a screen that is gone comes back to this one.
        for (const QRect &left : {QRect(41, 57, 931, 653), QRect(screen.right() + 5000, 3000, 931, 653)}) {
            for (const auto &[name, open] : rows) {
                QFile::remove(settings_keys::kFile);
                QRect last;
                for (int run = 0; run < 2; ++run) {
                    const AnyWindow window = open();
                    window.show();
                    QVERIFY(window.isExposed());
                    if (run == 0) {
                        window.setPlace(left);
                        QTRY_COMPARE(window.place(), left);
                    }
                    last = window.place();
                    QVERIFY2(screen.contains(left) || run == 0 || screen.contains(last), name);
                    QVERIFY(window.close());
                }
                QVERIFY2(last.size() == left.size(), name);
                QVERIFY2(last == left || !screen.contains(left), name);
            }
        }
    }
};

QTEST_MAIN(TestWindowPlaces)
#include "tst_window_places.moc"
