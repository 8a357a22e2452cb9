#include <QRandomGenerator>
#include <QTest>

#include "link/memory_read.h"
#include "support/frames.h"

namespace {

using Fault = BootloaderFault;

QByteArray response(quint8 tag, quint32 status, quint32 value)
{
    return frames::Bytes().u8(tag).u8(0).u8(0).u8(2).u32(status).u32(value);
}

} // namespace

class TestMemoryRead : public QObject
{
    Q_OBJECT

private slots:
    // What arrives: R response, D data of as many bytes as the digit says, X a damaged packet, E and F the end, good
    // and bad. The answers: A acknowledge, N repeat, S stop, - none.
    void dialogues()
    {
        const std::tuple<const char *, const char *, Fault, const char *> rows[] = {
            {"R4 D2 D2 E0", "AAAA", Fault::None, "abab"},
            {"D2 R4 D4 E0", "-AAA", Fault::None, "abcd"}, // data from an earlier read
            {"G0 R4 D4 E0", "-AAA", Fault::None, "abcd"}, // a late response to something else
            {"R4 X0 X0 D4 E0", "ANNAA", Fault::None, "abcd"},
            {"X0 R4 D4 G0 E0", "-AA-A", Fault::None, "abcd"},
            {"R4 R4 D4 E0", "A-AA", Fault::None, "abcd"},
            {"R5", "S", Fault::WrongAnswer, ""}, // another count
            {"Q0", "A", Fault::Refused, ""},
            {"P0", "A", Fault::Refused, ""}, // unknown command
            {"R4 D5", "AS", Fault::WrongAnswer, ""},
            {"R4 D2 D3", "AAS", Fault::WrongAnswer, "ab"},
            {"R4 D0", "AS", Fault::WrongAnswer, ""},
            {"R4 D2 E0", "AAA", Fault::Aborted, "ab"}, // ends early
            {"R4 D4 F0", "AAA", Fault::Aborted, "abcd"},
            {"R4 D4 E0 D4 E0", "AAA--", Fault::None, "abcd"}};
        for (const auto &[script, answers, fault, bytes] : rows) {
            QByteArray taken;
            MemoryRead read(taken, 4);
            QByteArray given;
            for (const QByteArray &word : QByteArray(script).split(' ')) {
                const int number = word[1] - '0';
                MemoryRead::Answer answer = MemoryRead::Answer::Nothing;
                switch (word[0]) {
                case 'R':
                    answer = read.takeResponse(response(0xA3, 0, quint32(number)));
                    break;
                case 'Q':
                    answer = read.takeResponse(response(0xA3, 10001, 0));
                    break;
                case 'P':
                    answer = read.takeResponse(response(0xA0, 10000, 3));
                    break;
                case 'G':
                    answer = read.takeResponse(response(0xA0, 0, 7));
                    break;
                case 'E':
                    answer = read.takeResponse(response(0xA0, 0, 3));
                    break;
                case 'F':
                    answer = read.takeResponse(response(0xA0, 105, 3));
                    break;
                case 'D':
                    answer = read.takeData(QByteArray("abcdefgh").left(number));
                    break;
                default:
                    answer = read.takeDamaged();
                    break;
                }
                given += "-ANS"[int(answer)];
            }
            QVERIFY2(given == answers, script);
            QVERIFY2(read.fault() == fault && taken == bytes, script);
            QVERIFY2(read.isComplete() == (fault == Fault::None), script);
        }
    }

    // Whatever arrives, no more is kept than was requested, and a read over a line that damages everything ends.
    void hostile()
    {
        QRandomGenerator random(11);
        for (int round = 0; round < 2000; ++round) {
            QByteArray taken;
            MemoryRead read(taken, 1 + random.bounded(64U));
            read.takeResponse(response(0xA3, 0, random.bounded(64U)));
            for (int i = 0; i < 40; ++i) {
                QByteArray bytes(random.bounded(20), '\0');
                for (char &byte : bytes)
                    byte = char(random.bounded(6) == 0 ? 0xA0 : random.generate());
                random.bounded(2) == 0 ? read.takeData(bytes) : read.takeResponse(bytes);
            }
            QVERIFY(taken.size() <= 64 && (!read.isComplete() || !taken.isEmpty()));
        }
        QByteArray taken;
        MemoryRead damaged(taken, 4);
        damaged.takeResponse(response(0xA3, 0, 4));
        int asked = 0;
        while (!damaged.isEnded() && asked < 1000)
            asked += damaged.takeDamaged() == MemoryRead::Answer::Repeat ? 1 : 0;
        QCOMPARE(asked, 20);
    }
};

QTEST_APPLESS_MAIN(TestMemoryRead)
#include "tst_memory_read.moc"
