#include <QClipboard>
#include <QSettings>
#include <QTableWidget>
#include <QTest>

#include "app/app_language_manager.h"
#include "app/settings_keys.h"
#include "e2e/desk.h"
#include "session/link_monitor.h"
#include "support/simulator_process.h"
#include "ui/form_link_health.h"

namespace {

/// What the link health window shows, as a user sees it.
struct Panel
{
    explicit Panel(const Desk &desk) : window(desk.window->findChild<form_link_health *>()) {}

    QString figure(const char *name) const { return window->findChild<QLabel *>(QLatin1String(name))->text(); }
    qint64 count(const char *name) const { return figure(name).toLongLong(); }
    bool isWarning(const char *name) const
    {
        return window->findChild<QLabel *>(QLatin1String(name))->property("role") == QLatin1String("warning");
    }
    QTableWidget *table() const { return window->findChild<QTableWidget *>(); }
    bool isEmpty() const { return !window->findChild<QWidget *>(QStringLiteral("page_figures"))->isVisible(); }

    form_link_health *window;
};

QStringList words(const char *options)
{
    return QString::fromLatin1(options).split(u' ');
}

/// Lines of the log about link health.
QList<QByteArray> loggedHealth(const Desk &desk)
{
    QList<QByteArray> lines;
    for (const QByteArray &line : desk.log().split('\n')) {
        if (line.contains("link health "))
            lines += line.mid(line.indexOf("link health "));
    }
    return lines;
}

} // namespace

class TestLinkHealthWindow : public QObject
{
    Q_OBJECT

private slots:
    /// Opened from the traffic label by mouse and keyboard; calm as long as all is well.
    void goodLine()
    {
        SimulatorProcess simulator(words("--rate 100"));
        Desk desk;
        auto *label = desk.find<QLabel>("label_traffic");
        QVERIFY(!desk.window->findChild<form_link_health *>()); // created when first requested
        desk.find<QAction>("action_link_health")->trigger();
        const Panel panel(desk);
        QVERIFY(panel.window->isVisible() && panel.isEmpty());
        QVERIFY(!panel.window->findChild<QPushButton *>(QStringLiteral("BTN_copy"))->isEnabled());
        panel.window->close();

        desk.open(simulator.port());
        QTRY_VERIFY(!label->text().isEmpty());
        QTest::mouseClick(label, Qt::LeftButton);
        QTRY_VERIFY(panel.window->isVisible());
        panel.window->close();
        QVERIFY(label->focusPolicy() & Qt::TabFocus);
        QTest::keyClick(label, Qt::Key_Space);
        QTRY_VERIFY(panel.window->isVisible() && !panel.isEmpty());

        QTRY_VERIFY(panel.count("LBL_data") > 100);
        QTRY_VERIFY(panel.count("LBL_samples") > 100);
        // The replies to the identification commands are text, not damage.
        QVERIFY(panel.count("LBL_discarded") + panel.count("LBL_leading") > 0);
        auto *line = panel.window->findChild<QWidget *>(QStringLiteral("CARD_line"));
        for (QLabel *figure : line->findChildren<QLabel *>())
            QVERIFY2(figure->property("role") != QLatin1String("warning"), qPrintable(figure->objectName()));
        QVERIFY(!panel.table()->isVisible());

        QTest::mouseClick(panel.window->findChild<QPushButton *>(QStringLiteral("BTN_copy")), Qt::LeftButton);
        QVERIFY(QGuiApplication::clipboard()->text().contains(QStringLiteral("Checksum errors\t0\n")));
    }

    /// Damage is shown and logged, stays after the port is closed and is gone with the next connection.
    void damagedLine()
    {
        SimulatorProcess simulator(words("--rate 200 --noise 2"));
        Desk desk;
        desk.open(simulator.port());
        desk.find<QAction>("action_link_health")->trigger();
        const Panel panel(desk);
        QTRY_VERIFY_WITH_TIMEOUT(panel.count("LBL_crc") > 5 && panel.count("LBL_missing") > 5, 20000);
        for (const char *name : {"LBL_crc", "LBL_missing", "LBL_share", "LBL_lastError", "LBL_lastErrorTime"})
            QVERIFY2(panel.isWarning(name), name);

        QVERIFY(loggedHealth(desk).isEmpty());
        auto *timer = desk.window->session().linkMonitor().findChild<QTimer *>(QStringLiteral("timer_link_log"));
        QCOMPARE(timer->interval(), 60000);
        timer->setInterval(10); // shortens the log's minute; the port still reports once a second
        QTRY_VERIFY(!loggedHealth(desk).isEmpty());
        timer->setInterval(60000);
        simulator.control("silent on");
        QTRY_VERIFY(panel.figure("LBL_data") != QLatin1String("0"));
        desk.find<QAction>("action_serial_stop")->trigger();
        const QByteArray last = loggedHealth(desk).last();
        QVERIFY2(last.contains(" crc_errors=") && !last.contains(" crc_errors=0 "), last.constData());
        QVERIFY2(last.contains(" last_error_time=2"), last.constData());
        QTRY_VERIFY(panel.figure("LBL_state").startsWith(QStringLiteral("Closed: ")));
        QVERIFY(panel.count("LBL_crc") > 5);

        simulator.control("noise 0");
        simulator.control("silent off");
        desk.open(simulator.port());
        QTRY_VERIFY(panel.figure("LBL_state").startsWith(QStringLiteral("Connected: ")));
        QTRY_VERIFY(panel.count("LBL_samples") > 50);
        QCOMPARE(panel.figure("LBL_crc"), QStringLiteral("0"));
        QVERIFY(!panel.isWarning("LBL_crc"));
    }

    /// One row per node; the texts follow the language and the place is remembered.
    void gateway()
    {
        SimulatorProcess simulator(words("--device gateway --nodes 3 --rate 100"));
        Desk desk;
        QSettings(settings_keys::kFile, QSettings::IniFormat).setValue(settings_keys::kLanguage, QStringLiteral("EN"));
        QVERIFY(AppLanguageManager::instance().initialize());
        desk.restart();
        desk.open(simulator.port());
        desk.find<QAction>("action_link_health")->trigger();
        const Panel panel(desk);
        const auto cell = [&panel](int row, int column) { return panel.table()->item(row, column)->text(); };
        QTRY_COMPARE(panel.table()->rowCount(), 3);
        QTRY_VERIFY(cell(2, 1).toInt() > 100);
        simulator.control("nodes 2");
        const QString before = cell(0, 1);
        QTRY_VERIFY(cell(0, 1).toInt() > before.toInt() + 100);
        simulator.control("nodes 3");
        // Silent for a while: its clock shows it. A simulator on a busy machine leaves out samples of all nodes.
        QTRY_VERIFY(cell(2, 2).toInt() > cell(0, 2).toInt() + 50);
        QCOMPARE(panel.count("LBL_missing"), cell(0, 2).toInt() + cell(1, 2).toInt() + cell(2, 2).toInt());

        QVERIFY(AppLanguageManager::instance().setLanguage(QStringLiteral("JA")));
        QTRY_COMPARE(panel.window->windowTitle(), QStringLiteral("通信品質"));
        QCOMPARE(panel.table()->horizontalHeaderItem(2)->text(), QStringLiteral("欠落"));
        QVERIFY(AppLanguageManager::instance().setLanguage(QStringLiteral("EN")));

        panel.window->resize(900, 640);
        panel.window->close();
        desk.restart();
        desk.find<QAction>("action_link_health")->trigger();
        QCOMPARE(desk.window->findChild<form_link_health *>()->size(), QSize(900, 640));
    }
};

QTEST_MAIN(TestLinkHealthWindow)
#include "tst_link_health_window.moc"
