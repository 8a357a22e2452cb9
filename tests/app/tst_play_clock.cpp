#include <QtTest>

#include "app/play_clock.h"

namespace {

constexpr qint64 kStart = 1'790'000'000'000'000'000;
constexpr qint64 kMs = 1'000'000;

} // namespace

class TestPlayClock : public QObject
{
    Q_OBJECT

private slots:
    void timeIsStartAndRate_data()
    {
        QTest::addColumn<double>("asked");
        QTest::addColumn<double>("rate");
        QTest::newRow("1") << 1.0 << 1.0;
        QTest::newRow("0.1") << 0.1 << 0.1;
        QTest::newRow("50") << 50.0 << 50.0;
        QTest::newRow("too slow") << 0.001 << 0.1;
        QTest::newRow("too fast") << 1e9 << 50.0;
        QTest::newRow("negative") << -1.0 << 0.1;
        QTest::newRow("not a number") << qQNaN() << 0.0;
    }
    void timeIsStartAndRate()
    {
        QFETCH(double, asked);
        QFETCH(double, rate);
        qint64 steady = 77;
        PlayClock clock([&steady] { return steady; });
        clock.jump(kStart);
        clock.setRate(asked);
        QCOMPARE(clock.rate(), rate);
        steady += 1000 * kMs; // paused
        QCOMPARE(clock.nowNs(), kStart);
        QCOMPARE(clock.waitNs(kStart), PlayClock::kNever);
        clock.setPaused(false);
        for (int i = 1; i <= 1000; ++i) { // no drift, however often it is asked
            steady += kMs;
            QVERIFY(qAbs(clock.nowNs() - kStart - qint64(rate * double(i * kMs))) <= 1);
        }
        clock.setPaused(true);
        const qint64 stood = clock.nowNs();
        steady += 5000 * kMs;
        QCOMPARE(clock.nowNs(), stood);
        clock.setPaused(false);
        steady += 10 * kMs;
        QVERIFY(qAbs(clock.nowNs() - stood - qint64(rate * 10 * kMs)) <= 1);
    }

    void waitsForThePlayer()
    {
        qint64 steady = 0;
        PlayClock clock([&steady] { return steady; });
        clock.jump(kStart);
        clock.setRate(10);
        clock.setPaused(false);
        clock.setLimit(kStart + 20 * kMs);
        QCOMPARE(clock.waitNs(kStart + 20 * kMs), 2 * kMs);
        steady += 5 * kMs;
        QCOMPARE(clock.nowNs(), kStart + 20 * kMs);
        QCOMPARE(clock.lagNs(), 3 * kMs);
        QCOMPARE(clock.waitNs(kStart + 20 * kMs), 0);
        clock.setLimit(kStart + 1000 * kMs); // catches up
        QCOMPARE(clock.nowNs(), kStart + 50 * kMs);
        clock.setLimit(kStart + 30 * kMs);
        clock.setRate(1); // from where it stands
        QCOMPARE(clock.nowNs(), kStart + 30 * kMs);
        clock.jump(kStart);
        QCOMPARE(clock.nowNs(), kStart);

        clock.setRate(PlayClock::kUnthrottled);
        clock.setLimit(kStart + 70 * kMs);
        steady += 1000 * kMs;
        QCOMPARE(clock.nowNs(), kStart + 70 * kMs);
        QCOMPARE(clock.waitNs(kStart + 900 * kMs), 0);
        clock.setRate(1);
        clock.setLimit(PlayClock::kNever);
        steady += 3 * kMs;
        QCOMPARE(clock.nowNs(), kStart + 73 * kMs);
    }
};

QTEST_GUILESS_MAIN(TestPlayClock)
#include "tst_play_clock.moc"
