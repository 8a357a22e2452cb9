#include <QAction>
#include <QDir>
#include <QJsonDocument>
#include <QTest>
#include <QToolButton>

#include "e2e/views.h"
#include "link/stream_dispatcher.h"
#include "record/recorder.h"
#include "record/recording_sidecars.h"
#include "wave/form_sensor_dashboard.h"

namespace {

QStringList filesLike(const char *pattern)
{
    return QDir::current().entryList({QLatin1String(pattern)}, QDir::Files, QDir::Name);
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

/// Recording with single keys in the real main window, with a simulated device on a real port.
class TestRecordingActions : public QObject
{
    Q_OBJECT

private slots:
    void recordsAndMarksByKeys()
    {
        SimulatorProcess simulator(words("--rate 100"));
        Desk desk;
        form_base *window = desk.window.get();
        QApplication::setActiveWindow(window);
        QVERIFY(!desk.find<QAction>("action_record_now")->isEnabled());
        QVERIFY(connectTo(desk, simulator));
        const Recorder &recorder = window->session().recorder();
        QTRY_VERIFY(desk.find<QAction>("action_record_now")->isEnabled());
        QTest::keyClick(window, Qt::Key_M);
        QVERIFY(desk.label("label_status").contains(QLatin1String("start one first")));

        QTest::keyClick(window, Qt::Key_F9);
        QTRY_COMPARE(recorder.state(), Recorder::State::Recording);
        QCOMPARE(desk.find<QAction>("action_record_now")->text(), QLatin1String("&Stop recording"));
        QTRY_VERIFY(window->session().dispatcher().snapshot().measured_frame_rate > 0); // counted once a second
        QTest::keyClick(window, Qt::Key_M);
        QVERIFY2(desk.label("label_status").startsWith(QLatin1String("Marker 1 at ")),
                 qPrintable(desk.label("label_status")));
        QTest::keyClick(window, Qt::Key_M);
        desk.find<QAction>("actionDevice_Settiing")->trigger(); // the key works in every window
        QApplication::setActiveWindow(desk.settings());
        QTest::keyClick(desk.settings(), Qt::Key_F9);
        QTRY_COMPARE(recorder.state(), Recorder::State::Idle);

        const QJsonDocument description =
            QJsonDocument::fromJson(contents(RecordingSidecars::descriptionPath(recorder.filePath())));
        const std::pair<const char *, QJsonValue> rows[] = {{"product", QLatin1String("MZ221")},
                                                            {"mounting", QLatin1String("FluNwuZyx")},
                                                            {"output_rate_hz", 100},
                                                            {"baud_rate", 921600},
                                                            {"program_version", QLatin1String(KV_VERSION)},
                                                            {"records", int(recorder.recordCount())}};
        for (const auto &[key, value] : rows)
            QCOMPARE(description[QLatin1String(key)], value);
        QVERIFY(description[QStringLiteral("measured_rate_hz")].toInt() > 0);
        const QByteArrayList markers = contents(RecordingSidecars::markersPath(recorder.filePath())).split('\n');
        QCOMPARE(markers.size(), 4);
        QVERIFY(markers[1].endsWith(",\"Marker 1\"") && markers[2].endsWith(",\"Marker 2\""));
    }

    /// Markers of charts and recordings are the same ones, and a trigger starts a recording.
    void chartsMarkAndStartRecordings()
    {
        SimulatorProcess simulator(words("--rate 100 --vibration 5:0.5:z"));
        Desk desk;
        Recorder &recorder = desk.window->session().recorder();
        QVERIFY(connectTo(desk, simulator));
        desk.find<QAction>("action_sensor_dashboard")->trigger();
        SensorDashboardBridge &dashboard = openWindow<form_sensor_dashboard>()->bridge();
        WaveChartBridge *chart = dashboard.bridge(QStringLiteral("acc"));
        QTRY_VERIFY(chart->model().count() > 10);
        chart->trigger()->setRecords(true);
        chart->trigger()->setSpan(0.2);
        chart->trigger()->setEdge(WaveTrigger::Edge::Either);
        chart->trigger()->setChannel(2);
        chart->trigger()->setLevel(1); // G, about which it shakes
        chart->trigger()->setOn(true);
        QTRY_COMPARE(recorder.state(), Recorder::State::Recording);
        QVERIFY(recorder.addMarker(QStringLiteral("by key"), 1.5));
        QCOMPARE(dashboard.markers()->count(), 1);
        const int row = dashboard.markers()->add({2.5, 0, QStringLiteral("by chart")});
        dashboard.markers()->setText(row, QStringLiteral("bump"));
        QCOMPARE(recorder.markerCount(), 3U);
        QCOMPARE(dashboard.markers()->count(), 2);
        recorder.stop();
        recorder.waitForFile();
        const QByteArray written = contents(RecordingSidecars::markersPath(recorder.filePath()));
        QVERIFY2(written.contains("\"by key\"") && written.contains("\"bump\""), written);
    }

    void goesOnAfterAnUnpluggedCable()
    {
        SimulatorProcess simulator(words("--rate 100"));
        Desk desk;
        Recorder &recorder = desk.window->session().recorder();
        RecordingOptions options;
        options.resumes = true;
        recorder.setOptions(options);
        QVERIFY(connectTo(desk, simulator));
        recorder.startAgain();
        QTRY_VERIFY(recorder.recordCount() > 10);
        QVERIFY(simulator.control("unplug"));
        QTRY_VERIFY(recorder.isWaitingForLink());
        QCOMPARE(desk.find<QToolButton>("button_recording")->text(), QLatin1String("Recording: waiting"));
        QVERIFY(simulator.control("replug"));
        desk.open(simulator.port());
        QTRY_VERIFY(recorder.isRecording() && recorder.recordCount() > 10);
        desk.find<QAction>("action_serial_stop")->trigger();
        recorder.waitForFile();
        QVERIFY(!recorder.isWaitingForLink());
        QCOMPARE(filesLike("data_*.csv").size(), 3); // two parts, and the marker of the gap beside the second
        QCOMPARE(filesLike("data_*.json").size(), 2);
        QVERIFY(contents(RecordingSidecars::markersPath(recorder.filePath())).contains("The connection was lost for"));
    }
};

QTEST_MAIN(TestRecordingActions)
#include "tst_recording_actions.moc"
