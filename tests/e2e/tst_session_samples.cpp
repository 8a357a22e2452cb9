#include <QCheckBox>
#include <QRegularExpression>
#include <QSignalSpy>

#include "attitude/form_threed.h"
#include "e2e/views.h"
#include "fft/form_fftchart.h"
#include "fft/spectrum_view_state.h"
#include "wave/form_sensor_dashboard.h"
#include "wave/form_wireless_dashboard.h"

namespace {

constexpr double kTilt = 30;        ///< degrees
constexpr double kTiltedAccG = 0.5; ///< on x, of a tilted node

/// The spectrum window of a desk, opened and used as a user does.
struct Spectrum
{
    explicit Spectrum(const Desk &desk)
    {
        desk.find<QAction>("actionFFT_Chart")->trigger();
        window = openDialog<form_fftchart>();
    }
    void choose(const char *comboBox, const char *text) const
    {
        auto *box = window->findChild<QComboBox *>(QLatin1String(comboBox));
        box->setCurrentIndex(box->findText(QLatin1String(text), Qt::MatchStartsWith));
    }
    bool says(const char *text) const
    {
        return !shownTexts(viewWith<SpectrumViewState>()->rootObject()).filter(QLatin1String(text)).isEmpty();
    }
    int rateHz() const
    {
        static const QRegularExpression rate(QStringLiteral("(\\d+)Hz"));
        return rate.match(window->findChild<QLabel *>(QStringLiteral("label_status"))->text()).captured(1).toInt();
    }
    FftChartBridge &bridge() const { return window->bridge(); }

    form_fftchart *window;
};

/// Compares the progress of a chart's axis with the wall clock, from its first sample on.
class AxisWatch : public QObject
{
public:
    explicit AxisWatch(const WaveChartBridge *chart)
    {
        connect(&m_timer, &QTimer::timeout, this, [this, chart] {
            if (!chart->hasData() || (m_clock.isValid() && chart->newestTimeSec() == m_newest))
                return;
            m_newest = chart->newestTimeSec();
            if (!m_clock.isValid()) {
                m_clock.start();
                m_first = m_newest;
            }
            wallSec = double(m_clock.nsecsElapsed()) / 1e9;
            axisSec = m_newest - m_first;
        });
        m_timer.start(5);
    }
    double wallSec = 0; ///< as of the newest sample, like the next one
    double axisSec = 0;

private:
    QTimer m_timer;
    QElapsedTimer m_clock;
    double m_first = 0;
    double m_newest = 0;
};

} // namespace

/// What the windows make of a stream: each view gets only samples of the followed node, on one time line, and the
/// spectrum always belongs to the current stream.
class TestSessionSamples : public QObject
{
    Q_OBJECT

private slots:
    void missingRecords_data()
    {
        QTest::addColumn<int>("row"); // of the picked node; -1: none
        QTest::addColumn<QByteArray>("tilt");
        QTest::addColumn<QByteArray>("fault");
        QTest::newRow("node 3 picked") << 2 << QByteArray("node attitude 3:0:30:0") << QByteArray("node skip 3:5");
        QTest::newRow("nothing picked") << -1 << QByteArray("node attitude 1:0:30:0")
                                        << QByteArray("node skip lowest:5");
    }
    /// One node is tilted, all others are level: a stray sample of another node is visible wherever it gets in.
    void missingRecords()
    {
        QFETCH(int, row);
        QFETCH(QByteArray, tilt);
        QFETCH(QByteArray, fault);
        SimulatorProcess simulator(words("--device gateway --layout 62 --nodes 8 --rate 100 --motion rest"));
        QVERIFY(simulator.control(tilt.constData()));
        Desk desk;
        QVERIFY(connectTo(desk, simulator));
        desk.find<QAction>("action_sensor_dashboard")->trigger();
        desk.find<QAction>("action3D_view")->trigger();
        SensorDashboardBridge &waves = openWindow<form_sensor_dashboard>()->bridge();
        const AttitudeBackend &pose = openDialog<form_threed>()->backend();
        if (row >= 0) {
            QTRY_COMPARE(desk.find<QListWidget>("list_nodes")->count(), 8);
            desk.find<QListWidget>("list_nodes")->setCurrentRow(row);
        }
        const auto isTilted = [&pose] { return qAbs(qAbs(pose.euler().y()) - kTilt) < 0.5; };
        QTRY_VERIFY(desk.value("Acceleration X").contains(QLatin1String("0.5")) && isTilted());
        const Spectrum spectrum(desk);
        spectrum.choose("CB_points", "64");
        click(spectrum.window, "BTN_start");
        QTRY_VERIFY(!spectrum.says("Block") && spectrum.bridge().hasData());
        const WaveChartBridge *acc = waves.bridge(QStringLiteral("acc"));
        QTRY_VERIFY(acc->model().count() > 20);
        QVERIFY(waves.bridge(QStringLiteral("gyr"))->trySetFilter(true, 20).isEmpty());

        int strangePoses = 0;
        connect(&pose, &AttitudeBackend::orientationChanged, this, [&] { strangePoses += isTilted() ? 0 : 1; });
        double worstPeak = 0;
        connect(&spectrum.bridge(), &FftChartBridge::fftDataChanged, this,
                [&] { worstPeak = qMax(worstPeak, spectrum.bridge().dominantPeakAmplitude()); });
        const int before = acc->model().count();
        QVERIFY(simulator.control(fault.constData()));
        QTRY_VERIFY(simulator.stat("records_missing") > 25);
        QVERIFY2(acc->model().count() > before, qPrintable(QString::number(acc->model().count())));
        for (const QPointF &point : acc->getDecimatedPoints(0, -60, 0, 100000))
            QVERIFY2(qAbs(qAbs(point.y()) - kTiltedAccG) < 0.01, qPrintable(QString::number(point.y())));
        QVERIFY(waves.bridge(QStringLiteral("gyr"))->filterOn());
        QCOMPARE(strangePoses, 0);
        QVERIFY2(worstPeak < 5, qPrintable(QString::number(worstPeak)));
        QCOMPARE(spectrum.bridge().alarmSeverityLevel(), 0);
        QVERIFY(desk.value("Acceleration X").contains(QLatin1String("0.5")));

        waves.togglePlaying(); // the picture is frozen
        const int paused = acc->model().count();
        const qint64 missing = simulator.stat("records_missing");
        QTRY_VERIFY(simulator.stat("records_missing") > missing + 5);
        QVERIFY(acc->hasData());
        QCOMPARE(acc->model().count(), paused);
    }

    void axisFollowsTheWall_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<bool>("hasGap");
        QTest::addColumn<double>("seconds");
        QTest::newRow("2 Hz") << words("--layout 93 --rate 2") << true << 5.0;
        QTest::newRow("100 Hz") << words("--layout items --rate 100") << true << 3.5;
        QTest::newRow("400 Hz") << words("--layout 93 --rate 400") << true << 3.5;
        QTest::newRow("two clocks") << words("--device gateway --layout dynamic --nodes 2 --rate 100")
                                           + QStringList{QStringLiteral("--clock"), QStringLiteral("distance 5000")}
                                    << false << 2.5;
    }
    void axisFollowsTheWall()
    {
        QFETCH(QStringList, options);
        QFETCH(bool, hasGap);
        QFETCH(double, seconds);
        SimulatorProcess simulator(options);
        Desk desk;
        const bool isGateway = options.contains(QStringLiteral("gateway"));
        desk.find<QAction>("action_sensor_dashboard")->trigger();
        const WaveChartBridge *chart = openWindow<form_sensor_dashboard>()->bridge().bridge(QStringLiteral("acc"));
        std::unique_ptr<AxisWatch> watch;
        if (!isGateway)
            watch = std::make_unique<AxisWatch>(chart); // from the first sample on
        QVERIFY(connectTo(desk, simulator));
        if (isGateway) {
            QTRY_VERIFY(desk.find<QAction>("action_wireless_gateway_dashboard")->isEnabled());
            desk.find<QAction>("action_wireless_gateway_dashboard")->trigger();
            GatewayDashboardBridge &bridge = openWindow<form_wireless_dashboard>()->bridge();
            bridge.setNodeChosen(1, true);
            watch = std::make_unique<AxisWatch>(qobject_cast<WaveChartBridge *>(
                bridge.panes().constFirst().toMap().value(QStringLiteral("backend")).value<QObject *>()));
        }
        if (hasGap) {
            QTRY_VERIFY(watch->wallSec > 1);
            QVERIFY(simulator.control("gap 1500"));
        }
        QTRY_VERIFY_WITH_TIMEOUT(watch->wallSec > seconds, 10000);
        QVERIFY2(qAbs(watch->axisSec - watch->wallSec) < 0.05 * watch->wallSec,
                 qPrintable(QStringLiteral("%1 s became %2 s").arg(watch->wallSec).arg(watch->axisSec)));
    }

    /// Three seconds after anything that restarts the stream, the rate is that of the samples since then.
    void spectrumRateIsThatOfTheStream()
    {
        constexpr int kRate = 200;
        SimulatorProcess simulator(words("--device gateway --layout 62 --nodes 2 --rate 200 --bootloader-wait 50")
                                   + QStringList{QStringLiteral("--node"), QStringLiteral("clock 2:50000000")});
        Desk desk;
        QVERIFY(connectTo(desk, simulator));
        const Spectrum spectrum(desk);
        spectrum.choose("CB_points", "2048");
        click(spectrum.window, "BTN_start");
        const auto streamOn = [&simulator](int seconds) {
            const qint64 frames = simulator.stat("frames_sent");
            return QTest::qWaitFor([&] { return simulator.stat("frames_sent") > frames + seconds * kRate; },
                                   (seconds + 5) * 1000);
        };
        QVERIFY(streamOn(1));
        const std::pair<const char *, std::function<void()>> events[] = {
            {"clock restarts", [&] { simulator.control("clock set 0"); }},
            {"other node", [&] { desk.find<QListWidget>("list_nodes")->setCurrentRow(1); }},
            {"gap", [&] { simulator.control("gap 2000"); }},
            {"closed and opened",
             [&] {
                 spectrum.window->close();
                 streamOn(1);
                 spectrum.window->show();
                 click(spectrum.window, "BTN_start");
             }},
            {"device restarts", [&] { simulator.control("restart"); }}};
        QStringList wrong;
        for (const auto &[name, happens] : events) {
            happens();
            QVERIFY(streamOn(2));
            if (qAbs(spectrum.rateHz() - kRate) > kRate / 20)
                wrong += QStringLiteral("%1: %2 Hz").arg(QLatin1String(name)).arg(spectrum.rateHz());
        }
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(u',')));
    }

    void fillingBlocksRaiseNoAlarm()
    {
        SimulatorProcess simulator(words("--motion rest --rate 200 --vibration-noise 0.0005"));
        Desk desk;
        QVERIFY(connectTo(desk, simulator));
        const Spectrum spectrum(desk);
        spectrum.choose("CB_points", "256");
        spectrum.choose("CB_hold", "Max");
        int worst = 0;
        connect(&spectrum.bridge(), &FftChartBridge::alarmStateChanged, this,
                [&] { worst = qMax(worst, spectrum.bridge().alarmSeverityLevel()); });
        click(spectrum.window, "BTN_start");
        const qint64 frames = simulator.stat("frames_sent");
        QTRY_VERIFY(spectrum.bridge().hasData());
        const bool saysHowFull = spectrum.says("Block");
        QTRY_VERIFY(simulator.stat("frames_sent") > frames + 300);
        QTRY_VERIFY(!spectrum.says("Block"));
        QCOMPARE(worst, 0);
        QTRY_VERIFY2(spectrum.bridge().dominantPeakAmplitude() < 20,
                     qPrintable(QStringLiteral("%1 mG at %2 Hz")
                                    .arg(spectrum.bridge().dominantPeakAmplitude())
                                    .arg(spectrum.bridge().dominantPeakFrequency())));
        QVERIFY(spectrum.bridge().alarmEventsToVariantList().isEmpty());
        QVERIFY(saysHowFull);
    }

    void settingsKeepTheAlarm()
    {
        SimulatorProcess simulator(words("--rate 200 --vibration 50:1:z"));
        Desk desk;
        QVERIFY(connectTo(desk, simulator));
        const Spectrum spectrum(desk);
        spectrum.choose("CB_points", "64");
        click(spectrum.window, "BTN_start");
        QTRY_COMPARE(spectrum.bridge().alarmSeverityLevel(), 2);
        const qsizetype events = spectrum.bridge().alarmEventsToVariantList().size();
        QVERIFY(events > 0);
        for (const auto &[box, text] : {std::pair{"CB_window", "Hann"}, std::pair{"CB_hold", "Avg"},
                                        std::pair{"CB_points", "128"}, std::pair{"CB_type", "Angular"}}) {
            spectrum.choose(box, text);
            QVERIFY2(spectrum.bridge().alarmSeverityLevel() == 2
                         && spectrum.bridge().alarmEventsToVariantList().size() == events,
                     box);
        }
    }

    /// A visible switch leaves gravity out of the peaks, and it hides no motion.
    void steadyValueIsAChoice()
    {
        SimulatorProcess simulator(
            words("--rate 200 --vibration 0.78125:0.3:z --vibration-noise 0.0005")); // the first bin
        Desk desk;
        QVERIFY(connectTo(desk, simulator));
        const Spectrum spectrum(desk);
        spectrum.choose("CB_points", "256");
        spectrum.choose("CB_window", "Flat");
        click(spectrum.window, "BTN_start");
        const qint64 frames = simulator.stat("frames_sent");
        QTRY_VERIFY(simulator.stat("frames_sent") > frames + 300); // a full block
        QTRY_VERIFY(spectrum.bridge().hasData() && !spectrum.says("Block"));
        const FftChartBridge &bridge = spectrum.bridge();
        QTRY_VERIFY2(
            bridge.dominantPeakFrequency() > 0 && bridge.dominantPeakFrequency() < 20
                && bridge.dominantPeakAmplitude() > 20,
            qPrintable(
                QStringLiteral("%1 Hz %2 mG").arg(bridge.dominantPeakFrequency()).arg(bridge.dominantPeakAmplitude())));
        auto *ignore = spectrum.window->findChild<QCheckBox *>(QStringLiteral("CK_ignore_steady"));
        QVERIFY(ignore != nullptr && ignore->isVisible() && ignore->isChecked());
        ignore->click();
        QTRY_VERIFY(bridge.dominantPeakAmplitude() > 400); // gravity's leakage
    }

    void deadStreamIsNotAnalysed()
    {
        SimulatorProcess simulator(words("--rate 200 --vibration 50:1:z"));
        Desk desk;
        QVERIFY(connectTo(desk, simulator));
        const Spectrum spectrum(desk);
        spectrum.choose("CB_points", "64");
        spectrum.choose("CB_hold", "Avg");
        click(spectrum.window, "BTN_start");
        QTRY_VERIFY(spectrum.bridge().hasData());
        QVERIFY(simulator.control("silent on"));
        QSignalSpy analysed(&spectrum.bridge(), &FftChartBridge::fftDataChanged);
        QTRY_VERIFY(spectrum.says("No new samples"));
        QVERIFY(!analysed.wait(300)); // some ticks
        QVERIFY(simulator.control("silent off"));
        QTRY_VERIFY(!spectrum.says("No new samples"));
        QVERIFY(analysed.wait(2000));
    }
};

QTEST_MAIN(TestSessionSamples)
#include "tst_session_samples.moc"
