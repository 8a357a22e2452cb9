#!/usr/bin/env python3
"""Decodes the bytes that a device has sent and prints its samples as CSV.

    stty -F /dev/ttyUSB0 115200 raw -echo        # see docs/user-guide/device-formats.md
    timeout 5 cat /dev/ttyUSB0 > stream.bin
    decode_stream.py stream.bin > samples.csv    # "-" reads standard input
"""
import binascii
import struct
import sys

HEADER = struct.Struct("<BBHH")  # 0x5A, packet type, payload length, CRC
DATA_PACKET = 0xA5
LONGEST_PACKET = 2047
FULL = struct.Struct("<xBxbfI16f")  # 0x91 and the records of 0x62, 76 bytes
COMPACT = struct.Struct("<xB13h")  # 0x93, 28 bytes
COMPACT_EULER = struct.Struct("<xB16h")  # the records of 0x63, 34 bytes
BATCH = struct.Struct("<xBBxI")  # gateway, number of records, gateway time
VECTORS = {0xA0: ("acc", 1000), 0xB0: ("gyr", 10), 0xB1: ("gyr", 10), 0xC0: ("mag", 10)}
COLUMNS = ("item", "gateway", "node", "time_ms", "temperature", "pressure", "acc_x", "acc_y", "acc_z", "gyr_x", "gyr_y",
           "gyr_z", "mag_x", "mag_y", "mag_z", "roll", "pitch", "yaw", "quat_w", "quat_x", "quat_y", "quat_z")


def payloads(stream):
    """The payloads of all good data packets. After a bad one the search continues at its second byte."""
    at = stream.find(0x5A)
    while at >= 0:
        end = at + HEADER.size
        if end <= len(stream):
            _, kind, length, crc = HEADER.unpack_from(stream, at)
            end += length
            if (kind == DATA_PACKET and HEADER.size + length <= LONGEST_PACKET and end <= len(stream)
                    and binascii.crc_hqx(stream[at:at + 4] + stream[at + 6:end], 0) == crc):
                yield stream[at + HEADER.size:end]
                at = stream.find(0x5A, end)
                continue
        at = stream.find(0x5A, at + 1)


def vector(name, values):
    axes = ("w", "x", "y", "z") if name == "quat" else ("x", "y", "z")
    return {f"{name}_{axis}": value for axis, value in zip(axes, values)}


def full_record(record):
    node, temperature, pressure, time_ms, *v = FULL.unpack(record)
    return {"node": node, "time_ms": time_ms, "temperature": temperature, "pressure": pressure,
            **vector("acc", v[0:3]), **vector("gyr", v[3:6]), **vector("mag", v[6:9]),
            "roll": v[9], "pitch": v[10], "yaw": v[11], **vector("quat", v[12:16])}


def compact_record(layout, record):
    node, *v = layout.unpack(record)
    sample = {"node": node, **vector("acc", [n / 1000 for n in v[0:3]]), **vector("mag", [n / 10 for n in v[3:6]]),
              **vector("gyr", [n / 10 for n in v[6:9]]), **vector("quat", [n / 32767 for n in v[9:13]])}
    return sample | dict(zip(("roll", "pitch", "yaw"), (n / 100 for n in v[13:16])))


def samples(payload):
    """The samples of one payload: one of a module, one per radio node of a gateway batch."""
    items, single, at = [], {}, 0
    while at < len(payload):
        tag = payload[at]
        rest = payload[at:]
        if tag in (0x62, 0x63) and len(rest) >= BATCH.size:
            gateway, count, time_ms = BATCH.unpack_from(rest)
            at += BATCH.size
            size = FULL.size if tag == 0x62 else COMPACT_EULER.size
            for record in [payload[at + k * size:at + (k + 1) * size] for k in range(count)]:
                if len(record) == size:
                    sample = full_record(record) if tag == 0x62 else compact_record(COMPACT_EULER, record)
                    clock = {} if tag == 0x62 else {"time_ms": time_ms}
                    yield {"item": f"{tag:02X}", "gateway": gateway, **sample, **clock}
            at += count * size
            continue
        length, values = item(tag, rest)
        if values is not None:
            items.append(f"{tag:02X}")
            single.update(values)
        at += length
    if items:
        yield {"item": "+".join(items), **single}


def item(tag, rest):
    """Length and values of a small item or record; one byte and None for what is unknown or cut off."""
    if tag == 0x90 and len(rest) >= 2:
        return 2, {"node": rest[1]}
    if tag == 0x91 and len(rest) >= FULL.size:
        return FULL.size, full_record(rest[:FULL.size])
    if tag == 0x93 and len(rest) >= COMPACT.size:
        return COMPACT.size, compact_record(COMPACT, rest[:COMPACT.size])
    if tag in VECTORS and len(rest) >= 7:
        name, scale = VECTORS[tag]
        return 7, vector(name, [n / scale for n in struct.unpack_from("<3h", rest, 1)])
    if tag == 0xD0 and len(rest) >= 7:
        pitch, roll, yaw = struct.unpack_from("<3h", rest, 1)
        return 7, {"roll": roll / 100, "pitch": pitch / 100, "yaw": yaw / 10}
    if tag == 0xD1 and len(rest) >= 17:
        return 17, vector("quat", struct.unpack_from("<4f", rest, 1))
    if tag == 0xF0 and len(rest) >= 5:
        return 5, {"pressure": struct.unpack_from("<f", rest, 1)[0]}
    return (33 if tag == 0x60 else 1), None  # 0x60 is filler


def main():
    with (sys.stdin.buffer if sys.argv[1] == "-" else open(sys.argv[1], "rb")) as source:
        stream = source.read()
    print(",".join(COLUMNS))
    for payload in payloads(stream):
        for sample in samples(payload):
            print(",".join(f"{sample.get(c, ''):.6g}" if isinstance(sample.get(c), float) else str(sample.get(c, ""))
                           for c in COLUMNS))


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    main()
