#pragma once

#include <QString>

#include <random>

namespace kvsim {

/// What goes wrong in the bootloader, on request of a test.
class BootFaults
{
public:
    /// What becomes of a data packet.
    enum class Verdict {
        Take,   ///< programmed and acknowledged
        Refuse, ///< negative acknowledge; the host may send it again
        Abort,  ///< acknowledge-abort; the data phase is over
        Ignore, ///< nothing programmed and no answer
        Late,   ///< programmed, and acknowledged too late
    };

    static constexpr int kNormalPropertyBytes = 4;
    static constexpr int kMaxPropertyBytes = 16;
    static constexpr int kMaxDelayMs = 60'000;

    explicit BootFaults(quint64 seed) : m_random(seed) {}

    bool mutePing = false;
    int propertyBytes = kNormalPropertyBytes; ///< length of every property's value
    int eraseMs = 0;                          ///< from the acknowledge of an erase to its response
    int trickleMs = 0;                        ///< from each byte of an answer to the next
    int lateMs = 250;                         ///< how late an acknowledge of the verdict Late is
    int staleMs = 0;                          ///< after each answer an acknowledge too many; 0: none
    double refusedPercent = 0.0;              ///< share of the data packets, by chance

    /// Plans a verdict for data packets to come: "N[:TIMES]", from the N-th from now on, TIMES packets (1); "0" takes
    /// the plan back. Packets sent again count, too. @return an empty text, or what is wrong
    QString plan(Verdict verdict, const QString &text);

    /// The verdict on the next data packet.
    Verdict judge();

private:
    struct Plan
    {
        qint64 first = 0; // packets from now; 0: never
        qint64 times = 1;
    };

    std::mt19937_64 m_random;
    Plan m_plans[4]; // of Refuse, Abort, Ignore, Late
};

} // namespace kvsim
