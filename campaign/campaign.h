#pragma once

#include <QElapsedTimer>
#include <QFile>
#include <QRandomGenerator>
#include <QTextStream>

#include <memory>

#include "campaign/campaign_report.h"
#include "campaign/link_account.h"
#include "campaign/scenario.h"
#include "campaign/user.h"
#include "campaign/view_books.h"
#include "campaign/watchdog.h"
#include "support/simulator_process.h"

/// A user who works with the running program while one device after the other misbehaves. Each round connects a device,
/// opens every window, records, makes a few things go wrong while the user continues to work, and ends by settling
/// accounts: bytes, frames and records sent against those that arrived; memory, handles and threads in equal states.
///
/// run() needs its own thread; the program's main thread only executes what it posts.
class Campaign
{
public:
    struct Options
    {
        double minutes = 30;
        quint32 seed = 1;
        bool isTable = false; ///< the table of states instead of rounds
        bool isQuick = false; ///< one round per device and each fault once, in less than a minute
    };

    /// Main thread, with the program's event loop.
    Campaign(form_base &window, const Options &options);
    Q_DISABLE_COPY_MOVE(Campaign)

    /// Works, then closes the main window.
    void run();

    /// After run(), and after the program has ended.
    CampaignReport &report() { return m_report; }

    // The building blocks of faults. Each takes its time, with actions of the user in between.

    /// Sends controls to the simulator, lets time pass, and sends those that end them.
    void during(std::initializer_list<const char *> begin, std::initializer_list<const char *> end);
    void control(const char *line);
    void openPort();
    void closePort();
    void reopenPort();
    /// Presses the button of the settings.
    void identify();

private:
    /// The simulator's counts since its start.
    struct Sent
    {
        quint64 frames = 0;
        quint64 intact = 0;
        quint64 bytes = 0;
        quint64 dropped = 0;
        quint64 unheard = 0;
    };

    void round(const scenario::Device &device);
    void openEverything();
    void misbehave(const scenario::Device &device);
    bool backToOrder();
    void settleBooks(bool bytesWereDamaged);
    void endConnection();
    void checkRecordings();
    void settleViews();
    void look(const QString &state);

    void act(const QString &what, const User::Action &action);
    void doHabit();
    void pause(int fromMs, int toMs);
    bool isOpen();
    Sent sent();
    LinkAccount::Counts counts();
    void fail(const QString &what);
    bool isTimeUp() const;
    void log(const QString &line);

    Options m_options;
    Watchdog m_watchdog;
    User m_user;
    LinkAccount m_account;
    ViewBooks m_views;
    std::unique_ptr<SimulatorProcess> m_simulator;
    QRandomGenerator m_random;
    QElapsedTimer m_clock;
    QFile m_logFile;
    QTextStream m_log;
    QList<scenario::Fault> m_faults; ///< still to come in this pass
    QList<scenario::Habit> m_habits;
    CampaignReport m_report;

    LinkAccount::Counts m_before; ///< at the start of the round
};
