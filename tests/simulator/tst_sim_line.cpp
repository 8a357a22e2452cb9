#include <QtTest>

#include "simulator/fault_injector.h"
#include "simulator/frame_clock.h"
#include "simulator/transmit_line.h"

using namespace kvsim;

namespace {

constexpr qint64 kSecondNs = 1'000'000'000;

QList<TransmitLine::Frame> frame(qsizetype size)
{
    return {{QByteArray(size, 'f')}};
}

FaultInjector injector(quint64 seed, double flip, double drop, double insert)
{
    FaultInjector faults(seed);
    faults.setFlipRate(flip);
    faults.setDropRate(drop);
    faults.setInsertRate(insert);
    return faults;
}

} // namespace

class TestSimLine : public QObject
{
    Q_OBJECT

private slots:
    void faultKinds()
    {
        const std::array<double, 3> rows[] = {{0, 0, 0}, {10, 0, 0}, {0, 10, 0}, {0, 0, 10}, {0, 1e9, 0}};
        for (const auto &[flip, drop, insert] : rows) {
            FaultInjector faults = injector(3, flip, drop, insert);
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
            // Within five standard deviations of the requested rate.
            const double wantedGrowth = (insert - std::min(drop, 1024.0)) * kKilobytes;
            QVERIFY(std::abs(double(growth) - wantedGrowth) <= (drop > 1024 ? 0 : 360));
            QVERIFY(std::abs(double(bits) - flip * kKilobytes) <= 360);
        }
        const auto damage = [](quint64 seed) { return injector(seed, 9, 9, 9).apply(QByteArray(5000, 'a')).bytes; };
        QVERIFY(damage(7) == damage(7) && damage(7) != damage(8));
    }

    void clockKeepsItsRate()
    {
        constexpr qint64 kStart = 12'345;
        for (const auto &[rate, tickNs] :
             {std::pair(3, 1'000'003), {1000, 1'000'000}, {997, 7'300'001}, {2000, 99'999'999}}) {
            FrameClock clock;
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
    }

    void clockSkipsLongPauses()
    {
        FrameClock clock;
        clock.restart(0, 1000);
        QVERIFY(clock.takeDue(3600 * kSecondNs) && !clock.takeDue(3600 * kSecondNs));
    }

    void lineDropsWholeFrames()
    {
        TransmitLine gateway(9600);
        for (int i = 0; i < 3; ++i) // a large batch fits twice
            QCOMPARE(gateway.pushFrames(frame(1230)), i < 2);
        QVERIFY(gateway.pushReply("OK\r\n")); // never refused for lack of room
    }

    void idleLineSavesNothingUp()
    {
        TransmitLine line(9600);
        qint64 nowNs = 10 * kSecondNs;
        line.advance(nowNs);
        line.pushFrames(frame(100));
        for (int step = 0; step < 40; ++step) // parts of a byte are not lost between the steps
            line.advance(nowNs += 1'300'000);
        QCOMPARE(line.ready().size(), 49);
    }

    void lineNeverRunsBackwards()
    {
        TransmitLine line(9600);
        line.pushReply(QByteArray(100, 'r'));
        QCOMPARE(line.remainingNs() / 1000, 104'166); // 960 bytes per second
        line.advance(50'000'000);
        line.advance(1'000'000);
        QCOMPARE(line.ready().size(), 48);
        line.advance(50'000'000 + line.remainingNs());
        QVERIFY(line.ready().size() == 100 && line.remainingNs() == 0);
    }

    void slowReaderIsBounded()
    {
        TransmitLine line(0);
        qsizetype accepted = 0;
        for (int i = 0; i < 10'000; ++i) {
            accepted += line.pushFrames(frame(82)) ? 82 : 0;
            line.advance(i);
        }
        QVERIFY(accepted <= TransmitLine::kMaxBacklogBytes && accepted > TransmitLine::kMaxBacklogBytes - 82);
        QCOMPARE(line.clear(), int(accepted / 82));
        QVERIFY(line.pushFrames(frame(82)));
    }

    void countsFramesByTheirLastByte()
    {
        TransmitLine line(0);
        line.pushFrames({{QByteArray(6, 'a')}, {QByteArray(4, 'b'), false}, {QByteArray(3, 'c')}}); // a burst
        line.pushReply("OK\r\n");
        line.pushFrames(frame(10));
        line.advance(1);
        line.take(5);
        QCOMPARE(line.sentFrames(), 0U);
        line.take(5);
        QVERIFY(line.sentFrames() == 2 && line.sentIntactFrames() == 1);
        line.take(3);
        QVERIFY(line.ready().startsWith("OK\r\nff"));
        line.take(5);
        QCOMPARE(line.clear(), 1); // the half-sent one is lost
        QVERIFY(line.sentFrames() == 3 && line.sentIntactFrames() == 2 && line.sentBytes() == 18);
    }
};

QTEST_APPLESS_MAIN(TestSimLine)
#include "tst_sim_line.moc"
