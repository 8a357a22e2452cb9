#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <cmath>

#include "link/imu_parser.h"
#include "link/kv_uart_port.h"
#include "link/stream_dispatcher.h"
#include "record/recorder.h"
#include "simulator/csv_recording.h"
#include "simulator/sample_source.h"
#include "support/simulator_process.h"

using kvsim::ImuSample;

namespace {

constexpr int kTimeoutMs = 120'000;
constexpr int kGroups = 16;

/// A device on a pseudo-terminal, recorded the way the program does.
class Pipeline
{
public:
    explicit Pipeline(const QStringList &device) : m_simulator(device)
    {
        QObject::connect(&m_port, &KvUartPort::kbootRecv, &m_parser, [this](const QByteArray &payload) {
            ++frames;
            m_dispatcher.publishFrame(m_parser.parseFrame(payload));
        });
        QObject::connect(&m_dispatcher, &StreamDispatcher::singleNodeFrame, &m_recorder, &Recorder::imuPackage0x91);
        QObject::connect(&m_dispatcher, &StreamDispatcher::gatewayBatch62, &m_recorder, &Recorder::imuPackage0x62);
        QObject::connect(&m_dispatcher, &StreamDispatcher::gatewayBatch63, &m_recorder, &Recorder::imuPackage0x63);
        m_recorder.setLinkOpen(true);
    }

    /// Records at least `count` frames, stops, and returns the file's lines.
    QByteArrayList record(int count)
    {
        QByteArrayList lines;
        [&] {
            m_recorder.start(m_folder.path(), QStringLiteral("data"));
            m_port.openUART(m_simulator.port(), 921600);
            QTRY_VERIFY_WITH_TIMEOUT(frames >= count, kTimeoutMs);
            QVERIFY(m_simulator.control("silent on"));
            const qint64 sent = m_simulator.stat("frames_sent");
            QTRY_COMPARE_WITH_TIMEOUT(frames, sent, kTimeoutMs);
            m_recorder.setLinkOpen(false);
            m_recorder.waitForFile();
            m_port.closeUART();
            QVERIFY(!m_recorder.hasTrouble());
            QCOMPARE(qint64(m_recorder.recordCount()), sent);
            const QStringList files = QDir(m_folder.path()).entryList({QStringLiteral("data_*.csv")});
            QCOMPARE(files.size(), 1);
            QFile file(m_folder.filePath(files.first()));
            QVERIFY(file.open(QIODevice::ReadOnly));
            lines = file.readAll().split('\n');
            QVERIFY(lines.takeLast().isEmpty());
        }();
        return lines;
    }

    qint64 frames = 0; ///< received through the port

private:
    QTemporaryDir m_folder;
    SimulatorProcess m_simulator;
    KvUartPort m_port;
    ImuParser m_parser;
    StreamDispatcher m_dispatcher;
    Recorder m_recorder;
};

struct Field
{
    double value;
    double step; ///< the file's precision
};

/// A sample's motion values in the order of the file's columns.
QList<Field> motionFields(const ImuSample &sample, double gyrStep)
{
    QList<Field> fields;
    const auto add = [&fields](auto values, double step) {
        for (const float value : values)
            fields.append({double(value), step});
    };
    add(sample.acc, 0.001);
    add(sample.gyr, gyrStep);
    add(sample.mag, 0.01);
    add(std::array{sample.roll, sample.pitch, sample.yaw}, 0.01);
    add(sample.quat, 0.001);
    return fields;
}

/// The index of the first cell that is not its field rounded to the file's precision; -1 when all are.
int firstDifference(const QByteArrayList &cells, int at, const QList<Field> &fields, double slack = 1e-6)
{
    for (const Field &field : fields) {
        bool isNumber = false;
        const double recorded = cells.value(at).toDouble(&isNumber);
        if (!isNumber || !(std::abs(recorded - field.value) <= field.step / 2 + slack))
            return at;
        ++at;
    }
    return -1;
}

/// A recording of two seconds in which no two rows are alike.
QString writeSource(const QTemporaryDir &folder)
{
    QFile file(folder.filePath(QStringLiteral("source.csv")));
    QByteArray text = "Time (s),Gyroscope X (deg/s),Gyroscope Y (deg/s),Gyroscope Z (deg/s),Accelerometer X (g),"
                      "Accelerometer Y (g),Accelerometer Z (g),Magnetometer X (uT),Magnetometer Y (uT),"
                      "Magnetometer Z (uT)\n";
    for (int row = 0; row < 1000; ++row) {
        text += QByteArray::number(0.002 * row, 'f', 4);
        const double amplitudes[] = {450, -300, 120.5, 1.5, 0.7, -2.25, 40, 25, -33};
        for (int i = 0; i < 9; ++i)
            text += ',' + QByteArray::number(amplitudes[i] * std::sin(0.011 * (i + 1) * row + i), 'f', 7);
        text += '\n';
    }
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() ? file.fileName() : QString();
}

} // namespace

class TestRecording : public QObject
{
    Q_OBJECT

private slots:
    /// Compares every value of every record with the file that the device plays. KV_REPLAY names another file.
    void replayedFileComesBack()
    {
        const QTemporaryDir folder;
        const QString path = qEnvironmentVariable("KV_REPLAY", writeSource(folder));
        QString error;
        const auto source = kvsim::CsvRecording::load(path, kvsim::AxisConvention::FluZyx, &error);
        QVERIFY2(source, qPrintable(error));
        const auto start = QDateTime::currentSecsSinceEpoch();
        Pipeline pipeline({QStringLiteral("--device"), QStringLiteral("mz221"), QStringLiteral("--replay"), path});
        const QByteArrayList lines = pipeline.record(int(source->rowCount()));
        QCOMPARE(lines.size(), pipeline.frames + 1);
        const auto end = QDateTime::currentSecsSinceEpoch();

        const auto difference = [&](qsizetype line, quint64 row) {
            const ImuSample sample = source->sampleAt(row);
            const QList<Field> air{{double(sample.pressure), 0.1}, {double(sample.temperature), 1e-4}};
            const QByteArrayList cells = lines[line].split(',');
            return cells.size() != 20 ? 0 : firstDifference(cells, 2, air + motionFields(sample, 0.001));
        };
        quint64 first = 0; // the row due when the port was opened
        const auto isThere = [&](quint64 row) {
            for (qsizetype line = 1; line < 100; ++line) {
                if (difference(line, row + quint64(line)) >= 0)
                    return false;
            }
            return true;
        };
        while (first < source->rowCount() && !isThere(first))
            ++first;
        QVERIFY2(first < source->rowCount(), "the recording does not begin with any part of the source");

        qint64 timeBefore = -1;
        for (qsizetype line = 1; line < lines.size(); ++line) {
            const int place = difference(line, first + quint64(line));
            QVERIFY2(place < 0, qPrintable(QStringLiteral("line %1, column %2").arg(line + 1).arg(place + 1)));
            const QByteArrayList cells = lines[line].split(',');
            QVERIFY(cells[0].toLongLong() >= start && cells[0].toLongLong() <= end);
            const double step = double(cells[1].toLongLong() - timeBefore);
            const bool isNext = std::abs(step - 1000 / source->rateHz()) <= 1;
            QVERIFY2(line == 1 || isNext || step > 400, cells[1]); // the device skips what a stopped process missed
            timeBefore = cells[1].toLongLong();
        }
    }

    void gatewayLosesNothing()
    {
        const char *layouts[] = {"62", "63", "dynamic"};
        for (const char *layout : layouts) {
            Pipeline pipeline({QStringLiteral("--device"), QStringLiteral("gateway"), QStringLiteral("--layout"),
                               QLatin1String(layout), QStringLiteral("--nodes"), QStringLiteral("16"),
                               QStringLiteral("--fixed"), QStringLiteral("--rate"), QStringLiteral("250")});
            const QByteArrayList lines = pipeline.record(400);
            int headers = 0;
            for (const QByteArray &line : lines) {
                if (line.contains("Node")) {
                    ++headers;
                    continue;
                }
                const QByteArrayList cells = line.split(',');
                const int times = int(cells.size()) - 17 * kGroups;
                QVERIFY2(times == 1 || times == 2, line);
                for (int group = 0; group < kGroups; ++group) {
                    const int at = times + 17 * group;
                    QCOMPARE(cells[at], QByteArray::number(group + 1));
                    const double slack = times == 2 ? 1.0 / 32767 : 1e-6; // of a compact record's quaternion
                    const int place =
                        firstDifference(cells, at + 1, motionFields(kvsim::fixedSample(group), 0.01), slack);
                    QVERIFY2(place < 0, layout + QByteArray(", column ") + QByteArray::number(place + 1));
                }
            }
            QCOMPARE(headers, qstrcmp(layout, "dynamic") == 0 ? 2 : 1);
            QCOMPARE(lines.size() - headers, pipeline.frames);
        }
    }
};

QTEST_GUILESS_MAIN(TestRecording)
#include "tst_recording.moc"
