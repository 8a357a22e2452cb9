#include "simulator/vibration.h"

#include <QStringList>

#include <cmath>
#include <optional>

#include "simulator/rotation.h"

namespace kvsim {

namespace {

constexpr quint64 kNodeStride = 256; // node numbers fit in

bool readNumber(const QString &text, double low, double high, double &value)
{
    bool ok = false;
    value = text.toDouble(&ok);
    return ok && value >= low && value <= high; // false for NaN
}

std::optional<Tone> readTone(const QString &text)
{
    const QStringList parts = text.split(u':');
    if (parts.size() < 3 || parts.size() > 4)
        return {};
    Tone tone;
    double amplitude = 0.0;
    if (!readNumber(parts[0], 1e-3, Vibration::kMaxHertz, tone.hertz)
        || !readNumber(parts[1], 0.0, Vibration::kMaxAmplitude, amplitude))
        return {};
    const bool isRate = parts[2].startsWith(u'g');
    tone.sensor = isRate ? Tone::Sensor::AngularRate : Tone::Sensor::Acceleration;
    const QString axis = parts[2].mid(isRate ? 1 : 0);
    if (axis.size() != 1 || axis[0] < u'x' || axis[0] > u'z')
        return {};
    tone.axis = std::size_t(axis[0].unicode() - u'x');
    tone.amplitudes = {amplitude};
    const QStringList ratios = parts.size() == 4 ? parts[3].split(u',') : QStringList();
    if (ratios.size() > Vibration::kMaxHarmonics)
        return {};
    for (const QString &word : ratios) {
        double ratio = 0.0;
        if (!readNumber(word, 0.0, 100.0, ratio))
            return {};
        tone.amplitudes.push_back(ratio * amplitude);
    }
    return tone;
}

// A number between 0 and 1 derived from the counter: a stateless generator, so that frames may be skipped.
double uniform(quint64 counter)
{
    quint64 bits = counter * 0x9E3779B97F4A7C15ULL;
    bits = (bits ^ (bits >> 30)) * 0xBF58476D1CE4E5B9ULL;
    bits = (bits ^ (bits >> 27)) * 0x94D049BB133111EBULL;
    bits ^= bits >> 31;
    return (double(bits >> 11) + 0.5) * 0x1.0p-53;
}

double normal(quint64 counter)
{
    return std::sqrt(-2.0 * std::log(uniform(2 * counter))) * std::cos(2.0 * kPi * uniform(2 * counter + 1));
}

} // namespace

QString Vibration::addTone(const QString &text)
{
    const std::optional<Tone> tone = readTone(text);
    if (!tone)
        return QStringLiteral("a tone is FREQUENCY:AMPLITUDE:AXIS[:RATIO,RATIO...], such as 50:0.2:z:0.5,0.25");
    if (m_tones.size() >= kMaxTones)
        return QStringLiteral("there are %1 tones already").arg(kMaxTones);
    m_tones.push_back(*tone);
    return {};
}

QString Vibration::setNoise(const QString &text)
{
    const QStringList parts = text.split(u':');
    double acc = 0.0;
    double gyr = 0.0;
    if (parts.size() > 2 || !readNumber(parts[0], 0.0, kMaxAmplitude, acc)
        || (parts.size() == 2 && !readNumber(parts[1], 0.0, kMaxAmplitude, gyr)))
        return QStringLiteral("noise is ACC[:GYR] in G and deg/s, such as 0.01:0.5");
    m_accNoise = acc;
    m_gyrNoise = gyr;
    return {};
}

void Vibration::clear()
{
    m_tones.clear();
    m_accNoise = 0.0;
    m_gyrNoise = 0.0;
}

void Vibration::apply(ImuSample &sample, double seconds, quint64 frame, int node) const
{
    for (const Tone &tone : m_tones) {
        // Whole turns are removed before the multiplication by 2 pi, so that hours of device time cost no accuracy.
        const double turns = tone.hertz * seconds;
        double sum = 0.0;
        for (std::size_t k = 0; k < tone.amplitudes.size(); ++k)
            sum += tone.amplitudes[k] * std::sin(2.0 * kPi * std::remainder(double(k + 1) * turns, 1.0));
        auto &values = tone.sensor == Tone::Sensor::Acceleration ? sample.acc : sample.gyr;
        values[tone.axis] += float(sum);
    }
    if (m_accNoise <= 0.0 && m_gyrNoise <= 0.0)
        return;
    // Six numbers per node and frame; the seed separates sequences that would otherwise be the same.
    const quint64 first = (m_seed << 40) + (frame * kNodeStride + quint64(node)) * 6;
    for (std::size_t axis = 0; axis < 3; ++axis) {
        sample.acc[axis] += float(m_accNoise * normal(first + axis));
        sample.gyr[axis] += float(m_gyrNoise * normal(first + 3 + axis));
    }
}

} // namespace kvsim
