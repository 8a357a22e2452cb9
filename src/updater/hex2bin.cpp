#include "updater/hex2bin.h"

#include <QtEndian>

#include "app/app_log.h"

namespace {

constexpr quint32 kNoAddress = 0xFFFFFFFF;
constexpr int kDataOffset = 4;
constexpr quint8 kDataRecord = 0;
constexpr quint8 kEndRecord = 1;
constexpr quint8 kSegmentRecord = 2;
constexpr quint8 kLinearRecord = 4;
/// Characters in a line, far above the 521 of the longest record: a file without line ends is not a HEX file.
constexpr qint64 kMaxLine = 4096;
/// Gaps that are logged one by one. A file may consist of nothing else, and every line opens the log again.
constexpr int kMaxGapLines = 1000;
/// Lines after the end of the image that are examined.
constexpr int kMaxRestLines = 100'000;
constexpr quint64 kAddressSpace = quint64(1) << 32;

quint64 absoluteAddrLocal = 0; ///< address of the next data byte; 0: no data yet
quint32 ExLineAddr = 0;        ///< upper bits of the address
quint32 ExStageAddr = 0;       ///< offset of the segment
quint32 s_start_addr = kNoAddress;
quint32 firstDataAddr = kNoAddress;
int gapLines = 0; ///< in this conversion
hex2bin::Cut lastCut = hex2bin::Cut::None;

/// The effect of a line on the conversion; the last four end it.
enum class LineResult { Next, EndRecord, NoDigits, OtherRecord, Failed };

bool isRecord(const QByteArray &bytes)
{
    const int count = quint8(bytes.at(0));
    if (bytes.size() <= kDataOffset + count)
        return false;
    quint8 sum = 0;
    for (qsizetype i = 0; i < bytes.size() - 1; ++i)
        sum = quint8(sum + quint8(bytes.at(i)));
    // An address record may be padded before its checksum; in a data record surplus bytes would be lost.
    const auto checksum = char(-sum);
    return checksum == bytes.at(kDataOffset + count)
           || (quint8(bytes.at(3)) != kDataRecord && checksum == bytes.back());
}

LineResult appendData(const QByteArray &record, QByteArray &image)
{
    const quint32 count = quint8(record.at(0));
    const quint32 offset = qFromBigEndian<quint16>(record.constData() + 1);
    const quint64 address = ExStageAddr == 0 ? offset | ExLineAddr : offset + ExStageAddr;
    // An image that begins at the very last address would have the address that stands for none.
    const bool isNowhere = firstDataAddr == kNoAddress && address == kNoAddress;
    if (address + count > kAddressSpace || isNowhere) {
        AppLog::logfile(QtWarningMsg, QStringLiteral("hex2bin, record beyond the address space"));
        return LineResult::Failed;
    }
    if (s_start_addr == kNoAddress)
        s_start_addr = quint32(address);
    if (firstDataAddr == kNoAddress)
        firstDataAddr = quint32(address);
    if (absoluteAddrLocal == 0)
        absoluteAddrLocal = address;
    if (address < absoluteAddrLocal) {
        AppLog::logfile(QtWarningMsg, QStringLiteral("hex2bin, records run backwards: 0x%1 after 0x%2")
                                          .arg(address, 8, 16, QLatin1Char('0'))
                                          .arg(absoluteAddrLocal, 8, 16, QLatin1Char('0')));
        return LineResult::Failed;
    }
    const auto gap = quint32(address - absoluteAddrLocal);
    if (image.size() + qint64(gap) + count > hex2bin::kMaxImageSize) {
        AppLog::logfile(
            QtWarningMsg,
            QStringLiteral("hex2bin, image too large at 0x%1, gap=%2").arg(address, 8, 16, QLatin1Char('0')).arg(gap));
        return LineResult::Failed;
    }
    if (gap > 0) {
        image.append(gap, '0');
        if (gapLines++ < kMaxGapLines)
            AppLog::logfile(QtInfoMsg, QStringLiteral("hex2bin, Bytesskipped=%1").arg(gap));
    }
    image.append(record.constData() + kDataOffset, count);
    absoluteAddrLocal += gap + count;
    return LineResult::Next;
}

LineResult takeLine(const QString &line, QByteArray &image)
{
    const QByteArray bytes = QByteArray::fromHex(line.toLatin1());
    if (bytes.isEmpty() && line.size() < kMaxLine)
        return LineResult::NoDigits;
    if (line.size() >= kMaxLine || !isRecord(bytes)) {
        AppLog::logfile(QtWarningMsg, QStringLiteral("hex2bin, read_hex_line failed"));
        return LineResult::Failed;
    }
    const quint8 type = quint8(bytes.at(3));
    if (type == kDataRecord)
        return appendData(bytes, image);
    if (type == kEndRecord)
        return LineResult::EndRecord;
    if (type != kSegmentRecord && type != kLinearRecord)
        return LineResult::OtherRecord;
    if (quint8(bytes.at(0)) < 2) {
        AppLog::logfile(QtWarningMsg, QStringLiteral("hex2bin, address record without an address"));
        return LineResult::Failed;
    }
    const quint32 value = qFromBigEndian<quint16>(bytes.constData() + kDataOffset);
    ExStageAddr = type == kSegmentRecord ? value << 2 : 0;
    ExLineAddr = type == kLinearRecord ? value << 16 : 0;
    return LineResult::Next;
}

/// Looks at what follows the line that ended an image.
hex2bin::Cut cutBy(LineResult last, QTextStream &rest)
{
    bool endSeen = last == LineResult::EndRecord;
    for (int i = 0; i < kMaxRestLines && !rest.atEnd(); ++i) {
        const QByteArray bytes = QByteArray::fromHex(rest.readLine(kMaxLine).toLatin1());
        if (bytes.size() <= kDataOffset || !isRecord(bytes))
            continue;
        endSeen = endSeen || quint8(bytes.at(3)) == kEndRecord;
        if (quint8(bytes.at(3)) != kDataRecord || bytes.at(0) == 0)
            continue;
        switch (last) {
        case LineResult::EndRecord:
            return hex2bin::Cut::DataAfterEnd;
        case LineResult::OtherRecord:
            return hex2bin::Cut::OtherRecordInside;
        default:
            return hex2bin::Cut::BlankLineInside;
        }
    }
    return endSeen ? hex2bin::Cut::None : hex2bin::Cut::NoEndRecord;
}

} // namespace

QByteArray hex2bin::convert(QTextStream &in)
{
    absoluteAddrLocal = 0;
    ExLineAddr = 0;
    ExStageAddr = 0;
    firstDataAddr = kNoAddress;
    gapLines = 0;
    lastCut = Cut::None;
    QByteArray image;
    for (;;) {
        const LineResult result = takeLine(in.readLine(kMaxLine), image);
        if (result == LineResult::Failed)
            return {};
        if (result != LineResult::Next) {
            lastCut = cutBy(result, in);
            return image;
        }
    }
}

unsigned int hex2bin::start_addr()
{
    return s_start_addr;
}

QByteArray hex2bin::preview(QTextStream &in)
{
    const quint32 kept = s_start_addr;
    QByteArray image = convert(in);
    s_start_addr = kept;
    return image;
}

unsigned int hex2bin::first_data_addr()
{
    return firstDataAddr;
}

hex2bin::Cut hex2bin::cut()
{
    return lastCut;
}
