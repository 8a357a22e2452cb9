#include <QTest>

#include <array>
#include <limits>

#include "app/sentences.h"
#include "app/value_format.h"
#include "ui/status_text.h"
#include "ui/trace_buffer.h"

/// The parts that make up the main window's numbers, texts and traces.
class TestDisplayParts : public QObject
{
    Q_OBJECT

private:
    using Floats = std::numeric_limits<float>;
    static constexpr qint64 kStep = TraceBuffer::kBucketMs;
    TraceBuffer m_trace;

    void append(qint64 nowMs, float first, float second = 0) { m_trace.append(nowMs, std::array{first, second}); }

private slots:
    void init() { m_trace = {}; }

    void formatsNumbers()
    {
        // The texts with a sign; those without differ only in the plus.
        const std::tuple<double, int, QString> rows[] = {
            {1.2345, 3, QStringLiteral("+1.234")},
            {-0.0004, 3, QStringLiteral("0.000")},
            {-0.0006, 3, QStringLiteral("\u22120.001")},
            {999999.0, 1, QStringLiteral("+999999.0")},
            {-3.4e38, 3, QStringLiteral("\u22123.40e+38")},
            {Floats::quiet_NaN(), 3, QStringLiteral("NaN")},
            {Floats::infinity(), 3, QStringLiteral("+\u221E")},
            {-Floats::infinity(), 3, QStringLiteral("\u2212\u221E")},
        };
        for (const auto &[value, decimals, text] : rows) {
            QCOMPARE(value_format::signedNumber(value, decimals), text);
            QCOMPARE(value_format::number(value, decimals), text.mid(text.startsWith(u'+') ? 1 : 0));
        }
    }

    void joinsSentences()
    {
        QCOMPARE(joinSentences({QStringLiteral("One."), QString(), QStringLiteral("Two.")}),
                 QStringLiteral("One. Two."));
        QCOMPARE(joinSentences({QStringLiteral("一。"), QStringLiteral("二。")}), QStringLiteral("一。二。"));
    }

    void formatsDeviceTime()
    {
        QCOMPARE(value_format::deviceTime(3661007), QLatin1String("01:01:01.007"));
        QCOMPARE(value_format::deviceTime(4294967295), QLatin1String("1193:02:47.295"));
    }

    void formatsTraffic()
    {
        LinkStatistics statistics;
        statistics.txBytesLastSecond = 512;
        statistics.txLoadPercent = 4;
        statistics.rxBytesLastSecond = 32799;
        statistics.rxLoadPercent = 35;
        QCOMPARE(status_text::traffic(statistics), QLatin1String("T:0.50KB/s(4%) R:32.03KB/s(35%)"));
    }

    void describesTheConnection()
    {
        const QString start = QStringLiteral("[Serial]\n/dev/ttyUSB0 9600\nProtocol: ");
        const QString end = QStringLiteral("\nFrameRate: 4 Hz");
        const std::tuple<int, QByteArray, QString> rows[] = {{0, "\x91", QStringLiteral("Single node (0x91)")},
                                                             {2, "\x63", QStringLiteral("Gateway (0x63)")},
                                                             {4, "\x90\xA0", QStringLiteral("Items 90 A0")}};
        const QString port = QStringLiteral("/dev/ttyUSB0");
        using status_text::connectionPanel;
        QCOMPARE(connectionPanel(port, 9600, {}, 4, false, false), QLatin1String("Building connection..."));
        QCOMPARE(connectionPanel(port, 9600, {}, 4, false, true),
                 QLatin1String("Connected.\nNo frame stream detected."));
        for (const auto &[family, tags, text] : rows) {
            DecodedFrame frame;
            frame.family = family;
            frame.item_tags = tags;
            QCOMPARE(connectionPanel(port, 9600, frame, 4, true, family == 0), start + text + end);
        }
    }

    void keepsTheExtentOfEachBucket()
    {
        for (const float value : {1.0F, -3.0F, 2.0F})
            append(10 * kStep + qint64(value) + 4, value, 7.0F);
        append(11 * kStep, 9.0F);
        append(10 * kStep + 9, 0.0F, 7.0F); // it arrived late, and still has its place
        QCOMPARE(int(m_trace.at(0, 1).lowMs), 1);
        QCOMPARE(int(m_trace.at(0, 1).highMs), 6);
        QCOMPARE(m_trace.at(0, 0).low, 9.0F);
        QCOMPARE(m_trace.at(0, 1).low, -3.0F);
        QCOMPARE(m_trace.at(0, 1).high, 2.0F);
        QCOMPARE(m_trace.at(1, 1).high, 7.0F);
        QVERIFY(m_trace.at(2, 1).isEmpty());
        QVERIFY(m_trace.at(0, 2).isEmpty());
        QCOMPARE(m_trace.total().low, -3.0F);
        QCOMPARE(m_trace.total().high, 9.0F);
    }

    void forgetsWhatTimeHasPassed()
    {
        append(5 * kStep, 1.0F);
        m_trace.advance(6 * kStep - 1);
        QCOMPARE(m_trace.newest(), 5);
        m_trace.advance((5 + TraceBuffer::kBuckets - 1) * kStep);
        QCOMPARE(m_trace.at(0, TraceBuffer::kBuckets - 1).high, 1.0F);
        m_trace.advance((5 + TraceBuffer::kBuckets + 3) * kStep); // steps may be left out
        QVERIFY(m_trace.total().isEmpty());
    }

    void ignoresWhatIsNotANumber()
    {
        append(kStep, Floats::quiet_NaN());
        append(kStep, Floats::infinity());
        QVERIFY(m_trace.at(0, 0).isEmpty());
        QVERIFY(m_trace.at(0, 0).isBroken && !m_trace.at(1, 0).isBroken);
        append(kStep, 4.0F);
        QCOMPARE(m_trace.at(0, 0).high, 4.0F);
    }

    void survivesOddTimes()
    {
        append(std::numeric_limits<qint64>::max(), 1.0F);
        append(0, 2.0F); // older than all that is kept
        append(-1, 3.0F);
        QCOMPARE(m_trace.total().high, 1.0F);
        QVERIFY(m_trace.at(0, -1).isEmpty());
        QVERIFY(m_trace.at(0, TraceBuffer::kBuckets).isEmpty());
        m_trace.clear();
        QVERIFY(m_trace.total().isEmpty());
    }
};

QTEST_APPLESS_MAIN(TestDisplayParts)
#include "tst_display_parts.moc"
