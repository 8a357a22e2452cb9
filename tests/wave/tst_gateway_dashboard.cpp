#include <QAbstractItemModelTester>
#include <QPointer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <cmath>

#include "support/files.h"
#include "wave/gateway_dashboard_bridge.h"

namespace {

constexpr SampleFields kFull = SampleField::Acceleration | SampleField::Temperature | SampleField::Pressure;

GatewaySample sampleOf(int id, unsigned int stampMs = 0)
{
    GatewaySample sample{.timestampMs = stampMs, .fields = kFull};
    sample.node.id = quint8(id);
    sample.node.acc[0] = 3;
    sample.node.acc[1] = 4;
    return sample;
}

QString text(const GatewayNodeModel &model, int row, int role)
{
    return model.data(model.index(row), role).toString();
}

} // namespace

class TestGatewayDashboard : public QObject
{
    Q_OBJECT

private slots:
    void tellsLateFromGone()
    {
        const std::tuple<int, int, NodeState> rows[] = {{10, 500, NodeState::Live},    {10, 501, NodeState::Late},
                                                        {10, 2000, NodeState::Late},   {10, 2001, NodeState::Gone},
                                                        {1000, 3000, NodeState::Live}, {1000, 3001, NodeState::Late},
                                                        {1000, 6000, NodeState::Late}, {1000, 6001, NodeState::Gone}};
        for (const auto &[period, age, state] : rows) {
            for (const bool stamped : {true, false}) { // arrivals are used where there is no clock
                GatewayNodeTracker tracker;
                for (int i = 1; i <= 8; ++i)
                    tracker.addSamples({sampleOf(1, stamped ? unsigned(i * period) : 0)}, i * period);
                QCOMPARE(tracker.nodes(8 * period + age).first().state, state);
                QCOMPARE(tracker.nodes(8 * period + age).first().ageMs, age);
            }
        }
    }

    void measuresRates()
    {
        GatewayNodeTracker tracker;
        qint64 now = 1000;
        const auto run = [&](int samples) {
            for (int i = 0; i < samples; ++i, now += 20)
                tracker.addSamples({sampleOf(1)}, now);
            return tracker.nodes(now).first().rateHz;
        };
        QCOMPARE(run(15), 0.0); // 300 ms are too short for a rate
        QCOMPARE(run(35), 50.0);
        QCOMPARE(run(150), 50.0);
        QCOMPARE(tracker.nodes(now + 1000).first().rateHz, 25.0);
        QCOMPARE(tracker.nodes(now + 60000).first().rateHz, 0.0);
        now += 60000;
        QCOMPARE(run(50), 50.0); // since it came back
    }

    /// Missing samples are counted in one place only: whatever the stamps here are, the table shows that count.
    void showsTheCountThatItIsGiven()
    {
        GatewayNodeTracker tracker;
        for (const unsigned int stamp : {10U, 20U, 30U, 40U, 50U, 60U, 70U, 9000U}) {
            GatewaySample sample = sampleOf(1, stamp);
            sample.missing = stamp / 10;
            sample.hasClock = true;
            tracker.addSamples({sample, sampleOf(2, stamp)}, stamp);
        }
        const QList<GatewayNodeStatus> nodes = tracker.nodes(9000);
        QCOMPARE(std::pair(nodes.first().missing, nodes.first().hasClock), std::pair(quint64(900), true));
        QCOMPARE(std::pair(nodes.last().missing, nodes.last().hasClock), std::pair(quint64(0), false));
    }

    void listsNodesById()
    {
        GatewayNodeModel model;
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QSignalSpy inserts(&model, &GatewayNodeModel::rowsInserted);
        QSignalSpy changes(&model, &GatewayNodeModel::dataChanged);
        const auto update = [&model](const QList<int> &ids, qint64 ageOfTheLast) {
            QList<GatewayNodeStatus> nodes;
            for (const int id : ids)
                nodes.append(GatewayNodeStatus{.id = quint8(id)});
            nodes.last().ageMs = ageOfTheLast;
            model.update(nodes);
        };
        update({5}, 1);
        update({2, 5, 200}, 1);
        QCOMPARE(inserts.count(), 3);
        QCOMPARE(changes.count(), 1); // 5 is no longer the last
        update({2, 5, 200}, 2);
        update({2, 5, 200}, 2);
        QCOMPARE(changes.count(), 2);
        QCOMPARE(changes.last().at(0).toModelIndex().row(), 2);
        model.setChosen({5});
        QList<std::pair<int, bool>> rows;
        for (int row = 0; row < model.rowCount(); ++row) {
            const QModelIndex index = model.index(row);
            rows.append(
                {index.data(GatewayNodeModel::NodeIdRole).toInt(), index.data(GatewayNodeModel::ChosenRole).toBool()});
        }
        QCOMPARE(rows, (QList<std::pair<int, bool>>{{2, false}, {5, true}, {200, false}}));
    }

    void showsValuesWithADashForTheUnknown()
    {
        const auto fields = SampleField::Temperature | SampleField::Pressure;
        // State, age, missing, temperature and pressure as texts.
        const std::pair<GatewayNodeStatus, QString> rows[] = {{{}, QStringLiteral("Gone – – – –")},
                                                              {{.state = NodeState::Live,
                                                                .ageMs = 12,
                                                                .missing = 3,
                                                                .hasClock = true,
                                                                .temperature = 25.26F,
                                                                .pressure = 101325.4F,
                                                                .fields = fields},
                                                               QStringLiteral("Live 12 ms 3 25.3 101325")},
                                                              {{.state = NodeState::Late,
                                                                .ageMs = 1240,
                                                                .temperature = std::nanf(""),
                                                                .pressure = 3e38F,
                                                                .fields = fields},
                                                               QStringLiteral("Late 1.2 s – – 3.00e+38")},
                                                              {{.ageMs = 124000}, QStringLiteral("Gone 2 min – – –")}};
        for (const auto &[status, expected] : rows) {
            GatewayNodeModel model;
            model.update({status});
            QStringList texts;
            for (const int role :
                 {GatewayNodeModel::StateTextRole, GatewayNodeModel::AgeTextRole, GatewayNodeModel::MissingTextRole,
                  GatewayNodeModel::TemperatureTextRole, GatewayNodeModel::PressureTextRole})
                texts += text(model, 0, role);
            QCOMPARE(texts.join(u' '), expected);
        }
    }

    void choosesNodesAndTypes()
    {
        GatewayDashboardBridge bridge;
        QSignalSpy changes(&bridge, &GatewayDashboardBridge::panesChanged);
        const auto panes = [&bridge] {
            QStringList list;
            for (const QVariant &pane : bridge.panes())
                list += pane.toMap().value(QStringLiteral("slot")).toString() + u':'
                        + pane.toMap().value(QStringLiteral("nodeId")).toString()
                        + pane.toMap().value(QStringLiteral("type")).toString();
            return list.join(u' ') + u'/' + QString::number(bridge.paneColumns());
        };
        bridge.setNodeChosen(9, true);
        bridge.setNodeChosen(9, true);
        bridge.setNodeChosen(2, true);
        QCOMPARE(changes.count(), 2);
        QCOMPARE(panes(), QLatin1String("6:2acc 0:9acc/1"));
        bridge.setTypeSelected(QStringLiteral("prs"), true);
        bridge.setTypeSelected(QStringLiteral("xyz"), true);
        QCOMPARE(panes(), QLatin1String("6:2acc 0:9acc 11:2prs 5:9prs/2"));
        bridge.setNodeChosen(255, true);
        QCOMPARE(panes(), QLatin1String("6:2acc 11:2prs 0:9acc 5:9prs 12:255acc 17:255prs/2"));
        QVERIFY(!bridge.setNodeChosen(256, true) && !bridge.setNodeChosen(-1, true));
        QVERIFY(bridge.setNodeChosen(0, true));
        QCOMPARE(bridge.chosenNodes(), QList<int>({0, 2, 9, 255}));
        for (int id = 100; id < 112; ++id)
            QVERIFY(bridge.setNodeChosen(id, true));
        QVERIFY(!bridge.setNodeChosen(1, true)); // 16 are enough
        QCOMPARE(bridge.paneColumns(), 3);
        for (int id = 100; id < 112; ++id)
            bridge.setNodeChosen(id, false);
        bridge.setTypeSelected(QStringLiteral("prs"), false);
        bridge.setNodeChosen(9, false);
        bridge.setNodeChosen(3, true); // takes the place that became free
        QCOMPARE(panes(), QLatin1String("18:0acc 6:2acc 0:3acc 12:255acc/2"));
        bridge.setTypeSelected(QStringLiteral("acc"), false);
        QCOMPARE(panes(), QLatin1String("/1"));
        QCOMPARE(changes.count(), 9 + 24);
    }

    void letsTheViewGoBeforeTheCharts()
    {
        GatewayDashboardBridge bridge;
        bridge.setNodeChosen(1, true);
        QPointer<QObject> chart =
            bridge.panes().constFirst().toMap().value(QStringLiteral("backend")).value<QObject *>();
        bridge.setNodeChosen(1, false);
        QVERIFY(chart && bridge.panes().isEmpty());
        QTRY_VERIFY(!chart);
    }

    void feedsTheChartsWhileActive()
    {
        GatewayDashboardBridge bridge;
        bridge.setPlaying(false);
        bridge.setFrameRate(50);
        bridge.setNodeChosen(1, true);
        bridge.setPlaying(true);
        const auto *chart = qobject_cast<WaveChartBridge *>(
            bridge.panes().constFirst().toMap().value(QStringLiteral("backend")).value<QObject *>());
        bridge.updateGatewaySamples({sampleOf(1, 100), sampleOf(2, 100)});
        bridge.refresh();
        QCOMPARE(bridge.nodeCount(), 0);
        bridge.setDashboardActive(true);
        QCOMPARE(bridge.summary(), QStringLiteral("Nodes 1 · late 0 · gone 1")); // the chosen one is awaited
        for (const unsigned int stamp : {100U, 117U, 138U})
            bridge.updateGatewaySamples({sampleOf(1, stamp), sampleOf(2, stamp)});
        QTRY_COMPARE(bridge.summary(), QStringLiteral("Nodes 2 · late 0 · gone 0"));
        QCOMPARE(chart->newestTimeSec(), 0.138); // the stamps are the stream's time
        QCOMPARE(chart->getValuesAtTime(0), (QVariantList{3.0, 4.0, 0.0, 5.0}));
        QCOMPARE(chart->framerate(), 50U);
        QCOMPARE(chart->chartTitle(), QStringLiteral("Node 1 · Acceleration (G)"));
        bridge.setPlaying(false);
        bridge.updateGatewaySamples({sampleOf(1, 200)});
        QCOMPARE(chart->newestTimeSec(), 0.138);
        // The connection ends: everything stays, no matter how much time passes, and nothing is added.
        bridge.setPlaying(true);
        bridge.setEnded(true);
        bridge.updateGatewaySamples({sampleOf(1, 300), sampleOf(7, 300)});
        bridge.refresh(bridge.hostNowMs() + 60000);
        QCOMPARE(bridge.summary(), QStringLiteral("Nodes 2 · connection ended"));
        QCOMPARE(text(*bridge.nodeModel(), 0, GatewayNodeModel::StateTextRole), QStringLiteral("Ended"));
        QCOMPARE(text(*bridge.nodeModel(), 0, GatewayNodeModel::AgeTextRole), QStringLiteral("–"));
        QCOMPARE(chart->newestTimeSec(), 0.138);
        bridge.setDashboardActive(false);
        QVERIFY(!chart->hasData());
        QCOMPARE(bridge.nodeCount(), 0);
        QCOMPARE(bridge.chosenNodes(), QList<int>{1});
        bridge.clear();
        QVERIFY(bridge.chosenNodes().isEmpty() && !bridge.isEnded());
        bridge.setDashboardActive(true); // it is chosen again as soon as it is heard
        bridge.updateGatewaySamples({sampleOf(1, 100), sampleOf(2, 100)});
        QCOMPARE(bridge.chosenNodes(), QList<int>{1});
    }

    /// A node's history begins when it is heard, not when it is chosen, and outlives its choice.
    void collectsAllNodes()
    {
        GatewayDashboardBridge bridge;
        bridge.setDashboardActive(true);
        for (unsigned int stamp = 10; stamp <= 1000; stamp += 10) {
            QList<GatewaySample> samples;
            for (int id = 0; id < 200; ++id) // far more than can exist
                samples += sampleOf(id, stamp);
            bridge.updateGatewaySamples(samples);
        }
        const auto acceleration = [&bridge] {
            return bridge.panes().isEmpty()
                       ? nullptr
                       : qobject_cast<WaveChartBridge *>(
                           bridge.panes().constFirst().toMap().value(QStringLiteral("backend")).value<QObject *>());
        };
        bridge.setNodeChosen(7, true);
        QVERIFY(acceleration());
        QCOMPARE(acceleration()->model().count(), 100);
        bridge.setNodeChosen(7, false);
        bridge.updateGatewaySamples({sampleOf(7, 1010)});
        bridge.setNodeChosen(7, true);
        QCOMPARE(acceleration()->model().count(), 101);
        QCOMPARE(bridge.findChildren<WaveChartBridge *>().size() % 16, 0); // 16 nodes at most, and their data
        bridge.setNodeChosen(7, false);
        bridge.setNodeChosen(180, true); // replaces one that nobody chose
        QVERIFY(!acceleration()->hasData());
        bridge.updateGatewaySamples({sampleOf(180, 1010)});
        QVERIFY(acceleration()->hasData());
        bridge.setDashboardActive(false);
        // Samples collected for unchosen nodes are discarded.
        QTRY_VERIFY(bridge.findChildren<WaveChartBridge *>().size() <= kSensorTypeCount);
        QCOMPARE(bridge.panes().size(), 1);
    }

    void remembersChoices()
    {
        // Contents of the file; nodes that are chosen when they are heard; types.
        const std::tuple<QByteArray, QList<int>, QString> rows[] = {
            {"", {}, QStringLiteral("acc")},
            {"[WIRELESS_DASHBOARD]\nNODES=3, 250\nTYPES=gyr, prs\nLINKED=true\n", {3, 250}, QStringLiteral("gyr prs")},
            {"[WIRELESS_DASHBOARD]\nNODES=-1, 256, x, 3, 3\nTYPES=bogus\nLINKED=0\n", {3}, QString()},
        };
        for (const auto &[content, nodes, types] : rows) {
            const QTemporaryDir folder; // the toolkit may miss what changes a settings file within a moment
            const QString path = folder.filePath(QStringLiteral("param.ini"));
            QVERIFY(writeFile(path, content));
            for (int run = 0; run < 2; ++run) { // the second reads what the first has written
                GatewayDashboardBridge bridge;
                bridge.loadChoices(path);
                bridge.setDashboardActive(true);
                bridge.updateGatewaySamples({sampleOf(3, 10), sampleOf(250, 10)});
                QCOMPARE(bridge.chosenNodes(), nodes);
                QStringList selected;
                for (const QVariant &type : bridge.typeStates()) {
                    if (type.toMap().value(QStringLiteral("selected")).toBool())
                        selected += type.toMap().value(QStringLiteral("type")).toString();
                }
                QCOMPARE(selected.join(u' '), types);
                QCOMPARE(bridge.isLinked(), content.contains("true"));
                bridge.saveChoices(path);
            }
        }
    }

    /// What was chosen for a node's charts comes back with the node, and the order with the nodes.
    void remembersChartsAndOrder()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("param.ini"));
        const auto open = [&path](GatewayDashboardBridge &bridge) {
            bridge.loadChoices(path);
            bridge.setDashboardActive(true);
            bridge.updateGatewaySamples({sampleOf(3, 10), sampleOf(5, 10), sampleOf(9, 10)});
            bridge.refresh();
        };
        const auto chart = [](const GatewayDashboardBridge &bridge, int pane) {
            return bridge.panes().at(pane).toMap().value(QStringLiteral("backend")).value<WaveChartBridge *>();
        };
        {
            GatewayDashboardBridge bridge;
            open(bridge);
            for (const int id : {9, 3, 5})
                bridge.setNodeChosen(id, true);
            bridge.moveNode(9, -5);
            bridge.moveNode(77, 1); // not there
            chart(bridge, 0)->setChosenView(30, {1});
            QCOMPARE(chart(bridge, 0)->trySetFilter(true, 20), QString());
            chart(bridge, 1)->setChosenView(5, {});
            bridge.setNodeChosen(3, false);
            bridge.setOverlaid(true);
            bridge.setDashboardActive(false); // drops what is not chosen
            bridge.saveChoices(path);
        }
        GatewayDashboardBridge bridge;
        open(bridge);
        QVERIFY(bridge.isOverlaid());
        bridge.setOverlaid(false);
        bridge.setNodeChosen(3, true);
        QCOMPARE(bridge.chosenNodes(), QList<int>({9, 3, 5}));
        QCOMPARE(bridge.nodeModel()->nodeIdAt(0), 9);
        QCOMPARE(chart(bridge, 0)->choices(), (ViewChoices{30, {1}, 20}));
        QCOMPARE(chart(bridge, 1)->choices(), (ViewChoices{5, {}, 0}));
        QCOMPARE(chart(bridge, 2)->choices(), ViewChoices());
    }
};

QTEST_GUILESS_MAIN(TestGatewayDashboard)
#include "tst_gateway_dashboard.moc"
