#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <atomic>
#include <memory>

#include "link/kboot_protocol.h"
#include "link/kv_uart_port.h"
#include "support/bootloader_peer.h"
#include "support/simulator_process.h"

namespace {

using Answer = std::optional<QByteArray>;
using Fault = BootloaderFault;
using Step = BootloaderStep;

constexpr int kAddress = 0x0000A000;
const QByteArray kNothing("");

/// The port, with what its bootloader client reported to the main thread. Results are handed over through an atomic,
/// because the thread sanitizer does not see how the toolkit does it.
class TestedPort : public KvUartPort
{
    Q_OBJECT

public:
    explicit TestedPort(const QString &path)
    {
        connect(kboot(), &KbootProtocol::downloadProgress, &m_main, [this](int percent) { progress.append(percent); });
        connect(kboot(), &KbootProtocol::downloadAdvanced, &m_main, [this](BootloaderStep step) {
            if (steps.isEmpty() || steps.last() != step)
                steps.append(step);
        });
        connect(this, &KvUartPort::bootloaderDownloadFinished, &m_main, [this](bool ok) { finished.append(ok); });
        open(path);
    }
    ~TestedPort() override { closeUART(); }

    void open(const QString &path)
    {
        openUART(path, 921600);
        QVERIFY(QTest::qWaitFor([this] { return ask("lookWhetherOpen"); }));
    }

    bool connects() { return ask("runConnect"); }
    bool restarts() { return ask("runRestart"); }
    bool downloads(const QByteArray &image, int attempts = 2)
    {
        finished.clear();
        start(image, attempts);
        return QTest::qWaitFor([this] { return !finished.isEmpty(); }, 10000) && finished.last();
    }
    void start(const QByteArray &image, int attempts = 2)
    {
        QMetaObject::invokeMethod(this, "startDownloadBootloader", Qt::QueuedConnection, Q_ARG(QByteArray, image),
                                  Q_ARG(int, kAddress), Q_ARG(int, attempts));
    }
    /// How it went; reads the flag first, which orders the threads.
    BootloaderOutcome outcome() const { return isBootloaderBusy() ? BootloaderOutcome() : kboot()->outcome(); }

    QList<int> progress;
    QList<BootloaderStep> steps;
    QList<bool> finished;

public slots:
    void runConnect() { m_answer = connectBootloader(); }
    void runRestart() { m_answer = restartFromBootloader(); }
    void lookWhetherOpen() { m_answer = isOpen(); }

private:
    bool ask(const char *slot)
    {
        QMetaObject::invokeMethod(this, slot, Qt::BlockingQueuedConnection);
        return m_answer;
    }

    QObject m_main; ///< stays in the main thread
    std::atomic<bool> m_answer = false;
};

QByteArray counting(int size)
{
    QByteArray bytes(size, '\0');
    for (int i = 0; i < size; ++i)
        bytes[i] = char(i * 7);
    return bytes;
}

bool isData(const QByteArray &packet)
{
    return packet.size() > 2 && quint8(packet.at(1)) == 0xA5;
}

bool isCommand(const QByteArray &packet, int tag)
{
    return packet.size() > 6 && quint8(packet.at(1)) == 0xA4 && packet.at(6) == char(tag);
}

/// How it went, for the message of a failed row.
QByteArray told(const char *name, const TestedPort &port, const BootloaderPeer &peer)
{
    const BootloaderOutcome outcome = port.outcome();
    return QByteArray(name) + ": step " + QByteArray::number(int(outcome.step)) + ", fault "
           + QByteArray::number(int(outcome.fault)) + ", packets " + QByteArray::number(peer.packets().size());
}

QByteArray command(const QByteArray &payload)
{
    return frames::packet(payload, 0xA4);
}

} // namespace

class TestKbootClient : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(QDir::setCurrent(m_folder.path())); }

    void everyByteOfAnUpdate()
    {
        BootloaderPeer peer;
        TestedPort port(peer.path());
        QVERIFY(port.connects());
        QVERIFY(!port.isBootloaderBusy());
        const BootloaderFacts facts = port.kboot()->facts();
        QCOMPARE(facts.maxPacketSize, 32);
        QCOMPARE(facts.flashSizeKb, 128);
        QCOMPARE(facts.sectorSize, 1024);
        QCOMPARE(facts.deviceId, QStringLiteral("0ab1c2d3"));
        QCOMPARE((QList<quint8>{facts.versionMajor, facts.versionMinor, facts.versionBugfix}),
                 (QList<quint8>{2, 1, 3}));

        const QByteArray image = counting(100);
        QVERIFY(port.downloads(image));
        QTRY_COMPARE(port.progress, (QList<int>{32, 64, 96, 100}));
        QCOMPARE(port.steps,
                 (QList<Step>{Step::Ping, Step::Properties, Step::Erase, Step::Write, Step::Data, Step::Reset}));
        QCOMPARE(port.outcome().acknowledgedBytes, 100);
        const QList<QByteArray> expected = {
            "AT+RST\r\n",
            frames::hex("5A A6"),
            frames::hex("5A A4 08 00 73 D4 07 00 00 01 01 00 00 00"), // CRC worked out by hand
            command(frames::hex("07 00 00 01 0B 00 00 00")),
            command(frames::hex("07 00 00 01 04 00 00 00")),
            command(frames::hex("07 00 00 01 10 00 00 00")),
            command(frames::hex("07 00 00 01 05 00 00 00")),
            command(frames::hex("02 00 00 02 00 A0 00 00 64 00 00 00")),
            command(frames::hex("04 00 00 02 00 A0 00 00 64 00 00 00")),
            frames::packet(image.mid(0, 32)),
            frames::packet(image.mid(32, 32)),
            frames::packet(image.mid(64, 32)),
            frames::packet(image.mid(96)),
            command(frames::hex("0B 00 00 00"))};
        QCOMPARE(peer.packets(), expected);
    }

    void connectFaults()
    {
        const QByteArray good = BootloaderPeer::propertyReply(frames::Bytes().u32(32));
        const QByteArray badStatus = BootloaderPeer::ack() + BootloaderPeer::response(0xA7, 103, "abcd");
        // The packet that gets this answer: 0 the restart, 1 the ping, 2 to 6 the properties. No fault: it connects.
        const std::tuple<const char *, int, QByteArray, Fault> rows[] = {
            {"ping ignored", 1, kNothing, Fault::None},
            {"ping half answered", 1, frames::hex("5A A7"), Fault::None},
            {"cut inside the ping's answer", 1, frames::hex("5A A7 03 01 02 50"), Fault::None},
            {"acknowledge only", 3, BootloaderPeer::ack(), Fault::NoAnswer},
            {"3 bytes", 2, BootloaderPeer::propertyReply("abc"), Fault::WrongAnswer},
            {"5 bytes", 3, BootloaderPeer::propertyReply("abcde"), Fault::WrongAnswer},
            {"no value", 5, BootloaderPeer::propertyReply({}), Fault::WrongAnswer},
            {"shorter than a header", 6, command("ab"), Fault::WrongAnswer},
            {"the stream goes on", 4, frames::packet(frames::fullRecord(1)), Fault::WrongAnswer},
            {"wrong CRC", 6, good.chopped(1) + "x", Fault::NoAnswer},
            {"error status", 6, badStatus, Fault::None},
            {"four bytes of noise pass for a value", 6, "abcd", Fault::None},
            {"noise and a stale header first", 3, frames::hex("00 5A 5A FF 5A A1 41") + good, Fault::None}};
        for (const auto &[name, at, answer, fault] : rows) {
            BootloaderPeer peer([at = at, answer = answer](const QByteArray &, int index) {
                return index == at ? Answer(answer) : Answer();
            });
            const auto owner = std::make_unique<TestedPort>(peer.path());
            TestedPort &port = *owner;
            QVERIFY2(port.connects() == (fault == Fault::None), told(name, port, peer));
            QVERIFY2(port.outcome().fault == fault && port.outcome().step == Step::Properties, told(name, port, peer));
            QVERIFY2(peer.packets().size() == (fault == Fault::None ? 7 : at + 1), told(name, port, peer));
            QVERIFY2(at != 5 || port.kboot()->facts().deviceId.isEmpty(), name);
        }
    }

    void downloadFaults()
    {
        const QByteArray nak = frames::hex("5A A2");
        const QByteArray abort = frames::hex("5A A3");
        const QByteArray badStatus = BootloaderPeer::response(0xA0, 102, "abcd");
        // Tag of the command that gets this answer, 0 for data from the second packet on; how often; attempts.
        const std::tuple<const char *, int, QByteArray, int, int, Step, Fault> rows[] = {
            {"refused once", 0, nak, 1, 2, Step::Reset, Fault::None},
            {"aborted once", 0, abort, 1, 2, Step::Reset, Fault::None},
            {"silent once", 0, kNothing, 1, 2, Step::Reset, Fault::None},
            {"refused twice", 0, nak, 2, 2, Step::Data, Fault::Refused},
            {"aborted twice", 0, abort, 2, 2, Step::Data, Fault::Aborted},
            {"silent for good", 0, kNothing, 9, 3, Step::Data, Fault::NoAnswer},
            {"one attempt", 0, nak, 1, 1, Step::Data, Fault::Refused},
            {"no attempt", 0, kNothing, 0, 0, Step::Data, Fault::None},
            {"response for acknowledge", 0, badStatus, 9, 1, Step::Reset, Fault::None},
            {"noise before", 0, frames::hex("41 FF 5A A1"), 9, 1, Step::Reset, Fault::None},
            {"erase silent", 0x02, BootloaderPeer::ack(), 1, 2, Step::Erase, Fault::NoAnswer},
            {"write silent", 0x04, kNothing, 1, 2, Step::Write, Fault::NoAnswer},
            {"reset silent", 0x0B, kNothing, 1, 2, Step::Reset, Fault::None},
            {"data of one byte for erase's response", 0x02, frames::packet("a"), 1, 2, Step::Reset, Fault::None},
            {"erase fails but the download goes on", 0x02, badStatus, 1, 2, Step::Reset, Fault::None}};
        for (const auto &[name, tag, answer, times, attempts, step, fault] : rows) {
            BootloaderPeer peer([tag = tag, answer = answer, times = times, data = 0](const QByteArray &packet,
                                                                                      int) mutable {
                data += isData(packet) ? 1 : 0;
                const bool isIt = tag > 0 ? isCommand(packet, tag) : isData(packet) && data >= 2 && data < 2 + times;
                return isIt ? Answer(answer) : Answer();
            });
            const auto owner = std::make_unique<TestedPort>(peer.path());
            TestedPort &port = *owner;
            QVERIFY2(port.connects(), told(name, port, peer));
            const bool complete = step == Step::Reset;
            QVERIFY2(port.downloads(counting(100), attempts) == complete, told(name, port, peer));
            const BootloaderOutcome outcome = port.outcome();
            QVERIFY2(outcome.step == step && outcome.fault == fault, told(name, port, peer));
            QVERIFY2(outcome.isConfirmed == (tag == 0 && answer == badStatus),
                     name); // the peer confirms only by script
            QVERIFY2(outcome.targetStatus == (answer == badStatus ? 102U : 0U), name);
            QByteArray written; // a repeated packet carries the same bytes
            for (QByteArray last; const QByteArray &packet : peer.packets()) {
                if (isData(packet) && packet != std::exchange(last, packet))
                    written += packet.mid(6);
            }
            QVERIFY2(counting(100).startsWith(written), name);
            const bool isEnded = tag == 0 && answer == badStatus; // ended by the target, at the second packet
            const int taken = complete && !isEnded ? 100 : attempts > 0 && tag == 0 ? 32 : 0;
            QVERIFY2(outcome.acknowledgedBytes == taken && outcome.isEndedByTarget == isEnded, name);
            QVERIFY2(isCommand(peer.packets().constLast(), 0x0B) == complete, name);
        }
    }

    void packetSizes()
    {
        const std::tuple<int, int, bool, QList<int>> rows[] = {
            {32, 0, true, {}},
            {0, 100, false, {}},
            {-1, 100, false, {}},
            {1, 3, true, {33, 66, 100}},
            {512, 1024, true, {50, 100}},
            {0x7FFFFFFF, 70000, true, {93, 100}}}; // limited by the length field
        for (const auto &[packetSize, size, complete, progress] : rows) {
            BootloaderPeer peer([largest = quint32(packetSize)](const QByteArray &packet, int) {
                const bool isAsked = isCommand(packet, 0x07) && packet.at(10) == 0x0B;
                return isAsked ? Answer(BootloaderPeer::propertyReply(frames::Bytes().u32(largest))) : Answer();
            });
            const auto owner = std::make_unique<TestedPort>(peer.path());
            TestedPort &port = *owner;
            QVERIFY(port.connects());
            QCOMPARE(port.downloads(counting(size)), complete);
            QCOMPARE(port.progress, progress);
            QCOMPARE(port.outcome().fault, complete ? Fault::None : Fault::PacketSize);
        }
    }

    // The worker must leave its nested waits, report the end and return to the main thread, wherever it waits.
    void lineEnds()
    {
        for (const int at : {1, 2, 7, 8, 10, 13}) { // the packet that is not answered
            for (const bool unplug : {true, false}) {
                std::atomic<BootloaderPeer *> self = nullptr;
                std::atomic<bool> reached = false;
                BootloaderPeer peer([&](const QByteArray &, int index) {
                    if (index == at && unplug)
                        self.load()->unplug();
                    reached = reached || index == at;
                    return index == at ? Answer(kNothing) : Answer();
                });
                self = &peer;
                const auto owner = std::make_unique<TestedPort>(peer.path());
                TestedPort &port = *owner;
                if (at < 7) {
                    QMetaObject::invokeMethod(&port, "runConnect", Qt::QueuedConnection);
                } else {
                    QVERIFY(port.connects());
                    port.start(counting(100));
                }
                QTRY_VERIFY(reached);
                QTRY_VERIFY(!unplug || !port.isBootloaderBusy());
                port.closeUART();
                QCOMPARE(port.thread(), QCoreApplication::instance()->thread());
                QCOMPARE(port.kboot()->thread(), QCoreApplication::instance()->thread());
                QVERIFY(!port.isOpen() && !port.isBootloaderBusy());
                QCoreApplication::sendPostedEvents();
                const bool isWritten = at == 13; // only the reset is missing
                QCOMPARE(port.finished, at < 7 ? QList<bool>{} : QList<bool>{isWritten});
                QVERIFY(isWritten || port.outcome().fault == Fault::PortClosed);

                BootloaderPeer next;
                port.open(next.path());
                QVERIFY(port.connects());
                QVERIFY(port.downloads(counting(40)));
            }
        }
    }

    void oneOperationAtATime()
    {
        std::atomic<TestedPort *> inside = nullptr;
        BootloaderPeer peer([&](const QByteArray &packet, int) {
            if (isData(packet) && packet.mid(6) == counting(32)) { // during the wait for the first packet
                inside.load()->start(counting(50));
                QMetaObject::invokeMethod(inside.load(), "runConnect", Qt::QueuedConnection);
            }
            return Answer();
        });
        TestedPort port(peer.path());
        inside = &port;
        QVERIFY(!port.isBootloaderBusy());
        QVERIFY(port.connects());
        QVERIFY(port.downloads(counting(64)));
        QCOMPARE(peer.packets().size(), 7 + 2 + 2 + 1);
        QCOMPARE(port.finished, QList<bool>{true});
    }

    // Each connect begins with a restart command, which a bootloader that is already running ignores.
    void connectsAgainAndRestartsTheDevice()
    {
        SimulatorProcess simulator({});
        TestedPort port(simulator.port());
        for (int count = 0; count < 3; ++count) {
            QVERIFY2(port.connects(), QByteArray::number(count));
            QCOMPARE(simulator.stat("boot_restarts"), count);
        }
        QCOMPARE(simulator.stat("boot_text_commands"), 0);
        QVERIFY(port.restarts());
        QTRY_COMPARE(simulator.stat("bootloader"), 0);
        QVERIFY(port.connects() && port.downloads(counting(200)));
        QCOMPARE(simulator.stat("boot_restarts"), 2);
    }

    void stopsWhenTheUserSaysSo()
    {
        SimulatorProcess simulator({});
        TestedPort port(simulator.port());
        const auto stop = [&port] { QMetaObject::invokeMethod(&port, "cancelBootloader", Qt::QueuedConnection); };
        stop(); // nothing is running
        for (const bool erasing : {true, false}) {
            QVERIFY(simulator.control(erasing ? "bootloader erase-ms 1000" : "bootloader erase-ms 0"));
            QVERIFY(port.connects());
            port.steps.clear();
            port.progress.clear();
            port.finished.clear();
            port.start(counting(60000));
            QTRY_VERIFY(erasing ? port.steps.contains(Step::Erase) : port.progress.size() > 3);
            stop();
            QTRY_COMPARE(port.finished, QList<bool>{false});
            QVERIFY(port.outcome().fault == Fault::Stopped
                    && port.outcome().step == (erasing ? Step::Erase : Step::Data));
        }
        QVERIFY(port.connects() && port.downloads(counting(200)));
        QCOMPARE(simulator.stat("boot_text_in_data"), 0);
    }

private:
    QTemporaryDir m_folder; ///< for the application log
};

QTEST_GUILESS_MAIN(TestKbootClient)
#include "tst_kboot_client.moc"
