#include <QRandomGenerator>
#include <QTest>

#include <vector>

#include "device/info_reply.h"
#include "support/frames.h"

namespace {

constexpr qsizetype kMegabyte = 1 << 20;
constexpr qsizetype kWindowBytes = 1800; // in an information window at 115200 baud

/// What a receiver at another baud rate makes of bytes sent with `idleBits` in between.
QByteArray resampled(const QByteArray &sent, double rateRatio, int idleBits)
{
    std::vector<bool> line(20, true);
    for (const char byte : sent) {
        line.push_back(false);
        for (int bit = 0; bit < 8; ++bit)
            line.push_back((quint8(byte) >> bit & 1) != 0);
        line.insert(line.end(), std::size_t(1 + idleBits), true);
    }
    QByteArray received;
    const auto level = [&line](double time) { return line[std::size_t(time)]; };
    const double step = 1.0 / rateRatio; // length of a received bit in sent bits
    for (double time = 0.5; time + 10.0 * step < double(line.size());) {
        if (level(time)) {
            time += 0.25;
            continue;
        }
        quint8 byte = 0;
        for (int bit = 0; bit < 8; ++bit)
            byte = quint8(byte | (level(time + (bit + 1.4) * step) ? 1U << bit : 0U));
        received += char(byte);
        time += 9.4 * step;
        while (time < double(line.size()) && !level(time)) // a broken stop bit: continue at the next edge
            time += 0.25;
    }
    return received;
}

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
        row("something like a packet header before the text", QByteArray("\x5A\xA5\x40\0\0\0", 6) + "MZ221\r\nOK\r\n",
            {u"MZ221"_s, u"OK"_s});
        row("damaged packet does not swallow the text", broken + "\r\nMZ221\r\n" + packet, {u"MZ221"_s});
        row("start byte before a packet", "Z" + packet + "OK", {u"ZOK"_s});
        row("a few bad characters", "model \x01KV040\xFF!\n", {u"model  KV040 !"_s});
        row("tab is white space", "\t\tA\tB\n", {u"\t\tA\tB"_s});
        row("readable end of 4", "\x01\x02\xFEUUID\n", {u"UUID"_s});
        row("readable end of 3", "\x01\x02\xFEUID\n", {});
        row("byte order mark after noise", "\xFF\xFF\xFF\xEF\xBB\xBFKV999\n", {u"KV999"_s});
        row("exactly a quarter", QByteArray("\0abc", 4), {u" abc"_s});
        row("more than a quarter, readable start", "MZ221\xFF\xFF\n", {});
        row("readable end that is blank", "\x01\x02\x03     \n", {});
    }

    void noiseIsNotADevice()
    {
        QRandomGenerator random(14);
        const auto uniform = [&random](qsizetype size) {
            QByteArray bytes(size, '\0');
            for (char &byte : bytes)
                byte = char(random.bounded(256));
            return bytes;
        };
        const auto isTaken = [](const QByteArray &reply) {
            return info_reply::kindOf(reply) != info_reply::Kind::Noise && !info_reply::lines(reply).isEmpty();
        };
        int taken = 0;
        for (int i = 0; i < 1000; ++i)
            taken += isTaken(uniform(kWindowBytes)) ? 1 : 0;
        QCOMPARE(taken, 0);
        const QByteArray info = "MZ221 V1.6\r\nbuild 2026-03-02\r\nID: 1\r\nODR: 100\r\nMODE: 0\r\nOK\r\n";
        for (const double ratio :
             {1.0 / 24, 1.0 / 12, 1.0 / 8, 1.0 / 4, 1.0 / 3, 0.5, 2.0 / 3, 1.5, 2.0, 3.0, 4.0, 8.0}) {
            for (const int idleBits : {0, 1, 7}) {
                for (int i = 0; i < 10; ++i) {
                    QByteArray sent;
                    while (double(sent.size()) * ratio < double(kWindowBytes))
                        sent += frames::packet(
                            frames::fullRecord(quint8(random.bounded(250))).replace(12, 40, uniform(40)));
                    const QByteArray name = QByteArray::number(ratio) + ' ' + QByteArray::number(idleBits);
                    const QByteArray packets = resampled(sent, ratio, idleBits).left(kWindowBytes);
                    QVERIFY2(!isTaken(packets), name + " packets");
                    const QByteArray text = resampled(sent.left(300) + info.repeated(8), ratio, idleBits);
                    QVERIFY2(!isTaken(text), name + " information");
                }
            }
        }

        const QByteArray packet = frames::packet(frames::fullRecord(1));
        const QByteArray damaged = packet.chopped(1) + char(packet.back() ^ 1);
        const QByteArray unknown = "QX7 V9\r\nbuilt\r\nOK\r\n";
        const std::tuple<const char *, QByteArray, info_reply::Kind> rows[] = {
            {"nothing", {}, info_reply::Kind::Text},
            {"unknown device", unknown, info_reply::Kind::Text},
            {"unknown device among damaged packets", damaged.repeated(5) + "\r\n" + unknown + damaged.repeated(5),
             info_reply::Kind::Text},
            {"unknown device after noise", uniform(600) + "\r\n" + unknown, info_reply::Kind::Text},
            {"known device glued to noise", uniform(1000) + "MZ221 V1.6", info_reply::Kind::Text},
            {"known device among cut packets", packet.mid(40) + "MZ226\n" + packet.left(50), info_reply::Kind::Text},
            {"UUID after noise", uniform(600) + "UUID: 0A12\n" + uniform(40), info_reply::Kind::Text},
            {"acknowledge after noise", uniform(200) + "\r\nOK\r\n", info_reply::Kind::Text},
            {"text that is not ASCII", QByteArray("\xE5\x9E\x8B\xE5\x8F\xB7\xEF\xBC\x9AX1\n"), info_reply::Kind::Text},
            {"a stream that is not stopped", packet.mid(30) + packet.repeated(20) + packet.left(30),
             info_reply::Kind::Packets},
            {"zeros", QByteArray(200, '\0'), info_reply::Kind::Noise},
            {"one broken byte", "\xFF", info_reply::Kind::Noise}};
        for (const auto &[name, reply, kind] : rows)
            QVERIFY2(info_reply::kindOf(reply) == kind, name);
    }

    void lateAnswersAreNotAModel()
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

    // Replies at the broker's limit, each filled with another kind of rubbish; a line after it must still be read.
    void megabytes()
    {
        const QByteArray packet = frames::packet(frames::fullRecord(1));
        // Each header announces the longest packet, and all of them are wrong.
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
