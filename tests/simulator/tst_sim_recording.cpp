#include <QBuffer>
#include <QTemporaryDir>
#include <QtTest>

#include <cmath>

#include "simulator/csv_recording.h"

using namespace kvsim;

static const QByteArray kHeader = "Time (s),Gyroscope X (deg/s),Gyroscope Y (deg/s),Gyroscope Z (deg/s),"
                                  "Accelerometer X (g),Accelerometer Y (g),Accelerometer Z (g)";

class TestSimRecording : public QObject
{
    Q_OBJECT

private slots:
    void hostile_data();
    void hostile();
    void columnsByName();
    void rateAndLoop();
    void fieldFollowsFromAttitude();
    void rowsAreBounded();
    void refusesWhatIsNoFile();

private:
    static std::optional<CsvRecording> parse(QByteArray text, QString *error)
    {
        QBuffer buffer(&text);
        buffer.open(QIODevice::ReadOnly);
        return CsvRecording::read(buffer, AxisConvention::FluZyx, error);
    }
};

void TestSimRecording::hostile_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("rows"); // -1: refused
    QTest::addColumn<int>("skipped");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *name, const QByteArray &text, int rows, int skipped, const char *message) {
        QTest::newRow(name) << text << rows << skipped << QString::fromLatin1(message);
    };
    row("empty", "", -1, 0, "empty");
    row("header only", kHeader + "\n", -1, 0, "no row");
    row("missing column", "Time (s),Gyroscope X (deg/s)\n0,1\n", -1, 0, "Gyroscope Y");
    row("binary", QByteArray(5000, '\0') + "\n", -1, 0, "Time (s)");
    row("endless first line", QByteArray(100'000, 'a'), -1, 0, "line 1 is longer");
    row("endless later line", kHeader + "\n0,0,0,0,0,0,1\n" + QByteArray(100'000, '1'), -1, 0, "line 3 is longer");
    row("garbage among rows", kHeader + "\n0,0,0,0,0,0,1\nhello\n\n1,2,3\n0.01,1,2,3,0,x,1\n0.02,0,0,0,0,0,1\n", 2, 3,
        "");
    row("no finite number", kHeader + "\n0,nan,0,0,0,0,1\n0,0,inf,0,0,0,1\n0,1e300,0,0,0,0,1\n", -1, 0, "no row");
    row("no line end at the end", kHeader + "\r\n0,0,0,0,0,0,1", 1, 0, "");
    row("zero gravity", kHeader + "\n0,0,0,0,0,0,0\n0,0,0,0,0,0,0\n", 2, 0, "");
}

void TestSimRecording::hostile()
{
    QFETCH(QByteArray, text);
    QFETCH(int, rows);
    QFETCH(int, skipped);
    QFETCH(QString, message);
    QString error;
    const std::optional<CsvRecording> recording = parse(text, &error);
    QCOMPARE(recording ? int(recording->rowCount()) : -1, rows);
    QVERIFY2(error.contains(message) && error.isEmpty() == message.isEmpty(), qPrintable(error));
    if (recording) {
        QCOMPARE(recording->skippedRows(), skipped);
        QVERIFY(std::isfinite(recording->sampleAt(0).quat[0]));
    }
}

void TestSimRecording::columnsByName()
{
    QString error;
    const auto recording = parse("\xEF\xBB\xBF\"Magnetometer Z (uT)\",accelerometer z (g),Accelerometer Y (g),"
                                 "Accelerometer X (g),Note,Gyroscope X (deg/s),Gyroscope Y (deg/s),"
                                 "Gyroscope Z (deg/s),Magnetometer X (uT),Magnetometer Y (uT),Time (s)\n"
                                 "9,3,2,1,hello,4,5,6,7,8,0\n",
                                 &error);
    QVERIFY2(recording, qPrintable(error));
    const ImuSample sample = recording->sampleAt(0);
    QCOMPARE(sample.acc, (std::array<float, 3>{1, 2, 3}));
    QCOMPARE(sample.gyr, (std::array<float, 3>{4, 5, 6}));
    QCOMPARE(sample.mag, (std::array<float, 3>{7, 8, 9}));
}

void TestSimRecording::rateAndLoop()
{
    // Doubled and late rows do not disturb the median step.
    QString error;
    const auto recording = parse(kHeader
                                     + "\n0,1,0,0,0,0,1\n0.005,2,0,0,0,0,1\n0.005,3,0,0,0,0,1\n0.010,4,0,0,0,0,1\n"
                                       "0.9,5,0,0,0,0,1\n0.905,6,0,0,0,0,1\n",
                                 &error);
    QVERIFY2(recording, qPrintable(error));
    QVERIFY(std::abs(recording->rateHz() - 200.0) < 0.1);
    QCOMPARE(recording->sampleAt(5).gyr[0], 6.0F);
    QCOMPARE(recording->sampleAt(6).gyr[0], 1.0F);
}

void TestSimRecording::fieldFollowsFromAttitude()
{
    // Lying on its left side: the world's up is the device's -y, so the field's downward part is on +y.
    QString error;
    const auto recording = parse(kHeader + "\n0,0,0,0,0,-1,0\n", &error);
    QVERIFY2(recording, qPrintable(error));
    const ImuSample sample = recording->sampleAt(0);
    QVERIFY(std::abs(sample.mag[1] - 45.0F) < 1e-3F);
    QVERIFY(std::abs(sample.roll + 90.0F) < 1e-3F);
}

void TestSimRecording::rowsAreBounded()
{
    // A device that never ends: only the limits end the reading.
    class Endless : public QIODevice
    {
    public:
        qint64 given = 0;

    protected:
        qint64 readData(char *data, qint64 size) override
        {
            static const QByteArray kLine = "0,0,0,0,0,0,1\n";
            const QByteArray header = kHeader + '\n';
            for (qint64 i = 0; i < size; ++i, ++given)
                data[i] = given < header.size() ? header.at(given) : kLine.at((given - header.size()) % kLine.size());
            return size;
        }
        qint64 writeData(const char *, qint64) override { return -1; }
    } endless;
    endless.open(QIODevice::ReadOnly);
    QString error;
    const auto recording = CsvRecording::read(endless, AxisConvention::FluZyx, &error);
    QVERIFY2(recording, qPrintable(error));
    QCOMPARE(recording->rowCount(), CsvRecording::kMaxRows);
    QVERIFY(recording->truncated());
}

void TestSimRecording::refusesWhatIsNoFile()
{
    const QTemporaryDir folder;
    QString error;
    QVERIFY(!CsvRecording::load(folder.path(), AxisConvention::FluZyx, &error));
    QVERIFY(error.contains(u"not a file"));
    QVERIFY(!CsvRecording::load(folder.filePath(QStringLiteral("none.csv")), AxisConvention::FluZyx, &error));
    QVERIFY(error.contains(u"does not exist"));
    QVERIFY(!CsvRecording::load(QStringLiteral("/dev/zero"), AxisConvention::FluZyx, &error));
}

QTEST_APPLESS_MAIN(TestSimRecording)
#include "tst_sim_recording.moc"
