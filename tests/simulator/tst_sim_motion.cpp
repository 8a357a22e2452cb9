#include <QtTest>

#include <cmath>

#include "simulator/attitude_filter.h"
#include "simulator/motion_model.h"

using namespace kvsim;

namespace {

using Matrix = std::array<Vector3, 3>; // rows

// Elementary rotations as textbooks write them, apart from the quaternions of the simulator.
Matrix about(int axis, double degrees)
{
    const double c = std::cos(degrees * kRadiansPerDegree);
    const double s = std::sin(degrees * kRadiansPerDegree);
    switch (axis) {
    case 0:
        return {{{1, 0, 0}, {0, c, -s}, {0, s, c}}};
    case 1:
        return {{{c, 0, s}, {0, 1, 0}, {-s, 0, c}}};
    default:
        return {{{c, -s, 0}, {s, c, 0}, {0, 0, 1}}};
    }
}

Matrix product(const Matrix &a, const Matrix &b)
{
    Matrix result{};
    for (std::size_t r = 0; r < 3; ++r)
        for (std::size_t c = 0; c < 3; ++c)
            result[r][c] = a[r][0] * b[0][c] + a[r][1] * b[1][c] + a[r][2] * b[2][c];
    return result;
}

Quaternion attitudeOf(const ImuSample &sample)
{
    return {double(sample.quat[0]), double(sample.quat[1]), double(sample.quat[2]), double(sample.quat[3])};
}

Vector3 toDoubles(const std::array<float, 3> &v)
{
    return {double(v[0]), double(v[1]), double(v[2])};
}

double distance(const Vector3 &a, const Vector3 &b)
{
    return lengthOf({a[0] - b[0], a[1] - b[1], a[2] - b[2]});
}

void addMotions()
{
    QTest::addColumn<MotionKind>("kind");
    QTest::addColumn<AxisConvention>("convention");
    QTest::addColumn<double>("phase");
    QTest::newRow("rest FLU") << MotionKind::Rest << AxisConvention::FluZyx << 0.8;
    QTest::newRow("swing FLU") << MotionKind::Swing << AxisConvention::FluZyx << 0.0;
    QTest::newRow("swing RFU") << MotionKind::Swing << AxisConvention::RfuZxy << 2.4;
    QTest::newRow("spin FLU") << MotionKind::Spin << AxisConvention::FluZyx << 1.6;
    QTest::newRow("spin RFU") << MotionKind::Spin << AxisConvention::RfuZxy << 0.0;
}

} // namespace

class TestSimMotion : public QObject
{
    Q_OBJECT

private slots:
    void eulerAndQuaternionAgree_data() { addMotions(); }
    void eulerAndQuaternionAgree();
    void rateIsDerivativeOfAttitude_data() { addMotions(); }
    void rateIsDerivativeOfAttitude();
    void fieldsAreThoseOfTheWorld_data() { addMotions(); }
    void fieldsAreThoseOfTheWorld();
    void signsOfTilt_data();
    void signsOfTilt();
    void filterFollowsMotion();
};

void TestSimMotion::eulerAndQuaternionAgree()
{
    QFETCH(MotionKind, kind);
    QFETCH(AxisConvention, convention);
    QFETCH(double, phase);
    const bool flu = convention == AxisConvention::FluZyx;
    for (int step = 0; step < 33; ++step) {
        const double t = 0.37 * step;
        const ImuSample s = MotionModel(kind, convention).sampleAt(t, phase);
        const Matrix matrix = product(product(about(2, double(s.yaw)), about(flu ? 1 : 0, double(s.pitch))),
                                      about(flu ? 0 : 1, double(s.roll)));
        for (std::size_t column = 0; column < 3; ++column) {
            Vector3 axis{};
            axis[column] = 1.0;
            const Vector3 expected{matrix[0][column], matrix[1][column], matrix[2][column]};
            QVERIFY2(distance(rotated(attitudeOf(s), axis), expected) < 1e-5, qPrintable(QString::number(t)));
        }
    }
}

void TestSimMotion::rateIsDerivativeOfAttitude()
{
    QFETCH(MotionKind, kind);
    QFETCH(AxisConvention, convention);
    QFETCH(double, phase);
    const MotionModel model(kind, convention);
    constexpr double kStep = 0.004;
    double largest = 0.0;
    for (int step = 0; step < 41; ++step) {
        const double t = 0.1 + 0.29 * step;
        const Quaternion before = attitudeOf(model.sampleAt(t - kStep, phase));
        const Quaternion after = attitudeOf(model.sampleAt(t + kStep, phase));
        Quaternion turn = conjugated(before) * after;
        if (turn.w < 0.0) // the same rotation, the other way round
            turn = {-turn.w, -turn.x, -turn.y, -turn.z};
        const double toRate = 2.0 / (2.0 * kStep) / kRadiansPerDegree;
        const Vector3 measured{turn.x * toRate, turn.y * toRate, turn.z * toRate};
        const Vector3 rate = toDoubles(model.sampleAt(t, phase).gyr);
        QVERIFY2(distance(rate, measured) < 0.3, qPrintable(QString::number(t)));
        largest = std::max(largest, lengthOf(rate));
    }
    QCOMPARE(largest > 20.0, kind != MotionKind::Rest);
}

void TestSimMotion::fieldsAreThoseOfTheWorld()
{
    QFETCH(MotionKind, kind);
    QFETCH(AxisConvention, convention);
    QFETCH(double, phase);
    const Vector3 north = convention == AxisConvention::FluZyx ? Vector3{20, 0, -45} : Vector3{0, 20, -45};
    for (int step = 0; step < 28; ++step) {
        const double t = 0.43 * step;
        const ImuSample s = MotionModel(kind, convention).sampleAt(t, phase);
        QVERIFY(std::abs(lengthOf(toDoubles(s.acc)) - 1.0) < 1e-6);
        QVERIFY(distance(rotated(attitudeOf(s), toDoubles(s.acc)), {0, 0, 1}) < 1e-5);
        QVERIFY(distance(rotated(attitudeOf(s), toDoubles(s.mag)), north) < 1e-4);
    }
}

void TestSimMotion::signsOfTilt_data()
{
    QTest::addColumn<AxisConvention>("convention");
    QTest::addColumn<double>("roll");
    QTest::addColumn<double>("pitch");
    QTest::addColumn<QList<double>>("acc");
    QTest::newRow("level") << AxisConvention::FluZyx << 0.0 << 0.0 << QList<double>{0, 0, 1};
    QTest::newRow("FLU left side up") << AxisConvention::FluZyx << 90.0 << 0.0 << QList<double>{0, 1, 0};
    QTest::newRow("FLU nose down") << AxisConvention::FluZyx << 0.0 << 30.0 << QList<double>{-0.5, 0, 0.866025};
    QTest::newRow("RFU nose up") << AxisConvention::RfuZxy << 0.0 << 30.0 << QList<double>{0, 0.5, 0.866025};
    QTest::newRow("RFU right side down") << AxisConvention::RfuZxy << 30.0 << 0.0 << QList<double>{-0.5, 0, 0.866025};
}

void TestSimMotion::signsOfTilt()
{
    QFETCH(AxisConvention, convention);
    QFETCH(double, roll);
    QFETCH(double, pitch);
    QFETCH(QList<double>, acc);
    ImuSample sample;
    setAttitude(sample, quaternionOf({roll, pitch, 77.0}, convention), convention);
    QVERIFY(distance(toDoubles(sample.acc), {acc[0], acc[1], acc[2]}) < 1e-5);
    QVERIFY(std::abs(double(sample.yaw) - 77.0) < 1e-4);
}

// Fed with what a swinging body measures, the filter finds the body's tilt, from a first step on that is level only
// as far as gravity tells.
void TestSimMotion::filterFollowsMotion()
{
    const MotionModel model(MotionKind::Swing, AxisConvention::FluZyx);
    AttitudeFilter filter;
    for (int i = 0; i < 4000; ++i) {
        const ImuSample s = model.sampleAt(i * 0.0025, 0.8);
        const Quaternion q = filter.update(toDoubles(s.gyr), toDoubles(s.acc), 0.0025);
        const Vector3 up = rotatedBack(q, {0, 0, 1});
        QVERIFY2(distance(up, toDoubles(s.acc)) < 0.03, qPrintable(QString::number(i)));
    }
    AttitudeFilter upsideDown;
    QVERIFY(distance(rotated(upsideDown.update({0, 0, 0}, {0, 0, -1}, 0.01), {0, 0, -1}), {0, 0, 1}) < 1e-9);
}

QTEST_APPLESS_MAIN(TestSimMotion)
#include "tst_sim_motion.moc"
