#include "record/recording_source.h"

#include <algorithm>

#include "record/recording_encoder.h"

namespace {

constexpr qint64 kSecondNs = 1'000'000'000;
constexpr qsizetype kMaxRows = 4096; // of one second that are spread together; more are spread over another one
constexpr qint64 kTail = 4 * RecordingReader::kMaxLine;

} // namespace

bool RecordingSource::open(const QString &path)
{
    if (!m_reader.open(path))
        return false;
    readOn();
    if (!m_row) {
        m_error = RecordingReader::tr("The recording %1 holds no records.").arg(path);
        return false;
    }
    m_startNs = m_row->unixTimeS * kSecondNs;
    if (!findEnd())
        m_endNs = m_startNs;
    seek(m_startNs);
    return true;
}

/// From the last lines of the file.
bool RecordingSource::findEnd()
{
    m_reader.seek(std::max<qint64>(0, m_reader.size() - kTail));
    qint64 last = -1;
    while (const std::optional<RecordedRow> row = m_reader.next())
        last = row->unixTimeS;
    m_endNs = (last + 1) * kSecondNs - 1;
    return last >= 0 && m_endNs >= m_startNs;
}

void RecordingSource::readOn()
{
    m_row = m_reader.next();
}

/// Halves the file until the place is found: its times nearly always ascend.
void RecordingSource::seek(qint64 timeNs)
{
    const qint64 second = timeNs / kSecondNs;
    qint64 low = 0;
    qint64 high = m_reader.size();
    while (high - low > RecordingReader::kMaxLine) {
        const qint64 middle = low + (high - low) / 2;
        m_reader.seek(middle);
        const std::optional<RecordedRow> row = m_reader.next();
        if (row && row->unixTimeS < second)
            low = middle;
        else
            high = middle;
    }
    m_reader.seek(low);
    m_nextNs = 0;
    m_seekNs = timeNs;
    do
        readOn();
    while (m_row && m_row->unixTimeS < second);
}

QList<TimedBytes> RecordingSource::read()
{
    QList<TimedBytes> part;
    while (m_row && part.isEmpty()) {
        const qint64 second = m_row->unixTimeS;
        for (; m_row && m_row->unixTimeS == second && part.size() < kMaxRows; readOn())
            part.append({0, recording_encoder::packet(*m_row)});
        // After the lines before, also when there were too many, or the computer's clock was set back.
        const qint64 startNs = std::max(second * kSecondNs, m_nextNs);
        const qint64 stepNs = kSecondNs / part.size();
        for (qsizetype i = 0; i < part.size(); ++i)
            part[i].timeNs = startNs + i * stepNs;
        m_nextNs = startNs + part.size() * stepNs;
        part.removeIf([this](const TimedBytes &bytes) { return bytes.timeNs < m_seekNs; });
    }
    return part;
}
