#include <QAction>

#include "e2e/views.h"

namespace {

constexpr double kMostMib = 60; ///< what libraries, types and glyphs may keep

/// Resident anonymous memory of this process, MiB.
double anonymousMib()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("RssAnon:"))
            return line.mid(8).replace("kB", "").trimmed().toDouble() / 1024;
    }
    return 0;
}

} // namespace

/// Closed windows release the memory they drew with.
class TestWindowMemory : public QObject
{
    Q_OBJECT

private slots:
    void closedWindowsHoldNoGraphics()
    {
        SimulatorProcess simulator(words("--rate 400"));
        Desk desk;
        QVERIFY(connectTo(desk, simulator));
        const double before = anonymousMib();
        for (const char *name :
             {"action_sensor_dashboard", "action_wireless_gateway_dashboard", "actionFFT_Chart", "action3D_view"}) {
            auto *action = desk.find<QAction>(name);
            action->setEnabled(true);
            action->trigger();
            QWindow *window = nullptr;
            QTRY_VERIFY((window = windowBeside(*desk.window)) != nullptr);
            QTest::qWait(1000); // it draws
            QVERIFY(window->close());
        }
        QTRY_VERIFY2(anonymousMib() < before + kMostMib,
                     qPrintable(QStringLiteral("%1 MiB, %2 before").arg(anonymousMib()).arg(before)));
    }
};

QTEST_MAIN(TestWindowMemory)
#include "tst_window_memory.moc"
