#include <QSignalSpy>
#include <QTemporaryDir>
#include <QThread>
#include <QtTest>

#include "capture/capture_file.h"
#include "capture/capture_player.h"
#include "capture/capture_source.h"
#include "support/frames.h"

namespace {

constexpr qint64 kMs = 1'000'000;
constexpr auto kStart = qint64(capture_file::kStart);
constexpr int kTimeoutMs = 10000;

struct Sent
{
    qint64 timeMs; ///< after kStart
    QByteArray bytes;

    bool operator==(const Sent &) const = default;
};

/// A capture of one chunk for each of the lists, with other channels between.
QString capture(const QString &path, const QList<QList<Sent>> &chunks)
{
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    McapWriter writer(file);
    writer.begin("kvcenter test");
    for (const quint16 id : {capture_channels::kRx, capture_channels::kTx, capture_channels::kEvents})
        writer.add(*capture_channels::channel(id));
    writer.add({99, 0, "/camera", "cdr", {}});
    for (const QList<Sent> &chunk : chunks) {
        for (const Sent &sent : chunk) {
            const auto time = quint64(kStart + sent.timeMs * kMs);
            writer.addMessage(99, 0, time, "photo");
            writer.addMessage(capture_channels::kTx, 0, time, capture_channels::serialMessage("AT"));
            writer.addMessage(capture_channels::kRx, 0, time, capture_channels::serialMessage(sent.bytes));
            writer.addMessage(capture_channels::kEvents, 0, time,
                              CaptureEvent{0, QStringLiteral("marker"), QString::number(sent.timeMs), {}}.toJson());
        }
        writer.endChunk();
    }
    writer.finish();
    return path;
}

/// Every 10 ms a number.
QList<QList<Sent>> numbers(int chunks, int perChunk)
{
    QList<QList<Sent>> made(chunks);
    for (int i = 0; i < chunks * perChunk; ++i)
        made[i / perChunk].append({10 * i, QByteArray::number(i)});
    return made;
}

} // namespace

class TestCapturePlayer : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    std::unique_ptr<PlayClock> m_clock;
    std::unique_ptr<CapturePlayer> m_player;
    QList<Sent> m_received;
    bool m_isTimely = true;

    void open(const QList<QList<Sent>> &chunks)
    {
        auto source = std::make_unique<CaptureSource>();
        QVERIFY(source->open(capture(m_folder.filePath(QStringLiteral("a.mcap")), chunks)));
        m_player.reset();
        m_clock = std::make_unique<PlayClock>();
        m_player = std::make_unique<CapturePlayer>(std::move(source), *m_clock);
        m_received.clear();
        m_isTimely = true;
        connect(m_player.get(), &CapturePlayer::received, this, [this](const QByteArray &bytes, qint64 timeNs) {
            m_isTimely = m_isTimely && m_clock->nowNs() == timeNs;
            m_received.append({(timeNs - kStart) / kMs, bytes});
        });
    }
    QList<Sent> between(const QList<QList<Sent>> &chunks, qint64 fromMs, qint64 toMs) const
    {
        QList<Sent> all;
        for (const QList<Sent> &chunk : chunks)
            all += chunk;
        all.removeIf([=](const Sent &sent) { return sent.timeMs < fromMs || sent.timeMs > toMs; });
        return all;
    }

private slots:
    void everythingInOrderAndInTime_data()
    {
        QTest::addColumn<double>("rate");
        QTest::addColumn<int>("leastMs");
        QTest::newRow("as fast as possible") << 0.0 << 0;
        QTest::newRow("50x") << 50.0 << 39;
        QTest::newRow("10x") << 10.0 << 199;
        QTest::newRow("1x") << 1.0 << 1990;
    }
    void everythingInOrderAndInTime()
    {
        QFETCH(double, rate);
        QFETCH(int, leastMs);
        const QList<QList<Sent>> chunks = numbers(4, 50);
        open(chunks);
        QSignalSpy ended(m_player.get(), &CapturePlayer::ended);
        m_player->setRate(rate);
        QElapsedTimer time;
        time.start();
        m_player->play();
        QVERIFY(ended.wait(kTimeoutMs));
        QCOMPARE(m_received, between(chunks, 0, 2000));
        QVERIFY(m_isTimely);
        QVERIFY2(time.elapsed() >= leastMs, QByteArray::number(time.elapsed()));
        QVERIFY(!m_player->isPlaying() && m_player->isAtEnd());
        m_player->play(); // once more
        QVERIFY(ended.wait(kTimeoutMs));
        QCOMPARE(m_received.size(), 400);
        QCOMPARE(ended.size(), 2);
    }

    void changesWhilePlaying()
    {
        const QList<QList<Sent>> chunks = numbers(2, 50);
        open(chunks);
        QSignalSpy ended(m_player.get(), &CapturePlayer::ended);
        m_player->play();
        QTRY_VERIFY(m_received.size() >= 5);
        m_player->pause();
        const qsizetype stood = m_received.size();
        const qint64 position = m_player->positionNs();
        QTest::qWait(60); // time in which something would come
        QCOMPARE(m_received.size(), stood);
        QCOMPARE(m_player->positionNs(), position);
        m_player->setRate(0.1);
        m_player->play();
        QVERIFY(!ended.wait(100));
        m_player->setRate(PlayClock::kUnthrottled);
        QVERIFY(ended.wait(kTimeoutMs));
        QCOMPARE(m_received, between(chunks, 0, 1000));
    }

    /// It waits for its receiver and drops nothing; time waits, too.
    void waitsForTheReceiver_data()
    {
        QTest::addColumn<bool>("byWindow");
        QTest::newRow("busy") << false;
        QTest::newRow("not acknowledged") << true;
    }
    void waitsForTheReceiver()
    {
        QFETCH(bool, byWindow);
        const QList<QList<Sent>> chunks = numbers(2, 50);
        open(chunks);
        QSignalSpy ended(m_player.get(), &CapturePlayer::ended);
        QSignalSpy measured(m_player.get(), &CapturePlayer::rateMeasured);
        m_player->setRate(20);
        if (byWindow)
            m_player->setWindow(14); // as many were sent as received
        else
            connect(m_player.get(), &CapturePlayer::received, this,
                    [this] { m_player->setBusy(m_received.size() == 7); });
        m_player->play();
        QTRY_VERIFY(!measured.isEmpty());
        QCOMPARE(m_received.size(), 7);
        QVERIFY(m_player->positionNs() < kStart + 71 * kMs);
        QCOMPARE(measured.first().last().toBool(), false);
        const std::unique_ptr<QThread> other(QThread::create([this, byWindow] {
            if (byWindow)
                m_player->acknowledge(186);
            else
                m_player->setBusy(false);
        }));
        other->start();
        QVERIFY(ended.wait(kTimeoutMs));
        QCOMPARE(m_received, between(chunks, 0, 1000));
        QVERIFY(other->wait());
    }

    void stepsByPackets()
    {
        const QByteArray one = frames::packet(QByteArray(76, 'a'));
        const QByteArray two = frames::packet(QByteArray(34, 'b'));
        const QByteArray bad = QByteArray(two).replace(10, 1, "c");
        open({{{0, "noise" + one + two}, {10, one.left(20)}, {20, one.mid(20) + two.left(1)}},
              {{30, two.mid(1) + bad}}});
        QSignalSpy ended(m_player.get(), &CapturePlayer::ended);
        const QList<QList<Sent>> steps{{{0, "noise" + one}},
                                       {{0, two}},
                                       {{10, one.left(20)}, {20, one.mid(20)}},
                                       {{20, two.left(1)}, {30, two.mid(1)}},
                                       {{30, bad}}};
        for (const QList<Sent> &step : steps) {
            m_received.clear();
            QVERIFY(ended.isEmpty());
            m_player->step();
            QCOMPARE(m_received, step);
            QCOMPARE((m_player->positionNs() - kStart) / kMs, step.last().timeMs);
        }
        QCOMPARE(ended.size(), 1);
    }

    void passesOverGaps()
    {
        const QList<QList<Sent>> chunks{{{0, "a"}, {10, "b"}}, {{100'000, "c"}, {100'400, "d"}}};
        open(chunks);
        QSignalSpy ended(m_player.get(), &CapturePlayer::ended);
        m_player->setSkippedGap(1000 * kMs);
        QElapsedTimer time;
        time.start();
        m_player->play();
        QVERIFY(ended.wait(kTimeoutMs));
        QCOMPARE(m_received, between(chunks, 0, 200'000));
        QVERIFY(time.elapsed() >= 400);
        QVERIFY(m_isTimely);
    }

    void seeksAndFills()
    {
        const QList<QList<Sent>> chunks = numbers(10, 50);
        open(chunks);
        QSignalSpy restarted(m_player.get(), &CapturePlayer::restarted);
        const struct
        {
            qint64 timeMs;
            qint64 fillMs;
            qint64 fromMs; // of what is handed out in pause
            qint64 toMs;
            qint64 positionMs;
        } rows[] = {{2345, 1000, 1345, 2344, 2345}, {100, 1000, 0, 99, 100},        {2500, 0, 1, 0, 2500},
                    {4990, 30, 4960, 4989, 4990},   {99'999, 50, 4940, 4989, 4990}, {-5, 10, 1, 0, 0}};
        int count = 0;
        for (const auto &row : rows) {
            m_received.clear();
            m_player->seek(kStart + row.timeMs * kMs, row.fillMs * kMs);
            QCOMPARE(restarted.size(), ++count);
            const QList<Sent> expected = between(chunks, row.fromMs, row.toMs);
            QTRY_COMPARE(m_received, expected);
            QTRY_COMPARE((m_player->positionNs() - kStart) / kMs, row.positionMs);
        }
        m_received.clear();
        m_player->seek(kStart + 4000 * kMs);
        m_player->setRate(0);
        m_player->play();
        QTRY_COMPARE(m_received, between(chunks, 4000, 5000));
    }

    void loopsOverARange()
    {
        const QList<QList<Sent>> chunks = numbers(4, 50);
        open(chunks);
        QSignalSpy ended(m_player.get(), &CapturePlayer::ended);
        QSignalSpy restarted(m_player.get(), &CapturePlayer::restarted);
        m_player->setRange(kStart + 500 * kMs, kStart + 540 * kMs);
        m_player->setLooping(true);
        m_player->setRate(0);
        connect(m_player.get(), &CapturePlayer::received, this, [this] {
            if (m_received.size() == 15)
                m_player->pause();
        });
        m_player->play();
        QTRY_COMPARE(m_received.size(), 15);
        const QList<Sent> once = between(chunks, 500, 540);
        QCOMPARE(m_received, once + once + once);
        QCOMPARE(restarted.size(), 3); // into the range, and twice round
        QVERIFY(ended.isEmpty());
    }

    void eventsOfACapture()
    {
        CaptureSource source;
        QVERIFY(source.open(capture(m_folder.filePath(QStringLiteral("b.mcap")), numbers(3, 2))));
        const QList<CaptureEvent> events = source.readEvents();
        QCOMPARE(events.size(), 6);
        QCOMPARE(events[5].timeNs, kStart + 50 * kMs);
        QCOMPARE(events[5].text, QStringLiteral("50"));
        QCOMPARE(source.readEvents(4).size(), 4);
    }

    void damagedChunksAreSkipped()
    {
        const QString path = capture(m_folder.filePath(QStringLiteral("c.mcap")), numbers(3, 20));
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadWrite));
        CaptureSource source;
        QVERIFY(source.open(path));
        file.seek(source.reader().chunk(1).offset + 100);
        file.write("damage");
        file.close();
        int count = 0;
        for (QList<TimedBytes> part = source.read(); !part.isEmpty(); part = source.read())
            count += int(std::count_if(part.cbegin(), part.cend(), [](const TimedBytes &it) { return !it.isSent; }));
        QCOMPARE(count, 40);
        QCOMPARE(source.damagedChunks(), 1);
    }

    void nothingToPlay()
    {
        const QString path = m_folder.filePath(QStringLiteral("other.mcap"));
        {
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly));
            McapWriter writer(file);
            writer.begin("other");
            writer.add({99, 0, "/camera", "cdr", {}});
            writer.addMessage(99, 0, capture_file::kStart, "photo");
            QVERIFY(writer.finish());
        }
        CaptureSource source;
        QVERIFY(!source.open(path));
        QCOMPARE(source.fault().kind, CaptureFault::Kind::NoSerialBytes);
        QVERIFY(source.fault().text().contains(path));
    }
};

QTEST_GUILESS_MAIN(TestCapturePlayer)
#include "tst_capture_player.moc"
