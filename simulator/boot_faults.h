#pragma once

#include <QString>

#include <random>

namespace kvsim {

/// What goes wrong in the bootloader, at the request of a test.
class BootFaults
{
public:
    /// The fate of a data packet.
    enum class Verdict {
        Take,   ///< programmed and acknowledged
        Refuse, ///< negative acknowledge; the host may send it again
        Abort,  ///< acknowledge-abort; the data phase ends
        Ignore, ///< nothing programmed and no answer
        Late,   ///< programmed, and acknowledged too late
        NoAck,  ///< programmed, and never acknowledged
        Flip,   ///< programmed with one bit wrong, and acknowledged
        Drop,   ///< acknowledged, but not programmed: the following data move up
        Status, ///< not programmed; an abort, and a response with endStatus: the data phase ends
        Power,  ///< half of it programmed, then the power is cut
    };
    static constexpr int kVerdicts = 10;

    static constexpr int kNormalPropertyBytes = 4;
    static constexpr int kMaxPropertyBytes = 16;
    static constexpr int kMaxDelayMs = 60'000;

    explicit BootFaults(quint64 seed) : m_random(seed) {}

    bool mutePing = false;
    int propertyBytes = kNormalPropertyBytes; ///< length of every property's value
    int eraseMs = 0;                          ///< from the acknowledge of an erase to its response
    int trickleMs = 0;                        ///< from each byte of an answer to the next
    bool readsMemory = true;                  ///< the flash can be read back; otherwise reading is not offered
    bool locked = false;                      ///< reading is offered but refused
    quint32 endStatus = 105;                  ///< of the verdict Status
    int lateMs = 250;                         ///< delay of an acknowledge with the verdict Late
    int staleMs = 0;                          ///< an extra acknowledge this long after each answer; 0: none
    double refusedPercent = 0.0;              ///< random share of the data packets

    /// Plans a verdict for data packets to come: "N[:TIMES]", from the N-th from now on, TIMES packets (1); "0" cancels
    /// the plan. Repeated packets count too. @return an empty text, or what is wrong
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
    Plan m_plans[kVerdicts - 1]; // one for each verdict but Take
};

} // namespace kvsim
