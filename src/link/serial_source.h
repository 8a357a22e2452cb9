#pragma once

#include <QSerialPort>

#include "link/byte_source.h"

/// A serial port as a source of bytes: 8N1 without flow control. The port is the caller's, who passes on its
/// readyRead() and errorOccurred() by queued calls of takeAvailable() and takeError(): a port may not be closed from
/// inside its own notifier.
class SerialSource : public ByteSource
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SerialSource)

public:
    /// `port` outlives this object.
    SerialSource(QSerialPort &port, const SourceAddress &address, QObject *parent = nullptr);

    void open() override;
    void close() override;
    bool isOpen() const override { return m_isOpen; }
    qint64 write(const QByteArray &bytes) override;
    bool waitForBytesWritten(int ms) override;
    void finish(int ms) override;

    /// The port has bytes to read.
    void takeAvailable();
    /// The port reported an error. One whose device has vanished is closed.
    void takeError(QSerialPort::SerialPortError error);

private:
    void fail(QSerialPort::SerialPortError error);

    QSerialPort &m_port;
    bool m_isOpen = false;
};
