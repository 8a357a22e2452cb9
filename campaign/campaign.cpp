#include "campaign/campaign.h"

#include <QDir>
#include <QMessageBox>
#include <QThread>

#include <algorithm>

#include <malloc.h>

#include "campaign/state_table.h"
#include "e2e/desk.h"
#include "process_figures.h"
#include "record/recorder.h"

namespace {

constexpr int kStartMs = 3000; // no user opens a window earlier
constexpr int kLookMs = 800;   // until closed windows are gone
constexpr int kFirstOpeningMs = 800;
constexpr int kOpenMs = 8000;
constexpr int kStreamMs = 8000;
constexpr int kDrainMs = 8000;
constexpr int kSettleMs = 1200;
constexpr quint64 kFramesInOrder = 20;

constexpr int kFaultsPerRound = 8;
constexpr int kFaultsPerQuickRound = 4;
// What may be in the system's buffers between simulator and program when a port is closed.
constexpr quint64 kPipeBytes = 64 * 1024;

bool isLive(const form_base &window)
{
    return window.findChild<QWidget *>(QStringLiteral("page_live"))->isVisible();
}

/// A deck that is dealt to the last card, so that everything has its turn, and then shuffled again.
template <class Card> void fill(QList<Card> &deck, const QList<Card> &cards, QRandomGenerator &random)
{
    deck = cards;
    std::shuffle(deck.begin(), deck.end(), random);
}

} // namespace

Campaign::Campaign(form_base &window, const Options &options)
    : m_options(options), m_user(window, m_watchdog), m_account(window), m_views(window), m_random(options.seed),
      m_logFile(QStringLiteral("campaign.log")), m_log(&m_logFile)
{
    if (!m_logFile.open(QIODevice::WriteOnly))
        m_report.failures.append(QStringLiteral("the campaign's log cannot be written"));
}

void Campaign::run()
{
    m_clock.start();
    pause(kStartMs, kStartMs);
    if (m_options.isTable) {
        StateTable table(
            m_user, [this](const QString &line) { log(line); }, [this](const QString &what) { fail(what); });
        table.run();
        m_report.cells = table.cellCount();
    }
    const QList<scenario::Device> &devices = scenario::devices();
    while (!m_options.isTable && !isTimeUp())
        round(devices.at(m_report.rounds % devices.size()));
    settleViews();

    // Caches fill until every text has been shown in every language and size.
    m_report.warmUpRounds = m_report.rounds / 3;
    m_watchdog.stop();
    m_report.waits = m_watchdog.result();
    m_user.act(QStringLiteral("main window closed"), [](form_base &window) { window.close(); });
}

bool Campaign::isTimeUp() const
{
    if (m_options.isQuick)
        return m_report.rounds == int(scenario::devices().size());
    return double(m_clock.elapsed()) > m_options.minutes * 60000;
}

void Campaign::round(const scenario::Device &device)
{
    ++m_report.rounds;
    log(QStringLiteral("round %1: %2").arg(m_report.rounds).arg(QLatin1String(device.name)));
    QStringList options = QString::fromLatin1(device.options).split(u' ');
    options += QStringLiteral("--bootloader-wait 300 --seed %1").arg(m_options.seed).split(u' ');
    m_simulator = std::make_unique<SimulatorProcess>(options);
    m_before = counts();

    openPort();
    if (m_report.rounds == 1) {
        pause(kLookMs, kLookMs);
        m_report.unopenedKib = process_figures::look().anonymousKib;
    }
    openEverything();
    if (backToOrder())
        look(QStringLiteral("all open, ") + QLatin1String(device.name));
    const qsizetype before = m_report.faultsDone.size();
    bool bytesWereDamaged = false;
    misbehave(device);
    for (const QString &name : m_report.faultsDone.mid(before)) {
        for (const scenario::Fault &fault : scenario::faults())
            bytesWereDamaged |= fault.damagesBytes && name == QLatin1String(fault.name);
    }
    if (backToOrder())
        settleBooks(bytesWereDamaged);
    endConnection();
    checkRecordings();
    act(QStringLiteral("all windows closed"), windows::closeAllBut);
    act(QStringLiteral("plain look"), scenario::setPlainLook);
    m_user.waitForCalm(kOpenMs);
    m_simulator.reset();
    look(CampaignReport::kAllClosed);
}

void Campaign::openEverything()
{
    act(QStringLiteral("plain look"), scenario::setPlainLook);
    for (const scenario::Habit &opening : scenario::openings()) {
        const bool isFirst = m_report.rounds == 1;
        act((isFirst ? QLatin1String("first opening of ") : QLatin1String("open ")) + QLatin1String(opening.name),
            opening.run);
        // Later all at once; the first time one by one, so that the report shows what each takes.
        if (isFirst && !m_options.isQuick)
            pause(kFirstOpeningMs, kFirstOpeningMs);
        else
            pause(20, 60);
    }
    act(QStringLiteral("start recording"), scenario::startRecording);
}

void Campaign::misbehave(const scenario::Device &device)
{
    for (int i = 0; i < (m_options.isQuick ? kFaultsPerQuickRound : kFaultsPerRound); ++i) {
        if (m_faults.isEmpty())
            fill(m_faults, scenario::faults(), m_random);
        // The next one that suits the device; the others keep their place.
        const auto next = std::find_if(m_faults.begin(), m_faults.end(), [&device](const scenario::Fault &fault) {
            return fault.suits == scenario::Suits::All || device.isGateway;
        });
        if (next == m_faults.end())
            return;
        const scenario::Fault fault = *next;
        m_faults.erase(next);
        log(QStringLiteral("fault: ") + QLatin1String(fault.name));
        m_report.faultsDone.append(QLatin1String(fault.name));
        fault.run(*this);
        if (!isOpen())
            openPort();
        act(QStringLiteral("start recording"), scenario::startRecording); // a closed port has ended it
    }
}

/// All faults are over: waits until frames arrive properly. False, and reported, when they do not.
bool Campaign::backToOrder()
{
    if (!m_user.waitForCalm(kOpenMs))
        fail(QStringLiteral("an action did not end"));
    if (!isOpen())
        openPort();
    m_user.waitForCalm(kOpenMs);
    const quint64 before = counts().payloads;
    if (m_user.waitUntil(kStreamMs,
                         [&](form_base &) { return m_account.counts().payloads >= before + kFramesInOrder; }))
        return true;
    fail(QStringLiteral("no stream"));
    return false;
}

/// The device falls silent and everything in transit arrives; then all numbers must agree.
void Campaign::settleBooks(bool bytesWereDamaged)
{
    control("silent on");
    Sent now;
    LinkAccount::Counts taken;
    QElapsedTimer clock;
    clock.start();
    bool isSettled = false;
    do { // until nothing changes any more and the program's own counters have caught up, which they do once a second
        now = sent();
        taken = counts();
        pause(kSettleMs, kSettleMs);
        isSettled = sent().bytes == now.bytes && counts() == taken && taken.countedBytes == taken.bytesRead;
    } while (!isSettled && clock.elapsed() < kDrainMs);
    control("silent off");
    const LinkAccount::Counts round = taken - m_before;

    CampaignReport::Books &books = m_report.books;
    books.framesSent += now.frames;
    books.framesIntact += now.intact;
    books.bytesSent += now.bytes;
    books.dropped += now.dropped;
    books.unheard += now.unheard;
    books.taken += round;
    log(QStringLiteral("books: frames sent %1, intact %2, good %3, shown %4; bytes sent %5, read %6, lost %7; "
                       "%8 closings")
            .arg(now.frames)
            .arg(now.intact)
            .arg(round.payloads)
            .arg(round.published)
            .arg(now.bytes)
            .arg(round.bytesRead)
            .arg(round.lostBytes)
            .arg(round.closings));

    if (round.payloads != round.published && round.closings == 0)
        fail(QStringLiteral("of %1 good packets %2 were shown").arg(round.payloads).arg(round.published));
    if (round.countedBytes != round.bytesRead || round.countedPackets != round.payloads)
        fail(QStringLiteral("the link's counters show %1 bytes and %2 packets; there were %3 and %4")
                 .arg(round.countedBytes)
                 .arg(round.countedPackets)
                 .arg(round.bytesRead)
                 .arg(round.payloads));
    if (round.bytesRead > now.bytes || now.bytes - round.bytesRead > round.closings * kPipeBytes)
        fail(QStringLiteral("%1 bytes sent, %2 read, %3 closings")
                 .arg(now.bytes)
                 .arg(round.bytesRead)
                 .arg(round.closings));
    if (!bytesWereDamaged && round.payloads > now.intact)
        fail(QStringLiteral("%1 good packets of %2 frames").arg(round.payloads).arg(now.intact));
    // When closing cuts a frame in two, one part is read and counted, the other is never read. Damaged frames may
    // swallow whole intact neighbours; their bytes are counted as lost.
    const quint64 cutOff = now.bytes - round.bytesRead;
    const quint64 explained =
        round.closings + (cutOff + (bytesWereDamaged ? round.lostBytes : 0)) / quint64(m_account.smallestPacket());
    if (now.intact > round.payloads + explained)
        fail(QStringLiteral("%1 intact frames are missing, of which %2 are accounted for")
                 .arg(now.intact - round.payloads)
                 .arg(explained));
}

/// The port is closed, or the cable is pulled.
void Campaign::endConnection()
{
    if (m_random.bounded(2) == 0) {
        control("unplug");
        if (!m_user.waitUntil(kOpenMs, [](form_base &window) { return !isLive(window); }))
            fail(QStringLiteral("a pulled cable went unnoticed"));
    }
    closePort();
    m_user.waitForCalm(kOpenMs);
    act(QStringLiteral("message read"), [](form_base &window) { delete window.findChild<QMessageBox *>(); });
}

void Campaign::checkRecordings()
{
    CampaignReport::Books &books = m_report.books;
    const LinkAccount::Recordings recordings = m_user.ask<LinkAccount::Recordings>([this](form_base &window) {
        window.session().recorder().waitForFile();
        return m_account.recordings();
    });
    for (const QString &name : QDir::current().entryList({QStringLiteral("data_*.csv")}, QDir::Files)) {
        QFile file(name);
        if (!file.open(QIODevice::ReadOnly))
            fail(name + QStringLiteral(" cannot be read"));
        while (!file.atEnd()) {
            const QByteArray line = file.readLine();
            const bool isHeader = line.startsWith("UnixTimeStamp") || line.startsWith("ts_ms");
            books.linesInFiles += isHeader || !line.endsWith('\n') ? 0 : 1;
        }
        file.remove();
    }
    if (recordings.cameIn != recordings.written || books.linesInFiles != recordings.written
        || recordings.troubled != books.recordings.troubled)
        fail(QStringLiteral("%1 records came in, %2 were written, %3 lines are in the files, %4 of %5 recordings had "
                            "trouble")
                 .arg(recordings.cameIn)
                 .arg(recordings.written)
                 .arg(books.linesInFiles)
                 .arg(recordings.troubled)
                 .arg(recordings.count));
    books.recordings = recordings;
}

void Campaign::settleViews()
{
    m_report.views = m_user.ask<ViewBooks::Findings>([this](form_base &) { return m_views.findings(); });
    if (m_report.views.strangers + m_report.views.wrongSpans > 0)
        fail(QStringLiteral("of %1 values that were looked at %2 were another node's, of %3 stretches of an axis "
                            "%4 were more than 5 % off: %5")
                 .arg(m_report.views.looks)
                 .arg(m_report.views.strangers)
                 .arg(m_report.views.spans)
                 .arg(m_report.views.wrongSpans)
                 .arg(m_report.views.examples.join(QStringLiteral("; "))));
}

void Campaign::look(const QString &state)
{
    pause(kLookMs, kLookMs);
    const process_figures::Figures figures = process_figures::look();
    m_report.looks.append({state, m_report.rounds, figures.residentKib, figures.anonymousKib,
                           qint64(mallinfo2().uordblks / 1024), figures.openHandles, int(figures.threads.size())});
    const CampaignReport::Look &now = m_report.looks.constLast();
    log(QStringLiteral("%1: %2 KiB resident, %3 KiB anonymous, %4 KiB of heap, %5 handles, %6 threads")
            .arg(state)
            .arg(now.residentKib)
            .arg(now.anonymousKib)
            .arg(now.heapKib)
            .arg(now.handles)
            .arg(now.threads));
}

void Campaign::during(std::initializer_list<const char *> begin, std::initializer_list<const char *> end)
{
    for (const char *line : begin)
        control(line);
    for (int i = 0; i < (m_options.isQuick ? 2 : 3); ++i) {
        doHabit();
        if (m_options.isQuick)
            pause(50, 200);
        else
            pause(100, 900);
    }
    for (const char *line : end)
        control(line);
}

void Campaign::control(const char *line)
{
    log(QStringLiteral("simulator: ") + QLatin1String(line));
    if (!m_simulator->control(line))
        fail(QStringLiteral("the simulator refused \"%1\"").arg(QLatin1String(line)));
}

void Campaign::openPort()
{
    act(QStringLiteral("open port"), [path = m_simulator->port()](form_base &window) {
        delete window.findChild<QMessageBox *>();
        ::openPort(window, path);
    });
    pause(0, 300);
}

void Campaign::closePort()
{
    act(QStringLiteral("close port"),
        [](form_base &window) { window.findChild<QAction *>(QStringLiteral("action_serial_stop"))->trigger(); });
    pause(50, 100);
}

void Campaign::reopenPort()
{
    closePort();
    openPort();
    m_user.waitForCalm(kOpenMs);
}

void Campaign::identify()
{
    act(QStringLiteral("identify"), [](form_base &) { windows::press("form_settings", "BTN_identify"); });
    doHabit();
    m_user.waitForCalm(kOpenMs);
}

void Campaign::doHabit()
{
    if (m_habits.isEmpty())
        fill(m_habits, scenario::habits(), m_random);
    const scenario::Habit habit = m_habits.takeLast();
    act(QLatin1String(habit.name), habit.run);
}

void Campaign::act(const QString &what, const User::Action &action)
{
    ++m_report.actions;
    log(what);
    m_user.act(what, action);
}

void Campaign::pause(int fromMs, int toMs)
{
    QThread::msleep(unsigned(m_random.bounded(fromMs, toMs + 1)));
}

bool Campaign::isOpen()
{
    return m_user.ask<bool>([](form_base &window) { return isLive(window); });
}

Campaign::Sent Campaign::sent()
{
    const auto number = [this](const char *name) { return quint64(m_simulator->stat(name)); };
    return {number("frames_sent"), number("frames_intact"), number("bytes"), number("dropped"), number("unheard")};
}

LinkAccount::Counts Campaign::counts()
{
    return m_user.ask<LinkAccount::Counts>([this](form_base &) { return m_account.counts(); });
}

void Campaign::fail(const QString &what)
{
    log(QStringLiteral("FAILED: ") + what);
    m_report.failures.append(QStringLiteral("round %1: %2").arg(m_report.rounds).arg(what));
}

/// Written to disk at once, so that a crash does not lose the last lines.
void Campaign::log(const QString &line)
{
    m_log << QString::number(double(m_clock.elapsed()) / 1000, 'f', 3) << ' ' << line << Qt::endl;
}
