#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include "link/stream_dispatcher.h"
#include "support/files.h"

namespace {

DecodedFrame frameOf(int family, const QList<quint8> &ids, quint64 seq = 100)
{
    DecodedFrame frame;
    frame.seq = seq;
    frame.family = family;
    frame.item_tags = QByteArray(1, char(0x91));
    frame.gw_ts_ms = 4000000000U;
    for (const quint8 id : ids) {
        NodeSnapshot &node = frame.nodes.emplace_back();
        node.sample.id = id;
        node.has_quat = true;
    }
    return frame;
}

/// A dispatcher and the signals that it has emitted, in order.
struct Stream : StreamDispatcher
{
    using Self = StreamDispatcher;
    using Nodes = QList<node_data_t>;

    Stream()
    {
        connect(this, &Self::streamSnapshotChanged, this, [this](const StreamSnapshot &s) {
            told += QLatin1String("snapshot ");
            matches = matches && s.seq == snapshot().seq && s.selected_node_index == snapshot().selected_node_index;
        });
        connect(this, &Self::selectedNodeChanged, this, [this](const node_data_t &n) { tell("selected", {n}); });
        connect(this, &Self::singleNodeFrame, this, [this](const node_data_t &n) { tell("single", {n}); });
        connect(this, &Self::gatewayBatch62, this, [this](const Nodes &n) { tell("62", n); });
        connect(this, &Self::gatewayBatch63, this, [this](const Nodes &n, unsigned int ms) {
            tell("63", n);
            told += QString::number(ms) + u' ';
        });
    }
    void tell(const char *name, const Nodes &nodes)
    {
        told += QLatin1String(name);
        for (const node_data_t &node : nodes)
            told += u':' + QString::number(node.id);
        told += u' ';
    }
    /// The signals since the last call.
    QString taken() { return std::exchange(told, {}).trimmed(); }
    /// The snapshot, without the role: five flags, family, selection, rate and the facts of the last frame.
    QString facts() const
    {
        const StreamSnapshot &s = snapshot();
        QString text;
        QTextStream(&text) << s.link_connected << s.product_info_ready << s.product_profile_resolved
                           << s.has_frame_items << s.has_selected_node << ' ' << s.frame_family
                           << " selected=" << s.selected_node_index << " rate=" << s.measured_frame_rate
                           << " seq=" << s.seq << " gw" << s.gwid << '@' << s.gw_ts_ms << " ids=" << s.node_ids.size();
        return text;
    }

    QString told;
    bool matches = true; ///< each emitted snapshot was the current one
};

qsizetype logLines()
{
    return readFile(QStringLiteral("debug.log")).count('\n');
}

} // namespace

class TestStreamDispatcher : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(QDir::setCurrent(m_folder.path())); }
    void init() { QFile::remove(QStringLiteral("debug.log")); }

    void families()
    {
        using Row = std::tuple<int, QList<quint8>, const char *>; // last the role, which was RemoteWirelessNode
        for (const auto &[family, nodes, expected] : {
                 Row{0, {7}, "selected:7 single:7 snapshot DirectSingleNode"},
                 Row{1, {7, 8}, "selected:7 62:7:8 snapshot WirelessGateway"},
                 Row{2, {7, 8}, "selected:7 63:7:8 4000000000 snapshot WirelessGateway"},
                 Row{3, {7}, "selected:7 single:7 snapshot WirelessGateway"},
                 Row{4, {7}, "selected:7 single:7 snapshot RemoteWirelessNode"},
                 Row{0, {}, "snapshot DirectSingleNode"},
                 Row{1, {}, "62 snapshot WirelessGateway"},
                 Row{2, {}, "63 4000000000 snapshot WirelessGateway"},
                 Row{77, {7}, "selected:7 single:7 snapshot RemoteWirelessNode"},
             }) {
            Stream stream;
            stream.setTransportRole(TransportRole::RemoteWirelessNode);
            stream.taken();
            stream.publishFrame(frameOf(family, nodes));
            const QString role = product_profile::toString(stream.snapshot().transport_role);
            QCOMPARE(stream.taken() + u' ' + role, QLatin1String(expected));
            QVERIFY(stream.matches);
        }
    }

    void clampsTheSelection()
    {
        constexpr int kMax = std::numeric_limits<int>::max();
        for (const auto &[requested, effective] : {std::pair(1, 1), {2, 2}, {3, 2}, {kMax, 2}, {-kMax - 1, 0}}) {
            Stream stream;
            stream.publishFrame(frameOf(1, {10, 11, 12}));
            stream.taken();
            stream.setSelectedNodeIndex(requested);
            QCOMPARE(stream.taken(), QStringLiteral("selected:%1 snapshot").arg(10 + effective));
            QCOMPARE(stream.snapshot().selected_node_index, effective);
            // The same index again is not a change; a shorter frame clamps it again.
            stream.setSelectedNodeIndex(effective);
            QCOMPARE(stream.taken(), QString());
            stream.publishFrame(frameOf(2, {20}));
            QCOMPARE(stream.snapshot().selected_node_index, 0);
            QCOMPARE(stream.currentSelectedNode().id, quint8(20));
            // updateSelectedNode() says which node it is, but does not send the snapshot.
            stream.taken();
            stream.updateSelectedNode();
            QCOMPARE(stream.taken(), QStringLiteral("selected:20"));
        }
    }

    void emptyFrameClearsTheSelection()
    {
        Stream stream;
        stream.publishFrame(frameOf(1, {10, 11, 12}));
        stream.setSelectedNodeIndex(2);
        stream.taken();
        stream.publishFrame(frameOf(4, {}));
        QCOMPARE(stream.taken(), QStringLiteral("snapshot"));
        QVERIFY(!stream.hasCurrentSelectedNode());
        QCOMPARE(stream.facts(), QStringLiteral("00010 4 selected=0 rate=0 seq=100 gw0@4000000000 ids=0"));
        QCOMPARE(stream.currentSelectedNode().id, quint8(0));
        QVERIFY(!stream.currentSelectedSnapshot().has_quat);
        // There is nothing left to select from.
        stream.setSelectedNodeIndex(3);
        QCOMPARE(stream.taken(), QStringLiteral("snapshot"));
        stream.updateSelectedNode();
        QCOMPARE(stream.taken(), QString());
    }

    void logsTheFirstFiveFrames()
    {
        Stream stream;
        for (quint64 seq = 1; seq <= 8; ++seq)
            stream.publishFrame(frameOf(0, {}, seq));
        QCOMPARE(logLines(), 5);
    }

    void reportsChangesOnlyAndClearKeepsTheLink()
    {
        Stream stream;
        const std::pair<bool, const char *> rounds[] = {
            {false, ""}, {true, "snapshot snapshot snapshot snapshot"}, {true, ""}};
        for (const auto &[value, told] : rounds) {
            stream.setLinkConnected(value);
            stream.setProductInfoReady(value);
            stream.setProductProfileResolved(value);
            stream.setMeasuredFrameRate(value ? 400 : 0);
            stream.setSelectedNodeIndex(0);
            QCOMPARE(stream.taken(), QLatin1String(told));
        }
        stream.setTransportRole(TransportRole::Unknown);
        QCOMPARE(stream.taken(), QString());
        QCOMPARE(logLines(), 3);

        DecodedFrame frame = frameOf(1, {5, 250}, quint64(1) << 40);
        frame.gwid = 200;
        frame.nodes[1].has_euler = true;
        stream.publishFrame(frame);
        stream.setSelectedNodeIndex(1);
        QCOMPARE(stream.facts(), QStringLiteral("11111 1 selected=1 rate=400 seq=1099511627776 "
                                                "gw200@4000000000 ids=2"));
        QCOMPARE(stream.snapshot().node_ids, (QList<quint8>{5, 250}));
        QCOMPARE(stream.currentNodes().last().id, quint8(250));
        QCOMPARE(stream.currentFrame().seq, stream.snapshot().seq);
        QCOMPARE(stream.currentSelectedNode().id, quint8(250));
        QVERIFY(stream.currentSelectedSnapshot().sample.id == 250 && stream.currentSelectedSnapshot().has_euler);
        frame.item_tags.clear();
        stream.publishFrame(frame);
        QVERIFY(!stream.snapshot().has_frame_items);

        stream.taken();
        stream.clear();
        QCOMPARE(stream.taken(), QStringLiteral("snapshot"));
        QCOMPARE(stream.facts(), QStringLiteral("10000 4 selected=0 rate=0 seq=0 gw0@0 ids=0"));
        QVERIFY(stream.snapshot().transport_role == TransportRole::Unknown);
        QVERIFY(stream.currentNodes().isEmpty() && stream.currentFrame().nodes.isEmpty());
        QVERIFY(!stream.hasCurrentSelectedNode());
        QCOMPARE(stream.currentSelectedNode().id, quint8(0));
    }

    void receiverThatSelects()
    {
        // A view may choose another node or clear the stream while it handles a frame.
        Stream stream;
        bool done = false;
        connect(&stream, &StreamDispatcher::gatewayBatch62, &stream, [&] {
            if (!std::exchange(done, true))
                stream.setSelectedNodeIndex(1);
            else
                stream.clear();
        });
        stream.publishFrame(frameOf(1, {10, 11}));
        QCOMPARE(stream.currentSelectedNode().id, quint8(11));
        stream.publishFrame(frameOf(1, {10, 11}));
        QVERIFY(!stream.hasCurrentSelectedNode());
        QVERIFY(stream.matches);
    }

private:
    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(TestStreamDispatcher)
#include "tst_stream_dispatcher.moc"
