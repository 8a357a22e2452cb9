#pragma once

#include <QString>

#include <optional>
#include <vector>

#include "simulator/imu_sample.h"
#include "simulator/rotation.h"

class QIODevice;

namespace kvsim {

/// A recording of an inertial sensor read from a CSV file, with an attitude computed for each row.
///
/// The first line names the columns; they are found by name, in any order and letter case, and others are ignored:
/// "Time (s)", "Gyroscope X (deg/s)" and "Accelerometer X (g)" with Y and Z, and, if all three are there, "Magnetometer
/// X (uT)" with Y and Z. Without a magnetometer the field follows from the attitude. Rows that cannot be read (missing
/// or non-finite values, magnitudes over 1e6) are left out and counted.
///
/// The file is taken as hostile: lines are at most 8 KiB, and reading ends after kMaxRows rows or kMaxBytes bytes, so
/// memory stays below about 250 MiB whatever the file holds.
class CsvRecording
{
public:
    static constexpr std::size_t kMaxRows = 2'000'000;
    static constexpr qint64 kMaxBytes = 512LL * 1024 * 1024;

    /// Reads a regular file. Nothing is returned on failure, and `error` says why in one sentence.
    static std::optional<CsvRecording> load(const QString &path, AxisConvention convention, QString *error);
    /// The same from an open device; never reads beyond these limits.
    static std::optional<CsvRecording> read(QIODevice &device, AxisConvention convention, QString *error);

    std::size_t rowCount() const { return m_rows.size(); }
    qint64 skippedRows() const { return m_skippedRows; }
    /// The file exceeded the limits and its end was left out.
    bool truncated() const { return m_truncated; }
    /// One over the median time step of the rows, within 1..2000; 100 when the times do not advance.
    double rateHz() const { return m_rateHz; }

    /// The sample of a row; the row number wraps around, so any number is valid.
    ImuSample sampleAt(quint64 row) const;

private:
    struct Row
    {
        std::array<float, 3> gyr;
        std::array<float, 3> acc;
        std::array<float, 3> mag;
        std::array<float, 4> quat;
    };

    void computeAttitude(bool computeField);

    std::vector<Row> m_rows;
    AxisConvention m_convention = AxisConvention::FluZyx;
    qint64 m_skippedRows = 0;
    double m_rateHz = 100.0;
    bool m_truncated = false;
};

} // namespace kvsim
