#include <QAction>
#include <QCryptographicHash>
#include <QPushButton>
#include <QSignalSpy>

#include <cmath>

#include "e2e/views.h"
#include "fft/form_fftchart.h"
#include "record/recorder.h"
#include "session/link_monitor.h"
#include "session/playback.h"
#include "session/playback_inbox.h"
#include "session/session_capture.h"
#include "ui/playback_bar.h"
#include "wave/form_sensor_dashboard.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kSecondNs = 1'000'000'000;
constexpr int kTimeoutMs = 60'000;
constexpr quint32 kTickMs = 50;
constexpr int kPeriodMs = 10;

template <class Window> Window *widget()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (auto *found = qobject_cast<Window *>(window))
            return found;
    }
    return nullptr;
}

/// What a run of the real main window gave.
struct Results
{
    QList<QByteArray> rows;           ///< of the recording
    QMap<QByteArray, QString> blocks; ///< spectra by the samples that they were computed from
    quint32 alarmMs = 0;              ///< device time of the block that raised the alarm
    LinkReport report;
};

/// Watches the spectrum window of a main window.
class SpectrumWatch
{
public:
    SpectrumWatch(form_base &main, Results &results)
    {
        main.on_actionFFT_Chart_triggered();
        auto *window = widget<form_fftchart>();
        window->findChild<QComboBox *>(u"CB_points"_s)->setCurrentText(u"256"_s);
        window->findChild<QPushButton *>(u"BTN_start"_s)->click();
        FftChartBridge *bridge = &window->bridge();
        QObject::connect(window, &form_fftchart::start_fft_cal, window,
                         [this, &main](quint64, signed char channel, int rate, const QList<double> &samples) {
                             if (channel == 0)
                                 m_block = QByteArray::number(rate),
                                 m_blockMs = main.session().newestSample()->deviceMs;
                             m_block += QByteArrayView(reinterpret_cast<const char *>(samples.data()),
                                                       samples.size() * qsizetype(sizeof(double)));
                         });
        QObject::connect(window, &form_fftchart::batchEnded, window, [this, bridge, &results] {
            const FftPeakSummary &peak = bridge->currentAlarmPeak();
            const QByteArray key = QCryptographicHash::hash(m_block, QCryptographicHash::Sha1);
            results.blocks.insert(key, u"%1 %2"_s.arg(peak.frequency, 0, 'g', 17).arg(peak.amplitude, 0, 'g', 17));
        });
        QObject::connect(bridge, &FftChartBridge::alarmStateChanged, window, [this, bridge, &results] {
            if (bridge->alarmState() == FftAlarmState::Active && results.alarmMs == 0)
                results.alarmMs = m_blockMs;
        });
    }

private:
    QByteArray m_block;
    quint32 m_blockMs = 0; ///< device time
};

QList<QByteArray> rowsOf(const QString &path)
{
    QFile csv(path);
    QList<QByteArray> rows = csv.open(QIODevice::ReadOnly) ? csv.readAll().split('\n') : QList<QByteArray>();
    rows.removeFirst();
    rows.removeLast();
    return rows;
}

QByteArray values(const QByteArray &row)
{
    return row.mid(row.indexOf(','));
}

/// The times within a second, everything else the same.
QString difference(const QList<QByteArray> &rows, const QList<QByteArray> &others)
{
    if (rows.size() != others.size())
        return u"%1 and %2 rows"_s.arg(rows.size()).arg(others.size());
    for (qsizetype i = 0; i < rows.size(); ++i) {
        const qint64 apart = rows[i].split(',').first().toLongLong() - others[i].split(',').first().toLongLong();
        if (values(rows[i]) != values(others[i]) || std::abs(apart) > 1)
            return u"row %1: %2 and %3"_s.arg(i).arg(QLatin1String(rows[i]), QLatin1String(others[i]));
    }
    return {};
}

/// Takes out the times of a report, which may differ a little.
QList<qint64> takeTimes(LinkReport &report)
{
    return {std::exchange(report.link.lastErrorMs, 0), std::exchange(report.samples.lastGapMs, 0)};
}

void stopRecording(DeviceSession &session, Results &results)
{
    session.recorder().stop();
    session.recorder().waitForFile();
    results.rows = rowsOf(session.recorder().filePath());
}

} // namespace

/// A live run with everything that goes wrong, and the same played back.
class TestPlayback : public QObject
{
    Q_OBJECT

private:
    /// The program with a file open, which begins to play on demand.
    DeviceSession &openFile(const QString &path, double rate)
    {
        m_desk->restart();
        DeviceSession &session = m_desk->window->session();
        session.playback().setStartsPlaying(false);
        session.playback().setRate(rate);
        m_desk->window->open_file(path);
        (void)QTest::qWaitFor([&session] { return session.playback().isActive() || !session.isOpen(); });
        return session;
    }
    static bool playToEnd(DeviceSession &session)
    {
        QSignalSpy ended(&session.playback(), &Playback::ended);
        session.playback().play();
        return (!ended.isEmpty() || ended.wait(kTimeoutMs))
               && QTest::qWaitFor([&session] { return session.playback().inbox().isEmpty(); }, kTimeoutMs);
    }

    std::unique_ptr<Desk> m_desk;
    QString m_capture;
    QString m_recording;
    Results m_live;
    QMap<QByteArray, QString> m_firstBlocks;
    quint32 m_firstAlarmMs = 0;

private slots:
    void initTestCase()
    {
        m_desk = std::make_unique<Desk>();
        SimulatorProcess simulator(words("--rate 100 --fixed"));
        DeviceSession &session = m_desk->window->session();
        const SpectrumWatch watch(*m_desk->window, m_live);
        session.capture().start();
        QVERIFY(connectTo(*m_desk, simulator));
        session.recorder().start(QDir::currentPath(), u"live"_s);
        QTRY_VERIFY(session.recorder().recordCount() > 200);
        const auto report = [&session] { return session.linkMonitor().report(); };
        QVERIFY(simulator.control("noise 2") && simulator.control("gap 300"));
        QTRY_VERIFY(report().link.crcErrors > 3 && report().samples.missing > 20);
        QVERIFY(simulator.control("noise 0") && simulator.control("vibration add 25:0.5:x")
                && simulator.control("vibration add 12:0.2:y"));
        QTRY_VERIFY(m_live.alarmMs > 0);
        const qsizetype blocks = m_live.blocks.size();
        QTRY_VERIFY(m_live.blocks.size() > blocks + 40); // the motion repeats, and so do blocks
        stopRecording(session, m_live);
        QVERIFY(simulator.control("silent on"));
        QTRY_VERIFY(session.state() == SessionState::Silent);
        m_recording = session.recorder().filePath();
        session.close();
        m_live.report = report();
        session.capture().stop();
        const_cast<CaptureWriter &>(session.capture().writer()).waitForEnd();
        m_capture = session.capture().writer().path();
    }

    void gives_the_same_data()
    {
        QTest::addColumn<double>("rate");
        QTest::newRow("1x") << 1.0;
        QTest::newRow("50x") << 50.0;
        QTest::newRow("unthrottled") << PlayClock::kUnthrottled;
    }
    void gives_the_same()
    {
        QFETCH(double, rate);
        DeviceSession &session = openFile(m_capture, rate);
        QVERIFY(session.playback().isActive() && !session.isReconstruction());
        QVERIFY(session.device().valid);
        Results played;
        const SpectrumWatch watch(*m_desk->window, played);
        session.recorder().start(QDir::currentPath(), u"played"_s);
        QTRY_VERIFY(session.recorder().state() == Recorder::State::Recording);
        QVERIFY(playToEnd(session));
        stopRecording(session, played);
        session.close();
        played.report = session.linkMonitor().report();

        qsizetype first = 0; // the live recording began later and ended earlier
        while (first < played.rows.size() && values(played.rows[first]) != values(m_live.rows.first()))
            ++first;
        QCOMPARE(difference(played.rows.mid(first, m_live.rows.size()), m_live.rows), QString());
        QCOMPARE(played.report.droppedRecords, 0U);

        int common = 0;
        for (auto block = played.blocks.cbegin(); block != played.blocks.cend(); ++block) {
            if (m_live.blocks.contains(block.key())) {
                ++common;
                QCOMPARE(block.value(), m_live.blocks.value(block.key()));
            }
        }
        QVERIFY2(common > 0, qPrintable(QString::number(m_live.blocks.size()))); // a busy machine ticks late
        QVERIFY2(std::abs(int(played.alarmMs) - int(m_live.alarmMs)) <= int(kTickMs) + kPeriodMs,
                 qPrintable(u"%1 %2"_s.arg(played.alarmMs).arg(m_live.alarmMs)));
        if (m_firstBlocks.isEmpty()) {
            m_firstBlocks = played.blocks;
            m_firstAlarmMs = played.alarmMs;
        }
        QCOMPARE(played.blocks, m_firstBlocks);
        QCOMPARE(played.alarmMs, m_firstAlarmMs);

        LinkReport live = m_live.report;
        const QList<qint64> liveTimes = takeTimes(live);
        const QList<qint64> times = takeTimes(played.report);
        QVERIFY(live.link.crcErrors > 3 && live.samples.missing > 20);
        QVERIFY2(played.report.link == live.link && played.report.samples == live.samples,
                 qPrintable(LinkMonitor::logLine(played.report) + u'\n' + LinkMonitor::logLine(live)));
        for (qsizetype i = 0; i < times.size(); ++i)
            QVERIFY(std::abs(times[i] - liveTimes[i]) <= 1000);
    }

    /// A seek back and each round of a loop begin the stream again, for charts and counters too.
    void startsAgain()
    {
        DeviceSession &session = openFile(m_capture, PlayClock::kUnthrottled);
        m_desk->window->on_action_sensor_dashboard_triggered();
        const WaveChartBridge &chart = *openWindow<form_sensor_dashboard>()->bridge().backendAt(0);
        QVERIFY(playToEnd(session));
        const auto samples = [&session] { return session.linkMonitor().report().samples.samples; };
        const quint64 all = samples();
        QVERIFY(chart.newestTimeSec() > 3);
        QList<StreamBreak> breaks;
        connect(&session, &DeviceSession::streamRestarted, this,
                [&breaks](const StreamRestart &restart) { breaks.append(restart.kind); });
        Playback &playback = session.playback();
        const qint64 start = playback.file().startNs;
        playback.seek(start + 3 * kSecondNs);
        QTRY_VERIFY(!breaks.isEmpty());
        quint64 last = 0;
        QTRY_VERIFY(std::exchange(last, samples()) == samples() && last > 50); // the seconds before are filled in
        QVERIFY(samples() < all / 2 && !playback.isPlaying() && breaks.first() == StreamBreak::OtherPlace);
        QVERIFY2(chart.newestTimeSec() <= 3.1, qPrintable(QString::number(chart.newestTimeSec())));
        const quint64 before = samples();
        playback.step();
        QTRY_VERIFY(samples() > before);
        QVERIFY(samples() - before < 10);

        playback.setRange(start + 2 * kSecondNs, start + 3 * kSecondNs);
        playback.setLooping(true);
        playback.setRate(20);
        playback.play();
        QTRY_VERIFY(breaks.count(StreamBreak::OtherPlace) > 4);
        playback.setLooping(false);
        disconnect(&session, nullptr, this, nullptr);
    }

    void refusesCommands()
    {
        DeviceSession &session = openFile(m_capture, 1);
        for (const SessionAction action : {SessionAction::Identify, SessionAction::SendCommand,
                                           SessionAction::TryBaudRates, SessionAction::ConnectBootloader})
            QCOMPARE(session.refusal(action), Refusal::OfAFile);
        const auto *capture = m_desk->find<QAction>("action_capture");
        QVERIFY(!capture->isEnabled() && !capture->toolTip().isEmpty());
        session.capture().start();
        QVERIFY(!session.capture().isCapturing());
        QVERIFY(!session.identify());
    }

    /// The bar by keyboard, with a recording, whose packets are rebuilt.
    void isControlledInTheBar()
    {
        DeviceSession &session = openFile(m_recording, 1);
        auto *bar = m_desk->window->findChild<PlaybackBar *>();
        QVERIFY(session.isReconstruction() && bar->isVisible());
        QVERIFY(m_desk->label("label_note").contains(u"Reconstructed"_s));
        auto *slider = m_desk->find<QSlider>("slider_played");
        slider->setFocus();
        QTest::keyClick(slider, Qt::Key_Space);
        QTRY_VERIFY(session.playback().isPlaying());
        QTRY_VERIFY(session.isStreaming());
        QTest::keyClick(slider, Qt::Key_Space);
        QTRY_VERIFY(!session.playback().isPlaying());
        QTest::keyClick(slider, Qt::Key_End);
        QTRY_COMPARE(session.playback().positionNs(), session.playback().toNs());
        QTRY_VERIFY(session.linkMonitor().report().samples.samples > 200);
        for (const QWidget *child : bar->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
            if (child->focusPolicy() != Qt::NoFocus)
                QVERIFY2(!child->accessibleName().isEmpty(), qPrintable(child->objectName()));
        }
        session.close();
        QVERIFY(!bar->isVisible());
    }

    void opensWhatIsWhole_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("sentence"); ///< empty: it opens
        QFile file(m_capture);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray capture = file.readAll();
        QTest::newRow("cut") << u"cut.mcap"_s << capture.left(capture.size() * 6 / 10) << QString();
        QTest::newRow("no capture") << u"a.mcap"_s << QByteArray(1000, 'x') << u"is not a capture"_s;
        QTest::newRow("nothing whole") << u"b.mcap"_s << capture.left(60) << u"no received bytes"_s;
        QTest::newRow("empty capture") << u"c.mcap"_s << QByteArray() << u"c.mcap"_s;
        QTest::newRow("empty recording") << u"d.csv"_s << QByteArray() << u"is empty"_s;
        QTest::newRow("foreign table") << u"e.csv"_s << QByteArray("a,b\n1,2\n") << u"is not a recording"_s;
    }
    void opensWhatIsWhole()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        QFETCH(QString, sentence);
        QFile file(QDir::current().filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        file.close();
        DeviceSession &session = openFile(file.fileName(), PlayClock::kUnthrottled);
        if (sentence.isEmpty()) {
            QVERIFY(playToEnd(session));
            QVERIFY(session.linkMonitor().report().samples.samples > 100);
            return;
        }
        QTRY_VERIFY(m_desk->errorBox() != nullptr);
        const QString text = m_desk->errorBox()->text() + m_desk->errorBox()->informativeText();
        QVERIFY2(text.contains(sentence), qPrintable(text));
        QVERIFY(!session.isOpen() && !m_desk->window->findChild<PlaybackBar *>()->isVisible());
    }
};

QTEST_MAIN(TestPlayback)
#include "tst_playback.moc"
