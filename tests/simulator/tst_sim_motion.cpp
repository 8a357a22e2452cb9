#include <QtTest>

#include <cmath>

#include "simulator/attitude_filter.h"
#include "simulator/motion_model.h"

using namespace kvsim;

namespace {

// A textbook rotation, independent of the simulator's quaternions: about one axis, right-handed.
Vector3 turned(Vector3 v, std::size_t axis, float degrees)
{
    const double c = std::cos(double(degrees) * kRadiansPerDegree);
    const double s = std::sin(double(degrees) * kRadiansPerDegree);
    double &first = v[(axis + 1) % 3];
    double &second = v[(axis + 2) % 3];
    const double before = first;
    first = c * before - s * second;
    second = s * before + c * second;
    return v;
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

} // namespace

class TestSimMotion : public QObject
{
    Q_OBJECT

private slots:
    void motions()
    {
        const std::tuple<MotionKind, bool, double> rows[] = {{MotionKind::Rest, true, 0.8}, // kind, FLU, phase
                                                             {MotionKind::Swing, true, 0.0},
                                                             {MotionKind::Swing, false, 2.4},
                                                             {MotionKind::Spin, true, 1.6},
                                                             {MotionKind::Spin, false, 0.0}};
        for (const auto &[kind, flu, phase] : rows) {
            const MotionModel model(kind, flu ? AxisConvention::FluZyx : AxisConvention::RfuZxy);
            constexpr double kStep = 0.004;
            double largest = 0.0;
            for (int step = 0; step < 41; ++step) {
                const double t = 0.1 + 0.29 * step;
                const ImuSample s = model.sampleAt(t, phase);
                const Quaternion attitude = attitudeOf(s);
                // Angles and quaternion are the same attitude.
                for (const Vector3 &axis : {Vector3{1, 0, 0}, Vector3{0, 1, 0}, Vector3{0, 0, 1}}) {
                    const Vector3 pitched = turned(turned(axis, flu ? 0 : 1, s.roll), flu ? 1 : 0, s.pitch);
                    QVERIFY2(distance(rotated(attitude, axis), turned(pitched, 2, s.yaw)) < 1e-5,
                             QByteArray::number(t));
                }
                // Gravity and the earth's field are constant in world axes.
                QVERIFY(distance(rotated(attitude, toDoubles(s.acc)), {0, 0, 1}) < 1e-5);
                const Vector3 field = flu ? Vector3{20, 0, -45} : Vector3{0, 20, -45};
                QVERIFY(distance(rotated(attitude, toDoubles(s.mag)), field) < 1e-4);
                // The angular rate is the attitude's derivative.
                Quaternion turn = conjugated(attitudeOf(model.sampleAt(t - kStep, phase)))
                                  * attitudeOf(model.sampleAt(t + kStep, phase));
                if (turn.w < 0.0) // the same rotation, the other way round
                    turn = {-turn.w, -turn.x, -turn.y, -turn.z};
                const double toRate = 1.0 / kStep / kRadiansPerDegree;
                const Vector3 rate = toDoubles(s.gyr);
                const Vector3 measured{turn.x * toRate, turn.y * toRate, turn.z * toRate};
                QVERIFY2(distance(rate, measured) < 0.3, QByteArray::number(t));
                largest = std::max(largest, lengthOf(rate));
            }
            QCOMPARE(largest > 20.0, kind != MotionKind::Rest);
        }
    }

    // Fed with what a swinging body measures, the filter finds the body's tilt, starting from a first step that is
    // level only as far as gravity shows.
    void filterFollowsMotion()
    {
        const MotionModel model(MotionKind::Swing, AxisConvention::FluZyx);
        AttitudeFilter filter;
        for (int i = 0; i < 4000; ++i) {
            const ImuSample s = model.sampleAt(i * 0.0025, 0.8);
            const Vector3 up = rotatedBack(filter.update(toDoubles(s.gyr), toDoubles(s.acc), 0.0025), {0, 0, 1});
            QVERIFY2(distance(up, toDoubles(s.acc)) < 0.03, QByteArray::number(i));
        }
        AttitudeFilter upsideDown;
        QVERIFY(distance(rotated(upsideDown.update({0, 0, 0}, {0, 0, -1}, 0.01), {0, 0, -1}), {0, 0, 1}) < 1e-9);
    }
};

QTEST_APPLESS_MAIN(TestSimMotion)
#include "tst_sim_motion.moc"
