#include <QAction>

#include "e2e/views.h"
#include "session/session_capture.h"
#include "ui/main_windows.h"
#include "wave/form_sensor_dashboard.h"

/// Several devices, each in a main window with a session of its own.
class TestMainWindows : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QDir::setCurrent(m_folder->path());
    }
    void cleanup() { QDir::setCurrent(QDir::rootPath()); }

    /// Two devices at once: nothing of one turns up at the other, windows carry names, and one that goes leaves the
    /// other as it is.
    void holdsTwoDevices()
    {
        SimulatorProcess one(words("--rate 200 --id 3"));
        SimulatorProcess two(words("--rate 100 --id 7"));
        MainWindows windows;
        form_base *first = windows.open();
        openPort(*first, one.port());
        QCOMPARE(first->windowTitle(), form_base::appWindowTitle()); // alone it needs no name
        first->findChild<QAction *>(QStringLiteral("action_sensor_dashboard"))->trigger();
        auto *waves = openWindow<form_sensor_dashboard>();
        QVERIFY(waves != nullptr);
        const QString wavesTitle = waves->title();

        first->findChild<QAction *>(QStringLiteral("action_new_window"))->trigger();
        QCOMPARE(windows.count(), 2);
        form_base *second = nullptr;
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            if (auto *window = qobject_cast<form_base *>(widget); window && window != first)
                second = window;
        }
        QVERIFY(second && second->isVisible());
        openPort(*second, two.port());
        QTRY_VERIFY(first->session().isStreaming() && second->session().isStreaming());
        QCOMPARE(first->windowTitle(), form_base::appWindowTitle() + QStringLiteral(" - ") + one.port());
        QCOMPARE(second->windowTitle(), form_base::appWindowTitle() + QStringLiteral(" - ") + two.port());
        QCOMPARE(waves->title(), wavesTitle + QStringLiteral(" - ") + one.port());

        int strangers = 0;
        int samples = 0;
        connect(&first->session(), &DeviceSession::sampleReceived, this, [&](const StreamSample &sample) {
            strangers += sample.snapshot.sample.id != 3;
            ++samples;
        });
        connect(&second->session(), &DeviceSession::sampleReceived, this, [&](const StreamSample &sample) {
            strangers += sample.snapshot.sample.id != 7;
            ++samples;
        });
        first->session().capture().start();
        second->session().capture().start();
        QTRY_VERIFY(samples > 200);
        QCOMPARE(strangers, 0);
        QVERIFY(first->session().capture().writer().path() != second->session().capture().writer().path());

        // The key that works in every window is that of the active one.
        const auto *record = first->findChild<QAction *>(QStringLiteral("action_record_now"));
        const auto *otherRecord = second->findChild<QAction *>(QStringLiteral("action_record_now"));
        second->activateWindow();
        QTRY_COMPARE(otherRecord->shortcutContext(), Qt::ApplicationShortcut);
        QCOMPARE(record->shortcutContext(), Qt::WindowShortcut);
        waves->requestActivate();
        QTRY_COMPARE(record->shortcutContext(), Qt::ApplicationShortcut);

        second->close();
        QTRY_COMPARE(windows.count(), 1);
        QCOMPARE(first->windowTitle(), form_base::appWindowTitle());
        QCOMPARE(waves->title(), wavesTitle);
        samples = 0;
        QTRY_VERIFY(samples > 50);
        QVERIFY(first->session().capture().isCapturing());
        first->close();
        QCOMPARE(windows.count(), 1); // the last one stays until the program ends
        QVERIFY(!first->isVisible());
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_MAIN(TestMainWindows)
#include "tst_main_windows.moc"
