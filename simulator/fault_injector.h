#pragma once

#include <QByteArray>

#include <random>

namespace kvsim {

/// Damages bytes on their way to the line: flipped bits, lost bytes and inserted bytes, each at a rate per kilobyte
/// (1024 bytes). The same seed, rates and bytes give the same damage on every machine.
class FaultInjector
{
public:
    /// Highest rate: every byte is hit.
    static constexpr double kMaxRate = 1024.0;

    explicit FaultInjector(quint64 seed) : m_random(seed) {}

    /// Rates are clamped to 0..kMaxRate.
    void setFlipRate(double perKilobyte) { m_flip = chance(perKilobyte); }
    void setDropRate(double perKilobyte) { m_drop = chance(perKilobyte); }
    void setInsertRate(double perKilobyte) { m_insert = chance(perKilobyte); }

    struct Result
    {
        QByteArray bytes;
        bool intact; ///< not one byte was touched
    };
    Result apply(const QByteArray &bytes);

private:
    static double chance(double perKilobyte);
    bool strikes(double probability);

    std::mt19937_64 m_random;
    double m_flip = 0.0;
    double m_drop = 0.0;
    double m_insert = 0.0;
};

} // namespace kvsim
