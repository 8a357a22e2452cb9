#include "record/recording_reader.h"

#include <algorithm>
#include <cstring>

#include "record/csv_header.h"

namespace {

constexpr qsizetype kBlock = 256 * 1024;
constexpr char kByteOrderMark[] = "\xEF\xBB\xBF";

constexpr double kPowersOfTen[] = {1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
constexpr double kBelowLastDigit = 0.25; // in units of the last digit
constexpr int kExactDigits = 15;         ///< so many fit into a double

/// The fields of a line, one after the other.
class Fields
{
public:
    Fields(QByteArrayView line, char separator) : m_line(line), m_separator(separator) {}

    bool ok() const { return m_isOk; }
    /// Fields with something that is no number make the line a bad one.
    double number()
    {
        const QByteArrayView field = take();
        double value = 0;
        if (!plain(field, &value)) {
            QByteArray text = field.toByteArray();
            if (m_separator == ';')
                text.replace(',', '.');
            bool isNumber = false;
            value = text.toDouble(&isNumber);
            m_isOk = m_isOk && isNumber;
        }
        return value;
    }
    float real() { return float(number()); }
    /// A whole number in a range; anything else makes the line a bad one.
    qint64 whole(qint64 least, qint64 greatest)
    {
        bool isNumber = false;
        const qint64 value = take().toByteArray().toLongLong(&isNumber);
        m_isOk = m_isOk && isNumber && value >= least && value <= greatest;
        return value;
    }
    /// The next field is empty.
    bool isEmptyNext() const { return m_at < m_line.size() ? m_line[m_at] == m_separator : true; }
    void skip(int count)
    {
        for (int i = 0; i < count; ++i)
            take();
    }

private:
    QByteArrayView take()
    {
        const QByteArrayView rest = m_line.sliced(std::min(m_at, m_line.size()));
        const qsizetype end = rest.indexOf(m_separator);
        const QByteArrayView field = end < 0 ? rest : rest.first(end);
        m_at += field.size() + 1;
        return field;
    }

    /// Digits with at most one point, as nearly all numbers are: exact, and much faster than the general way.
    bool plain(QByteArrayView field, double *value) const
    {
        const char point = m_separator == ';' ? ',' : '.';
        const bool isNegative = field.startsWith('-');
        qint64 digits = 0;
        int count = 0;
        int decimals = -1;
        for (const char c : field.sliced(isNegative ? 1 : 0)) {
            if (c == point && decimals < 0) {
                decimals = 0;
                continue;
            }
            if (c < '0' || c > '9' || ++count > kExactDigits)
                return false;
            digits = 10 * digits + (c - '0');
            decimals += decimals >= 0 ? 1 : 0;
        }
        // "-0.000" was a small number below zero, and recorded again it has to be written so again.
        const double magnitude = isNegative && digits == 0 ? kBelowLastDigit : double(digits);
        *value = magnitude / kPowersOfTen[std::max(decimals, 0)];
        if (isNegative)
            *value = -*value;
        return count > 0;
    }

    QByteArrayView m_line;
    char m_separator;
    qsizetype m_at = 0;
    bool m_isOk = true;
};

void readMotion(Fields &fields, node_data_t &node)
{
    for (float *values : {node.acc, node.gyr, node.mag}) {
        for (int i = 0; i < 3; ++i)
            values[i] = fields.real();
    }
    node.roll = fields.real();
    node.pitch = fields.real();
    node.yaw = fields.real();
    for (float &value : node.quat)
        value = fields.real();
}

/// A free group has no id, a silent node has nothing else.
void readGroups(Fields &fields, QList<node_data_t> &nodes)
{
    for (int group = 0; group < csv_header::kGroups && fields.ok(); ++group) {
        if (fields.isEmptyNext()) {
            fields.skip(csv_header::kGroupColumns);
            continue;
        }
        node_data_t node;
        node.id = quint8(fields.whole(0, 0xFF));
        if (fields.isEmptyNext()) {
            fields.skip(csv_header::kMotionColumns);
            continue;
        }
        readMotion(fields, node);
        nodes.append(node);
    }
}

} // namespace

bool RecordingReader::open(const QString &path)
{
    m_file.setFileName(path);
    if (!m_file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        m_error = tr("The recording %1 cannot be opened: %2").arg(path, m_file.errorString());
        return false;
    }
    seek(0);
    QByteArrayView line;
    if (!readLine(line)) {
        m_error = tr("The recording %1 is empty.").arg(path);
        return false;
    }
    for (const char separator : {',', ';'}) {
        m_separator = separator;
        if (isHeader(line)) {
            m_error.clear();
            return true;
        }
    }
    m_error = tr("%1 is not a recording of this program: its columns are different.").arg(path);
    return false;
}

void RecordingReader::seek(qint64 offset)
{
    m_block.clear();
    m_blockOffset = std::clamp<qint64>(offset, 0, m_file.size());
    m_at = 0;
    m_line = 0;
    m_badLines = 0;
    m_firstBadLine = 0;
    m_file.seek(m_blockOffset);
    if (m_blockOffset == 0)
        return;
    QByteArrayView rest;
    readLine(rest);
}

/// Reads on; what has not been used stays at the front. False at the end of the file.
bool RecordingReader::fill()
{
    m_block.remove(0, m_at);
    m_blockOffset += m_at;
    m_at = 0;
    const qsizetype before = m_block.size();
    m_block.resize(before + kBlock);
    const qint64 count = m_file.read(m_block.data() + before, kBlock);
    m_block.resize(before + std::max<qint64>(count, 0));
    return count > 0;
}

/// The next line without its end; of one that is too long, nothing. False at the end of the file. The bytes are good
/// until the next call.
bool RecordingReader::readLine(QByteArrayView &line)
{
    bool isTooLong = false;
    for (;;) {
        const qsizetype left = m_block.size() - m_at;
        const void *found = left > 0 ? std::memchr(m_block.constData() + m_at, '\n', size_t(left)) : nullptr;
        if (found == nullptr && left > kMaxLine) {
            isTooLong = true;
            m_at = m_block.size();
        }
        if (found == nullptr && fill())
            continue;
        const qsizetype end =
            found != nullptr ? static_cast<const char *>(found) - m_block.constData() : m_block.size();
        if (end == m_block.size() && end == m_at && !isTooLong)
            return false;
        line = QByteArrayView(m_block).sliced(m_at, end - m_at);
        m_at = std::min(end + 1, m_block.size());
        ++m_line;
        if (isTooLong || line.size() > kMaxLine)
            line = {};
        else if (line.endsWith('\r'))
            line.chop(1);
        if (m_line == 1 && line.startsWith(kByteOrderMark))
            line = line.sliced(3);
        return true;
    }
}

bool RecordingReader::isHeader(QByteArrayView line) const
{
    static const QByteArray headers[] = {csv_header::line91(), csv_header::line62(), csv_header::line63()};
    QByteArray text = line.toByteArray();
    if (m_separator == ';')
        text.replace(';', ',');
    text += '\n';
    return std::find(std::begin(headers), std::end(headers), text) != std::end(headers);
}

std::optional<RecordedRow> RecordingReader::next()
{
    QByteArrayView line;
    while (readLine(line)) {
        RecordedRow row;
        if (parse(line, row))
            return row;
        if (!isHeader(line))
            countBad();
    }
    return std::nullopt;
}

void RecordingReader::countBad()
{
    if (m_badLines++ == 0)
        m_firstBadLine = m_line;
}

/// The number of columns says which kind of record it is: in a file with several kinds they follow in any order.
bool RecordingReader::parse(QByteArrayView line, RecordedRow &row) const
{
    constexpr qint64 kMaxU32 = 0xFFFFFFFF;
    constexpr qint64 kMaxTimeS = 9'000'000'000; // in the year 2255, and still a number of nanoseconds in 64 bits
    const auto columns = 1 + std::count(line.cbegin(), line.cend(), m_separator);
    Fields fields(line, m_separator);
    switch (columns) {
    case csv_header::kColumns91: {
        row.kind = RecordedRow::Kind::Record91;
        row.unixTimeS = fields.whole(0, kMaxTimeS);
        node_data_t &node = row.nodes.emplace_back();
        node.time_ms = quint32(fields.whole(0, kMaxU32));
        node.pressure = fields.real();
        node.temperature = fields.real();
        readMotion(fields, node);
        return fields.ok();
    }
    case csv_header::kColumns62:
        row.kind = RecordedRow::Kind::Record62;
        row.unixTimeS = fields.whole(0, kMaxTimeS);
        readGroups(fields, row.nodes);
        return fields.ok();
    case csv_header::kColumns63:
        row.kind = RecordedRow::Kind::Record63;
        row.timestampMs = quint32(fields.whole(0, kMaxU32));
        row.unixTimeS = fields.whole(0, kMaxTimeS);
        readGroups(fields, row.nodes);
        return fields.ok();
    default:
        return false;
    }
}
