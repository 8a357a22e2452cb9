#include <QSignalSpy>
#include <QtTest>

#include "session/stream_router.h"

namespace {

/// A gateway's batch of full records of these nodes; they differ in acceleration X.
DecodedFrame batch(const QList<int> &ids, quint32 timeMs)
{
    DecodedFrame frame;
    frame.family = frame_family::GatewayBatch62;
    frame.is_batch = true;
    frame.item_tags = QByteArray(1, 0x62);
    for (const int id : ids) {
        NodeSnapshot node;
        node.sample.id = quint8(id);
        node.sample.time_ms = timeMs;
        node.sample.acc[0] = float(id);
        frame.nodes.append(node);
    }
    return frame;
}

DecodedFrame single(int id, quint32 timeMs)
{
    DecodedFrame frame = batch({id}, timeMs);
    frame.family = frame_family::SingleNode;
    frame.is_batch = false;
    return frame;
}

/// The router and what its consumers have seen.
struct Viewer
{
    StreamRouter router;
    QList<int> seen; ///< ids of the samples
    QList<StreamBreak> restarts;
    qsizetype batches = 0;
    double nowMs = 0;

    Viewer()
    {
        QObject::connect(&router, &StreamRouter::sampleReceived, [this](const StreamSample &sample) {
            seen.append(int(sample.snapshot.sample.acc[0]));
            QCOMPARE(sample.restart, router.restartNumber());
        });
        QObject::connect(&router, &StreamRouter::streamRestarted,
                         [this](const StreamRestart &restart) { restarts.append(restart.kind); });
        QObject::connect(&router, &StreamRouter::batchReceived, [this] { ++batches; });
        router.start();
    }
    void take(const DecodedFrame &frame, double stepMs = 10)
    {
        nowMs += stepMs;
        router.takeFrame(frame, nowMs, OrientationPreset::RfuEnu312);
    }
};

using Breaks = QList<StreamBreak>;
constexpr auto kNew = StreamBreak::NewConnection;
constexpr auto kOther = StreamBreak::OtherNode;

} // namespace

class TestStreamRouter : public QObject
{
    Q_OBJECT

private slots:
    void followsAnIdentity()
    {
        Viewer viewer;
        viewer.take(batch({2, 3, 5}, 1000));
        viewer.take(batch({3, 5}, 1010)); // the followed one is missing: nothing is shown
        viewer.take(batch({5, 2, 3}, 1020));
        QCOMPARE(viewer.seen, QList<int>({2, 2}));
        viewer.router.follow(3);
        for (const QList<int> &ids : {QList<int>{2, 3, 5}, {2, 5}, {5, 3}, {}, {3, 3}})
            viewer.take(batch(ids, 1030));
        QCOMPARE(viewer.seen, QList<int>({2, 2, 3, 3, 3, 3}));
        QCOMPARE(viewer.restarts, Breaks({kNew, kOther}));
        QCOMPARE(viewer.batches, 7); // an empty batch does not count
        viewer.router.follow(3);     // again: no restart
        viewer.router.follow(9);     // not heard from yet
        viewer.take(batch({2, 3, 5}, 1040));
        QCOMPARE(viewer.seen.size(), 6);
        QVERIFY(!viewer.router.newest());
        QCOMPARE(viewer.restarts, Breaks({kNew, kOther, kOther}));
    }

    void modulesMayChangeTheirId()
    {
        Viewer viewer;
        viewer.take(single(1, 100));
        viewer.take(single(7, 110)); // a second sender on the line is ignored
        viewer.take(single(1, 120));
        QCOMPARE(viewer.seen, QList<int>({1, 1}));
        viewer.take(single(42, 5), 2500); // the module got another id and restarted
        viewer.take(single(42, 15));
        QCOMPARE(viewer.seen, QList<int>({1, 1, 42, 42}));
        QCOMPARE(viewer.restarts, Breaks({kNew, kOther}));
        viewer.take(batch({1, 42}, 25)); // once a gateway is known, an id is a node
        viewer.take(single(1, 35), 2500);
        QCOMPARE(viewer.router.followed(), std::optional<quint8>(42));
    }

    void restartsComeBeforeTheirSample_data()
    {
        QTest::addColumn<quint32>("stampMs");
        QTest::addColumn<double>("pauseMs");
        QTest::addColumn<bool>("interrupt");
        QTest::addColumn<StreamBreak>("expected");
        QTest::newRow("goes on") << 2000U << 10.0 << false << StreamBreak::None;
        QTest::newRow("device restart") << 5U << 800.0 << false << StreamBreak::ClockRestarted;
        QTest::newRow("gap") << 3990U << 2000.0 << false << StreamBreak::Gap;
        QTest::newRow("stopped") << 2490U << 500.0 << true << StreamBreak::OutputStopped;
    }

    void restartsComeBeforeTheirSample()
    {
        QFETCH(quint32, stampMs);
        QFETCH(double, pauseMs);
        QFETCH(StreamBreak, expected);
        Viewer viewer;
        for (quint32 stamp = 1000; stamp < 2000; stamp += 10)
            viewer.take(batch({1, 2}, stamp));
        const quint32 before = viewer.router.newest()->snapshot.sample.time_ms;
        QFETCH(bool, interrupt);
        if (interrupt)
            viewer.router.interrupt();
        viewer.take(batch({1, 2}, stampMs), pauseMs);
        const bool isBroken = expected != StreamBreak::None;
        QCOMPARE(viewer.restarts, isBroken ? Breaks({kNew, expected}) : Breaks({kNew}));
        QCOMPARE(viewer.router.newest()->brokenBy, expected);
        const quint32 step = viewer.router.newest()->snapshot.sample.time_ms - before;
        QVERIFY2(std::abs(double(step) - pauseMs) <= 1 + pauseMs / 20, qPrintable(QString::number(step)));
        QCOMPARE(viewer.router.newest()->deviceMs, stampMs);
    }

    void connectionsBeginAgain()
    {
        Viewer viewer;
        viewer.take(batch({4, 6}, 1000));
        QCOMPARE(viewer.router.heardNodes(viewer.nowMs, 100), QList<quint8>({4, 6}));
        QCOMPARE(viewer.router.heardNodes(viewer.nowMs + 200, 100), QList<quint8>());
        viewer.router.start();
        QVERIFY(!viewer.router.followed());
        QVERIFY(!viewer.router.newest());
        viewer.nowMs = 0;
        viewer.take(batch({6}, 7));
        QCOMPARE(viewer.seen, QList<int>({4, 6}));
        QCOMPARE(viewer.restarts, Breaks({kNew, kNew}));
        QVERIFY(viewer.router.newest()->snapshot.sample.time_ms <= 10);
    }
};

QTEST_GUILESS_MAIN(TestStreamRouter)

#include "tst_stream_router.moc"
