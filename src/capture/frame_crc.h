#pragma once

#include <QtGlobal>

/// CRC-16/XMODEM (polynomial 0x1021, no reflection, no final XOR) by tables, sixteen bytes at a time. Equal to
/// KbootProtocol::crc16(), which computes it bit by bit on the live line.
quint16 frameCrc(quint16 crc, const quint8 *data, qsizetype size);
