#include "simulator/csv_recording.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cmath>

#include "simulator/attitude_filter.h"
#include "simulator/motion_model.h"

namespace kvsim {

namespace {

constexpr qint64 kMaxLineBytes = 8192;
constexpr double kLargestValue = 1e6;
constexpr std::size_t kRequiredColumns = 7;

struct Column
{
    const char *name;  // what the header's cell starts with, lower case
    const char *label; // what messages call it
};

// In the order in which a row's values are kept; the last three are optional.
constexpr std::array<Column, 10> kColumns{{
    {"time", "Time (s)"},
    {"gyroscope x", "Gyroscope X (deg/s)"},
    {"gyroscope y", "Gyroscope Y (deg/s)"},
    {"gyroscope z", "Gyroscope Z (deg/s)"},
    {"accelerometer x", "Accelerometer X (g)"},
    {"accelerometer y", "Accelerometer Y (g)"},
    {"accelerometer z", "Accelerometer Z (g)"},
    {"magnetometer x", "Magnetometer X (uT)"},
    {"magnetometer y", "Magnetometer Y (uT)"},
    {"magnetometer z", "Magnetometer Z (uT)"},
}};

using ColumnPlaces = std::array<qsizetype, kColumns.size()>;

ColumnPlaces findColumns(const QByteArray &header)
{
    ColumnPlaces places;
    places.fill(-1);
    const QList<QByteArray> cells = header.toLower().split(',');
    for (qsizetype i = 0; i < cells.size(); ++i) {
        QByteArray cell = cells.at(i).simplified();
        cell.replace('"', "");
        for (std::size_t c = 0; c < kColumns.size(); ++c) {
            if (places[c] < 0 && cell.startsWith(kColumns[c].name))
                places[c] = i;
        }
    }
    return places;
}

bool hasField(const ColumnPlaces &places)
{
    return std::all_of(places.begin() + kRequiredColumns, places.end(), [](qsizetype place) { return place >= 0; });
}

bool readRow(const QByteArray &line, const ColumnPlaces &places, std::array<double, kColumns.size()> &values)
{
    const QList<QByteArray> cells = line.split(',');
    const std::size_t count = hasField(places) ? kColumns.size() : kRequiredColumns;
    for (std::size_t c = 0; c < count; ++c) {
        if (places[c] >= cells.size())
            return false;
        bool ok = false;
        values[c] = cells.at(places[c]).trimmed().toDouble(&ok);
        if (!ok || !(std::abs(values[c]) <= kLargestValue))
            return false;
    }
    return true;
}

double medianRate(std::vector<float> &steps)
{
    if (steps.empty())
        return 100.0;
    const auto middle = steps.begin() + std::ptrdiff_t(steps.size() / 2);
    std::nth_element(steps.begin(), middle, steps.end());
    return std::clamp(1.0 / double(*middle), 1.0, 2000.0);
}

std::array<float, 3> triple(const std::array<double, kColumns.size()> &values, std::size_t first)
{
    return {float(values[first]), float(values[first + 1]), float(values[first + 2])};
}

Vector3 toDoubles(const std::array<float, 3> &v)
{
    return {double(v[0]), double(v[1]), double(v[2])};
}

} // namespace

std::optional<CsvRecording> CsvRecording::load(const QString &path, AxisConvention convention, QString *error)
{
    const QFileInfo info(path);
    if (!info.exists() || !info.isFile()) {
        *error = info.exists() ? QStringLiteral("%1 is not a file").arg(path)
                               : QStringLiteral("%1 does not exist").arg(path);
        return {};
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = QStringLiteral("cannot read %1: %2").arg(path, file.errorString());
        return {};
    }
    std::optional<CsvRecording> recording = read(file, convention, error);
    if (!recording)
        *error = QStringLiteral("%1: %2").arg(path, *error);
    return recording;
}

std::optional<CsvRecording> CsvRecording::read(QIODevice &device, AxisConvention convention, QString *error)
{
    qint64 bytesRead = 0;
    qint64 lineNumber = 0;
    const auto nextLine = [&](QByteArray &line) {
        // One byte more than allowed distinguishes a line that is too long from one that just fits.
        line = device.readLine(kMaxLineBytes + 2);
        bytesRead += line.size();
        ++lineNumber;
        return !line.isEmpty();
    };
    const auto tooLong = [&](const QByteArray &line) {
        if (line.size() <= kMaxLineBytes)
            return false;
        *error = QStringLiteral("line %1 is longer than %2 bytes").arg(lineNumber).arg(kMaxLineBytes);
        return true;
    };

    QByteArray line;
    if (!nextLine(line)) {
        *error = QStringLiteral("the file is empty");
        return {};
    }
    if (tooLong(line))
        return {};
    if (line.startsWith("\xEF\xBB\xBF"))
        line.remove(0, 3);
    const ColumnPlaces places = findColumns(line);
    for (std::size_t c = 0; c < kRequiredColumns; ++c) {
        if (places[c] < 0) {
            *error = QStringLiteral("column \"%1\" is missing").arg(QLatin1String(kColumns[c].label));
            return {};
        }
    }

    CsvRecording recording;
    recording.m_convention = convention;
    std::vector<float> steps;
    std::array<double, kColumns.size()> values{};
    double lastTime = 0.0;
    while (nextLine(line)) {
        if (tooLong(line))
            return {};
        if (recording.m_rows.size() >= kMaxRows || bytesRead > kMaxBytes) {
            recording.m_truncated = true;
            break;
        }
        if (line.trimmed().isEmpty())
            continue;
        if (!readRow(line, places, values)) {
            ++recording.m_skippedRows;
            continue;
        }
        if (!recording.m_rows.empty() && values[0] > lastTime)
            steps.push_back(float(values[0] - lastTime));
        lastTime = values[0];
        recording.m_rows.push_back({triple(values, 1), triple(values, 4), triple(values, 7), {}});
    }
    if (recording.m_rows.empty()) {
        *error = QStringLiteral("no row of numbers after the header");
        return {};
    }
    recording.m_rateHz = medianRate(steps);
    recording.computeAttitude(!hasField(places));
    return recording;
}

void CsvRecording::computeAttitude(bool computeField)
{
    AttitudeFilter filter;
    const double step = 1.0 / m_rateHz;
    for (Row &row : m_rows) {
        const Quaternion q = filter.update(toDoubles(row.gyr), toDoubles(row.acc), step);
        row.quat = {float(q.w), float(q.x), float(q.y), float(q.z)};
        if (computeField)
            row.mag = toFloats(rotatedBack(q, worldMagneticField(m_convention)));
    }
}

ImuSample CsvRecording::sampleAt(quint64 row) const
{
    const Row &values = m_rows[row % m_rows.size()];
    ImuSample sample;
    sample.acc = values.acc;
    sample.gyr = values.gyr;
    sample.mag = values.mag;
    sample.quat = values.quat;
    const EulerAngles angles = eulerOf(
        {double(values.quat[0]), double(values.quat[1]), double(values.quat[2]), double(values.quat[3])}, m_convention);
    sample.roll = float(angles.roll);
    sample.pitch = float(angles.pitch);
    sample.yaw = float(angles.yaw);
    return sample;
}

} // namespace kvsim
