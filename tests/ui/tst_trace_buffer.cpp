#include <QTest>

#include <array>
#include <limits>

#include "ui/trace_buffer.h"

class TestTraceBuffer : public QObject
{
    Q_OBJECT

private slots:
    void keepsTheExtentOfEachBucket();
    void forgetsWhatTimeHasPassed();
    void ignoresWhatIsNotANumber();
    void survivesOddTimes();
};

namespace {

constexpr qint64 kStep = TraceBuffer::kBucketMs;

void append(TraceBuffer &trace, qint64 nowMs, float first, float second = 0)
{
    trace.append(nowMs, std::array{first, second});
}

} // namespace

void TestTraceBuffer::keepsTheExtentOfEachBucket()
{
    TraceBuffer trace;
    for (const float value : {1.0F, -3.0F, 2.0F})
        append(trace, 10 * kStep, value, 7.0F);
    append(trace, 11 * kStep, 9.0F);
    QCOMPARE(trace.at(0, 0).low, 9.0F);
    QCOMPARE(trace.at(0, 1).low, -3.0F);
    QCOMPARE(trace.at(0, 1).high, 2.0F);
    QCOMPARE(trace.at(1, 1).high, 7.0F);
    QVERIFY(trace.at(2, 1).isEmpty());
    QVERIFY(trace.at(0, 2).isEmpty());
    QCOMPARE(trace.total().low, -3.0F);
    QCOMPARE(trace.total().high, 9.0F);
}

void TestTraceBuffer::forgetsWhatTimeHasPassed()
{
    TraceBuffer trace;
    append(trace, 5 * kStep, 1.0F);
    trace.advance(5 * kStep + 1);
    QCOMPARE(trace.newest(), 5);
    trace.advance(6 * kStep);
    QCOMPARE(trace.newest(), 6);
    QCOMPARE(trace.at(0, 1).high, 1.0F);
    trace.advance((5 + TraceBuffer::kBuckets - 1) * kStep);
    QCOMPARE(trace.at(0, TraceBuffer::kBuckets - 1).high, 1.0F);
    trace.advance((5 + TraceBuffer::kBuckets) * kStep);
    QVERIFY(trace.total().isEmpty());
}

void TestTraceBuffer::ignoresWhatIsNotANumber()
{
    TraceBuffer trace;
    append(trace, kStep, std::numeric_limits<float>::quiet_NaN());
    append(trace, kStep, std::numeric_limits<float>::infinity());
    QVERIFY(trace.at(0, 0).isEmpty());
    append(trace, kStep, 4.0F);
    QCOMPARE(trace.at(0, 0).high, 4.0F);
}

void TestTraceBuffer::survivesOddTimes()
{
    TraceBuffer trace;
    append(trace, std::numeric_limits<qint64>::max(), 1.0F);
    QCOMPARE(trace.at(0, 0).high, 1.0F);
    append(trace, 0, 2.0F); // a clock that ran backwards adds to the newest bucket
    QCOMPARE(trace.at(0, 0).high, 2.0F);
    QVERIFY(trace.at(0, -1).isEmpty());
    QVERIFY(trace.at(0, TraceBuffer::kBuckets).isEmpty());
    trace.clear();
    QVERIFY(trace.total().isEmpty());
}

QTEST_APPLESS_MAIN(TestTraceBuffer)

#include "tst_trace_buffer.moc"
