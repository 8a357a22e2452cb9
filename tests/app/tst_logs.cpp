#include <QDateTime>
#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <thread>

#include "app/app_log.h"
#include "app/message_log.h"
#include "support/files.h"

namespace {

constexpr QLatin1String kAppLog("debug.log");
constexpr QLatin1String kMessages("messages.log");

QString textOf(const QString &path)
{
    return QString::fromUtf8(readFile(path));
}

/// The handler that is installed while this lives; QtTest gets its own back.
class Installed
{
public:
    Installed() : m_before(qInstallMessageHandler(nullptr)) { message_log::install(); }
    ~Installed()
    {
        message_log::close();
        qInstallMessageHandler(m_before);
    }
    Q_DISABLE_COPY_MOVE(Installed)

private:
    QtMessageHandler m_before;
};

/// A program that creates its main window twice.
int startTwice()
{
    for (const char *message : {"first", "second"}) {
        AppLog::init();
        AppLog::logfile(QtInfoMsg, QLatin1String(message));
    }
    return 0;
}

/// A program that ends with a fatal message, with the log in the working folder or without one.
int dieOfAFatalMessage(bool withFile)
{
    if (withFile)
        message_log::open(kMessages);
    message_log::install();
    QMessageLogger("some.cpp", 7, "f").fatal("the end");
    return 0; // not reached
}

} // namespace

class TestLogs : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir::setCurrent(m_folder->path()));
    }
    void cleanup() { QDir::setCurrent(QDir::rootPath()); }

    void appLogLines()
    {
        const QString message = QStringLiteral("a=1 25 \u00B0C %1 %n");
        const QDateTime before = QDateTime::currentDateTime();
        for (const QtMsgType type : {QtDebugMsg, QtInfoMsg, QtWarningMsg, QtCriticalMsg, QtFatalMsg})
            AppLog::logfile(type, message);
        AppLog::logfile(QtInfoMsg, {});
        const QDateTime after = QDateTime::currentDateTime();

        QString text = textOf(kAppLog);
        static const QRegularExpression stamp(QStringLiteral("^\\((.{19})\\) "), QRegularExpression::MultilineOption);
        const QDateTime time =
            QDateTime::fromString(stamp.match(text).captured(1), QStringLiteral("yyyy-MM-dd HH:mm:ss"));
        QVERIFY2(time >= before.addSecs(-1) && time <= after, qPrintable(text));
        const QString lines = QStringLiteral("[D]: %0\r\n[I]: %0\r\n[W]: %0\r\n[C]: %0\r\n[F]: %0\r\n[I]: \r\n");
        QCOMPARE(text.remove(stamp), lines.arg(message));
    }

    void firstInitEmptiesTheAppLog_data()
    {
        QTest::addColumn<char>("before"); // the program finds nothing, a log, or a folder of that name
        QTest::addColumn<QByteArray>("said");
        QTest::newRow("nothing") << 'n' << QByteArray();
        QTest::newRow("log") << 'l' << QByteArray("Old log file was removed.\n");
        QTest::newRow("folder of that name") << 'f' << QByteArray();
        QTest::newRow("no working folder") << 'x' << QByteArray();
    }

    /// Permissions would not stop a test that runs as root.
    void firstInitEmptiesTheAppLog()
    {
        QFETCH(char, before);
        if (before == 'l')
            AppLog::logfile(QtInfoMsg, QStringLiteral("run before"));
        QVERIFY(before != 'f' || QDir().mkdir(kAppLog));
        QVERIFY(before != 'x' || m_folder->remove());
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--start-twice")});
        QVERIFY(child.waitForFinished());
        QVERIFY(child.exitStatus() == QProcess::NormalExit && child.exitCode() == 0);
        QTEST(child.readAllStandardError(), "said");
        static const QRegularExpression stamp(QStringLiteral("\\(.{19}\\) "));
        const bool isKept = before == 'n' || before == 'l';
        QCOMPARE(textOf(kAppLog).remove(stamp), isKept ? QStringLiteral("[I]: first\r\n[I]: second\r\n") : QString());
    }

    void messageLines()
    {
        const QString message = QStringLiteral("25 \u00B0C %1 (x:1)");
        const QTime before = QTime::currentTime();
        QString whileOpen;
        for (int run = 0; run < 2; ++run) { // the second run finds the file of the first and empties it
            QVERIFY(message_log::open(kMessages));
            const Installed installed;
            for (const QtMsgType type : {QtDebugMsg, QtInfoMsg, QtWarningMsg, QtCriticalMsg})
                qt_message_output(type, QMessageLogContext("folder/some.cpp", 42, "f", "default"), message);
            qt_message_output(QtInfoMsg, QMessageLogContext(), QString());
            whileOpen = textOf(kMessages); // complete at any time
        }
        QString text = textOf(kMessages);
        QCOMPARE(text, whileOpen);
        static const QRegularExpression stamp(QStringLiteral("^\\[(.{12})\\] "), QRegularExpression::MultilineOption);
        const QTime time = QTime::fromString(stamp.match(text).captured(1), QStringLiteral("HH:mm:ss.zzz"));
        QVERIFY2(time >= before || (time.isValid() && time < QTime(0, 5)), qPrintable(text)); // or past midnight
        const QString lines = QStringLiteral("DBG: %0\nINF: %0\nWRN: %0\nCRT: %0\nINF:  (:0)\n");
        QCOMPARE(text.remove(stamp), lines.arg(message + QStringLiteral(" (folder/some.cpp:42)")));
        const Installed installed; // without a file messages go nowhere
        qInfo("not written");
        QCOMPARE(textOf(kMessages), whileOpen);
    }

    void failsToOpen()
    {
        static const QRegularExpression told(QStringLiteral("^Failed to open Qt6 log file: no/such/file.log .+"));
        QTest::ignoreMessage(QtWarningMsg, told);
        QVERIFY(!message_log::open(QStringLiteral("no/such/file.log")));
        const Installed installed;
        qWarning("not written");
    }

    void fatalAborts()
    {
        for (const bool withFile : {true, false}) {
            QFile::remove(kMessages);
            QProcess child;
            child.start(QCoreApplication::applicationFilePath(),
                        {withFile ? QStringLiteral("--fatal-with-file") : QStringLiteral("--fatal")});
            QVERIFY(child.waitForFinished());
            QCOMPARE(child.exitStatus(), QProcess::CrashExit);
            QCOMPARE(QFile::exists(kMessages), withFile);
            QVERIFY(!withFile || textOf(kMessages).endsWith(QLatin1String("] FTL: the end (some.cpp:7)\n")));
        }
    }

    void manyThreads()
    {
        constexpr int kThreads = 4;
        constexpr int kLines = 500;
        static const QRegularExpression format(
            QStringLiteral("^(\\(.{19}\\) \\[I\\]|\\[.{12}\\] INF): (\\d) (\\d+) x{200}(\r| \\(.*:\\d+\\))$"));
        for (const bool toMessages : {false, true}) {
            QVERIFY(message_log::open(kMessages));
            const Installed installed;
            {
                std::jthread threads[kThreads];
                for (int thread = 0; thread < kThreads; ++thread) {
                    threads[thread] = std::jthread([thread, toMessages] {
                        for (int line = 0; line < kLines; ++line) {
                            const QString text = QStringLiteral("%1 %2 ").arg(thread).arg(line) + QString(200, u'x');
                            if (toMessages)
                                qInfo().noquote() << text;
                            else
                                AppLog::logfile(QtInfoMsg, text);
                        }
                    });
                }
            }
            // Every line whole, and those of a thread in their order.
            QStringList lines = textOf(toMessages ? kMessages : kAppLog).split(u'\n');
            QCOMPARE(lines.takeLast(), QString());
            QCOMPARE(lines.size(), kThreads * kLines);
            int next[kThreads] = {};
            for (const QString &line : std::as_const(lines)) {
                const QRegularExpressionMatch match = format.match(line);
                QVERIFY2(match.hasMatch() && match.captured(2).toInt() < kThreads, qPrintable(line));
                QCOMPARE(match.captured(3).toInt(), next[match.captured(2).toInt()]++);
            }
        }
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

int main(int argc, char *argv[])
{
    const QByteArray option(argc > 1 ? argv[1] : "");
    if (option.startsWith("--fatal"))
        return dieOfAFatalMessage(option == "--fatal-with-file");
    if (option == "--start-twice")
        return startTwice();
    QCoreApplication application(argc, argv);
    TestLogs test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_logs.moc"
