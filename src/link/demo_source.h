#pragma once

#include <QProcess>
#include <QTimer>

#include <memory>

#include "link/serial_source.h"

/// The simulator as a child process, which gives a serial port: its device is there as long as the connection. It ends
/// with this object, also when this program is killed.
class DemoSource : public ByteSource
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(DemoSource)

public:
    /// `port` as for SerialSource.
    DemoSource(QSerialPort &port, const SourceAddress &address, QObject *parent = nullptr);
    ~DemoSource() override;

    /// The simulator's program: beside this one, or on the search path; empty when there is none.
    static QString program();

    void open() override;
    void close() override;
    bool isOpen() const override { return m_serial != nullptr && m_serial->isOpen(); }
    qint64 write(const QByteArray &bytes) override { return isOpen() ? m_serial->write(bytes) : -1; }
    bool waitForBytesWritten(int ms) override { return isOpen() && m_serial->waitForBytesWritten(ms); }
    void finish(int ms) override;

    /// The port's end; null before the simulator has given its name.
    SerialSource *serial() const { return m_serial.get(); }

private:
    void readName();
    void fail(const QString &detail);

    QSerialPort &m_port;
    QProcess m_process;
    QTimer m_startLimit;
    std::unique_ptr<SerialSource> m_serial;
    bool m_wasOpen = false;
};
