#include <QBuffer>
#include <QTemporaryDir>
#include <QtTest>

#include <cmath>

#include "simulator/csv_recording.h"

using namespace kvsim;

namespace {

const QByteArray kHeader = "Time (s),Gyroscope X (deg/s),Gyroscope Y (deg/s),Gyroscope Z (deg/s),"
                           "Accelerometer X (g),Accelerometer Y (g),Accelerometer Z (g)\n";

QString error; ///< of the last text

std::optional<CsvRecording> parse(QByteArray text)
{
    QBuffer buffer(&text);
    buffer.open(QIODevice::ReadOnly);
    error.clear();
    return CsvRecording::read(buffer, AxisConvention::FluZyx, &error);
}

} // namespace

class TestSimRecording : public QObject
{
    Q_OBJECT

private slots:
    void hostile()
    {
        const struct
        {
            const char *name;
            QByteArray text;
            int rows; // -1: refused
            int skipped;
            const char *message;
        } rows[] = {
            {"empty", "", -1, 0, "empty"},
            {"header only", kHeader, -1, 0, "no row"},
            {"missing column", "Time (s),Gyroscope X (deg/s)\n0,1\n", -1, 0, "Gyroscope Y"},
            {"binary", QByteArray(5000, '\0') + "\n", -1, 0, "Time (s)"},
            {"endless first line", QByteArray(100'000, 'a'), -1, 0, "line 1 is longer"},
            {"endless later line", kHeader + "0,0,0,0,0,0,1\n" + QByteArray(100'000, '1'), -1, 0, "line 3 is longer"},
            {"garbage", kHeader + "0,0,0,0,0,0,1\nhello\n\n1,2,3\n0.01,1,2,3,0,x,1\n0.02,0,0,0,0,0,1\n", 2, 3, ""},
            {"no finite number", kHeader + "0,nan,0,0,0,0,1\n0,0,inf,0,0,0,1\n0,1e300,0,0,0,0,1\n", -1, 0, "no row"},
            {"no line end at the end", kHeader.trimmed() + "\r\n0,0,0,0,0,0,1", 1, 0, ""},
            {"zero gravity", kHeader + "0,0,0,0,0,0,0\n0,0,0,0,0,0,0\n", 2, 0, ""},
        };
        for (const auto &row : rows) {
            const std::optional<CsvRecording> recording = parse(row.text);
            QVERIFY2((recording ? int(recording->rowCount()) : -1) == row.rows, row.name);
            QVERIFY2(error.contains(QLatin1String(row.message)) && error.isEmpty() == !*row.message, row.name);
            QVERIFY2(!recording || recording->skippedRows() == row.skipped, row.name);
            QVERIFY2(!recording || std::isfinite(recording->sampleAt(0).quat[0]), row.name);
        }
    }

    void columnsByName()
    {
        const ImuSample sample = parse("\xEF\xBB\xBF\"Magnetometer Z (uT)\",accelerometer z (g),Accelerometer Y,"
                                       "Accelerometer X (g),Note,Gyroscope X (deg/s),Gyroscope Y (deg/s),"
                                       "Gyroscope Z (deg/s),Magnetometer X (uT),Magnetometer Y (uT),Time (s)\n"
                                       "9,3,2,1,hello,4,5,6,7,8,0\n")
                                     .value()
                                     .sampleAt(0);
        QCOMPARE(sample.acc, (std::array<float, 3>{1, 2, 3}));
        QCOMPARE(sample.gyr, (std::array<float, 3>{4, 5, 6}));
        QCOMPARE(sample.mag, (std::array<float, 3>{7, 8, 9}));
    }

    void rateAndLoop()
    {
        // Duplicate and late rows do not disturb the median step.
        const CsvRecording recording = parse(kHeader
                                             + "0,1,0,0,0,0,1\n0.005,2,0,0,0,0,1\n0.005,3,0,0,0,0,1\n"
                                               "0.010,4,0,0,0,0,1\n0.9,5,0,0,0,0,1\n0.905,6,0,0,0,0,1\n")
                                           .value();
        QVERIFY(std::abs(recording.rateHz() - 200.0) < 0.1);
        QVERIFY(recording.sampleAt(5).gyr[0] == 6.0F && recording.sampleAt(6).gyr[0] == 1.0F);
    }

    void fieldFollowsFromAttitude()
    {
        // Lying on its left side: the world's up is the device's -y, so the field's downward part is on +y.
        const ImuSample sample = parse(kHeader + "0,0,0,0,0,-1,0\n").value().sampleAt(0);
        QVERIFY(std::abs(sample.mag[1] - 45.0F) < 1e-3F);
        QVERIFY(std::abs(sample.roll + 90.0F) < 1e-3F);
    }

    void rowsAreBounded()
    {
        const qsizetype count = CsvRecording::kMaxRows + 1;
        const CsvRecording recording = parse(kHeader + QByteArray("0,0,0,0,0,0,1\n").repeated(count)).value();
        QCOMPARE(recording.rowCount(), CsvRecording::kMaxRows);
        QVERIFY(recording.truncated());
    }

    void refusesWhatIsNotAFile()
    {
        const QTemporaryDir folder;
        for (const QString &path :
             {folder.path(), folder.path() + QLatin1String("/none"), QStringLiteral("/dev/zero")}) {
            QVERIFY2(!CsvRecording::load(path, AxisConvention::FluZyx, &error) && error.contains(path),
                     qPrintable(path));
        }
    }
};

QTEST_APPLESS_MAIN(TestSimRecording)
#include "tst_sim_recording.moc"
