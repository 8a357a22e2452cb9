#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSettings>
#include <QtTest>

#include <optional>

#include "app/settings_keys.h"
#include "app/theme.h"
#include "link/kboot_protocol.h"
#include "link/kv_uart_port.h"
#include "session/device_session.h"
#include "support/files.h"
#include "support/hex_file.h"
#include "support/open_dialog.h"
#include "support/pixels.h"
#include "support/real_firmware.h"
#include "support/simulator_process.h"
#include "updater/form_updater.h"
#include "updater/update_report.h"

namespace {

constexpr int kDownloadMs = 30000;

/// A plausible image for address 0: stack in RAM, reset vector inside, and a build that the device reports.
QByteArray goodImage(int size, const QByteArray &build = "2026-05-17")
{
    QByteArray image = QByteArray::fromHex("00400020C1000000") + "build " + build;
    for (int i = int(image.size()); i < size; ++i)
        image.append(char(i * 7 + i / 256));
    return image;
}

/// Whether a widget contains pixels as dark as readable text.
bool hasDarkInk(QWidget *widget)
{
    return countPixels(widget->grab().toImage(), [](const QColor &color) { return qGray(color.rgb()) < 90; }) > 20;
}

/// The dialog on the screen, with an identified simulated device on an open port.
struct Bench
{
    SimulatorProcess device;
    DeviceSession session;
    form_updater dialog{&session};

    explicit Bench(const QByteArray &hexFile, const QStringList &options = {})
        : device(options + QStringList{QStringLiteral("--bootloader-wait"), QStringLiteral("600")})
    {
        QVERIFY(writeFile(QDir::current().filePath(QStringLiteral("firmware.hex")), hexFile));
        open();
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QApplication::setActiveWindow(&dialog); // there may be no window manager to do it
    }

    void open()
    {
        QVERIFY(session.open(device.port(), 921600));
        QTRY_VERIFY(session.state() == SessionState::Live || session.state() == SessionState::Silent);
    }
    bool isConnected() const { return session.isBootloaderConnected(); }
    /// A download has begun and its end is not shown yet.
    bool isRunning() const { return log().endsWith(QLatin1String("--- Starting download ---\n")); }
    /// The window shows the result of the last update.
    bool hasResult(const char *verdict) const
    {
        return QTest::qWaitFor([&] { return label("LBL_step") == QLatin1String(verdict); }, kDownloadMs);
    }
    template <typename T> T *child(const char *name) const { return dialog.findChild<T *>(QLatin1String(name)); }
    QPushButton *button(const char *name) const { return child<QPushButton>(name); }
    void press(const char *name) const { QTest::mouseClick(button(name), Qt::LeftButton); }
    /// Presses a button and returns what that logged.
    QString logOf(const char *name) const
    {
        child<QPlainTextEdit>("PTE_log")->clear();
        press(name);
        return log();
    }
    QString log() const { return child<QPlainTextEdit>("PTE_log")->toPlainText(); }
    QString label(const char *name) const
    {
        return child<QLabel>(name)->isHidden() ? QString() : child<QLabel>(name)->text();
    }
    /// Connects and downloads; true when complete.
    bool update()
    {
        press("BTN_connect");
        press("BTN_download");
        return QTest::qWaitFor([this] { return !isRunning(); }, kDownloadMs) && isComplete();
    }
    bool isComplete() const { return log().endsWith(QLatin1String("Update complete, image running...\n")); }
    /// The device's flash from its first address on.
    QByteArray flash(qsizetype size)
    {
        const QString path = QDir::current().filePath(QStringLiteral("flash.bin"));
        QFile file(path);
        if (!device.control(("flash dump " + path.toLocal8Bit()).constData()) || !file.open(QIODevice::ReadOnly))
            return {};
        return file.read(size);
    }
};

} // namespace

class TestFormUpdater : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(QDir::setCurrent(m_folder.path()));
        qApp->setPalette(theme::palette());
        qApp->setStyleSheet(theme::styleSheet());
    }
    void init()
    {
        QFile::remove(QStringLiteral("param.ini"));
        QFile::remove(QStringLiteral("update-note.json"));
    }

    // First, so that its load address becomes that of this run.
    void realFirmware()
    {
        if (real_firmware::path().isEmpty())
            QSKIP(real_firmware::kMissing);
        const QByteArray image = real_firmware::convert("", "-binary");
        QVERIFY(image.size() > 200000);
        for (const char *share : {"0", "1", "5"}) {
            Bench bench(real_firmware::convert("", "-intel"),
                        {QStringLiteral("--packet-size"), QStringLiteral("1024")});
            QVERIFY(bench.device.control(QByteArray("bootloader nak-share ").append(share).constData()));
            QCOMPARE(bench.label("LBL_doubts"), QString());
            // A packet is sent at most twice: when one in twenty is refused, some downloads hit one that is refused
            // twice.
            int tries = 1;
            while (!bench.update() && tries < 20)
                ++tries;
            QVERIFY2(tries == 1 || *share != '0', share);
            QVERIFY(
                bench.log().contains(QStringLiteral("SIZE:%1 bytes\nSP:0x20004000\nPC:0x0001ccd9\n").arg(image.size()))
                || qEnvironmentVariableIsSet("KV_FIRMWARE_HEX"));
            QVERIFY(bench.flash(image.size()) == image);
            QCOMPARE(bench.device.stat("bootloader"), 0);
            QVERIFY((bench.device.stat("refused") > 0) == (*share != '0'));
            qInfo("%s %% refused: equal after %d downloads", share, tries);
        }
    }

    void withoutAPath()
    {
        DeviceSession session;
        form_updater dialog(&session);
        dialog.on_BTN_download_clicked();
        QCOMPARE(dialog.findChild<QPlainTextEdit *>()->toPlainText(),
                 QStringLiteral("\n--- Loading HEX file ---\nNo file selected\nNO IMAGE\n"));
        dialog.on_BTN_connect_clicked(); // no port at all
        QVERIFY(!session.isBootloaderConnected());
    }

    void remembersThePath()
    {
        const QString path = QDir::current().filePath(QStringLiteral("firmware.hex"));
        const QString other = QDir::current().filePath(QStringLiteral("Gerät.hex"));
        QSettings settings(settings_keys::kFile, QSettings::IniFormat);
        settings.setValue(settings_keys::kUpdaterPath, QStringLiteral("/gone/image.hex"));
        settings.sync();
        Bench bench(hex_file::file(goodImage(2000), 0));
        QCOMPARE(bench.log(), QStringLiteral("PATH: %1\n").arg(path));
        settings.sync();
        QCOMPARE(settings.value(QStringLiteral("UPDATER/PATH")).toString(), path);
        QVERIFY(writeFile(other, hex_file::file(goodImage(3000), 0)));
        settings.setValue(settings_keys::kUpdaterPath, other);
        settings.sync();
        bench.dialog.hide();
        bench.dialog.show();
        QVERIFY(bench.log().endsWith(QStringLiteral("PATH: %1\n").arg(other)));
        QVERIFY(bench.logOf("BTN_download").isEmpty()); // disabled: nothing is connected
        bench.dialog.on_BTN_download_clicked();
        QCOMPARE(bench.log(),
                 QStringLiteral("\n--- Loading HEX file ---\nSIZE:3000 bytes\nSP:0x20004000\nPC:0x000000c1\n"
                                "ADDR:0x00000000\nNot connected to bootloader\n"));
        QVERIFY(!bench.button("BTN_download")->isEnabled());
    }

    void wholeUpdate()
    {
        const QByteArray image = goodImage(20000);
        QList<SessionState> states; // outlives the session
        Bench bench(hex_file::file(image, 0), {QStringLiteral("--flash-size"), QStringLiteral("64")});
        connect(&bench.session, &DeviceSession::stateChanged, this, [&] {
            if (states.isEmpty() || states.constLast() != bench.session.state())
                states.append(bench.session.state());
        });
        const QString facts = bench.logOf("BTN_connect");
        QVERIFY2(facts.startsWith(QStringLiteral("\n--- Connecting to bootloader ---\nConnect OK\nPKT SIZE:32\n"
                                                 "FLASH SIZE:64KB\nSDID:")),
                 qPrintable(facts));
        QVERIFY(facts.endsWith(QStringLiteral("SECTOR:2048\n\nReady to download firmware.\n")));
        QCOMPARE(bench.button("BTN_connect")->text(), QStringLiteral("Connected"));
        QCOMPARE(bench.button("BTN_connect")->styleSheet(), QStringLiteral("background-color: #90EE90;"));
        QVERIFY(bench.button("BTN_download")->hasFocus());

        QList<int> percents;
        const auto *bar = bench.child<QProgressBar>("PB_progress");
        connect(bar, &QProgressBar::valueChanged, this, [&percents](int value) { percents.append(value); });
        bench.press("BTN_download");
        bench.press("BTN_download"); // two quick clicks
        QVERIFY(bench.isRunning());
        for (const char *name : {"BTN_open_file", "BTN_connect", "BTN_download", "BTN_close"})
            QVERIFY2(!bench.button(name)->isEnabled() && !bench.button(name)->toolTip().isEmpty(), name);
        QVERIFY(hasDarkInk(bench.button("BTN_connect"))); // locked, but readable on green
        bench.dialog.close();                             // as a window manager does
        QTest::keyClick(&bench.dialog, Qt::Key_Escape);
        QVERIFY(bench.dialog.isVisible());
        QVERIFY(bench.label("LBL_status").contains(QStringLiteral("has to finish first")));
        QTRY_VERIFY_WITH_TIMEOUT(!bench.isRunning(), kDownloadMs);
        QVERIFY(
            bench.log().endsWith(QStringLiteral("\n--- Starting download ---\nUpdate complete, image running...\n")));
        QVERIFY(percents.size() > 50 && std::is_sorted(percents.begin(), percents.end()));
        QCOMPARE(bar->value(), 100);
        QVERIFY(bench.flash(image.size()) == image);
        QCOMPARE(bench.device.stat("packets"), 625);
        QVERIFY(bench.button("BTN_connect")->isEnabled()); // while waiting for the device
        QVERIFY(bench.hasResult("Verified"));
        QVERIFY(bench.label("LBL_status")
                    .endsWith(QStringLiteral("0 of 625 packets were sent again. The flash was read back and "
                                             "matches the image. The device is back with its new firmware.")));
        QCOMPARE(bench.label("LBL_builds"), QStringLiteral("Before: build 2026-03-02 · Now: build 2026-05-17"));
        QVERIFY(!QFile::exists(QStringLiteral("update-note.json")));
        QCOMPARE(states.mid(0, 3),
                 QList<SessionState>({SessionState::Bootloader, SessionState::Updating, SessionState::Silent}));
        QCOMPARE(bench.button("BTN_connect")->text(), QStringLiteral("Connect"));
        QVERIFY(bench.button("BTN_connect")->styleSheet().isEmpty());
        QVERIFY(!bench.button("BTN_download")->isEnabled());
        bench.press("BTN_copy");
        const QString report = QGuiApplication::clipboard()->text();
        QVERIFY(report.contains(bench.log()) && report.contains(QStringLiteral("firmware.hex"))
                && report.contains(bench.label("LBL_status")));
        QTRY_COMPARE(UpdateReport::files(QDir::currentPath()).size(), 1);
        const std::optional<UpdateReport> kept = UpdateReport::read(UpdateReport::files(QDir::currentPath()).first());
        QVERIFY(kept && kept->verdict == QLatin1String("Verified") && kept->log.join(u'\n') == bench.log());
        bench.press("BTN_save");
        auto *saving = openDialog<QFileDialog>();
        QVERIFY(saving != nullptr);
        for (const char *path : {"/nowhere/report.txt", "report.txt"}) {
            emit saving->fileSelected(QLatin1String(path));
            const bool isSaved = !QByteArray(path).startsWith('/');
            QTRY_VERIFY(bench.label("LBL_status")
                            .contains(isSaved ? QStringLiteral("was saved") : QStringLiteral("could not be saved")));
            QVERIFY(!isSaved || readFile(QLatin1String(path)).contains("Verified"));
        }
        saving->close();
        QVERIFY(writeFile(QStringLiteral("firmware.hex"), hex_file::file(goodImage(4000), 0)));
        bench.press("BTN_connect");
        QVERIFY(bench.label("LBL_doubts").contains(QStringLiteral("changed since it was loaded")));
        bench.dialog.close();
        QVERIFY(!bench.dialog.isVisible());
    }

    /// Restart and Stop: when they are offered, what they ask the user, and what they request.
    void restartAndStop()
    {
        const auto box = [] { return openDialog<QMessageBox>(); };
        const auto answer = [&](int button) { QTest::mouseClick(box()->buttons().at(button), Qt::LeftButton); };
        const auto buttonWith = [&](QMessageBox::ButtonRole role) {
            for (QAbstractButton *button : box()->buttons()) {
                if (box()->buttonRole(button) == role)
                    return int(box()->buttons().indexOf(button));
            }
            return -1;
        };
        Bench bench(hex_file::file(goodImage(20000), 0));
        const auto offered = [&] {
            return std::pair(bench.button("BTN_restart")->isEnabled(), bench.button("BTN_stop")->isEnabled());
        };
        QCOMPARE(offered(), std::pair(false, false));
        bench.dialog.close();
        QVERIFY(box() == nullptr); // nothing is connected
        bench.dialog.show();
        bench.press("BTN_connect");
        QCOMPARE(offered(), std::pair(true, false));
        // The window is closed over a connected bootloader.
        for (const bool agreed : {false, true}) {
            bench.dialog.close();
            QVERIFY(!bench.dialog.isVisible() && box() != nullptr && !box()->isModal());
            QCOMPARE(box()->text(),
                     QStringLiteral("The device is still in its bootloader: it sends no data until it restarts."));
            answer(buttonWith(agreed ? QMessageBox::AcceptRole : QMessageBox::RejectRole));
            QTRY_COMPARE(bench.isConnected(), !agreed);
            QTRY_VERIFY(box() == nullptr);
            QCOMPARE(bench.device.stat("bootloader"), agreed ? 0 : 1);
            bench.dialog.show();
        }
        bench.press("BTN_connect");
        bench.dialog.close();
        bench.dialog.show();
        QVERIFY(box() == nullptr); // reopening the window answers it
        bench.press("BTN_restart");
        QVERIFY(!bench.isConnected() && bench.label("LBL_status").startsWith(QStringLiteral("The device restarts")));
        QCOMPARE(bench.device.stat("bootloader"), 0);
        QCOMPARE(offered(), std::pair(false, false));

        bench.press("BTN_connect");
        bench.press("BTN_download");
        QCOMPARE(offered(), std::pair(false, true));
        for (const bool agreed : {false, true}) {
            bench.press("BTN_stop");
            QVERIFY(box() != nullptr && !box()->isModal());
            QCOMPARE(box()->text(),
                     QStringLiteral("Stop the download? The device will have no complete firmware. Its bootloader "
                                    "remains: press Connect, then Download."));
            if (agreed)
                answer(buttonWith(QMessageBox::AcceptRole));
            else
                QTest::keyClick(box(), Qt::Key_Return); // the harmless answer is the default
            QVERIFY(bench.isRunning());
            QTRY_VERIFY(box() == nullptr);
            QCOMPARE(offered(), std::pair(false, !agreed));
            QTRY_VERIFY(agreed || bench.child<QProgressBar>("PB_progress")->value() > 0); // the image is being written
        }
        QTRY_VERIFY_WITH_TIMEOUT(!bench.isRunning(), kDownloadMs);
        QVERIFY(bench.label("LBL_status").startsWith(QStringLiteral("The download was stopped. ")));
        QVERIFY(bench.label("LBL_status").endsWith(QStringLiteral("press Connect, then Download.")));
        QVERIFY(bench.device.stat("packets") < 625);
        QCOMPARE(bench.label("LBL_step"), QStringLiteral("Failed"));
        bench.press("BTN_connect");
        bench.press("BTN_download");
        bench.press("BTN_stop");
        QTRY_VERIFY_WITH_TIMEOUT(!bench.isRunning(), kDownloadMs);
        QVERIFY(box() == nullptr && bench.isComplete()); // nothing is left to stop
        bench.press("BTN_connect");
        QVERIFY(bench.session.restartDevice()); // by another window
        QCOMPARE(offered(), std::pair(false, false));
    }

    /// The file dialog is not modal to the call: it returns at once.
    void choosesAFile()
    {
        const QString other = QDir::current().filePath(QStringLiteral("other.hex"));
        QVERIFY(writeFile(other, hex_file::file(goodImage(3000), 0)));
        Bench bench(hex_file::file(goodImage(2000), 0));
        QTimer::singleShot(2000, &bench.dialog, [] { // a nested loop would wait for ever
            if (QWidget *modal = QApplication::activeModalWidget())
                modal->close();
        });
        bench.press("BTN_open_file");
        auto *dialog = openDialog<QFileDialog>();
        QVERIFY(dialog != nullptr);
        QCOMPARE(dialog->windowTitle(), QStringLiteral("Open File"));
        QCOMPARE(dialog->nameFilters(), QStringList(QStringLiteral("Text Files(*.hex)")));
        emit dialog->fileSelected(other);
        dialog->close();
        QVERIFY(bench.log().endsWith(QStringLiteral("FILE:%1\n").arg(other)));
        QVERIFY(bench.label("LBL_image").startsWith(QStringLiteral("3,000 bytes")));
        QCOMPARE(QSettings(settings_keys::kFile, QSettings::IniFormat).value(settings_keys::kUpdaterPath).toString(),
                 other);
    }

    // Clicks while the window waits for the connection are dropped.
    void impatientClicks()
    {
        Bench bench(hex_file::file(goodImage(2000), 0));
        const auto post = [&](const char *name) {
            const QPointF at(8, 8);
            for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
                QCoreApplication::postEvent(
                    bench.button(name), new QMouseEvent(type, at, at, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier));
        };
        connect(
            bench.session.port().kboot(), &KbootProtocol::downloadAdvanced, &bench.session.port(),
            [&](BootloaderStep step) {
                if (step == BootloaderStep::Ping) {
                    post("BTN_connect");
                    post("BTN_download");
                }
            },
            Qt::DirectConnection);
        bench.press("BTN_connect");
        QCoreApplication::processEvents();
        QCOMPARE(bench.log().count(QStringLiteral("--- Connecting")), 1);
        QVERIFY(bench.isConnected() && !bench.isRunning());
    }

    void faults()
    {
        enum Ends { Complete, Unconnected, Failed };
        const QString unchanged = QStringLiteral("Nothing was written: ");
        const QString incomplete = QStringLiteral("%1 of 5,000 bytes were written: the firmware is incomplete");
        const QString erased = QStringLiteral("Nothing was written, but the flash may be erased");
        const std::tuple<const char *, Ends, QString, const char *> rows[] = {
            {"bootloader mute-ping on", Complete, {}, nullptr},
            {"bootloader property-bytes 3", Unconnected, unchanged, "bootloader property-bytes 4"},
            {"bootloader property-bytes 5", Unconnected, unchanged, "bootloader property-bytes 4"},
            {"silent on", Unconnected, unchanged, "silent off"},
            {"bootloader nak 1", Complete, {}, nullptr},
            {"bootloader nak 157", Complete, {}, nullptr},
            {"bootloader nak 1:2", Failed, QStringLiteral("refused a packet. ") + erased, nullptr},
            {"bootloader nak 157:2", Failed, incomplete.arg(QStringLiteral("4,992")), nullptr},
            {"bootloader abort 3:2", Failed, incomplete.arg(64), nullptr},
            {"bootloader ignore 9", Complete, {}, nullptr},
            {"bootloader ignore 9:2", Failed, incomplete.arg(256), nullptr},
            {"bootloader erase-ms 1400", Complete, {}, nullptr},
            {"bootloader trickle-ms 3", Complete, {}, nullptr},
            {"bootloader stale-ms 20", Complete, {}, nullptr}};
        const QByteArray image = goodImage(5000);
        for (const auto &[control, ends, state, remedy] : rows) {
            // On a busy machine an acknowledge may be late without any fault. The fault is set for every attempt.
            std::optional<Bench> tried;
            for (int tries = 0; tries < 3; ++tries) {
                tried.emplace(hex_file::file(image, 0));
                QVERIFY(tried->device.control(control));
                if (tried->update() == (ends == Complete) && tried->label("LBL_status").contains(state))
                    break;
            }
            Bench &bench = *tried;
            QVERIFY2(bench.isComplete() == (ends == Complete), control);
            QVERIFY2(bench.label("LBL_status").contains(state), qPrintable(bench.label("LBL_status")));
            QVERIFY(bench.button("BTN_connect")->isEnabled() && !bench.button("BTN_download")->isEnabled());
            QVERIFY(
                ends != Unconnected
                || bench.log().endsWith(QStringLiteral("CONNECT ERR\nPlease check:\n  - Device is powered on\n"
                                                       "  - Serial port is correct\n  - Bootloader is installed\n")));
            QVERIFY(ends != Failed
                    || bench.log().endsWith(QStringLiteral("--- Starting download ---\nDownload failed\n")));
            // The remedy that the window suggested.
            QVERIFY(remedy == nullptr || bench.device.control(remedy));
            QVERIFY2(ends == Complete || QTest::qWaitFor([&] { return bench.update(); }, 10000), control);
            QVERIFY2(bench.flash(image.size()) == image, control);
        }
    }

    void lineEnds()
    {
        const QByteArray image = goodImage(20000);
        Bench bench(hex_file::file(image, 0));
        bench.press("BTN_connect");
        bench.press("BTN_download");
        QTRY_VERIFY(bench.child<QProgressBar>("PB_progress")->value() > 0);
        QVERIFY(!bench.session.close() && bench.isRunning()); // not while a download is running
        QVERIFY(bench.device.control("unplug"));
        QTRY_VERIFY(!bench.isRunning());
        QVERIFY(bench.log().endsWith(QStringLiteral("Download failed\n")));
        QVERIFY(bench.label("LBL_status").contains(QStringLiteral("open the port again and press Connect")));
        bench.press("BTN_connect"); // on the closed port
        QVERIFY(!bench.isConnected());
        QVERIFY(bench.device.control("replug"));
        bench.open();
        QVERIFY(bench.update());
        QVERIFY(bench.flash(image.size()) == image);
        bench.press("BTN_connect");
        QVERIFY(bench.isConnected());
        QVERIFY(bench.session.close());
        QVERIFY(!bench.isConnected() && !bench.button("BTN_download")->isEnabled());
        QVERIFY(!bench.label("LBL_status").isEmpty());
    }

    /// Doubts about an image have to be accepted; a download that cannot work is refused.
    void doubtsBeforeErasing()
    {
        const QByteArray good = hex_file::file(goodImage(3000), 0);
        const qsizetype half = good.indexOf('\n', good.size() / 2) + 1;
        const std::tuple<QByteArray, const char *, bool> rows[] = {
            // true: can be downloaded once accepted
            {hex_file::file(goodImage(3000).replace(4, 1, "\xC2"), 0), "reset vector", true},
            {hex_file::file("\xFF" + goodImage(3000), 0), "stack pointer", true},
            {hex_file::file(goodImage(100), 0), "very small", true},
            {hex_file::file(goodImage(3000, "2025-12-31"), 0), "2025-12-31 is older than the device's", true},
            {good.left(half), "no end record", true},
            {QByteArray(good).insert(half, "\n"), "after a blank line", true},
            {hex_file::file(goodImage(20000), 0), "does not fit the 16 KB", false},
            {hex_file::file(goodImage(3000), 0x08000000), "begins at 0x08000000, but it would be written to 0x00000000",
             false}};
        for (const auto &[file, shown, canBeAccepted] : rows) {
            Bench bench(file, {QStringLiteral("--flash-size"), QStringLiteral("16")});
            QTRY_VERIFY_WITH_TIMEOUT(bench.session.device().valid, 10000);
            bench.press("BTN_connect");
            const char *place = canBeAccepted ? "LBL_doubts" : "LBL_obstacles";
            QVERIFY2(bench.label(place).contains(QLatin1String(shown)),
                     qPrintable(bench.label(place) + QLatin1String(shown)));
            auto *despite = bench.child<QCheckBox>("CHB_despite");
            QCOMPARE(despite->isVisible(), canBeAccepted);
            QCOMPARE(bench.button("BTN_download")->isEnabled(), !canBeAccepted);
            QVERIFY(!bench.button("BTN_download")->isDefault());
            despite->click();
            bench.press("BTN_download");
            if (canBeAccepted) {
                QVERIFY(bench.hasResult("Verified") || bench.label("LBL_step") == QLatin1String("Same build"));
                continue;
            }
            QTRY_VERIFY(bench.label("LBL_status").startsWith(QLatin1String("Nothing was erased")));
            QCOMPARE(bench.device.stat("packets"), 0);
            QVERIFY(bench.isConnected() && bench.button("BTN_download")->isEnabled());
        }
    }

    void remedies()
    {
        {
            Bench bench(hex_file::file(goodImage(3000), 0x08000000));
            QSignalSpy restart(&bench.dialog, &form_updater::restartWanted);
            QCOMPARE(bench.button("BTN_remedy")->text(), QStringLiteral("Restart the program"));
            bench.press("BTN_remedy");
            QCOMPARE(restart.size(), 1);
        }
        {
            Bench bench(hex_file::file(goodImage(3000), 0), {QStringLiteral("--packet-size"), QStringLiteral("512")});
            QVERIFY(!bench.button("BTN_remedy")->isVisible());
            QVERIFY(bench.session.open(bench.device.port(), 19200)); // the simulator does not mind
            QTRY_VERIFY(bench.session.state() == SessionState::Live || bench.session.state() == SessionState::Silent);
            bench.press("BTN_connect");
            QVERIFY(bench.label("LBL_obstacles").contains(QLatin1String("512 bytes cannot be acknowledged")));
            QCOMPARE(bench.button("BTN_remedy")->text(), QStringLiteral("Use packets of 320 bytes"));
            bench.press("BTN_remedy");
            QCOMPARE(bench.label("LBL_obstacles"), QString());
            bench.press("BTN_download");
            QVERIFY(bench.hasResult("Verified"));
            QCOMPARE(bench.device.stat("packets"), 10);
        }
        Bench bench(hex_file::file(goodImage(3000), 0));
        QVERIFY(bench.device.control("bootloader erase-ms 2500"));
        QVERIFY(!bench.update() && bench.hasResult("Failed"));
        QVERIFY(bench.label("LBL_status").contains(QLatin1String("partly erased")));
        bench.update();
        QTRY_VERIFY(bench.label("LBL_status").startsWith(QLatin1String("Nothing was erased")));
        QVERIFY(bench.label("LBL_obstacles").contains(QLatin1String("An earlier erase of this size")));
        QVERIFY(bench.device.control("bootloader erase-ms 0"));
        QCOMPARE(bench.button("BTN_remedy")->text(), QStringLiteral("Erase anyway"));
        bench.press("BTN_remedy");
        bench.press("BTN_download");
        QVERIFY(bench.hasResult("Verified"));
    }

    /// Each result in the window, and the flash of the device after it: success is claimed only for a correct flash.
    void results()
    {
        const std::tuple<const char *, const char *, const char *, const char *> rows[] = {
            {"bootloader locked on", "Not verified", "locked against reading", "bootloader locked off"},
            {"bootloader read off", "Not verified", "cannot read the flash back", "bootloader read on"},
            {"bootloader late 3", "Failed", "the firmware is incomplete", nullptr},
            {"bootloader flip 5", "Failed", "this firmware must not run", nullptr},
            {"bootloader drop 7", "Failed", ", the first at 0x", nullptr},
            {"bootloader status 4", "Failed", "status 105", nullptr},
            {"bootloader power 6", "Failed", "the firmware is incomplete", nullptr}};
        const QByteArray image = goodImage(2000);
        for (const auto &[fault, verdict, sentence, remedy] : rows) {
            Bench bench(hex_file::file(image, 0));
            QTRY_VERIFY_WITH_TIMEOUT(bench.session.device().valid, 10000);
            QVERIFY2(bench.device.control(fault), fault);
            bench.update();
            QVERIFY2(bench.hasResult(verdict), qPrintable(bench.label("LBL_step") + QLatin1String(fault)));
            QVERIFY2(bench.label("LBL_status").contains(QLatin1String(sentence)),
                     qPrintable(bench.label("LBL_status")));
            const bool hasFailed = qstrcmp(verdict, "Failed") == 0;
            QCOMPARE(!bench.label("LBL_note").isEmpty(), hasFailed);
            QVERIFY(hasFailed || bench.flash(image.size()) == image);
            QVERIFY(remedy == nullptr || bench.device.control(remedy));
            if (!hasFailed)
                continue;
            // Following the window's advice leads out of it.
            if (bench.session.state() == SessionState::Closed)
                bench.open();
            bench.press("BTN_continue");
            QVERIFY2(bench.hasResult("Verified"), qPrintable(bench.label("LBL_status")));
            QVERIFY(bench.flash(image.size()) == image);
            QCOMPARE(bench.label("LBL_note"), QString());
        }
    }

    void deviceThatStaysAway()
    {
        Bench bench(hex_file::file(goodImage(2000), 0));
        QTRY_VERIFY_WITH_TIMEOUT(bench.session.device().valid, 10000);
        QVERIFY(bench.update()); // the device has not been awaited yet
        QVERIFY(bench.session.close());
        QVERIFY(QFile::exists(QStringLiteral("update-note.json")));
        QVERIFY(bench.device.control("restart"));
        bench.open(); // the device is in its bootloader again
        QVERIFY(bench.hasResult("Did not come back"));
        QVERIFY(bench.label("LBL_status").contains(QLatin1String("not identified itself")));
        bench.dialog.sayBootloaderFound();
        QVERIFY(bench.label("LBL_note").contains(QLatin1String("was written completely")));
        bench.press("BTN_forget");
        QVERIFY(bench.label("LBL_note").startsWith(QLatin1String("The device runs its bootloader")));
        QVERIFY(bench.button("BTN_choose")->isVisible() && !bench.button("BTN_continue")->isVisible());
        QTRY_VERIFY(!QFile::exists(QStringLiteral("update-note.json")));
        bench.press("BTN_restart");
        QCOMPARE(bench.label("LBL_note"), QString());
    }

    void noImage()
    {
        Bench bench(":10\n");
        bench.press("BTN_connect");
        QVERIFY(bench.label("LBL_image").contains(QLatin1String("Not a loadable Intel HEX file")));
        bench.press("BTN_download");
        QVERIFY(!bench.isRunning());
        QFile::remove(QStringLiteral("firmware.hex"));
        QVERIFY(QDir::current().mkdir(QStringLiteral("firmware.hex")));
        QVERIFY(bench.logOf("BTN_download").endsWith(QStringLiteral("Failed to open file\nNO IMAGE\n")));
        QVERIFY(QDir::current().rmdir(QStringLiteral("firmware.hex")));
    }

private:
    QTemporaryDir m_folder;
};

QTEST_MAIN(TestFormUpdater)
#include "tst_form_updater.moc"
