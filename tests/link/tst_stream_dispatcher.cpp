#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include "app/app_log.h"
#include "link/stream_dispatcher.h"

namespace {

DecodedFrame frameOf(int family, const QList<quint8> &ids, quint64 seq = 100)
{
    DecodedFrame frame;
    frame.seq = seq;
    frame.family = family;
    frame.item_tags = QByteArray(1, char(0x91));
    for (const quint8 id : ids) {
        NodeSnapshot node;
        node.sample.id = id;
        node.has_quat = true;
        frame.nodes.append(node);
    }
    return frame;
}

QString ids(const QList<node_data_t> &nodes)
{
    QStringList text;
    for (const node_data_t &node : nodes)
        text += QString::number(node.id);
    return text.join(u',');
}

/// A dispatcher and, in order, the signals that it has emitted.
struct Stream
{
    Stream()
    {
        QObject::connect(&dispatcher, &StreamDispatcher::streamSnapshotChanged, &dispatcher,
                         [this](const StreamSnapshot &s) {
                             signalled += QStringLiteral("snapshot");
                             matches = matches && s.seq == dispatcher.snapshot().seq
                                       && s.selected_node_index == dispatcher.snapshot().selected_node_index;
                         });
        QObject::connect(&dispatcher, &StreamDispatcher::selectedNodeChanged, &dispatcher,
                         [this](const node_data_t &n) { signalled += QStringLiteral("selected %1").arg(n.id); });
        QObject::connect(&dispatcher, &StreamDispatcher::singleNodeFrame, &dispatcher,
                         [this](const node_data_t &n) { signalled += QStringLiteral("single %1").arg(n.id); });
        QObject::connect(&dispatcher, &StreamDispatcher::gatewayBatch62, &dispatcher,
                         [this](const QList<node_data_t> &n) { signalled += QStringLiteral("62 [%1]").arg(ids(n)); });
        QObject::connect(&dispatcher, &StreamDispatcher::gatewayBatch63, &dispatcher,
                         [this](const QList<node_data_t> &n, unsigned int ms) {
                             signalled += QStringLiteral("63 [%1] @%2").arg(ids(n)).arg(ms);
                         });
    }
    /// The signals since the last call.
    QStringList taken() { return std::exchange(signalled, {}); }

    StreamDispatcher dispatcher;
    QStringList signalled;
    bool matches = true; ///< each emitted snapshot was the current one
};

/// The log's lines without their time stamps.
QStringList logLines()
{
    QFile file(QStringLiteral("debug.log"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QStringList lines = QString::fromUtf8(file.readAll()).split(QStringLiteral("\r\n"), Qt::SkipEmptyParts);
    for (QString &line : lines)
        line.remove(0, int(qstrlen("(yyyy-MM-dd hh:mm:ss) ")));
    return lines;
}

} // namespace

class TestStreamDispatcher : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void families_data();
    void families();
    void frameFacts();
    void clampsTheSelection_data();
    void clampsTheSelection();
    void emptyFrameClearsTheSelection();
    void selectingWithoutNodes();
    void logsTheFirstFiveFrames();
    void settersTellChangesOnly();
    void clearKeepsTheLink();
    void receiverThatSelects();

private:
    QTemporaryDir m_folder;
};

void TestStreamDispatcher::initTestCase()
{
    QVERIFY(QDir::setCurrent(m_folder.path()));
}

void TestStreamDispatcher::init()
{
    QFile::remove(QStringLiteral("debug.log"));
}

void TestStreamDispatcher::families_data()
{
    QTest::addColumn<int>("family");
    QTest::addColumn<QList<quint8>>("nodes");
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<QString>("role");
    const auto row = [](const char *name, int family, const QList<quint8> &nodes, const QStringList &expected,
                        const char *role) {
        QTest::newRow(name) << family << nodes << expected << QString::fromLatin1(role);
    };
    const QString snapshot = QStringLiteral("snapshot");
    const QString selected = QStringLiteral("selected 7");
    const QString single = QStringLiteral("single 7");
    row("0", 0, {7}, {selected, single, snapshot}, "DirectSingleNode");
    row("1", 1, {7, 8}, {selected, QStringLiteral("62 [7,8]"), snapshot}, "WirelessGateway");
    row("2", 2, {7, 8}, {selected, QStringLiteral("63 [7,8] @4000000000"), snapshot}, "WirelessGateway");
    row("3", 3, {7}, {selected, single, snapshot}, "WirelessGateway");
    row("4", 4, {7}, {selected, single, snapshot}, "RemoteWirelessNode");
    row("0, empty", 0, {}, {snapshot}, "DirectSingleNode");
    row("1, empty", 1, {}, {QStringLiteral("62 []"), snapshot}, "WirelessGateway");
    row("2, empty", 2, {}, {QStringLiteral("63 [] @4000000000"), snapshot}, "WirelessGateway");
    row("4, empty", 4, {}, {snapshot}, "RemoteWirelessNode");
    row("outside the range", 77, {7}, {selected, single, snapshot}, "RemoteWirelessNode");
}

void TestStreamDispatcher::families()
{
    QFETCH(const int, family);
    QFETCH(const QList<quint8>, nodes);
    QFETCH(const QStringList, expected);
    QFETCH(const QString, role);
    Stream stream;
    stream.dispatcher.setTransportRole(TransportRole::RemoteWirelessNode);
    stream.taken();
    DecodedFrame frame = frameOf(family, nodes);
    frame.gw_ts_ms = 4000000000U;
    stream.dispatcher.publishFrame(frame);
    QCOMPARE(stream.taken(), expected);
    QCOMPARE(product_profile::toString(stream.dispatcher.snapshot().transport_role), role);
    QCOMPARE(stream.dispatcher.snapshot().frame_family, family);
    QVERIFY(stream.matches);
    QCOMPARE(logLines(), QStringList{QStringLiteral("[I]: stream transport_role=RemoteWirelessNode")});
}

void TestStreamDispatcher::frameFacts()
{
    Stream stream;
    const StreamDispatcher &dispatcher = stream.dispatcher;
    QCOMPARE(product_profile::toString(dispatcher.snapshot().transport_role), QStringLiteral("Unknown"));
    QCOMPARE(dispatcher.snapshot().frame_family, 4);

    DecodedFrame frame = frameOf(1, {5, 250}, quint64(1) << 40);
    frame.gwid = 200;
    frame.gw_ts_ms = 9;
    frame.nodes[1].has_euler = true;
    stream.dispatcher.setSelectedNodeIndex(1); // without nodes the selection stays at the first
    stream.dispatcher.publishFrame(frame);
    stream.dispatcher.setSelectedNodeIndex(1);
    const StreamSnapshot &snapshot = dispatcher.snapshot();
    QVERIFY(snapshot.has_frame_items);
    QCOMPARE(snapshot.seq, quint64(1) << 40);
    QCOMPARE(snapshot.gwid, quint8(200));
    QCOMPARE(snapshot.gw_ts_ms, 9U);
    QCOMPARE(snapshot.node_ids, (QList<quint8>{5, 250}));
    QCOMPARE(ids(dispatcher.currentNodes()), QStringLiteral("5,250"));
    QCOMPARE(dispatcher.currentFrame().seq, snapshot.seq);
    QCOMPARE(dispatcher.currentSelectedNode().id, quint8(250));
    QCOMPARE(dispatcher.currentSelectedSnapshot().sample.id, quint8(250));
    QVERIFY(dispatcher.currentSelectedSnapshot().has_euler);

    frame.item_tags.clear();
    stream.dispatcher.publishFrame(frame);
    QVERIFY(!dispatcher.snapshot().has_frame_items);
}

void TestStreamDispatcher::clampsTheSelection_data()
{
    QTest::addColumn<int>("requested");
    QTest::addColumn<int>("effective");
    QTest::newRow("first") << 1 << 1;
    QTest::newRow("last") << 2 << 2;
    QTest::newRow("behind the end") << 7 << 2;
    QTest::newRow("largest") << std::numeric_limits<int>::max() << 2;
    QTest::newRow("negative") << -1 << 0;
    QTest::newRow("smallest") << std::numeric_limits<int>::min() << 0;
}

void TestStreamDispatcher::clampsTheSelection()
{
    QFETCH(const int, requested);
    QFETCH(const int, effective);
    Stream stream;
    stream.dispatcher.publishFrame(frameOf(1, {10, 11, 12}));
    stream.taken();
    stream.dispatcher.setSelectedNodeIndex(requested);
    const int id = 10 + effective;
    QCOMPARE(stream.taken(), (QStringList{QStringLiteral("selected %1").arg(id), QStringLiteral("snapshot")}));
    QCOMPARE(stream.dispatcher.snapshot().selected_node_index, effective);
    QCOMPARE(logLines(), QStringList{QStringLiteral("[D]: stream selected_node requested=%1 effective=%2 current=%3")
                                         .arg(requested)
                                         .arg(effective)
                                         .arg(id)});
    // The same place again is no change; a shorter frame clamps it anew.
    stream.dispatcher.setSelectedNodeIndex(effective);
    QCOMPARE(stream.taken(), QStringList{});
    stream.dispatcher.publishFrame(frameOf(2, {20}));
    QCOMPARE(stream.dispatcher.snapshot().selected_node_index, 0);
    QCOMPARE(stream.dispatcher.currentSelectedNode().id, quint8(20));
    // updateSelectedNode() says which node it is, but neither logs nor sends the snapshot.
    stream.taken();
    stream.dispatcher.updateSelectedNode();
    QCOMPARE(stream.taken(), QStringList{QStringLiteral("selected 20")});
    QCOMPARE(logLines().size(), 1);
}

void TestStreamDispatcher::emptyFrameClearsTheSelection()
{
    Stream stream;
    stream.dispatcher.publishFrame(frameOf(1, {10, 11, 12}));
    stream.dispatcher.setSelectedNodeIndex(2);
    QVERIFY(stream.dispatcher.hasCurrentSelectedNode());
    stream.taken();
    stream.dispatcher.publishFrame(frameOf(4, {}));
    QCOMPARE(stream.taken(), QStringList{QStringLiteral("snapshot")});
    QVERIFY(!stream.dispatcher.hasCurrentSelectedNode());
    QVERIFY(!stream.dispatcher.snapshot().has_selected_node);
    QCOMPARE(stream.dispatcher.snapshot().selected_node_index, 0);
    QCOMPARE(stream.dispatcher.currentSelectedNode().id, quint8(0));
    QVERIFY(!stream.dispatcher.currentSelectedSnapshot().has_quat);
    QVERIFY(stream.dispatcher.snapshot().node_ids.isEmpty());
}

void TestStreamDispatcher::selectingWithoutNodes()
{
    Stream stream;
    stream.dispatcher.setSelectedNodeIndex(3);
    QCOMPARE(stream.taken(), QStringList{QStringLiteral("snapshot")});
    QCOMPARE(logLines(), QStringList{QStringLiteral("[D]: stream selected_node requested=3 effective=0 current=none")});
    stream.dispatcher.updateSelectedNode();
    QCOMPARE(stream.taken(), QStringList{});
}

void TestStreamDispatcher::logsTheFirstFiveFrames()
{
    Stream stream;
    DecodedFrame batch = frameOf(2, {10, 200}, 1);
    batch.gwid = 9;
    batch.gw_ts_ms = 4000000000U;
    stream.dispatcher.publishFrame(batch);
    stream.dispatcher.publishFrame(frameOf(4, {}, 2));
    for (quint64 seq = 3; seq <= 8; ++seq)
        stream.dispatcher.publishFrame(frameOf(0, {7}, seq));
    const QString direct = QStringLiteral("[D]: stream frame seq=%1 family=0 nodes=1 selected=7 gwid=0 gw_ts_ms=0 "
                                          "transport=DirectSingleNode");
    QCOMPARE(logLines(), (QStringList{QStringLiteral("[D]: stream frame seq=1 family=2 nodes=2 selected=10 gwid=9 "
                                                     "gw_ts_ms=4000000000 transport=WirelessGateway"),
                                      QStringLiteral("[D]: stream frame seq=2 family=4 nodes=0 selected=none gwid=0 "
                                                     "gw_ts_ms=0 transport=WirelessGateway"),
                                      direct.arg(3), direct.arg(4), direct.arg(5)}));
}

void TestStreamDispatcher::settersTellChangesOnly()
{
    Stream stream;
    const auto setAll = [&stream](bool value, TransportRole role, unsigned int rate) {
        stream.dispatcher.setLinkConnected(value);
        stream.dispatcher.setProductInfoReady(value);
        stream.dispatcher.setProductProfileResolved(value);
        stream.dispatcher.setTransportRole(role);
        stream.dispatcher.setMeasuredFrameRate(rate);
        stream.dispatcher.setSelectedNodeIndex(0);
    };
    setAll(false, TransportRole::Unknown, 0);
    QCOMPARE(stream.taken(), QStringList{});
    QCOMPARE(logLines(), QStringList{});
    setAll(true, TransportRole::WirelessGateway, 400);
    QCOMPARE(stream.taken(), QStringList(5, QStringLiteral("snapshot")));
    QCOMPARE(logLines(), (QStringList{QStringLiteral("[I]: stream link_connected=true"),
                                      QStringLiteral("[I]: stream product_info_ready=true"),
                                      QStringLiteral("[I]: stream product_profile_resolved=true"),
                                      QStringLiteral("[I]: stream transport_role=WirelessGateway")}));
    setAll(true, TransportRole::WirelessGateway, 400);
    QCOMPARE(stream.taken(), QStringList{});
    QCOMPARE(logLines().size(), 4);
    const StreamSnapshot &snapshot = stream.dispatcher.snapshot();
    QVERIFY(snapshot.link_connected && snapshot.product_info_ready && snapshot.product_profile_resolved);
    QCOMPARE(snapshot.measured_frame_rate, 400U);
    stream.dispatcher.setLinkConnected(false);
    QCOMPARE(logLines().last(), QStringLiteral("[I]: stream link_connected=false"));
}

void TestStreamDispatcher::clearKeepsTheLink()
{
    Stream stream;
    stream.dispatcher.setLinkConnected(true);
    stream.dispatcher.setProductInfoReady(true);
    stream.dispatcher.setProductProfileResolved(true);
    stream.dispatcher.setMeasuredFrameRate(100);
    stream.dispatcher.publishFrame(frameOf(1, {10, 11}));
    stream.dispatcher.setSelectedNodeIndex(1);
    stream.taken();
    stream.dispatcher.clear();
    QCOMPARE(stream.taken(), QStringList{QStringLiteral("snapshot")});
    QCOMPARE(logLines().last(), QStringLiteral("[I]: stream clear link_connected=true"));
    const StreamSnapshot &snapshot = stream.dispatcher.snapshot();
    QVERIFY(snapshot.link_connected);
    QVERIFY(!snapshot.product_info_ready && !snapshot.product_profile_resolved && !snapshot.has_frame_items
            && !snapshot.has_selected_node);
    QCOMPARE(product_profile::toString(snapshot.transport_role), QStringLiteral("Unknown"));
    QCOMPARE(snapshot.frame_family, 4);
    QCOMPARE(snapshot.seq, quint64(0));
    QCOMPARE(snapshot.selected_node_index, 0);
    QCOMPARE(snapshot.measured_frame_rate, 0U);
    QVERIFY(snapshot.node_ids.isEmpty());
    QVERIFY(stream.dispatcher.currentNodes().isEmpty());
    QVERIFY(stream.dispatcher.currentFrame().nodes.isEmpty());
    QVERIFY(!stream.dispatcher.hasCurrentSelectedNode());
    QCOMPARE(stream.dispatcher.currentSelectedNode().id, quint8(0));
}

void TestStreamDispatcher::receiverThatSelects()
{
    // A view may choose another node or clear the stream while it is told of a frame.
    Stream stream;
    bool done = false;
    QObject::connect(&stream.dispatcher, &StreamDispatcher::gatewayBatch62, &stream.dispatcher, [&] {
        if (!std::exchange(done, true))
            stream.dispatcher.setSelectedNodeIndex(1);
        else
            stream.dispatcher.clear();
    });
    stream.dispatcher.publishFrame(frameOf(1, {10, 11}));
    QCOMPARE(stream.dispatcher.currentSelectedNode().id, quint8(11));
    stream.dispatcher.publishFrame(frameOf(1, {10, 11}));
    QVERIFY(!stream.dispatcher.hasCurrentSelectedNode());
    QVERIFY(stream.matches);
}

QTEST_GUILESS_MAIN(TestStreamDispatcher)
#include "tst_stream_dispatcher.moc"
