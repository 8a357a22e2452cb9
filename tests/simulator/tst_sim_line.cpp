#include <QtTest>

#include "simulator/fault_injector.h"
#include "simulator/frame_clock.h"
#include "simulator/transmit_line.h"

using namespace kvsim;

static constexpr qint64 kSecondNs = 1'000'000'000;

class TestSimLine : public QObject
{
    Q_OBJECT

private slots:
    void faultsAreDeterministic();
    void faultKinds_data();
    void faultKinds();
    void clockKeepsItsRate_data();
    void clockKeepsItsRate();
    void clockSkipsLongPauses();
    void linePacesBytes();
    void lineDropsWholeFrames();
    void idleLineSavesNothingUp();
    void slowReaderIsBounded();
    void countsFramesByTheirLastByte();

private:
    static TransmitLine::Chunk frame(qsizetype size) { return {QByteArray(size, 'f'), 1, 1}; }
};

void TestSimLine::faultsAreDeterministic()
{
    const auto damage = [](quint64 seed) {
        FaultInjector faults(seed);
        faults.setFlipRate(20);
        faults.setDropRate(20);
        faults.setInsertRate(20);
        return faults.apply(QByteArray(5000, 'a')).bytes;
    };
    QCOMPARE(damage(7), damage(7));
    QVERIFY(damage(7) != damage(8));
}

void TestSimLine::faultKinds_data()
{
    QTest::addColumn<double>("flip");
    QTest::addColumn<double>("drop");
    QTest::addColumn<double>("insert");
    QTest::newRow("none") << 0.0 << 0.0 << 0.0;
    QTest::newRow("flip") << 10.0 << 0.0 << 0.0;
    QTest::newRow("drop") << 0.0 << 10.0 << 0.0;
    QTest::newRow("insert") << 0.0 << 0.0 << 10.0;
    QTest::newRow("drop all") << 0.0 << 1e9 << 0.0;
}

void TestSimLine::faultKinds()
{
    QFETCH(double, flip);
    QFETCH(double, drop);
    QFETCH(double, insert);
    FaultInjector faults(3);
    faults.setFlipRate(flip);
    faults.setDropRate(drop);
    faults.setInsertRate(insert);
    constexpr int kKilobytes = 512;
    qint64 bits = 0;
    qint64 growth = 0;
    for (int i = 0; i < kKilobytes * 8; ++i) {
        const QByteArray original(128, char(i));
        const FaultInjector::Result result = faults.apply(original);
        QCOMPARE(result.intact, result.bytes == original);
        growth += result.bytes.size() - original.size();
        for (qsizetype k = 0; flip > 0 && k < original.size(); ++k)
            bits += qPopulationCount(quint8(result.bytes[k] ^ original[k]));
    }
    // Within five standard deviations of what was asked for.
    const double wantedGrowth = (insert - std::min(drop, 1024.0)) * kKilobytes;
    QVERIFY2(std::abs(double(growth) - wantedGrowth) <= (drop > 1024 ? 0 : 360), qPrintable(QString::number(growth)));
    QVERIFY2(std::abs(double(bits) - flip * kKilobytes) <= 360, qPrintable(QString::number(bits)));
}

void TestSimLine::clockKeepsItsRate_data()
{
    QTest::addColumn<int>("rate");
    QTest::addColumn<qint64>("tickNs");
    QTest::newRow("slow rate, fast ticks") << 3 << qint64(1'000'003);
    QTest::newRow("one per tick") << 1000 << qint64(1'000'000);
    QTest::newRow("uneven") << 997 << qint64(7'300'001);
    QTest::newRow("many per tick") << 2000 << qint64(99'999'999);
}

void TestSimLine::clockKeepsItsRate()
{
    QFETCH(int, rate);
    QFETCH(qint64, tickNs);
    FrameClock clock;
    constexpr qint64 kStart = 12'345;
    clock.restart(kStart, rate);
    qint64 count = 0;
    qint64 last = -1;
    qint64 nowNs = kStart;
    for (; nowNs < kStart + 60 * kSecondNs; nowNs += tickNs) {
        while (const auto moment = clock.takeDue(nowNs)) {
            QVERIFY(*moment <= nowNs && *moment > last);
            last = *moment;
            ++count;
        }
    }
    const double expected = double(nowNs - tickNs - kStart) * 1e-9 * rate + 1.0;
    QVERIFY2(std::abs(double(count) - expected) <= 1.0, qPrintable(QString::number(count)));
}

void TestSimLine::clockSkipsLongPauses()
{
    FrameClock clock;
    clock.restart(0, 1000);
    while (clock.takeDue(kSecondNs / 10))
        continue;
    int caughtUp = 0;
    while (clock.takeDue(3600 * kSecondNs))
        ++caughtUp;
    QCOMPARE(caughtUp, 1);
}

void TestSimLine::linePacesBytes()
{
    TransmitLine line(9600);
    qint64 nowNs = 0;
    for (; nowNs < 10 * kSecondNs; nowNs += 1'300'000) {
        line.advance(nowNs);
        line.pushFrames(frame(82));
        line.take(line.ready().size());
    }
    QVERIFY2(line.sentBytes() > 9590 && line.sentBytes() <= 9600, qPrintable(QString::number(line.sentBytes())));
}

void TestSimLine::lineDropsWholeFrames()
{
    TransmitLine line(9600);
    int accepted = 0;
    for (int i = 0; i < 100; ++i)
        accepted += line.pushFrames(frame(100)) ? 1 : 0;
    QCOMPARE(accepted, 5);
    // A reply is never refused for want of room, and a large batch fits twice.
    QVERIFY(line.pushReply("OK\r\n"));
    TransmitLine gateway(9600);
    QVERIFY(gateway.pushFrames(frame(1230)));
    QVERIFY(gateway.pushFrames(frame(1230)));
    QVERIFY(!gateway.pushFrames(frame(1230)));
}

void TestSimLine::idleLineSavesNothingUp()
{
    TransmitLine line(9600);
    line.advance(10 * kSecondNs);
    line.pushFrames(frame(100));
    line.advance(10 * kSecondNs + 1'000'000);
    QCOMPARE(line.ready().size(), 0);
    line.advance(10 * kSecondNs + 105'000'000);
    QCOMPARE(line.ready().size(), 100);
}

void TestSimLine::slowReaderIsBounded()
{
    TransmitLine line(0);
    qsizetype accepted = 0;
    for (int i = 0; i < 10'000; ++i) {
        accepted += line.pushFrames(frame(82)) ? 82 : 0;
        line.advance(i);
    }
    QVERIFY(accepted <= TransmitLine::kMaxBacklogBytes);
    QVERIFY(accepted > TransmitLine::kMaxBacklogBytes - 82);
    QCOMPARE(line.clear(), int(accepted / 82));
    QVERIFY(line.pushFrames(frame(82)));
}

void TestSimLine::countsFramesByTheirLastByte()
{
    TransmitLine line(0);
    line.pushFrames({QByteArray(10, 'a'), 2, 1});
    line.pushReply("OK\r\n");
    line.pushFrames(frame(10));
    line.advance(1);
    line.take(9);
    QCOMPARE(line.sentFrames(), 0U);
    line.take(1);
    QCOMPARE(line.sentFrames(), 2U);
    QCOMPARE(line.sentIntactFrames(), 1U);
    QVERIFY(line.ready().startsWith("OK\r\nff"));
    line.take(5);
    QCOMPARE(line.clear(), 1); // half sent is lost
    QCOMPARE(line.sentFrames(), 2U);
    QCOMPARE(line.sentBytes(), 15U);
}

QTEST_APPLESS_MAIN(TestSimLine)
#include "tst_sim_line.moc"
