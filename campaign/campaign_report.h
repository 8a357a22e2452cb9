#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include "campaign/link_account.h"
#include "campaign/view_books.h"
#include "campaign/watchdog.h"

class QTextStream;

/// What a campaign found, and whether its goals were met.
struct CampaignReport
{
    /// The link's accounts over all rounds: what the simulator sent, and what became of it.
    struct Books
    {
        quint64 framesSent = 0;
        quint64 framesIntact = 0; ///< of them, untouched by any fault
        quint64 bytesSent = 0;
        quint64 dropped = 0; ///< frames not sent: silent, or the line too slow
        quint64 unheard = 0; ///< frames not sent: no port open
        LinkAccount::Counts taken;
        LinkAccount::Recordings recordings;
        quint64 linesInFiles = 0;
    };

    /// The process in a recurring state.
    struct Look
    {
        QString state;
        int round = 0;
        qint64 residentKib = 0;
        qint64 anonymousKib = 0; ///< of it, without files
        qint64 heapKib = 0;      ///< in use, according to the allocator
        int handles = 0;
        int threads = 0;
    };

    /// The state in which memory is compared with that before any window was opened.
    static constexpr QLatin1String kAllClosed{"all closed"};

    int rounds = 0;
    int warmUpRounds = 0;
    int actions = 0;
    QStringList faultsDone;
    Books books;
    ViewBooks::Findings views;
    int cells = 0; ///< of the table of states
    QList<Look> looks;
    qint64 unopenedKib = 0; ///< anonymous memory with a stream, before any window besides the main one was opened
    QStringList failures;   ///< goals that were not met, as sentences
    Watchdog::Result waits;

    /// Judges memory, handles and threads, the longest stalls, and the program's message log.
    void judge(int stallLimitMs, const QString &messageLog);
    void print(QTextStream &out) const;
};
