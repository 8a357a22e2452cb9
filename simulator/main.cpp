#include <QCoreApplication>
#include <QSocketNotifier>

#include <csignal>
#include <cstdio>

#include <sys/signalfd.h>
#include <unistd.h>

#include "simulator/control_console.h"
#include "simulator/options.h"
#include "simulator/simulator.h"

namespace {

constexpr int kExitPort = 1;
constexpr int kExitUsage = 2;

/// Termination requests arrive as bytes, not in a signal handler, which may do next to nothing.
/// @return a descriptor that is readable when one has arrived, -1 when none is available
int watchRequestsToEnd()
{
    std::signal(SIGPIPE, SIG_IGN);
    sigset_t requests;
    ::sigemptyset(&requests);
    ::sigaddset(&requests, SIGINT);
    ::sigaddset(&requests, SIGTERM);
    if (::pthread_sigmask(SIG_BLOCK, &requests, nullptr) != 0)
        return -1;
    return ::signalfd(-1, &requests, SFD_NONBLOCK | SFD_CLOEXEC);
}

void printLine(const QString &line)
{
    std::fprintf(stdout, "%s\n", qPrintable(line));
    std::fflush(stdout);
}

int fail(const QString &reason, int exitCode)
{
    std::fprintf(stderr, "kv_simulator: %s\n", qPrintable(reason));
    return exitCode;
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("kv_simulator"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KV_VERSION));

    QString error;
    const std::optional<kvsim::Options> options = kvsim::parseOptions(QCoreApplication::arguments(), &error);
    if (!options)
        return fail(error + QStringLiteral("; see kv_simulator --help"), kExitUsage);
    const int requestsToEnd = watchRequestsToEnd();
    if (requestsToEnd < 0)
        return fail(QStringLiteral("cannot watch for signals"), kExitPort);

    std::optional<kvsim::CsvRecording> recording;
    if (!options->replayPath.isEmpty()) {
        recording = kvsim::CsvRecording::load(options->replayPath, options->device->convention(), &error);
        if (!recording)
            return fail(error, kExitUsage);
        if (recording->skippedRows() > 0 || recording->truncated())
            fail(QStringLiteral("%1 rows could not be read%2")
                     .arg(recording->skippedRows())
                     .arg(recording->truncated() ? QStringLiteral(", the end was left out") : QString()),
                 0);
    }

    kvsim::Simulator simulator(*options, std::move(recording));
    kvsim::ControlConsole console(simulator);
    for (const QString &line : options->startControls) {
        const QStringList answer = console.execute(line);
        if (answer.constLast() != u"ok")
            return fail(QStringLiteral("%1: %2").arg(line, answer.constLast()), kExitUsage);
    }
    QObject::connect(&simulator, &kvsim::Simulator::portOpened,
                     [](const QString &path) { printLine(QStringLiteral("port: ") + path); });
    QObject::connect(&console, &kvsim::ControlConsole::answered, printLine);
    // Queued, so that a "quit" among the first lines meets a running event loop, and its answer comes first.
    QObject::connect(&console, &kvsim::ControlConsole::quitRequested, &application, &QCoreApplication::quit,
                     Qt::QueuedConnection);
    const QSocketNotifier endNotifier(requestsToEnd, QSocketNotifier::Read);
    QObject::connect(&endNotifier, &QSocketNotifier::activated, &application, &QCoreApplication::quit);

    if (!simulator.start(&error))
        return fail(error, kExitPort);
    if (options->control)
        console.listen(STDIN_FILENO);
    return QCoreApplication::exec();
}
