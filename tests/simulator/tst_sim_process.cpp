#include <QDeadlineTimer>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtTest>

#include <chrono>
#include <cmath>
#include <csignal>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include "support/files.h"
#include "support/frames.h"
#include "support/simulator_process.h"

namespace {

/// A host that has the port open, using plain system calls. Reading ends as soon as what it waits for has arrived.
class Host
{
public:
    QByteArray bytes;           ///< of the last read
    QList<QByteArray> payloads; ///< of the good frames in them
    int strangeBytes = 0;       ///< outside the good frames
    bool lost = false;          ///< the port has gone

    explicit Host(const QString &path)
        : m_fd(::open(QFile::encodeName(path).constData(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC))
    {}
    ~Host() { ::close(m_fd); }
    Q_DISABLE_COPY_MOVE(Host)

    bool write(const QByteArray &text) const { return ::write(m_fd, text.data(), size_t(text.size())) == text.size(); }

    template <typename Enough> bool readUntil(Enough enough)
    {
        bytes.clear();
        for (const QDeadlineTimer patience(10'000); !patience.hasExpired() && !lost;) {
            pollfd request{m_fd, POLLIN, 0};
            ::poll(&request, 1, int(patience.remainingTime()));
            char buffer[65536];
            const ssize_t count = ::read(m_fd, buffer, sizeof buffer);
            if (count > 0)
                bytes.append(buffer, count);
            else
                lost = count == 0 || errno != EAGAIN;
            if (enough())
                return true;
        }
        return false;
    }
    bool readFrames(int count)
    {
        return readUntil([this, count] {
            payloads.clear();
            strangeBytes = 0;
            for (qsizetype i = 0; i + 6 <= bytes.size();) {
                const auto length = qFromLittleEndian<quint16>(bytes.constData() + i + 2);
                const bool start = bytes.mid(i, 2) == "\x5A\xA5";
                if (start && i + 6 + length > bytes.size())
                    break; // the rest is still on its way
                const bool good = start && bytes.mid(i, 6 + length) == frames::packet(bytes.mid(i + 6, length));
                strangeBytes += good ? 0 : 1;
                if (good)
                    payloads += bytes.mid(i + 6, length);
                i += good ? 6 + length : 1;
            }
            return payloads.size() >= count;
        });
    }
    quint32 timeOf(qsizetype i) const { return qFromLittleEndian<quint32>(payloads.at(i).constData() + 8); }
    // For gateway batches 62: the header's time; ids, times and floats of their records.
    quint32 batchTime(qsizetype i) const { return qFromLittleEndian<quint32>(payloads.at(i).constData() + 4); }
    quint32 recordTime(qsizetype i, int record) const
    {
        return qFromLittleEndian<quint32>(payloads.at(i).constData() + 8 + record * 76 + 8);
    }
    float recordFloat(qsizetype i, int record, int offset) const
    {
        return qFromLittleEndian<float>(payloads.at(i).constData() + 8 + record * 76 + offset);
    }
    QByteArray idsOf(qsizetype i) const
    {
        QByteArray ids;
        for (int record = 0; record < payloads.at(i).at(2); ++record)
            ids += char('0' + payloads.at(i).at(8 + record * 76 + 1));
        return ids;
    }

private:
    int m_fd;
};

QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(u' ', Qt::SkipEmptyParts);
}

} // namespace

class TestSimProcess : public QObject
{
    Q_OBJECT

private slots:
    void gatewayAlternatesLayoutsAndRotatesIds()
    {
        SimulatorProcess simulator(words("--device gateway --layout dynamic --nodes 2 --rotate-ids on --fixed"));
        Host host(simulator.port());
        QVERIFY(host.readFrames(20));
        QCOMPARE(host.strangeBytes, 0);
        const int first = host.payloads.first().startsWith('\x62') ? 0 : 1;
        for (int i = first; i + 2 < host.payloads.size(); i += 2) {
            const QByteArray full = host.payloads.at(i);
            const QByteArray compact = host.payloads.at(i + 1);
            QVERIFY(full.startsWith('\x62') && compact.startsWith('\x63'));
            QCOMPARE(full.size(), 8 + 2 * 76);
            QCOMPARE(compact.size(), 8 + 2 * 34);
            QCOMPARE(compact.at(9) - full.at(9), 2);
            QCOMPARE(qFromLittleEndian<float>(full.constData() + 8 + 12), 0.25F);
            QCOMPARE(qFromLittleEndian<float>(full.constData() + 8 + 76 + 12), 0.375F);
        }
    }

    void recordsAreMissing()
    {
        SimulatorProcess simulator(words("--device gateway --nodes 4 --rate 200"));
        for (const char *control : {"node skip 3:4", "node skip lowest:5", "node leave 2"})
            QVERIFY2(simulator.control(control), control);
        {
            Host host(simulator.port());
            QVERIFY(host.readFrames(40));
            for (int batch = 1; batch <= 40; ++batch) {
                const QByteArray ids = QByteArray(batch % 5 ? "1" : "") + (batch % 4 ? "3" : "") + "4";
                QCOMPARE(host.idsOf(batch - 1), ids);
            }
            QVERIFY(simulator.stat("records_missing") >= 18);
        }
        for (const char *control : {"node skip 3:0", "node skip lowest:0", "node return 2", "node miss 4:50"})
            QVERIFY2(simulator.control(control), control);
        Host host(simulator.port());
        QVERIFY(host.readFrames(200));
        int missing = 0;
        for (int i = 0; i < 200; ++i) {
            QVERIFY(host.idsOf(i).startsWith("123"));
            missing += host.idsOf(i).endsWith('4') ? 0 : 1;
        }
        QVERIFY2(missing > 60 && missing < 140, QByteArray::number(missing));
        QVERIFY(simulator.control("node miss all:100"));
        QVERIFY(host.readUntil([&host] { return host.bytes.endsWith(frames::packet(host.bytes.last(8))); }));
    }

    void separateClocks()
    {
        const QStringList distance{QStringLiteral("--clock"), QStringLiteral("distance 5000")};
        SimulatorProcess both(words("--device gateway --layout dynamic --nodes 2 --rate 200") + distance);
        Host host(both.port());
        QVERIFY(host.readFrames(20));
        for (int i = 0; i + 1 < 20; ++i) {
            const int ahead = host.payloads.at(i + 1).startsWith('\x63') ? 5000 : -5000;
            QVERIFY(qAbs(int(host.batchTime(i + 1) - host.batchTime(i)) - ahead - 5) <= 1);
        }

        SimulatorProcess simulator(words("--device gateway --nodes 2 --rate 200"));
        QVERIFY(simulator.control("clock set 100000") && simulator.control("node clock 2:1500:100000"));
        Host gateway(simulator.port());
        const auto isOff = [&gateway](qsizetype i, double wanted) {
            return std::abs(double(gateway.recordTime(i, 1)) - wanted) > 2.0;
        };
        QVERIFY(gateway.readFrames(5));
        QVERIFY(gateway.batchTime(0) > 99'900 && gateway.batchTime(0) < 105'000);
        QVERIFY(!isOff(0, gateway.batchTime(0) * 1.1 + 1500));
        QCOMPARE(gateway.recordTime(0, 0), gateway.batchTime(0));
        QVERIFY(simulator.control("node clock-restart 2") && gateway.readFrames(5));
        QVERIFY(gateway.recordTime(4, 1) < 5000 && gateway.batchTime(4) > 100'000);
        QVERIFY(simulator.control("clock set 0") && gateway.readFrames(5));
        QVERIFY(gateway.batchTime(4) < 5000 && !isOff(4, gateway.batchTime(4) * 1.1));
    }

    void nodesAreTurned()
    {
        SimulatorProcess simulator(words("--device gateway --nodes 3 --motion swing --rate 200 --vibration 20:1:z"));
        QVERIFY(simulator.control("node attitude 2:0:0:0") && simulator.control("node attitude 3:30:0:0"));
        Host host(simulator.port());
        QVERIFY(host.readFrames(10));
        for (int i = 0; i < 10; ++i) {
            QVERIFY(host.recordFloat(i, 0, 24) != 0.0F); // the first one turns
            QCOMPARE(host.recordFloat(i, 1, 20), 1.0F);
            QCOMPARE(host.recordFloat(i, 1, 24), 0.0F);
            QVERIFY(std::abs(host.recordFloat(i, 2, 48) - 30.0F) < 1e-3F);
            QVERIFY(std::abs(host.recordFloat(i, 2, 20) - 0.8660F) < 1e-3F);
        }
    }

    void garbageIsNotADevice()
    {
        SimulatorProcess simulator(words("--garbage 11000"));
        Host host(simulator.port());
        QElapsedTimer time;
        time.start();
        QVERIFY(host.write("AT+INFO\r\n") && host.readUntil([&host] { return host.bytes.size() > 8000; }));
        QVERIFY2(time.elapsed() > 500 && time.elapsed() < 3000, QByteArray::number(time.elapsed()));
        QVERIFY(!host.bytes.contains("MZ221"));
        const auto high = std::count_if(host.bytes.cbegin(), host.bytes.cend(), [](char byte) { return byte < 0; });
        QVERIFY(high > 3500 && high < host.bytes.size() - 3500);
        QVERIFY(simulator.control("garbage 0") && host.readFrames(3));
    }

    void repliesComeLate()
    {
        SimulatorProcess simulator({});
        Host host(simulator.port());
        QVERIFY(host.write("AT+EOUT=0\r\n") && host.readUntil([&host] { return host.bytes.endsWith("OK\r\n"); }));
        QVERIFY(simulator.control("reply-delay 120") && simulator.control("refuse AT+ID"));
        QElapsedTimer time;
        time.start();
        QVERIFY(host.write("AT+ID=5\r\nAT+ODR=100\r\n"));
        QVERIFY(host.readUntil([&host] { return host.bytes == "ERROR\r\nOK\r\n"; }));
        QVERIFY2(time.elapsed() >= 120, QByteArray::number(time.elapsed()));
    }

    void vibrationKeepsTime()
    {
        SimulatorProcess simulator(words("--rate 1000 --vibration 50:0.5:z --vibration-noise 0.001"));
        Host host(simulator.port());
        QVERIFY(host.readFrames(300));
        // Time stamps drop a fraction of a millisecond: up to 18 degrees of the tone.
        for (qsizetype i = 0; i < 300; ++i) {
            const double middle = 0.5 * std::sin((double(host.timeOf(i) % 20) + 0.5) * M_PI / 10.0);
            const double z = double(qFromLittleEndian<float>(host.payloads.at(i).constData() + 20)) - 1.0;
            QVERIFY2(std::abs(z - middle) < 0.5 * 0.157 + 0.006, QByteArray::number(z - middle));
        }
    }

    void restartBringsTheOutputBack()
    {
        SimulatorProcess simulator({});
        Host host(simulator.port());
        QVERIFY(host.write("AT+EOUT=0\r\n") && host.readUntil([&host] { return host.bytes.endsWith("OK\r\n"); }));
        // With the new settings, and the device time starting from 0.
        QVERIFY(host.write("AT+ID=77\r\nAT+ODR=200\r\nAT+RST\r\n") && host.readFrames(3));
        QCOMPARE(host.payloads.first().at(1), char(77));
        QCOMPARE(host.timeOf(0), 0U);
        QCOMPARE(host.timeOf(2), 10U);
    }

    // A whole update with refused packets, on a paced line; what is read back is what was sent.
    void updateOverThePort()
    {
        SimulatorProcess simulator(
            words("--baud 921600 --packet-size 512 --flash-base 0x1000 --flash-size 64 --seed 3"));
        QVERIFY(simulator.control("bootloader nak-share 20") && simulator.control("bootloader erase-ms 5"));
        Host host(simulator.port());
        QVERIFY(host.readFrames(1) && host.write("AT+RST\r\n"));
        QTRY_COMPARE(simulator.stat("bootloader"), 1);
        const auto answered = [&host](const QByteArray &request, const QByteArray &end) {
            return host.write(request) && host.readUntil([&] { return host.bytes.endsWith(end); });
        };
        const auto command = [&answered](unsigned int tag, quint32 address, quint32 count) {
            const QByteArray request = frames::Bytes().u8(tag).u8(0).u8(0).u8(2).u32(address).u32(count);
            const QByteArray reply = frames::Bytes().u32(0x020000A0).u32(0).u32(tag);
            return answered(frames::packet(request, 0xA4), frames::packet(reply, 0xA4));
        };
        QByteArray image(40'000, '\0');
        for (qsizetype i = 0; i < image.size(); ++i)
            image[i] = char(i * 7 + i / 256);
        QVERIFY(answered("\x5A\xA6", "\x4A\x24"));
        QVERIFY(command(2, 0x2000, quint32(image.size())) && command(4, 0x2000, quint32(image.size())));
        for (qsizetype i = 0; i < image.size(); i += host.bytes.startsWith("\x5A\xA1") ? 512 : 0) {
            QVERIFY(host.write(frames::packet(image.mid(i, 512))));
            QVERIFY(host.readUntil([&host] { return host.bytes.size() >= 2; }));
        }
        QCOMPARE(simulator.stat("packets") - simulator.stat("refused"), 79);
        QVERIFY(simulator.stat("refused") > 5);

        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("flash read back.bin"));
        QVERIFY(simulator.control(("flash dump " + QFile::encodeName(path)).constData()));
        const QByteArray flash = readFile(path);
        QVERIFY(flash.size() == 64 * 1024 && flash.mid(0x1000, image.size()) == image);
        // The reset leads through the bootloader into the firmware, whose time starts again from 0.
        QVERIFY(host.write(frames::packet(frames::hex("0b000000"), 0xA4)) && host.readFrames(2));
        QCOMPARE(host.timeOf(0), 0U);
    }

    void hostsComeAndGo()
    {
        SimulatorProcess simulator(words("--rate 1000"));
        QTRY_VERIFY(simulator.stat("unheard") > 50);
        QCOMPARE(simulator.stat("bytes"), 0);
        quint32 lastTime = 0;
        for (int visit = 0; visit < 3; ++visit) {
            {
                Host host(simulator.port());
                QVERIFY(host.readFrames(10));
                QCOMPARE(host.strangeBytes, 0);
                // What the previous host left unread is gone.
                QVERIFY2(visit == 0 || host.timeOf(0) > lastTime + 90, qPrintable(QString::number(host.timeOf(0))));
                lastTime = host.timeOf(host.payloads.size() - 1);
                const qint64 sent = simulator.stat("frames_sent");
                QTRY_VERIFY(simulator.stat("frames_sent") > sent + 80);
            }
            const qint64 unheard = simulator.stat("unheard");
            QTRY_VERIFY(simulator.stat("unheard") > unheard + 30);
        }
        // A host that opens the port only to send a command is heard too.
        QVERIFY(Host(simulator.port()).write("AT+ID=42\r\n"));
        const qint64 unheard = simulator.stat("unheard");
        QTRY_VERIFY(simulator.stat("unheard") > unheard + 10);
        Host host(simulator.port());
        QVERIFY(host.readFrames(1));
        QCOMPARE(host.payloads.first().at(1), char(42));
    }

    void unplugAndReplug()
    {
        const QTemporaryDir folder;
        const QString link = folder.filePath(QStringLiteral("imu"));
        SimulatorProcess simulator({QStringLiteral("--link"), link});
        const QString oldPort = simulator.port();
        QCOMPARE(QFile::symLinkTarget(link), oldPort);
        Host host(link);
        QVERIFY(host.readFrames(2));
        QVERIFY(simulator.control("unplug"));
        QVERIFY(host.readUntil([&host] { return host.lost; }));
        QVERIFY(!QFileInfo(link).isSymbolicLink());

        // The old port is still held open here, so the new one has another name.
        QVERIFY(simulator.control("replug"));
        QVERIFY(simulator.port() != oldPort);
        QCOMPARE(QFile::symLinkTarget(link), simulator.port());
        QVERIFY(Host(link).readFrames(2));
    }

    void pacedLineDropsWholeFrames()
    {
        SimulatorProcess simulator(words("--rate 1000 --baud 57600"));
        Host host(simulator.port());
        QVERIFY(host.readFrames(60));
        QCOMPARE(host.strangeBytes, 0);
        // 5760 bytes per second carry at most 70 of the 1000 frames; the device time shows the holes.
        QVERIFY(host.timeOf(host.payloads.size() - 1) - host.timeOf(0) > 700);
        QVERIFY(simulator.stat("dropped") > 10 * simulator.stat("frames_sent"));
    }

    void writeTimesStandBeforeTheArrivals()
    {
        constexpr int kFrames = 60;
        constexpr int kBurst = 3;
        constexpr int kFrameBytes = 82;
        const QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("times"));
        QList<qint64> arrivedNs;
        const auto now = [] {
            return std::chrono::steady_clock::now().time_since_epoch() / std::chrono::nanoseconds(1);
        };
        qint64 sent = 0;
        qint64 openedNs = 0;
        {
            SimulatorProcess simulator(words("--rate 500 --burst 3 --write-times") + QStringList{file});
            openedNs = now();
            Host host(simulator.port());
            QVERIFY(host.readUntil([&] {
                while (arrivedNs.size() < host.bytes.size() / kFrameBytes)
                    arrivedNs.append(now());
                return arrivedNs.size() >= kFrames;
            }));
            QVERIFY(simulator.control("silent on"));
            sent = simulator.stat("frames_sent");
        }
        const QByteArray times = readFile(file);
        QCOMPARE(times.size(), sent * 8);
        const auto timeOf = [&times](qsizetype i) { return qFromLittleEndian<qint64>(times.constData() + i * 8); };
        for (qsizetype i = 0; i < kFrames; ++i) {
            const qint64 since = i < kBurst ? openedNs : timeOf(i - kBurst);
            QVERIFY2(timeOf(i) >= since && timeOf(i) <= arrivedNs.at(i), QByteArray::number(i));
            QCOMPARE(timeOf(i), timeOf(i - i % kBurst));
        }
    }

    void controlsAreChecked()
    {
        SimulatorProcess simulator({});
        const QByteArray rows = "|bogus|noise|noise x|noise -1|noise nan|rate 0|rate 2001|silent yes|vibration|nodes 2|"
                                "vibration add 5|bootloader|bootloader nak 0x|bootloader nak-share 101|flash|"
                                "flash dump /nonexistent/flash|values odd|quit now|gap 1 2|node leave 1|clock distance "
                                "5|clock set -1|garbage|"
                                "reply-delay 60001";
        for (const QByteArray &bad : rows.split('|'))
            QVERIFY2(!simulator.control(bad), bad);
        SimulatorProcess gateway(words("--device gateway"));
        const QByteArray nodeRows =
            "node|node miss 3|node miss 0:1|node miss 3:101|node miss 3:nan|node skip all:2|"
            "node skip 3:-1|node leave 17|node return|node clock 2|node clock 2:x|"
            "node clock 2:1:1:1|node clock-restart 0|node attitude 2:0:91:0|node attitude 2:0:0|"
            "node attitude all:off";
        for (const QByteArray &bad : nodeRows.split('|'))
            QVERIFY2(!gateway.control(bad), bad);
        QVERIFY(!simulator.control(QByteArray(100'000, 'x').constData()));
        for (const char *good : {"noise 0.5", " drop  1 ", "insert 0", "burst 4", "rate 2000", "values nan", "reply 1",
                                 "vibration add 50:0.2:gz:1", "vibration off", "bootloader ignore 5:2", "restart"})
            QVERIFY2(simulator.control(good), good);
    }

    void endsOnRequest()
    {
        constexpr int kQuit = 0;
        constexpr int kEndOfInput = -1;
        for (const int request : {SIGINT, SIGTERM, kQuit, kEndOfInput}) {
            const QTemporaryDir folder;
            const QString link = folder.filePath(QStringLiteral("imu"));
            QVERIFY(QFile::link(QStringLiteral("/dev/null"), link)); // an old link is replaced
            SimulatorProcess simulator({QStringLiteral("--link"), link});
            QCOMPARE(QFile::symLinkTarget(link), simulator.port());
            const Host host(link);
            if (request > 0)
                ::kill(pid_t(simulator.process().processId()), request);
            else if (request == kQuit)
                QVERIFY(simulator.control("quit"));
            else
                simulator.process().closeWriteChannel();
            const QByteArray name = QByteArray::number(request);
            QVERIFY2(simulator.process().waitForFinished() && !QFileInfo(link).isSymbolicLink(), name);
            QVERIFY2(simulator.process().exitStatus() == QProcess::NormalExit, name);
            QVERIFY2(simulator.process().exitCode() == 0, name);
        }
    }

    void refuses()
    {
        for (const char *arguments :
             {"--bogus", "--device mz999", "--device mz221 --layout 62", "--device gateway --layout 91", "--rate 2001",
              "--noise much", "--flash-base 0xFFFFFFFF", "--flash-sector 0", "--bootloader bogus", "walk.csv",
              "--replay /tmp", "--replay " KV_SIMULATOR_PATH, "--link " KV_SIMULATOR_PATH, "--link /nonexistent/imu",
              "--write-times /nonexistent/times"}) {
            QProcess process;
            process.start(QStringLiteral(KV_SIMULATOR_PATH), words(arguments));
            QVERIFY2(process.waitForFinished() && process.exitStatus() == QProcess::NormalExit, arguments);
            QVERIFY2(process.exitCode()
                         == (qstrncmp(arguments, "--link", 6) == 0 || qstrncmp(arguments, "--write", 7) == 0 ? 1 : 2),
                     arguments);
            QVERIFY2(process.readAllStandardError().startsWith("kv_simulator: "), arguments);
        }
    }
};

QTEST_GUILESS_MAIN(TestSimProcess)
#include "tst_sim_process.moc"
