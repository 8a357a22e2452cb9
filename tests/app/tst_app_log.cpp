#include <QDateTime>
#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <thread>
#include <vector>

#include "app/app_log.h"

namespace {

QByteArray logBytes()
{
    QFile file(QStringLiteral("debug.log"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class TestAppLog : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void line_data();
    void line();
    void initEmpties();
    void unwritable_data();
    void unwritable();
    void manyThreads();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestAppLog::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir::setCurrent(m_folder->path()));
}

void TestAppLog::cleanup()
{
    QDir::setCurrent(QDir::rootPath());
}

void TestAppLog::line_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("tag");
    QTest::newRow("debug") << int(QtDebugMsg) << QStringLiteral("[D]: ");
    QTest::newRow("info") << int(QtInfoMsg) << QStringLiteral("[I]: ");
    QTest::newRow("warning") << int(QtWarningMsg) << QStringLiteral("[W]: ");
    QTest::newRow("critical") << int(QtCriticalMsg) << QStringLiteral("[C]: ");
    QTest::newRow("fatal") << int(QtFatalMsg) << QStringLiteral("[F]: ");
    QTest::newRow("any other") << 77 << QStringLiteral("[T]: ");
}

void TestAppLog::line()
{
    QFETCH(const int, type);
    QFETCH(const QString, tag);
    const QString message = QStringLiteral("a=1 25 \u00B0C %1 %n");
    const QDateTime before = QDateTime::currentDateTime();
    AppLog::logfile(QtMsgType(type), message);
    AppLog::logfile(QtMsgType(type), {});
    const QDateTime after = QDateTime::currentDateTime();

    const QList<QByteArray> lines = logBytes().split('\n');
    QCOMPARE(lines.size(), 3);
    QCOMPARE(lines.last(), QByteArray());
    static const QRegularExpression format(
        QStringLiteral("^\\((\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d)\\) (.*)\r$"));
    const QRegularExpressionMatch first = format.match(QString::fromUtf8(lines.at(0)));
    QVERIFY2(first.hasMatch(), lines.at(0).constData());
    QCOMPARE(first.captured(2), tag + message);
    QCOMPARE(format.match(QString::fromUtf8(lines.at(1))).captured(2), tag);
    const QDateTime stamp = QDateTime::fromString(first.captured(1), QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    QVERIFY(stamp >= before.addSecs(-1) && stamp <= after);
}

void TestAppLog::initEmpties()
{
    AppLog::init(); // without a file nothing is reported and none is made
    QVERIFY(!QFile::exists(QStringLiteral("debug.log")));
    AppLog::logfile(QtInfoMsg, QStringLiteral("run before"));
    QTest::ignoreMessage(QtDebugMsg, "Old log file was removed.");
    AppLog::init();
    QCOMPARE(logBytes(), QByteArray());
    AppLog::logfile(QtInfoMsg, QStringLiteral("this run"));
    QVERIFY(logBytes().endsWith("[I]: this run\r\n"));
}

void TestAppLog::unwritable_data()
{
    QTest::addColumn<bool>("folderGone");
    QTest::newRow("a folder of that name") << false;
    QTest::newRow("working folder gone") << true;
}

void TestAppLog::unwritable()
{
    // Permissions would not stop a test that runs as root.
    QFETCH(const bool, folderGone);
    if (folderGone)
        QVERIFY(m_folder->remove());
    else
        QVERIFY(QDir().mkdir(QStringLiteral("debug.log")));
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    AppLog::init();
    AppLog::logfile(QtInfoMsg, QStringLiteral("lost"));
    QCOMPARE(logBytes(), QByteArray());
}

void TestAppLog::manyThreads()
{
    constexpr int kThreads = 4;
    constexpr int kLines = 200;
    const auto text = [](int thread, int line) {
        return QStringLiteral("thread=%1 line=%2 ").arg(thread).arg(line) + QString(100, QChar(u'a' + thread));
    };
    std::vector<std::thread> threads;
    threads.reserve(kThreads);
    for (int thread = 0; thread < kThreads; ++thread) {
        threads.emplace_back([thread, &text] {
            for (int line = 0; line < kLines; ++line)
                AppLog::logfile(QtInfoMsg, text(thread, line));
        });
    }
    for (std::thread &thread : threads)
        thread.join();

    // Every line whole, and those of a thread in their order.
    const QStringList lines = QString::fromUtf8(logBytes()).split(QStringLiteral("\r\n"), Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), kThreads * kLines);
    int next[kThreads] = {};
    for (const QString &line : lines) {
        const QString message = line.mid(line.indexOf(QLatin1String("[I]: ")) + 5);
        const int thread = message.mid(7, 1).toInt();
        QVERIFY(thread >= 0 && thread < kThreads);
        QCOMPARE(message, text(thread, next[thread]++));
    }
}

QTEST_GUILESS_MAIN(TestAppLog)
#include "tst_app_log.moc"
