#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QtTest>

#include <utility>

#include "app/theme.h"
#include "device/command_broker.h"
#include "device/command_session.h"
#include "session/device_session.h"
#include "support/frames.h"
#include "support/pty_pair.h"
#include "ui/form_about.h"
#include "ui/form_com_select.h"
#include "ui/form_settings.h"

namespace {

constexpr int kBaud = 921600;

/// A device on a pseudo-terminal that answers from a table and logs what it receives.
class Peer : public QObject
{
public:
    Peer()
    {
        m_timer.callOnTimeout(this, [this] { poll(); });
        m_timer.start(1);
    }
    QString path() const { return m_pty.path(); }

    QByteArray infoReply = "MZ221 V1.6\r\nOK\r\n";
    QByteArray settings; ///< lines of the information
    QByteArray otherReply = "OK\r\n";
    QByteArray received;
    int lostResumes = 0; ///< number of the next resume commands that get lost on the line

private:
    void poll()
    {
        m_line += m_pty.read();
        for (qsizetype end = 0; (end = m_line.indexOf('\n')) >= 0; m_line.remove(0, end + 1)) {
            const QByteArray line = m_line.left(end + 1);
            if (line == "AT+EOUT=1\r\n" && lostResumes > 0 && lostResumes-- > 0)
                continue;
            received += line;
            m_pty.write(line == "AT+INFO\r\n" ? infoReply : otherReply, 0);
        }
    }

    PtyPair m_pty;
    QTimer m_timer;
    QByteArray m_line;
};

/// The dialog on the screen with a device on an open port, identified.
struct Bench
{
    Peer peer;
    std::unique_ptr<DeviceSession> session = std::make_unique<DeviceSession>();
    std::unique_ptr<form_settings> dialog = std::make_unique<form_settings>(session.get());

    explicit Bench(const QByteArray &model = "MZ221 V1.6", const QByteArray &settings = {}, int baud = kBaud)
    {
        peer.infoReply = model + "\r\nUUID: 1\r\n" + settings;
        peer.settings = settings;
        QVERIFY(session->open(peer.path(), baud));
        dialog->show();
        QVERIFY(QTest::qWaitForWindowExposed(dialog.get()));
        QApplication::setActiveWindow(dialog.get()); // there may be no window manager to do it
        QTRY_VERIFY(session->device().valid);
        waitForTheEnd();
    }
    void identify(const QByteArray &model)
    {
        peer.infoReply = model + "\r\nUUID: 1\r\n" + peer.settings;
        QVERIFY(!dialog->get_prod_info().isEmpty());
        waitForTheEnd();
    }
    /// A reading ends with the output resumed.
    void waitForTheEnd()
    {
        QTRY_VERIFY(peer.received.endsWith("AT+EOUT=1\r\n") && !session->commands().isBusy());
        peer.received.clear();
    }
    bool isIdentified() const { return session->device().valid; }
    template <typename T> T *child(const char *name) const { return dialog->findChild<T *>(QLatin1String(name)); }
    QPushButton *button(const char *name) const { return child<QPushButton>(name); }
    void type(const char *field, const char *text)
    {
        child<QWidget>(field)->setFocus();
        QTest::keyClicks(child<QWidget>(field), QLatin1String(text));
    }
    /// Presses a button with the keyboard. Returns when its command has ended.
    void press(const char *name)
    {
        QTRY_VERIFY(button(name)->isEnabled()); // not while the output is resumed once more
        button(name)->setFocus();
        QTest::keyClick(button(name), Qt::Key_Space);
    }
    QString status() const { return child<QLabel>("LBL_status")->text(); }
    /// Runs `action` once, during the next command's wait.
    template <typename Action> void duringTheWait(Action action)
    {
        const auto once = Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection);
        QObject::connect(
            session->findChild<CommandBroker *>(), &CommandBroker::serialSend, &peer, [action] { action(); }, once);
    }
};

/// The first label or button with less room than it needs. Device texts, which may be of any length, are left out.
QString firstCutOff(const QDialog *dialog)
{
    for (const QWidget *widget : dialog->findChildren<QWidget *>()) {
        const bool isText = qobject_cast<const QPushButton *>(widget) != nullptr
                            || (qobject_cast<const QLabel *>(widget) != nullptr
                                && widget->sizePolicy().horizontalPolicy() != QSizePolicy::Ignored);
        const QSize least = widget->minimumSizeHint();
        const int height = widget->hasHeightForWidth() ? widget->heightForWidth(widget->width()) : least.height();
        if (isText && widget->isVisible() && (widget->width() < least.width() || widget->height() < height))
            return widget->objectName();
    }
    return {};
}

} // namespace

class TestFormSettings : public QObject
{
    Q_OBJECT

private slots:
    void showsWhatEachFamilyHas()
    {
        Bench bench;
        const auto *pages = bench.child<QTabWidget>("TAB_pages");
        const std::tuple<const char *, int, bool, int> rows[] = {
            {"MZ221 V1", 7, true, 4}, {"KV104 V1", 7, false, 9}, {"MZ221GW V2", 0, false, 4}};
        for (const auto &[model, rates, hasId, hotkeys] : rows) { // no rates: no first tab
            bench.peer.infoReply = QByteArray(model) + "\r\n";
            bench.press("BTN_identify");
            QCOMPARE(bench.child<QLabel>("LBL_model")->text(), QLatin1String(model));
            QVERIFY(bench.child<QPlainTextEdit>("PTE_log")->toPlainText().contains(QLatin1String("> AT+INFO\n< ")
                                                                                   + QLatin1String(model)));
            QVERIFY2(pages->isTabVisible(0) == (rates > 0) && pages->currentIndex() == (rates > 0 ? 0 : 1), model);
            QVERIFY2(bench.child<QWidget>("SB_id")->isHidden() != hasId, model);
            QCOMPARE(bench.child<QComboBox>("CB_rate")->count(), rates);
            const auto buttons = bench.child<QWidget>("PAGE_commands")->findChildren<QPushButton *>();
            QCOMPARE(std::count_if(buttons.begin(), buttons.end(), [](auto *b) { return !b->isHidden(); }), hotkeys);
        }
    }

    void savesWhatWasChosen()
    {
        const QByteArray read =
            "AT+RST\r\nAT+EOUT=0\r\nAT+EOUT=0\r\nAT+EOUT=0\r\nAT+EOUT=0\r\nAT+INFO\r\nAT+EOUT=1\r\n";
        for (const bool isAt : {true, false}) {
            Bench bench(isAt ? "MZ226 V1" : "KV080 V1");
            // Nothing is known about the device's settings, so nothing may be written that was not chosen.
            QCOMPARE(bench.button("BTN_save")->isEnabled(), !isAt);
            if (isAt) {
                bench.child<QSpinBox>("SB_id")->selectAll();
                bench.type("SB_id", "17");
                QVERIFY(!bench.button("BTN_save")->isEnabled());
                QVERIFY(bench.button("BTN_save")->toolTip().contains(QLatin1String("output rate")));
                bench.type("CB_rate", "100");
            }
            bench.type("CB_mode", "1");
            bench.press("BTN_save");
            QTRY_COMPARE(bench.peer.received,
                         (isAt ? "AT+ID=17\r\nAT+ODR=100\r\nAT+MODE=1\r\n" : "CONFIG ATT MODE 1\r\nSAVECONFIG\r\n")
                             + read);
            QCOMPARE(bench.status(), QLatin1String("The settings were sent and the device has restarted."));

            // Kept for this product as long as the program runs.
            bench.identify("MZ221GW V2");
            bench.identify(isAt ? "MZ226 V1" : "KV080 V1");
            QVERIFY(bench.button("BTN_save")->isEnabled());
            QCOMPARE(bench.child<QComboBox>("CB_mode")->currentIndex(), 1);
            QVERIFY(!isAt || bench.child<QSpinBox>("SB_id")->value() == 17);
            QVERIFY(!isAt || bench.child<QComboBox>("CB_rate")->currentText() == QLatin1String("100"));
            bench.peer.otherReply = "ERROR\r\n";
            bench.press("BTN_save");
            QVERIFY(bench.status().contains(QLatin1String(isAt ? "refused AT+ID=17, AT+ODR" : "refused CONFIG ATT")));
        }
    }

    void startsWithWhatTheDeviceAnswers()
    {
        Bench bench("MZ221 V1.6", "ID: 7\r\nODR: 100\r\nMODE: 1\r\n");
        const auto shown = [&bench] {
            return QStringList{bench.child<QSpinBox>("SB_id")->text(), bench.child<QComboBox>("CB_rate")->currentText(),
                               QString::number(bench.child<QComboBox>("CB_mode")->currentIndex())};
        };
        const auto lines = [](const char *text) { return QString::fromLatin1(text).split(u' '); };
        QCOMPARE(shown(), lines("7 100 1"));
        QVERIFY(bench.button("BTN_save")->isEnabled());

        // Typed values stay while nobody answers, and when the same device answers again.
        bench.child<QSpinBox>("SB_id")->setValue(17);
        const QByteArray infoReply = std::exchange(bench.peer.infoReply, QByteArray());
        bench.press("BTN_identify");
        QCOMPARE(bench.status(),
                 QLatin1String("The device does not answer. Check the baud rate, then identify it again."));
        QCOMPARE(shown(), lines("17 100 1"));
        QVERIFY(bench.child<QWidget>("SB_id")->isVisible() && !bench.button("BTN_save")->isEnabled());
        // The baud rate cannot be wrong when data arrive.
        bench.session->takePayload(frames::fullRecord(1));
        bench.press("BTN_identify");
        QCOMPARE(bench.status(),
                 QLatin1String("The device does not answer, although its data arrive. Identify it again."));
        bench.peer.infoReply = infoReply;
        bench.press("BTN_identify");
        QCOMPARE(shown(), lines("17 100 1"));

        // A different answer comes from another device, or reports what was saved.
        bench.peer.infoReply.replace("ID: 7", "ID: 17").replace("ODR: 100", "ODR: 200");
        bench.press("BTN_save");
        QCOMPARE(shown(), lines("17 200 1"));
        QTRY_VERIFY(!bench.session->commands().isBusy());
        bench.session->close();
        QVERIFY(bench.child<QWidget>("SB_id")->isHidden());
    }

    void warnsOfARateThatTheLineCannotCarry_data()
    {
        QTest::addColumn<int>("baud");
        QTest::addColumn<QString>("rate");
        QTest::addColumn<QString>("load"); // empty: it can
        QTest::newRow("400 Hz") << 115200 << "400"
                                << "284 %";
        QTest::newRow("200 Hz") << 115200 << "200"
                                << "142 %";
        QTest::newRow("100 Hz") << 115200 << "100" << QString();
        QTest::newRow("faster line") << 921600 << "400" << QString();
    }
    void warnsOfARateThatTheLineCannotCarry()
    {
        QFETCH(int, baud);
        QFETCH(QString, rate);
        QFETCH(QString, load);
        Bench bench("MZ221 V1.6", "ID: 7\r\nODR: 10\r\n", baud);
        bench.child<QComboBox>("CB_rate")->setCurrentText(rate);
        const auto *hint = bench.child<QLabel>("LBL_rateHint");
        QCOMPARE(hint->text().isEmpty(), load.isEmpty());
        QVERIFY2(hint->text().contains(load), qPrintable(hint->text()));
        if (load.isEmpty())
            return;
        bench.press("BTN_save");
        auto *question = bench.dialog->findChild<QMessageBox *>();
        QVERIFY(question != nullptr && question->text().contains(load));
        const bool isSaved = load.startsWith(u'2');
        for (QAbstractButton *button : question->buttons()) {
            if (button->text() == QLatin1String(isSaved ? "Save anyway" : "Cancel"))
                button->click();
        }
        QCOMPARE(bench.peer.received.contains("AT+ODR=" + rate.toLatin1()), isSaved);
    }

    void sendsOneClickCommands()
    {
        Bench bench("KV110 V1");
        bench.child<QTabWidget>("TAB_pages")->setCurrentIndex(1);
        const char *const rows[][2] = {{"BTN_readInfo", "AT+INFO"},
                                       {"BTN_reset", "REBOOT"},
                                       {"BTN_stopOutput", "AT+EOUT=0"},
                                       {"BTN_resumeOutput", "AT+EOUT=1"},
                                       {"BTN_saveConfig", "SAVECONFIG"},
                                       {"BTN_logComConfig", "LOG COMCONFIG"},
                                       {"BTN_logUsrConfig", "LOG USRCONFIG"},
                                       {"BTN_logDisable", "LOG DISABLE"},
                                       {"BTN_reboot", "REBOOT"}};
        for (const auto &[name, command] : rows) {
            bench.peer.received.clear();
            bench.press(name);
            QTRY_COMPARE(bench.peer.received, QByteArray(command) + "\r\n");
            QVERIFY(bench.button(name)->toolTip().contains(QLatin1String(command)));
            QVERIFY(bench.button(name)->hasFocus()); // it was disabled in between
        }
        bench.press("BTN_copy");
        QCOMPARE(QGuiApplication::clipboard()->text(), bench.child<QPlainTextEdit>("PTE_log")->toPlainText());
    }

    void refusesWhileACommandRuns()
    {
        Bench bench;
        bool looked = false;
        bench.duringTheWait([&] {
            looked = true;
            QVERIFY(!bench.button("BTN_identify")->isEnabled() && !bench.button("BTN_readInfo")->isEnabled());
            QVERIFY(bench.button("BTN_identify")->toolTip().contains(QLatin1String("Waiting for the device")));
            QVERIFY(bench.status().contains(QLatin1String("Waiting for the device: AT+INFO")));
            QVERIFY(bench.dialog->get_prod_info().isEmpty());
            QVERIFY(bench.session->commands().device().valid);
        });
        bench.press("BTN_identify");
        QVERIFY(looked);
        QVERIFY(bench.button("BTN_identify")->isEnabled());
        QCOMPARE(bench.status(), QString());
        QTRY_VERIFY(bench.peer.received.endsWith("AT+EOUT=1\r\n"));
        QCOMPARE(bench.peer.received.count("AT+INFO"), 1);
        bench.peer.infoReply = QByteArray(500, '\xF8');
        bench.press("BTN_identify");
        QVERIFY(bench.status().contains(QLatin1String("baud rate may be wrong")));
        QVERIFY(!bench.session->commands().device().valid);
    }

    void resumesAgainWhenTheCommandGotLost()
    {
        Bench bench;
        bench.peer.lostResumes = 1;
        QVERIFY(!bench.dialog->get_prod_info().isEmpty());
        QTRY_COMPARE(bench.peer.lostResumes, 0);
        QVERIFY(!bench.peer.received.contains("AT+EOUT=1"));
        QTRY_VERIFY(bench.peer.received.endsWith("AT+INFO\r\nAT+EOUT=1\r\n"));
        QTRY_VERIFY(!bench.child<QPlainTextEdit>("PTE_log")->toPlainText().endsWith(QLatin1String("(no reply)")));
    }

    void tellsTheCloseWhenTheCommandHasEnded()
    {
        Bench bench;
        QSignalSpy closed(bench.dialog.get(), &form_settings::settingsClosed);
        QStringList linesAtClose;
        connect(bench.dialog.get(), &form_settings::settingsClosed, this,
                [&] { linesAtClose = bench.dialog->get_prod_info(); });
        bench.child<QTabWidget>("TAB_pages")->setCurrentIndex(1);
        bench.duringTheWait([&] {
            bench.dialog->close();
            QCOMPARE(closed.size(), 0);
        });
        bench.press("BTN_stopOutput");
        QCOMPARE(closed.size(), 1);
        QVERIFY(!linesAtClose.isEmpty()); // the link was free for the window that waited for this
        QTRY_VERIFY(bench.peer.received.startsWith("AT+EOUT=0\r\nAT+EOUT=1\r\n")); // not left stopped
        bench.dialog->show();
        bench.press("BTN_stopOutput");
        QTest::keyClick(bench.dialog.get(), Qt::Key_Escape);
        QCOMPARE(closed.size(), 2);
        QTRY_COMPARE(bench.peer.received.count("AT+EOUT=0\r\nAT+EOUT=1\r\n"), 2);
    }

    void throwsAwayWhatADeadConnectionAnswered()
    {
        for (const bool reopened : {false, true}) {
            Peer other;
            Bench bench;
            bench.duringTheWait([&] {
                bench.session->close();
                if (reopened)
                    bench.session->open(other.path(), kBaud);
            });
            QVERIFY(bench.dialog->get_prod_info().isEmpty());
            QVERIFY(!bench.isIdentified());
            QTRY_COMPARE(bench.button("BTN_identify")->isEnabled(), reopened);
            // The commands that were left over have quieted the new device: it must not stay so.
            QTRY_COMPARE(other.received.endsWith("AT+EOUT=1\r\n"), reopened);
            QTRY_COMPARE(bench.isIdentified(), reopened);
        }
    }

    void writesNoSettingsToTheNextDevice()
    {
        Peer other;
        Bench bench("KV080 V1");
        bench.duringTheWait([&] {
            bench.session->close();
            bench.session->open(other.path(), kBaud);
        });
        bench.press("BTN_save");
        QTRY_VERIFY(bench.isIdentified());
        QVERIFY2(!other.received.contains("SAVECONFIG") && !other.received.contains("RST"), other.received);
    }

    void survivesDestructionInsideAWait()
    {
        for (int i = 0; i < 8; ++i) {
            const bool sessionDies = i % 2 == 0; // after the dialog, as at the end of the program
            Bench bench("KV080 V1");
            bench.duringTheWait([&] {
                bench.dialog.reset();
                if (sessionDies)
                    bench.session.reset();
            });
            const char *const names[] = {"BTN_identify", "BTN_save", "BTN_stopOutput", "BTN_resumeOutput"};
            bench.button(names[i / 2])->click();
            QVERIFY2(bench.dialog == nullptr && (bench.session == nullptr) == sessionDies, names[i / 2]);
            QTRY_VERIFY2(sessionDies || !bench.session->commands().isBusy(), names[i / 2]);
        }
    }

    void showsHostileTextAsText()
    {
        const QByteArray hostile = "<b>MZ221</b> <img src='x'>" + QByteArray(200, 'x');
        Bench bench(hostile + "\r\n" + QByteArray(100000, 'x'));
        const auto *model = bench.child<QLabel>("LBL_model");
        QCOMPARE(model->text(), QLatin1String(hostile));
        QCOMPARE(model->textFormat(), Qt::PlainText);
        QVERIFY(!model->toolTip().contains(QLatin1String("<img")));
        QCoreApplication::sendPostedEvents(); // lays out
        QVERIFY(bench.dialog->sizeHint().width() < 600);
        auto *log = bench.child<QPlainTextEdit>("PTE_log");
        for (int i = 0; i < 300; ++i)
            log->appendPlainText(QStringLiteral("a\nb\nc"));
        QVERIFY(log->blockCount() <= 500);
    }

    void saysWhenNothingIsConnected()
    {
        DeviceSession session;
        form_settings dialog(&session);
        QSignalSpy sent(session.findChild<CommandBroker *>(), &CommandBroker::serialSend);
        QVERIFY(dialog.get_prod_info().isEmpty());
        const auto *copy = dialog.findChild<QPushButton *>(QStringLiteral("BTN_copy"));
        for (QPushButton *button : dialog.findChildren<QPushButton *>()) {
            button->click();
            const bool isTold = button->toolTip().contains(QLatin1String("Not connected"));
            const bool sends = button != copy && button != dialog.findChild<QPushButton *>(QStringLiteral("BTN_close"));
            QVERIFY(isTold == sends && button->isEnabled() != sends);
        }
        QVERIFY(sent.isEmpty());
    }

    void fitsASmallScreen()
    {
        const auto restore = qScopeGuard([before = QApplication::font()] {
            QApplication::setFont(before);
            qApp->setStyleSheet({});
        });
        qApp->setStyleSheet(theme::styleSheet());
        for (const int points : {9, 11, 14}) {
            QApplication::setFont(QFont(QStringLiteral("Noto Sans"), points));
            Bench bench("KV110 V1"); // the family with the most buttons
            form_com_select ports(nullptr, [] { return QList<port_choice::PortEntry>(); });
            form_about about;
            for (QDialog *dialog : std::initializer_list<QDialog *>{bench.dialog.get(), &ports, &about}) {
                dialog->show();
                QVERIFY(QTest::qWaitForWindowExposed(dialog));
                QCoreApplication::sendPostedEvents(); // the identification has changed what is shown
                QVERIFY2(dialog->width() <= 1366 && dialog->height() <= 768 - 64, qPrintable(dialog->objectName()));
                const auto cutOff = [dialog] { return firstCutOff(dialog); };
                QTRY_VERIFY2(cutOff().isEmpty(), qPrintable(QStringLiteral("%1 at %2 pt").arg(cutOff()).arg(points)));
            }
        }
    }
};

QTEST_MAIN(TestFormSettings)
#include "tst_form_settings.moc"
