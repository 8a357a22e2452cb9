#include <QTableWidget>

#include "attitude/form_threed.h"
#include "e2e/views.h"
#include "ui/form_link_health.h"
#include "wave/form_wireless_dashboard.h"

namespace {

void chooseMounting(const Desk &desk, int index)
{
    auto *mounting = desk.find<QComboBox>("combo_mounting");
    mounting->setCurrentIndex(index);
    emit mounting->activated(index); // as when a user picks it
}

} // namespace

/// What the windows show when the stream has stopped, the connection has ended, or another device is found.
class TestSessionViews : public QObject
{
    Q_OBJECT

private slots:
    void mountingTurnsAStandingPicture()
    {
        SimulatorProcess simulator(words("--fixed"));
        Desk desk;
        QVERIFY(connectTo(desk, simulator));
        desk.find<QAction>("action3D_view")->trigger();
        const AttitudeBackend &pose = openDialog<form_threed>()->backend();
        QTRY_VERIFY(!pose.quaternion().isIdentity());
        QVERIFY(simulator.control("silent on"));
        QTRY_VERIFY(!desk.window->findChild<SensorDataPanel *>()->isEnabled());
        const QQuaternion before = pose.quaternion();
        chooseMounting(desk, 1 - desk.find<QComboBox>("combo_mounting")->currentIndex());
        QTRY_VERIFY(pose.quaternion() != before);
    }

    void homeBelongsToTheMounting_data()
    {
        QTest::addColumn<QString>("device");
        for (const char *device : {"mz221", "kv104"}) // their own mountings differ
            QTest::newRow(device) << device;
    }
    void homeBelongsToTheMounting()
    {
        QFETCH(QString, device);
        SimulatorProcess simulator({QStringLiteral("--fixed"), QStringLiteral("--device"), device});
        Desk desk;
        QVERIFY(connectTo(desk, simulator));
        desk.find<QAction>("action3D_view")->trigger();
        auto *threed = openDialog<form_threed>();
        const AttitudeBackend &pose = threed->backend();
        QTRY_VERIFY(!pose.quaternion().isIdentity());
        click(threed, "BTNSetHome");
        QVERIFY(pose.homeReferenceActive());
        const QQuaternion home = pose.homeQuaternion();
        desk.find<QAction>("action_serial_stop")->trigger();
        QTRY_VERIFY(!desk.isOpen());
        QVERIFY(connectTo(desk, simulator));
        QTRY_VERIFY(pose.homeReferenceActive());
        QVERIFY(qFuzzyCompare(pose.homeQuaternion(), home));
        click(threed, "BTNClearHome");
        QVERIFY(!pose.homeReferenceActive());
    }

    void deviceIsShownAtOnce()
    {
        SimulatorProcess simulator(words("--fixed --wrong-device"));
        Desk desk;
        QVERIFY(connectTo(desk, simulator));
        QVERIFY(desk.label("label_product") != QLatin1String("MZ221"));
        desk.find<QAction>("actionDevice_Settiing")->trigger();
        QVERIFY(simulator.control("wrong-device off"));
        click(desk.settings(), "BTN_identify");
        QVERIFY(desk.settings()->isVisible());
        QTRY_COMPARE(desk.label("label_product"), QStringLiteral("MZ221"));
        QVERIFY(desk.settings()->isVisible());
    }

    /// No counter takes a commanded pause for a loss.
    void missingSamplesAreCountedOnce()
    {
        SimulatorProcess simulator(words("--device gateway --nodes 2 --layout 62 --rate 100"));
        Desk desk;
        QVERIFY(connectTo(desk, simulator));
        QTRY_VERIFY(desk.find<QAction>("action_wireless_gateway_dashboard")->isEnabled());
        desk.find<QAction>("action_wireless_gateway_dashboard")->trigger();
        desk.find<QAction>("action_link_health")->trigger();
        const auto *table = openDialog<form_link_health>()->findChild<QTableWidget *>(QStringLiteral("TBL_nodes"));
        const GatewayNodeModel *nodes = openWindow<form_wireless_dashboard>()->bridge().nodeModel();
        const auto counts = [&] {
            QList<int> all;
            for (int row = 0; row < 2; ++row) {
                const QTableWidgetItem *item = table->item(row, 2);
                all += item != nullptr ? item->text().toInt() : -1;
                all += nodes->data(nodes->index(row), GatewayNodeModel::MissingRole).toInt();
            }
            return all;
        };
        QTRY_COMPARE(nodes->rowCount(), 2);
        QTRY_COMPARE(counts(), QList<int>(4, 0));
        desk.find<QAction>("actionDevice_Settiing")->trigger();
        click(desk.settings(), "BTN_identify"); // stops the output for a while
        const qint64 frames = simulator.stat("frames_sent");
        QTRY_VERIFY(simulator.stat("frames_sent") > frames + 100);
        QCOMPARE(counts(), QList<int>(4, 0));
        QVERIFY(simulator.control("node skip 2:5"));
        QTRY_VERIFY(simulator.stat("records_missing") > 20);
        QVERIFY(simulator.control("node skip 2:0"));
        const int missing = int(simulator.stat("records_missing"));
        QTRY_COMPARE(counts(), (QList<int>{0, 0, missing, missing}));
    }
};

QTEST_MAIN(TestSessionViews)
#include "tst_session_views.moc"
