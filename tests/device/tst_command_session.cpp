#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <functional>

#include "device/command_broker.h"
#include "device/command_session.h"
#include "link/kv_uart_port.h"
#include "support/files.h"
#include "support/simulator_process.h"

using namespace Qt::StringLiterals;
using Outcome = CommandSession::Outcome;

namespace {

constexpr int kBaud = 921600;

/// A session with a simulated device on an open port.
struct Bench
{
    SimulatorProcess simulator;
    KvUartPort port;
    CommandBroker broker;
    CommandSession session;
    QByteArrayList sent;
    CommandOutcome outcome;
    QString log;

    explicit Bench(const char *options) : simulator(QString::fromLatin1(options).split(u' ', Qt::SkipEmptyParts))
    {
        broker.attachPort(&port);
        session.setBroker(&broker);
        session.setBaud(kBaud);
        QObject::connect(&broker, &CommandBroker::serialSend, &session,
                         [this](const QByteArray &data) { sent.append(data.trimmed()); });
        QObject::connect(&session, &CommandSession::outcome, &session,
                         [this](const CommandOutcome &ended) { outcome = ended; });
        QObject::connect(&session, &CommandSession::logLine, &session,
                         [this](const QString &line) { log += line + u'\n'; });
        QSignalSpy opened(&port, &KvUartPort::opened);
        port.openUART(simulator.port(), kBaud);
        QTRY_COMPARE(opened.size(), 1);
        session.setConnected(true);
    }
    ~Bench() { port.closeUART(); }
    bool control(const char *line) { return simulator.control(line); }
};

} // namespace

class TestCommandSession : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(QDir::setCurrent(m_folder.path())); } // where the log is written

    void answersBelongToTheirWrites()
    {
        using Replies = QList<QByteArray>;
        const QString id = u"AT+ID=5"_s;
        const QString rate = u"AT+ODR=100"_s;
        const QString mode = u"AT+MODE=1"_s;
        const QString restart = u"AT+RST"_s;
        const QByteArray ok = "OK\r\n";
        const QByteArray error = "ERROR\r\n";
        // The device's replies in the windows of these four commands, what was refused, and whether that is certain.
        const std::tuple<const char *, Replies, QStringList, bool> rows[] = {
            {"in time", {ok, error, ok, ok}, {rate}, true},
            {"each one window late", {"", error, ok, ok + ok}, {id}, true},
            {"all late", {"", "", "", ok + error + ok + ok}, {rate}, true},
            {"cut by the end of the window", {"ERR", "OR\r" + QByteArray("\nO"), "K\r\n" + ok, ok}, {id}, true},
            {"two", {error, ok, "", error + ok}, {id, mode}, true},
            {"nothing refused", {ok, ok, ok, ok}, {}, true},
            {"silence", {"", "", "", ""}, {}, true},
            {"restart unanswered", {ok, error, ok, ""}, {rate}, true},
            {"late, and the restart unanswered", {"", error, ok, ok}, {id, rate}, false},
            {"one answer for two", {"", error, "", ""}, {id, rate}, false},
            {"late, and one lost", {"", "", error + ok, ok}, {id, rate}, false},
            {"before any other could answer", {error, "", "", ""}, {id}, true},
            {"all refused, one answer lost", {error, error, error, ""}, {id, rate, mode}, true},
            {"too many answers", {ok + ok, error, ok, ok}, {id, rate}, false},
            {"a stranger's word", {"ERROR 5\r\n", ok, ok, ok + ok}, {}, true}};
        for (const auto &[name, replies, refused, isKnown] : rows) {
            const CommandOutcome outcome = CommandOutcome::ofWrites({id, rate, mode, restart}, replies);
            QVERIFY2(outcome.commands == refused && outcome.isOneOf == !isKnown, name);
            QVERIFY2((outcome.kind == Outcome::Refused) == !refused.isEmpty(), name);
        }
    }

    // The refusal of the first write arrives in the window of the second.
    void lateAnswersAreNotChargedToTheNextCommand()
    {
        Bench bench("--device mz226 --reply-delay 30 --refuse AT+ID");
        QVERIFY(!bench.session.readInfo().isEmpty());
        QFile::remove(u"debug.log"_s);
        bench.session.save({1, 50, 5});
        QCOMPARE(bench.outcome.kind, Outcome::Refused);
        QCOMPARE(bench.outcome.commands, QStringList{u"AT+ID=5"_s});
        QVERIFY(!bench.outcome.isOneOf);
        const QByteArray lines = readFile(u"debug.log"_s);
        QVERIFY2(lines.contains("command sequence start count=5") && lines.contains("command sequence finish count=5"),
                 lines);
    }

    void suspendEndsTheRunningCommand()
    {
        Bench bench("--device mz226");
        const std::function<void()> operations[] = {[&] { QVERIFY(bench.session.readInfo().isEmpty()); },
                                                    [&] {
                                                        bench.session.save({1, 100, 5});
                                                    },
                                                    [&] { bench.session.runHotkey(SettingsHotkeyAction::StopOutput); },
                                                    [&] { bench.session.resumeOutput(true); }};
        for (const auto &operation : operations) {
            QVERIFY(!bench.session.readInfo().isEmpty());
            bench.sent.clear();
            const auto once = Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection);
            connect(
                &bench.broker, &CommandBroker::serialSend, &bench.session, // during the first command's wait
                [&bench] {
                    bench.session.suspend(true);
                    bench.session.suspend(false); // even one that is over before the wait ends
                    bench.session.suspend(true);
                },
                once);
            operation();
            QVERIFY(!bench.session.isBusy() && bench.session.isSuspended() && bench.sent.size() == 1);
            for (const auto &refused : operations)
                refused();
            QCOMPARE(bench.sent.size(), 1);
            bench.session.suspend(false);
        }
        QVERIFY(bench.session.device().valid); // unchanged
    }

    // With flowing data, or a suspension, nothing is repeated. The benches start one after the other, so that the last
    // one repeats only after the others would have.
    void resumeIsRepeatedUntilDataFlow()
    {
        Bench flowing("--rate 1 --deaf on");
        Bench suspended("--silent on");
        Bench mute("--silent on");
        for (Bench *bench : {&flowing, &suspended, &mute}) {
            bench->session.resumeOutput(true);
            while (bench->broker.lastResult().size() > 0) // the one packet in this second
                bench->session.resumeOutput(true);
            bench->sent.clear();
        }
        flowing.session.noteData();
        suspended.session.suspend(true);
        suspended.session.suspend(false);
        QTRY_COMPARE(mute.sent, QByteArrayList{"AT+EOUT=1"});
        QVERIFY(flowing.sent.isEmpty() && suspended.sent.isEmpty());
    }

    void noiseIsReported()
    {
        Bench bench("--garbage 11000");
        bench.session.setBaud(115200);
        for (int reading = 0; reading < 2; ++reading) {
            QVERIFY(bench.session.readInfo().isEmpty());
            QVERIFY(bench.outcome.kind == Outcome::Noise && bench.session.lastReadWasNoise());
            QVERIFY(!bench.session.device().valid && bench.log.contains(u"< (noise)\n"_s));
        }
        QVERIFY(bench.control("garbage 0"));
        QVERIFY(!bench.session.readInfo().isEmpty());
        QVERIFY(bench.outcome.kind == Outcome::Nothing && !bench.session.lastReadWasNoise());
        QVERIFY(bench.control("deaf on")); // a stream that continues is not noise
        QVERIFY(bench.session.readInfo().isEmpty());
        QVERIFY(bench.outcome.kind == Outcome::NoReply && !bench.session.lastReadWasNoise());
    }

private:
    const QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(TestCommandSession)
#include "tst_command_session.moc"
