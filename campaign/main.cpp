// kv_campaign [--minutes M | --quick | --table] [--seed N] [--stall-limit MS]: the program itself, src/main.cpp with
// everything it starts, plus a simulated user and devices that do everything wrong. Ends with a report, and with 1 when
// a goal was not met. See docs/fault-campaign.md.

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>

#include <cstdio>
#include <cstdlib>

#include "campaign/campaign.h"

/// The main() of src/main.cpp, compiled under this name here.
int kvcenterMain(int argc, char **argv);

namespace {

constexpr int kEndMs = 30000;

Campaign::Options campaignOptions;
std::unique_ptr<Campaign> campaign;
std::unique_ptr<QThread> worker;
QSemaphore programEnded;

void work()
{
    campaign->run();
    if (!programEnded.tryAcquire(1, kEndMs)) {
        std::fputs("The program does not end.\n", stderr);
        std::_Exit(EXIT_FAILURE);
    }
}

/// Runs first in the program's event loop.
void begin()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *window = qobject_cast<form_base *>(widget)) {
            campaign = std::make_unique<Campaign>(*window, campaignOptions);
            worker.reset(QThread::create(work));
            worker->start();
        }
    }
}

void waitForEventLoop()
{
    QTimer::singleShot(0, qApp, begin);
}
Q_COREAPP_STARTUP_FUNCTION(waitForEventLoop)

} // namespace

int main(int argc, char **argv)
{
    QTextStream out(stdout);
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments += QString::fromLocal8Bit(argv[i]);
    QCommandLineParser parser;
    const QCommandLineOption minutes(QStringLiteral("minutes"), {}, QStringLiteral("M"), QStringLiteral("30"));
    const QCommandLineOption quick(QStringLiteral("quick"));
    const QCommandLineOption table(QStringLiteral("table"));
    const QCommandLineOption seed(QStringLiteral("seed"), {}, QStringLiteral("N"), QStringLiteral("1"));
    const QCommandLineOption stallLimit(QStringLiteral("stall-limit"), {}, QStringLiteral("MS"), QStringLiteral("200"));
    parser.addOptions({minutes, quick, table, seed, stallLimit});
    if (!parser.parse(arguments)) {
        out << parser.errorText() << '\n';
        return EXIT_FAILURE;
    }
    campaignOptions = {parser.value(minutes).toDouble(), parser.value(seed).toUInt(), parser.isSet(table),
                       parser.isSet(quick)};

    QTemporaryDir folder;
    QDir::setCurrent(folder.path());
    QFile settings(QStringLiteral("param.ini"));
    if (!settings.open(QIODevice::WriteOnly)
        || settings.write("[Main]\nLANGUAGE=EN\n") < 0) { // otherwise the program first asks
        out << "nothing can be written into " << folder.path() << '\n';
        return EXIT_FAILURE;
    }
    settings.close();
    QFile::link(QStringLiteral(KV_MODELS_PATH), QStringLiteral("objModel")); // where the program looks for them
    out << "seed " << campaignOptions.seed << ", working in " << folder.path() << '\n' << Qt::flush;

    const int exitCode = kvcenterMain(1, argv);
    programEnded.release();
    if (!worker) {
        out << "the program did not start\n";
        return EXIT_FAILURE;
    }
    worker->wait();
    CampaignReport &report = campaign->report();
    if (exitCode != EXIT_SUCCESS)
        report.failures.append(QStringLiteral("the program ended with %1").arg(exitCode));
    report.judge(parser.value(stallLimit).toInt(), QStringLiteral("qt6_debug.log"));
    report.print(out);
    folder.setAutoRemove(report.failures.isEmpty()); // otherwise its logs may show more
    QDir::setCurrent(QDir::rootPath());
    return report.failures.isEmpty() ? EXIT_SUCCESS : EXIT_FAILURE;
}
