#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <limits>
#include <sys/mount.h>

#include "app/steady_time.h"
#include "capture/capture_file.h"
#include "capture/capture_queue.h"
#include "capture/capture_run.h"
#include "capture/capture_writer.h"
#include "capture/mcap_repair.h"

using namespace capture_file;

namespace {

constexpr int kTimeoutMs = 10000;

struct Read
{
    mcap::Message head;
    QByteArray data;
};

QList<Read> readAll(McapReader &reader, quint16 channel)
{
    QList<Read> found;
    for (qsizetype i = 0; i < reader.chunkCount(); ++i) {
        const QByteArray records = reader.readChunk(i).value();
        McapRecordList list(records);
        while (list.next()) {
            mcap::Message message;
            if (list.kind() == mcap::Kind::Message && mcap::decode(list.content(), message)
                && message.channel == channel)
                found.append({message, message.data.toByteArray()});
        }
    }
    return found;
}

QJsonObject json(const QByteArray &bytes)
{
    return QJsonDocument::fromJson(bytes).object();
}

} // namespace

class TestCaptureWriter : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;

    QString folder() const { return m_folder->filePath(QStringLiteral("captures")); }
    QString onlyFile() const
    {
        const QStringList names = QDir(folder()).entryList({QStringLiteral("*.mcap")}, QDir::Files);
        return names.size() == 1 ? QDir(folder()).filePath(names.first()) : QString();
    }

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void cleanup() { ::umount(qPrintable(folder())); }

    void everythingComesBack()
    {
        CaptureWriter writer;
        QSignalSpy opened(&writer, &CaptureWriter::opened);
        QSignalSpy ended(&writer, &CaptureWriter::ended);
        CaptureContext context;
        context.source = QStringLiteral("/dev/ttyUSB0");
        writer.start(folder(), QStringLiteral("walk"), context);
        const qint64 start = steadyNs();
        const qint64 wall = wallNs();
        writer.addReceived("first", start);
        writer.addReceived(QByteArray("\0\xFF", 2), start + 1);
        writer.addSent("AT\r\n", start + 2);
        CaptureSample sample{{}, SampleField::Acceleration | SampleField::Time, 12.5};
        sample.node.id = 200;
        sample.node.acc[0] = 0.1F;
        sample.node.acc[1] = std::numeric_limits<float>::infinity();
        sample.node.acc[2] = 1e-20F;
        sample.node.time_ms = 4'294'967'295U;
        writer.addSample(sample, start + 3);
        context.product = QStringLiteral("KV104");
        writer.setContext(context);
        writer.addEvent(
            {start + 4, QStringLiteral("marker"), QStringLiteral("\"here\" 長"), {{QStringLiteral("node"), 3}}});
        QVERIFY(opened.wait(kTimeoutMs));
        QVERIFY(QFile::exists(writer.path() + QStringLiteral(".lock")));
        QVERIFY(mcap_repair::unfinishedIn(folder()).isEmpty());
        QTRY_COMPARE_WITH_TIMEOUT(writer.messageCount(), 5U, 1500); // without being stopped
        writer.stop();
        QVERIFY(ended.wait(kTimeoutMs));
        QVERIFY(!writer.isBusy() && !writer.fault().any());
        QVERIFY(QFileInfo(writer.path()).fileName().startsWith(QStringLiteral("walk_2")));
        QVERIFY(!QFile::exists(writer.path() + QStringLiteral(".lock")));
        QCOMPARE(QFileInfo(writer.path()).size(), writer.fileSize());

        McapReader reader;
        QVERIFY(reader.open(writer.path()));
        QVERIFY(reader.isFinished());
        QCOMPARE(allMessages(reader), (QByteArrayList{"first", QByteArray("\0\xFF", 2)}));
        QCOMPARE(allMessages(reader, capture_channels::kTx), QByteArrayList{"AT\r\n"});
        const QList<Read> rx = readAll(reader, capture_channels::kRx);
        QCOMPARE(rx[1].head.logTime - rx[0].head.logTime, 1U);
        QCOMPARE(rx[1].head.publishTime, rx[1].head.logTime);
        QVERIFY(qAbs(qint64(rx[0].head.logTime) - wall) < 2'000'000'000);
        QCOMPARE(rx[1].head.sequence, 2U);
        const mcap::TextMap metadata = reader.metadata("kv");
        QVERIFY(metadata.contains({"port", "/dev/ttyUSB0"}) && metadata.contains({"product", "KV104"}));
        QVERIFY(metadata.contains({"wall_minus_steady_ns", QByteArray::number(qint64(rx[0].head.logTime) - start)}));

        const QList<Read> samples = readAll(reader, *reader.channelOf("/imu/200"));
        QCOMPARE(samples.size(), 1);
        const QJsonObject object = json(samples[0].data);
        QCOMPARE(object.keys(), (QStringList{QStringLiteral("acc_x_g"), QStringLiteral("acc_z_g"),
                                             QStringLiteral("device_time_ms"), QStringLiteral("stream_time_ms")}));
        QCOMPARE(float(object[u"acc_x_g"].toDouble()), 0.1F);
        QCOMPARE(float(object[u"acc_z_g"].toDouble()), 1e-20F);
        QCOMPARE(object[u"device_time_ms"].toDouble(), 4'294'967'295.0);
        const QJsonObject known = json(reader.schemas()[2].data)[u"properties"].toObject();
        for (const QString &key : object.keys())
            QCOMPARE(known[key].toObject()[u"type"].toString(), QStringLiteral("number"));

        const QList<Read> events = readAll(reader, capture_channels::kEvents);
        const CaptureEvent event = CaptureEvent::fromJson(events.value(0).data, 7).value();
        QCOMPARE(event.text, QStringLiteral("\"here\" 長"));
        QCOMPARE(event.more, (QJsonObject{{QStringLiteral("node"), 3}}));
    }

    void anotherCaptureInTheSameSecond()
    {
        CaptureWriter writer;
        QSet<QString> paths;
        for (int i = 0; i < 3; ++i) {
            writer.start(folder(), QStringLiteral("a"), {});
            writer.addReceived("x", steadyNs());
            writer.stop();
            writer.addReceived("late", steadyNs());
            writer.waitForEnd();
            paths.insert(writer.path());
            QCOMPARE(writer.messageCount(), 1U);
        }
        QCOMPARE(paths.size(), 3);
        for (int i = 0; i < 5; ++i) { // without waiting
            writer.start(folder(), QStringLiteral("c"), {});
            writer.addReceived("x", steadyNs());
            writer.stop();
        }
        writer.waitForEnd();
        const QStringList names = QDir(folder()).entryList({QStringLiteral("c_*.mcap")}, QDir::Files);
        QCOMPARE(names.size(), 5);
        for (const QString &name : names)
            QVERIFY(mcap_repair::isWhole(QDir(folder()).filePath(name)));

        CaptureWriter other;
        for (CaptureWriter *each : {&writer, &other})
            each->start(folder(), QStringLiteral("b"), {});
        for (CaptureWriter *each : {&writer, &other}) {
            each->stop();
            each->waitForEnd();
            QVERIFY(!each->fault().any() && mcap_repair::isWhole(each->path()));
        }
        QVERIFY(writer.path() != other.path());
    }

    void dropsAreCountedShownAndWritten()
    {
        CaptureWriter writer;
        QSignalSpy dropped(&writer, &CaptureWriter::dropped);
        writer.start(folder(), QStringLiteral("a"), {});
        writer.addReceived("1", steadyNs());
        writer.addReceived(QByteArray(CaptureQueue::kMaxBytes + 1, 'x'), steadyNs());
        writer.addReceived("3", steadyNs());
        QVERIFY(dropped.wait(kTimeoutMs));
        QCOMPARE(dropped.first().first().toULongLong(), 1U);
        writer.stop();
        writer.waitForEnd();
        QCOMPARE(writer.droppedCount(), 1U);
        McapReader reader;
        QVERIFY(reader.open(writer.path()));
        const QList<Read> rx = readAll(reader, capture_channels::kRx);
        QCOMPARE(rx.size(), 2);
        QCOMPARE(rx[1].head.sequence, 3U);
        const QList<Read> events = readAll(reader, capture_channels::kEvents);
        QCOMPARE(json(events.value(0).data)[u"kind"].toString(), QStringLiteral("dropped"));
        QCOMPARE(json(events.value(0).data)[u"count"].toInt(), 1);

        CaptureQueue queue;
        for (size_t i = 0; i < CaptureQueue::kMaxItems + 10; ++i)
            queue.add(1, CaptureSample());
        QCOMPARE(queue.take(std::chrono::milliseconds(kTimeoutMs)).items.size(), CaptureQueue::kMaxItems);
        QCOMPARE(queue.dropped(), 10U);
    }

    void troubleWithTheDisk_data()
    {
        using Kind = CaptureFault::Kind;
        QTest::addColumn<QString>("trouble");
        QTest::addColumn<Kind>("expected");
        QTest::newRow("folder is a file") << QStringLiteral("folder is a file") << Kind::CannotCreate;
        QTest::newRow("full") << QStringLiteral("full") << Kind::CannotWrite;
        QTest::newRow("file deleted") << QStringLiteral("file deleted") << Kind::Vanished;
        QTest::newRow("folder deleted") << QStringLiteral("folder deleted") << Kind::Vanished;
    }
    void troubleWithTheDisk()
    {
        QFETCH(QString, trouble);
        QFETCH(CaptureFault::Kind, expected);
        const bool isFull = trouble == QStringLiteral("full");
        if (trouble == QStringLiteral("folder is a file"))
            write(folder(), "x");
        if (isFull) {
            QVERIFY(QDir().mkpath(folder()));
            if (::mount("tmpfs", qPrintable(folder()), "tmpfs", 0, "size=256k") != 0)
                QSKIP("No right to make a small disk");
        }
        CaptureWriter writer;
        QSignalSpy failed(&writer, &CaptureWriter::failed);
        QSignalSpy ended(&writer, &CaptureWriter::ended);
        writer.start(folder(), QStringLiteral("a"), {});
        QTRY_VERIFY(writer.fileSize() > 0 || !failed.isEmpty());
        if (trouble == QStringLiteral("file deleted"))
            QFile::remove(writer.path());
        else if (trouble == QStringLiteral("folder deleted"))
            QDir(folder()).removeRecursively();
        quint32 number = 0;
        const auto feed = [&] {
            QByteArray noise(4000, Qt::Uninitialized);
            QRandomGenerator(number).generate(noise.begin(), noise.end());
            writer.addReceived(QByteArray::number(number++) + ' ' + noise, steadyNs());
            return !ended.isEmpty();
        };
        for (int i = 0; i < 10; ++i)
            feed();
        if (isFull)
            QTRY_COMPARE(writer.messageCount(), 10U);
        QVERIFY(QTest::qWaitFor(feed, kTimeoutMs));
        QCOMPARE(failed.size(), 1);
        const auto fault = failed.first().first().value<CaptureFault>();
        QCOMPARE(fault.kind, expected);
        QVERIFY(fault.text().contains(writer.path()));
        QVERIFY(!writer.isCapturing() && !writer.isBusy());
        if (!isFull)
            return;
        McapReader reader;
        QVERIFY(reader.open(writer.path()));
        QVERIFY(reader.isFinished()); // what was left of the last chunk made room for the summary
        QByteArrayList numbersFound;
        for (const QByteArray &bytes : allMessages(reader))
            numbersFound.append(bytes.split(' ').first());
        QVERIFY(numbersFound.size() >= 10);
        QCOMPARE(numbersFound, numbers(0, int(numbersFound.size())));
    }

    void killedWhileCapturing()
    {
        constexpr int kKills = 20;
        for (int kill = 0; kill < kKills; ++kill) {
            init();
            QProcess child;
            child.start(QStringLiteral(KV_CHILD_PATH), {QStringLiteral("endless"), folder()});
            QByteArray told;
            QElapsedTimer time;
            time.start();
            const int moment = QRandomGenerator::global()->bounded(300);
            while (!told.contains('\n') || time.elapsed() < moment) {
                QVERIFY(child.waitForReadyRead(kTimeoutMs));
                told += child.readAllStandardOutput();
            }
            ::kill(pid_t(child.processId()), SIGKILL);
            QVERIFY(child.waitForFinished());
            told += child.readAllStandardOutput();
            const int confirmed = told.left(told.lastIndexOf('\n')).split('\n').last().toInt();
            QVERIFY(confirmed > 0);

            const QString path = onlyFile();
            QCOMPARE(mcap_repair::unfinishedIn(folder()), QStringList{path});
            for (const bool isRepaired : {false, true}) {
                if (isRepaired)
                    QCOMPARE(mcap_repair::repair(path).outcome, mcap_repair::Report::Outcome::Repaired);
                McapReader reader;
                QVERIFY(reader.open(path));
                QCOMPARE(reader.isFinished(), isRepaired);
                int count = 0;
                for (const QByteArray &bytes : allMessages(reader))
                    QCOMPARE(bytes.left(10).toInt(), ++count);
                QVERIFY2(count >= confirmed, QByteArray::number(count) + " of " + QByteArray::number(confirmed));
            }
            QCOMPARE(QDir(folder()).entryList(QDir::Files | QDir::Hidden).size(), 1);
        }
    }
};

QTEST_GUILESS_MAIN(TestCaptureWriter)
#include "tst_capture_writer.moc"
