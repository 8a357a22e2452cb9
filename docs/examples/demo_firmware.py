#!/usr/bin/env python3
"""demo_firmware.py FILE.hex [KIB]: writes an Intel HEX image for trying the firmware update with the simulator.

It looks like firmware (stack pointer, reset vector, numbers up to its end), but no chip can run it: never load it into
a real device.
"""
import struct
import sys

FLASH = 0x08000000
STACK_TOP = 0x20005000


def record(kind, address, data):
    body = struct.pack(">BHB", len(data), address, kind) + data
    return ":" + (body + bytes([-sum(body) & 0xFF])).hex().upper() + "\n"


def main(path, kib=48):
    image = struct.pack("<II", STACK_TOP, FLASH + 0x101)  # odd: Thumb code
    image += b"build 2026-05-17"  # the simulated device reports it
    image += bytes(n * 7 % 251 for n in range(kib * 1024 - len(image)))
    with open(path, "w", encoding="ascii") as out:
        for at in range(0, len(image), 16):
            if at % 0x10000 == 0:
                out.write(record(4, 0, struct.pack(">H", (FLASH + at) >> 16)))
            out.write(record(0, at % 0x10000, image[at:at + 16]))
        out.write(record(1, 0, b""))


if __name__ == "__main__":
    if len(sys.argv) not in (2, 3):
        sys.exit(__doc__)
    main(sys.argv[1], *map(int, sys.argv[2:]))
