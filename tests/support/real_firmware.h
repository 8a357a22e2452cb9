#pragma once

#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QString>
#include <QStringList>

/// A real program for a real chip, if the machine has one: named by KV_FIRMWARE_HEX, or the one from the Debian package
/// firmware-microbit-micropython. Cut and converted by srec_cat (Debian package srecord).
namespace real_firmware {

/// Path of the HEX file; empty when it or srec_cat is missing.
inline QString path()
{
    const QString package = QStringLiteral("/usr/share/firmware-microbit-micropython/firmware.hex");
    const QString file = qEnvironmentVariable("KV_FIRMWARE_HEX", package);
    return QFile::exists(file) && !QStandardPaths::findExecutable(QStringLiteral("srec_cat")).isEmpty() ? file
                                                                                                        : QString();
}

constexpr char kMissing[] = "Needs a real HEX file (firmware-microbit-micropython, or KV_FIRMWARE_HEX) and srecord.";

/// The program in flash (the records after it configure the chip), converted by srec_cat with `options`, as file
/// content.
inline QByteArray convert(const QByteArray &options, const char *format)
{
    QProcess tool;
    QStringList words{path(), QStringLiteral("-intel"), QStringLiteral("-crop"), QStringLiteral("0"),
                      QStringLiteral("0x10000000")};
    words += QString::fromLatin1(options).split(u' ', Qt::SkipEmptyParts);
    words += {QStringLiteral("-o"), QStringLiteral("-"), QString::fromLatin1(format)};
    tool.start(QStringLiteral("srec_cat"), words);
    return tool.waitForFinished() && tool.exitCode() == 0 ? tool.readAllStandardOutput() : QByteArray();
}

} // namespace real_firmware
