// The program is killed while it writes firmware, and started again. This executable plays both parts: with "--update
// PORT" it is the program that is killed.

#include <QProcess>
#include <QRandomGenerator>
#include <QtTest>

#include "desk.h"
#include "support/files.h"
#include "support/hex_file.h"
#include "support/simulator_process.h"
#include "updater/form_updater.h"

namespace {

constexpr char kUpdateOption[] = "--update";
constexpr char kKillsVariable[] = "KV_UPDATE_KILLS"; ///< how many; the campaign sets 50
constexpr int kUsualKills = 2;
constexpr int kLatestMs = 3500; ///< of a kill, after the download began, which takes about 3 s
constexpr int kImageBytes = 24000;

/// Can run at 0x08000000 and reports its own build.
QByteArray image()
{
    const QByteArray start = QByteArray::fromHex("00400020C1000008") + "build 2026-05-17";
    QByteArray bytes = start;
    for (int i = int(start.size()); i < kImageBytes; ++i)
        bytes.append(char(i * 7 + i / 256));
    return bytes;
}

QPushButton *button(const form_base &window, const char *name)
{
    const auto *updater = window.findChild<form_updater *>();
    return updater != nullptr ? updater->findChild<QPushButton *>(QLatin1String(name)) : nullptr;
}

void accept(const QMessageBox *box)
{
    for (QAbstractButton *choice : box->buttons()) {
        if (box->buttonRole(choice) == QMessageBox::AcceptRole)
            return choice->click();
    }
}

/// Opens the port, connects to the bootloader, and downloads until this process is killed.
int updateUntilKilled(const QString &port)
{
    form_base window;
    window.show();
    openPort(window, port);
    window.findChild<QAction *>(QStringLiteral("action_firmware_update"))->trigger();
    for (const char *name : {"BTN_connect", "BTN_download"})
        button(window, name)->click();
    std::puts("downloading");
    std::fflush(stdout);
    return QApplication::exec();
}

} // namespace

class TestUpdateKills : public QObject
{
    Q_OBJECT

private slots:
    /// Whenever the program is killed, the next start leads to a working device if the user follows the windows'
    /// advice.
    void killed()
    {
        const int kills = qMax(kUsualKills, qEnvironmentVariableIntValue(kKillsVariable));
        const quint32 seed = QRandomGenerator::global()->generate();
        QRandomGenerator random(seed);
        int untouched = 0;
        int interrupted = 0;
        int whole = 0;
        for (int kill = 0; kill < kills; ++kill) {
            const int afterMs = random.bounded(kLatestMs);
            const QByteArray context = QByteArray("seed ") + QByteArray::number(seed) + ", kill "
                                       + QByteArray::number(kill) + " after " + QByteArray::number(afterMs) + " ms";
            SimulatorProcess simulator({QStringLiteral("--bootloader-wait"), QStringLiteral("1500"),
                                        QStringLiteral("--flash-size"), QStringLiteral("64")});
            Desk desk;
            desk.window.reset();
            QVERIFY(writeFile(QStringLiteral("firmware.hex"), hex_file::file(image(), 0x08000000)));
            QProcess program;
            program.setWorkingDirectory(QDir::currentPath());
            program.start(QCoreApplication::applicationFilePath(), {QLatin1String(kUpdateOption), simulator.port()});
            QByteArray said;
            while (!said.contains("downloading") && program.waitForReadyRead(30000))
                said += program.readAllStandardOutput();
            QVERIFY2(said.contains("downloading"), context);
            (void)program.waitForFinished(afterMs);
            program.kill();
            QVERIFY(program.waitForFinished());
            const bool hasNote = QFile::exists(QStringLiteral("update-note.json"));

            desk.restart();
            const auto reminder = [&] { return desk.window->findChild<QMessageBox *>(QStringLiteral("BOX_question")); };
            QVERIFY2(QTest::qWaitFor([&] { return (reminder() != nullptr) == hasNote; }), context);
            if (hasNote)
                accept(reminder()); // "Connect", to the port that the note names
            else
                desk.open(simulator.port());
            const DeviceSession &session = desk.window->session();
            // A device that was still starting when it was queried is not queried again while its data flow.
            const auto isLive = [&] { return session.device().valid || session.state() == SessionState::Live; };
            const auto isFound = [&] { return button(*desk.window, "BTN_continue") != nullptr; };
            QVERIFY2(QTest::qWaitFor([&] { return isLive() || isFound(); }, 25000), context);
            if (isFound() && hasNote) {
                QVERIFY2(button(*desk.window, "BTN_continue")->isVisible(), context);
                const auto *step = desk.find<QLabel>("LBL_step");
                const auto isVerified = [&] { return step->text() == QLatin1String("Verified"); };
                const auto hasEnded = [&] { return isVerified() || step->text() == QLatin1String("Failed"); };
                // On a busy machine an acknowledge may be late without any fault; the window then says what to do.
                for (int press = 0; press < 3 && !isVerified(); ++press) {
                    button(*desk.window, "BTN_continue")->click();
                    (void)QTest::qWaitFor(hasEnded, 30000);
                }
                QVERIFY2(isVerified(), context + step->text().toUtf8() + desk.label("LBL_status").toUtf8());
                QVERIFY2(!QFile::exists(QStringLiteral("update-note.json")), context);
                ++interrupted;
            } else if (isFound()) { // connected, and nothing was erased
                button(*desk.window, "BTN_restart")->click();
                QVERIFY2(QTest::qWaitFor(isLive, 15000), context);
                ++untouched;
            }
            if (!hasNote) {
                QVERIFY2(isLive(), context);
                continue;
            }
            whole += isFound() ? 0 : 1;
            const QString dump = QDir::current().filePath(QStringLiteral("flash.bin"));
            QVERIFY(simulator.control(("flash dump " + dump.toLocal8Bit()).constData()));
            const QByteArray flash = readFile(dump);
            QVERIFY2(flash.startsWith(image()) || !isFound(), context); // or the old firmware, untouched
        }
        qInfo("%d kills: %d found before the erase, %d interrupted and continued, %d with a running device", kills,
              untouched, interrupted, whole);
    }
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    if (argc > 2 && qstrcmp(argv[1], kUpdateOption) == 0)
        return updateUntilKilled(QString::fromLocal8Bit(argv[2]));
    TestUpdateKills test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_update_kills.moc"
