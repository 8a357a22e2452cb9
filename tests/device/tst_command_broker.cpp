#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "device/command_broker.h"
#include "link/kv_uart_port.h"

namespace {

constexpr qsizetype kCap = 1048576;

QString s(const char *text)
{
    return QString::fromLatin1(text);
}

/// Answers what the broker sends by posting to it, as the port does from its own thread.
class Peer : public QObject
{
public:
    explicit Peer(CommandBroker &broker) : m_broker(broker)
    {
        connect(&broker, &CommandBroker::serialSend, this, [this](const QByteArray &data) {
            sent.append(data);
            for (const QByteArray &chunk : replies.value(data)) {
                QMetaObject::invokeMethod(
                    &m_broker, [this, chunk] { m_broker.serialRecv(chunk); }, Qt::QueuedConnection);
            }
        });
    }

    QHash<QByteArray, QList<QByteArray>> replies;
    QList<QByteArray> sent;

private:
    CommandBroker &m_broker;
};

} // namespace

class TestCommandBroker : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir::setCurrent(m_folder->path())); // the log is written into the working folder
    }
    void cleanup() { QDir::setCurrent(QDir::tempPath()); }

    void commandCollectsItsWindow()
    {
        CommandBroker broker;
        Peer peer(broker);
        peer.replies.insert("AT+INFO\r\n", {"MZ2", "21\r\n"});
        broker.serialRecv("before");
        QCOMPARE(broker.executeCommand(s("AT+INFO\r\n"), 30), QByteArray("MZ221\r\n"));
        QCOMPARE(broker.lastResult(), QByteArray("MZ221\r\n"));
        QVERIFY(!broker.isCollecting());
        QCOMPARE(log(), s("[D]: command send window_ms=30 bytes=9 preview=\"AT+INFO\\r\\n\"\n"
                          "[D]: command complete response_bytes=7 preview=\"MZ221\\r\\n\"\n"));

        QVERIFY(broker.executeCommand(QString(), 30).isEmpty() && broker.lastResult().isEmpty());
        QCOMPARE(peer.sent.size(), 1);
    }

    void windowOfZeroReturnsAtOnce()
    {
        CommandBroker broker;
        Peer peer(broker);
        peer.replies.insert("X", {"late"});
        QCOMPARE(broker.sendAndCollect("X", 0), QByteArray());
        QVERIFY(!broker.isCollecting());
        QCoreApplication::processEvents(); // the reply arrives and finds nobody collecting
        QCOMPARE(broker.sendAndCollect("Y", 5), QByteArray());
        QVERIFY(log().contains(s("[D]: command complete window_ms=0 response_bytes=0\n")));
    }

    void sequenceKeepsTheLastReply()
    {
        CommandBroker broker;
        Peer peer(broker);
        peer.replies = {{"A", {"first"}}, {"B", {"second"}}};
        const QList<SettingsCommand> commands = {{s("A"), 10}, {QString(), 5000}, {s("B"), 10}, {QString(), 5000}};
        QCOMPARE(broker.executeSequence(commands), QByteArray("second"));
        QCOMPARE(broker.lastResult(), QByteArray("second"));
        QCOMPARE(peer.sent, QList<QByteArray>({"A", "B"}));
        // A silent last command leaves nothing of the one before.
        QCOMPARE(broker.executeSequence({{s("A"), 10}, {s("C"), 10}}), QByteArray());

        QFile::remove(s("debug.log"));
        QCOMPARE(broker.executeSequence({{QString(), 10}, {QString(), 10}}), QByteArray());
        QCOMPARE(log(), s("[I]: command sequence start count=2\n"
                          "[I]: command sequence finish count=2 response_bytes=0\n"));
    }

    void commandInFlightIsLeftAlone()
    {
        CommandBroker broker;
        Peer peer(broker);
        peer.replies = {{"A", {"answer"}}, {"B", {"wrong"}}};
        QByteArray inner = "unset";
        bool collecting = false;
        QTimer::singleShot(0, &broker, [&] {
            collecting = broker.isCollecting();
            inner = broker.executeCommand(s("B"), 1000);
            inner += broker.executeSequence({{s("B"), 1000}});
        });
        QCOMPARE(broker.executeSequence({{s("A"), 40}}), QByteArray("answer"));
        QVERIFY(collecting);
        QCOMPARE(inner, QByteArray());
        QCOMPARE(peer.sent, QList<QByteArray>({"A"}));
        QCOMPARE(broker.lastResult(), QByteArray("answer"));
        QCOMPARE(log().count(s("[W]: command rejected while another command is in flight\n")), 2);
    }

    void longRepliesAreCut()
    {
        CommandBroker broker;
        Peer peer(broker);
        const QString warning = s("[W]: command response truncated at 1048576 bytes\n");
        peer.replies = {{"full", {QByteArray(kCap, 'x')}},
                        {"more", {QByteArray(kCap - 1, 'x'), "yz", "more", "and more"}}};
        broker.serialRecv(QByteArray(kCap + 1, 'x')); // in no window: dropped, not kept and cut
        QCOMPARE(broker.sendAndCollect("full", 50).size(), kCap);
        QVERIFY(!log().contains(warning));
        for (int window = 1; window <= 2; ++window) { // once per window
            const QByteArray reply = broker.sendAndCollect("more", 50);
            QCOMPARE(reply.size(), kCap);
            QCOMPARE(reply.back(), 'y');
            QCOMPARE(log().count(warning), window);
        }
    }

    void previewIsShortAndReadable()
    {
        CommandBroker broker;
        broker.sendAndCollect(QByteArray(79, 'a') + "\r\nrest", 0);
        broker.sendAndCollect("%1 \xE9", 0);
        const QStringList lines = log().split(u'\n');
        QCOMPARE(lines[0], s("[D]: command send window_ms=0 bytes=85 preview=\"") + QString(79, u'a') + s("\\r\""));
        QVERIFY(lines[2].endsWith(QString::fromUtf8("preview=\"%1 \xC3\xA9\"")));
    }

    void attachAndDetach()
    {
        KvUartPort first;
        KvUartPort second;
        CommandBroker broker;
        // What arrives within a window tells who is connected.
        const auto heard = [&broker](KvUartPort &port) {
            QTimer::singleShot(0, &port, [&port] { emit port.serialRecv("x"); });
            return broker.sendAndCollect("?", 20).size();
        };
        for (KvUartPort *port : {&first, &first, &second})
            broker.attachPort(port);
        QCOMPARE(heard(first), 0);
        QCOMPARE(heard(second), 1);
        broker.attachPort(nullptr);
        QCOMPARE(heard(second), 0);
        broker.attachPort(nullptr);
        broker.attachPort(std::make_unique<KvUartPort>().get());
        broker.attachPort(nullptr); // of a port that has gone
        QCOMPARE(log().count(s("[I]: command-broker attached to uart-port\n")), 3);
        QCOMPARE(log().count(s("[I]: command-broker detached from uart-port\n")), 1);
    }

    void brokerMayDieInItsWindow()
    {
        auto *broker = new CommandBroker;
        Peer peer(*broker);
        QTimer::singleShot(0, this, [broker] { delete broker; });
        // The window is far longer than the test's time limit.
        QCOMPARE(broker->executeSequence({{s("A"), 600000}, {s("B"), 600000}}), QByteArray());
        QCOMPARE(peer.sent, QList<QByteArray>({"A"}));
    }

    void quittingEndsTheWindow()
    {
        CommandBroker broker;
        Peer peer(broker);
        peer.replies.insert("A", {"half"});
        QByteArray reply;
        QTimer::singleShot(0, &broker, [&] {
            QTimer::singleShot(20, QCoreApplication::instance(), &QCoreApplication::quit);
            reply = broker.executeSequence({{s("A"), 600000}, {s("B"), 600000}});
        });
        QCOMPARE(QCoreApplication::exec(), 0);
        QCOMPARE(reply, QByteArray("half"));
        QCOMPARE(peer.sent, QList<QByteArray>({"A"}));
        QVERIFY(!broker.isCollecting());
    }

private:
    /// The application log without times, one line feed per line.
    static QString log()
    {
        QFile file(s("debug.log"));
        if (!file.open(QIODevice::ReadOnly))
            return {};
        QString text;
        for (const QString &line : QString::fromUtf8(file.readAll()).split(s("\r\n"), Qt::SkipEmptyParts))
            text += line.mid(int(qstrlen("(yyyy-MM-dd hh:mm:ss) "))) + u'\n';
        return text;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(TestCommandBroker)
#include "tst_command_broker.moc"
