#include <QTest>

#include "ui/status_text.h"

class TestStatusText : public QObject
{
    Q_OBJECT

private slots:
    void choosesTheStatus_data();
    void choosesTheStatus();
    void formatsTraffic();
    void describesTheConnection_data();
    void describesTheConnection();
    void summarisesTheGateway();
};

void TestStatusText::choosesTheStatus_data()
{
    QTest::addColumn<bool>("connected");
    QTest::addColumn<bool>("infoReady");
    QTest::addColumn<bool>("resolved");
    QTest::addColumn<bool>("deferred");
    QTest::addColumn<QString>("text");
    QTest::newRow("closed") << false << false << false << false << "Unconnected...";
    QTest::newRow("closed wins") << false << true << true << true << "Unconnected...";
    QTest::newRow("pending") << true << false << false << false << "Product info pending...";
    QTest::newRow("deferred") << true << false << false << true << "Product info deferred during live stream.";
    QTest::newRow("known") << true << true << true << false << "Connected...";
    QTest::newRow("unknown") << true << true << false << false << "Using fallback product profile.";
}

void TestStatusText::choosesTheStatus()
{
    QFETCH(bool, connected);
    QFETCH(bool, infoReady);
    QFETCH(bool, resolved);
    QFETCH(bool, deferred);
    StreamSnapshot snapshot;
    snapshot.link_connected = connected;
    snapshot.product_info_ready = infoReady;
    snapshot.product_profile_resolved = resolved;
    QTEST(status_text::statusBar(snapshot, deferred), "text");
}

void TestStatusText::formatsTraffic()
{
    LinkStatistics statistics;
    QCOMPARE(status_text::traffic(statistics), QStringLiteral("T:0.00KB/s(0%) R:0.00KB/s(0%)"));
    statistics.txBytesLastSecond = 512;
    statistics.txLoadPercent = 4;
    statistics.rxBytesLastSecond = 32799;
    statistics.rxLoadPercent = 35;
    QCOMPARE(status_text::traffic(statistics), QStringLiteral("T:0.50KB/s(4%) R:32.03KB/s(35%)"));
}

void TestStatusText::describesTheConnection_data()
{
    QTest::addColumn<int>("family");
    QTest::addColumn<QByteArray>("tags");
    QTest::addColumn<bool>("streaming");
    QTest::addColumn<bool>("settled");
    QTest::addColumn<QString>("text");
    const QString start = QStringLiteral("[Serial]\n/dev/ttyUSB0 115200\nProtocol: ");
    const QString end = QStringLiteral("\nFrameRate: 400 Hz");
    QTest::newRow("building") << 4 << QByteArray() << false << false << "Building connection...";
    QTest::newRow("no stream") << 4 << QByteArray() << false << true << "Connected.\nNo frame stream detected.";
    QTest::newRow("record") << 0 << QByteArray("\x91") << true << true
                            << start + QLatin1String("Single node (0x91)") + end;
    QTest::newRow("batch") << 2 << QByteArray("\x63") << true << false << start + QLatin1String("Gateway (0x63)") + end;
    QTest::newRow("items") << 4 << QByteArray("\x90\xA0\xD1") << true << true
                           << start + QLatin1String("Items 90 A0 D1") + end;
}

void TestStatusText::describesTheConnection()
{
    QFETCH(int, family);
    QFETCH(QByteArray, tags);
    QFETCH(bool, streaming);
    QFETCH(bool, settled);
    DecodedFrame frame;
    frame.family = family;
    frame.item_tags = tags;
    QTEST(status_text::connectionPanel(QStringLiteral("/dev/ttyUSB0"), 115200, frame, 400, streaming, settled), "text");
}

void TestStatusText::summarisesTheGateway()
{
    QCOMPARE(status_text::gatewaySummary(7, 16), QStringLiteral("[Wireless]\nDONGLE ID:7\nTOTAL OF NODE:16"));
}

QTEST_APPLESS_MAIN(TestStatusText)

#include "tst_status_text.moc"
