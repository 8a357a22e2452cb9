#include <QTemporaryDir>
#include <QtTest>

#include <cmath>
#include <limits>
#include <random>
#include <sys/resource.h>

#include "link/imu_parser.h"
#include "link/kboot_protocol.h"
#include "record/csv_header.h"
#include "record/csv_writer.h"
#include "record/recording_encoder.h"
#include "record/recording_source.h"

namespace {

constexpr qint64 kSecondNs = 1'000'000'000;

/// Numbers that a device may send, on the steps of the compact record.
node_data_t sample(int id, std::mt19937 &random)
{
    const auto steps = [&random](float scale) { return float(int(random() % 60001) - 30000) / scale; };
    node_data_t node;
    node.id = quint8(id);
    for (int i = 0; i < 3; ++i) {
        node.acc[i] = steps(1000);
        node.gyr[i] = steps(10);
        node.mag[i] = steps(10);
    }
    node.roll = steps(100);
    node.pitch = steps(100);
    node.yaw = steps(100);
    for (float &value : node.quat)
        value = steps(32767);
    return node;
}

/// Decodes like the live stream and writes the result as another recording.
class Pipeline
{
public:
    explicit Pipeline(const QString &path) : m_writer(path)
    {
        QObject::connect(&m_deframer, &KbootProtocol::kbootRecv, &m_parser, [this](const QByteArray &payload) {
            const DecodedFrame frame = m_parser.parseFrame(payload);
            QList<node_data_t> nodes;
            for (const NodeSnapshot &node : frame.nodes)
                nodes.append(node.sample);
            if (frame.family == frame_family::GatewayBatch62)
                m_writer.enqueue62(nodes);
            else if (frame.family == frame_family::GatewayBatch63)
                m_writer.enqueue63(nodes, frame.gw_ts_ms);
            else
                m_writer.enqueue91(nodes.value(0));
            m_writer.drainPending();
        });
    }
    void feed(const QByteArray &bytes) { m_deframer.serial_read(bytes); }
    QString end()
    {
        m_writer.flushPendingAndClose();
        return m_writer.filePath();
    }
    LinkHealth health() const { return m_deframer.health(); }

private:
    KbootProtocol m_deframer;
    ImuParser m_parser;
    CsvWriter m_writer;
};

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
}

/// The lines with the computer's time as 0.
QByteArrayList timeless(const QString &path)
{
    QByteArrayList lines = contentOf(path).split('\n');
    for (QByteArray &line : lines) {
        QByteArrayList fields = line.split(',');
        if (fields.size() > 1)
            fields[fields.size() == csv_header::kColumns63 ? 1 : 0] = "0";
        line = fields.join(',');
    }
    return lines;
}

QByteArray line91(qint64 second, const QByteArray &accX = "0.100", int timeMs = 1)
{
    return QByteArray::number(second) + ',' + QByteArray::number(timeMs) + ",0,0," + accX
           + QByteArray(",0").repeated(15) + '\n';
}

} // namespace

class TestRecordingSource : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    QString path(const char *name) const { return m_folder.filePath(QLatin1String(name)); }
    QString write(const QByteArray &content) const
    {
        QFile file(path("given.csv"));
        file.open(QIODevice::WriteOnly);
        file.write(content);
        return file.fileName();
    }

private slots:
    /// Recorded, rebuilt, decoded and recorded again: every column is the same.
    void sameValuesAgain()
    {
        std::mt19937 random(5);
        CsvWriter writer(path("first.csv"));
        for (int i = 0; i < 300; ++i) {
            node_data_t single = sample(0, random);
            single.time_ms = quint32(random());
            single.pressure = 101325.0F + float(i);
            single.temperature = float(i % 256 - 128);
            if (i == 10)
                single.acc[0] = std::numeric_limits<float>::quiet_NaN();
            if (i == 11)
                single.gyr[2] = -std::numeric_limits<float>::infinity();
            if (i == 12)
                single.mag[1] = 1e20F;
            writer.enqueue91(single);
            QList<node_data_t> nodes;
            for (int id = i < 20 ? 3 : 0; id < 16; ++id) {
                if (id != i % 16) // a silent one
                    nodes.append(sample(id + 1, random));
            }
            writer.enqueue62(nodes);
            writer.enqueue63(i == 50 ? QList<node_data_t>() : nodes, quint32(random()));
            writer.drainPending();
        }
        writer.flushPendingAndClose();

        RecordingSource source;
        QVERIFY2(source.open(writer.filePath()), qPrintable(source.error()));
        Pipeline pipeline(path("second.csv"));
        qint64 before = source.startNs();
        int count = 0;
        for (QList<TimedBytes> part = source.read(); !part.isEmpty(); part = source.read()) {
            for (const TimedBytes &bytes : std::as_const(part)) {
                pipeline.feed(bytes.bytes);
                QVERIFY(bytes.timeNs >= before && bytes.timeNs <= source.endNs());
                before = bytes.timeNs;
                ++count;
            }
        }
        QCOMPARE(count, 900);
        QCOMPARE(source.badLines(), 0);
        QCOMPARE(pipeline.health().errors(), 0U);
        const QByteArrayList again = timeless(pipeline.end());
        const QByteArrayList first = timeless(writer.filePath());
        QCOMPARE(again.size(), first.size());
        for (qsizetype i = 0; i < first.size(); ++i) {
            const QByteArrayList fields = again[i].split(',');
            for (qsizetype k = 0; k < fields.size(); ++k)
                QVERIFY2(fields[k] == first[i].split(',').value(k), "line " + QByteArray::number(i) + " field "
                                                                        + QByteArray::number(k) + ": " + fields[k]
                                                                        + " not " + first[i].split(',').value(k));
        }
    }

    void linesOfASecondAreSpread()
    {
        QByteArray content = csv_header::line91();
        const struct
        {
            qint64 second;
            int lines;
            QList<qint64> timesMs; // of the first and the last, after second 100
        } rows[] = {{100, 4, {0, 750}},     {101, 1, {1000, 1000}},
                    {103, 2, {3000, 3500}}, {102, 2, {4000, 4500}}, // the clock was set back
                    {103, 1, {5000, 5000}}, {110, 5, {10000, 10800}}};
        for (const auto &row : rows)
            content += line91(row.second).repeated(row.lines);
        RecordingSource source;
        QVERIFY(source.open(write(content)));
        QCOMPARE(source.startNs(), 100 * kSecondNs);
        QCOMPARE(source.endNs(), 111 * kSecondNs - 1);
        for (const auto &row : rows) {
            const QList<TimedBytes> part = source.read();
            QCOMPARE(part.size(), row.lines);
            QCOMPARE((part.first().timeNs - source.startNs()) / 1'000'000, row.timesMs[0]);
            QCOMPARE((part.last().timeNs - source.startNs()) / 1'000'000, row.timesMs[1]);
        }
        QVERIFY(source.read().isEmpty());
        source.seek(100 * kSecondNs + 400'000'000);
        QCOMPARE(source.read().size(), 2);
        source.seek(104 * kSecondNs);
        QCOMPARE(source.read().size(), 5);
        source.seek(200 * kSecondNs);
        QVERIFY(source.read().isEmpty());
    }

    void hostileFiles_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QByteArray>("accX"); // of each line; "-": the file is refused
        QTest::addColumn<int>("badLines");
        const QByteArray header = csv_header::line91();
        const QByteArray good = line91(100, "0.100");
        const auto spreadsheet = [](QByteArray text) { return text.replace(',', ';').replace('.', ','); };
        QTest::newRow("empty") << QByteArray() << QByteArray("-") << 0;
        QTest::newRow("header only") << header << QByteArray("-") << 0;
        QTest::newRow("other columns") << "time,x,y\n1,2,3\n" + good << QByteArray("-") << 0;
        QTest::newRow("a column missing") << header.left(header.lastIndexOf(',')) + "\n" + good << QByteArray("-") << 0;
        QTest::newRow("binary") << QByteArray(100'000, '\0') << QByteArray("-") << 0;
        QTest::newRow("plain") << header + good + line91(101, "-0.250") << QByteArray("0.100 -0.250") << 0;
        QTest::newRow("spreadsheet") << "\xEF\xBB\xBF" + spreadsheet(header + good).replace('\n', "\r\n")
                                     << QByteArray("0.100") << 0;
        QTest::newRow("decimal commas between commas")
            << header + QByteArray(good).replace('.', ',') + good << QByteArray("0.100") << 1;
        QTest::newRow("cut") << header + good + good.chopped(5) << QByteArray("0.100") << 1;
        QTest::newRow("no end of line") << header + good.chopped(1) << QByteArray("0.100") << 0;
        QTest::newRow("not a number") << header + line91(100, "nan") + line91(100, "x") + line91(100, "")
                                      << QByteArray("nan") << 2;
        QTest::newRow("numbers out of range")
            << header + line91(-1) + line91(99'999'999'999) + line91(100, "1e999") + line91(100, "1.5e1")
            << QByteArray("15.000") << 3;
        QTest::newRow("header again") << header + good + header + good << QByteArray("0.100 0.100") << 0;
        QTest::newRow("huge line") << header + good + QByteArray(3'000'000, ',') + "\n" + good
                                   << QByteArray("0.100 0.100") << 1;
        QTest::newRow("huge last line") << header + good + QByteArray(3'000'000, '1') << QByteArray("0.100") << 1;
        QTest::newRow("text between") << header + "hello\n\n" + good << QByteArray("0.100") << 2;
        QTest::newRow("node id out of range")
            << csv_header::line62() + "100,256" + QByteArray(",0").repeated(16) + QByteArray(15 * 17, ',') + "\n"
            << QByteArray("-") << 1;
    }
    void hostileFiles()
    {
        QFETCH(QByteArray, content);
        QFETCH(QByteArray, accX);
        QFETCH(int, badLines);
        RecordingSource source;
        const bool isOpen = source.open(write(content));
        QCOMPARE(isOpen, accX != "-");
        QCOMPARE(source.error().isEmpty(), isOpen);
        if (!isOpen)
            return;
        ImuParser parser;
        QByteArrayList found;
        for (QList<TimedBytes> part = source.read(); !part.isEmpty(); part = source.read()) {
            for (const TimedBytes &bytes : std::as_const(part))
                found.append(
                    QByteArray::number(double(parser.parseFrame(bytes.bytes.mid(6)).nodes[0].sample.acc[0]), 'f', 3));
        }
        QCOMPARE(found.join(' '), accX);
        QCOMPARE(source.badLines(), badLines);
    }

    void valuesOutsideTheirField()
    {
        RecordedRow row{RecordedRow::Kind::Record63, 0, 7, {node_data_t()}};
        row.nodes[0].acc[0] = 1e9F;
        row.nodes[0].acc[1] = -1e9F;
        row.nodes[0].acc[2] = std::numeric_limits<float>::quiet_NaN();
        const node_data_t node = ImuParser().parseFrame(recording_encoder::packet(row).mid(6)).nodes.value(0).sample;
        QCOMPARE(node.acc[0], 32.767F);
        QCOMPARE(node.acc[1], -32.768F);
        QCOMPARE(node.acc[2], 0.0F);
    }

    /// Memory stays small, and a place is found at once.
    void largeFile()
    {
        constexpr qint64 kSize = qint64(256) << 20;
        QFile file(path("huge.csv"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(csv_header::line91());
        qint64 second = 1'700'000'000;
        for (; file.pos() < kSize; ++second)
            file.write(line91(second).repeated(1000));
        file.close();
        rusage before;
        getrusage(RUSAGE_SELF, &before);
        RecordingSource source;
        QElapsedTimer time;
        time.start();
        QVERIFY(source.open(file.fileName()));
        QCOMPARE(source.endNs(), second * kSecondNs - 1);
        for (const qint64 at : {1'700'000'000LL, second / 2 + 850'000'000LL, second - 1}) {
            source.seek(at * kSecondNs + kSecondNs / 2);
            const QList<TimedBytes> part = source.read();
            QCOMPARE(part.size(), 500);
            QCOMPARE(part.first().timeNs, at * kSecondNs + kSecondNs / 2);
        }
        QVERIFY2(time.elapsed() < 400, QByteArray::number(time.elapsed()));
        rusage after;
        getrusage(RUSAGE_SELF, &after);
        QVERIFY(after.ru_maxrss - before.ru_maxrss < 32 * 1024); // KiB
        QFile::remove(file.fileName());
    }
};

QTEST_GUILESS_MAIN(TestRecordingSource)
#include "tst_recording_source.moc"
