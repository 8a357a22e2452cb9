#include <QTemporaryDir>
#include <QtTest>

#include "capture/capture_file.h"
#include "capture/mcap_codec.h"
#include "capture/mcap_repair.h"

using namespace capture_file;

namespace {

constexpr int kChunks = 4;
constexpr int kPerChunk = 5;

/// A file's beginning, then the given records.
QByteArray fileWith(const QByteArrayList &records)
{
    return QByteArray(mcap::kMagic, mcap::kMagicSize) + mcap::encode(mcap::Header{"", "other"}) + records.join();
}

QByteArray chunkOf(const QByteArray &records, quint64 uncompressedSize = 0)
{
    const QByteArray data = mcap_codec::compress(records, 1);
    return mcap::encode(mcap::Chunk{kStart, kStart, uncompressedSize != 0 ? uncompressedSize : quint64(records.size()),
                                    mcap_codec::crc32(0, records), "zstd", QByteArrayView(data)});
}

QByteArray messageOn(quint16 channel, const QByteArray &bytes)
{
    QByteArray record;
    const QByteArray data = capture_channels::serialMessage(bytes);
    mcap::append(record, {channel, 1, kStart, kStart, data});
    return record;
}

/// Everything up to and with the message indexes of a chunk, or with the next one's cut.
int wholeChunks(const Made &made, qsizetype size)
{
    return int(std::count_if(made.chunkEnds.cbegin(), made.chunkEnds.cend(), [size](auto end) { return end <= size; }));
}

} // namespace

class TestMcap : public QObject
{
    Q_OBJECT

private:
    // In memory, where there is a folder for it: repairs wait for the disk.
    QTemporaryDir m_folder{
        (QFileInfo::exists(QStringLiteral("/dev/shm")) ? QStringLiteral("/dev/shm") : QDir::tempPath())
        + QStringLiteral("/tst_mcap-XXXXXX")};

    QString path(const char *name = "a.mcap") const { return m_folder.filePath(QLatin1String(name)); }

private slots:
    void whatIsWrittenIsRead()
    {
        const Made made = make(kChunks, kPerChunk);
        McapReader reader;
        QVERIFY(reader.open(write(path(), made.bytes)));
        QVERIFY(reader.isFinished());
        QCOMPARE(reader.chunkCount(), kChunks);
        QCOMPARE(allMessages(reader), numbers(0, kChunks * kPerChunk));
        QCOMPARE(reader.header().library, QByteArray("kvcenter test"));
        QCOMPARE(reader.metadata("kv"), (mcap::TextMap{{"port", "last"}}));
        QCOMPARE(reader.channelOf("/serial/rx"), capture_channels::kRx);
        QCOMPARE(reader.schemas().size(), 3);
        QCOMPARE(reader.startTime(), kStart);
        QCOMPARE(reader.endTime(), kStart + (kChunks * kPerChunk - 1) * kStep);
        const mcap::Statistics &statistics = reader.statistics().value();
        QCOMPARE(statistics.messages, quint64(kChunks * kPerChunk));
        QCOMPARE(statistics.channelMessages, (QList<QPair<quint16, quint64>>{{1, kChunks * kPerChunk}}));
        QCOMPARE(statistics.start, reader.startTime());
        QCOMPARE(statistics.end, reader.endTime());
        const struct
        {
            quint64 time;
            qsizetype chunk;
        } seeks[] = {{0, 0}, {kStart + 4 * kStep, 0}, {kStart + 4 * kStep + 1, 1}, {kStart + 9 * kStep, 1}, {~0ULL, 4}};
        for (const auto &row : seeks)
            QCOMPARE(reader.chunkAt(row.time), row.chunk);
    }

    void cutAnywhere()
    {
        const Made made = make(kChunks, kPerChunk);
        const Made open = make(kChunks, kPerChunk, false);
        for (qsizetype size = 0; size < made.bytes.size(); ++size) {
            const int whole = wholeChunks(made, size);
            write(path(), QByteArrayView(made.bytes).first(size));
            McapReader reader;
            const bool isOpen = reader.open(path());
            QVERIFY(isOpen || (whole == 0 && !reader.fault().text().isEmpty()));
            QVERIFY(!isOpen || reader.chunkCount() >= whole);
            QCOMPARE(allMessages(reader).mid(0, whole * kPerChunk), numbers(0, whole * kPerChunk));
            QVERIFY(!mcap_repair::isWhole(path()));
            const bool isAtEnd = std::any_of(made.chunkEnds.cbegin(), made.chunkEnds.cend(),
                                             [size](auto end) { return size >= end - 1 && size <= end + 1; });
            if (size % 61 != 0 && !isAtEnd) // a repair waits for the disk
                continue;
            const mcap_repair::Report report = mcap_repair::repair(path());
            if (report.outcome != mcap_repair::Report::Outcome::Repaired) {
                QVERIFY(whole == 0);
                continue;
            }
            McapReader repaired;
            QVERIFY(repaired.open(path()));
            QVERIFY(repaired.isFinished() && repaired.statistics());
            const QByteArrayList found = allMessages(repaired);
            QVERIFY(found.size() >= whole * kPerChunk); // a chunk without its indexes is whole, too
            QCOMPARE(found, numbers(0, int(found.size())));
            QCOMPARE(quint64(found.size()), report.messages);
            QCOMPARE(repaired.statistics()->messages, report.messages);
        }
        QCOMPARE(QDir(m_folder.path()).entryList(QDir::Files).size(), 1); // no lock, no temporary file
    }

    void flippedAnywhere_data()
    {
        QTest::addColumn<bool>("isFinished");
        QTest::newRow("with a summary") << true;
        QTest::newRow("without") << false;
    }
    void flippedAnywhere()
    {
        QFETCH(bool, isFinished);
        const Made made = make(kChunks, kPerChunk, isFinished);
        const QByteArrayList expected = numbers(0, kChunks * kPerChunk);
        for (qsizetype at = mcap::kMagicSize; at < made.bytes.size(); ++at) {
            for (const char flip : {'\x01', '\x80', '\xFF'}) {
                QByteArray bytes = made.bytes;
                bytes[at] = char(bytes[at] ^ flip);
                McapReader reader;
                QVERIFY2(reader.open(write(path(), bytes)), QByteArray::number(at));
                QByteArrayList found = allMessages(reader);
                found.removeAll("damaged");
                const auto lost = expected.size() - found.size(); // one chunk at most, and nothing else
                QVERIFY2(lost <= kPerChunk, QByteArray::number(at) + ": " + found.join(' '));
                for (const QByteArray &number : std::as_const(found))
                    QVERIFY2(expected.contains(number), number);
            }
        }
    }

    void hostileFiles_data()
    {
        using Kind = CaptureFault::Kind;
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<Kind>("fault");
        QTest::addColumn<QByteArrayList>("messages");
        const QByteArray channel = mcap::encode(*capture_channels::channel(capture_channels::kRx));
        const QByteArray message = messageOn(capture_channels::kRx, "x");
        const QByteArray foreign = mcap::encode(mcap::Channel{9, 0, "/camera", "cdr", {}});
        const auto lying = [](mcap::Kind kind, quint64 length) {
            QByteArray head(1, char(kind));
            head.resize(mcap::kHeadSize);
            qToLittleEndian(length, head.data() + 1);
            return head;
        };
        QTest::newRow("empty") << QByteArray() << Kind::NothingWhole << QByteArrayList();
        QTest::newRow("text") << QByteArray("UnixTimeStamp(sec),Time(ms)") << Kind::NotACapture << QByteArrayList();
        QTest::newRow("magic only") << QByteArray(mcap::kMagic, 8) << Kind::NothingWhole << QByteArrayList();
        QTest::newRow("half a magic") << QByteArray(mcap::kMagic, 5) << Kind::NothingWhole << QByteArrayList();
        QTest::newRow("zeros") << fileWith({channel, chunkOf(message), QByteArray(100'000, '\0')}) << Kind::None
                               << QByteArrayList{"x"};
        QTest::newRow("channel in the chunk")
            << fileWith({chunkOf(channel + message)}) << Kind::None << QByteArrayList{"x"};
        QTest::newRow("foreign channels") << fileWith({foreign, channel, chunkOf(messageOn(9, "photo") + message)})
                                          << Kind::None << QByteArrayList{"x"};
        QTest::newRow("chunk in a chunk")
            << fileWith({channel, chunkOf(message + chunkOf(message))}) << Kind::None << QByteArrayList{"x"};
        QTest::newRow("uncompressed size lies")
            << fileWith({channel, chunkOf(message, quint64(1) << 60), chunkOf(message, 100), chunkOf(message)})
            << Kind::None << QByteArrayList{"damaged", "damaged", "x"};
        QTest::newRow("record reaches over the end")
            << fileWith({channel, lying(mcap::Kind::Metadata, ~0ULL), chunkOf(message)}) << Kind::None
            << QByteArrayList{"x"};
        QTest::newRow("record in a chunk reaches over its end")
            << fileWith({channel, chunkOf(message + lying(mcap::Kind::Message, 1 << 30))}) << Kind::None
            << QByteArrayList{"x"};
        QTest::newRow("short message") << fileWith({channel, chunkOf(lying(mcap::Kind::Message, 0) + message)})
                                       << Kind::None << QByteArrayList{"x"};
        QTest::newRow("footer points anywhere")
            << fileWith({channel, chunkOf(message), mcap::encode(mcap::DataEnd{0}),
                         mcap::encode(mcap::Footer{~0ULL, ~0ULL, 0}), QByteArray(mcap::kMagic, 8)})
            << Kind::None << QByteArrayList{"x"};
        QTest::newRow("summary points anywhere")
            << fileWith({channel, chunkOf(message),
                         mcap::encode(mcap::ChunkIndex{0, 1, quint64(1) << 62, quint64(1) << 62, {}, 0, "", 0, 0}),
                         mcap::encode(mcap::Footer{60, 0, 0}), QByteArray(mcap::kMagic, 8)})
            << Kind::None << QByteArrayList{"x"};
    }
    void hostileFiles()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(CaptureFault::Kind, fault);
        QFETCH(QByteArrayList, messages);
        McapReader reader;
        QCOMPARE(reader.open(write(path(), bytes)), fault == CaptureFault::Kind::None);
        QCOMPARE(reader.fault().kind, fault);
        QCOMPARE(allMessages(reader), messages);
    }

    void onlyOwnFilesAreRepaired()
    {
        using Outcome = mcap_repair::Report::Outcome;
        const QByteArray own = make(1, 2, false).bytes;
        const QByteArray other = fileWith({chunkOf(messageOn(9, "photo"))});
        write(path("b_whole.mcap"), make(1, 2).bytes);
        write(path("c_other.mcap"), other);
        write(path("d_locked.mcap"), own);
        write(path("e_own.mcap"), own);
        QLockFile lock(path("d_locked.mcap.lock"));
        QVERIFY(lock.tryLock(0));
        QFile::remove(path());
        QCOMPARE(mcap_repair::unfinishedIn(m_folder.path()), QStringList{path("e_own.mcap")});
        QCOMPARE(mcap_repair::repair(path("b_whole.mcap")).outcome, Outcome::NotNeeded);
        QCOMPARE(mcap_repair::repair(path("c_other.mcap")).outcome, Outcome::NotOurs);
        QCOMPARE(mcap_repair::repair(path("d_locked.mcap")).fault.kind, CaptureFault::Kind::InUse);
        QCOMPARE(mcap_repair::repair(path("e_own.mcap")).outcome, Outcome::Repaired);
        QFile unchanged(path("c_other.mcap"));
        QVERIFY(unchanged.open(QIODevice::ReadOnly));
        QCOMPARE(unchanged.readAll(), other);
    }

    /// A file that is read while it is written.
    void growing()
    {
        const Made made = make(kChunks, kPerChunk);
        QFile file(path("growing.mcap"));
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        qsizetype written = 0;
        const auto grow = [&](qsizetype end) {
            file.write(made.bytes.constData() + written, end - written);
            written = end;
        };
        grow(made.chunkEnds[0]);
        McapReader reader;
        QVERIFY(reader.open(file.fileName()));
        QCOMPARE(reader.chunkCount(), 1);
        grow(made.chunkEnds[1] - 40); // cut in the middle of its index
        reader.refresh();
        grow(made.chunkEnds[1]);
        reader.refresh();
        grow(made.bytes.size());
        QVERIFY(reader.refresh());
        QVERIFY(reader.isFinished());
        QCOMPARE(allMessages(reader), numbers(0, kChunks * kPerChunk));
        QVERIFY(!reader.refresh());
    }

    void serialMessages()
    {
        for (const int size : {0, 1, 127, 128, 16383, 16384, 300'000}) {
            const QByteArray bytes(size, 'Z');
            QCOMPARE(capture_channels::serialBytes(capture_channels::serialMessage(bytes)).value().toByteArray(),
                     bytes);
        }
        const struct
        {
            const char *hex;
            const char *bytes; // null: refused
        } rows[] = {
            {"", ""},
            {"0A0141", "A"},
            {"10960108010A0142", "B"},
            {"0A01410A0142", "B"},
            {"12014C0A0141", "A"},
            {"0A", nullptr},
            {"0A02", nullptr},
            {"0AFFFFFFFFFFFFFFFFFF01", nullptr},
            {"0F", nullptr},
            {"80", nullptr},
            {"1D000000", nullptr},
            {"0AFFFFFFFFFFFFFFFFFFFFFF", nullptr},
        };
        for (const auto &row : rows) {
            const QByteArray message = QByteArray::fromHex(row.hex);
            const auto bytes = capture_channels::serialBytes(message);
            QCOMPARE(bytes.has_value(), row.bytes != nullptr);
            if (bytes)
                QCOMPARE(bytes->toByteArray(), QByteArray(row.bytes));
        }
    }
};

QTEST_GUILESS_MAIN(TestMcap)
#include "tst_mcap.moc"
