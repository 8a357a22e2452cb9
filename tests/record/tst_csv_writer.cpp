#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <clocale>
#include <cmath>
#include <csignal>
#include <cstring>
#include <limits>
#include <random>
#include <sys/mount.h>

#include "record/number_text.h"
#include "record/recording_run.h"

namespace {

constexpr qint64 kFlushBytes = 65536;
constexpr int kQueue = 512;

node_data_t sample(quint8 id)
{
    node_data_t node{id, 25.5F, 0, 1000, {1.23456F, -0.5F, 0.75F}, {10.5F, -20.5F, 30.4567F}, {12.5F, -25, 37.456F}};
    std::tie(node.pressure, node.roll, node.pitch, node.yaw) = std::tuple(101325.0F, 10.0F, -20.0F, 30.005F);
    std::tie(node.quat[0], node.quat[1], node.quat[2], node.quat[3]) = std::tuple(0.8F, 0.2F, -0.4F, 0.4F);
    return node;
}

/// A writer whose clock the test sets.
class Writer : public CsvWriter
{
public:
    using CsvWriter::CsvWriter;
    QDateTime time;

    void put(const node_data_t &node = sample(1))
    {
        enqueue91(node);
        drainPending();
        QCoreApplication::removePostedEvents(this); // the drain that it requested
    }
    qint64 sizeOnDisk() const { return QFileInfo(filePath()).size(); }

protected:
    QDateTime now() const override { return time.isValid() ? time : CsvWriter::now(); }
};

QList<node_data_t> batch(std::initializer_list<int> ids)
{
    QList<node_data_t> nodes;
    for (const int id : ids)
        nodes.append(sample(quint8(id)));
    return nodes;
}

QByteArrayList linesOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {"cannot be read"};
    QByteArrayList lines = file.readAll().split('\n');
    lines.removeLast(); // empty, unless the writer was killed
    return lines;
}

/// The line without the field of the computer's time, or what is wrong with that field.
QByteArray timeless(const QByteArray &line, int timeField = 0)
{
    QByteArrayList fields = line.split(',');
    const qint64 age = QDateTime::currentSecsSinceEpoch() - fields.value(timeField).toLongLong();
    return age >= 0 && age < 60 ? (fields.removeAt(timeField), fields.join(',')) : "wrong time in " + line;
}

/// Writes lines with the numbers 0, 1, 2 ... for ever and reports every hundred on standard output; to be killed.
[[noreturn]] void recordForEver(const char *path)
{
    Writer writer(QString::fromLocal8Bit(path));
    for (quint32 i = 0;; ++i) {
        writer.put({1, 0, 0, i});
        if (i % 100 == 0 && std::printf("%u\n", i) > 0)
            std::fflush(stdout);
    }
}

} // namespace

class TestCsvWriter : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;

    QString path(const char *name = "data.csv") const { return m_folder->filePath(QLatin1String(name)); }

private slots:
    void initTestCase()
    {
        QLocale::setDefault(QLocale(QLocale::German)); // a comma for a point
        std::setlocale(LC_ALL, "de_DE.UTF-8");
        QCOMPARE(CsvWriter::staticMetaObject.methodCount() - CsvWriter::staticMetaObject.methodOffset(), 4);
    }
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir::setCurrent(m_folder->path()));
    }
    void cleanup() { QDir::setCurrent(QDir::rootPath()); }

    void linesOfAllKinds()
    {
        CsvWriter writer(path());
        node_data_t odd = sample(9);
        odd.acc[0] = std::numeric_limits<float>::quiet_NaN();
        odd.gyr[0] = -std::numeric_limits<float>::infinity();
        odd.mag[0] = 1e20F;
        odd.pressure = 1234567;
        odd.time_ms = 4294967295U;
        writer.enqueue91(sample(5));
        writer.enqueue62({sample(5), odd});
        writer.enqueue63(batch({7}), 4000000000U);
        writer.enqueue91(odd); // its header is already there
        writer.enqueue62({});
        writer.flushPendingAndClose();
        const QByteArrayList lines = linesOf(writer.filePath());
        QCOMPARE(lines.size(), 8);

        const QByteArray motion = "1.235,-0.500,0.750,10.50,-20.50,30.46,12.50,-25.00,37.46,10.00,-20.00,30.00,"
                                  "0.800,0.200,-0.400,0.400";
        QCOMPARE(lines[0],
                 "UnixTimeStamp(sec),Time(ms),Pressure(Pa),Temperature(°C),AccX[G],AccY[G],AccZ[G],GyrX[deg/s],"
                 "GyrY[deg/s],GyrZ[deg/s],MagX[uT],MagY[uT],MagZ[uT],Roll[deg],Pitch[deg],Yaw[deg],Qw,Qx,Qy,Qz");
        QCOMPARE(timeless(lines[1]),
                 "1000,101325,25.5,1.235,-0.500,0.750,10.500,-20.500,30.457,12.50,-25.00,37.46,10.00,-20.00,30.00,"
                 "0.800,0.200,-0.400,0.400");
        QCOMPARE(lines[4], "ts_ms(ms)," + lines[2]);
        QVERIFY(lines[2].startsWith("UnixTimeStamp(sec),Node1_ID,") && lines[2].endsWith(",Node16_Qy,Node16_Qz"));
        QCOMPARE(lines[2].count(','), 272);
        QVERIFY(lines[2].contains(",Node2_ID,Node2_AccX[G],Node2_AccY[G],Node2_AccZ[G],Node2_GyrX[deg/s],"
                                  "Node2_GyrY[deg/s],Node2_GyrZ[deg/s],Node2_MagX[uT],Node2_MagY[uT],"
                                  "Node2_MagZ[uT],Node2_Roll[deg],Node2_Pitch[deg],Node2_Yaw[deg],Node2_Qw,"
                                  "Node2_Qx,Node2_Qy,Node2_Qz,Node3_ID,"));
        QCOMPARE(timeless(lines[3]), "5," + motion
                                         + ",9,nan,-0.500,0.750,-inf,-20.50,30.46,100000002004087734272.00,-25.00,"
                                           "37.46,10.00,-20.00,30.00,0.800,0.200,-0.400,0.400"
                                         + QByteArray(14 * 17, ','));
        QCOMPARE(timeless(lines[5], 1), "4000000000,7," + motion + QByteArray(15 * 17, ','));
        QVERIFY(timeless(lines[6]).startsWith("4294967295,1.23457e+06,25.5,nan,"));
        QCOMPARE(timeless(lines[7]), "5" + QByteArray(16, ',') + ",9" + QByteArray(16 + 14 * 17, ','));
        QCOMPARE(writer.getFrameCtr(), 5U);
    }

    void numbersAreThoseOfTheToolkit()
    {
        std::mt19937 random(20);
        for (int i = 0; i < 400'000; ++i) {
            const auto bits = quint32(random());
            float value = float(qint32(bits)) / float(1U << (i % 31)); // near and on the halves
            if (i % 3 == 0)                                            // anything: subnormal, huge, not a number
                std::memcpy(&value, &bits, sizeof value);
            else if (i % 1000 == 1)
                value = std::copysign(i % 2 == 0 ? 0.0F : 0.0004F, value);
            const int decimals = i % (number_text::kMaxDecimals + 1);
            QByteArray text = "x";
            number_text::appendFixed(text, value, decimals);
            QCOMPARE(text, "x" + QByteArray::number(double(value), 'f', decimals));
        }
    }

    void nodesKeepTheirGroups()
    {
        const struct
        {
            const char *name;
            QList<QList<int>> batches;
            const char *groups; // of the last line, "5!": with values, "5": silent
        } rows[] = {
            {"first come, first served", {{5, 9}}, "5! 9!"},
            {"a silent node keeps its group", {{5, 9}, {9}}, "5 9!"},
            {"a node may be 0 or 255", {{255}, {0}}, "255 0!"},
            {"none", {{7}, {}}, "7"},
            {"twice in a batch", {{7, 8, 7}}, "7!! 8!"}, // "!!": the later sample
            {"twenty",
             {{20, 19, 18, 17, 16, 15, 14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1}},
             "20! 19! 18! 17! 16! 15! 14! 13! 12! 11! 10! 9! 8! 7! 6! 5!"},
            {"no group left",
             {{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16}, {17, 3}},
             "1 2 3! 4 5 6 7 8 9 10 11 12 13 14 15 16"},
        };
        for (const auto &row : rows) {
            CsvWriter writer(path(row.name));
            for (const QList<int> &ids : row.batches) {
                QList<node_data_t> nodes;
                for (const int id : ids) {
                    nodes.append(sample(quint8(id)));
                    nodes.last().acc[0] = float(ids.count(id) > 1 ? nodes.size() : 1);
                }
                writer.enqueue62(nodes);
            }
            writer.flushPendingAndClose();
            const QByteArrayList lines = linesOf(writer.filePath());
            const QByteArrayList fields = lines.last().split(',');
            QCOMPARE(fields.size(), 273);
            QByteArrayList groups;
            for (int at = 1; at < 273 && !fields[at].isEmpty(); at += 17)
                groups += fields[at] + (fields[at + 1].isEmpty() ? "" : fields[at + 1] == "1.000" ? "!" : "!!");
            QVERIFY2(groups.join(' ') == row.groups, row.name + (": " + groups.join(' ')));
            writer.enqueue63(batch({99}), 0);
            writer.enqueue62(batch({98})); // both in a new file, whose groups are free
            writer.flushPendingAndClose();
            QVERIFY(timeless(linesOf(writer.filePath()).last()).startsWith("98,1.235,"));
        }
    }

    void namesOfFiles()
    {
        const std::pair<const char *, const char *> rows[] = {
            {"data.csv", "data_%1.csv"}, {"data", "data_%1.csv"}, {"a.b c.txt", "a.b c_%1.txt"}, {"", "_%1.csv"}};
        for (const auto &[base, pattern] : rows) { // in the current folder
            const QDateTime before = QDateTime::currentDateTime();
            const CsvWriter writer(QString::fromLatin1(base));
            const QString name = QFileInfo(writer.filePath()).fileName();
            bool isNamed = false;
            for (int late = 0; late <= before.secsTo(QDateTime::currentDateTime()) + 1; ++late) {
                const QString time = before.addSecs(late).toString(QStringLiteral("yyyyMMdd_HHmmss"));
                isNamed |= name == QString::fromLatin1(pattern).arg(time);
            }
            QVERIFY2(isNamed && QFile::exists(name), qPrintable(name)); // before any sample
        }
    }

    void newFileEveryHour()
    {
        qputenv("TZ", "Europe/Berlin");
        Writer writer(path());
        const QDateTime start = QDateTime::fromString(QStringLiteral("2040-10-27T23:15:00Z"), Qt::ISODate);
        const struct
        {
            int seconds; // after the start
            const char *file;
        } rows[] = {{0, "20401028_011500"},      {3599, "20401028_011500"},
                    {-9000, "20401028_011500"}, // the clock stepped back
                    {3600, "20401028_021500"},   {7199, "20401028_021500"},
                    {7200, "20401028_021501"}, // the hour that the clocks go through twice
                    {-90000, "20401028_021501"}, {7200, "20401028_021501"},
                    {93600, "20401029_021500"}};
        QMap<QString, int> lines;
        for (const auto &row : rows) {
            writer.time = start.addSecs(row.seconds);
            writer.put();
            const QString expected = path(qPrintable(QStringLiteral("data_%1.csv").arg(QLatin1String(row.file))));
            QCOMPARE(writer.filePath(), expected);
            ++lines[expected];
        }
        writer.flushPendingAndClose();
        writer.enqueue91(sample(1)); // in the same second as a closed file
        writer.flushPendingAndClose();
        ++lines[path("data_20401029_021501.csv")];
        for (auto line = lines.cbegin(); line != lines.cend(); ++line)
            QCOMPARE(linesOf(line.key()).size(), line.value() + 1);
        QCOMPARE(QDir().entryList(QDir::Files).size(), lines.size() + 1); // and the constructor's
        QCOMPARE(writer.getFrameCtr(), 10U);
        qunsetenv("TZ");
    }

    void newFileFreesTheGroups()
    {
        Writer writer(path());
        writer.time = QDateTime::fromString(QStringLiteral("2040-10-27T23:15:00Z"), Qt::ISODate);
        for (const char id : {'3', '4'}) {
            writer.enqueue62(batch({id - '0'}));
            writer.enqueue63(batch({id - '0'}), 7);
            writer.flushPendingAndClose();
            const QByteArrayList lines = linesOf(writer.filePath());
            QCOMPARE(lines.size(), 4);
            QCOMPARE(lines.at(1).split(',').at(1), QByteArray(1, id)); // the first group
            QCOMPARE(lines.at(3).split(',').at(2), QByteArray(1, id));
            writer.time = writer.time.addSecs(3600);
        }
    }

    void fullQueueDropsAndTellsOnce()
    {
        CsvWriter writer(path());
        QSignalSpy overflow(&writer, &CsvWriter::queueOverflow);
        for (int round = 1; round <= 2; ++round) {
            for (int i = 0; i < kQueue; ++i)
                writer.enqueue62(batch({1}));
            QCOMPARE(overflow.count(), round - 1);
            writer.enqueue91(sample(1));
            writer.enqueue63({}, 1);
            QCOMPARE(overflow.count(), 1);
            QCoreApplication::processEvents(); // the drain that was requested
            QCOMPARE(writer.getFrameCtr(), unsigned(round * kQueue));
            QCOMPARE(writer.droppedRecords(), unsigned(round * 2));
        }
        writer.flushPendingAndClose();
        QCOMPARE(linesOf(writer.filePath()).size(), 2 * kQueue + 1);
    }

    void flushesEvery64KiB()
    {
        Writer writer(path());
        writer.put();
        const qint64 header = writer.sizeOnDisk();
        const qint64 line = writer.fileSize() - header;
        QVERIFY(header > 150 && line > 100);
        while (writer.fileSize() - header + line < kFlushBytes)
            writer.put();
        QVERIFY(writer.sizeOnDisk() < writer.fileSize());
        writer.put();
        QCOMPARE(writer.sizeOnDisk(), writer.fileSize());
    }

    void killedWhileRecording()
    {
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--record"), path()});
        QByteArray told;
        while (told.count('\n') < 40) {
            QVERIFY(child.waitForReadyRead(20000));
            told += child.readAllStandardOutput();
        }
        ::kill(pid_t(child.processId()), SIGKILL);
        QVERIFY(child.waitForFinished());
        told += child.readAllStandardOutput();
        const QByteArrayList progress = told.left(told.lastIndexOf('\n')).split('\n');

        const QByteArrayList lines = linesOf(QDir().entryList({QStringLiteral("data_*.csv")}).value(0));
        QVERIFY(lines.size() > 1);
        for (qsizetype i = 1; i < lines.size(); ++i)
            QVERIFY(timeless(lines[i]).startsWith(QByteArray::number(i - 1) + ",0,0,0.000,")
                    && lines[i].count(',') == 19);
        const qint64 missing = progress.last().toLongLong() - lines.size();
        QVERIFY2(missing * lines.last().size() <= kFlushBytes, QByteArray::number(missing));
    }

    void foldersComeAndGo()
    {
        const QString folder = path("gone");
        Writer writer(folder + QStringLiteral("/data.csv"));
        writer.put();
        QVERIFY(!writer.fileError().isEmpty());
        QCOMPARE(writer.lostRecords(), 1U);
        QCOMPARE(writer.getFrameCtr(), 1U);
        QVERIFY(QDir().mkdir(folder));
        writer.put();
        QCOMPARE(writer.fileError(), QString());
        QVERIFY(QDir(folder).removeRecursively()); // the open file lives on without a name
        writer.put();
        writer.flushPendingAndClose();
        writer.put();
        QVERIFY(!writer.fileError().isEmpty());
        QCOMPARE(writer.lostRecords(), 2U);
    }

    void fullDisk()
    {
        const QString disk = path("disk");
        QVERIFY(QDir().mkdir(disk));
        if (::mount("tmpfs", qPrintable(disk), "tmpfs", 0, "size=256k") != 0)
            QSKIP("mounting is not permitted here");
        const auto unmount = qScopeGuard([&] { ::umount2(qPrintable(disk), MNT_DETACH); });
        QFile ballast(disk + QStringLiteral("/ballast"));
        QVERIFY(ballast.open(QIODevice::WriteOnly) && ballast.write(QByteArray(100'000, 'x')) > 0);
        ballast.close();
        Writer writer(disk + QStringLiteral("/data.csv"));
        for (int i = 0; i < 5000 && writer.lostRecords() < 100; ++i)
            writer.put();
        QCOMPARE(writer.lostRecords(), 100U);
        QVERIFY(!writer.fileError().isEmpty());
        QVERIFY(ballast.remove());
        writer.put();
        QCOMPARE(writer.fileError(), QString()); // there is room again
        writer.flushPendingAndClose();
        const QByteArrayList lines = linesOf(writer.filePath());
        QCOMPARE(lines.size(), qsizetype(writer.getFrameCtr()) + 1 - 100);
        for (qsizetype i = 1; i < lines.size(); ++i)
            QCOMPARE(lines[i].count(','), 19);
    }

    void writesOnItsOwnThread()
    {
        RecordingRun run(m_folder->path(), QStringLiteral("data"));
        QSignalSpy ended(&run, &RecordingRun::ended);
        run.start();
        constexpr int kEach = 2000;
        const auto enqueue = [&run] {
            for (int i = 0; i < kEach; ++i)
                run.add({CsvWriter::PendingRecordType::Record63, {}, batch({3}), 5});
        };
        const std::unique_ptr<QThread> other(QThread::create(enqueue));
        other->start();
        enqueue();
        QVERIFY(other->wait());
        QVERIFY(run.wait() && run.wait());
        QTRY_COMPARE(ended.count(), 1);
        const CsvWriter &writer = *run.writer();
        QCOMPARE(writer.getFrameCtr() + run.droppedRecords(), unsigned(2 * kEach));
        QCOMPARE(linesOf(writer.filePath()).size(), qsizetype(writer.getFrameCtr()) + 1);
        QCOMPARE(QFileInfo(writer.filePath()).size(), writer.fileSize());
    }
};

int main(int argc, char **argv)
{
    if (argc == 3 && qstrcmp(argv[1], "--record") == 0)
        recordForEver(argv[2]);
    QCoreApplication app(argc, argv);
    TestCsvWriter test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_csv_writer.moc"
