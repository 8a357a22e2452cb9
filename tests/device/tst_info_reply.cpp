#include <QTest>

#include "device/info_reply.h"
#include "support/frames.h"

namespace {

constexpr qsizetype kMegabyte = 1 << 20;

} // namespace

using namespace Qt::StringLiterals;

class TestInfoReply : public QObject
{
    Q_OBJECT

private slots:
    void lines()
    {
        const QByteArray packet = frames::packet(frames::fullRecord(1));
        const QByteArray broken = packet.chopped(1) + char(packet.back() ^ 1);
        const auto row = [](const char *name, const QByteArray &reply, const QStringList &lines) {
            QVERIFY2(QStringList(info_reply::lines(reply)) == lines, name);
        };
        row("nothing", {}, {});
        row("plain", "MZ221 V1.6\r\nbuild 2024\r\nOK\r\n", {u"MZ221 V1.6"_s, u"build 2024"_s, u"OK"_s});
        row("lone CR, lone LF, no end", "A\rB\n\n\r\n  \nC", {u"A"_s, u"B"_s, u"C"_s});
        row("packets around", packet + "MZ221\r\n" + packet + packet + "OK\r\n" + packet, {u"MZ221"_s, u"OK"_s});
        row("packet inside a word", "MZ2" + packet + "21\r\n", {u"MZ221"_s});
        row("longest packet", frames::packet(QByteArray(2041, 'x')) + "OK", {u"OK"_s});
        row("head of a packet after the text", "MZ221\r\n" + packet.left(40), {u"MZ221"_s});
        row("head of a packet with a readable piece", "OK\r\n" + packet.left(12) + "5 A?", {u"OK"_s});
        row("what looks like the head of a packet before the text",
            QByteArray("\x5A\xA5\x40\0\0\0", 6) + "MZ221\r\nOK\r\n", {u"MZ221"_s, u"OK"_s});
        row("damaged packet does not swallow the text", broken + "\r\nMZ221\r\n" + packet, {u"MZ221"_s});
        row("start byte before a packet", "Z" + packet + "OK", {u"ZOK"_s});
        row("a few bad characters", "model \x01KV040\xFF!\n", {u"model  KV040 !"_s});
        row("tab is white space", "\t\tA\tB\n", {u"\t\tA\tB"_s});
        row("readable end of 4", "\x01\x02\xFEUUID\n", {u"UUID"_s});
        row("readable end of 3", "\x01\x02\xFEUID\n", {});
        row("byte order mark behind noise", "\xFF\xFF\xFF\xEF\xBB\xBFKV999\n", {u"KV999"_s});
        row("exactly a quarter", QByteArray("\0abc", 4), {u" abc"_s});
        row("more than a quarter, readable start", "MZ221\xFF\xFF\n", {});
        row("readable end that is blank", "\x01\x02\x03     \n", {});
    }

    void lateAnswersAreNoModel()
    {
        const QStringList answered{u" OK "_s, u"ERROR"_s, u"MZ221"_s, u"OK"_s};
        QCOMPARE(QStringList(info_reply::withoutLateAnswers(answered)), QStringList({u"MZ221"_s, u"OK"_s}));
        QVERIFY(info_reply::withoutLateAnswers({u"OK"_s}).isEmpty());
    }

    void longLinesAreCut()
    {
        const QString emoji = QString::fromUtf8("\xF0\x9F\x98\x80");
        const QByteArray text = QByteArray(255, 'a') + emoji.toUtf8() + QByteArray(kMegabyte, 'b');
        const QList<QString> lines = info_reply::lines(text + "\nnext");
        QCOMPARE(lines, QStringList({QString(255, u'a'), u"next"_s})); // half of a character is not kept
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

    // Replies at the broker's limit, each of another kind of rubbish; a line behind it must still be read.
    void megabytes()
    {
        const QByteArray packet = frames::packet(frames::fullRecord(1));
        // Each header announces the longest packet, and each of them is wrong.
        const QByteArray header("\x5A\xA5\xF9\x07\x00\x00", 6);
        for (const QByteArray &piece : {QByteArray("\x5A"), QByteArray(1, '\0'), QByteArray("\xFF"), packet, header}) {
            const QByteArray reply = piece.repeated(kMegabyte / piece.size());
            const int count = piece == "\x5A" ? 1 : 0; // start bytes are readable
            QVERIFY2(info_reply::lines(reply).size() == count, piece.toHex());
            QVERIFY2(info_reply::lines(reply + "\r\nMZ221\r\n").size() == count + 1, piece.toHex());
        }
    }
};

QTEST_APPLESS_MAIN(TestInfoReply)
#include "tst_info_reply.moc"
