#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTime>

#include <thread>
#include <vector>

#include "app/message_log.h"

namespace {

constexpr QLatin1String kFile("messages.log");

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

QStringList logLines()
{
    QFile file(kFile);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
    if (lines.takeLast() != QString())
        qFatal("the last line is not ended");
    return lines;
}

/// A program that ends with a fatal message, with the log in the working folder or without one.
int dieOfAFatalMessage(bool withFile)
{
    if (withFile)
        message_log::open(kFile);
    message_log::install();
    QMessageLogger("some.cpp", 7, "f").fatal("the end");
    return 0; // not reached
}

} // namespace

class TestMessageLog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void lines_data();
    void lines();
    void opening();
    void failsToOpen();
    void fatalAborts_data();
    void fatalAborts();
    void manyThreads();

private:
    QTemporaryDir m_folder;
};

void TestMessageLog::initTestCase()
{
    QVERIFY(QDir::setCurrent(m_folder.path()));
}

void TestMessageLog::lines_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("level");
    QTest::newRow("debug") << int(QtDebugMsg) << QStringLiteral("DBG");
    QTest::newRow("info") << int(QtInfoMsg) << QStringLiteral("INF");
    QTest::newRow("warning") << int(QtWarningMsg) << QStringLiteral("WRN");
    QTest::newRow("critical") << int(QtCriticalMsg) << QStringLiteral("CRT");
}

void TestMessageLog::lines()
{
    QFETCH(const int, type);
    QFETCH(const QString, level);
    const QTime before = QTime::currentTime();
    QStringList whileOpen;
    {
        QVERIFY(message_log::open(kFile));
        const Installed installed;
        qt_message_output(QtMsgType(type), QMessageLogContext("folder/some.cpp", 42, "f", "default"),
                          QStringLiteral("25 \u00B0C %1 (x:1)"));
        qt_message_output(QtMsgType(type), QMessageLogContext(), QString());
        whileOpen = logLines(); // complete at any moment
    }
    static const QRegularExpression format(QStringLiteral("^\\[(\\d\\d:\\d\\d:\\d\\d\\.\\d{3})\\] (.*)$"));
    QCOMPARE(whileOpen.size(), 2);
    const QRegularExpressionMatch first = format.match(whileOpen.at(0));
    QVERIFY2(first.hasMatch(), qPrintable(whileOpen.at(0)));
    QCOMPARE(first.captured(2), level + QStringLiteral(": 25 \u00B0C %1 (x:1) (folder/some.cpp:42)"));
    QCOMPARE(format.match(whileOpen.at(1)).captured(2), level + QStringLiteral(":  (:0)"));
    const QTime stamp = QTime::fromString(first.captured(1), QStringLiteral("HH:mm:ss.zzz"));
    QVERIFY(before.msecsTo(stamp) >= 0 || stamp < QTime(0, 5)); // or past midnight
    QCOMPARE(logLines(), whileOpen);
}

void TestMessageLog::opening()
{
    QVERIFY(message_log::open(kFile));
    {
        const Installed installed;
        qInfo("first run");
    }
    QCOMPARE(logLines().size(), 1);
    QVERIFY(message_log::open(kFile));
    {
        const Installed installed;
        QCOMPARE(logLines().size(), 0); // emptied
    }
    {
        const Installed installed; // without a file messages go nowhere
        qInfo("not written");
    }
    QCOMPARE(logLines().size(), 0);
}

void TestMessageLog::failsToOpen()
{
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QStringLiteral("^Failed to open Qt6 log file: no/such/file.log .+")));
    QVERIFY(!message_log::open(QStringLiteral("no/such/file.log")));
    const Installed installed;
    qWarning("not written");
}

void TestMessageLog::fatalAborts_data()
{
    QTest::addColumn<bool>("withFile");
    QTest::newRow("with a file") << true;
    QTest::newRow("without") << false;
}

void TestMessageLog::fatalAborts()
{
    QFETCH(const bool, withFile);
    QFile::remove(kFile);
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(),
                {withFile ? QStringLiteral("--fatal-with-file") : QStringLiteral("--fatal")});
    QVERIFY(child.waitForFinished());
    QCOMPARE(child.exitStatus(), QProcess::CrashExit);
    if (withFile) {
        QCOMPARE(logLines().size(), 1);
        QVERIFY(logLines().constFirst().endsWith(QLatin1String("] FTL: the end (some.cpp:7)")));
    }
    QCOMPARE(QFile::exists(kFile), withFile);
}

void TestMessageLog::manyThreads()
{
    constexpr int kThreads = 4;
    constexpr int kLines = 500;
    const QString tail(200, u'x');
    QVERIFY(message_log::open(kFile));
    {
        const Installed installed;
        std::vector<std::thread> threads;
        threads.reserve(kThreads);
        for (int thread = 0; thread < kThreads; ++thread) {
            threads.emplace_back([thread, &tail] {
                for (int line = 0; line < kLines; ++line)
                    QMessageLogger("t.cpp", thread, "f").info("%d %s", line, qPrintable(tail));
            });
        }
        for (std::thread &thread : threads)
            thread.join();
    }
    static const QRegularExpression format(
        QStringLiteral("^\\[[\\d:.]{12}\\] INF: (\\d+) x{200} \\(t\\.cpp:(\\d)\\)$"));
    int next[kThreads] = {};
    const QStringList lines = logLines();
    QCOMPARE(lines.size(), kThreads * kLines);
    for (const QString &line : lines) {
        const QRegularExpressionMatch match = format.match(line);
        QVERIFY2(match.hasMatch(), qPrintable(line));
        const int thread = match.captured(2).toInt();
        QVERIFY(thread < kThreads);
        QCOMPARE(match.captured(1).toInt(), next[thread]++);
    }
}

int main(int argc, char *argv[])
{
    const QByteArray option(argc > 1 ? argv[1] : "");
    if (option.startsWith("--fatal"))
        return dieOfAFatalMessage(option == "--fatal-with-file");
    QCoreApplication application(argc, argv);
    TestMessageLog test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_message_log.moc"
