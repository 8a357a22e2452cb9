#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <utility>

#include "device/command_broker.h"
#include "link/kv_uart_port.h"

using namespace Qt::StringLiterals;

namespace {

/// Answers what the broker sends by posting to it, like the port from its own thread.
class Peer : public QObject
{
public:
    explicit Peer(CommandBroker &broker) : m_broker(broker)
    {
        connect(&broker, &CommandBroker::serialSend, this, [this](const QByteArray &data) {
            sent.append(data);
            for (const QByteArray &chunk : replies.value(data))
                QTimer::singleShot(0, &m_broker, [this, chunk] { m_broker.serialRecv(chunk); });
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
    void initTestCase() { QVERIFY(QDir::setCurrent(m_folder.path())); } // where the log is written
    void init() { QFile::remove(u"debug.log"_s); }

    void commandCollectsItsWindow()
    {
        CommandBroker broker;
        Peer peer(broker);
        peer.replies.insert("AT+INFO\r\n", {"MZ2", "21\r\n"});
        broker.serialRecv("before");
        QCOMPARE(broker.executeCommand(u"AT+INFO\r\n"_s, 30), QByteArray("MZ221\r\n"));
        QCOMPARE(broker.lastResult(), QByteArray("MZ221\r\n"));
        QVERIFY(!broker.isCollecting());
        QCOMPARE(log(), u"[D]: command send window_ms=30 bytes=9 preview=\"AT+INFO\\r\\n\"\n"
                        "[D]: command complete response_bytes=7 preview=\"MZ221\\r\\n\"\n"_s);

        QVERIFY(broker.executeCommand(QString(), 30).isEmpty() && broker.lastResult().isEmpty());
        QCOMPARE(peer.sent.size(), 1);
        // A window of zero returns at once, and nothing collects the reply.
        QCOMPARE(broker.executeCommand(u"AT+INFO\r\n"_s, 0), QByteArray());
        QVERIFY(!broker.isCollecting());
        QCoreApplication::processEvents();
        QCOMPARE(broker.executeCommand(u"Y"_s, 5), QByteArray());
        QVERIFY(log().contains(u"[D]: command complete window_ms=0 response_bytes=0\n"_s));
    }

    void sequenceKeepsTheLastReply()
    {
        CommandBroker broker;
        Peer peer(broker);
        peer.replies = {{"A", {"first"}}, {"B", {"second"}}};
        const QList<SettingsCommand> commands = {{u"A"_s, 10}, {QString(), 5000}, {u"B"_s, 10}, {QString(), 5000}};
        QCOMPARE(broker.executeSequence(commands), QByteArray("second"));
        QCOMPARE(peer.sent, QList<QByteArray>({"A", "B"}));
        // A silent last command leaves nothing of the previous one.
        QCOMPARE(broker.executeSequence({{u"A"_s, 10}, {u"C"_s, 10}}), QByteArray());

        QFile::remove(u"debug.log"_s);
        QCOMPARE(broker.executeSequence({{QString(), 10}, {QString(), 10}}), QByteArray());
        QCOMPARE(log(), u"[I]: command sequence start count=2\n"
                        "[I]: command sequence finish count=2 response_bytes=0\n"_s);
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
            inner = broker.executeCommand(u"B"_s, 1000);
            inner += broker.executeSequence({{u"B"_s, 1000}});
        });
        QCOMPARE(broker.executeSequence({{u"A"_s, 40}}), QByteArray("answer"));
        QVERIFY(collecting && inner.isEmpty());
        QCOMPARE(peer.sent, QList<QByteArray>({"A"}));
        QCOMPARE(broker.lastResult(), QByteArray("answer"));
        QCOMPARE(log().count(u"[W]: command rejected while another command is in flight\n"_s), 2);
    }

    void longRepliesAreCut()
    {
        constexpr qsizetype kCap = 1048576;
        CommandBroker broker;
        Peer peer(broker);
        const QString warning = u"[W]: command response truncated at 1048576 bytes\n"_s;
        peer.replies = {{"full", {QByteArray(kCap, 'x')}},
                        {"more", {QByteArray(kCap - 1, 'x'), "yz", "more", "and more"}}};
        broker.serialRecv(QByteArray(kCap + 1, 'x')); // outside a window: dropped, not kept and cut
        QCOMPARE(broker.sendAndCollect("full", 50).size(), kCap);
        QVERIFY(!log().contains(warning));
        for (int window = 1; window <= 2; ++window) { // once per window
            const QByteArray reply = broker.sendAndCollect("more", 50);
            QVERIFY(reply.size() == kCap && reply.back() == 'y');
            QCOMPARE(log().count(warning), window);
        }
    }

    void previewIsShortAndReadable()
    {
        CommandBroker broker;
        broker.sendAndCollect(QByteArray(79, 'a') + "\r\nrest", 0);
        broker.sendAndCollect("%1 \xE9", 0);
        const QStringList lines = log().split(u'\n');
        QCOMPARE(lines[0], u"[D]: command send window_ms=0 bytes=85 preview=\""_s + QString(79, u'a') + u"\\r\""_s);
        QVERIFY(lines[2].endsWith(QString::fromUtf8("preview=\"%1 \xC3\xA9\"")));
    }

    void attachAndDetach()
    {
        KvUartPort first;
        KvUartPort second;
        CommandBroker broker;
        // What arrives within a window shows who is connected.
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
        broker.attachPort(nullptr); // from a port that is gone
        QCOMPARE(log().count(u"[I]: command-broker attached to uart-port\n"_s), 3);
        QCOMPARE(log().count(u"[I]: command-broker detached from uart-port\n"_s), 1);
    }

    void abortEndsAWindowAndItsSequence()
    {
        CommandBroker broker;
        Peer peer(broker);
        peer.replies = {{"A", {"half"}}, {"B", {"more"}}};
        const QList<SettingsCommand> commands = {{u"A"_s, 600000}, {u"B"_s, 600000}}; // longer than the test's limit
        bool isStillHeld = false;
        broker.abort(); // nothing runs
        QTimer::singleShot(20, &broker, [&] {
            broker.abort();
            broker.serialRecv("later");
            isStillHeld = broker.isCollecting() && broker.executeCommand(u"C"_s, 0).isEmpty();
        });
        QCOMPARE(broker.executeSequence(commands), QByteArray("half"));
        QVERIFY(isStillHeld && broker.wasCutShort() && !broker.isCollecting());
        QCOMPARE(peer.sent, QList<QByteArray>({"A"}));
        QVERIFY(log().endsWith(u"command sequence finish count=2 response_bytes=4\n"_s));
        QCOMPARE(broker.executeCommand(u"B"_s, 20), QByteArray("more"));
        QVERIFY(!broker.wasCutShort());
    }

    void observerSeesEachReply()
    {
        CommandBroker broker;
        Peer peer(broker);
        peer.replies = {{"A", {"1"}}, {"B", {"2"}}, {"C", {"3"}}};
        const QList<SettingsCommand> commands = {{u"A"_s, 10}, {QString(), 10}, {u"B"_s, 10}, {u"C"_s, 10}};
        for (const int action : {0, 1, 2}) { // continues, stops, aborts
            peer.sent.clear();
            QByteArray seen;
            broker.executeSequence(commands, [&](qsizetype i, const QByteArray &reply) {
                seen += QByteArray::number(i) + reply + ' ';
                if (action == 2 && i == 2)
                    broker.abort();
                return action != 1 || i < 2;
            });
            QCOMPARE(seen, QByteArray(action == 0 ? "01 22 33 " : "01 22 "));
            QCOMPARE(peer.sent.size(), action == 0 ? 3 : 2);
            QCOMPARE(broker.wasCutShort(), action == 2);
        }
        auto *dying = new CommandBroker;
        dying->executeSequence(commands, [&dying](qsizetype, const QByteArray &) {
            delete std::exchange(dying, nullptr);
            return true;
        });
        QCOMPARE(dying, nullptr);
    }

    // A loop above that of the window, such as a modal dialog's, delays the return but does not keep the window open.
    void windowClosesUnderAModalLoop()
    {
        CommandBroker broker;
        Peer peer(broker);
        peer.replies.insert("A", {"in time"});
        QTimer::singleShot(5, &broker, [&broker] {
            QEventLoop modal;
            QTimer::singleShot(60, &broker, [&broker] { broker.serialRecv("too late"); });
            QTimer::singleShot(80, &modal, &QEventLoop::quit);
            modal.exec();
        });
        QCOMPARE(broker.executeCommand(u"A"_s, 20), QByteArray("in time"));
        QVERIFY(!broker.wasCutShort());
    }

    void brokerMayBeDestroyedInItsWindow()
    {
        auto *broker = new CommandBroker;
        Peer peer(*broker);
        QTimer::singleShot(0, this, [broker] { delete broker; });
        // The window is far longer than the test's time limit.
        QCOMPARE(broker->executeSequence({{u"A"_s, 600000}, {u"B"_s, 600000}}), QByteArray());
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
            reply = broker.executeSequence({{u"A"_s, 600000}, {u"B"_s, 600000}});
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
        QFile file(u"debug.log"_s);
        QString text;
        file.open(QIODevice::ReadOnly);
        for (const QString &line : QString::fromUtf8(file.readAll()).split(u"\r\n"_s, Qt::SkipEmptyParts))
            text += line.mid(int(qstrlen("(yyyy-MM-dd hh:mm:ss) "))) + u'\n';
        return text;
    }

    const QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(TestCommandBroker)
#include "tst_command_broker.moc"
