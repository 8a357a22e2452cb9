#include "link/byte_source.h"

#include <chrono>

ByteSource::ByteSource(const SourceAddress &address, QObject *parent) : QObject(parent), m_address(address) {}

qint64 ByteSource::write(const QByteArray & /*bytes*/)
{
    return -1;
}

bool ByteSource::waitForBytesWritten(int /*ms*/)
{
    return false;
}

void ByteSource::finish(int /*ms*/) {}

qint64 ByteSource::steadyNs()
{
    using std::chrono::nanoseconds;
    using std::chrono::steady_clock;
    return std::chrono::duration_cast<nanoseconds>(steady_clock::now().time_since_epoch()).count();
}

SourceFailure ByteSource::failure(SourceFault fault, const QString &detail) const
{
    return {m_address, fault, detail, QSerialPort::NoError, isOpen()};
}
