#include <QAction>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSettings>
#include <QToolButton>

#include "app/settings_keys.h"
#include "capture/capture_channels.h"
#include "capture/mcap_reader.h"
#include "capture/mcap_record_list.h"
#include "e2e/views.h"
#include "link/kboot_protocol.h"
#include "link/kv_uart_port.h"
#include "record/recorder.h"
#include "session/session_capture.h"

namespace {

/// A capture, read as a whole.
struct Captured
{
    bool isWhole = false;
    QByteArray received;
    QByteArray sent;
    QList<QJsonObject> samples;
    QList<QJsonObject> events;
    QSet<int> nodes;

    explicit Captured(const QString &path)
    {
        McapReader reader;
        if (!reader.open(path))
            return;
        isWhole = reader.isFinished() && reader.damagedPlaces() == 0;
        for (qsizetype i = 0; i < reader.chunkCount(); ++i) {
            const std::optional<QByteArray> records = reader.readChunk(i);
            isWhole &= records.has_value();
            McapRecordList list(records.value_or(QByteArray()));
            mcap::Message message;
            while (list.next()) {
                if (list.kind() == mcap::Kind::Message && mcap::decode(list.content(), message))
                    take(message);
            }
        }
    }

    /// Texts of the events of a kind.
    QStringList texts(const char *kind) const
    {
        QStringList found;
        for (const QJsonObject &event : events) {
            if (event.value(QLatin1String("kind")) == QLatin1String(kind))
                found += event.value(QLatin1String("text")).toString();
        }
        return found;
    }
    /// Payloads of the good packets in the received bytes.
    int packets() const
    {
        KbootProtocol deframer;
        int count = 0;
        QObject::connect(&deframer, &KbootProtocol::kbootRecv, &deframer, [&count] { ++count; });
        deframer.serial_read(received);
        return count;
    }

private:
    void take(const mcap::Message &message)
    {
        const auto json = [&message] {
            return QJsonDocument::fromJson(QByteArray(message.data.data(), message.data.size())).object();
        };
        if (message.channel == capture_channels::kRx)
            received += capture_channels::serialBytes(message.data).value_or(QByteArrayView());
        else if (message.channel == capture_channels::kTx)
            sent += capture_channels::serialBytes(message.data).value_or(QByteArrayView());
        else if (message.channel == capture_channels::kEvents)
            events += json();
        else
            samples += json(), nodes += message.channel - capture_channels::kFirstNode;
    }
};

} // namespace

/// The capture switch of the main window.
class TestCapture : public QObject
{
    Q_OBJECT

private slots:
    /// One file holds what arrived and what was sent, the samples as the recording beside it has them, and what
    /// happened, also over a cable that was unplugged in between.
    void holdsEverything()
    {
        SimulatorProcess simulator(words("--rate 200"));
        Desk desk;
        auto *action = desk.find<QAction>("action_capture");
        QVERIFY(!action->isEnabled());
        QVERIFY(connectTo(desk, simulator));
        DeviceSession &session = desk.window->session();
        QVERIFY(action->isEnabled());
        action->trigger();
        QVERIFY(session.capture().isCapturing());
        QTRY_VERIFY(desk.find<QToolButton>("button_capture")->isVisible());
        QTRY_VERIFY(!session.capture().writer().path().isEmpty());
        const QString path = session.capture().writer().path();
        session.recorder().start(QDir::currentPath(), QStringLiteral("data"));
        QTRY_VERIFY(session.recorder().recordCount() > 300);
        desk.find<QAction>("action_set_marker")->trigger();
        session.recorder().stop();
        session.recorder().waitForFile();
        desk.find<QAction>("action_set_marker")->trigger(); // without a recording
        QVERIFY(session.identify());
        simulator.control("unplug");
        QTRY_VERIFY(!desk.isOpen());
        QVERIFY(session.capture().isCapturing());
        simulator.control("replug");
        desk.open(simulator.port());
        QTRY_VERIFY(session.isStreaming());
        action->trigger();
        QVERIFY(!session.capture().isCapturing());
        const_cast<CaptureWriter &>(session.capture().writer()).waitForEnd();
        QCOMPARE(session.capture().problem(), QString());

        const Captured captured(path);
        QVERIFY(captured.isWhole);
        QCOMPARE(captured.nodes, QSet<int>({1}));
        QVERIFY2(std::abs(captured.packets() - captured.samples.size()) <= 4, // cut where the capture and the cable end
                 qPrintable(QStringLiteral("%1 %2").arg(captured.packets()).arg(captured.samples.size())));
        QVERIFY(captured.sent.contains("AT+EOUT"));
        QCOMPARE(captured.texts(capture_event::kMarker).size(), 2);
        const QStringList states = captured.texts(capture_event::kState);
        QCOMPARE(states.first(), QStringLiteral("live"));
        QVERIFY2(states.contains(QLatin1String("closed")) && states.last() == QLatin1String("live"),
                 qPrintable(states.join(u' ')));
        QVERIFY(captured.texts(capture_event::kRestart).contains(QLatin1String("new_connection")));
        QVERIFY(!captured.texts(capture_event::kIdentification).isEmpty());
        // The recording's lines, each with its sample in the capture.
        QFile csv(QDir::current().entryList({QStringLiteral("data_*.csv")}, QDir::Files).value(0));
        QVERIFY(csv.open(QIODevice::ReadOnly));
        QHash<double, QJsonObject> byTime;
        for (const QJsonObject &sample : captured.samples)
            byTime.insert(sample.value(QLatin1String("device_time_ms")).toDouble(), sample);
        const QByteArrayList header = csv.readLine().trimmed().split(',');
        int lines = 0;
        for (QByteArray line = csv.readLine(); !line.isEmpty(); line = csv.readLine(), ++lines) {
            const QByteArrayList fields = line.trimmed().split(',');
            const QJsonObject sample = byTime.value(fields.value(header.indexOf("Time(ms)")).toDouble());
            QVERIFY2(!sample.isEmpty(), line.constData());
            const double acc = fields.value(header.indexOf("AccX[G]")).toDouble();
            QVERIFY2(std::abs(sample.value(QLatin1String("acc_x_g")).toDouble() - acc) < 6e-4,
                     (QJsonDocument(sample).toJson() + line).constData());
        }
        QVERIFY(lines > 300);
    }

    /// Sixteen nodes have a channel each; the window that closes ends the file.
    void takesAllNodes()
    {
        SimulatorProcess simulator(words("--device gateway --nodes 16 --layout 62 --rate 50"));
        QString path;
        {
            Desk desk;
            QVERIFY(connectTo(desk, simulator));
            DeviceSession &session = desk.window->session();
            int batches = 0;
            connect(&session, &DeviceSession::batchReceived, this, [&batches] { ++batches; });
            session.capture().start();
            QTRY_VERIFY(batches > 100);
            path = session.capture().writer().path();
            desk.window.reset();
            const Captured captured(path);
            QVERIFY(captured.isWhole);
            QCOMPARE(captured.nodes.size(), 16);
            QVERIFY2(captured.samples.size() >= 1600, qPrintable(QString::number(captured.samples.size())));
        }
    }

    /// A folder that cannot be written to is a sentence, not a capture.
    void saysWhyItCannot()
    {
        SimulatorProcess simulator(words("--rate 100"));
        Desk desk;
        QVERIFY(connectTo(desk, simulator));
        SessionCapture &capture = desk.window->session().capture();
        QSettings(settings_keys::kFile, QSettings::IniFormat)
            .setValue(settings_keys::kRecordPath, QStringLiteral("/proc/nothing/data.csv"));
        desk.find<QAction>("action_capture")->trigger();
        QTRY_VERIFY(!capture.isCapturing() && !capture.problem().isEmpty());
        auto *badge = desk.find<QToolButton>("button_capture");
        QTRY_VERIFY(badge->isVisible() && badge->toolTip() == capture.problem());
    }
};

QTEST_MAIN(TestCapture)
#include "tst_capture.moc"
