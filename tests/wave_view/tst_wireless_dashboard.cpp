#include <QFile>
#include <QRegularExpression>
#include <QTest>

#include <cmath>

#include "app/settings_keys.h"
#include "support/quick_items.h"
#include "wave/form_wireless_dashboard.h"
#include "wave/overlay_view_state.h"

/// The gateway's window on a small laptop's screen, fed with batches of sixteen nodes.
class TestWirelessDashboard : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<form_wireless_dashboard> m_window;
    unsigned int m_stampMs = 1;

    QQuickItem *item(const QString &name) { return findItem(m_window->rootObject(), name); }
    QQuickItem *node(int id) { return item(QStringLiteral("node_%1").arg(id)); }
    bool isShown(const QString &name) { return item(name) && item(name)->isVisible(); }
    bool isChosen(int id) { return m_window->bridge().chosenNodes().contains(id); }
    void click(QQuickItem *target)
    {
        const QPointF center = target->mapToScene(target->boundingRect().center());
        QTest::mouseClick(m_window.get(), Qt::LeftButton, {}, center.toPoint());
    }
    void key(int key) { QTest::keyClick(m_window.get(), Qt::Key(key)); }
    /// A second of samples from all nodes except `silent`; the last batch has just arrived.
    void feed(int silent = -1)
    {
        for (int batch = 0; batch < 100; ++batch, m_stampMs += 10) {
            QList<GatewaySample> samples;
            for (int id = 0; id < 16; ++id) {
                if (id == silent)
                    continue;
                GatewaySample sample{.node = {}, .timestampMs = m_stampMs, .fields = SampleField::Acceleration};
                sample.node.id = quint8(id);
                sample.node.acc[0] = float(batch % 20);
                sample.node.acc[1] = -10; // separates the norm from X
                samples.append(sample);
            }
            m_window->updateGatewaySamples(samples);
        }
    }

private slots:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral("^qrc:"))); // views that lack something
        QFile::remove(settings_keys::kFile);
        m_window = std::make_unique<form_wireless_dashboard>();
        m_window->resize(1366, 700);
        m_window->open();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }
    void cleanup() { m_window.reset(); }

    void showsSixteenNodesAtAGlance()
    {
        QVERIFY(isShown(QStringLiteral("noNode")));
        feed();
        QTRY_VERIFY(node(15) && !isShown(QStringLiteral("noNode")));
        QQuickItem *list = item(QStringLiteral("nodeList"));
        QVERIFY(list->property("contentHeight").toDouble() <= list->height());
        const double place = node(9)->y();
        click(node(8));
        click(node(9));
        feed();
        // One falls silent: its row stays and shows it, and so does its chart; the others go on.
        const auto state = [this](int id) { return node(id)->property("nodeState").toInt(); };
        const auto stateAfterFeeding = [this, state](int id) { return feed(9), state(id); };
        QTRY_COMPARE(stateAfterFeeding(9), int(NodeState::Gone));
        const auto isStale = [this](int slot) {
            QQuickItem *chart = item(QStringLiteral("chart_%1").arg(slot));
            return findItem(chart, QStringLiteral("staleMark"))->isVisible();
        };
        QTRY_VERIFY((feed(9), isStale(kSensorTypeCount) && !isStale(0))); // the second node's first chart
        QTRY_COMPARE(stateAfterFeeding(8), int(NodeState::Live));
        QCOMPARE(node(9)->y(), place);
        QTRY_VERIFY((feed(), !isStale(kSensorTypeCount)));
        m_window->clear();
        QTRY_VERIFY(isShown(QStringLiteral("noNode")));
    }

    void choosesNodesByMouseAndKeys()
    {
        feed();
        QTRY_VERIFY(node(15) && isShown(QStringLiteral("noChart")));
        click(node(4));
        key(Qt::Key_Down);
        key(Qt::Key_Space);
        QVERIFY(isChosen(4) && isChosen(5) && m_window->bridge().playing());
        feed();
        QQuickItem *first = nullptr;
        QTRY_VERIFY(first = item(QStringLiteral("chart_0")));
        click(node(6));
        click(node(7));
        click(node(8));
        QVERIFY(isChosen(7) && isChosen(8));
        click(node(5));
        QTRY_VERIFY(!item(QStringLiteral("chart_6"))); // the second place
        QCOMPARE(item(QStringLiteral("chart_0")), first);
        click(item(QStringLiteral("chip_gyr")));
        QTRY_VERIFY(item(QStringLiteral("chart_1")));
        item(QStringLiteral("chart_1"))->property("bridge").value<WaveChartBridge *>()->trySetFilter(true, 5);
        click(item(QStringLiteral("chip_gyr")));
        QTRY_VERIFY(!item(QStringLiteral("chart_1")));
        click(item(QStringLiteral("chip_gyr")));
        QTRY_VERIFY(item(QStringLiteral("chart_1"))); // and its filter, as it was left
        const QQuickItem *filter = findItem(item(QStringLiteral("chart_1")), QStringLiteral("filterSwitch"));
        QVERIFY(filter->isVisible() && filter->property("checked").toBool());
        click(item(QStringLiteral("playButton")));
        QVERIFY(!m_window->bridge().playing());
        click(item(QStringLiteral("chip_gyr")));
        QTRY_VERIFY(!item(QStringLiteral("chart_1")));
    }

    /// One quantity of sixteen nodes in one plot: the newest values in the legend, colours and dashes, a node that
    /// falls silent, and the order of the nodes.
    void overlaysNodes()
    {
        feed();
        QTRY_VERIFY(node(15));
        for (int id = 0; id < 16; ++id)
            m_window->bridge().setNodeChosen(id, true);
        click(item(QStringLiteral("overlayChip")));
        QQuickItem *chart = nullptr;
        QTRY_VERIFY((chart = item(QStringLiteral("overlay_acc"))) && !item(QStringLiteral("chart_0")));
        auto *view = chart->property("viewState").value<OverlayViewState *>();
        feed(3);
        QTRY_COMPARE(view->seriesLabels().size(), 16);
        QTRY_VERIFY(view->liveTexts().value(2).contains(QLatin1String("+19")));
        QSet<QString> looks;
        for (int i = 0; i < 16; ++i)
            looks += view->seriesColors().at(i).value<QColor>().name() + (view->seriesDashes().at(i) ? u'-' : u' ');
        QCOMPARE(looks.size(), 16);
        // Each curve is drawn up to the end of its node's samples.
        QTRY_COMPARE(view->ends().size(), 16);
        QTRY_VERIFY(std::isnan(view->ends().at(3)) && view->ends().at(4) == 19);
        const QString silent = view->liveTexts().value(3); // a second old: the newest value is still worth showing
        QTRY_VERIFY((feed(3), view->liveTexts().value(3) != silent && view->liveTexts().value(4).contains(u'9')));
        // The other quantity, and each node's place in the file.
        click(findItem(chart, QStringLiteral("channel_Y")));
        QTRY_VERIFY(view->liveTexts().value(4).contains(QLatin1String("10.000")));
        const QList<QByteArray> lines = view->table(true).split('\n');
        QCOMPARE(lines.at(0).count(','), 17);
        QVERIFY2(lines.at(0).endsWith("node 15 Y (G)"), lines.at(0).constData());
        QVERIFY2(lines.at(1).endsWith(",-10,-10,-10,-10"), lines.at(1).constData());
        QVERIFY2(lines.at(lines.size() - 2).contains(",-10,-10,-10,,-10,"), lines.at(lines.size() - 2).constData());
        // The order: node 15 is moved up by keys, one without a curve leaves the others as they are.
        const QVariant color = view->seriesColors().at(15);
        click(node(15));
        click(node(15));
        item(QStringLiteral("nodeList"))->forceActiveFocus();
        QTest::keyClick(m_window.get(), Qt::Key_Up, Qt::AltModifier);
        QTRY_COMPARE(view->seriesLabels().mid(13), QString(QStringLiteral("13 15 14")).split(u' '));
        QVERIFY(node(15)->y() < node(14)->y());
        QCOMPARE(view->seriesColors().at(14), color);
        view->setSeriesVisible(14, false);
        click(node(2));
        QTRY_COMPARE(view->seriesLabels().size(), 15);
        QVERIFY(!view->isSeriesVisible(13) && view->isSeriesVisible(14));
        click(item(QStringLiteral("overlayChip")));
        QTRY_VERIFY(item(QStringLiteral("chart_0")) && !item(QStringLiteral("overlay_acc")));
    }

    void drawsAndForgetsWhenClosed()
    {
        m_window->bridge().setNodeChosen(3, true);
        feed();
        QQuickItem *chart = nullptr;
        QTRY_VERIFY(chart = item(QStringLiteral("chart_0")));
        QQuickItem *plot = findItem(chart, QStringLiteral("plotMouse"));
        const auto redPixels = [this, plot] {
            const QImage image = m_window->grabWindow();
            const QRect area = plot->mapRectToScene(plot->boundingRect()).toRect() & image.rect();
            int count = 0;
            for (int y = area.top(); y <= area.bottom(); ++y) {
                for (int x = area.left(); x <= area.right(); ++x) {
                    const QColor color = image.pixelColor(x, y);
                    count += color.red() > color.green() + 60 && color.red() > color.blue() + 60;
                }
            }
            return count;
        };
        QTRY_VERIFY(redPixels() > 100); // the X channel
        m_window->close();
        feed();
        QCOMPARE(m_window->bridge().nodeCount(), 0);
        m_window->open();
        feed();
        QTRY_VERIFY(node(15));
        QVERIFY(isChosen(3));
    }
};

QTEST_MAIN(TestWirelessDashboard)
#include "tst_wireless_dashboard.moc"
