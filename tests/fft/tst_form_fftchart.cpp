#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QQuickItem>
#include <QQuickView>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <cmath>
#include <numbers>

#include "app/settings_keys.h"
#include "fft/fft_files.h"
#include "fft/form_fftchart.h"
#include "fft/spectrum_view_state.h"
#include "support/files.h"
#include "support/open_dialog.h"
#include "support/pixels.h"
#include "support/quick_items.h"

using namespace Qt::StringLiterals;

namespace {

/// The window on the screen, and the user's actions in it.
struct Bench
{
    const bool isFresh; ///< comes before the window, which reads its settings
    form_fftchart window;
    QQuickView *view = nullptr;
    SpectrumViewState *state = nullptr;

    /// With what a window before has left behind only if the test is about that.
    explicit Bench(bool fresh = true) : isFresh(fresh && QFile::remove(settings_keys::kFile))
    {
        window.show();
        for (QWindow *candidate : QGuiApplication::allWindows()) {
            if (auto *quick = qobject_cast<QQuickView *>(candidate))
                view = quick;
        }
        state = view->findChild<SpectrumViewState *>();
    }
    template <typename T> T *control(const char *name) { return window.findChild<T *>(QLatin1String(name)); }
    FftChartBridge &bridge() { return window.bridge(); }
    QQuickItem *item(const char *name) { return findItem(view->rootObject(), name); }
    void start() { control<QPushButton>("BTN_start")->click(); }
    void choose(const char *combo, int index) { control<QComboBox>(combo)->setCurrentIndex(index); }

    /// Samples at 1000 Hz with a tone of 125 Hz, on a bin of every size, on Y, and with gravity on Z.
    void feed(int count, float amplitude)
    {
        for (int i = 0; i < count; ++i, ++m_ms) {
            node_data_t node;
            node.time_ms = m_ms;
            node.acc[1] = amplitude * float(std::sin(2 * std::numbers::pi * m_ms / 8.0));
            node.acc[2] = 1;
            node.gyr[1] = 100 * node.acc[1];
            window.appendData(node, 1000);
        }
    }
    /// One tick without its timer, and the spectra that it requests.
    bool tick()
    {
        QSignalSpy frames(&bridge(), &FftChartBridge::fftDataChanged);
        QMetaObject::invokeMethod(&window, "onTimer50ms");
        return QTest::qWaitFor([&frames] { return !frames.isEmpty(); });
    }
    /// The window's text over the plot, empty for a mark that is not shown.
    QString mark(const char *name)
    {
        QQuickItem *mark = item(name);
        return mark->isVisible() ? mark->property("text").toString() : QString();
    }
    bool raiseAlarm()
    {
        feed(512, 0.25F);
        return tick() && tick() && bridge().alarmState() == FftAlarmState::Active;
    }
    QPoint at(double x, double y)
    {
        QQuickItem *plot = item("plotMouse");
        return plot->mapToScene(QPointF(x * plot->width(), y * plot->height())).toPoint();
    }
    void wheel(double x, double y, Qt::KeyboardModifiers modifiers)
    {
        const QPointF place = at(x, y);
        QWheelEvent event(place, view->mapToGlobal(place), {}, {0, 120}, Qt::NoButton, modifiers, Qt::NoScrollPhase,
                          false);
        QCoreApplication::sendEvent(view, &event);
    }
    void click(const char *name)
    {
        view->grabWindow(); // lays out what has changed
        QQuickItem *target = item(name);
        QTest::mouseClick(view, Qt::LeftButton, {}, target->mapToScene(target->boundingRect().center()).toPoint());
    }

private:
    quint32 m_ms = 1;
};

} // namespace

class TestFormFftchart : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QDir::setCurrent(m_folder.path()); }
    void cleanupTestCase() { QDir::setCurrent(QDir::rootPath()); }

    void ceilings()
    {
        Bench bench;
        auto *ceiling = bench.control<QDoubleSpinBox>("SB_y_axis_max");
        QCOMPARE(ceiling->text(), u"16000 mG"_s);
        ceiling->setValue(20000);
        QCOMPARE(bench.bridge().yAxisMax(), 20000.0);
        bench.choose("CB_type", 1);
        QCOMPARE(ceiling->text(), u"2000 deg/s"_s);
        QCOMPARE(bench.state->yViewMax(), 2000.0);
        ceiling->setValue(0);
        QCOMPARE(ceiling->value(), 1.0);
        ceiling->setValue(99999);
        QCOMPARE(bench.bridge().yAxisMax(), 4000.0);
        QCOMPARE(bench.bridge().valueAxisTitle(), u"Value (deg/s)"_s);
        bench.choose("CB_type", 0);
        QCOMPARE(ceiling->text(), u"20000 mG"_s);
        QCOMPARE(bench.bridge().chartTitle(), u"FFT Acceleration"_s);
    }

    /// What was chosen comes back in the next run, also in the view of a window that was closed in between; nonsense in
    /// the file does not.
    void choicesAreRemembered()
    {
        {
            Bench bench;
            bench.choose("CB_type", 1);
            bench.choose("CB_points", 8);
            bench.choose("CB_window", 2);
            bench.choose("CB_hold", 1);
            bench.control<QDoubleSpinBox>("SB_y_axis_max")->setValue(1500);
            bench.control<QCheckBox>("CK_ignore_steady")->click();
            bench.state->setDecibels(true);
            bench.state->setSeriesVisible(1, false);
            bench.state->setSeriesVisible(3, false);
            bench.bridge().setAlarmPresetIndex(1);
            QVariantMap rule = bench.bridge().alarmRuleToVariantMap();
            rule[u"triggerFrames"_s] = 7;
            QCOMPARE(bench.bridge().tryAlarmRule(rule), QString());
            QCOMPARE(bench.bridge().tryCustomBand(u"Shaft, 1x"_s, 20, 30), QString());
        }
        {
            Bench bench(false);
            QCOMPARE(bench.control<QComboBox>("CB_points")->currentText(), u"2048"_s);
            QCOMPARE(bench.bridge().fftSize(), 2048);
            QCOMPARE(bench.control<QComboBox>("CB_type")->currentIndex(), 1);
            QCOMPARE(bench.control<QComboBox>("CB_window")->currentIndex(), 2);
            QCOMPARE(bench.control<QComboBox>("CB_hold")->currentIndex(), 1);
            QCOMPARE(bench.bridge().yAxisMax(), 1500.0);
            QVERIFY(!bench.bridge().ignoresSteadyValue() && bench.state->decibels());
            QCOMPARE(bench.state->visibleSeries(), QList<bool>({true, false, true, false}));
            QCOMPARE(bench.bridge().alarmPresetIndex(), 1);
            QCOMPARE(bench.bridge().alarmRule().triggerFrames, 7);
            QVERIFY(bench.bridge().hasCustomBands() && bench.bridge().chartTitle() == u"FFT Angular Velocity"_s);
        }
        const QTemporaryDir other; // the toolkit may miss what changes a settings file within a moment
        QDir::setCurrent(other.path());
        QVERIFY(writeFile(settings_keys::kFile,
                          "[SPECTRUM]\nTYPE=2\nPOINTS=100\nWINDOW=-1\nHOLD=x\nCEILING_ACC=nan\nHIDDEN=7\n"
                          "ALARM_PRESET=9\nALARM_RULE\\triggerFrames=many\nBANDS\\size=2000000000\n"
                          "BANDS\\1\\NAME=b\nBANDS\\1\\LOW_HZ=9\nBANDS\\1\\HIGH_HZ=2\n"));
        {
            Bench bench(false);
            QCOMPARE(bench.bridge().fftSize(), 512);
            QCOMPARE(bench.bridge().yAxisMax(), 16000.0);
            QVERIFY(!bench.bridge().hasCustomBands() && !bench.bridge().hasCustomAlarmRule());
            QCOMPARE(bench.state->visibleSeries(), QList<bool>({true, true, true, true}));
        }
        QDir::setCurrent(m_folder.path());
    }

    void spectraCome()
    {
        Bench bench;
        QVERIFY(bench.window.isChartInitialized());
        bench.feed(512, 0.25F);
        QCOMPARE(bench.window.presentationSampleRate(), 1000);
        QVERIFY(bench.control<QLabel>("label_status")->text().startsWith("Sample Frequency:1000Hz"_L1));
        QTest::keyClick(bench.window.focusWidget(), Qt::Key_Space); // the button, without a mouse
        QCOMPARE(bench.control<QPushButton>("BTN_start")->text(), u"Pause"_s);
        QTRY_COMPARE(bench.bridge().dominantPeakFrequency(), 125.0);
        QCOMPARE(bench.bridge().dominantPeakAxis(), u"Y"_s);
        QVERIFY(std::abs(bench.bridge().dominantPeakAmplitude() - 250) < 0.01);
        QVERIFY(bench.control<QLabel>("label_status")->text().startsWith("Sample Frequency:1000Hz, RMSE of Norm:"_L1));
        QCOMPARE(bench.state->xViewMax(), 500.0);
        QTRY_COMPARE(bench.bridge().alarmSeverityLevel(), 2);

        bench.choose("CB_points", 10);
        QCOMPARE(bench.bridge().fftSize(), 8192);
        QVERIFY(!bench.bridge().hasData());
        bench.feed(1, 0); // half-filled rings are padded with zeros
        QTRY_VERIFY(bench.bridge().hasData());
        QCOMPARE(bench.bridge().getPoints(0).size(), 4097);
        QVERIFY(std::abs(bench.bridge().frequencyResolution() - 1000.0 / 8192) < 1e-12);

        bench.choose("CB_type", 1);
        QVERIFY(!bench.bridge().hasData());
        bench.choose("CB_points", 6);
        bench.feed(512, 0.25F);
        QTRY_VERIFY(std::abs(bench.bridge().dominantPeakAmplitude() - 25) < 0.01);
    }

    void windowsReadTheTone()
    {
        for (int window = 0; window < 5; ++window) {
            Bench bench;
            bench.choose("CB_window", window);
            bench.feed(512, 0.25F);
            bench.start();
            QTRY_VERIFY(std::abs(bench.bridge().dominantPeakAmplitude() - 250) < 2);
            QCOMPARE(bench.bridge().windowName(), fftWindowNames().at(window));
            // The bin beside the tone shows which window the engine took.
            const QList<double> leakage = fftWindowLeakage(fftWindowNames().at(window), 512);
            const double beside = bench.bridge().getPoints(1).at(1 + 64 + 1).y(); // after the anchor
            QVERIFY2(std::abs(beside - 250 * leakage.value(0) / 2) < 5, qPrintable(QString::number(beside)));
        }
    }

    void closingAbandonsTheBatch()
    {
        Bench bench;
        bench.feed(512, 0.25F);
        QSignalSpy requests(&bench.window, &form_fftchart::start_fft_cal);
        bench.start();
        QCOMPARE(requests.size(), 3); // in flight, and no event has been handled since
        bench.window.close();
        QCoreApplication::processEvents();
        QVERIFY(!bench.bridge().hasData());
        QCOMPARE(bench.control<QPushButton>("BTN_start")->text(), u"Start"_s);
        bench.feed(4, 5.0F); // not accepted
        bench.window.show();
        bench.start();
        QCOMPARE(requests.size(), 3); // nothing from before the closing
        bench.feed(512, 0.125F);
        QTRY_VERIFY(std::abs(bench.bridge().dominantPeakAmplitude() - 125) < 0.01);
    }

    void restRaisesNoAlarm()
    {
        for (const int hold : {1, 2}) {
            for (const int pointsIndex : {0, 3, 6, 10}) {
                Bench bench;
                bench.choose("CB_hold", hold);
                bench.choose("CB_points", pointsIndex);
                const int points = 8 << pointsIndex;
                for (int window = 0; window < 5; ++window) {
                    bench.window.restartStream();
                    bench.choose("CB_window", window);
                    double highest = 0;
                    for (int part = 0; part < 4; ++part) { // while the rings are filling
                        bench.feed(points / 4 - (part == 3), 0);
                        QVERIFY(bench.tick());
                        highest = std::max(highest, bench.bridge().dominantPeakAmplitude());
                        QCOMPARE(bench.bridge().alarmSeverityLevel(), 0);
                    }
                    QVERIFY(highest > 10); // padding spreads gravity
                    bench.feed(1, 0);
                    for (int frame = 0; frame < 3; ++frame) {
                        QVERIFY(bench.tick());
                        QCOMPARE(bench.bridge().alarmSeverityLevel(), 0);
                        QVERIFY2(bench.bridge().dominantPeakAmplitude() < 0.1, // nor is it held
                                 qPrintable(QString::number(bench.bridge().dominantPeakAmplitude())));
                    }
                    QVERIFY(bench.bridge().alarmEventsToVariantList().isEmpty());
                }
            }
        }
    }

    void blockIsToldWhileItFills()
    {
        Bench bench;
        QCOMPARE(bench.mark("fillMark"), QString());
        bench.feed(192, 0);
        bench.start();
        QTRY_COMPARE(bench.mark("fillMark"), u"Block 37 %"_s);
        bench.feed(320, 0);
        QTRY_COMPARE(bench.mark("fillMark"), QString());
    }

    void steadyValueIsTheUsersChoice()
    {
        Bench bench;
        bench.choose("CB_window", 1);
        bench.feed(512, 0.25F);
        QVERIFY(bench.tick());
        QCOMPARE(bench.bridge().dominantPeakAxis(), u"Y"_s);
        auto *ignore = bench.control<QCheckBox>("CK_ignore_steady");
        QVERIFY(ignore->isChecked() && ignore->isVisible());
        ignore->click(); // gravity under Hann
        QCOMPARE(bench.bridge().dominantPeakAxis(), u"Z"_s);
        QVERIFY(bench.bridge().dominantPeakAmplitude() > 990);
        ignore->click();
        QCOMPARE(bench.bridge().dominantPeakAxis(), u"Y"_s);
    }

    void deadStreamsAreToldAndNotAnalysed()
    {
        Bench bench;
        bench.feed(512, 0.25F);
        bench.start();
        QTRY_VERIFY(bench.bridge().hasData());
        QCOMPARE(bench.mark("staleMark"), QString());
        QTRY_COMPARE(bench.mark("staleMark"), u"No new samples"_s);
        QSignalSpy requests(&bench.window, &form_fftchart::start_fft_cal);
        QTest::qWait(200); // four ticks
        QCOMPARE(requests.size(), 0);
        bench.feed(1, 0.25F);
        QTRY_VERIFY(requests.size() >= 3 && bench.mark("staleMark").isEmpty());
    }

    void restartedStreams()
    {
        Bench bench;
        bench.choose("CB_hold", 1);
        bench.start();
        QVERIFY(bench.raiseAlarm());
        bench.window.restartStream();
        QVERIFY(!bench.bridge().hasData());
        QCOMPARE(bench.window.presentationSampleRate(), 0);
        QCOMPARE(bench.control<QPushButton>("BTN_start")->text(), u"Pause"_s);
        QCOMPARE(bench.bridge().alarmSeverityLevel(), 2);
        QCOMPARE(bench.bridge().alarmEventsToVariantList().size(), 1);
        bench.feed(512, 0.125F);
        QTRY_VERIFY(std::abs(bench.bridge().dominantPeakAmplitude() - 125) < 0.01); // the held 250 are gone
    }

    void settingsLeaveTheAlarmAlone()
    {
        Bench bench;
        QVERIFY(bench.raiseAlarm());
        const QVariantList timeline = bench.bridge().alarmEventsToVariantList();
        QCOMPARE(timeline.size(), 1);
        const std::pair<const char *, int> settings[] = {
            {"CB_window", 2}, {"CB_hold", 1}, {"CB_points", 4}, {"CB_points", 8}, {"CB_type", 1}};
        for (const auto &[combo, index] : settings) {
            bench.choose(combo, index);
            QVERIFY2(bench.bridge().alarmSeverityLevel() == 2 && bench.bridge().alarmEventsToVariantList() == timeline,
                     combo);
        }
        bench.bridge().setAlarmPresetIndex(1);
        QCOMPARE(bench.bridge().alarmSeverityLevel(), 0);
        QVERIFY(bench.bridge().alarmEventsToVariantList().isEmpty());
    }

    void gestures()
    {
        Bench bench;
        QVERIFY(QTest::qWaitForWindowExposed(bench.view));
        bench.feed(512, 0.25F);
        bench.start();
        QTRY_VERIFY(bench.bridge().hasData());
        QVERIFY(bench.state->isYAutomatic()); // it starts fitted, and the field shows that
        QTRY_COMPARE(bench.state->yViewMax(), 300.0);
        auto *ceiling = bench.control<QDoubleSpinBox>("SB_y_axis_max");
        QCOMPARE(ceiling->text(), u"now 300 mG"_s);
        bench.state->setYAutomatic(false);
        QCOMPARE(ceiling->text(), u"16000 mG"_s);
        bench.wheel(0.5, 0.99, {});
        QVERIFY(std::abs(bench.state->yViewMax() - 12800) < 200);
        QCOMPARE(bench.state->xViewMax(), 500.0);
        bench.wheel(0.01, 0.5, Qt::ControlModifier);
        QVERIFY(std::abs(bench.state->xViewMax() - 400) < 5);
        QTest::mousePress(bench.view, Qt::LeftButton, {}, bench.at(0.75, 0.5));
        QTest::mouseMove(bench.view, bench.at(0.5, 0.5));
        QTest::mouseRelease(bench.view, Qt::LeftButton, {}, bench.at(0.5, 0.5));
        QVERIFY(std::abs(bench.state->xViewMin() - 100) < 5);
        QTest::mouseDClick(bench.view, Qt::LeftButton, {}, bench.at(0.5, 0.5));
        QVERIFY(bench.state->xViewMin() > 0);
        QTest::mouseDClick(bench.view, Qt::RightButton, {}, bench.at(0.5, 0.5));
        QCOMPARE(bench.state->xViewMin(), 0.0);
        QTRY_COMPARE(bench.state->yViewMax(), 300.0);
        ceiling->setValue(2000); // a chosen ceiling takes effect
        QCOMPARE(bench.state->yViewMax(), 2000.0);
        ceiling->setValue(16000);

        QTest::keyClick(bench.view, Qt::Key_Plus, Qt::ControlModifier);
        QVERIFY(std::abs(bench.state->xViewMin() - 50) < 1); // about the middle
        QTest::keyClick(bench.view, Qt::Key_Home);
        bench.state->setYAutomatic(false);

        QTest::mouseMove(bench.view, bench.at(0.25, 0.5));
        QTRY_COMPARE(bench.state->hoverTitle(), u"125.00 Hz"_s);
        QCOMPARE(bench.state->hoverTexts().value(1).trimmed(), u"250.00 mG"_s);
        QTest::keyClick(bench.view, Qt::Key_A);
        bench.state->placeCursor(1, 250);
        QCOMPARE(bench.state->measurement().value(2), u"Δf +125.00 Hz"_s);
        bench.click("decibels");
        QTRY_VERIFY(bench.state->decibels());
        bench.state->setHoverX(125);
        QCOMPARE(bench.state->hoverTexts().value(1).trimmed(), u"48.0 dB"_s);
        QVERIFY(std::abs(bench.state->yViewMax() - 20 * std::log10(16000)) < 1e-9);
        bench.click("fit");
        QTRY_COMPARE(bench.state->yViewMax(), 60.0);
        bench.state->setYAutomatic(false);
        QTest::keyClick(bench.view, Qt::Key_Home);
        QVERIFY(bench.state->isYAutomatic());
    }

    void labelsGiveWayToEachOther()
    {
        const QVariantList places{QRectF(0, 0, 10, 5), QRectF(5, 2, 10, 5), QRectF(10.5, 0, 10, 5),
                                  QRectF(5, 6, 10, 5)};
        QCOMPARE(SpectrumViewState::apart(places), (QList<bool>{true, false, true, true}));
    }

    void customRule()
    {
        Bench bench;
        QVERIFY(QTest::qWaitForWindowExposed(bench.view));
        bench.click("preset_2");
        QTRY_COMPARE(bench.bridge().alarmPresetIndex(), 2);
        bench.click("customRule");
        QTRY_VERIFY(bench.item("ruleEditor")->isVisible());
        QTRY_VERIFY(bench.item("applyRule")->y() > 0); // laid out
        // A control above the view has the focus until a click moves it.
        bench.window.activateWindow();
        bench.control<QPushButton>("BTN_start")->setFocus();
        QTRY_COMPARE(QGuiApplication::focusWindow(), bench.window.windowHandle());
        bench.click("rule_maximumHz");
        QTRY_COMPARE(QGuiApplication::focusWindow(), bench.view);
        QTest::keyClick(bench.view, Qt::Key_A, Qt::ControlModifier);
        for (const char digit : {'3', '0', '0'})
            QTest::keyClick(bench.view, digit);
        bench.click("applyRule");
        QTRY_COMPARE(bench.bridge().alarmRule().maximumHz, 300.0);
        QVERIFY(bench.bridge().hasCustomAlarmRule());
    }

    void customBand()
    {
        Bench bench;
        QVERIFY(QTest::qWaitForWindowExposed(bench.view));
        bench.feed(512, 0.25F);
        bench.start();
        QTRY_VERIFY(bench.bridge().hasData());
        const auto type = [&bench](const char *field, const char *text) {
            bench.item(field)->forceActiveFocus();
            QTest::keyClick(bench.view, Qt::Key_A, Qt::ControlModifier);
            for (const char *c = text; *c; ++c)
                QTest::keyClick(bench.view, *c);
        };
        bench.click("addBand");
        QTRY_VERIFY(bench.item("bandEditor")->isVisible());
        bench.click("applyBand");
        QVERIFY(!bench.bridge().hasCustomBands());
        QTRY_COMPARE(bench.item("bandEditor")->property("problem").toString(), u"The band needs a name."_s);
        type("bandName", "tone");
        type("bandLow", "100");
        type("bandHigh", "150");
        bench.click("applyBand");
        QTRY_VERIFY(!bench.item("bandEditor")->isVisible());
        QTRY_COMPARE(bench.bridge().bandPowers().size(), 1);
        const QVariantMap band = bench.bridge().bandPowersToVariantList().first().toMap();
        QCOMPARE(band.value(u"name"_s), u"tone"_s);
        QCOMPARE(band.value(u"highHz"_s), 150.0);
        QTRY_VERIFY(std::abs(bench.bridge().bandPowers().first().rmsEquivalent - 250 / std::numbers::sqrt2) < 0.1);
        bench.click("resetBands");
        QTRY_COMPARE(bench.bridge().bandPowers().size(), 3);
    }

    void pictureIsSaved()
    {
        Bench bench;
        QVERIFY(QTest::qWaitForWindowExposed(bench.view));
        bench.control<QDoubleSpinBox>("SB_y_axis_max")->setValue(250); // the tone is as high as the picture
        bench.feed(512, 0.25F);
        bench.start();
        QTRY_VERIFY(bench.bridge().hasData());
        const QSizeF chart = bench.item("chart")->size();
        int drawn = 0; // counted in this thread: the signal comes from the scene graph's
        const QObject counter;
        connect(bench.view, &QQuickWindow::frameSwapped, &counter, [&drawn] { ++drawn; });
        QTRY_VERIFY(drawn > 1); // items that move with the first data are in place
        bench.click("rangeButton");
        bench.click("scale_2");
        bench.click("savePicture");
        QFileDialog *dialog = nullptr;
        QTRY_VERIFY_WITH_TIMEOUT((dialog = openDialog<QFileDialog>()), 20000);
        emit dialog->fileSelected(m_folder.filePath(u"spectrum.png"_s));
        const QImage image(u"spectrum.png"_s);
        QCOMPARE(image.size(), (chart * 2).toSize());
        const int green = countPixels(image, [](const QColor &color) { // the tone is on Y
            return color.green() > color.red() + 60 && color.green() > color.blue() + 30;
        });
        QVERIFY2(green > 200, qPrintable(QString::number(green)));
        dialog->close();
    }

    void snapshotsAreToldAndRefused()
    {
        Bench bench;
        auto *files = bench.window.findChild<FftFiles *>();
        QVERIFY(writeFile(u"bad.json"_s, "[1, 2"));
        files->showSnapshot(u"bad.json"_s);
        QVERIFY(files->hasFailed() && !files->message().isEmpty());
        QVERIFY(writeFile(u"good.json"_s, bench.bridge().exportSnapshotJson().toUtf8()));
        files->showSnapshot(u"good.json"_s);
        QVERIFY(files->message().isEmpty());
        auto *box = openDialog<QMessageBox>();
        if (!box)
            QFAIL("no box");
        QVERIFY(box->text().contains("the same as now"_L1));
        box->close();

        bench.feed(512, 0.25F);
        bench.start();
        QTRY_VERIFY(bench.bridge().hasData());
        files->saveCsv();
        auto *dialog = openDialog<QFileDialog>();
        if (!dialog)
            QFAIL("no dialog");
        emit dialog->fileSelected(m_folder.filePath(u"missing/spectrum.csv"_s));
        QVERIFY(files->hasFailed());
        emit dialog->fileSelected(m_folder.filePath(u"spectrum.csv"_s));
        QVERIFY2(!files->hasFailed(), qPrintable(files->message()));
        QVERIFY(QFile::exists(u"spectrum.csv"_s));
        dialog->close();
    }

private:
    QTemporaryDir m_folder;
};

QTEST_MAIN(TestFormFftchart)
#include "tst_form_fftchart.moc"
