#include "capture/capture_channels.h"

#include "capture/capture_sample.h"

namespace {

constexpr quint16 kSerialSchema = 1;
constexpr quint16 kSampleSchema = 2;
constexpr quint16 kEventSchema = 3;

constexpr quint8 kDataField = 0x0A; // field 1, length-delimited

// FileDescriptorSet of message kv.SerialBytes { bytes data = 1; }, the tags and lengths of protobuf by hand:
//
//     0A 45                     file
//       0A 14 ...               its name
//       12 02 ...               package
//       22 21                   message
//         0A 0B ...             its name
//         12 12                 field
//           0A 04 ...           its name
//           18 01 20 01 28 0C   number 1, optional, of type bytes
//           52 04 ...           its name in JSON
//       62 06 ...               syntax
constexpr char kDescriptor[] = "\x0A\x45"
                               "\x0A\x14"
                               "kv_SerialBytes.proto"
                               "\x12\x02"
                               "kv"
                               "\x22\x21"
                               "\x0A\x0B"
                               "SerialBytes"
                               "\x12\x12"
                               "\x0A\x04"
                               "data"
                               "\x18\x01\x20\x01\x28\x0C"
                               "\x52\x04"
                               "data"
                               "\x62\x06"
                               "proto3";

/// A varint at `*offset`, which moves past it. Nothing when it is cut or longer than 64 bits.
std::optional<quint64> varint(QByteArrayView bytes, qsizetype *offset)
{
    quint64 value = 0;
    for (int shift = 0; shift < 64 && *offset < bytes.size(); shift += 7) {
        const auto byte = quint8(bytes[(*offset)++]);
        value |= quint64(byte & 0x7FU) << shift;
        if ((byte & 0x80U) == 0)
            return value;
    }
    return std::nullopt;
}

} // namespace

namespace capture_channels {

const QList<mcap::Schema> &schemas()
{
    static const QList<mcap::Schema> all{
        {kSerialSchema, "kv.SerialBytes", "protobuf", QByteArray(kDescriptor, sizeof kDescriptor - 1)},
        {kSampleSchema, "kv.Sample", "jsonschema", capture_json::sampleSchema()},
        {kEventSchema, "kv.Event", "jsonschema", capture_json::eventSchema()},
    };
    return all;
}

std::optional<mcap::Channel> channel(quint16 id)
{
    switch (id) {
    case kRx:
        return mcap::Channel{id, kSerialSchema, kRxTopic, "protobuf", {}};
    case kTx:
        return mcap::Channel{id, kSerialSchema, kTxTopic, "protobuf", {}};
    case kEvents:
        return mcap::Channel{id, kEventSchema, kEventsTopic, "json", {}};
    default:
        if (id < kFirstNode || id > node(0xFF))
            return std::nullopt;
        return mcap::Channel{id, kSampleSchema, "/imu/" + QByteArray::number(id - kFirstNode), "json", {}};
    }
}

QByteArray serialMessage(QByteArrayView bytes)
{
    QByteArray message;
    message.reserve(bytes.size() + 6);
    message += char(kDataField);
    auto length = quint64(bytes.size());
    for (; length >= 0x80; length >>= 7)
        message += char(length | 0x80U);
    message += char(length);
    message += bytes;
    return message;
}

std::optional<QByteArrayView> serialBytes(QByteArrayView message)
{
    QByteArrayView bytes;
    for (qsizetype at = 0; at < message.size();) {
        const std::optional<quint64> tag = varint(message, &at);
        if (!tag)
            return std::nullopt;
        quint64 skip = 0;
        switch (*tag & 7U) {
        case 0:
            if (!varint(message, &at))
                return std::nullopt;
            break;
        case 1:
            skip = 8;
            break;
        case 2: {
            const std::optional<quint64> length = varint(message, &at);
            if (!length)
                return std::nullopt;
            skip = *length;
            break;
        }
        case 5:
            skip = 4;
            break;
        default:
            return std::nullopt;
        }
        if (skip > quint64(message.size() - at))
            return std::nullopt;
        if (*tag == kDataField)
            bytes = message.sliced(at, qsizetype(skip));
        at += qsizetype(skip);
    }
    return bytes;
}

} // namespace capture_channels
