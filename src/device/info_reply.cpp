#include "device/info_reply.h"

#include <QtEndian>

#include <algorithm>

#include "link/framing_packet.h"
#include "link/kboot_protocol.h"

namespace {

using namespace framing_packet;

constexpr qsizetype kMaxLines = 64;
constexpr qsizetype kMaxLineLength = 256;
constexpr qsizetype kMinReadableEnd = 4;

// Bytes that may be checked in vain, as a multiple of the reply's size. A reply made of nothing but packet headers
// would otherwise have the same bytes checked hundreds of times.
constexpr qsizetype kMaxVainChecks = 4;

/// Size of the packet that the header at `offset` announces, 0 if there is no header.
qsizetype announcedSize(const QByteArray &bytes, qsizetype offset)
{
    if (bytes.size() - offset < kHeaderSize || quint8(bytes[offset]) != kStartByte
        || quint8(bytes[offset + 1]) != kTypeData)
        return 0;
    const qsizetype size = kHeaderSize + qFromLittleEndian<quint16>(bytes.constData() + offset + kLengthOffset);
    return size <= kMaxPacketSize ? size : 0;
}

QByteArray withoutPackets(const QByteArray &reply)
{
    QByteArray rest;
    rest.reserve(reply.size());
    qsizetype vainBudget = kMaxVainChecks * reply.size();
    qsizetype offset = 0;
    while (offset < reply.size()) {
        const qsizetype size = vainBudget > 0 ? announcedSize(reply, offset) : 0;
        if (size > reply.size() - offset) {
            // A packet that the window's end has cut. With a line in it, it may as well be noise in front of text.
            if (reply.indexOf('\n', offset) < 0)
                break;
            vainBudget -= reply.size() - offset;
        } else if (size > 0) {
            const QByteArray packet = QByteArray::fromRawData(reply.constData() + offset, size);
            if (KbootProtocol::do_crc_check(packet) == qFromLittleEndian<quint16>(packet.constData() + kCrcOffset)) {
                offset += size;
                continue;
            }
            vainBudget -= size;
        }
        rest.append(reply[offset]);
        ++offset;
    }
    return rest;
}

bool isBad(QChar character)
{
    // A byte order mark is taken off a line's beginning by the toolkit; behind noise it would be an invisible
    // beginning.
    return character == QChar::ReplacementCharacter || character == QChar::ByteOrderMark
           || (character.category() == QChar::Other_Control && character != u'\t');
}

/// The readable part of one line; empty if there is none.
QString readable(QString line)
{
    const qsizetype bad = std::count_if(line.cbegin(), line.cend(), isBad);
    if (bad * 4 > line.size()) {
        const qsizetype end = std::find_if(line.crbegin(), line.crend(), isBad) - line.crbegin();
        if (end < kMinReadableEnd)
            return {};
        line = line.last(end);
    }
    line.truncate(line.size() > kMaxLineLength && line[kMaxLineLength].isLowSurrogate() ? kMaxLineLength - 1
                                                                                        : kMaxLineLength);
    std::replace_if(line.begin(), line.end(), isBad, QChar(u' '));
    return line.trimmed().isEmpty() ? QString() : line;
}

bool isLineEnd(char byte)
{
    return byte == '\r' || byte == '\n';
}

/// The answer to a command before the question, come late.
bool isAcknowledge(const QString &line)
{
    const QString word = line.trimmed();
    return word == QLatin1String("OK") || word == QLatin1String("ERROR");
}

} // namespace

QList<QString> info_reply::lines(const QByteArray &reply)
{
    const QByteArray text = withoutPackets(reply);
    QList<QString> result;
    auto begin = text.cbegin();
    while (begin != text.cend() && result.size() < kMaxLines) {
        const auto end = std::find_if(begin, text.cend(), isLineEnd);
        const QString line = readable(QString::fromUtf8(begin, end - begin));
        if (!line.isEmpty())
            result.append(line);
        begin = end == text.cend() ? end : end + 1;
    }
    return result;
}

QList<QString> info_reply::withoutLateAnswers(const QList<QString> &lines)
{
    const auto first = std::find_if_not(lines.cbegin(), lines.cend(), isAcknowledge);
    return {first, lines.cend()};
}
