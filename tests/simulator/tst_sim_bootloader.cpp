#include <QTemporaryDir>
#include <QtTest>

#include <limits>

#include "simulator/bootloader.h"
#include "support/files.h"
#include "support/frames.h"

using namespace kvsim;
using frames::hex;

namespace {

using Verdict = BootFaults::Verdict;

constexpr qint64 kMs = 1'000'000;
constexpr quint32 kBase = 0x08000000;
const QByteArray kPing = hex("5aa6");
const QByteArray kPong = hex("5aa70302015000004a24");
const QByteArray kAck = hex("5aa1");
const QByteArray kNak = hex("5aa2");
const QByteArray kAbort = hex("5aa3");

QByteArray words(quint8 tag, std::initializer_list<quint32> parameters)
{
    frames::Bytes bytes;
    bytes.u8(tag).u8(0).u8(0).u8(unsigned(parameters.size()));
    for (const quint32 parameter : parameters)
        bytes.u32(parameter);
    return frames::packet(bytes, 0xA4);
}

QByteArray response(quint32 status, quint8 tag)
{
    return words(0xA0, {status, tag});
}

QByteArray pattern(qsizetype size)
{
    QByteArray bytes(size, '\0');
    for (qsizetype i = 0; i < size; ++i)
        bytes[i] = char(i * 31 + i / 256);
    return bytes;
}

// A bootloader with 64 KiB of flash in sectors of 1 KiB, polled once a millisecond.
struct Target
{
    Bootloader boot{Bootloader::Settings{{kBase, 64 * 1024, 1024}, 32, 1000, 1}};
    qint64 nowNs = 0;

    Target() { boot.enter(0); }
    QByteArray ask(const QByteArray &bytes, int milliseconds = 1)
    {
        boot.receive(bytes, nowNs);
        nowNs += milliseconds * kMs;
        return boot.takeAnswers(nowNs);
    }
    Bootloader::Exit exit() const { return boot.exit(nowNs); }
};

} // namespace

class TestSimBootloader : public QObject
{
    Q_OBJECT

private slots:
    void answers()
    {
        const QByteArray write = words(4, {kBase, 40});
        const QByteArray begun = kAck + response(0, 4);
        const QByteArray x = frames::packet("x");
        const QByteArray data = frames::packet(pattern(20));
        QByteArray damaged = words(7, {1});
        damaged[12] = 'x';
        QList<std::tuple<const char *, QByteArray, QByteArray>> rows = {
            {"ping", kPing, kPong},
            {"ping in noise", "AT+RST\r\n\xFF\x5A" + kPing + "\x5A", kPong},
            {"unknown command", words(0x33, {1}), kAck + response(10000, 0x33)},
            {"too few parameters", words(2, {kBase}), kAck + response(4, 2)},
            {"empty command", frames::packet({}, 0xA4) + kPing, kAck + response(4, 0) + kPong},
            {"damaged", damaged + kPing, kNak + kPong},
            {"too long", frames::packet({}, 0xA5, 33), kNak},
            {"erase", words(2, {kBase + 64 * 1024 - 1, 1}), kAck + response(0, 2)},
            {"erase all", words(1, {}), kAck + response(0, 1)},
            {"erase nothing", words(2, {0, 0}), kAck + response(0, 2)},
            {"erase too far", words(2, {kBase + 64 * 1024 - 1, 2}), kAck + response(10200, 2)},
            {"erase around", words(2, {kBase, 0xFFFFFFFF}), kAck + response(10200, 2)},
            {"erase elsewhere", words(2, {0x100010C0, 4}), kAck + response(10200, 2)},
            {"write too far", words(4, {0, 64 * 1024 + 1}), kAck + response(10200, 4)},
            {"write nothing", words(4, {kBase, 0}), kAck + response(0, 4)},
            {"data without a write", x, kAbort},
            {"data after its end", write + data + data + x, begun + kAck + kAck + response(0, 4) + kAbort},
            {"too much data", write + data + frames::packet(pattern(21)) + x, begun + kAck + kAbort + kAbort},
            {"a command ends the data phase", write + kPing + words(1, {}) + x,
             begun + kPong + kAck + response(0, 1) + kAbort},
            {"reset is the end", words(0x0B, {}) + kPing, kAck + response(0, 0x0B)}};
        const std::tuple<const char *, quint32, quint32, quint32> properties[] = {
            {"version", 0x01, 0x4B020103, 0},    {"flash start", 0x03, kBase, 0},
            {"flash size", 0x04, 64 * 1024, 0},  {"sector size", 0x05, 1024, 0},
            {"packet size", 0x0B, 32, 0},        {"device id", 0x10, 0x1A2B3C4D, 0},
            {"commands", 0x07, 0x54F, 0},        {"not locked", 0x11, 0x5AA55AA5, 0},
            {"unknown property", 0x77, 0, 10300}};
        for (const auto &[name, tag, value, status] : properties)
            rows.append({name, words(7, {tag}), kAck + words(0xA7, {status, value})});
        for (const auto &[name, request, answer] : rows) {
            Target whole;
            QVERIFY2(whole.ask(request) == answer, name);
            Target inPieces;
            QByteArray collected;
            for (const char byte : request)
                collected += inPieces.ask(QByteArray(1, byte));
            QVERIFY2(collected == answer, name);
        }
    }

    // Packets refused or not answered are repeated, as a host does; the flash holds the image and nothing else has
    // changed.
    void updates()
    {
        for (const quint32 address : {kBase + 1500, 1500U}) {
            for (const char *refused : {"0", "1", "2:3", "4"}) {
                Target target;
                QByteArray expected = target.boot.flash().contents();
                const QByteArray image = pattern(100);
                expected.replace(1024, 1024, QByteArray(1024, '\xFF')).replace(1500, 100, image);
                QVERIFY(target.boot.faults().plan(Verdict::Refuse, QLatin1String(refused)).isEmpty());
                target.ask(words(2, {address, 100}) + words(4, {address, 100}));
                for (qsizetype i = 0, attempts = 0; i < 100 && attempts < 9; ++attempts)
                    i += target.ask(frames::packet(image.mid(i, 32))).startsWith(kAck) ? 32 : 0;
                QVERIFY(target.boot.flash().contents() == expected);
                QCOMPARE(target.boot.packets() - target.boot.refusedPackets(), 4U);
                target.ask(words(0x0B, {}));
                QCOMPARE(target.exit(), Bootloader::Exit::Reset);
            }
        }
    }

    void programsWhatIsErased()
    {
        FlashMemory flash({0, 2048, 512});
        const auto old = quint8(flash.contents()[600]);
        QVERIFY(flash.program(600, "\x0F") && quint8(flash.contents()[600]) == (old & 0x0F));
        QVERIFY(flash.erase(600, 1) && flash.program(600, "\x0F") && flash.contents()[600] == 0x0F);
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("flash.bin"));
        QCOMPARE(flash.dump(path), QString());
        QVERIFY(readFile(path) == flash.contents());
        QVERIFY(!flash.dump(folder.filePath(QStringLiteral("no/flash.bin"))).isEmpty());
    }

    // Text is skipped and classified: text that begins a connect, text between data packets, the rest.
    void textIsRecorded()
    {
        const QByteArray write = words(4, {kBase, 40});
        const QByteArray data = frames::packet(pattern(20));
        const QByteArray restart = "AT+RST\r\n";
        const std::tuple<const char *, QByteArray, int, int, int, QByteArray> rows[] = {
            {"packets only", kPing + write + data + data, 0, 0, 0, ""},
            {"three connects", restart + kPing + restart + kPing + restart + kPing, 0, 0, 3, "AT+RST|AT+RST|AT+RST"},
            {"restart without a ping", restart + write, 1, 0, 0, "AT+RST"},
            {"restart and no more", kPing + restart, 1, 0, 0, "AT+RST"},
            {"text before the restart", "AT+EOUT=1\r\n" + restart + kPing, 1, 0, 1, "AT+EOUT=1|AT+RST"},
            {"text after the restart", restart + "AT+INFO\r\n" + kPing, 2, 0, 0, "AT+RST|AT+INFO"},
            {"between data", write + data + "AT+EOUT=1\r\n" + restart + data, 2, 2, 0, "AT+EOUT=1|AT+RST"},
            {"stopped, and connected again", write + data + restart + kPing, 0, 0, 1, "AT+RST"},
            {"the last five", "a\nb\nc\nd\ne\nf\n", 6, 0, 0, "b|c|d|e|f"},
            {"no text", QByteArray("ab\xFF\n\n\x01\r", 7) + QByteArray(1000, 'x'), 0, 0, 0, ""}};
        for (const auto &[name, bytes, commands, inData, restarts, last] : rows) {
            Target target;
            target.ask(bytes);
            const BootTexts &texts = target.boot.texts();
            QVERIFY2(texts.commands() == quint64(commands) && texts.betweenData() == quint64(inData), name);
            QVERIFY2(texts.restarts() == quint64(restarts) && texts.last().join('|') == last, name);
        }
    }

    // The answer to the packet, how much of the flash is correct then, and whether the data phase goes on.
    void faultsOfAPacket()
    {
        const QByteArray image = pattern(96);
        const std::tuple<const char *, Verdict, QByteArray, QByteArray, bool> rows[] = {
            {"never acknowledged", Verdict::NoAck, {}, image.mid(32, 32), true},
            {"flipped", Verdict::Flip, kAck, image.mid(32, 16) + char(image[48] ^ 0x10) + image.mid(49, 15), true},
            {"dropped", Verdict::Drop, kAck, image.mid(64, 32), true},
            {"status", Verdict::Status, kAbort + response(105, 4), QByteArray(32, '\xFF'), false},
            {"power cut", Verdict::Power, {}, image.mid(32, 16) + QByteArray(16, '\xFF'), false}};
        for (const auto &[name, verdict, answer, second, goesOn] : rows) {
            Target target;
            target.ask(words(2, {kBase, 96}) + words(4, {kBase, 96}));
            target.ask(frames::packet(image.left(32)));
            QVERIFY(target.boot.faults().plan(verdict, QStringLiteral("1")).isEmpty());
            QVERIFY2(target.ask(frames::packet(image.mid(32, 32))) == answer, name);
            QVERIFY2((target.exit() == Bootloader::Exit::PowerCut) == (verdict == Verdict::Power), name);
            const QByteArray third = target.ask(frames::packet(image.mid(64)));
            QVERIFY2(third.startsWith(kAck) == goesOn, name);
            QVERIFY2(target.boot.flash().read(kBase, 64) == image.left(32) + second, name);
        }
    }

    void readsMemory()
    {
        const auto readResponse = [](quint32 status, quint32 count, quint8 flags) {
            const QByteArray body = frames::Bytes().u8(0xA3).u8(flags).u8(0).u8(2).u32(status).u32(count);
            return frames::packet(body, 0xA4);
        };
        Target target;
        const QByteArray flash = target.boot.flash().contents();
        QCOMPARE(target.ask(words(3, {kBase + 5, 40})), kAck + readResponse(0, 40, 1));
        QCOMPARE(target.ask(kAck), frames::packet(flash.mid(5, 32)));
        QCOMPARE(target.ask({}, 500), QByteArray());
        QCOMPARE(target.ask(kNak), frames::packet(flash.mid(5, 32)));
        QCOMPARE(target.ask(kAck), frames::packet(flash.mid(37, 8)));
        QCOMPARE(target.ask(kAck), response(0, 3));
        QCOMPARE(target.ask(kAck), QByteArray());

        target.ask(words(3, {kBase, 40}) + kAck);
        QCOMPARE(target.ask(kAbort + kAck), response(10002, 3));
        QCOMPARE(target.ask(words(3, {kBase + 64 * 1024, 1})), kAck + readResponse(10200, 0, 0));
        target.boot.faults().locked = true;
        QCOMPARE(target.ask(words(3, {kBase, 1})), kAck + readResponse(10001, 0, 0));
        target.boot.faults().locked = false;
        target.boot.faults().readsMemory = false;
        QCOMPARE(target.ask(words(3, {kBase, 1})), kAck + response(10000, 3));
        QCOMPARE(target.ask(words(7, {7})), kAck + words(0xA7, {0, 0x54B}));
    }

    void staysWithoutFirmware()
    {
        const QByteArray erase = words(2, {kBase, 8});
        const QByteArray write = words(4, {kBase, 4});
        const struct
        {
            QByteArray before;
            bool starts;
        } rows[] = {
            {"", true},
            {erase, false},
            {erase + write, false},
            {erase + write + frames::packet("1234"), true},
        };
        for (const auto &row : rows) {
            Target target;
            target.ask(row.before);
            target.boot.enter(target.nowNs); // after a power cut
            target.ask({}, 1001);
            QCOMPARE(target.exit() == Bootloader::Exit::StartFirmware, row.starts);
            target.ask(words(9, {kBase, 0, 0}));
            QCOMPARE(target.exit() == Bootloader::Exit::StartFirmware, row.starts);
        }
    }

    void forgetsHalfAPacket()
    {
        Target target;
        target.ask(frames::packet(pattern(30)).left(12), 201);
        QCOMPARE(target.ask(kPing).size(), 10);
    }

    void delays()
    {
        Target slow;
        slow.boot.faults().eraseMs = 500;
        QCOMPARE(slow.ask(words(2, {kBase, 1}), 499), kAck);
        QCOMPARE(slow.ask(kPing, 1), response(0, 2) + kPong);

        Target trickling;
        trickling.boot.faults().trickleMs = 3;
        trickling.boot.receive(kPing, 0);
        for (int i = 1; i <= 10; ++i) {
            QVERIFY(trickling.boot.takeAnswers(3 * i * kMs - 1).isEmpty()
                    && trickling.exit() == Bootloader::Exit::None);
            QCOMPARE(trickling.boot.takeAnswers(3 * i * kMs).size(), 1);
        }
        Target late; // programmed, but a host that waits 200 ms does not learn it
        late.boot.faults().lateMs = 230;
        QVERIFY(late.boot.faults().plan(Verdict::Late, QStringLiteral("1")).isEmpty());
        late.ask(words(2, {kBase, 8}) + words(4, {kBase, 8}));
        QCOMPARE(late.ask(frames::packet("abcd"), 229), QByteArray());
        QCOMPARE(late.ask({}, 1), kAck);
        QCOMPARE(late.ask(frames::packet("efgh")), kAck + response(0, 4));
        QVERIFY(late.boot.flash().contents().startsWith("abcdefgh"));

        Target stale;
        stale.boot.faults().staleMs = 2;
        QCOMPARE(stale.ask(frames::packet("x")), kAbort);
        QCOMPARE(stale.ask({}), kAck);
    }

    void propertyAndPingFaults()
    {
        Target target;
        target.boot.faults().mutePing = true;
        QVERIFY(target.ask(kPing).isEmpty());
        for (const int size : {0, 3, 5}) {
            target.boot.faults().propertyBytes = size;
            QCOMPARE(target.ask(words(7, {5})).size(), 2 + 6 + 4 + 4 + size);
        }
    }

    void verdicts()
    {
        const auto verdicts = [](BootFaults &faults) {
            QByteArray letters;
            for (int i = 0; i < 8; ++i)
                letters += "TRAILNFDSP"[int(faults.judge())];
            return letters;
        };
        BootFaults faults(1);
        QCOMPARE(verdicts(faults), QByteArray("TTTTTTTT"));
        QVERIFY(faults.plan(Verdict::Refuse, QStringLiteral("1:2")).isEmpty());
        QVERIFY(faults.plan(Verdict::Abort, QStringLiteral("5")).isEmpty());
        QVERIFY(faults.plan(Verdict::Ignore, QStringLiteral("7:99")).isEmpty());
        QCOMPARE(verdicts(faults), QByteArray("RRTTATII"));
        QVERIFY(faults.plan(Verdict::Ignore, QStringLiteral("0")).isEmpty());
        QCOMPARE(verdicts(faults), QByteArray("TTTTTTTT"));
        for (const char *bad : {"", "x", "-1", "1:0", "1:x", "1:2:3", "99999999999"})
            QVERIFY2(!faults.plan(Verdict::Refuse, QLatin1String(bad)).isEmpty(), bad);

        const auto refusedOf = [](quint64 seed) {
            BootFaults some(seed);
            some.refusedPercent = 5.0;
            QList<int> refused;
            for (int i = 0; i < 10'000; ++i) {
                if (some.judge() == Verdict::Refuse)
                    refused += i;
            }
            return refused;
        };
        QVERIFY(refusedOf(1).size() > 390 && refusedOf(1).size() < 610);
        QVERIFY(refusedOf(1) == refusedOf(1) && refusedOf(1) != refusedOf(2));
    }

    // Noise with packets in it, while answers trickle: what is kept stays small.
    void survivesNoise()
    {
        Target target;
        target.boot.faults().trickleMs = 1000;
        QRandomGenerator random(5);
        for (int i = 0; i < 20'000; ++i) {
            QByteArray bytes = i % 3 == 0 ? words(quint8(random.bounded(9)), {random(), random()}) : kPing;
            if (i % 5 == 0)
                bytes[random.bounded(bytes.size())] = char(random());
            target.ask(bytes, 0);
        }
        const qsizetype kept = target.boot.takeAnswers(std::numeric_limits<qint64>::max()).size();
        QVERIFY(kept >= qsizetype(Bootloader::kMaxAnswers) && kept < qsizetype(Bootloader::kMaxAnswers) + 100);
    }
};

QTEST_APPLESS_MAIN(TestSimBootloader)
#include "tst_sim_bootloader.moc"
