#include "device/info_reply.h"

#include <QtEndian>

#include <algorithm>

#include "device/product_resolver.h"
#include "link/framing_packet.h"
#include "link/kboot_protocol.h"

namespace {

using namespace framing_packet;

constexpr qsizetype kMaxLines = 64;
constexpr qsizetype kMaxLineLength = 256;
constexpr qsizetype kMinReadableEnd = 4;

// Limit on bytes checked in vain, as a multiple of the reply's size. Otherwise, in a reply made of nothing but packet
// headers, the same bytes would be checked hundreds of times.
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

/// @param packets receives the number of well-formed packets, unless it is null
QByteArray withoutPackets(const QByteArray &reply, qsizetype *packets = nullptr)
{
    QByteArray rest;
    rest.reserve(reply.size());
    qsizetype vainBudget = kMaxVainChecks * reply.size();
    qsizetype offset = 0;
    while (offset < reply.size()) {
        const qsizetype size = vainBudget > 0 ? announcedSize(reply, offset) : 0;
        if (size > reply.size() - offset) {
            // A packet cut off by the end of the window. If it contains a line, it may as well be noise before text.
            if (reply.indexOf('\n', offset) < 0)
                break;
            vainBudget -= reply.size() - offset;
        } else if (size > 0) {
            const QByteArray packet = QByteArray::fromRawData(reply.constData() + offset, size);
            if (KbootProtocol::do_crc_check(packet) == qFromLittleEndian<quint16>(packet.constData() + kCrcOffset)) {
                offset += size;
                if (packets != nullptr)
                    ++*packets;
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
    // The toolkit strips a byte order mark from the start of a line; after noise it would be an invisible start.
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

bool isMostlyBad(const QByteArray &text)
{
    const QString characters = QString::fromUtf8(text);
    qsizetype bad = 0;
    qsizetype ends = 0;
    for (const QChar character : characters) {
        if (character == u'\r' || character == u'\n')
            ++ends;
        else if (isBad(character))
            ++bad;
    }
    return bad * 4 > characters.size() - ends;
}

/// A whole line that cannot be chance: nothing but text between line ends, either an acknowledge or long enough. The
/// pair CR LF is as rare as two more characters.
bool hasWholeLine(const QByteArray &text)
{
    constexpr qsizetype kMinLine = 8;
    constexpr qsizetype kMinLineBeforePair = 4;
    auto begin = text.cbegin();
    while (begin != text.cend()) {
        const auto end = std::find_if(begin, text.cend(), isLineEnd);
        if (end == text.cend())
            return false;
        const QString line = QString::fromUtf8(begin, end - begin).trimmed();
        const bool isPair = *end == '\r' && end + 1 != text.cend() && end[1] == '\n';
        const bool isLong = line.size() >= (isPair ? kMinLineBeforePair : kMinLine);
        if ((isLong || (isPair && info_reply::isAcknowledge(line))) && std::none_of(line.cbegin(), line.cend(), isBad))
            return true;
        begin = end + 1;
    }
    return false;
}

/// Names and words that are too long to appear by chance.
bool hasKnownWord(const QList<QString> &lines)
{
    const DetectedDevice device = product_resolver::resolve(lines);
    return !device.matchedAlias.isEmpty() || !device.uuidLine.isEmpty() || !device.buildLine.isEmpty()
           || device.modelLine.contains(u"GATEWAY", Qt::CaseInsensitive);
}

} // namespace

info_reply::Kind info_reply::kindOf(const QByteArray &reply)
{
    qsizetype packets = 0;
    const QByteArray text = withoutPackets(reply, &packets);
    if (!isMostlyBad(text) || hasWholeLine(text) || hasKnownWord(lines(reply)))
        return Kind::Text;
    return packets > 0 ? Kind::Packets : Kind::Noise;
}

bool info_reply::isAcknowledge(const QString &line)
{
    const QString word = line.trimmed();
    return word.compare(QLatin1String("OK"), Qt::CaseInsensitive) == 0
           || word.compare(QLatin1String("ERROR"), Qt::CaseInsensitive) == 0;
}

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
