#include "simulator/boot_faults.h"

#include <QStringList>

#include <iterator>

namespace kvsim {

QString BootFaults::plan(Verdict verdict, const QString &text)
{
    constexpr int kMaxPackets = 1'000'000'000;
    const QStringList parts = text.split(u':');
    bool firstOk = false;
    bool timesOk = true;
    const int first = parts[0].toInt(&firstOk);
    const int times = parts.size() == 2 ? parts[1].toInt(&timesOk) : 1;
    if (parts.size() > 2 || !firstOk || !timesOk || first < 0 || times < 1 || first > kMaxPackets)
        return QStringLiteral("packets are N[:TIMES], such as 5:2 for the fifth and the sixth");
    m_plans[int(verdict) - 1] = {first, times};
    return {};
}

BootFaults::Verdict BootFaults::judge()
{
    // Uses the generator's raw bits, because the standard library's distributions differ between implementations.
    const bool byChance = refusedPercent > 0.0 && double(m_random() >> 11) * 0x1.0p-53 * 100.0 < refusedPercent;
    Verdict verdict = byChance ? Verdict::Refuse : Verdict::Take;
    for (int i = 0; i < int(std::size(m_plans)); ++i) {
        Plan &plan = m_plans[i];
        if (plan.first == 0)
            continue;
        if (plan.first > 1) {
            --plan.first;
            continue;
        }
        verdict = Verdict(i + 1);
        if (--plan.times == 0)
            plan.first = 0;
    }
    return verdict;
}

} // namespace kvsim
