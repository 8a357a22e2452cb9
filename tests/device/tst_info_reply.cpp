#include <QTest>

#include "device/info_reply.h"
#include "support/frames.h"

namespace {

constexpr qsizetype kMegabyte = 1 << 20;

QList<QString> list(std::initializer_list<const char *> texts)
{
    QList<QString> result;
    for (const char *text : texts)
        result.append(QString::fromUtf8(text));
    return result;
}

} // namespace

class TestInfoReply : public QObject
{
    Q_OBJECT

private slots:
    void lines_data()
    {
        QTest::addColumn<QByteArray>("reply");
        QTest::addColumn<QList<QString>>("lines");
        const QByteArray packet = frames::packet(frames::fullRecord(1));
        const QByteArray broken = packet.chopped(1) + char(packet.back() ^ 1);
        const auto row = [](const char *name, const QByteArray &reply, std::initializer_list<const char *> lines) {
            QTest::newRow(name) << reply << list(lines);
        };
        row("nothing", {}, {});
        row("plain", "MZ221 V1.6\r\nbuild 2024\r\nOK\r\n", {"MZ221 V1.6", "build 2024", "OK"});
        row("lone CR, lone LF, no end", "A\rB\n\n\r\n  \nC", {"A", "B", "C"});
        row("utf-8 stays", "caf\xC3\xA9 \xE2\x82\xAC\n", {"caf\xC3\xA9 \xE2\x82\xAC"});
        row("packets around", packet + "MZ221\r\n" + packet + packet + "OK\r\n" + packet, {"MZ221", "OK"});
        row("packet inside a word", "MZ2" + packet + "21\r\n", {"MZ221"});
        row("packet with line ends inside", "MZ2" + frames::packet("\r\n\r\n") + "21\r\n", {"MZ221"});
        row("longest packet", frames::packet(QByteArray(2041, 'x')) + "OK", {"OK"});
        row("empty packet", frames::packet({}) + "OK", {"OK"});
        row("text as payload of a packet is data", frames::packet("MZ221\r\n") + "OK", {"OK"});
        row("tail of a packet before the text", QByteArray(30, '\x80') + "MZ221 V1\r\n", {"MZ221 V1"});
        row("head of a packet after the text", "MZ221\r\n" + packet.left(40), {"MZ221"});
        row("head of a packet with a readable piece", "OK\r\n" + packet.left(12) + "5 A?", {"OK"});
        row("what looks like the head of a packet before the text",
            QByteArray("\x5A\xA5\x40\0\0\0", 6) + "MZ221\r\nOK\r\n", {"MZ221", "OK"});
        row("damaged packet does not swallow the text", broken + "\r\nMZ221\r\n" + packet, {"MZ221"});
        row("start byte before a packet", "Z" + packet + "OK", {"ZOK"});
        row("a few bad characters", "model \x01KV040\xFF!\n", {"model  KV040 !"});
        row("tab is white space", "\t\tA\tB\n", {"\t\tA\tB"});
        row("readable end of 4", "\x01\x02\xFEUUID\n", {"UUID"});
        row("readable end of 3", "\x01\x02\xFEUID\n", {});
        row("exactly a quarter", QByteArray("\0abc", 4), {" abc"});
        row("more than a quarter, readable start", "MZ221\xFF\xFF\n", {});
        row("readable end that is blank", "\x01\x02\x03     \n", {});
    }
    void lines()
    {
        QFETCH(QByteArray, reply);
        QTEST(info_reply::lines(reply), "lines");
    }

    void longLinesAreCut()
    {
        const QString emoji = QString::fromUtf8("\xF0\x9F\x98\x80");
        const QByteArray text = QByteArray(255, 'a') + emoji.toUtf8() + QByteArray(kMegabyte, 'b');
        const QList<QString> lines = info_reply::lines(text + "\nnext");
        QCOMPARE(lines.size(), 2);
        QCOMPARE(lines[0], QString(255, u'a')); // half of a character is not kept
        QCOMPARE(info_reply::lines(QByteArray(300, 'a')).first().size(), 256);
    }

    void atMost64Lines()
    {
        QByteArray reply;
        for (int i = 0; i < 100; ++i)
            reply += "\xFF\xFF\n\nline " + QByteArray::number(i) + '\n';
        const QList<QString> lines = info_reply::lines(reply);
        QCOMPARE(lines.size(), 64);
        QCOMPARE(lines.last(), QStringLiteral("line 63"));
    }

    // Replies at the broker's limit, each of another kind of rubbish; a reply behind it must still be read.
    void megabytes_data()
    {
        QTest::addColumn<QByteArray>("reply");
        QTest::addColumn<int>("count"); // lines
        QTest::newRow("start bytes") << QByteArray(kMegabyte, '\x5A') << 1;
        QTest::newRow("zeros") << QByteArray(kMegabyte, '\0') << 0;
        QTest::newRow("broken bytes") << QByteArray(kMegabyte, '\xFF') << 0;
        QTest::newRow("line ends") << QByteArray(kMegabyte, '\n') << 0;
        const QByteArray packet = frames::packet(frames::fullRecord(1));
        QTest::newRow("good packets") << packet.repeated(kMegabyte / packet.size()) << 0;
        // Each header announces the longest packet, and each of them is wrong.
        QTest::newRow("headers") << QByteArray("\x5A\xA5\xF9\x07\x00\x00", 6).repeated(kMegabyte / 6) << 0;
    }
    void megabytes()
    {
        QFETCH(QByteArray, reply);
        QFETCH(int, count);
        QCOMPARE(info_reply::lines(reply).size(), qsizetype(count));
        QCOMPARE(info_reply::lines(reply + "\r\nMZ221\r\n").size(), qsizetype(count) + 1);
    }
};

QTEST_APPLESS_MAIN(TestInfoReply)
#include "tst_info_reply.moc"
