#include <QCoreApplication>
#include <QSocketNotifier>

#include <cerrno>
#include <csignal>
#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

#include "simulator/control_console.h"
#include "simulator/options.h"
#include "simulator/simulator.h"

namespace {

constexpr int kExitPort = 1;
constexpr int kExitUsage = 2;

// A signal handler may do little more than write to a pipe; the event loop reads the other end.
int signalPipe[2] = {-1, -1};

void onSignal(int)
{
    const int savedErrno = errno;
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = ::write(signalPipe[1], &byte, 1);
    errno = savedErrno;
}

bool watchSignals()
{
    if (::pipe(signalPipe) != 0)
        return false;
    for (const int end : signalPipe) {
        ::fcntl(end, F_SETFD, FD_CLOEXEC);
        ::fcntl(end, F_SETFL, O_NONBLOCK);
    }
    struct sigaction action
    {};
    action.sa_handler = onSignal;
    ::sigaction(SIGINT, &action, nullptr);
    ::sigaction(SIGTERM, &action, nullptr);
    action.sa_handler = SIG_IGN;
    ::sigaction(SIGPIPE, &action, nullptr);
    return true;
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
    if (!watchSignals())
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
    // Queued, so that a "quit" among the first lines finds a running event loop, and its answer comes first.
    QObject::connect(&console, &kvsim::ControlConsole::quitRequested, &application, &QCoreApplication::quit,
                     Qt::QueuedConnection);
    const QSocketNotifier signalNotifier(signalPipe[0], QSocketNotifier::Read);
    QObject::connect(&signalNotifier, &QSocketNotifier::activated, &application, &QCoreApplication::quit);

    if (!simulator.start(&error))
        return fail(error, kExitPort);
    if (options->control)
        console.listen(STDIN_FILENO);
    return QCoreApplication::exec();
}
