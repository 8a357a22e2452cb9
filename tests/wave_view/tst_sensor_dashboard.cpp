#include <QClipboard>
#include <QFileDialog>
#include <QPointer>
#include <QQuickItem>
#include <QRegularExpression>
#include <QSettings>
#include <QSignalSpy>
#include <QtTest>

#include <cmath>
#include <limits>

#include "app/settings_keys.h"
#include "chart/chart_saver.h"
#include "chart/series_item.h"
#include "support/quick_items.h"
#include "wave/form_sensor_dashboard.h"
#include "wave/wave_view_state.h"

namespace {

/// The window with its acceleration chart. Red is X and nothing else in a plot.
struct Bench
{
    form_sensor_dashboard window;
    QQuickItem *chart = nullptr;
    QQuickItem *plot = nullptr;
    SeriesItem *series = nullptr;
    WaveViewState *view = nullptr;

    explicit Bench(const QStringList &types = {QStringLiteral("acc")})
    {
        for (const QString &type : window.bridge().sensorTypes())
            window.bridge().setSensorSelected(type, types.contains(type));
        window.resize(800, 500);
        window.open();
        chart = findItem(window.rootObject(), "chart_acc");
        plot = findItem(chart, "plotMouse");
        series = qobject_cast<SeriesItem *>(findItem(chart, "series"));
        view = qobject_cast<WaveViewState *>(series->viewState());
    }
    bool isShown() { return QTest::qWaitForWindowActive(&window); }
    /// Samples from `fromMs` to `toMs`, 100 a second; X is broken from -6 s to -4 s of a ten second picture.
    void push(unsigned int fromMs, unsigned int toMs)
    {
        for (unsigned int ms = fromMs; ms < toMs; ms += 10) {
            const float t = float(ms) / 1000;
            const bool gap = ms > 4000 && ms < 6000;
            const float x = gap ? std::numeric_limits<float>::quiet_NaN() : std::sin(t * 3);
            const float values[] = {x, 0.5F, -0.5F, 1};
            window.bridge().pushSample(QStringLiteral("acc"), values, 4, ms);
        }
    }
    /// Red pixels of the plot between two fractions of its width.
    int red(double from = 0, double to = 1)
    {
        const QImage image = window.grabWindow();
        const double scale = image.width() / double(window.width());
        const QRectF area =
            plot->mapRectToScene(QRectF(from * plot->width(), 0, (to - from) * plot->width(), plot->height()));
        int count = 0;
        for (int y = int(area.top() * scale); y < int(area.bottom() * scale); ++y) {
            for (int x = int(area.left() * scale); x < int(area.right() * scale); ++x) {
                const QColor pixel = image.pixelColor(x, y);
                count += pixel.red() > pixel.green() + 60 && pixel.red() > pixel.blue() + 60;
            }
        }
        return count;
    }
    QPoint at(double x, double y) { return plot->mapToScene(QPointF(x * plot->width(), y * plot->height())).toPoint(); }
    void click(QQuickItem *item)
    {
        QTest::mouseClick(&window, Qt::LeftButton, {}, item->mapToScene(item->boundingRect().center()).toPoint());
    }
    void wheel(double x, Qt::KeyboardModifiers modifiers)
    {
        const QPointF place = at(x, 0.5);
        QWheelEvent event(place, window.mapToGlobal(place), {}, {0, 120}, Qt::NoButton, modifiers, Qt::NoScrollPhase,
                          false);
        QCoreApplication::sendEvent(&window, &event);
    }
};

class BrokenDashboard : public DashboardWindow
{
public:
    BrokenDashboard() : DashboardWindow(settings_keys::kSensorDashboard) { showView(QStringLiteral("Missing"), {}); }
    ~BrokenDashboard() override { close(); }

protected:
    void setOpen(bool) override {}
};

} // namespace

class tst_sensor_dashboard : public QObject
{
    Q_OBJECT

private slots:
    void init() { QFile::remove(settings_keys::kFile); }

    void showsSamplesAndGaps()
    {
        Bench bench;
        QVERIFY(bench.isShown());
        QCOMPARE(bench.red(), 0);
        bench.push(1, 10000);
        QTRY_VERIFY(bench.red(0.7, 1) > 100);
        QVERIFY(bench.red(0, 0.35) > 100);
        QCOMPARE(bench.red(0.42, 0.58), 0);
        QTRY_VERIFY(!findItem(bench.chart, "legend_Norm")->property("value").toString().isEmpty());

        bench.click(findItem(bench.chart, "legend_X"));
        QTRY_COMPARE(bench.red(), 0);
        bench.click(findItem(bench.chart, "legend_X"));
        QTRY_VERIFY(bench.red() > 100);

        // Pausing keeps the picture.
        QTest::keyClick(&bench.window, Qt::Key_Space);
        QVERIFY(!bench.window.bridge().playing());
        const int polishes = bench.series->polishCount();
        bench.push(10000, 15000);
        QVERIFY(bench.red(0.7, 1) > 100);
        QCOMPARE(bench.series->polishCount(), polishes);
        bench.click(findItem(bench.window.rootObject(), "playButton"));
        QVERIFY(bench.window.bridge().playing());

        // An unchosen chart costs nothing.
        bench.window.bridge().setSensorSelected(QStringLiteral("acc"), false);
        QTRY_VERIFY(findItem(bench.window.rootObject(), "noChart")->isVisible());
        const int before = bench.series->polishCount();
        bench.push(15000, 16000);
        QVERIFY(bench.red() == 0 && bench.series->polishCount() == before);
    }

    void marksWhereTheStreamStartedAgain()
    {
        Bench bench;
        QVERIFY(bench.isShown());
        bench.push(1, 5000);
        bench.window.bridge().restartStream(StreamBreak::ClockRestarted);
        bench.push(8000, 11000); // ten seconds are visible: the mark is 3 s before the newest sample
        QQuickItem *mark = nullptr;
        QTRY_VERIFY((mark = findItem(bench.chart, "breakMark")) != nullptr && mark->isVisible());
        QVERIFY2(bench.red(0.05, 0.38) > 0 && bench.red(0.42, 0.6) == 0, "nothing is drawn over the silence");
        const double place = mark->mapToItem(bench.plot, QPointF()).x() / bench.plot->width();
        QVERIFY2(std::abs(place - 0.701) < 0.005, qPrintable(QString::number(place)));
        // Its colour runs from top to bottom of the plot.
        const QColor color = mark->property("color").value<QColor>();
        const QImage image = bench.window.grabWindow();
        const double scale = image.width() / double(bench.window.width());
        const QPointF top = mark->mapToScene(QPointF(0.5, 0)) * scale;
        int found = 0;
        for (int y = 0; y < int(mark->height() * scale); ++y)
            found += image.pixelColor(int(top.x()), int(top.y()) + y) == color;
        QVERIFY2(found > 0.8 * mark->height() * scale, qPrintable(QString::number(found)));

        bench.window.bridge().restartStream(StreamBreak::OtherNode);
        QTRY_VERIFY(findItem(bench.chart, "breakMark") == nullptr);
    }

    void marksByAKey()
    {
        Bench bench({QStringLiteral("acc"), QStringLiteral("gyr")});
        QVERIFY(bench.isShown());
        bench.push(1, 20000);
        QTRY_VERIFY(bench.view->hasData());
        bench.chart->forceActiveFocus();
        QTest::keyClick(&bench.window, Qt::Key_M);
        QTRY_VERIFY(bench.window.activeFocusItem() && bench.window.activeFocusItem()->objectName() == u"markerText");
        for (const char letter : {'H', 'i'}) // into its text, which is selected
            QTest::keyClick(&bench.window, letter);
        QTest::keyClick(&bench.window, Qt::Key_Return);
        const MarkerList &markers = *bench.window.bridge().markers();
        QCOMPARE(markers.count(), 1);
        QCOMPARE(markers.markers()[0].text, QStringLiteral("Hi"));
        QCOMPARE(markers.markers()[0].timeSec, bench.view->clock());
        QTRY_VERIFY(bench.chart->hasActiveFocus());
        for (const char *chart : {"chart_acc", "chart_gyr"})
            QTRY_VERIFY2(findItem(findItem(bench.window.rootObject(), chart), "marker") != nullptr || chart[6] == 'g',
                         chart);
        bench.push(20000, 45000);
        QTRY_VERIFY(bench.view->markerPlaces().isEmpty()); // it has left the view
        bench.click(findItem(bench.window.rootObject(), "showMarker"));
        QTRY_COMPARE(bench.view->markerPlaces().size(), 1);
        QVERIFY(!bench.view->isFollowing() && std::abs(bench.view->markerPlaces()[0] + 25) < 0.02);
        bench.window.bridge().restartStream(StreamBreak::OtherNode);
        QCOMPARE(markers.count(), 0);
    }

    void copiesWhatIsMeasured()
    {
        Bench bench;
        QVERIFY(bench.isShown());
        bench.push(1, 20000);
        QTRY_VERIFY(bench.view->hasData());
        bench.window.bridge().setPlaying(false);
        bench.view->placeCursor(0, -3);
        bench.view->placeCursor(1, -1);
        QTRY_VERIFY(findItem(bench.chart, "copyMeasures")->isVisible());
        bench.click(findItem(bench.chart, "copyMeasures"));
        const QStringList lines = QGuiApplication::clipboard()->text().split(u'\n');
        QCOMPARE(lines.size(), 7);
        QCOMPARE(lines[3].left(12), QStringLiteral("Y\t0.5\t0.5\t0\t")); // A, B, difference
        QCOMPARE(lines[3].section(u'\t', -1), QStringLiteral("201"));
    }

    void followsTheMouse()
    {
        Bench bench;
        QVERIFY(bench.isShown());
        bench.push(1, 20000);
        QTRY_VERIFY(bench.view->hasData());
        bench.window.bridge().setPlaying(false);
        const double plotHeight = bench.plot->height();

        bench.wheel(0.5, Qt::NoModifier);
        QVERIFY2(bench.view->xViewMax() == 0 && bench.view->xViewMin() > -9.5, "a live view stays live");
        QVERIFY(bench.view->isYAutomatic());
        bench.wheel(0.5, Qt::ControlModifier);
        QVERIFY(!bench.view->isYAutomatic());
        QTest::mouseDClick(&bench.window, Qt::LeftButton, {}, bench.at(0.5, 0.5));
        QTRY_VERIFY(bench.view->isYAutomatic() && bench.view->xViewMax() == 0 && bench.view->xViewMin() == -10);

        QTest::mousePress(&bench.window, Qt::LeftButton, {}, bench.at(0.2, 0.5));
        QTest::mouseMove(&bench.window, bench.at(0.4, 0.5));
        QTest::mouseMove(&bench.window, bench.at(0.7, 0.5));
        QTest::mouseRelease(&bench.window, Qt::LeftButton, {}, bench.at(0.7, 0.5));
        QVERIFY2(std::abs(bench.view->xViewMax() + 5) < 0.1, qPrintable(QString::number(bench.view->xViewMax())));
        QVERIFY(bench.view->hoverTexts().size() == 4);
        const QQuickItem *readout = findItem(bench.chart, "readout");
        QVERIFY(readout->isVisible());
        QVERIFY2(readout->mapRectToItem(bench.plot, readout->boundingRect()).bottom() <= 0, "it covers no curve");
        QVERIFY2(bench.plot->height() == plotHeight, "and moves none");

        QTest::keyClick(&bench.window, Qt::Key_B);
        QVERIFY(std::abs(bench.view->cursors().at(1) - bench.view->hoverX()) < 1e-9);
        const double before = bench.view->cursors().at(1);
        QTest::mousePress(&bench.window, Qt::LeftButton, {}, bench.at(0.7, 0.5));
        QTest::mouseMove(&bench.window, bench.at(0.6, 0.5));
        QTest::mouseMove(&bench.window, bench.at(0.5, 0.5));
        QTest::mouseRelease(&bench.window, Qt::LeftButton, {}, bench.at(0.5, 0.5));
        QVERIFY2(std::abs(bench.view->cursors().at(1) - before + 2) < 0.1, "the cursor is dragged, not the picture");
        QVERIFY(std::abs(bench.view->xViewMax() + 5) < 0.1);
    }

    void savesDataAndPicture()
    {
        Bench bench;
        QVERIFY(bench.isShown());
        bench.push(1, 2000);
        QTRY_VERIFY(bench.view->hasData());
        const QTemporaryDir folder;
        for (const char *button : {"saveData", "savePicture"}) {
            bench.click(findItem(bench.chart, button));
            QFileDialog *dialog = nullptr;
            QTRY_VERIFY((dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget())));
            QCOMPARE(dialog->windowHandle()->transientParent(), &bench.window);
            dialog->setDirectory(folder.path());
            QVERIFY(QMetaObject::invokeMethod(dialog, "accept"));
            QTRY_VERIFY2(!QApplication::activeModalWidget(), button);
            QVERIFY2(!bench.window.saver()->hasFailed() && !bench.window.saver()->message().isEmpty(), button);
        }
        const QStringList files = QDir(folder.path()).entryList({}, QDir::Files, QDir::Name); // acc_<time>.csv and .png
        QCOMPARE(files.size(), 2);
        QFile csv(folder.filePath(files.at(0)));
        QVERIFY(csv.open(QIODevice::ReadOnly));
        QCOMPARE(csv.readAll().count('\n'), 201);
        const QImage picture(folder.filePath(files.at(1)));
        QCOMPARE(picture.size(), (bench.chart->size() * bench.window.devicePixelRatio()).toSize());
        QCOMPARE(
            QSettings(settings_keys::kFile, QSettings::IniFormat).value(QStringLiteral("SENSOR_DASHBOARD/SAVE_FOLDER")),
            folder.path());
    }

    void catchesEvents()
    {
        Bench bench;
        QVERIFY(bench.isShown());
        bench.push(1, 4000);
        QTRY_VERIFY(bench.view->hasData());
        bench.view->setSpan(2);
        bench.click(findItem(bench.chart, "triggerButton"));
        QTRY_VERIFY(findItem(bench.chart, "triggerSwitch") && findItem(bench.chart, "triggerSwitch")->isVisible());
        bench.click(findItem(bench.chart, "triggerSwitch"));
        WaveTrigger &trigger = *bench.view->bridge()->trigger();
        QVERIFY(trigger.isOn());
        QCOMPARE(trigger.span(), 2.0);
        QQuickItem *handle = nullptr;
        QTRY_VERIFY((handle = findItem(bench.chart, "triggerHandle")));
        const double before = trigger.level();
        const QPoint grip = handle->mapToScene(handle->boundingRect().center()).toPoint();
        QTest::mousePress(&bench.window, Qt::LeftButton, {}, grip);
        QTest::mouseMove(&bench.window, grip - QPoint(0, 20));
        QTest::mouseRelease(&bench.window, Qt::LeftButton, {}, grip - QPoint(0, 20));
        QVERIFY2(trigger.level() > before, "the level is dragged");
        trigger.setLevel(0.9);
        bench.view->setMarksCatches(true);
        bench.push(6000, 12000); // sin(3 t) rises through it every 2.1 s
        QTRY_VERIFY(bench.view->bridge()->holds() && findItem(bench.chart, "releaseButton")->isVisible());
        QVERIFY(bench.window.bridge().markers()->count() > 0);
        const double held = bench.view->clock();
        bench.view->bridge()->trigger()->setMode(WaveTrigger::Mode::Single);
        bench.push(12000, 12100);
        QCOMPARE(bench.view->clock(), held);
        QVERIFY(!bench.view->isStale());
        bench.click(findItem(bench.chart, "releaseButton"));
        QTRY_VERIFY(!bench.view->bridge()->holds());
        QTRY_COMPARE(bench.view->clock(), 12.09);
        QVERIFY(bench.view->isFollowing());
    }

    void savesAllCharts()
    {
        Bench bench({QStringLiteral("acc"), QStringLiteral("gyr"), QStringLiteral("mag")});
        QVERIFY(bench.isShown());
        bench.push(1, 20000);
        const float values[] = {1, 2, 3, 4};
        for (unsigned int ms = 10; ms <= 100; ms += 10)
            bench.window.bridge().pushSample(QStringLiteral("gyr"), values, 4, ms);
        QTRY_VERIFY(bench.view->hasData());
        bench.window.bridge().setOrigin({QStringLiteral("HI14"), 7});
        bench.click(findItem(bench.window.rootObject(), "saveButton"));
        // What is chosen, what is clicked, the suffix.
        const std::tuple<const char *, const char *, QString> rows[] = {
            {"allSamples", "saveAllData", QStringLiteral("csv")},
            {"scale_2", "saveAllPictures", QStringLiteral("png")},
            {"svg", "saveAllPictures", QStringLiteral("svg")}};
        for (const auto &[option, button, suffix] : rows) {
            const QTemporaryDir folder;
            QTRY_VERIFY(findItem(bench.window.rootObject(), option)->isVisible());
            bench.click(findItem(bench.window.rootObject(), option));
            bench.click(findItem(bench.window.rootObject(), button));
            QFileDialog *dialog = nullptr;
            QTRY_VERIFY((dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget())));
            emit dialog->fileSelected(folder.path());
            dialog->close();
            QTRY_VERIFY2(!QApplication::activeModalWidget(), button);
            QVERIFY2(!bench.window.saver()->hasFailed(), qPrintable(bench.window.saver()->message()));
            const QFileInfoList files = QDir(folder.path()).entryInfoList({}, QDir::Files, QDir::Name);
            QCOMPARE(files.size(), 2); // the third has no samples
            QVERIFY2(files[0].fileName().startsWith(QLatin1String("acc_HI14_node7_"))
                         && files[1].fileName().startsWith(QLatin1String("gyr_")),
                     qPrintable(files[0].fileName()));
            for (const QFileInfo &file : files)
                QCOMPARE(file.suffix(), suffix);
            if (suffix == u"png")
                QCOMPARE(QImage(files[0].filePath()).size(), (bench.chart->size() * 2).toSize());
            if (suffix != u"csv")
                continue;
            QFile csv(files[0].filePath());
            QVERIFY(csv.open(QIODevice::ReadOnly));
            QCOMPARE(csv.readAll().count('\n'), 2002); // all of them, and two lines over them
        }
    }

    void tellsWhyAFilterIsRefused()
    {
        Bench bench;
        QVERIFY(bench.isShown());
        bench.window.bridge().setFrameRate(10);
        bench.click(findItem(bench.chart, "filterButton"));
        QQuickItem *cutoff = findItem(bench.chart, "filterCutoff");
        QQuickItem *problem = findItem(bench.chart, "filterProblem");
        QTRY_VERIFY(cutoff->isVisible());
        const auto enter = [&](const QString &text) {
            cutoff->forceActiveFocus();
            cutoff->setProperty("text", text);
            QTest::keyClick(&bench.window, Qt::Key_Return);
        };
        enter(QStringLiteral("0.01"));
        QVERIFY(!problem->isVisible());
        bench.click(findItem(bench.chart, "filterSwitch"));
        QTRY_VERIFY(problem->isVisible() && !problem->property("text").toString().isEmpty());
        QVERIFY(!bench.view->bridge()->filterOn());
        enter(QStringLiteral("abc"));
        QCOMPARE(cutoff->property("text").toString(), QStringLiteral("0.01"));
        enter(QStringLiteral("2"));
        QTRY_VERIFY(!problem->isVisible());
        QVERIFY(bench.view->bridge()->filterOn());
        // The filter keeps its coefficient when the rate changes: the row says what that means.
        QQuickItem *force = findItem(bench.chart, "filterForce");
        QVERIFY(!force->isVisible());
        bench.window.bridge().setFrameRate(40);
        QTRY_VERIFY(force->isVisible() && force->property("text").toString().contains(QLatin1String("8 Hz")));
        bench.click(findItem(bench.chart, "filterAgain"));
        QTRY_VERIFY(!force->isVisible());
        enter(QStringLiteral("-3"));
        QTRY_VERIFY(problem->isVisible() && !bench.view->bridge()->filterOn());
        enter(QStringLiteral("1e30"));
        QTRY_VERIFY(!problem->isVisible() && bench.view->bridge()->filterOn());
    }

    void remembersSelectionAndPlace()
    {
        for (const char *hostile :
             {"SELECTED_SENSORS=gyr, bogus, prs\nPLACE=@Rect(-90000 5 1000000 1000000)\nMAXIMIZED=x",
              "SELECTED_SENSORS=gyr, prs\nPLACE=\"@Variant(\\0\\0\\0\\x13garbage\"\nSAVE_FOLDER=7"}) {
            QFile file(settings_keys::kFile);
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write("[SENSOR_DASHBOARD]\n" + QByteArray(hostile));
            file.close();
            form_sensor_dashboard window;
            QCOMPARE(window.bridge().selectedSensorTypes().join(u','), QStringLiteral("gyr,prs"));
            QVERIFY(window.screen()->availableGeometry().contains(window.geometry()));
            window.open();
            QVERIFY(QTest::qWaitForWindowActive(&window) && window.bridge().dashboardActive());
            const QPointer<QQuickItem> chip = findItem(window.rootObject(), "chip_eul");
            chip->forceActiveFocus(Qt::TabFocusReason);
            for (const bool shown : {true, false, true}) { // the chip stays, and keeps the focus
                QTest::keyClick(&window, Qt::Key_Space);
                QTRY_COMPARE(findItem(window.rootObject(), "chart_eul")->isVisible(), shown);
                QTRY_VERIFY(chip && chip->hasActiveFocus() && chip->property("checked").toBool() == shown);
            }
            window.resize(760, 490);
            QTRY_COMPARE(findItem(window.rootObject(), "noChart")->window()->width(), 760);
            window.close();
            QVERIFY(!window.bridge().dashboardActive());
        }
        const form_sensor_dashboard again;
        QCOMPARE(const_cast<form_sensor_dashboard &>(again).bridge().selectedSensorTypes().join(u','),
                 QStringLiteral("gyr,eul,prs"));
        QCOMPARE(again.size(), QSize(760, 490));
    }

    void saysThatAViewIsMissing()
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Missing.qml errors: ")));
        BrokenDashboard window;
        window.open();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCOMPARE(window.contentItem()->childItems().size(), 1);
        QVERIFY(!window.contentItem()->childItems().at(0)->property("text").toString().isEmpty());
    }

    void showsOnePaneAlone()
    {
        Bench bench({QStringLiteral("acc"), QStringLiteral("gyr")});
        QVERIFY(bench.isShown());
        const qreal width = bench.chart->width();
        bench.click(findItem(bench.chart, "maximizeButton"));
        QTRY_VERIFY(bench.chart->width() > 1.8 * width);
        QVERIFY(!findItem(bench.window.rootObject(), "chart_gyr")->isVisible());
        QTest::keyClick(&bench.window, Qt::Key_Escape);
        QTRY_COMPARE(bench.chart->width(), width);
    }
};

QTEST_MAIN(tst_sensor_dashboard)
#include "tst_sensor_dashboard.moc"
