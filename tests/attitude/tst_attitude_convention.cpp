#include <QTest>
#include <QtMath>

#include <cmath>
#include <limits>

#include "attitude/attitude_convention.h"

using namespace attitude_convention;
using enum OrientationPreset;

namespace {

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();

bool near(const QVector3D &a, const QVector3D &b, float tolerance = 0.01F)
{
    const bool same = (a - b).length() < tolerance;
    if (!same)
        qWarning() << a << "expected" << b;
    return same;
}

/// Where nose and right wing of a device must be shown: yaw about the up axis, pitch nose up, roll right side down.
/// Plain rotations, written independently of the code under test.
bool shows(const QQuaternion &q, const QVector3D &angles)
{
    const auto rotate = [](QVector3D &v, int first, int second, float degrees) {
        const float c = std::cos(qDegreesToRadians(degrees)), s = std::sin(qDegreesToRadians(degrees)), a = v[first];
        v[first] = c * a - s * v[second];
        v[second] = s * a + c * v[second];
    };
    for (const QVector3D axis : {QVector3D(1, 0, 0), QVector3D(0, 0, 1)}) {
        QVector3D v = axis;
        rotate(v, 1, 2, angles.x());
        rotate(v, 0, 1, angles.y());
        rotate(v, 2, 0, angles.z());
        if (!near(q.rotatedVector(axis), v, 1e-5F))
            return false;
    }
    return true;
}

NodeSnapshot withQuaternion(const QQuaternion &q)
{
    NodeSnapshot node;
    node.has_quat = true;
    node.sample.quat[0] = q.scalar();
    node.sample.quat[1] = q.x();
    node.sample.quat[2] = q.y();
    node.sample.quat[3] = q.z();
    return node;
}

void addEuler(NodeSnapshot &node, float roll, float pitch, float yaw)
{
    node.has_euler = true;
    node.sample.roll = roll;
    node.sample.pitch = pitch;
    node.sample.yaw = yaw;
}

} // namespace

class TestAttitudeConvention : public QObject
{
    Q_OBJECT

private slots:
    void quaternionIsSeenInDisplayAxes()
    {
        const auto about = [](int x, int y, int z, float degrees) {
            return QQuaternion::fromAxisAndAngle(float(x), float(y), float(z), degrees);
        };
        for (const QVector3D angles : // x roll, y pitch, z yaw
             {QVector3D(0, 0, 0), QVector3D(30, -15, 120), QVector3D(-170, 80, -60), QVector3D(90, 0, 180)}) {
            for (const bool rfu : {true, false}) {
                const QQuaternion device = about(0, 0, 1, angles.z())
                                           * (rfu ? about(1, 0, 0, angles.y()) : about(0, 1, 0, -angles.y()))
                                           * (rfu ? about(0, 1, 0, angles.x()) : about(1, 0, 0, angles.x()));
                NodeSnapshot node = withQuaternion(device * 3.0F); // the length must not matter
                addEuler(node, 7, 8, 9);                           // nor angles alongside it
                const NormalizedAttitude result = normalizeAttitude(node, rfu ? RfuEnu312 : FluNwuZyx);
                QVERIFY(result.valid && result.fromQuaternion);
                QVERIFY(near(result.euler, angles, 0.05F));
                QVERIFY(shows(result.quaternion, angles));
            }
        }
    }

    void eulerAnglesKeepTheirSigns()
    {
        NodeSnapshot node;
        addEuler(node, 20, 30, 200); // beyond 180 and not wrapped
        const NormalizedAttitude rfu = normalizeAttitude(node, RfuEnu312);
        QVERIFY(rfu.valid && !rfu.fromQuaternion);
        QCOMPARE(rfu.euler, QVector3D(20, 30, 200));
        QVERIFY(shows(rfu.quaternion, rfu.euler));
        const NormalizedAttitude flu = normalizeAttitude(node, FluNwuZyx);
        QCOMPARE(flu.euler, QVector3D(20, -30, -200)); // yaw as reported, while the rotation follows the device
        QVERIFY(shows(flu.quaternion, {20, -30, 200}));
    }

    void unusableQuaternions()
    {
        const std::pair<QQuaternion, bool> rows[] = {{{0, 0, 0, 0}, false},       {{0.00099F, 0, 0, 0}, false},
                                                     {{0.00101F, 0, 0, 0}, true}, {{1e30F, 0, 0, 0}, true},
                                                     {{1, kNaN, 0, 0}, false},    {{1, 0, kInfinity, 0}, false}};
        for (const auto &[quaternion, usable] : rows) {
            NodeSnapshot node = withQuaternion(quaternion);
            const NormalizedAttitude alone = normalizeAttitude(node, RfuEnu312);
            QVERIFY(alone.valid == usable && alone.fromQuaternion == usable);
            QCOMPARE(alone.quaternion, QQuaternion());
            QCOMPARE(alone.euler, QVector3D());
            addEuler(node, 5, 6, 7);
            const NormalizedAttitude fallback = normalizeAttitude(node, RfuEnu312);
            QVERIFY(fallback.valid && fallback.fromQuaternion == usable);
            QCOMPARE(fallback.euler, usable ? QVector3D() : QVector3D(5, 6, 7));
            node.has_quat = false; // the flag decides, not the numbers
            QVERIFY(!normalizeAttitude(node, RfuEnu312).fromQuaternion);
        }
    }

    void displayEulerLimits()
    {
        // In single precision the sine of the pitch ends just below or above 1; only the latter needs the clamp.
        const float half = std::sqrt(0.5F);
        const std::pair<QQuaternion, QVector3D> rows[] = {{{half, 0, 0, half}, {0, 89.98F, 0}},
                                                          {{half, 0, 0, -half}, {0, -89.98F, 0}},
                                                          {{0.70711F, 0, 0, 0.70711F}, {0, 90, 0}},
                                                          {{0.70711F, 0, 0, -0.70711F}, {0, -90, 0}},
                                                          {{0, 1, 0, 0}, {180, 0, 0}},
                                                          {{0, -1, 0, 0}, {180, 0, 0}},
                                                          {{0, 0, -1, 0}, {0, 0, 180}},
                                                          {{5, 0, 5, 0}, {0, 0, 90}}};
        for (const auto &[quaternion, angles] : rows) {
            const QVector3D got = displayEulerFromQuaternion(quaternion);
            QCOMPARE(QByteArray::number(got.y(), 'f', 2), QByteArray::number(angles.y(), 'f', 2));
            if (std::abs(angles.y()) < 89.0F) // roll and yaw cannot be distinguished beyond
                QVERIFY(near(got, angles, 0.0005F));
        }
    }

    void withoutPresetNothingTurns()
    {
        const DisplayAttitude display = toDisplayAttitude(10, 20, 30, None);
        QCOMPARE(display.quaternion, QQuaternion());
        QCOMPARE(display.axisMatrix, (AxisMatrix{1, 0, 0, 0, 1, 0, 0, 0, 1}));
        QCOMPARE(toDisplayQuaternion(10, 20, 30, OrientationPreset(77)), QQuaternion());
    }

    void relativeAngles()
    {
        const QQuaternion reference = toDisplayQuaternion(0, 0, 50, RfuEnu312);
        const QQuaternion attitude = toDisplayQuaternion(0, 0, 80, RfuEnu312) * 4.0F;
        QVERIFY(near(relativeDisplayEuler(attitude, reference), {0, 0, 30}));
        QVERIFY(near(relativeDisplayEuler(reference, attitude), {0, 0, -30}));
    }
};

QTEST_APPLESS_MAIN(TestAttitudeConvention)
#include "tst_attitude_convention.moc"
