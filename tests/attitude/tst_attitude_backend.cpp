#include <QSignalSpy>
#include <QTest>

#include <limits>

#include "attitude/attitude_backend.h"

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();

class TestAttitudeBackend : public QObject
{
    Q_OBJECT

private slots:
    void everyChangeIsToldOnce()
    {
        const auto row = [](const char *signal, void (*change)(AttitudeBackend &)) {
            AttitudeBackend backend;
            std::vector<std::unique_ptr<QSignalSpy>> spies;
            const QMetaObject *meta = backend.metaObject();
            for (int i = meta->methodOffset(); i < meta->methodCount(); ++i)
                spies.push_back(std::make_unique<QSignalSpy>(&backend, meta->method(i)));
            change(backend);
            change(backend);
            for (const auto &spy : spies)
                QVERIFY2(spy->count() == (spy->signal() == signal ? 1 : 0), spy->signal());
        };
        row("orientationChanged()", [](auto &b) { b.setAttitude({0, 1, 0, 0}, {180, 0, 0}); });
        row("homeReferenceChanged()", [](auto &b) { b.setHomeReference({0, 0, 1, 0}, true); });
        row("homeReferenceChanged()", [](auto &b) { b.setHomeReference({0, 0, 1, 0}, false); });
        row("objSourceChanged()", [](auto &b) { b.setObjSource(QUrl(QStringLiteral("qrc:/a.qml"))); });
        row("bodyAxesChanged()", [](auto &b) { b.setBodyAxes({{0, 0, 1}, {1, 0, 0}, {0, 1, 0}}); });
        row("", [](auto &b) { b.setAttitude({kNaN, 0, 0, 0}, {}); });
        row("", [](auto &b) { b.setHomeReference({kNaN, 0, 0, 0}, true); });
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
