#include <QComboBox>
#include <QDir>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

#include <cmath>

#include "fft/form_fftchart.h"
#include "link/imu_parser.h"
#include "link/kv_uart_port.h"
#include "link/stream_dispatcher.h"
#include "support/simulator_process.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kTimeoutMs = 60'000;
constexpr int kRateHz = 1000;

/// The verdict on one frame of spectra.
struct Frame
{
    FftPeakSummary peak;
    FftAlarmState state;
};

/// A vibrating device on a pseudo-terminal, its spectra in the real window.
class Machine
{
public:
    explicit Machine(const QStringList &vibration, const char *points = "1024")
        : m_simulator(QStringList{u"--rate"_s, QString::number(kRateHz), u"--baud"_s, u"921600"_s} + vibration)
    {
        QObject::connect(&m_port, &KvUartPort::kbootRecv, &m_parser, [this](const QByteArray &payload) {
            m_dispatcher.publishFrame(m_parser.parseFrame(payload));
            for (const NodeSnapshot &node : m_dispatcher.currentFrame().nodes)
                window.appendData(node.sample, kRateHz);
        });
        QObject::connect(&bridge(), &FftChartBridge::fftDataChanged, &bridge(), [this] {
            if (bridge().hasData())
                frames.append({bridge().currentAlarmPeak(), bridge().alarmState()});
        });
        window.findChild<QComboBox *>(u"CB_points"_s)->setCurrentText(QLatin1String(points));
        window.findChild<QComboBox *>(u"CB_window"_s)->setCurrentIndex(3); // Blackman: far tones do not disturb
        window.show();
        window.findChild<QPushButton *>(u"BTN_start"_s)->click();
        m_port.openUART(m_simulator.port(), 921600);
    }

    FftChartBridge &bridge() { return window.bridge(); }
    bool control(const char *line) { return m_simulator.control(line); }
    void hold(int mode)
    {
        window.findChild<QComboBox *>(u"CB_hold"_s)->setCurrentIndex(mode);
        frames.clear();
    }
    /// Amplitude of the bin nearest to a frequency, in mG.
    double amplitude(const char *axis, double frequency)
    {
        return bridge().queryCursor(frequency).value(QLatin1String(axis)).toDouble();
    }
    bool reads(const char *axis, double frequency, double wanted, double tolerance)
    {
        return std::abs(amplitude(axis, frequency) - wanted) < tolerance;
    }

    form_fftchart window;
    QList<Frame> frames;

private:
    SimulatorProcess m_simulator;
    KvUartPort m_port;
    ImuParser m_parser;
    StreamDispatcher m_dispatcher;
};

} // namespace

class TestSpectrum : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QDir::setCurrent(m_folder.path()); }
    void cleanupTestCase() { QDir::setCurrent(QDir::rootPath()); }

    void twoTonesAreFound()
    {
        // Both on a bin of 1000 / 1024 Hz, the first with its second harmonic.
        Machine machine({u"--vibration"_s, u"62.5:0.5:x:0.4"_s, u"--vibration"_s, u"187.5:0.2:y"_s});
        QTRY_VERIFY_WITH_TIMEOUT(machine.reads("xAmplitude", 62.5, 500, 5), kTimeoutMs);
        QTRY_VERIFY_WITH_TIMEOUT(machine.reads("yAmplitude", 187.5, 200, 2), kTimeoutMs);
        QTRY_VERIFY_WITH_TIMEOUT(!machine.bridge().harmonics().isEmpty(), kTimeoutMs);
        QCOMPARE(machine.bridge().dominantPeakAxis(), u"X"_s);
        QVERIFY(std::abs(machine.bridge().dominantPeakFrequency() - 62.5) < 0.1);
        const FftHarmonicPeak second = machine.bridge().harmonics().first();
        QCOMPARE(second.order, 2);
        QVERIFY(std::abs(second.frequency - 125) < 0.2 && std::abs(second.amplitude - 200) < 5);
        QCOMPARE(machine.bridge().clippingCount(), 0);
    }

    void alarmComesAndGoesAtTheRightFrames()
    {
        Machine machine({u"--vibration"_s, u"2:0.5:x"_s}); // below the watched frequencies
        machine.bridge().setAlarmPresetIndex(1);
        // The alarm judges only full blocks, and reports from then on.
        QTRY_VERIFY_WITH_TIMEOUT(machine.bridge().alarmMeaning().contains("is outside the monitored band"_L1),
                                 kTimeoutMs);
        machine.frames.clear();
        QTRY_VERIFY_WITH_TIMEOUT(machine.frames.size() >= 10, kTimeoutMs);
        QCOMPARE(machine.bridge().alarmState(), FftAlarmState::Normal);
        QVERIFY(machine.control("vibration off") && machine.control("vibration add 62.5:0.5:x"));
        QTRY_COMPARE_WITH_TIMEOUT(machine.bridge().alarmState(), FftAlarmState::Active, kTimeoutMs);
        QVERIFY(machine.control("vibration off") && machine.control("vibration add 2:0.5:x"));
        QTRY_COMPARE_WITH_TIMEOUT(machine.bridge().alarmState(), FftAlarmState::Normal, kTimeoutMs);

        // Decided by the frames alone: two in a row raise it, two in a row clear it.
        int run = 0;
        auto state = FftAlarmState::Normal;
        for (const Frame &frame : std::as_const(machine.frames)) {
            const bool inBand = frame.peak.valid && frame.peak.frequency >= 5 && frame.peak.frequency <= 250;
            const bool active = state == FftAlarmState::Active;
            const bool against =
                active ? !(inBand && frame.peak.amplitude > 0.8) : inBand && frame.peak.amplitude >= 1.0;
            run = against ? run + 1 : 0;
            if (run == 2) {
                state = active ? FftAlarmState::Normal : FftAlarmState::Active;
                run = 0;
            }
            QCOMPARE(frame.state, state);
        }
        QCOMPARE(machine.bridge().alarmEventsToVariantList().value(0).toMap().value(u"label"_s).toString(), u"CLEAR"_s);
    }

    void holdsKeepWhatWasThere()
    {
        Machine machine({u"--vibration"_s, u"62.5:0.5:x"_s}, "256");
        machine.hold(1);
        QTRY_VERIFY_WITH_TIMEOUT(machine.reads("xAmplitude", 62.5, 500, 5), kTimeoutMs);
        QVERIFY(machine.control("vibration off"));
        machine.frames.clear();
        QTRY_VERIFY_WITH_TIMEOUT(machine.frames.size() > 20, kTimeoutMs);
        QVERIFY(machine.amplitude("xAmplitude", 62.5) > 495); // max

        machine.hold(0);
        QTRY_VERIFY_WITH_TIMEOUT(machine.frames.size() > 1 && machine.amplitude("xAmplitude", 62.5) < 5, kTimeoutMs);

        machine.hold(2);
        QTRY_VERIFY_WITH_TIMEOUT(machine.frames.size() > 10, kTimeoutMs);
        QVERIFY(machine.control("vibration add 62.5:0.5:x"));
        // The mean of all spectra since it was chosen rises slowly and never jumps.
        QList<double> means{machine.amplitude("xAmplitude", 62.5)};
        connect(&machine.bridge(), &FftChartBridge::fftDataChanged, &machine.bridge(),
                [&] { means.append(machine.amplitude("xAmplitude", 62.5)); });
        QTRY_VERIFY_WITH_TIMEOUT(means.last() > 250, kTimeoutMs);
        for (qsizetype i = 1; i < means.size(); ++i)
            QVERIFY(means.at(i) - means.at(i - 1) < 505.0 / double(10 + i));
    }

private:
    QTemporaryDir m_folder;
};

QTEST_MAIN(TestSpectrum)
#include "tst_spectrum.moc"
