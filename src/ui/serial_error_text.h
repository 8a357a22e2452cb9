#pragma once

#include <QSerialPort>
#include <QString>

/// Explains why a serial port could not be opened, or why it was lost, and what to do about it.
namespace serial_error_text {

/// What is known about the port when an error is reported.
struct PortFacts
{
    QString port;           ///< as the user chose it
    int baudRate = 0;       ///< baud
    bool exists = true;     ///< the device file is there; true where ports are not files
    bool accessible = true; ///< this user may read and write the device file; true where ports are not files
    QString group;          ///< group of the device file whose members may open it; empty when there is none
    QString user;           ///< login name of this user
};

/// Inspects the device file of `port` and the logged-in user.
PortFacts facts(const QString &port, int baudRate);

/// One or two sentences, without a title, plain text. Empty for QSerialPort::NoError.
QString describe(QSerialPort::SerialPortError error, const PortFacts &facts);

} // namespace serial_error_text
