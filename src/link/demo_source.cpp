#include "link/demo_source.h"

#include <QCoreApplication>
#include <QStandardPaths>

namespace {

constexpr int kStartMs = 5000;
constexpr int kEndMs = 1000;
constexpr qsizetype kMaxName = 200;

constexpr QLatin1String kProgram("kv_simulator");

} // namespace

DemoSource::DemoSource(QSerialPort &port, const SourceAddress &address, QObject *parent)
    : ByteSource(address, parent), m_port(port), m_process(this), m_startLimit(this)
{
    m_startLimit.setSingleShot(true);
    m_startLimit.setInterval(kStartMs);
    m_process.setStandardErrorFile(QProcess::nullDevice());
    connect(&m_startLimit, &QTimer::timeout, this, [this] { fail({}); });
    connect(&m_process, &QProcess::readyReadStandardOutput, this, &DemoSource::readName);
    connect(&m_process, &QProcess::errorOccurred, this, [this] { fail(m_process.errorString()); });
    connect(&m_process, &QProcess::finished, this, [this] { fail({}); });
}

DemoSource::~DemoSource()
{
    DemoSource::close();
}

QString DemoSource::program()
{
    const QString beside = QStandardPaths::findExecutable(kProgram, {QCoreApplication::applicationDirPath()});
    return beside.isEmpty() ? QStandardPaths::findExecutable(kProgram) : beside;
}

void DemoSource::open()
{
    const QString found = program();
    if (found.isEmpty()) {
        emit failed(failure(SourceFault::SimulatorMissing, kProgram));
        return;
    }
    m_startLimit.start();
    // With controls on its standard input it ends when that does, however this program ends.
    m_process.start(found,
                    {QStringLiteral("--control"), QStringLiteral("--baud"), QString::number(address().baudRate)});
}

void DemoSource::close()
{
    m_startLimit.stop();
    if (m_serial != nullptr)
        m_serial->close();
    m_process.disconnect(this);
    m_process.kill();
    m_process.waitForFinished(kEndMs);
}

void DemoSource::finish(int ms)
{
    if (isOpen())
        m_serial->finish(ms);
}

void DemoSource::readName()
{
    const QByteArray prefix("port: ");
    if (m_serial != nullptr || !m_process.canReadLine())
        return;
    const QByteArray line = m_process.readLine(kMaxName).trimmed();
    if (!line.startsWith(prefix))
        return fail({});
    m_startLimit.stop();
    const QString name = QString::fromLocal8Bit(line.mid(prefix.size()));
    m_serial = std::make_unique<SerialSource>(m_port, SourceAddress::serial(name, address().baudRate));
    connect(m_serial.get(), &ByteSource::opened, this, [this] {
        m_wasOpen = true;
        emit opened();
    });
    connect(m_serial.get(), &ByteSource::received, this, &ByteSource::received);
    connect(m_serial.get(), &ByteSource::failed, this, [this] { fail({}); });
    m_serial->open();
}

void DemoSource::fail(const QString &detail)
{
    SourceFailure why = failure(SourceFault::SimulatorEnded, detail);
    why.wasOpen = m_wasOpen;
    close();
    emit failed(why);
}
