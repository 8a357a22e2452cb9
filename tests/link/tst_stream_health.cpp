#include <QDateTime>
#include <QTest>

#include "link/stream_health.h"

namespace {

using Stamps = QList<quint32>;

/// A sample of one node that arrives `hostMs` on the computer's clock.
struct Sample
{
    quint32 stampMs;
    qint64 hostMs;
};
using Samples = QList<Sample>;

/// Samples `from` to `to` of a source that stamps them in whole milliseconds, on a line without delay.
Samples run(double rateHz, int from, int to, quint32 startMs = 1000)
{
    Samples samples;
    for (int i = from; i < to; ++i) {
        const auto passedMs = qint64(i * 1000.0 / rateHz);
        samples.append({quint32(startMs + passedMs), passedMs});
    }
    return samples;
}

DecodedFrame moduleFrame(quint8 id, quint32 stampMs)
{
    DecodedFrame frame;
    frame.family = frame_family::SingleNode;
    frame.nodes.append(NodeSnapshot{{.id = id, .time_ms = stampMs}, false, false});
    return frame;
}

DecodedFrame batchFrame(int family, const QList<quint8> &ids, quint32 stampMs)
{
    DecodedFrame frame;
    frame.family = family;
    frame.is_batch = true;
    frame.gw_ts_ms = stampMs;
    for (const quint8 id : ids)
        frame.nodes.append(NodeSnapshot{{.id = id, .time_ms = stampMs}, true, true});
    return frame;
}

} // namespace

class TestStreamHealth : public QObject
{
    Q_OBJECT

private slots:
    void gaps()
    {
        const auto row = [](const QByteArray &name, const Samples &samples, quint64 missing, quint32 gapMs,
                            quint64 restarts = 0) {
            StreamHealth health;
            const qint64 before = QDateTime::currentMSecsSinceEpoch();
            for (const Sample &sample : samples)
                health.addFrame(moduleFrame(7, sample.stampMs), sample.hostMs);
            const NodeHealth &node = health.node(7);
            QVERIFY2(node.samples == quint64(samples.size()) && node.missing == missing, name);
            QVERIFY2(node.largestGapMs == gapMs && node.restarts == restarts, name);
            QVERIFY2((node.lastGapMs >= before) == (missing > 0), name);
            QVERIFY2(node.hasClock == (samples.last().stampMs != 0), name);
            QVERIFY2(health.total() == node && !health.isGateway(), name);
        };
        for (const int rateHz : {1, 2, 10, 50, 100, 200, 250, 400, 500, 1000}) {
            const QByteArray rate = QByteArray::number(rateHz) + " Hz, ";
            row(rate + "complete", run(rateHz, 0, 200), 0, 0);
            row(rate + "three lost", run(rateHz, 0, 100) + run(rateHz, 103, 200), 3, 4000 / quint32(rateHz));
            row(rate + "one lost, then four", run(rateHz, 0, 40) + run(rateHz, 41, 60) + run(rateHz, 64, 90), 5,
                run(rateHz, 64, 65).first().stampMs - run(rateHz, 59, 60).first().stampMs);
        }
        for (const int rateHz : {300, 600, 700, 800}) // steps of two lengths in turn
            row(QByteArray::number(rateHz) + " Hz, complete", run(rateHz, 0, 1000), 0, 0);

        const Samples before = run(100, 0, 50);
        const auto with = [&before](const Stamps &stamps) { // 10 ms apart on the computer's clock
            Samples samples = before;
            for (const quint32 stamp : stamps)
                samples.append({stamp, samples.last().hostMs + 10});
            return samples;
        };
        row("wrap", run(100, 0, 50, 0xFFFFFFFFU - 200) + run(100, 53, 80, 0xFFFFFFFFU - 200), 3, 40);
        row("unsteady stamps", with({1496, 1510, 1519, 1532, 1541}), 0, 0);
        row("repeated and late", with({1490, 1490, 1480, 1500, 1500, 1510}), 0, 0);
        row("overtaken: counted as missing, the late one changes nothing", with({1510, 1500, 1520}), 1, 20);
        row("without stamps in between", with({0, 0, 1520}), 2, 30);
        row("restart", with({0, 12, 22, 32}), 0, 0, 1);
        row("set forward by an hour", with({3601500, 3601510, 3601520}), 0, 0, 1);
        row("set back by a minute", with({0xFFFFFFFFU - 58000, 0xFFFFFFFFU - 57990}), 0, 0, 1);
        row("silent for ten minutes", before + run(100, 60050, 60060), 60000, 600010);
        row("too few to know the rate", {{1000, 0}, {1010, 10}, {1500, 500}, {1510, 510}}, 0, 0);
        row("never a stamp", {{0, 0}, {0, 10}, {0, 500}}, 0, 0);
    }

    void nodesOfAGateway()
    {
        checkGateway(frame_family::GatewayBatch62); // separate clocks
        checkGateway(frame_family::GatewayBatch63); // the gateway's clock
    }

private:
    static void checkGateway(int family)
    {
        StreamHealth health;
        quint32 ms = 5000;
        const auto batches = [&](int count, const QList<quint8> &ids) {
            for (int i = 0; i < count; ++i, ms += 10)
                health.addFrame(batchFrame(family, ids, ms), ms);
        };
        batches(20, {1, 2, 9});
        batches(4, {1, 9}); // 2 is silent
        batches(20, {1, 2, 9});
        batches(6, {}); // none is heard from
        batches(20, {1, 2});
        QVERIFY(health.isGateway());
        QCOMPARE(health.nodeIds(), (QList<quint8>{1, 2, 9}));
        QCOMPARE(health.node(1).missing, 6U);
        QCOMPARE(health.node(1).largestGapMs, 70U);
        QCOMPARE(health.node(2).missing, 10U);
        QCOMPARE(health.node(9).missing, 0U); // it has not come back yet
        QCOMPARE(health.node(9).samples, 44U);
        QCOMPARE(health.total().missing, 16U);
        QCOMPARE(health.total().samples, 64U + 60U + 44U);
        QCOMPARE(health.total().lastGapMs, health.node(1).lastGapMs);
        batches(1, {9});
        QCOMPARE(health.node(9).missing, 26U);

        // Another layout is another clock: its stamps do not continue the earlier ones.
        const int other =
            family == frame_family::GatewayBatch62 ? frame_family::GatewayBatch63 : frame_family::GatewayBatch62;
        for (int i = 0; i < 20; ++i)
            health.addFrame(batchFrame(other, {1}, 30000 + 10 * quint32(i)), ms + 10 * i);
        QCOMPARE(health.node(1).missing, 6U);
        QCOMPARE(health.node(1).restarts, 0U);

        health.interrupt(); // ordered to be silent, then to go on, with its clock reset
        for (const quint32 begin : {50000U, 100U}) {
            for (quint32 i = 0; i < 20; ++i)
                health.addFrame(batchFrame(other, {1}, begin + 10 * i), ms + begin + 10 * i);
            QCOMPARE(health.node(1).missing, 6U);
            QCOMPARE(health.node(1).restarts, 0U);
            health.interrupt();
        }

        health.clear();
        QVERIFY(health.nodeIds().isEmpty());
        QCOMPARE(health.total(), NodeHealth());
    }

private slots:
    void anyIds()
    {
        StreamHealth health;
        for (quint32 i = 0; i < 5000; ++i)
            health.addFrame(batchFrame(frame_family::GatewayBatch62, {quint8(i), quint8(i + 1)}, 10 * i + 1), 10 * i);
        QCOMPARE(health.nodeIds().size(), 256);
        QCOMPARE(health.total().samples, 10000U);
    }
};

QTEST_GUILESS_MAIN(TestStreamHealth)
#include "tst_stream_health.moc"
