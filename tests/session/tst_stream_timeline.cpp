#include <QtTest>

#include <functional>

#include "session/stream_timeline.h"

namespace {

using Clock = StreamTimeline::Clock;

/// A stream as it arrives: what goes in, and where the samples end up.
struct Stream
{
    StreamTimeline timeline;
    double hostMs = 40; ///< arrival of the next sample
    double firstHostMs = 0;
    double firstMs = 0;
    double lastMs = 0;
    double largestErrorMs = 0; ///< between axis and wall clock, over all samples
    quint32 interruptions = 0;
    bool isMonotonic = true;
    QList<StreamBreak> breaks;

    void take(quint32 stampMs, Clock clock = Clock::Node, double arrivalMs = -1)
    {
        const double arrival = arrivalMs < 0 ? hostMs : arrivalMs;
        const StreamTimeline::Place place = timeline.next(clock, stampMs, arrival, interruptions);
        if (firstMs == 0) {
            firstMs = place.timeMs;
            firstHostMs = arrival;
        }
        isMonotonic = isMonotonic && place.timeMs >= lastMs;
        lastMs = place.timeMs;
        largestErrorMs = std::max(largestErrorMs, std::abs((lastMs - firstMs) - (hostMs - firstHostMs)));
        if (place.brokenBy != StreamBreak::None)
            breaks.append(place.brokenBy);
    }

    /// `count` samples every `periodMs`; `stamp` converts the wall time of each into the device's time.
    void run(int count, double periodMs, const std::function<quint32(double)> &stamp, Clock clock = Clock::Node)
    {
        for (int i = 0; i < count; ++i, hostMs += periodMs)
            take(stamp(hostMs), clock);
    }
    /// The same without stamps, in bursts of `burst` that arrive together.
    void runWithoutClock(int count, double periodMs, int burst = 1)
    {
        for (int i = 0; i < count; ++i, hostMs += periodMs)
            take(0, Clock::Node, hostMs + (burst - 1 - i % burst) * periodMs);
    }
};

std::function<quint32(double)> clockFrom(quint32 offsetMs, double ppm = 0)
{
    return [offsetMs, ppm](double hostMs) { return offsetMs + quint32(hostMs * (1 + ppm / 1e6)); };
}

using Breaks = QList<StreamBreak>;

} // namespace

Q_DECLARE_METATYPE(std::function<void(Stream &)>)

class TestStreamTimeline : public QObject
{
    Q_OBJECT

private slots:
    void axisIsWallTime_data()
    {
        QTest::addColumn<std::function<void(Stream &)>>("play");
        QTest::addColumn<QList<StreamBreak>>("breaks");
        QTest::addColumn<double>("toleranceMs");
        const auto row = [](const char *name, const std::function<void(Stream &)> &play, const Breaks &breaks = {},
                            double toleranceMs = 20) { QTest::newRow(name) << play << breaks << toleranceMs; };

        row("100 Hz with a clock", [](Stream &s) { s.run(400, 10, clockFrom(123456)); });
        row("clock wraps", [](Stream &s) { s.run(400, 10, clockFrom(0xFFFFFFFFU - 2000)); });
        row("stamps missing here and there", [](Stream &s) {
            for (int i = 0; i < 400; ++i, s.hostMs += 10)
                s.take(i % 7 == 3 ? 0 : clockFrom(5000)(s.hostMs));
        });
        row(
            "stamps repeated and late",
            [](Stream &s) {
                for (int i = 0; i < 400; ++i, s.hostMs += 10)
                    s.take(clockFrom(5000)(s.hostMs - (i % 5 == 4 ? 30 : 0)));
            },
            {}, 50);

        for (const double hz : {2.0, 100.0, 400.0}) {
            row(
                qPrintable(QStringLiteral("no clock, %1 Hz").arg(hz)),
                [hz](Stream &s) { s.runWithoutClock(int(4 * hz), 1000 / hz); }, {}, 60);
        }
        row(
            "no clock, bursts of 8", [](Stream &s) { s.runWithoutClock(1600, 2.5, 8); }, {}, 60);
        row(
            "no clock, pause of 1.5 s",
            [](Stream &s) {
                s.runWithoutClock(400, 2.5);
                s.hostMs += 1500;
                s.runWithoutClock(400, 2.5);
            },
            {StreamBreak::Gap}, 60);
        row(
            "no clock, rate changes",
            [](Stream &s) {
                s.runWithoutClock(400, 2.5);
                s.runWithoutClock(20, 200);
                s.runWithoutClock(800, 2.5);
            },
            {}, 260);

        row("two clocks in turn, 5 s apart", [](Stream &s) {
            for (int i = 0; i < 400; ++i, s.hostMs += 10)
                s.take(clockFrom(i % 2 ? 15000 : 10000)(s.hostMs), i % 2 ? Clock::Gateway : Clock::Node);
        });
        row(
            "two clocks that drift apart",
            [](Stream &s) {
                for (int i = 0; i < 20000; ++i, s.hostMs += 10)
                    s.take(clockFrom(9000, i % 2 ? 0 : 300)(s.hostMs), i % 2 ? Clock::Gateway : Clock::Node);
            },
            {}, 80);

        row("device restarts",
            [](Stream &s) {
                s.run(300, 10, clockFrom(60000));
                s.hostMs += 400;
                s.run(300, 10, [start = s.hostMs](double hostMs) { return quint32(hostMs - start + 10); });
            },
            {StreamBreak::ClockRestarted});
        row("clock jumps ahead",
            [](Stream &s) {
                s.run(200, 10, clockFrom(1000));
                s.run(200, 10, clockFrom(31000));
            },
            {StreamBreak::ClockRestarted});
        row("output stopped by a command",
            [](Stream &s) {
                s.run(200, 10, clockFrom(1000));
                ++s.interruptions;
                s.run(3, 10, clockFrom(1000)); // until the device complies
                s.hostMs += 500;
                ++s.interruptions;
                s.run(200, 10, clockFrom(1000));
            },
            {StreamBreak::OutputStopped});
        row("a command that stops nothing", [](Stream &s) {
            for (int i = 0; i < 10; ++i) {
                s.run(20, 10, clockFrom(1000));
                ++s.interruptions;
            }
        });
        row("silence of 90 s, the clock goes on",
            [](Stream &s) {
                s.run(200, 10, clockFrom(1000));
                s.hostMs += 90000;
                s.run(200, 10, clockFrom(1000));
            },
            {StreamBreak::Gap});
        row("1.2 s are a gap at 100 Hz",
            [](Stream &s) {
                s.run(100, 10, clockFrom(1000));
                s.hostMs += 1200;
                s.run(100, 10, clockFrom(1000));
            },
            {StreamBreak::Gap});
        row("and none at 2 Hz", [](Stream &s) {
            s.run(10, 500, clockFrom(1000));
            s.hostMs += 1200;
            s.run(10, 500, clockFrom(1000));
        });
        row("nor 0.9 s at 100 Hz", [](Stream &s) {
            s.run(100, 10, clockFrom(1000));
            s.hostMs += 900;
            s.run(100, 10, clockFrom(1000));
        });
    }

    void axisIsWallTime()
    {
        QFETCH(std::function<void(Stream &)>, play);
        QFETCH(double, toleranceMs);
        Stream stream;
        play(stream);
        QVERIFY(stream.isMonotonic);
        QTEST(stream.breaks, "breaks");
        QVERIFY2(stream.largestErrorMs <= toleranceMs, qPrintable(QString::number(stream.largestErrorMs)));
    }

    void evenlySpaced()
    {
        // Bursts of arrivals are not bursts of samples.
        Stream stream;
        stream.runWithoutClock(800, 2.5, 8);
        double before = stream.lastMs;
        double longest = 0;
        for (int i = 0; i < 400; ++i, stream.hostMs += 2.5) {
            stream.take(0, Clock::Node, stream.hostMs + (7 - i % 8) * 2.5);
            longest = std::max(longest, stream.lastMs - before);
            before = stream.lastMs;
        }
        QVERIFY2(longest < 5, qPrintable(QString::number(longest)));
    }
};

QTEST_GUILESS_MAIN(TestStreamTimeline)

#include "tst_stream_timeline.moc"
