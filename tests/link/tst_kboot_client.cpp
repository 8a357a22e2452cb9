#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <atomic>

#include "link/kboot_protocol.h"
#include "link/kv_uart_port.h"
#include "support/bootloader_peer.h"

namespace {

using Answer = std::optional<QByteArray>;
using Fault = BootloaderFault;
using Step = BootloaderStep;

constexpr int kAddress = 0x0000A000;
const QByteArray kNothing("");

/// The port with what its bootloader client has told the main thread. Results are handed over through an atomic,
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
    /// How it went; looks at the flag first, which orders the threads.
    BootloaderOutcome outcome() const { return isBootloaderBusy() ? BootloaderOutcome() : kboot()->outcome(); }

    QList<int> progress;
    QList<BootloaderStep> steps;
    QList<bool> finished;

public slots:
    void runConnect() { m_answer = connectBootloader(); }
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

    void connectFaults_data()
    {
        QTest::addColumn<int>("at"); // 0 the restart, 1 the ping, 2 to 6 the properties
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<bool>("connected");
        QTest::addColumn<Fault>("fault");
        const QByteArray good = BootloaderPeer::propertyReply(frames::Bytes().u32(32));
        QTest::newRow("ping ignored") << 1 << kNothing << true << Fault::None;
        QTest::newRow("ping half answered") << 1 << frames::hex("5A A7") << true << Fault::None;
        QTest::newRow("silent") << 2 << kNothing << false << Fault::NoAnswer;
        QTest::newRow("acknowledge only") << 3 << BootloaderPeer::ack() << false << Fault::NoAnswer;
        QTest::newRow("3 bytes") << 2 << BootloaderPeer::propertyReply("abc") << false << Fault::WrongAnswer;
        QTest::newRow("5 bytes") << 3 << BootloaderPeer::propertyReply("abcde") << false << Fault::WrongAnswer;
        QTest::newRow("no value") << 5 << BootloaderPeer::propertyReply({}) << false << Fault::WrongAnswer;
        QTest::newRow("shorter than a header") << 6 << command("ab") << false << Fault::WrongAnswer;
        QTest::newRow("the stream goes on")
            << 4 << frames::packet(frames::fullRecord(1)) << false << Fault::WrongAnswer;
        QTest::newRow("wrong CRC") << 6 << good.chopped(1) + "x" << false << Fault::NoAnswer;
        QTest::newRow("error status") << 6 << BootloaderPeer::ack() + BootloaderPeer::response(0xA7, 103, "abcd")
                                      << true << Fault::None;
        QTest::newRow("noise and a stale packet head before")
            << 3 << frames::hex("00 5A 5A FF 5A A1 41") + good << true << Fault::None;
        // The header alone would leave the decoder in the middle of a packet when the next command is sent.
        QTest::newRow("cut behind the ping") << 1 << frames::hex("5A A7 03 01 02 50") << true << Fault::None;
    }
    void connectFaults()
    {
        QFETCH(int, at);
        QFETCH(QByteArray, answer);
        QFETCH(bool, connected);
        BootloaderPeer peer([=](const QByteArray &, int index) { return index == at ? Answer(answer) : Answer(); });
        TestedPort port(peer.path());
        QCOMPARE(port.connects(), connected);
        QTEST(port.outcome().fault, "fault");
        QCOMPARE(port.outcome().step, Step::Properties);
        QCOMPARE(peer.packets().size(), connected ? 7 : at + 1);
        if (at == 5)
            QCOMPARE(port.kboot()->facts().deviceId, QString());
    }

    void downloadFaults_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<int>("attempts");
        QTest::addColumn<QByteArray>("answer"); // to the second data packet or to the command
        QTest::addColumn<int>("repeats");
        QTest::addColumn<int>("commandTag"); // 0: data
        QTest::addColumn<Step>("step");
        QTest::addColumn<Fault>("fault");
        const QByteArray nak = frames::hex("5A A2");
        const QByteArray abort = frames::hex("5A A3");
        const auto row = [](const char *name) -> QTestData & { return QTest::newRow(name); };
        row("refused once") << 100 << 2 << nak << 1 << 0 << Step::Reset << Fault::None;
        row("aborted once") << 100 << 2 << abort << 1 << 0 << Step::Reset << Fault::None;
        row("silent once") << 100 << 2 << kNothing << 1 << 0 << Step::Reset << Fault::None;
        row("refused twice") << 100 << 2 << nak << 2 << 0 << Step::Data << Fault::Refused;
        row("aborted twice") << 100 << 2 << abort << 2 << 0 << Step::Data << Fault::Aborted;
        row("silent for good") << 100 << 3 << kNothing << 3 << 0 << Step::Data << Fault::NoAnswer;
        row("one attempt") << 100 << 1 << nak << 1 << 0 << Step::Data << Fault::Refused;
        row("no attempt") << 100 << 0 << kNothing << 0 << 0 << Step::Data << Fault::None;
        row("response for acknowledge") << 100 << 1 << BootloaderPeer::response(0xA0, 0, "abcd") << 1 << 0
                                        << Step::Reset << Fault::None;
        row("half a packet before") << 100 << 1 << frames::hex("41 5A A1") << 1 << 0 << Step::Reset << Fault::None;
        row("empty image") << 0 << 2 << kNothing << 0 << 0 << Step::Reset << Fault::None;
        row("erase silent") << 100 << 2 << BootloaderPeer::ack() << 0 << 0x02 << Step::Erase << Fault::NoAnswer;
        row("write silent") << 100 << 2 << kNothing << 0 << 0x04 << Step::Write << Fault::NoAnswer;
        row("reset silent") << 100 << 2 << kNothing << 0 << 0x0B << Step::Reset << Fault::None;
        row("erase fails and goes on") << 100 << 2 << BootloaderPeer::response(0xA0, 102, "abcd") << 0 << 0x02
                                       << Step::Reset << Fault::None;
    }
    void downloadFaults()
    {
        QFETCH(int, size);
        QFETCH(int, attempts);
        QFETCH(QByteArray, answer);
        QFETCH(int, repeats);
        QFETCH(int, commandTag);
        QFETCH(BootloaderStep, step);
        int data = 0; // in the peer's thread only
        BootloaderPeer peer([=](const QByteArray &packet, int) mutable -> Answer {
            data += isData(packet) ? 1 : 0;
            const bool isFaulty =
                commandTag > 0 ? isCommand(packet, commandTag) : isData(packet) && data >= 2 && data < 2 + repeats;
            return isFaulty ? Answer(answer) : Answer();
        });
        TestedPort port(peer.path());
        QVERIFY(port.connects());
        const bool complete = step == Step::Reset;
        QCOMPARE(port.downloads(counting(size), attempts), complete);
        const BootloaderOutcome outcome = port.outcome();
        QCOMPARE(outcome.step, step);
        QTEST(outcome.fault, "fault");
        QCOMPARE(outcome.acknowledgedBytes, complete ? size : step == Step::Data && attempts > 0 ? 32 : 0);
        QCOMPARE(outcome.repeatedPackets, complete && answer.size() < 3 && commandTag == 0 ? repeats
                                          : step == Step::Data && attempts > 0             ? attempts - 1
                                                                                           : 0);
        QCOMPARE(outcome.targetStatus, answer.contains('f') ? 102U : 0U);
        QByteArray written; // a packet that is sent again carries the same bytes
        for (QByteArray last; const QByteArray &packet : peer.packets()) {
            if (isData(packet) && packet != std::exchange(last, packet))
                written += packet.mid(6);
        }
        if (complete)
            QCOMPARE(written, counting(size));
        QCOMPARE(isCommand(peer.packets().constLast(), 0x0B), complete);
    }

    void packetSizes()
    {
        const std::tuple<int, int, QList<int>> rows[] = {{0, 100, {}},
                                                         {-1, 100, {}},
                                                         {1, 3, {33, 66, 100}},
                                                         {512, 1024, {50, 100}},
                                                         {0x7FFFFFFF, 70000, {93, 100}}}; // the length field ends it
        for (const auto &[packetSize, size, progress] : rows) {
            BootloaderPeer peer([=, largest = packetSize](const QByteArray &packet, int) {
                const bool isAsked = isCommand(packet, 0x07) && packet.at(10) == 0x0B;
                return isAsked ? Answer(BootloaderPeer::propertyReply(frames::Bytes().u32(quint32(largest))))
                               : Answer();
            });
            TestedPort port(peer.path());
            QVERIFY(port.connects());
            QCOMPARE(port.downloads(counting(size)), !progress.isEmpty());
            QCOMPARE(port.progress, progress);
            QCOMPARE(port.outcome().fault, progress.isEmpty() ? Fault::PacketSize : Fault::None);
        }
    }

    // The worker has to leave its nested waits, tell the end and come home, wherever it waits.
    void lineEnds_data()
    {
        QTest::addColumn<int>("at"); // the packet that is not answered
        QTest::addColumn<bool>("unplug");
        for (const int at : {1, 2, 7, 8, 10, 13}) {
            QTest::addRow("unplugged at %d", at) << at << true;
            QTest::addRow("closed at %d", at) << at << false;
        }
    }
    void lineEnds()
    {
        QFETCH(int, at);
        QFETCH(bool, unplug);
        std::atomic<BootloaderPeer *> self = nullptr;
        std::atomic<bool> reached = false;
        BootloaderPeer peer([&](const QByteArray &, int index) -> Answer {
            if (index != at)
                return {};
            if (unplug)
                self.load()->unplug();
            reached = true;
            return kNothing;
        });
        self = &peer;
        TestedPort port(peer.path());
        if (at < 7) {
            QMetaObject::invokeMethod(&port, "runConnect", Qt::QueuedConnection);
        } else {
            QVERIFY(port.connects());
            port.start(counting(100));
        }
        QTRY_VERIFY(reached);
        if (unplug)
            QTRY_VERIFY(!port.isBootloaderBusy());
        port.closeUART();
        QCOMPARE(port.thread(), QCoreApplication::instance()->thread());
        QCOMPARE(port.kboot()->thread(), QCoreApplication::instance()->thread());
        QVERIFY(!port.isOpen() && !port.isBootloaderBusy());
        QCoreApplication::sendPostedEvents();
        QCOMPARE(port.finished, at < 7 ? QList<bool>{} : QList<bool>{at == 13}); // by the reset all is written
        if (at != 13)
            QCOMPARE(port.outcome().fault, Fault::PortClosed);

        BootloaderPeer next;
        port.open(next.path());
        QVERIFY(port.connects());
        QVERIFY(port.downloads(counting(40)));
    }

    void oneOperationAtATime()
    {
        std::atomic<TestedPort *> inside = nullptr;
        BootloaderPeer peer([&](const QByteArray &packet, int) {
            if (isData(packet) && packet.mid(6) == counting(32)) { // inside the wait for the first packet
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

    void closedPort()
    {
        KvUartPort port;
        QSignalSpy finished(&port, &KvUartPort::bootloaderDownloadFinished);
        QVERIFY(!port.connectBootloader());
        QVERIFY(!port.downloadBootloader("image", 0, 2));
        port.startDownloadBootloader("image", 0, 2);
        QCOMPARE(finished, (QList<QVariantList>{{false}}));
        QCOMPARE(port.kboot()->outcome().fault, Fault::PortClosed);
    }

private:
    QTemporaryDir m_folder; ///< for the application log
};

QTEST_GUILESS_MAIN(TestKbootClient)
#include "tst_kboot_client.moc"
