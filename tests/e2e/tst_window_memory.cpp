#include <QAction>

#include "e2e/views.h"
#include "wave/form_sensor_dashboard.h"

namespace {

/// Anonymous memory of this process that is resident, MiB.
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

/// What windows have drawn with is given back when they are closed.
class TestWindowMemory : public QObject
{
    Q_OBJECT

private slots:
    void closedWindowsHoldNoGraphics()
    {
        SimulatorProcess simulator(words("--rate 400"));
        Desk desk;
        QVERIFY(connectTo(desk, simulator));
        QTest::qWait(2000);
        qInfo("before %.0f", anonymousMib());
        const int rounds = qEnvironmentVariableIntValue("KV_ROUNDS") + 1;
        const QByteArray only = qgetenv("KV_ONLY");
        for (int round = 0; round < rounds; ++round) {
            for (const char *action : {"action_sensor_dashboard", "action_wireless_gateway_dashboard",
                                       "actionFFT_Chart", "action3D_view"}) {
                if (!only.isEmpty() && only != action)
                    continue;
                auto *a = desk.find<QAction>(action);
                a->setEnabled(true);
                a->trigger();
                QTest::qWait(1500);
                const double open = anonymousMib();
                for (QWindow *window : QGuiApplication::topLevelWindows()) {
                    if (window->isVisible() && window != desk.window->windowHandle())
                        window->close();
                }
                QTest::qWait(1000);
                qInfo("%s open %.0f closed %.0f", action, open, anonymousMib());
                QFile f(QStringLiteral("/proc/self/status"));
                f.open(QIODevice::ReadOnly);
                for (const QByteArray &l : f.readAll().split('\n'))
                    if (l.startsWith("Rss") || l.startsWith("VmRSS") || l.startsWith("Threads"))
                        fprintf(stderr, "%s  ", l.simplified().constData());
                fprintf(stderr, "\n");
            }
        }
    }
};

QTEST_MAIN(TestWindowMemory)
#include "tst_window_memory.moc"
