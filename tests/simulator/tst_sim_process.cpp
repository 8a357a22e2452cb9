#include <QFileInfo>
#include <QTemporaryDir>
#include <QtEndian>
#include <QtTest>

#include <csignal>

#include "simulator/simulator_process.h"

namespace {

// The payloads of the good frames in a stream, checked with the plain bit-by-bit form of the CRC.
struct Frames
{
    QList<QByteArray> payloads;
    int strangeBytes = 0;
};

quint16 crcOf(const QByteArray &bytes)
{
    unsigned int crc = 0;
    for (const char byte : bytes) {
        crc ^= unsigned(quint8(byte)) << 8;
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc & 0x8000U) != 0 ? ((crc << 1) ^ 0x1021U) & 0xFFFFU : crc << 1;
    }
    return quint16(crc);
}

Frames framesOf(const QByteArray &stream)
{
    Frames frames;
    for (qsizetype i = 0; i + 6 <= stream.size();) {
        const auto length = qFromLittleEndian<quint16>(stream.constData() + i + 2);
        const bool start = stream.at(i) == char(0x5A) && stream.at(i + 1) == char(0xA5);
        if (start && i + 6 + length > stream.size())
            break;
        const QByteArray payload = stream.mid(i + 6, length);
        if (start && crcOf(stream.mid(i, 4) + payload) == qFromLittleEndian<quint16>(stream.constData() + i + 4)) {
            frames.payloads += payload;
            i += 6 + length;
        } else {
            ++frames.strangeBytes;
            ++i;
        }
    }
    return frames;
}

auto framesAtLeast(int count)
{
    return [count](const QByteArray &bytes) { return framesOf(bytes).payloads.size() >= count; };
}

auto endsWith(const char *text)
{
    return [text](const QByteArray &bytes) { return bytes.endsWith(text); };
}

} // namespace

class TestSimProcess : public QObject
{
    Q_OBJECT

private slots:
    void streams_data();
    void streams();
    void answersCommands();
    void hostsComeAndGo();
    void unplugAndReplug();
    void pacedLineDropsWholeFrames();
    void damageIsCounted();
    void silenceAndDeafness();
    void rotatesIds();
    void controlsAreChecked();
    void endsOnRequest_data();
    void endsOnRequest();
    void refuses_data();
    void refuses();
};

void TestSimProcess::streams_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QList<QByteArray>>("tags"); // first bytes of the payloads, in turn
    QTest::addColumn<int>("size");               // of the first one
    QTest::newRow("91") << "--device mz221" << QList<QByteArray>{"\x91"} << 76;
    QTest::newRow("93") << "--device kv104 --layout 93" << QList<QByteArray>{"\x93"} << 28;
    QTest::newRow("items") << "--device mz14 --layout items" << QList<QByteArray>{"\x90"} << 52;
    QTest::newRow("62") << "--device gateway" << QList<QByteArray>{"\x62"} << 8 + 4 * 76;
    QTest::newRow("63") << "--device gateway --layout 63 --nodes 16" << QList<QByteArray>{"\x63"} << 8 + 16 * 34;
    QTest::newRow("dynamic") << "--device gateway --layout dynamic --nodes 1" << QList<QByteArray>{"\x62", "\x63"} << 0;
}

void TestSimProcess::streams()
{
    QFETCH(QString, arguments);
    QFETCH(QList<QByteArray>, tags);
    QFETCH(int, size);
    SimulatorProcess simulator;
    QVERIFY(simulator.start((arguments + QStringLiteral(" --rate 500")).split(u' ')));
    QVERIFY(simulator.openPort());
    const Frames frames = framesOf(simulator.readUntil(framesAtLeast(20)));
    QVERIFY(frames.payloads.size() >= 20);
    QCOMPARE(frames.strangeBytes, 0);
    const qsizetype offset = tags.size() > 1 && !frames.payloads.first().startsWith(tags.first()) ? 1 : 0;
    for (qsizetype i = 0; i < frames.payloads.size(); ++i)
        QVERIFY(frames.payloads.at(i).startsWith(tags.at((i + offset) % tags.size())));
    QVERIFY(size == 0 || frames.payloads.first().size() == size);
}

void TestSimProcess::answersCommands()
{
    SimulatorProcess simulator;
    QVERIFY(simulator.start({QStringLiteral("--device"), QStringLiteral("mz226")}));
    QVERIFY(simulator.openPort());
    QVERIFY(simulator.write("AT+EOUT=0\r\n"));
    QVERIFY(simulator.readUntil(endsWith("OK\r\n")).endsWith("OK\r\n"));
    QVERIFY(simulator.write("AT+INFO\r\n"));
    const QByteArray reply = simulator.readUntil(endsWith("OK\r\n"));
    QVERIFY2(reply.startsWith("MZ226 V"), reply.constData());
    // A restart brings the output back, with the new settings and the device time from 0.
    QVERIFY(simulator.write("AT+ID=77\r\nAT+ODR=200\r\nAT+RST\r\n"));
    const Frames frames = framesOf(simulator.readUntil(framesAtLeast(3)));
    QVERIFY(frames.payloads.size() >= 3);
    QCOMPARE(quint8(frames.payloads.first().at(1)), quint8(77));
    const auto timeOf = [&](qsizetype i) { return qFromLittleEndian<quint32>(frames.payloads.at(i).constData() + 8); };
    QCOMPARE(timeOf(0), 0U);
    QCOMPARE(timeOf(2), 10U);
}

void TestSimProcess::hostsComeAndGo()
{
    SimulatorProcess simulator;
    QVERIFY(simulator.start({QStringLiteral("--rate"), QStringLiteral("1000")}));
    QTRY_VERIFY(simulator.statistic("unheard") > 50);
    QCOMPARE(simulator.statistic("bytes"), 0);
    quint32 lastTime = 0;
    for (int visit = 0; visit < 3; ++visit) {
        QVERIFY(simulator.openPort());
        const Frames frames = framesOf(simulator.readUntil(framesAtLeast(10)));
        QVERIFY(frames.payloads.size() >= 10);
        QCOMPARE(frames.strangeBytes, 0);
        // What the host before left unread is gone.
        const auto time = qFromLittleEndian<quint32>(frames.payloads.first().constData() + 8);
        QVERIFY2(visit == 0 || time > lastTime + 90, qPrintable(QString::number(time)));
        lastTime = qFromLittleEndian<quint32>(frames.payloads.last().constData() + 8);
        const qint64 sent = simulator.statistic("frames_sent");
        QTRY_VERIFY(simulator.statistic("frames_sent") > sent + 80);
        simulator.closePort();
        const qint64 unheard = simulator.statistic("unheard");
        QTRY_VERIFY(simulator.statistic("unheard") > unheard + 30);
    }
    // A host that only comes to leave a command is heard, too.
    QVERIFY(simulator.openPort() && simulator.write("AT+ID=42\r\n"));
    simulator.closePort();
    const qint64 unheard = simulator.statistic("unheard");
    QTRY_VERIFY(simulator.statistic("unheard") > unheard + 10);
    QVERIFY(simulator.openPort());
    const Frames frames = framesOf(simulator.readUntil(framesAtLeast(1)));
    QCOMPARE(frames.payloads.value(0).mid(1, 1), QByteArray(1, 42));
}

void TestSimProcess::unplugAndReplug()
{
    const QTemporaryDir folder;
    const QString link = folder.filePath(QStringLiteral("imu"));
    SimulatorProcess simulator;
    QVERIFY(simulator.start({QStringLiteral("--link"), link}));
    QCOMPARE(QFile::symLinkTarget(link), simulator.port);
    QVERIFY(simulator.openPort(link));
    QVERIFY(framesOf(simulator.readUntil(framesAtLeast(2))).payloads.size() >= 2);

    QCOMPARE(simulator.control("unplug"), QStringLiteral("ok"));
    simulator.readUntil([](const QByteArray &) { return false; });
    QVERIFY(simulator.lost());
    QVERIFY(!QFileInfo(link).isSymbolicLink());

    // The old port is still held open here, so the new one has another name.
    const QString oldPort = simulator.port;
    simulator.send("replug");
    QVERIFY(simulator.readPort());
    QCOMPARE(simulator.readLine(), QStringLiteral("ok"));
    QVERIFY(simulator.port != oldPort);
    QCOMPARE(QFile::symLinkTarget(link), simulator.port);
    simulator.closePort();
    SimulatorProcess reader;
    QVERIFY(reader.openPort(link));
    QVERIFY(framesOf(reader.readUntil(framesAtLeast(2))).payloads.size() >= 2);
}

void TestSimProcess::pacedLineDropsWholeFrames()
{
    SimulatorProcess simulator;
    QVERIFY(simulator.start(QStringLiteral("--rate 1000 --baud 57600").split(u' ')));
    QVERIFY(simulator.openPort());
    const Frames frames = framesOf(simulator.readUntil(framesAtLeast(60)));
    QVERIFY(frames.payloads.size() >= 60);
    QCOMPARE(frames.strangeBytes, 0);
    // 5760 bytes per second carry at most 70 of the 1000 frames; the device time shows the holes.
    const auto timeOf = [](const QByteArray &payload) { return qFromLittleEndian<quint32>(payload.constData() + 8); };
    QVERIFY(timeOf(frames.payloads.last()) - timeOf(frames.payloads.first()) > 700);
    QVERIFY(simulator.statistic("dropped") > 10 * simulator.statistic("frames_sent"));
}

void TestSimProcess::damageIsCounted()
{
    SimulatorProcess simulator;
    QVERIFY(simulator.start(QStringLiteral("--rate 1000 --noise 3").split(u' ')));
    QVERIFY(simulator.openPort());
    const Frames frames =
        framesOf(simulator.readUntil([](const QByteArray &bytes) { return bytes.size() > 82 * 300; }));
    QVERIFY(frames.strangeBytes > 0);
    const qint64 sent = simulator.statistic("frames_sent");
    const qint64 intact = simulator.statistic("frames_intact");
    QVERIFY(intact > sent / 2 && intact < sent);
    QVERIFY(frames.payloads.size() <= intact);
}

void TestSimProcess::silenceAndDeafness()
{
    SimulatorProcess simulator;
    QVERIFY(simulator.start({}));
    QVERIFY(simulator.openPort());
    QVERIFY(framesOf(simulator.readUntil(framesAtLeast(1))).payloads.size() >= 1);
    QCOMPARE(simulator.control("silent on"), QStringLiteral("ok"));
    const qint64 sent = simulator.statistic("frames_sent");
    const qint64 frames = simulator.statistic("frames");
    QTRY_VERIFY(simulator.statistic("frames") > frames + 10);
    QCOMPARE(simulator.statistic("frames_sent"), sent);

    QCOMPARE(simulator.control("silent off"), QStringLiteral("ok"));
    QCOMPARE(simulator.control("deaf on"), QStringLiteral("ok"));
    QVERIFY(simulator.write("AT+EOUT=0\r\n"));
    const QByteArray stream = simulator.readUntil(framesAtLeast(15));
    QVERIFY(framesOf(stream).payloads.size() >= 15);
    QVERIFY(!stream.contains("OK\r\n"));
}

void TestSimProcess::rotatesIds()
{
    SimulatorProcess simulator;
    QVERIFY(simulator.start(QStringLiteral("--device gateway --nodes 2 --rotate-ids on --fixed").split(u' ')));
    QVERIFY(simulator.openPort());
    const Frames frames = framesOf(simulator.readUntil(framesAtLeast(5)));
    QVERIFY(frames.payloads.size() >= 5);
    const auto idOf = [&](qsizetype i) { return quint8(frames.payloads.at(i).at(8 + 1)); };
    QCOMPARE(idOf(1) - idOf(0), 2);
    const auto accXOf = [&](int node) {
        return qFromLittleEndian<float>(frames.payloads.at(0).constData() + 8 + 76 * node + 12);
    };
    QCOMPARE(accXOf(0), 0.25F);
    QCOMPARE(accXOf(1), 0.375F);
}

void TestSimProcess::controlsAreChecked()
{
    SimulatorProcess simulator;
    QVERIFY(simulator.start({}));
    for (const char *bad : {"", "bogus", "noise", "noise x", "noise -1", "noise nan", "rate 0", "rate 2001", "silent",
                            "silent yes", "nodes 2", "values odd", "quit now", "gap 1 2"})
        QVERIFY2(simulator.control(bad).startsWith(u"error: "), bad);
    QVERIFY(simulator.control(QByteArray(100'000, 'x').constData()).startsWith(u"error: "));
    for (const char *good : {"noise 0.5", " drop  1 ", "insert 0", "burst 4", "rate 2000", "values nan", "reply 1"})
        QCOMPARE(simulator.control(good), QStringLiteral("ok"));
}

void TestSimProcess::endsOnRequest_data()
{
    QTest::addColumn<int>("signal"); // 0: by control, -1: by the end of the input
    QTest::newRow("interrupt") << SIGINT;
    QTest::newRow("terminate") << SIGTERM;
    QTest::newRow("control") << 0;
    QTest::newRow("end of input") << -1;
}

void TestSimProcess::endsOnRequest()
{
    QFETCH(int, signal);
    const QTemporaryDir folder;
    const QString link = folder.filePath(QStringLiteral("imu"));
    QVERIFY(QFile::link(QStringLiteral("/dev/null"), link)); // an old link is replaced
    SimulatorProcess simulator;
    QVERIFY(simulator.start({QStringLiteral("--link"), link}));
    QVERIFY(simulator.openPort(link));
    if (signal > 0)
        ::kill(pid_t(simulator.process.processId()), signal);
    else if (signal == 0)
        QCOMPARE(simulator.control("quit"), QStringLiteral("ok"));
    else
        simulator.process.closeWriteChannel();
    QVERIFY(simulator.process.waitForFinished());
    QCOMPARE(simulator.process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(simulator.process.exitCode(), 0);
    QVERIFY(!QFileInfo(link).isSymbolicLink());
}

void TestSimProcess::refuses_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::newRow("unknown option") << "--bogus" << 2;
    QTest::newRow("unknown device") << "--device mz999" << 2;
    QTest::newRow("layout of a gateway") << "--device mz221 --layout 62" << 2;
    QTest::newRow("layout of a module") << "--device gateway --layout 91" << 2;
    QTest::newRow("rate too high") << "--rate 2001" << 2;
    QTest::newRow("no nodes") << "--device gateway --nodes 0" << 2;
    QTest::newRow("fault rate") << "--noise much" << 2;
    QTest::newRow("stray argument") << "walk.csv" << 2;
    QTest::newRow("replay a folder") << "--replay /tmp" << 2;
    QTest::newRow("replay garbage") << QStringLiteral("--replay " KV_SIMULATOR_PATH) << 2;
    QTest::newRow("link over a file") << QStringLiteral("--link " KV_SIMULATOR_PATH) << 1;
    QTest::newRow("link nowhere") << "--link /nonexistent/imu" << 1;
}

void TestSimProcess::refuses()
{
    QFETCH(QString, arguments);
    QFETCH(int, exitCode);
    QProcess process;
    process.start(QStringLiteral(KV_SIMULATOR_PATH), arguments.split(u' '));
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), exitCode);
    QVERIFY(process.readAllStandardError().startsWith("kv_simulator: "));
}

QTEST_GUILESS_MAIN(TestSimProcess)
#include "tst_sim_process.moc"
