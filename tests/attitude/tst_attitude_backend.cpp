#include <QSignalSpy>
#include <QTest>

#include <functional>
#include <limits>

#include "attitude/attitude_backend.h"

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
using Change = std::function<void(AttitudeBackend &)>;
Q_DECLARE_METATYPE(Change)

class TestAttitudeBackend : public QObject
{
    Q_OBJECT

private slots:
    void everyChangeIsToldOnce_data()
    {
        QTest::addColumn<Change>("change");
        QTest::addColumn<QByteArray>("signal");
        const auto row = [](const char *name, const char *signal, const Change &change) {
            QTest::newRow(name) << change << QByteArray(signal);
        };
        row("attitude", "orientationChanged()", [](auto &b) { b.setAttitude({0, 1, 0, 0}, {180, 0, 0}); });
        row("home", "homeReferenceChanged()", [](auto &b) { b.setHomeReference({0, 0, 1, 0}, true); });
        row("home off", "homeReferenceChanged()", [](auto &b) { b.setHomeReference({0, 0, 1, 0}, false); });
        row("model", "objSourceChanged()", [](auto &b) { b.setObjSource(QUrl(QStringLiteral("qrc:/a.qml"))); });
        row("axes", "bodyAxesChanged()", [](auto &b) { b.setBodyAxes({{0, 0, 1}, {1, 0, 0}, {0, 1, 0}}); });
        row("not a number", "", [](auto &b) { b.setAttitude({kNaN, 0, 0, 0}, {}); });
        row("home that is no number", "", [](auto &b) { b.setHomeReference({kNaN, 0, 0, 0}, true); });
    }
    void everyChangeIsToldOnce()
    {
        QFETCH(Change, change);
        QFETCH(QByteArray, signal);
        AttitudeBackend backend;
        std::vector<std::unique_ptr<QSignalSpy>> spies;
        const QMetaObject *meta = backend.metaObject();
        for (int i = meta->methodOffset(); i < meta->methodCount(); ++i)
            spies.push_back(std::make_unique<QSignalSpy>(&backend, meta->method(i)));
        change(backend);
        change(backend);
        for (const auto &spy : spies)
            QCOMPARE(spy->count(), spy->signal() == signal ? 1 : 0);
    }

    void deviceAxesInTheDisplayFrame()
    {
        const auto axes = [](OrientationPreset preset) {
            return BodyAxesBasis::fromAxisMatrix(attitude_convention::toDisplayAttitude(0, 0, 0, preset).axisMatrix);
        };
        // Display: X forward, Y up, Z to the right.
        const BodyAxesBasis rightForwardUp{{0, 0, 1}, {1, 0, 0}, {0, 1, 0}};
        const BodyAxesBasis forwardLeftUp{{1, 0, 0}, {0, 0, -1}, {0, 1, 0}};
        QVERIFY(axes(OrientationPreset::RfuEnu312) == rightForwardUp);
        QVERIFY(axes(OrientationPreset::FluNwuZyx) == forwardLeftUp);
    }
};

QTEST_GUILESS_MAIN(TestAttitudeBackend)
#include "tst_attitude_backend.moc"
