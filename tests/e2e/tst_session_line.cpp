#include <QPlainTextEdit>
#include <QProgressBar>
#include <QSpinBox>

#include "e2e/views.h"
#include "support/hex_file.h"
#include "updater/form_updater.h"

namespace {

constexpr int kPacket = 512;

/// A desk with a module, its update window, and an image whose download takes a moment per packet.
struct UpdateDesk
{
    explicit UpdateDesk(int packets)
        : simulator(words("--bootloader-wait 1000 --packet-size 512")
                    + QStringList{QStringLiteral("--bootloader"), QStringLiteral("late 1:1000000"),
                                  QStringLiteral("--bootloader"), QStringLiteral("late-ms 30")})
    {
        QFile file(QStringLiteral("firmware.hex"));
        if (!file.open(QIODevice::WriteOnly))
            return;
        const QByteArray start = QByteArray::fromHex("00400020C1000008") + "build 2026-05-17";
        file.write(hex_file::file(start + QByteArray(packets * kPacket - start.size(), 'x'), 0x08000000));
        file.close();
        if (!connectTo(desk, simulator))
            return;
        desk.find<QAction>("action_firmware_update")->trigger();
        updater = desk.window->findChild<form_updater *>();
    }
    template <class Widget> Widget *find(const char *name) const
    {
        return updater->findChild<Widget *>(QLatin1String(name));
    }
    /// How the last download ended: "Verified", or a sentence.
    QString end() const
    {
        const QString step = find<QLabel>("LBL_step")->text();
        return step == QLatin1String("Verified") ? step : find<QLabel>("LBL_status")->text();
    }
    bool isConnected() const { return find<QPushButton>("BTN_download")->isEnabled(); }
    bool isDownloading() const { return !find<QPushButton>("BTN_close")->isEnabled(); }

    SimulatorProcess simulator;
    Desk desk;
    form_updater *updater = nullptr;
};

QMessageBox *question()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        auto *box = qobject_cast<QMessageBox *>(widget);
        if (box && box->isVisible())
            return box;
    }
    return nullptr;
}

} // namespace

/// Who uses the line (commands, a bootloader, or no one), and what the windows show about it.
class TestSessionLine : public QObject
{
    Q_OBJECT

private slots:
    void connectsAgainAndAgain()
    {
        const UpdateDesk with(40);
        QVERIFY(with.updater != nullptr);
        for (int round = 0; round < 3; ++round) {
            click(with.updater, "BTN_connect");
            QVERIFY2(with.isConnected() && with.desk.isOpen(), qPrintable(QString::number(round)));
        }
    }

    void downloadRefusesTheRest()
    {
        UpdateDesk with(40);
        QVERIFY(with.updater != nullptr);
        auto *open = with.desk.find<QAction>("action_serial_open");
        QVERIFY(open->isEnabled());
        click(with.updater, "BTN_connect");
        QTRY_VERIFY(with.isConnected());
        click(with.updater, "BTN_download");
        QTRY_VERIFY(with.find<QProgressBar>("PB_progress")->value() > 10);
        QVERIFY(!open->isEnabled());
        QVERIFY2(open->toolTip().contains(QLatin1String("download is running")), qPrintable(open->toolTip()));
        open->trigger();
        QVERIFY(openDialog<form_com_select>() == nullptr);
        QVERIFY(!with.desk.window->close());
        QVERIFY(with.desk.isOpen());
        QVERIFY(with.find<QLabel>("LBL_status")->text().contains(QLatin1String("has to finish first")));
        QTRY_VERIFY_WITH_TIMEOUT(!with.isDownloading(), 10000);
        QTRY_COMPARE_WITH_TIMEOUT(with.end(), QStringLiteral("Verified"), 20000);
        QVERIFY(open->isEnabled());
    }

    void bootloaderGetsNoText_data()
    {
        QTest::addColumn<QString>("before");
        for (const char *before : {"a reading runs", "a resume is to be repeated"})
            QTest::newRow(before) << before;
    }
    void bootloaderGetsNoText()
    {
        QFETCH(QString, before);
        UpdateDesk with(80);
        QVERIFY(with.updater != nullptr);
        with.desk.find<QAction>("actionDevice_Settiing")->trigger();
        const form_settings *settings = with.desk.settings();
        if (before == QLatin1String("a reading runs")) {
            QTimer::singleShot(100, with.updater, [&with] { click(with.updater, "BTN_connect"); });
            click(settings, "BTN_identify");
        } else {
            click(settings, "BTN_stopOutput");
            QVERIFY(with.simulator.control("deaf on"));
            click(settings, "BTN_resumeOutput");
            QVERIFY(with.simulator.control("deaf off"));
            click(with.updater, "BTN_connect");
        }
        QTRY_VERIFY(with.isConnected());
        click(with.updater, "BTN_download");
        QTRY_VERIFY(with.isDownloading());
        QTRY_VERIFY_WITH_TIMEOUT(!with.isDownloading(), 20000);
        QCOMPARE(with.simulator.stat("boot_text_commands"), 0);
        QCOMPARE(with.simulator.stat("boot_text_in_data"), 0);
        QTRY_COMPARE_WITH_TIMEOUT(with.end(), QStringLiteral("Verified"), 20000);
    }

    void leavesTheBootloader()
    {
        UpdateDesk with(40);
        QVERIFY(with.updater != nullptr);
        click(with.updater, "BTN_connect");
        QTRY_VERIFY(with.isConnected());
        click(with.updater, "BTN_close");
        QTRY_VERIFY(question() != nullptr);
        QVERIFY(question()->text().contains(QLatin1String("bootloader")));
        QCOMPARE(with.simulator.stat("bootloader"), 1);
        for (QAbstractButton *button : question()->buttons()) {
            if (question()->buttonRole(button) == QMessageBox::AcceptRole) {
                button->click();
                break;
            }
        }
        QTRY_COMPARE(with.simulator.stat("bootloader"), 0);
        QTRY_COMPARE_WITH_TIMEOUT(with.desk.label("label_product"), QStringLiteral("MZ221"), 15000);
        const qint64 frames = with.simulator.stat("frames_sent");
        QTRY_VERIFY(with.simulator.stat("frames_sent") > frames + 10);
        QCOMPARE(with.simulator.stat("boot_text_commands"), 0);
    }

    /// An answer that arrives after its command's window is not attributed to the next command.
    void lateRefusalIsNotBlamedOnAnother()
    {
        SimulatorProcess simulator(words("--reply-delay 30 --refuse AT+ID"));
        Desk desk;
        QVERIFY(connectTo(desk, simulator));
        desk.find<QAction>("actionDevice_Settiing")->trigger();
        const form_settings *settings = desk.settings();
        settings->findChild<QSpinBox *>(QStringLiteral("SB_id"))->setValue(42);
        settings->findChild<QComboBox *>(QStringLiteral("CB_rate"))->setCurrentText(QStringLiteral("100"));
        const qsizetype starts = desk.log().count("command sequence start");
        const qsizetype ends = desk.log().count("command sequence finish");
        click(settings, "BTN_save");
        const QString status = settings->findChild<QLabel *>(QStringLiteral("LBL_status"))->text();
        QVERIFY2(status.contains(QLatin1String("refused")) && status.contains(QLatin1String("AT+ID=42")),
                 qPrintable(status));
        // A save is a sequence too; the reading that follows it is the second one.
        QCOMPARE(desk.log().count("command sequence start"), starts + 2);
        QCOMPARE(desk.log().count("command sequence finish"), ends + 2);
    }

    void noiseIsNotADevice()
    {
        SimulatorProcess simulator(words("--garbage 11000"));
        Desk desk;
        desk.open(simulator.port());
        QTRY_VERIFY(desk.log().contains("command sequence finish"));
        for (int readings = 2; readings < 4; ++readings) {
            QTRY_VERIFY_WITH_TIMEOUT(desk.log().count("command sequence finish") >= readings, 8000);
            QCOMPARE(desk.label("label_product"), QString(QChar(0x2013)));
        }
        QVERIFY(!desk.log().contains("product-info resolved"));
        auto *label = desk.find<QLabel>("label_noise");
        auto *tryRates = desk.find<QPushButton>("button_try_rates");
        QVERIFY(label != nullptr && tryRates != nullptr);
        QTRY_VERIFY(label->isVisible() && tryRates->isVisible() && tryRates->isEnabled());
        tryRates->click();
        QTRY_VERIFY(desk.label("label_connection").contains(QLatin1String("115200")));
        QVERIFY(!label->isVisible());
        QTRY_VERIFY_WITH_TIMEOUT(desk.label("label_connection").contains(QLatin1String("460800")), 8000);
        QVERIFY(simulator.control("garbage 0")); // as if this were the device's rate
        QTRY_COMPARE_WITH_TIMEOUT(desk.label("label_product"), QStringLiteral("MZ221"), 15000);
        QTRY_VERIFY(desk.label("label_connection").contains(simulator.port()));
        QVERIFY(!desk.label("label_connection").contains(QLatin1String("921600")));
        QVERIFY(!label->isVisible() && !tryRates->isVisible());
    }

    /// A stream that is slower than the wait for an answer is not a reason to resume it again.
    void slowStreamIsLeftAlone()
    {
        SimulatorProcess simulator(words("--rate 2"));
        Desk desk;
        QVERIFY(connectTo(desk, simulator));
        desk.find<QAction>("actionDevice_Settiing")->trigger();
        QVERIFY(simulator.control("deaf on"));
        const auto frames = [&simulator, first = simulator.stat("frames_sent")] {
            return simulator.stat("frames_sent") - first;
        };
        QTRY_VERIFY(frames() > 0); // half a second until the next one
        click(desk.settings(), "BTN_resumeOutput");
        QTRY_VERIFY_WITH_TIMEOUT(frames() > 6, 10000);
        const QString sent = desk.settings()->findChild<QPlainTextEdit *>(QStringLiteral("PTE_log"))->toPlainText();
        QCOMPARE(sent.count(QLatin1String("> AT+EOUT=1")), sent.contains(QLatin1String("AT+INFO")) ? 2 : 1);
    }
};

QTEST_MAIN(TestSessionLine)
#include "tst_session_line.moc"
