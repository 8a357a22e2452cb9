#include <QTest>

#include <limits>

#include "ui/value_format.h"

class TestValueFormat : public QObject
{
    Q_OBJECT

private slots:
    void formatsNumbers_data();
    void formatsNumbers();
    void formatsDeviceTime_data();
    void formatsDeviceTime();
    void findsNiceRanges_data();
    void findsNiceRanges();
};

void TestValueFormat::formatsNumbers_data()
{
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QString>("withSign");
    QTest::addColumn<QString>("plain");
    QTest::newRow("positive") << 1.2345 << 3 << "+1.234"
                              << "1.234";
    QTest::newRow("negative") << -1.2345 << 3 << "\u22121.234"
                              << "\u22121.234";
    QTest::newRow("zero") << 0.0 << 3 << "0.000"
                          << "0.000";
    QTest::newRow("rounds to zero") << -0.0004 << 3 << "0.000"
                                    << "0.000";
    QTest::newRow("does not round to zero") << -0.0006 << 3 << "\u22120.001"
                                            << "\u22120.001";
    QTest::newRow("no decimals") << 12.6 << 0 << "+13"
                                 << "13";
    QTest::newRow("largest plain") << 999999.0 << 1 << "+999999.0"
                                   << "999999.0";
    QTest::newRow("huge") << -3.4e38 << 3 << "\u22123.40e+38"
                          << "\u22123.40e+38";
    QTest::newRow("NaN") << std::numeric_limits<double>::quiet_NaN() << 3 << "NaN"
                         << "NaN";
    QTest::newRow("infinite") << kInfinity << 3 << "+\u221E"
                              << "\u221E";
    QTest::newRow("minus infinite") << -kInfinity << 3 << "\u2212\u221E"
                                    << "\u2212\u221E";
}

void TestValueFormat::formatsNumbers()
{
    QFETCH(double, value);
    QFETCH(int, decimals);
    QTEST(value_format::signedNumber(value, decimals), "withSign");
    QTEST(value_format::number(value, decimals), "plain");
}

void TestValueFormat::formatsDeviceTime_data()
{
    QTest::addColumn<quint32>("milliseconds");
    QTest::addColumn<QString>("text");
    QTest::newRow("zero") << 0U << "00:00:00.000";
    QTest::newRow("padded") << 3661007U << "01:01:01.007";
    QTest::newRow("before the wrap") << 4294967295U << "1193:02:47.295";
}

void TestValueFormat::formatsDeviceTime()
{
    QFETCH(quint32, milliseconds);
    QTEST(value_format::deviceTime(milliseconds), "text");
}

void TestValueFormat::findsNiceRanges_data()
{
    QTest::addColumn<double>("magnitude");
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("range");
    QTest::newRow("below the minimum") << 0.3 << 1.0 << 1.0;
    QTest::newRow("at the minimum") << 1.0 << 1.0 << 1.0;
    QTest::newRow("two") << 1.01 << 1.0 << 2.0;
    QTest::newRow("five") << 2.5 << 1.0 << 5.0;
    QTest::newRow("ten") << 5.5 << 1.0 << 10.0;
    QTest::newRow("hundreds") << 190.0 << 50.0 << 200.0;
    QTest::newRow("NaN") << std::numeric_limits<double>::quiet_NaN() << 1.0 << 1.0;
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << 1.0 << 1e12;
}

void TestValueFormat::findsNiceRanges()
{
    QFETCH(double, magnitude);
    QFETCH(double, minimum);
    QFETCH(double, range);
    QVERIFY(qFuzzyCompare(value_format::niceRange(magnitude, minimum), range));
}

QTEST_APPLESS_MAIN(TestValueFormat)

#include "tst_value_format.moc"
