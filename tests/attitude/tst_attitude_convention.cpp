#include <QTest>

#include <cmath>
#include <limits>

#include "attitude/attitude_convention.h"

using namespace attitude_convention;

namespace {

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr double kRadians = 3.14159265358979323846 / 180.0;

struct Vector
{
    double x, y, z;
};

// Plain rotations in double precision, written apart from the code under test: about one axis, right-handed.
Vector aboutX(Vector v, double degrees)
{
    const double c = std::cos(degrees * kRadians), s = std::sin(degrees * kRadians);
    return {v.x, c * v.y - s * v.z, s * v.y + c * v.z};
}
Vector aboutY(Vector v, double degrees)
{
    const double c = std::cos(degrees * kRadians), s = std::sin(degrees * kRadians);
    return {c * v.x + s * v.z, v.y, -s * v.x + c * v.z};
}
Vector aboutZ(Vector v, double degrees)
{
    const double c = std::cos(degrees * kRadians), s = std::sin(degrees * kRadians);
    return {c * v.x - s * v.y, s * v.x + c * v.y, v.z};
}

bool rotatesTo(const QQuaternion &q, const QVector3D &from, Vector to)
{
    const QVector3D got = q.rotatedVector(from);
    const bool same =
        std::abs(got.x() - to.x) < 1e-5 && std::abs(got.y() - to.y) < 1e-5 && std::abs(got.z() - to.z) < 1e-5;
    if (!same)
        qWarning() << got << "expected" << to.x << to.y << to.z;
    return same;
}

bool near(const QVector3D &a, const QVector3D &b, float tolerance = 0.01F)
{
    const bool same = (a - b).length() < tolerance;
    if (!same)
        qWarning() << a << "expected" << b;
    return same;
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

Q_DECLARE_METATYPE(OrientationPreset)

class TestAttitudeConvention : public QObject
{
    Q_OBJECT

private slots:
    void quaternionIsSeenInDisplayAxes_data()
    {
        QTest::addColumn<OrientationPreset>("preset");
        QTest::addColumn<QVector3D>("angles"); // x roll, y pitch, z yaw
        const QVector3D rows[] = {{0, 0, 0}, {30, -15, 120}, {-170, 80, -60}, {90, 0, 180}, {1, 2, 3}};
        for (const QVector3D &row : rows) {
            const QByteArray name = QByteArray::number(row.x()) + '/' + QByteArray::number(row.y());
            QTest::addRow("rfu %s", name.constData()) << OrientationPreset::RfuEnu312 << row;
            QTest::addRow("flu %s", name.constData()) << OrientationPreset::FluNwuZyx << row;
        }
    }
    void quaternionIsSeenInDisplayAxes()
    {
        QFETCH(OrientationPreset, preset);
        QFETCH(QVector3D, angles);
        // The device turns by yaw about its up axis, then pitch nose up, then roll right side down, in its own axes.
        const bool rfu = preset == OrientationPreset::RfuEnu312;
        const QQuaternion device = QQuaternion::fromAxisAndAngle(0, 0, 1, angles.z())
                                   * (rfu ? QQuaternion::fromAxisAndAngle(1, 0, 0, angles.y())
                                          : QQuaternion::fromAxisAndAngle(0, 1, 0, -angles.y()))
                                   * (rfu ? QQuaternion::fromAxisAndAngle(0, 1, 0, angles.x())
                                          : QQuaternion::fromAxisAndAngle(1, 0, 0, angles.x()));
        NodeSnapshot node = withQuaternion(device * 3.0F); // the length must not matter
        addEuler(node, 7, 8, 9);                           // nor angles beside it

        const NormalizedAttitude result = normalizeAttitude(node, preset);
        QVERIFY(result.valid);
        QVERIFY(result.fromQuaternion);
        QVERIFY(near(result.euler, angles, 0.05F));
        // Nose and right wing in the display frame, by formulas of our own.
        const auto turned = [&](Vector v) { return aboutY(aboutZ(aboutX(v, angles.x()), angles.y()), angles.z()); };
        QVERIFY(rotatesTo(result.quaternion, {1, 0, 0}, turned({1, 0, 0})));
        QVERIFY(rotatesTo(result.quaternion, {0, 0, 1}, turned({0, 0, 1})));
    }

    void eulerAnglesKeepTheirSigns_data()
    {
        QTest::addColumn<OrientationPreset>("preset");
        QTest::addColumn<QVector3D>("reported");
        QTest::addColumn<float>("turnSign"); // of the device's yaw in the rotation
        QTest::addColumn<float>("pitchSign");
        QTest::newRow("rfu") << OrientationPreset::RfuEnu312 << QVector3D(20, 30, 200) << 1.0F << 1.0F;
        QTest::newRow("flu") << OrientationPreset::FluNwuZyx << QVector3D(20, -30, -200) << 1.0F << -1.0F;
    }
    void eulerAnglesKeepTheirSigns()
    {
        QFETCH(OrientationPreset, preset);
        QFETCH(QVector3D, reported);
        QFETCH(float, turnSign);
        QFETCH(float, pitchSign);
        NodeSnapshot node;
        addEuler(node, 20, 30, 200); // beyond 180 and not wrapped
        const NormalizedAttitude result = normalizeAttitude(node, preset);
        QVERIFY(result.valid);
        QVERIFY(!result.fromQuaternion);
        QCOMPARE(result.euler, reported);
        const Vector nose = aboutY(aboutZ(aboutX({1, 0, 0}, 20), pitchSign * 30.0), turnSign * 200.0);
        const Vector wing = aboutY(aboutZ(aboutX({0, 0, 1}, 20), pitchSign * 30.0), turnSign * 200.0);
        QVERIFY(rotatesTo(result.quaternion, {1, 0, 0}, nose));
        QVERIFY(rotatesTo(result.quaternion, {0, 0, 1}, wing));
    }

    void bothPathsShowTheSameAttitude()
    {
        // A FLU device at Z-Y-X angles 10/20/30: as a quaternion and as angles, its display rotation is one and the
        // same.
        const QQuaternion device = QQuaternion::fromAxisAndAngle(0, 0, 1, 30)
                                   * QQuaternion::fromAxisAndAngle(0, 1, 0, 20)
                                   * QQuaternion::fromAxisAndAngle(1, 0, 0, 10);
        NodeSnapshot angles;
        addEuler(angles, 10, 20, 30);
        const QQuaternion a = normalizeAttitude(withQuaternion(device), OrientationPreset::FluNwuZyx).quaternion;
        const QQuaternion b = normalizeAttitude(angles, OrientationPreset::FluNwuZyx).quaternion;
        QVERIFY(near(relativeDisplayEuler(a, b), {0, 0, 0}));
    }

    void unusableQuaternions_data()
    {
        QTest::addColumn<QQuaternion>("quaternion");
        QTest::addColumn<bool>("usable");
        QTest::newRow("all zero") << QQuaternion(0, 0, 0, 0) << false;
        QTest::newRow("just too short") << QQuaternion(0.00099F, 0, 0, 0) << false;
        QTest::newRow("just long enough") << QQuaternion(0.00101F, 0, 0, 0) << true;
        QTest::newRow("huge") << QQuaternion(1e30F, 0, 0, 0) << true;
        QTest::newRow("nan") << QQuaternion(1, kNaN, 0, 0) << false;
        QTest::newRow("infinite") << QQuaternion(1, 0, kInfinity, 0) << false;
    }
    void unusableQuaternions()
    {
        QFETCH(QQuaternion, quaternion);
        QFETCH(bool, usable);
        NodeSnapshot node = withQuaternion(quaternion);
        const NormalizedAttitude alone = normalizeAttitude(node, OrientationPreset::RfuEnu312);
        QCOMPARE(alone.valid, usable);
        QCOMPARE(alone.fromQuaternion, usable);
        QCOMPARE(alone.quaternion, QQuaternion());
        QCOMPARE(alone.euler, QVector3D());
        QCOMPARE(alone.axisMatrix, (AxisMatrix{0, 0, 1, 1, 0, 0, 0, 1, 0}));

        addEuler(node, 5, 6, 7);
        const NormalizedAttitude fallback = normalizeAttitude(node, OrientationPreset::RfuEnu312);
        QVERIFY(fallback.valid);
        QCOMPARE(fallback.fromQuaternion, usable);
        QCOMPARE(fallback.euler, usable ? QVector3D() : QVector3D(5, 6, 7));

        node.has_quat = false; // the flag decides, not the numbers
        QVERIFY(!normalizeAttitude(node, OrientationPreset::RfuEnu312).fromQuaternion);
    }

    void displayEulerLimits_data()
    {
        QTest::addColumn<QQuaternion>("quaternion");
        QTest::addColumn<QVector3D>("angles");
        // In single precision the sine of the pitch ends just below or above 1; only the latter needs the clamp.
        const float half = std::sqrt(0.5F);
        QTest::newRow("nearly +90") << QQuaternion(half, 0, 0, half) << QVector3D(0, 89.98F, 0);
        QTest::newRow("nearly -90") << QQuaternion(half, 0, 0, -half) << QVector3D(0, -89.98F, 0);
        QTest::newRow("clamped to +90") << QQuaternion(0.70711F, 0, 0, 0.70711F) << QVector3D(0, 90, 0);
        QTest::newRow("clamped to -90") << QQuaternion(0.70711F, 0, 0, -0.70711F) << QVector3D(0, -90, 0);
        QTest::newRow("roll 180") << QQuaternion(0, 1, 0, 0) << QVector3D(180, 0, 0);
        QTest::newRow("roll -180 becomes 180") << QQuaternion(0, -1, 0, 0) << QVector3D(180, 0, 0);
        QTest::newRow("yaw -180 becomes 180") << QQuaternion(0, 0, -1, 0) << QVector3D(0, 0, 180);
        QTest::newRow("yaw 90, not of unit length") << QQuaternion(5, 0, 5, 0) << QVector3D(0, 0, 90);
    }
    void displayEulerLimits()
    {
        QFETCH(QQuaternion, quaternion);
        QFETCH(QVector3D, angles);
        const QVector3D got = displayEulerFromQuaternion(quaternion);
        QCOMPARE(QByteArray::number(got.y(), 'f', 2), QByteArray::number(angles.y(), 'f', 2));
        if (std::abs(angles.y()) < 89.0F) // roll and yaw cannot be told apart beyond
            QVERIFY(near(got, angles, 0.0005F));
    }

    void withoutPresetNothingTurns()
    {
        const DisplayAttitude display = toDisplayAttitude(10, 20, 30, OrientationPreset::None);
        QCOMPARE(display.quaternion, QQuaternion());
        QCOMPARE(display.axisMatrix, (AxisMatrix{1, 0, 0, 0, 1, 0, 0, 0, 1}));
        QCOMPARE(toDisplayQuaternion(10, 20, 30, OrientationPreset(77)), QQuaternion());
        QCOMPARE(toDisplayAttitude(0, 0, 0, OrientationPreset::FluNwuZyx).axisMatrix,
                 (AxisMatrix{1, 0, 0, 0, 0, -1, 0, 1, 0}));
    }

    void relativeAngles()
    {
        const QQuaternion reference = toDisplayQuaternion(0, 0, 50, OrientationPreset::RfuEnu312);
        const QQuaternion attitude = toDisplayQuaternion(0, 0, 80, OrientationPreset::RfuEnu312) * 4.0F;
        QVERIFY(near(relativeDisplayEuler(attitude, reference), {0, 0, 30}));
        QVERIFY(near(relativeDisplayEuler(reference, attitude), {0, 0, -30}));
    }
};

QTEST_APPLESS_MAIN(TestAttitudeConvention)
#include "tst_attitude_convention.moc"
