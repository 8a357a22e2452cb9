#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QSpinBox>
#include <QTabWidget>
#include <QtTest>

#include "app/theme.h"
#include "device/command_broker.h"
#include "link/kv_uart_port.h"
#include "support/pty_pair.h"
#include "support/simulator_process.h"
#include "ui/form_about.h"
#include "ui/form_com_select.h"
#include "ui/form_settings.h"

namespace {

constexpr int kBaud = 921600;

/// A device on a pseudo-terminal that answers from a table and keeps what it was sent.
class Peer : public QObject
{
public:
    Peer()
    {
        m_timer.callOnTimeout(this, [this] { poll(); });
        m_timer.start(1);
    }
    QString path() const { return m_pty.path(); }
    void unplug() { m_pty.unplug(); }

    QByteArray infoReply = "MZ221 V1.6\r\nbuild 2026-03-02\r\nOK\r\n";
    QByteArray otherReply = "OK\r\n";
    QByteArray received;

    int count(const char *command) const { return int(received.count(QByteArray(command) + "\r\n")); }

private:
    void poll()
    {
        m_line += m_pty.read();
        for (qsizetype end = 0; (end = m_line.indexOf('\n')) >= 0; m_line.remove(0, end + 1)) {
            const QByteArray line = m_line.left(end + 1);
            received += line;
            m_pty.write(line == "AT+INFO\r\n" ? infoReply : otherReply, 0);
        }
    }

    PtyPair m_pty;
    QTimer m_timer;
    QByteArray m_line;
};

/// The dialog on an open port, as the main window sets it up.
struct Bench
{
    KvUartPort port;
    std::unique_ptr<CommandBroker> broker = std::make_unique<CommandBroker>();
    std::unique_ptr<form_settings> dialog = std::make_unique<form_settings>();

    explicit Bench(const QString &path)
    {
        broker->attachPort(&port);
        dialog->set_broker(broker.get());
        dialog->set_baud(kBaud);
        open(path);
    }
    void open(const QString &path)
    {
        port.openUART(path, kBaud);
        QTRY_VERIFY(port.isOpen());
        dialog->set_connected(true);
    }
    void close()
    {
        port.closeUART();
        dialog->set_connected(false);
    }
    void show()
    {
        dialog->show();
        QVERIFY(QTest::qWaitForWindowExposed(dialog.get()));
        QApplication::setActiveWindow(dialog.get()); // there may be no window manager to do it
    }
    template <typename T> T *child(const char *name) const { return dialog->findChild<T *>(QLatin1String(name)); }
    QPushButton *button(const char *name) const { return child<QPushButton>(name); }
    /// Presses a button by the keyboard. Returns when its command has ended.
    void press(const char *name)
    {
        button(name)->setFocus();
        QTest::keyClick(button(name), Qt::Key_Space);
    }
    QString log() const { return child<QPlainTextEdit>("PTE_log")->toPlainText(); }
    QString status() const { return child<QLabel>("LBL_status")->text(); }
    bool isShown(const char *name) const { return !child<QWidget>(name)->isHidden(); }
};

/// Runs `action` once, inside the next command's wait.
template <typename Action> void duringTheWait(CommandBroker *broker, QObject *context, Action action)
{
    QObject::connect(
        broker, &CommandBroker::serialSend, context, [action] { action(); },
        Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection));
}

} // namespace

class TestFormSettings : public QObject
{
    Q_OBJECT

private slots:
    void identifiesEachFamily_data()
    {
        QTest::addColumn<QString>("device");
        QTest::addColumn<ProductKey>("key");
        QTest::addColumn<int>("rates"); // offered; 0: the first tab is not shown
        QTest::addColumn<bool>("hasId");
        QTest::addColumn<int>("hotkeys");

        QTest::newRow("AT module") << QStringLiteral("mz221") << ProductKey::MZ221 << 7 << true << 4;
        QTest::newRow("text-command module") << QStringLiteral("kv104") << ProductKey::KV104 << 7 << false << 9;
        QTest::newRow("gateway") << QStringLiteral("gateway") << ProductKey::LegacyWirelessGateway62_63 << 0 << false
                                 << 4;
    }
    void identifiesEachFamily()
    {
        QFETCH(QString, device);
        QFETCH(int, rates);
        SimulatorProcess simulator({QStringLiteral("--device"), device});
        Bench bench(simulator.port());
        bench.show();
        bench.press("BTN_identify");

        QTEST(bench.dialog->detectedDevice().key, "key");
        QCOMPARE(bench.child<QLabel>("LBL_model")->text(), bench.dialog->detectedDevice().modelLine);
        QVERIFY2(bench.log().contains(QLatin1String("> AT+INFO\n< ") + bench.dialog->detectedDevice().modelLine),
                 qPrintable(bench.log()));
        QCOMPARE(bench.child<QTabWidget>("TAB_pages")->isTabVisible(0), rates > 0);
        QCOMPARE(bench.child<QTabWidget>("TAB_pages")->currentIndex(), rates > 0 ? 0 : 1);
        QTEST(bench.isShown("SB_id"), "hasId");
        QTEST(bench.isShown("LBL_id"), "hasId");
        QCOMPARE(bench.child<QComboBox>("CB_rate")->count(), rates);
        int hotkeys = 0;
        for (const QPushButton *button : bench.child<QWidget>("PAGE_commands")->findChildren<QPushButton *>())
            hotkeys += button->isHidden() ? 0 : 1;
        QTEST(hotkeys, "hotkeys");

        // The output flows again: payloads keep coming.
        QSignalSpy payloads(&bench.port, &KvUartPort::kbootRecv);
        QTRY_VERIFY(!payloads.isEmpty());
    }

    void savesWhatWasChosen_data()
    {
        QTest::addColumn<QByteArray>("info");
        QTest::addColumn<QByteArray>("sent");

        const QByteArray read = "AT+EOUT=0\r\nAT+EOUT=0\r\nAT+EOUT=0\r\nAT+INFO\r\nAT+EOUT=1\r\n";
        QTest::newRow("AT module") << QByteArray("MZ226 V1\r\n")
                                   << "AT+ID=17\r\nAT+ODR=100\r\nAT+MODE=1\r\nAT+RST\r\nAT+EOUT=0\r\n" + read;
        QTest::newRow("text-command module")
            << QByteArray("KV080 V1\r\n") << "CONFIG ATT MODE 1\r\nSAVECONFIG\r\nAT+RST\r\nAT+EOUT=0\r\n" + read;
    }
    void savesWhatWasChosen()
    {
        QFETCH(QByteArray, info);
        QFETCH(QByteArray, sent);
        Peer peer;
        peer.infoReply = info;
        Bench bench(peer.path());
        bench.show();
        QVERIFY(!bench.dialog->get_prod_info().isEmpty());
        // Nothing is known about the device's settings, so nothing may be written unchosen.
        const bool isAt = bench.isShown("SB_id");
        QCOMPARE(bench.button("BTN_save")->isEnabled(), !isAt);
        if (isAt) {
            auto *id = bench.child<QSpinBox>("SB_id");
            id->setFocus();
            id->selectAll();
            QTest::keyClicks(id, QStringLiteral("17"));
            QVERIFY(!bench.button("BTN_save")->isEnabled());
            QVERIFY(bench.button("BTN_save")->toolTip().contains(QLatin1String("output rate")));
            bench.child<QComboBox>("CB_rate")->setFocus();
            QTest::keyClicks(bench.child<QComboBox>("CB_rate"), QStringLiteral("100"));
        }
        bench.child<QComboBox>("CB_mode")->setFocus();
        QTest::keyClicks(bench.child<QComboBox>("CB_mode"), QStringLiteral("1"));
        peer.received.clear();
        bench.press("BTN_save");
        QTRY_COMPARE(peer.received, sent);
        QCOMPARE(bench.status(), QStringLiteral("The settings were sent and the device has restarted."));

        // Kept for this product, for as long as the program runs.
        const QByteArray own = peer.infoReply;
        peer.infoReply = "MZ221GW V2\r\n";
        QVERIFY(!bench.dialog->get_prod_info().isEmpty());
        peer.infoReply = own;
        QVERIFY(!bench.dialog->get_prod_info().isEmpty());
        QVERIFY(bench.button("BTN_save")->isEnabled());
        QCOMPARE(bench.child<QComboBox>("CB_mode")->currentIndex(), 1);
        if (isAt) {
            QCOMPARE(bench.child<QSpinBox>("SB_id")->value(), 17);
            QCOMPARE(bench.child<QComboBox>("CB_rate")->currentText(), QStringLiteral("100"));
        }
    }

    void tellsWhatTheDeviceRefused()
    {
        Peer peer;
        peer.infoReply = "KV080 V1\r\n";
        peer.otherReply = "ERROR\r\n";
        Bench bench(peer.path());
        bench.dialog->get_prod_info();
        bench.show();
        bench.press("BTN_save");
        QVERIFY2(bench.status().contains(QLatin1String("refused SAVECONFIG")), qPrintable(bench.status()));
    }

    void sendsOneClickCommands()
    {
        Peer peer;
        peer.infoReply = "KV110 V1\r\nUUID: 1\r\n";
        Bench bench(peer.path());
        bench.dialog->get_prod_info();
        bench.show();
        bench.child<QTabWidget>("TAB_pages")->setCurrentIndex(1);
        const QList<std::pair<const char *, QByteArray>> rows{
            {"BTN_readInfo", "AT+INFO"},
            {"BTN_reset", "REBOOT"},
            {"BTN_stopOutput", "AT+EOUT=0"},
            {"BTN_resumeOutput", "AT+EOUT=1"},
            {"BTN_saveConfig", "SAVECONFIG"},
            {"BTN_logComConfig", "LOG COMCONFIG"},
            {"BTN_logUsrConfig", "LOG USRCONFIG"},
            {"BTN_logDisable", "LOG DISABLE"},
            {"BTN_reboot", "REBOOT"},
        };
        for (const auto &[name, command] : rows) {
            peer.received.clear();
            bench.press(name);
            QTRY_COMPARE(peer.received, command + "\r\n");
            QVERIFY(bench.button(name)->toolTip().contains(QLatin1String(command)));
            QVERIFY(bench.button(name)->hasFocus()); // it was disabled in between
        }
        bench.press("BTN_copy");
        QCOMPARE(QGuiApplication::clipboard()->text(), bench.log());
    }

    void resumesTheOutputItStopped()
    {
        Peer peer;
        Bench bench(peer.path());
        bench.dialog->get_prod_info();
        QSignalSpy closed(bench.dialog.get(), &form_settings::settingsClosed);
        for (const bool stopped : {false, true}) {
            bench.show();
            bench.child<QTabWidget>("TAB_pages")->setCurrentIndex(1);
            if (stopped)
                bench.press("BTN_stopOutput");
            QTRY_VERIFY(!stopped || peer.received.endsWith("AT+EOUT=0\r\n"));
            peer.received.clear();
            closed.clear();
            QTest::keyClick(bench.dialog.get(), Qt::Key_Escape);
            QCOMPARE(closed.size(), 1);
            QTRY_COMPARE(peer.received, stopped ? QByteArray("AT+EOUT=1\r\n") : QByteArray());
        }
    }

    void refusesWhileACommandRuns()
    {
        Peer peer;
        Bench bench(peer.path());
        bench.dialog->get_prod_info();
        bench.show();
        peer.received.clear();
        bool looked = false;
        duringTheWait(bench.broker.get(), bench.dialog.get(), [&] {
            looked = true;
            QVERIFY(!bench.button("BTN_identify")->isEnabled());
            QVERIFY(!bench.button("BTN_readInfo")->isEnabled());
            QVERIFY(bench.button("BTN_identify")->toolTip().contains(QLatin1String("Waiting for the device")));
            QVERIFY(bench.status().contains(QLatin1String("Waiting for the device: AT+INFO")));
            QVERIFY(bench.dialog->get_prod_info().isEmpty());
            QVERIFY(bench.dialog->detectedDevice().valid);
        });
        bench.press("BTN_identify");
        QVERIFY(looked);
        QVERIFY(bench.button("BTN_identify")->isEnabled());
        QCOMPARE(bench.status(), QString());
        QTRY_COMPARE(peer.count("AT+EOUT=1"), 1);
        QCOMPARE(peer.count("AT+INFO"), 1);
    }

    void tellsTheCloseWhenTheCommandHasEnded()
    {
        Peer peer;
        Bench bench(peer.path());
        bench.dialog->get_prod_info();
        bench.show();
        QSignalSpy closed(bench.dialog.get(), &form_settings::settingsClosed);
        QStringList linesAtClose;
        connect(bench.dialog.get(), &form_settings::settingsClosed, this,
                [&] { linesAtClose = bench.dialog->get_prod_info(); });
        bench.child<QTabWidget>("TAB_pages")->setCurrentIndex(1);
        duringTheWait(bench.broker.get(), bench.dialog.get(), [&] {
            bench.dialog->close();
            QCOMPARE(closed.size(), 0);
        });
        peer.received.clear();
        bench.press("BTN_stopOutput");
        QCOMPARE(closed.size(), 1);
        QVERIFY(!linesAtClose.isEmpty()); // the link was free for the window that waited for this
        QTRY_VERIFY(peer.received.startsWith("AT+EOUT=0\r\nAT+EOUT=1\r\n"));
    }

    void throwsAwayWhatADeadConnectionAnswered_data()
    {
        QTest::addColumn<bool>("reopened");
        QTest::newRow("closed") << false;
        QTest::newRow("closed and opened again") << true;
    }
    void throwsAwayWhatADeadConnectionAnswered()
    {
        QFETCH(bool, reopened);
        Peer peer;
        Peer other;
        Bench bench(peer.path());
        bench.show();
        duringTheWait(bench.broker.get(), bench.dialog.get(), [&] {
            bench.close();
            bench.dialog->clear_device();
            if (reopened)
                bench.open(other.path());
        });
        QVERIFY(bench.dialog->get_prod_info().isEmpty());
        QVERIFY(!bench.dialog->detectedDevice().valid);
        QCOMPARE(bench.button("BTN_identify")->isEnabled(), reopened);
        // The commands that were left over have quieted the new device: it must not stay so.
        QTRY_COMPARE(other.received.endsWith("AT+EOUT=1\r\n"), reopened);
        QCOMPARE(bench.dialog->get_prod_info().isEmpty(), !reopened);
    }

    void writesNoSettingsToTheNextDevice()
    {
        Peer peer;
        peer.infoReply = "KV080 V1\r\n";
        Peer other;
        Bench bench(peer.path());
        bench.dialog->get_prod_info();
        bench.show();
        duringTheWait(bench.broker.get(), bench.dialog.get(), [&] {
            bench.close();
            bench.open(other.path());
        });
        bench.press("BTN_save");
        QVERIFY(!bench.dialog->get_prod_info().isEmpty());
        QVERIFY2(!other.received.contains("SAVECONFIG") && !other.received.contains("RST"), other.received);
    }

    void survivesDestructionInsideAWait_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<bool>("dialogDies"); // else the broker
        for (const char *button : {"BTN_identify", "BTN_save", "BTN_stopOutput", "BTN_resumeOutput"}) {
            QTest::addRow("%s, dialog", button) << QString::fromLatin1(button) << true;
            QTest::addRow("%s, broker", button) << QString::fromLatin1(button) << false;
        }
    }
    void survivesDestructionInsideAWait()
    {
        QFETCH(QString, button);
        QFETCH(bool, dialogDies);
        Peer peer;
        peer.infoReply = "KV080 V1\r\n";
        Bench bench(peer.path());
        bench.dialog->get_prod_info();
        QObject context;
        duringTheWait(bench.broker.get(), &context, [&] {
            if (dialogDies)
                bench.dialog.reset();
            else
                bench.broker.reset();
        });
        bench.button(qPrintable(button))->click();
        QCOMPARE(bench.dialog == nullptr, dialogDies);
        if (!dialogDies) {
            QVERIFY(bench.dialog->get_prod_info().isEmpty());
            bench.button("BTN_save")->click();
        }
    }

    void showsHostileTextAsText()
    {
        Peer peer;
        peer.infoReply = "<b>MZ221</b> <img src='x'>\r\n" + QByteArray(100000, 'x') + "\r\n";
        Bench bench(peer.path());
        const QSize before = bench.dialog->sizeHint();
        bench.dialog->get_prod_info();
        QCOMPARE(bench.child<QLabel>("LBL_model")->text(), QStringLiteral("<b>MZ221</b> <img src='x'>"));
        QCOMPARE(bench.child<QLabel>("LBL_model")->textFormat(), Qt::PlainText);
        QVERIFY(!bench.child<QLabel>("LBL_model")->toolTip().contains(QLatin1String("<img")));
        QCOMPARE(bench.dialog->sizeHint().width(), before.width());
        for (int i = 0; i < 300; ++i)
            bench.child<QPlainTextEdit>("PTE_log")->appendPlainText(QStringLiteral("a\nb\nc"));
        QVERIFY(bench.child<QPlainTextEdit>("PTE_log")->blockCount() <= 500);
    }

    void saysWhenNothingIsConnected()
    {
        form_settings dialog;
        CommandBroker broker;
        dialog.set_broker(&broker);
        QSignalSpy sent(&broker, &CommandBroker::serialSend);
        QVERIFY(dialog.get_prod_info().isEmpty());
        for (QPushButton *button : dialog.findChildren<QPushButton *>()) {
            button->click();
            const bool sends =
                button->objectName() != QLatin1String("BTN_copy") && button->objectName() != QLatin1String("BTN_close");
            QCOMPARE(button->isEnabled(), !sends);
            QVERIFY(!sends || button->toolTip().contains(QLatin1String("Nothing is connected")));
        }
        QVERIFY(sent.isEmpty());
    }

    void fitsASmallScreen_data()
    {
        QTest::addColumn<int>("points");
        for (const int points : {9, 11, 14})
            QTest::addRow("%d pt", points) << points;
    }
    void fitsASmallScreen()
    {
        QFETCH(int, points);
        const QFont before = QApplication::font();
        const auto restore = qScopeGuard([&before] {
            QApplication::setFont(before);
            qApp->setStyleSheet({});
        });
        qApp->setStyleSheet(theme::styleSheet());
        QApplication::setFont(QFont(QStringLiteral("Noto Sans"), points));
        Peer peer;
        peer.infoReply = "KV110 V1\r\n"; // the family with the most buttons
        Bench bench(peer.path());
        bench.dialog->get_prod_info();
        form_com_select ports(nullptr, [] { return QList<port_choice::PortEntry>(); });
        form_about about;
        for (QDialog *dialog : {static_cast<QDialog *>(bench.dialog.get()), static_cast<QDialog *>(&ports),
                                static_cast<QDialog *>(&about)}) {
            dialog->show();
            QVERIFY(QTest::qWaitForWindowExposed(dialog));
            QVERIFY2(dialog->width() <= 1366 && dialog->height() <= 768 - 64, qPrintable(dialog->objectName()));
            // Nothing that is read is cut off; device texts, which may be of any length, are.
            for (const QWidget *widget : dialog->findChildren<QWidget *>()) {
                const bool isText = qobject_cast<const QPushButton *>(widget) != nullptr
                                    || (qobject_cast<const QLabel *>(widget) != nullptr
                                        && widget->sizePolicy().horizontalPolicy() != QSizePolicy::Ignored);
                if (!isText || !widget->isVisible())
                    continue;
                const int needed = widget->hasHeightForWidth() ? widget->heightForWidth(widget->width())
                                                               : widget->minimumSizeHint().height();
                QVERIFY2(widget->width() >= widget->minimumSizeHint().width() && widget->height() >= needed,
                         qPrintable(widget->objectName()));
            }
        }
    }
};

QTEST_MAIN(TestFormSettings)
#include "tst_form_settings.moc"
