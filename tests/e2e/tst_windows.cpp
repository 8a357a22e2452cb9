#include <QAction>
#include <QCloseEvent>
#include <QFileDialog>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QToolButton>

#include "app/app_language_manager.h"
#include "app/palette.h"
#include "attitude/form_threed.h"
#include "chart/chart_saver.h"
#include "chart/series_item.h"
#include "e2e/views.h"
#include "fft/form_fftchart.h"
#include "fft/spectrum_view_state.h"
#include "link/stream_dispatcher.h"
#include "record/recorder.h"
#include "support/hex_file.h"
#include "support/quick_items.h"
#include "updater/form_updater.h"
#include "wave/form_sensor_dashboard.h"
#include "wave/form_wireless_dashboard.h"

namespace {

QList<QByteArray> recordedLines()
{
    QByteArray all;
    for (const QString &name : QDir::current().entryList({QStringLiteral("data_*.csv")}, QDir::Files, QDir::Name)) {
        QFile file(name);
        if (file.open(QIODevice::ReadOnly))
            all += file.readAll();
    }
    return all.split('\n');
}

} // namespace

/// The main window and the windows that it opens, as a user works with them.
class TestWindows : public QObject
{
    Q_OBJECT

private slots:
    /// Whatever the charts do, and however a connection ends, the file holds every record.
    void recordingIsComplete_data()
    {
        QTest::addColumn<QString>("end");
        for (const char *end : {"stopped", "port closed", "window closed", "unplugged"})
            QTest::newRow(end) << end;
    }
    void recordingIsComplete()
    {
        QFETCH(QString, end);
        SimulatorProcess simulator({QStringLiteral("--rate"), QStringLiteral("400")});
        Desk desk;
        desk.open(simulator.port());
        desk.find<QAction>("action_sensor_dashboard")->trigger();
        auto *dashboard = openWindow<form_sensor_dashboard>();
        QVERIFY(dashboard != nullptr);
        Recorder *recorder = &desk.window->session().recorder();
        const StreamDispatcher *dispatcher = &desk.window->session().dispatcher();
        int received = 0;
        recorder->start(QDir::currentPath(), QStringLiteral("data"));
        connect(dispatcher, &StreamDispatcher::singleNodeFrame, this, [&received] { ++received; });
        QTRY_VERIFY(dashboard->bridge().bridge(QStringLiteral("acc"))->hasData());
        dashboard->bridge().togglePlaying(); // a paused picture does not touch the file
        QTRY_VERIFY(received > 300);
        QVERIFY(desk.find<QWidget>("button_recording")->isVisible());

        if (end == QLatin1String("stopped"))
            recorder->stop();
        else if (end == QLatin1String("port closed"))
            desk.find<QAction>("action_serial_stop")->trigger();
        else if (end == QLatin1String("window closed"))
            desk.window->close();
        else
            simulator.control("unplug");
        QTRY_VERIFY(!recorder->isRecording());
        recorder->waitForFile();
        disconnect(dispatcher, nullptr, this, nullptr);

        const QList<QByteArray> lines = recordedLines(); // the records, plus the header and the empty end
        QVERIFY2(lines.size() - 2 >= 300, qPrintable(QString::number(lines.size())));
        QCOMPARE(lines.size() - 2, qsizetype(recorder->recordCount()));
        QVERIFY(lines.size() - 2 <= received);
        QVERIFY(end == QLatin1String("stopped") || lines.size() - 2 == received);
        for (qsizetype i = 1; i < lines.size() - 1; ++i)
            QCOMPARE(lines.at(i).count(','), 19);
        QVERIFY(!recorder->hasTrouble());
    }

    /// Open windows change at once, and so do those that are opened afterwards.
    void windowsFollowTheAppearance()
    {
        SimulatorProcess simulator(words("--rate 100"));
        Desk desk;
        QVERIFY(connectTo(desk, simulator));
        desk.find<QAction>("action_sensor_dashboard")->trigger();
        auto *dashboard = openWindow<form_sensor_dashboard>();
        QVERIFY(QTest::qWaitForWindowExposed(dashboard));
        form_fftchart spectrum;
        spectrum.show();
        for (const bool dark : {true, false, true, false}) {
            desk.find<QAction>(dark ? "action_appearance_dark" : "action_appearance_light")->trigger();
            const Palette &colors = dark ? palette::kDark : palette::kLight;
            QTRY_COMPARE(dashboard->grabWindow().pixelColor(3, dashboard->height() - 3), colors.background);
            QTRY_COMPARE(dashboard->grabWindow().pixelColor(3, 3), colors.surface);
            QTRY_COMPARE(desk.window->grab().toImage().pixelColor(desk.window->width() / 2, 3), colors.surface);
            QCOMPARE(
                spectrum.styleSheet(),
                dark ? QStringLiteral("background-color:%1; color:%2;").arg(colors.surface.name(), colors.text.name())
                     : QStringLiteral("background-color:white; color:black;"));
            const auto *series = qobject_cast<SeriesItem *>(findItem(dashboard->rootObject(), "series"));
            QVERIFY(series != nullptr);
            QCOMPARE(series->viewState()->seriesColors().first().value<QColor>(), colors.axisX);
            QVERIFY(desk.find<QAction>(dark ? "action_appearance_dark" : "action_appearance_light")->isChecked());
        }
    }

    void gatewayDashboardShowsWhoIsGone()
    {
        SimulatorProcess simulator({QStringLiteral("--device"), QStringLiteral("gateway"), QStringLiteral("--nodes"),
                                    QStringLiteral("16"), QStringLiteral("--layout"), QStringLiteral("63")});
        Desk desk;
        auto *action = desk.find<QAction>("action_wireless_gateway_dashboard");
        QVERIFY(!action->isEnabled() && action->isVisible());
        desk.open(simulator.port());
        QTRY_VERIFY(action->isEnabled());
        action->trigger();
        auto *dashboard = openWindow<form_wireless_dashboard>();
        QVERIFY(dashboard != nullptr);
        const GatewayNodeModel *model = dashboard->bridge().nodeModel();
        const auto stateOf = [model](int row) {
            return model->data(model->index(row), GatewayNodeModel::StateRole).toInt();
        };
        QTRY_COMPARE(model->rowCount(), 16);
        QTRY_COMPARE(stateOf(15), 0);
        simulator.control("nodes 15");
        QTRY_COMPARE_WITH_TIMEOUT(stateOf(15), 2, 20000);
        QCOMPARE(model->rowCount(), 16);
        QTRY_COMPARE(stateOf(14), 0);
        // The link breaks: the window keeps what it shows, marked as ended, until the port is opened again.
        GatewayDashboardBridge &bridge = dashboard->bridge();
        bridge.setNodeChosen(1, true);
        const auto *chart = qobject_cast<WaveChartBridge *>(
            bridge.panes().constFirst().toMap().value(QStringLiteral("backend")).value<QObject *>());
        QTRY_VERIFY(chart->hasData());
        QVERIFY(simulator.control("unplug"));
        QTRY_VERIFY(!desk.isOpen());
        QVERIFY(!action->isEnabled());
        QCOMPARE(model->rowCount(), 16);
        QVERIFY(chart->hasData() && bridge.chosenNodes() == QList<int>{1});
        QTRY_COMPARE(stateOf(1), int(NodeState::Ended));
        QVERIFY(simulator.control("replug"));
        desk.open(simulator.port());
        QTRY_COMPARE(model->rowCount(), 15);
        QCOMPARE(stateOf(1), int(NodeState::Live));
        QCOMPARE(bridge.chosenNodes(), QList<int>{1}); // it is remembered
    }

    void spectrumAndThreeDShowTheSelectedNode()
    {
        SimulatorProcess simulator({QStringLiteral("--rate"), QStringLiteral("400"), QStringLiteral("--vibration"),
                                    QStringLiteral("25:2:z"), QStringLiteral("--motion"), QStringLiteral("swing")});
        Desk desk;
        desk.open(simulator.port());
        desk.find<QAction>("actionFFT_Chart")->trigger();
        desk.find<QAction>("action3D_view")->trigger();
        const auto widgets = QApplication::topLevelWidgets();
        form_fftchart *spectrum = nullptr;
        form_threed *threed = nullptr;
        for (QWidget *widget : widgets) {
            spectrum = spectrum ? spectrum : qobject_cast<form_fftchart *>(widget);
            threed = threed ? threed : qobject_cast<form_threed *>(widget);
        }
        QVERIFY(spectrum != nullptr && threed != nullptr);
        spectrum->findChild<QPushButton *>(QStringLiteral("BTN_start"))->click();
        QTRY_VERIFY2_WITH_TIMEOUT(qAbs(spectrum->bridge().dominantPeakFrequency() - 25) < 1,
                                  qPrintable(QString::number(spectrum->bridge().dominantPeakFrequency())), 20000);

        const QQuaternion before = threed->backend().quaternion();
        QTRY_VERIFY(threed->backend().quaternion() != before);
        auto *mounting = desk.find<QComboBox>("combo_mounting");
        const int other = 1 - mounting->currentIndex();
        mounting->setCurrentIndex(other);
        emit mounting->activated(other); // as if a user picked it
        QCOMPARE(int(threed->orientationPreset()), other);
    }

    void dashboardsFollowTheLanguage()
    {
        Desk desk;
        QVERIFY(AppLanguageManager::instance().initialize());
        desk.find<QAction>("action_sensor_dashboard")->trigger();
        auto *dashboard = openWindow<form_sensor_dashboard>();
        const auto texts = [dashboard] {
            return QStringList{
                dashboard->title(), dashboard->bridge().bridge(QStringLiteral("gyr"))->chartTitle(),
                dashboard->bridge().paneStates().at(1).toMap().value(QStringLiteral("label")).toString(),
                shownTexts(dashboard->rootObject()).filter(QStringLiteral(" Hz · ")).value(0)}; // no sample yet
        };
        QVERIFY(AppLanguageManager::instance().setLanguage(QStringLiteral("EN")));
        const QStringList english = texts();
        QCOMPARE(english.at(1), QStringLiteral("Angular Velocity (°/s)"));
        QVERIFY(english.at(3).contains(QStringLiteral(" Hz · last 0 s")));
        ChartSaver *saver = dashboard->saver();
        saver->save({}, QStringLiteral("a.csv"), {}, "x");
        auto *dialog = openDialog<QFileDialog>();
        QVERIFY(dialog != nullptr);
        emit dialog->fileSelected(QStringLiteral("/none/a.csv"));
        dialog->close();
        const QString refused = saver->message();
        QVERIFY(saver->hasFailed() && refused.startsWith(QLatin1String("/none/a.csv could not be written")));
        QVERIFY(AppLanguageManager::instance().setLanguage(QStringLiteral("JA")));
        QVERIFY(saver->hasFailed() && saver->message() != refused);
        QVERIFY(saver->message().contains(QLatin1String("/none/a.csv")));
        for (int i = 0; i < english.size(); ++i)
            QTRY_VERIFY2(texts().at(i) != english.at(i), qPrintable(english.at(i)));
        QVERIFY(AppLanguageManager::instance().setLanguage(QStringLiteral("EN")));
        QTRY_COMPARE(texts(), english);
    }

    /// A window that is opened while a reply is awaited does not keep the broker's window open.
    void nothingHoldsTheBrokersWindow()
    {
        SimulatorProcess simulator({});
        Desk desk;
        QVERIFY(AppLanguageManager::instance().initialize());
        desk.restart();
        desk.open(simulator.port());
        QTRY_VERIFY(desk.isOpen());
        desk.find<QAction>("action_firmware_update")->trigger();
        desk.find<QAction>("action3D_view")->trigger();
        auto *updater = desk.window->findChild<form_updater *>();
        auto *threed = openDialog<form_threed>();
        auto *language = desk.find<QToolButton>("button_language");
        QVERIFY(updater != nullptr && threed != nullptr && language != nullptr);
        const auto closeAll = [] {
            while (QWidget *popup = QApplication::activePopupWidget())
                popup->close();
            for (auto *dialog = openDialog<QFileDialog>(); dialog != nullptr; dialog = openDialog<QFileDialog>())
                dialog->close();
        };
        const std::pair<const char *, std::function<void()>> rows[] = {
            {"firmware file", [&] { updater->findChild<QPushButton *>(QStringLiteral("BTN_open_file"))->click(); }},
            {"model file", [&] { threed->findChild<QPushButton *>(QStringLiteral("BNTLoad"))->click(); }},
            {"language menu", [&] { QTest::mousePress(language, Qt::LeftButton); }}};
        for (const auto &[name, openIt] : rows) {
            bool isOpen = false;
            QTimer::singleShot(20, desk.window.get(), openIt);
            QTimer::singleShot(100, desk.window.get(), [&isOpen] {
                isOpen = QApplication::activePopupWidget() != nullptr || openDialog<QFileDialog>() != nullptr;
            });
            QTimer::singleShot(3000, desk.window.get(), closeAll);
            QElapsedTimer clock;
            clock.start();
            QVERIFY2(desk.window->session().identify() && desk.window->session().device().valid, name);
            QVERIFY2(clock.elapsed() < 2500, name);
            QVERIFY2(isOpen, name);
            closeAll();
        }
    }

    /// Batches keep arriving while the language changes; no word of the other language remains.
    void gatewayViewsFollowTheLanguage()
    {
        SimulatorProcess simulator(
            {QStringLiteral("--device"), QStringLiteral("gateway"), QStringLiteral("--nodes"), QStringLiteral("4")});
        Desk desk;
        QVERIFY(AppLanguageManager::instance().initialize());
        QVERIFY(AppLanguageManager::instance().setLanguage(QStringLiteral("EN")));
        desk.open(simulator.port());
        auto *action = desk.find<QAction>("action_wireless_gateway_dashboard");
        QTRY_VERIFY(action->isEnabled());
        action->trigger();
        desk.find<QAction>("actionFFT_Chart")->trigger();
        auto *dashboard = openWindow<form_wireless_dashboard>();
        QVERIFY(dashboard != nullptr);
        dashboard->bridge().setNodeChosen(1, true);
        auto *spectrum = openDialog<form_fftchart>();
        QVERIFY(spectrum != nullptr);
        const QQuickView *spectrumView = viewWith<SpectrumViewState>();
        QVERIFY(spectrumView != nullptr);
        static const QRegularExpression asian(QStringLiteral("[\\p{Han}\\p{Hiragana}\\p{Katakana}\\p{Hangul}]"));
        static const QRegularExpression english(QStringLiteral("[a-z]{5}"));
        const auto strangers = [&](const QRegularExpression &script) {
            return (shownTexts(dashboard->rootObject()) + shownTexts(spectrumView->rootObject())
                    + QStringList{dashboard->title(), spectrum->windowTitle()})
                .filter(script);
        };
        QTRY_VERIFY(strangers(english).size() > 10);
        const StreamDispatcher *dispatcher = &desk.window->session().dispatcher();
        for (const char *code : {"JA", "KO", "CN", "TC"}) {
            const quint64 before = dispatcher->snapshot().seq;
            QVERIFY(AppLanguageManager::instance().setLanguage(QLatin1String(code)));
            QTRY_VERIFY2(strangers(english).isEmpty(),
                         qPrintable(QLatin1String(code) + QLatin1String(": ") + strangers(english).join(u'|')));
            QTRY_VERIFY(dispatcher->snapshot().seq > before + 10);
            QVERIFY(AppLanguageManager::instance().setLanguage(QStringLiteral("EN")));
            QTRY_VERIFY2(strangers(asian).isEmpty(), qPrintable(strangers(asian).join(u'|')));
        }
        QCOMPARE(dashboard->bridge().nodeCount(), 4);
    }

    /// While a bootloader is connected nothing else talks to the device; when the firmware is back it is identified
    /// again.
    void firmwareUpdateKeepsTheDeviceToItself()
    {
        SimulatorProcess simulator({QStringLiteral("--bootloader-wait"), QStringLiteral("5000"),
                                    QStringLiteral("--packet-size"), QStringLiteral("512")});
        Desk desk;
        const QByteArray image = QByteArray::fromHex("00400020C1000008") + QByteArray(60000, 'x');
        QFile file(QStringLiteral("firmware.hex"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(hex_file::file(image, 0x08000000));
        file.close();
        desk.open(simulator.port());
        QVERIFY(desk.label("label_product") == QLatin1String("MZ221"));
        desk.find<QAction>("action_firmware_update")->trigger();
        auto *updater = desk.window->findChild<form_updater *>();
        const auto press = [updater](const char *name) {
            QTest::mouseClick(updater->findChild<QPushButton *>(QLatin1String(name)), Qt::LeftButton);
        };
        press("BTN_connect");
        const DeviceSession &session = desk.window->session();
        QVERIFY(session.isBootloaderConnected());
        desk.find<QAction>("actionDevice_Settiing")->trigger();
        const auto *identify = desk.settings()->findChild<QPushButton *>(QStringLiteral("BTN_identify"));
        QVERIFY(!identify->isEnabled() && identify->toolTip().contains(QLatin1String("bootloader")));
        press("BTN_download");
        QTRY_VERIFY(session.state() == SessionState::Updating);
        QVERIFY(!desk.find<QAction>("action_serial_stop")->isEnabled());
        QVERIFY(!desk.window->close());
        QVERIFY(desk.isOpen());
        QTRY_VERIFY_WITH_TIMEOUT(session.state() != SessionState::Updating, 30000);
        QVERIFY(desk.find<QAction>("action_serial_stop")->isEnabled());
        QTRY_COMPARE_WITH_TIMEOUT(desk.label("label_product"), QStringLiteral("MZ221"), 40000);
        QTRY_VERIFY(identify->isEnabled());
    }
};

QTEST_MAIN(TestWindows)
#include "tst_windows.moc"
