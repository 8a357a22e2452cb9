#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <array>

#include "support/simulator_process.h"

namespace {

QByteArray content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

/// The program itself, as a user starts it.
class TestProgram : public QObject
{
    Q_OBJECT

private slots:
    void startsWithCleanLogs()
    {
        const QTemporaryDir folder;
        QFile old(folder.filePath(QStringLiteral("debug.log")));
        QVERIFY(old.open(QIODevice::WriteOnly));
        old.write("a line of the previous run\r\n");
        old.close();

        QFile settings(folder.filePath(QStringLiteral("param.ini")));
        QVERIFY(settings.open(QIODevice::WriteOnly));
        settings.write("[Main]\nLANGUAGE=EN\n"); // without it the program first asks a question
        settings.close();

        QProcess program;
        program.setWorkingDirectory(folder.path());
        program.start(QStringLiteral(KV_PROGRAM_PATH), QStringList());
        QVERIFY(program.waitForStarted());
        const QString appLog = folder.filePath(QStringLiteral("debug.log"));
        QTRY_VERIFY_WITH_TIMEOUT(content(appLog).contains("ui-thread="), 20000);
        QVERIFY(!content(appLog).contains("a line of the previous run"));
        QTRY_VERIFY(content(folder.filePath(QStringLiteral("qt6_debug.log"))).contains("Old log file was removed."));
        program.terminate();
        QVERIFY(program.waitForFinished());

        const QByteArray log = content(folder.filePath(QStringLiteral("qt6_debug.log")));
        static const QRegularExpression line(QStringLiteral(R"(^\[\d\d:\d\d:\d\d\.\d{3}\] (DBG|INF): .* \(.*:\d+\)$)"));
        for (const QByteArray &text : log.trimmed().split('\n'))
            QVERIFY2(line.match(QString::fromUtf8(text)).hasMatch(), text.constData());
    }

    /// A second program in the same folder leaves the logs of the first alone.
    void keepsTheLogsOfAnother()
    {
        const QTemporaryDir folder;
        QFile settings(folder.filePath(QStringLiteral("param.ini")));
        QVERIFY(settings.open(QIODevice::WriteOnly));
        settings.write("[Main]\nLANGUAGE=EN\n");
        settings.close();
        std::array<QProcess, 2> programs;
        for (QProcess &program : programs) {
            program.setWorkingDirectory(folder.path());
            program.start(QStringLiteral(KV_PROGRAM_PATH), QStringList());
            QVERIFY(program.waitForStarted());
            const QString name = &program == &programs.front()
                                     ? QStringLiteral("debug.log")
                                     : QStringLiteral("debug.%1.log").arg(program.processId());
            QTRY_VERIFY_WITH_TIMEOUT(content(folder.filePath(name)).contains("ui-thread="), 20000);
        }
        QCOMPARE(content(folder.filePath(QStringLiteral("debug.log"))).count("ui-thread="), 1);
        QVERIFY(!content(folder.filePath(QStringLiteral("qt6_debug.log"))).isEmpty());
        for (QProcess &program : programs) {
            program.terminate();
            QVERIFY(program.waitForFinished());
        }
    }

    // Read naively, these nested lists would overflow the stack.
    void startsWithDamagedSettings()
    {
        const QTemporaryDir folder;
        QFile settings(folder.filePath(QStringLiteral("param.ini")));
        QVERIFY(settings.open(QIODevice::WriteOnly));
        settings.write("[Main]\nLANGUAGE=@Variant(" + QByteArray(R"(\0\0\0\t\0\0\0\x1)").repeated(50000) + ")\n");
        settings.close();
        QProcess program;
        program.setWorkingDirectory(folder.path());
        program.start(QStringLiteral(KV_PROGRAM_PATH), QStringList());
        QVERIFY(program.waitForStarted());
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(settings.fileName() + QStringLiteral(".damaged")), 20000);
        QVERIFY(!program.waitForFinished(1500)); // it asks for the language
        program.terminate();
        program.waitForFinished();
    }

    void startsWhereNothingCanBeWritten()
    {
        QTemporaryDir folder;
        QProcess program;
        // The shell removes its own working folder, and the program must cope.
        program.start(
            QStringLiteral("/bin/sh"),
            {QStringLiteral("-c"),
             QStringLiteral("cd '%1' && rmdir '%1' && exec '%2'").arg(folder.path(), QStringLiteral(KV_PROGRAM_PATH))});
        QVERIFY(program.waitForStarted());
        QByteArray errors;
        QTRY_VERIFY_WITH_TIMEOUT((errors += program.readAllStandardError()).contains("Failed to open Qt6 log file:"),
                                 20000);
        QVERIFY(!program.waitForFinished(1500)); // it keeps running
        program.terminate();
        QVERIFY(program.waitForFinished());
    }
};

QTEST_GUILESS_MAIN(TestProgram)

#include "tst_program.moc"
