#include <QSettings>
#include <QSpinBox>
#include <QTest>

#include "app/theme.h"
#include "desk.h"
#include "support/simulator_process.h"

namespace {

QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(u' ', Qt::SkipEmptyParts);
}

bool hasDash(const QString &value)
{
    return value.startsWith(QChar(0x2013));
}

} // namespace

/// The real main window talking through a pseudo-terminal to the device simulator as a separate process.
class TestMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY2(QFile::exists(QStringLiteral(KV_SIMULATOR_PATH)), "build kv_simulator first");
        QApplication::setStyle(QStringLiteral("fusion"));
        qApp->setStyleSheet(theme::styleSheet());
    }

    void identifiesAndShowsNumbers_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QString>("product");
        QTest::addColumn<QByteArray>("logged");
        QTest::addColumn<int>("mounting");
        QTest::addColumn<QString>("protocol");
        QTest::addColumn<bool>("summary");
        const auto row = [](const char *name, const char *options, const char *product, const char *logged,
                            int mounting, const char *protocol, bool summary) {
            QTest::newRow(name) << words(options) << QString::fromLatin1(product) << QByteArray(logged) << mounting
                                << QString::fromLatin1(protocol) << summary;
        };
        constexpr auto kGateway = "Legacy Wireless Gateway (0x62/0x63)";
        constexpr auto kGatewayLog = "profile=LegacyWirelessGateway62_63 known=true transport=WirelessGateway";
        row("AT module", "--device mz221 --fixed --rate 200", "MZ221",
            "profile=MZ221 known=true transport=DirectSingleNode", 1, "Single node (0x91)", true);
        row("text module", "--device kv104 --fixed --rate 200", "KV104",
            "profile=KV104 known=true transport=DirectSingleNode", 0, "Single node (0x91)", false);
        row("gateway 62", "--device gateway --layout 62 --nodes 16 --fixed --rate 50", kGateway, kGatewayLog, 1,
            "Gateway (0x62)", true);
        row("gateway 63", "--device gateway --layout 63 --nodes 1 --fixed --rate 50", kGateway, kGatewayLog, 1,
            "Gateway (0x63)", true);
    }

    void identifiesAndShowsNumbers()
    {
        QFETCH(QStringList, options);
        QFETCH(QString, product);
        QFETCH(QByteArray, logged);
        QFETCH(QString, protocol);
        QFETCH(bool, summary);
        SimulatorProcess simulator(options);
        Desk desk;
        QVERIFY(!desk.isOpen());
        desk.open(simulator.port());

        QVERIFY(desk.isOpen());
        QVERIFY(desk.label("label_status").startsWith(QLatin1String("Connected... ") + simulator.port()));
        QCOMPARE(desk.label("label_product"), product);
        QVERIFY2(desk.log().contains(logged), desk.log().constData());
        QTEST(desk.find<QComboBox>("combo_mounting")->currentIndex(), "mounting");
        QTRY_COMPARE(desk.label("label_status"), QStringLiteral("Connected..."));

        QTRY_COMPARE(desk.value("Acceleration X"), QStringLiteral("+0.250 G"));
        const std::pair<const char *, QString> shown[] = {
            {"Acceleration Y", QStringLiteral("\u22120.500 G")},
            {"Acceleration Z", QStringLiteral("+0.750 G")},
            {"Acceleration |a|", QStringLiteral("0.935 G")},
            {"Angular velocity X", QStringLiteral("+10.50 \u00B0/s")},
            {"Angular velocity Y", QStringLiteral("\u221220.50 \u00B0/s")},
            {"Magnetic field Z", QStringLiteral("+37.5 \u00B5T")},
            {"Quaternion W", QStringLiteral("+0.8000")},
            {"Quaternion Y", QStringLiteral("\u22120.4000")}};
        for (const auto &[name, text] : shown)
            QCOMPARE(desk.value(name), text);
        QCOMPARE(desk.panel().contains(QLatin1String("Device time")), summary);
        QTRY_VERIFY(desk.label("label_connection").contains(protocol));
        QTRY_VERIFY2(desk.label("label_traffic").contains(QLatin1String("R:")),
                     qPrintable(desk.label("label_traffic")));
        QCOMPARE(desk.label("label_node"), QStringLiteral("Node ID:1"));
        QVERIFY(!desk.errorBox());
    }

    void showsDashesForWhatIsNotSent_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QByteArrayList>("absent");
        QTest::newRow("compact record") << words("--layout 93 --fixed")
                                        << QByteArrayList{"Device time", "Temperature", "Pressure"};
        QTest::newRow("items") << words("--layout items --fixed") << QByteArrayList{"Device time", "Temperature"};
        QTest::newRow("compact batch") << words("--device gateway --layout 63 --fixed")
                                       << QByteArrayList{"Temperature", "Pressure"};
    }

    void showsDashesForWhatIsNotSent()
    {
        QFETCH(QStringList, options);
        QFETCH(QByteArrayList, absent);
        SimulatorProcess simulator(options);
        Desk desk;
        desk.open(simulator.port());
        QTRY_COMPARE(desk.value("Acceleration Y"), QStringLiteral("\u22120.500 G"));
        for (const char *name : {"Device time", "Temperature", "Pressure"})
            QTRY_VERIFY2(hasDash(desk.value(name)) == absent.contains(QByteArray(name)), qPrintable(desk.panel()));
    }

    void selectsGatewayNodes()
    {
        SimulatorProcess simulator(words("--device gateway --nodes 5 --fixed --rate 100"));
        Desk desk;
        desk.open(simulator.port());
        auto *list = desk.find<QListWidget>("list_nodes");
        QTRY_COMPARE(list->count(), 5);
        QCOMPARE(list->item(4)->text(), QStringLiteral("Node ID:5"));
        QTest::keyClick(list, Qt::Key_Down);
        QTest::keyClick(list, Qt::Key_Down);
        QTRY_COMPARE(desk.value("Acceleration X"), QStringLiteral("+0.500 G"));
        QTRY_COMPARE(desk.label("label_node"), QStringLiteral("Node ID:3"));
        QCOMPARE(desk.label("label_gateway"), QStringLiteral("[Wireless]\nDONGLE ID:1\nTOTAL OF NODE:5"));

        const auto ids = [list] {
            QStringList texts;
            for (int row = 0; row < list->count(); ++row)
                texts += list->item(row)->text().mid(8);
            return texts.join(u' ');
        };
        // The followed node is gone, but stays followed and listed; others that are gone leave the list.
        QVERIFY(simulator.control("nodes 2"));
        QTRY_COMPARE_WITH_TIMEOUT(ids(), QStringLiteral("1 2 3"), 8000);
        QCOMPARE(desk.label("label_node"), QStringLiteral("Node ID:3"));
        QCOMPARE(list->currentRow(), 2);
        QVERIFY(simulator.control("nodes 16"));
        QTRY_COMPARE(list->count(), 16);
        QCOMPARE(desk.label("label_node"), QStringLiteral("Node ID:3"));
        QTRY_COMPARE(desk.value("Acceleration X"), QStringLiteral("+0.500 G"));
    }

    void followsTheChosenNode()
    {
        SimulatorProcess simulator(words("--device gateway --nodes 4 --rate 400 --rotate-ids on"));
        int samples = 0;
        int strangers = 0;
        Desk desk;
        desk.open(simulator.port());
        auto *list = desk.find<QListWidget>("list_nodes");
        QTRY_COMPARE(list->count(), 250); // all ids that ever appear, each batch has different ones
        for (int row = 0; row < list->count(); ++row)
            QCOMPARE(list->item(row)->text(), QStringLiteral("Node ID:%1").arg(row + 1));
        list->setCurrentRow(0);
        QTest::keyClick(list, Qt::Key_Down);
        connect(&desk.window->session(), &DeviceSession::sampleReceived, this, [&](const StreamSample &sample) {
            ++samples;
            strangers += sample.snapshot.sample.id != 2;
        });
        const qsizetype lines = desk.log().count('\n');
        const qint64 frames = simulator.stat("frames_sent");
        QTRY_VERIFY(simulator.stat("frames_sent") > frames + 200);
        QTRY_VERIFY(samples > 0);
        QCOMPARE(strangers, 0);
        QVERIFY(list->count() == 250 && list->currentRow() == 1);
        QCOMPARE(desk.label("label_node"), QStringLiteral("Node ID:2"));
        QVERIFY2(desk.log().count('\n') - lines < 10, "the log must not grow with the stream");
    }

    void survivesUnplug_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::newRow("module") << words("--device mz221 --fixed --rate 400");
        QTest::newRow("gateway") << words("--device gateway --fixed --nodes 16 --rate 200");
        QTest::newRow("silent") << words("--device kv104 --fixed --silent on");
    }

    void survivesUnplug()
    {
        QFETCH(QStringList, options);
        SimulatorProcess simulator(options);
        Desk desk;
        for (int round = 0; round < 3; ++round) {
            desk.open(simulator.port());
            QVERIFY(desk.isOpen());
            QVERIFY(!desk.errorBox());
            QVERIFY(simulator.control("unplug"));
            QTRY_VERIFY(!desk.isOpen());
            QCOMPARE(desk.label("label_status"), QStringLiteral("Unconnected..."));
            QTRY_VERIFY(desk.errorBox());
            QCOMPARE(desk.errorBox()->text(), QStringLiteral("Open Serial Port Error."));
            QVERIFY(!desk.errorBox()->informativeText().isEmpty());
            QCOMPARE(desk.window->findChildren<QMessageBox *>().size(), 1);
            QCOMPARE(desk.log().count("failed to open serial port."), round + 1);
            QVERIFY(desk.find<QListWidget>("list_nodes")->count() == 0);
            QVERIFY(simulator.control("replug"));
        }
        QVERIFY(simulator.control("silent off"));
        desk.open(simulator.port());
        QTRY_COMPARE(desk.value("Acceleration X"), QStringLiteral("+0.250 G"));
    }

    void showsWhyAPortCannotBeOpened()
    {
        SimulatorProcess simulator(words("--fixed"));
        Desk desk;
        desk.open(QStringLiteral("/dev/pts/does-not-exist"));
        QTRY_VERIFY(desk.errorBox());
        QVERIFY(!desk.isOpen());
        const QString gone = desk.errorBox()->informativeText();
        QVERIFY(gone.contains(QLatin1String("/dev/pts/does-not-exist")));

        QSerialPort holder;
        holder.setPortName(simulator.port());
        QVERIFY(holder.open(QIODevice::ReadWrite));
        desk.open(simulator.port());
        QTRY_VERIFY(desk.errorBox() && desk.errorBox()->informativeText() != gone);
        QVERIFY(!desk.isOpen());
        QVERIFY2(desk.errorBox()->informativeText().contains(QLatin1String("program")),
                 qPrintable(desk.errorBox()->informativeText()));
        holder.close();

        desk.open(simulator.port());
        QVERIFY(!desk.errorBox());
        QTRY_COMPARE(desk.value("Acceleration X"), QStringLiteral("+0.250 G"));
    }

    void opensWhileOpen()
    {
        SimulatorProcess first(words("--device mz221 --fixed"));
        SimulatorProcess second(words("--device kv104 --fixed"));
        Desk desk;
        desk.open(first.port());
        QCOMPARE(desk.label("label_product"), QStringLiteral("MZ221"));
        // The second open arrives while the first is still identifying.
        QTimer::singleShot(100, desk.window.get(), [&] { desk.open(second.port()); });
        desk.open(first.port());
        QTRY_COMPARE_WITH_TIMEOUT(desk.label("label_product"), QStringLiteral("KV104"), 10000);
        QTRY_VERIFY(desk.label("label_connection").contains(second.port()));
        QTRY_COMPARE(desk.value("Acceleration X"), QStringLiteral("+0.250 G"));
        QVERIFY(!desk.errorBox());

        // No timer may be left running that goes on writing texts.
        desk.find<QAction>("action_serial_stop")->trigger();
        QVERIFY(!desk.isOpen());
        QCOMPARE(desk.label("label_connection"), QString());
        QCoreApplication::processEvents();
        QCOMPARE(desk.label("label_connection"), QString());
    }

    void closesInEachState_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<int>("afterMs"); // after the opening; -1: when identified
        QTest::addColumn<bool>("unplug");
        QTest::newRow("while opening") << words("--fixed --rate 400") << 0 << false;
        QTest::newRow("while identifying") << words("--fixed --rate 400") << 150 << false;
        QTest::newRow("while streaming") << words("--fixed --rate 2000") << -1 << false;
        QTest::newRow("while silent") << words("--silent on") << -1 << false;
        QTest::newRow("unplugged while identifying") << words("--fixed --rate 400") << 150 << true;
        QTest::newRow("unplugged at once") << words("--fixed --rate 400") << 0 << true;
    }

    void closesInEachState()
    {
        QFETCH(QStringList, options);
        QFETCH(int, afterMs);
        QFETCH(bool, unplug);
        SimulatorProcess simulator(options);
        Desk desk;
        const auto end = [&] {
            if (unplug)
                QVERIFY(simulator.control("unplug"));
            else
                QVERIFY(desk.window->close());
        };
        if (afterMs >= 0) {
            QTimer::singleShot(afterMs, desk.window.get(), end);
        }
        desk.open(simulator.port());
        if (afterMs < 0)
            end();
        QTRY_VERIFY(!desk.isOpen());
        QTRY_VERIFY(desk.log().contains("uart-thread stopped."));
        QCOMPARE(desk.window->isVisible(), unplug);
    }

    void retriesASilentDeviceUntilFramesFlow()
    {
        SimulatorProcess simulator(words("--device mz221 --fixed --silent on"));
        Desk desk;
        desk.open(simulator.port());
        QTRY_COMPARE(desk.label("label_status"), QStringLiteral("Product info pending..."));
        QCOMPARE(desk.log().count("command sequence start"), 1);
        QTRY_COMPARE_WITH_TIMEOUT(desk.log().count("command sequence finish"), 2, 8000);
        QVERIFY(simulator.control("silent off"));
        QTRY_VERIFY_WITH_TIMEOUT(desk.log().contains("product-info"), 8000);
    }

    void identifiesAgainWhenTheStreamHasEnded()
    {
        SimulatorProcess simulator(words("--device mz221 --fixed --rate 400 --deaf on"));
        Desk desk;
        // Frames arrive, then nothing: earlier frames are no reason not to identify again.
        QTimer::singleShot(250, desk.window.get(), [&] { QVERIFY(simulator.control("silent on")); });
        desk.open(simulator.port());
        QVERIFY(desk.log().contains("stream frame seq=1"));
        QCOMPARE(desk.log().count("command sequence start"), 1);
        QTRY_COMPARE_WITH_TIMEOUT(desk.log().count("command sequence start"), 2, 8000);
        QVERIFY(!desk.log().contains("product-info read skipped"));
    }

    void defersIdentificationOfADeafStream()
    {
        SimulatorProcess simulator(words("--device mz221 --fixed --rate 400"));
        QVERIFY(simulator.control("deaf on"));
        Desk desk;
        desk.open(simulator.port());
        QTRY_COMPARE_WITH_TIMEOUT(desk.label("label_status"),
                                  QStringLiteral("Product info deferred during live stream."), 8000);
        QTRY_COMPARE(desk.value("Acceleration X"), QStringLiteral("+0.250 G"));
        QCOMPARE(desk.log().count("product-info read skipped because live frame stream is active"), 1);
        QCOMPARE(desk.log().count("command sequence start"), 1);
        QCOMPARE(desk.label("label_product"), QString(QChar(0x2013)));
    }

    void fallsBackForStrangeReplies_data()
    {
        QTest::addColumn<QByteArray>("control");
        QTest::newRow("unknown model") << QByteArray("wrong-device on");
        QTest::newRow("not UTF-8") << QByteArray("reply-binary on");
        QTest::newRow("a megabyte") << QByteArray("reply 1");
    }

    void fallsBackForStrangeReplies()
    {
        QFETCH(QByteArray, control);
        SimulatorProcess simulator(words("--device mz221 --fixed --rate 100"));
        QVERIFY(simulator.control(control.constData()));
        Desk desk;
        desk.open(simulator.port());
        QVERIFY(desk.isOpen());
        QVERIFY(simulator.control("reply 0"));
        QTRY_COMPARE_WITH_TIMEOUT(desk.value("Acceleration X"), QStringLiteral("+0.250 G"), 20000);
        QVERIFY(desk.label("label_model").size() <= 256);
        if (control.startsWith("wrong")) {
            QTRY_COMPARE(desk.label("label_status"), QStringLiteral("Using fallback product profile."));
            QVERIFY(desk.log().contains("known=false"));
        }
        QVERIFY(!desk.errorBox());
    }

    void showsStrangeNumbers()
    {
        SimulatorProcess simulator(words("--device mz221 --rate 100 --values nan"));
        Desk desk;
        desk.open(simulator.port());
        QTRY_VERIFY(desk.panel().contains(QLatin1String("NaN")) || desk.panel().contains(QChar(0x221E)));
        QVERIFY(simulator.control("values fixed"));
        QTRY_COMPARE(desk.value("Acceleration X"), QStringLiteral("+0.250 G"));
        QCOMPARE(desk.value("Magnetic field Z"), QStringLiteral("+37.5 \u00B5T"));
    }

    void shrugsOffNoise()
    {
        SimulatorProcess simulator(words("--device gateway --nodes 16 --layout dynamic --fixed --rate 100 --noise 20 "
                                         "--drop 5 --insert 5"));
        Desk desk;
        desk.open(simulator.port());
        const qint64 frames = simulator.stat("frames_sent");
        QTRY_VERIFY(simulator.stat("frames_sent") > frames + 200);
        QVERIFY(desk.isOpen());
        for (const char *quiet : {"noise 0", "drop 0", "insert 0"})
            QVERIFY(simulator.control(quiet));
        QTRY_COMPARE(desk.find<QListWidget>("list_nodes")->count(), 16);
        QTRY_COMPARE(desk.value("Acceleration X"), QStringLiteral("+0.250 G"));
    }

    void savesSettingsThroughTheDialog()
    {
        SimulatorProcess simulator(words("--device mz221 --fixed --rate 100"));
        Desk desk;
        desk.open(simulator.port());
        desk.find<QAction>("actionDevice_Settiing")->trigger();
        QVERIFY(desk.settings()->isVisible());
        desk.settings()->findChild<QSpinBox *>(QStringLiteral("SB_id"))->setValue(42);
        desk.settings()->findChild<QComboBox *>(QStringLiteral("CB_rate"))->setCurrentText(QStringLiteral("10"));
        desk.settings()->findChild<QPushButton *>(QStringLiteral("BTN_save"))->click();
        desk.settings()->close();
        QTRY_COMPARE_WITH_TIMEOUT(desk.label("label_node"), QStringLiteral("Node ID:42"), 8000);
        QTRY_VERIFY_WITH_TIMEOUT(desk.label("label_connection").contains(QLatin1String("FrameRate: 10 Hz"))
                                     || desk.label("label_connection").contains(QLatin1String("FrameRate: 11 Hz"))
                                     || desk.label("label_connection").contains(QLatin1String("FrameRate: 9 Hz")),
                                 8000);
    }

    void leavesTheDeviceStreaming_data()
    {
        QTest::addColumn<bool>("identifying"); // otherwise stopped by the user
        QTest::addColumn<bool>("quit");        // otherwise only the port is closed
        QTest::newRow("port closed while identifying") << true << false;
        QTest::newRow("window closed while identifying") << true << true;
        QTest::newRow("port closed after a stop") << false << false;
        QTest::newRow("window closed after a stop") << false << true;
    }

    void leavesTheDeviceStreaming()
    {
        QFETCH(bool, identifying);
        QFETCH(bool, quit);
        SimulatorProcess simulator(words("--device mz221 --fixed --rate 100"));
        Desk desk;
        const auto end = [&] {
            if (quit)
                desk.window->close();
            else
                desk.find<QAction>("action_serial_stop")->trigger();
        };
        if (identifying)
            QTimer::singleShot(250, desk.window.get(), end);
        desk.open(simulator.port());
        if (!identifying) {
            desk.find<QAction>("actionDevice_Settiing")->trigger();
            const auto buttons = desk.settings()->findChildren<QPushButton *>();
            const auto isStop = [](const QPushButton *button) {
                return button->text() == QLatin1String("Stop output");
            };
            const auto stop = std::find_if(buttons.begin(), buttons.end(), isStop);
            QVERIFY(stop != buttons.end());
            (*stop)->click();
            end();
        }
        QTRY_VERIFY(!desk.isOpen());
        QSerialPort other;
        other.setPortName(simulator.port());
        QVERIFY(other.open(QIODevice::ReadWrite));
        QTRY_VERIFY(other.bytesAvailable() > 200);
    }

    void restoresTheFontSizeEverywhere()
    {
        Desk desk;
        desk.find<QAction>("actionFontBig")->trigger();
        const auto sizes = [&desk] {
            QList<int> points;
            for (const char *name : {"menubar", "button_open", "title_card_device", "button_connect", "label_status",
                                     "list_nodes", "combo_mounting", "title_card_attitude"})
                points.append(desk.find<QWidget>(name)->fontInfo().pointSize());
            return points;
        };
        QCOMPARE(sizes(), QList<int>(8, 12));
        desk.restart();
        QCOMPARE(sizes(), QList<int>(8, 12));
        desk.find<QAction>("actionFontMedium")->trigger();
        QCOMPARE(sizes(), QList<int>(8, 10));
    }

    void remembersMountingPerProduct()
    {
        SimulatorProcess module(words("--device mz221 --fixed"));
        SimulatorProcess other(words("--device kv104 --fixed"));
        Desk desk;
        auto *mounting = desk.find<QComboBox>("combo_mounting");
        desk.open(module.port());
        QCOMPARE(mounting->currentIndex(), 1);
        mounting->setFocus();
        QTest::keyClick(mounting, Qt::Key_Up);
        QCOMPARE(mounting->currentIndex(), 0);
        desk.open(other.port());
        QTest::keyClick(mounting, Qt::Key_Down);
        QCOMPARE(mounting->currentIndex(), 1);
        desk.open(module.port());
        QCOMPARE(mounting->currentIndex(), 0);
        const QSettings settings(QStringLiteral("param.ini"), QSettings::IniFormat);
        QCOMPARE(settings.value(QStringLiteral("DISPLAY_OVERRIDES/MZ221/orientation_preset")).toInt(), 0);
        QCOMPARE(settings.value(QStringLiteral("DISPLAY_OVERRIDES/KV104/orientation_preset")).toInt(), 1);
    }

    void readsHostileSettings_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("binary") << QByteArray(4096, '\xFF') + QByteArray(4096, '\0');
        QTest::newRow("no sections") << QByteArray("=\n[\n]\n[[[\n%%%\n");
        QTest::newRow("out of range") << QByteArray(
            "[Main]\nFONTSIZE=-2147483648\nGEOMETRY=@ByteArray(rubbish)\n[SERIAL]\nBAUDRATE=99999999999\n"
            "PORT=@Invalid()\n[DISPLAY_OVERRIDES]\nMZ221\\orientation_preset=5\n");
        QTest::newRow("wrong types") << QByteArray(
            "[Main]\nFONTSIZE=@Variant(\\0\\0\\0\\x8)\n[SERIAL]\nPORT=a, b, c\n");
    }

    void readsHostileSettings()
    {
        QFETCH(QByteArray, content);
        SimulatorProcess simulator(words("--device mz221 --fixed"));
        Desk desk;
        QFile file(QStringLiteral("param.ini"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        desk.restart();
        QVERIFY(QApplication::font().pointSize() >= 7 && QApplication::font().pointSize() <= 24);
        desk.open(simulator.port());
        QCOMPARE(desk.find<QComboBox>("combo_mounting")->currentIndex(), 1);
        QTRY_COMPARE(desk.value("Acceleration X"), QStringLiteral("+0.250 G"));
    }

    void runsWithoutAWorkingFolder()
    {
        SimulatorProcess simulator(words("--device mz221 --fixed"));
        Desk desk;
        // Root may write everywhere, but no one can write into a folder that is gone.
        QTemporaryDir gone;
        QVERIFY(QDir::setCurrent(gone.path()));
        QVERIFY(gone.remove());
        desk.restart();
        desk.open(simulator.port());
        QTRY_COMPARE(desk.value("Acceleration X"), QStringLiteral("+0.250 G"));
        desk.find<QAction>("actionFontBig")->trigger();
        QVERIFY(desk.window->close());
    }
};

QTEST_MAIN(TestMainWindow)

#include "tst_main_window.moc"
