#include "link/serial_source.h"

SerialSource::SerialSource(QSerialPort &port, const SourceAddress &address, QObject *parent)
    : ByteSource(address, parent), m_port(port)
{}

void SerialSource::open()
{
    m_port.setPortName(address().name);
    m_port.setBaudRate(address().baudRate);
    m_isOpen = m_port.open(QIODevice::ReadWrite);
    if (m_isOpen)
        emit opened();
    else
        fail(m_port.error());
}

void SerialSource::close()
{
    m_isOpen = false;
    if (m_port.isOpen())
        m_port.close();
}

qint64 SerialSource::write(const QByteArray &bytes)
{
    return m_port.write(bytes);
}

bool SerialSource::waitForBytesWritten(int ms)
{
    return m_port.waitForBytesWritten(ms);
}

void SerialSource::finish(int ms)
{
    if (m_port.bytesToWrite() > 0)
        m_port.waitForBytesWritten(ms);
}

void SerialSource::takeAvailable()
{
    if (!m_port.isReadable() || m_port.bytesAvailable() <= 0)
        return;
    const qint64 nowNs = steadyNs();
    emit received(m_port.readAll(), nowNs);
}

void SerialSource::takeError(QSerialPort::SerialPortError error)
{
    if (!m_isOpen || error == QSerialPort::NoError || error == QSerialPort::NotOpenError)
        return;
    fail(error);
}

void SerialSource::fail(QSerialPort::SerialPortError error)
{
    SourceFailure why = failure(SourceFault::Port);
    why.portError = error;
    // A device that has vanished stays readable and fails at every read, so an open port would report errors by the
    // thousand.
    close();
    emit failed(why);
}
