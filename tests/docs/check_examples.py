#!/usr/bin/env python3
"""check_examples.py SIMULATOR: what the user guide shows about bytes is true. Its decoder reads what the simulator
sends, intact and through a bad cable; the packet that it works through by hand has the CRC that it says; its demo
firmware is a file that can be loaded."""
import binascii
import csv
import io
import os
import re
import select
import struct
import subprocess
import sys
import tempfile
from pathlib import Path

TOP = Path(__file__).parents[2]
DECODER = TOP / "docs/examples/decode_stream.py"
FIRMWARE = TOP / "docs/examples/demo_firmware.py"
FLASH = 0x08000000
PAGE = TOP / "docs/user-guide/device-formats.md"
ENOUGH = 20_000  # bytes
MOTION = {"acc_x": .25, "acc_y": -.5, "acc_z": .75, "gyr_x": 10.5, "gyr_y": -20.5, "gyr_z": 30.5, "mag_x": 12.5,
          "mag_y": -25, "mag_z": 37.5}
QUATERNION = {"quat_w": .8, "quat_x": .2, "quat_y": -.4, "quat_z": .4}
ANGLES = {"roll": 10, "pitch": -20, "yaw": 30}
SLOW = {"temperature": 25, "pressure": 101325}
CLOCK = {"time_ms": None}  # any number

# Options of the simulator, the items of a row, and the columns that it fills.
CASES = [
    (["--layout", "91"], {"91"}, MOTION | QUATERNION | ANGLES | SLOW | CLOCK | {"node": 1}),
    (["--layout", "93"], {"93"}, MOTION | QUATERNION | {"node": 1}),
    (["--layout", "items"], {"90+A0+B0+C0+D0+D1+F0"}, MOTION | QUATERNION | ANGLES | {"node": 1, "pressure": 101325}),
    (["--device", "gateway", "--layout", "62"], {"62"}, MOTION | QUATERNION | ANGLES | SLOW | CLOCK | {"gateway": 1}),
    (["--device", "gateway", "--layout", "63"], {"63"}, MOTION | QUATERNION | ANGLES | CLOCK | {"gateway": 1}),
    (["--noise", "2", "--drop", "1", "--insert", "1"], {"91"}, MOTION | QUATERNION | ANGLES | SLOW | CLOCK),
]


def record(simulator, options):
    """The bytes of a fixed device and the counts of its simulator."""
    device = subprocess.Popen([simulator, "--fixed", "--control", "--rate", "500", *options], text=True,
                              stdin=subprocess.PIPE, stdout=subprocess.PIPE)

    def ask(control):
        device.stdin.write(control + "\n")
        device.stdin.flush()
        return iter(device.stdout.readline, "ok\n")

    port = os.open(device.stdout.readline().removeprefix("port: ").strip(), os.O_RDWR | os.O_NOCTTY)
    stream = b""
    while len(stream) < ENOUGH:
        stream += os.read(port, 4096)
    list(ask("silent on"))
    counts = dict(re.findall(r"(\w+)=(\d+)", "".join(ask("stats"))))
    while select.select([port], [], [], 0.2)[0]:
        stream += os.read(port, 4096)
    os.close(port)
    device.communicate("quit\n")
    return stream, counts


def problems(simulator, options, items, expected):
    stream, counts = record(simulator, options)
    result = subprocess.run([sys.executable, DECODER, "-"], input=stream, capture_output=True)
    if result.returncode != 0:
        return [result.stderr.decode()]
    rows = list(csv.DictReader(io.StringIO(result.stdout.decode())))
    nodes = len({row["node"] for row in rows})
    found = []
    if len(rows) != int(counts["frames_intact"]) * nodes:
        found.append(f"{len(rows)} samples of {nodes} node(s), but {counts['frames_intact']} intact frames")
    for row in rows:
        step = 0.125 * (int(row["node"]) - 1) if "gateway" in options else 0  # nodes differ on x
        for column, text in row.items():
            wanted = expected.get(column, "")
            if column == "item":
                good = text in items
            elif column == "node" or wanted is None:
                good = text.isdigit()
            elif wanted == "":
                good = text == "" or column == "gateway"
            else:
                good = text != "" and abs(float(text) - wanted - (step if column == "acc_x" else 0)) < 2e-4
            if not good:
                return found + [f"{column} is {text!r}, not {wanted!r}"]
    return found


def worked_packet_problems():
    packets = re.findall(r"`(5A(?: [0-9A-F]{2})+)`", PAGE.read_text(encoding="utf-8"))
    if not packets:
        return ["no worked packet"]
    found = []
    for text in packets:
        packet = bytes.fromhex(text)
        if len(packet) > 6 and binascii.crc_hqx(packet[:4] + packet[6:], 0) != struct.unpack_from("<H", packet, 4)[0]:
            found.append(f"wrong CRC: {text}")
    return found


def firmware_problems():
    """The demo image is Intel HEX from the start of the flash on, without a gap, with vectors that pass for good."""
    with tempfile.TemporaryDirectory() as folder:
        path = Path(folder) / "demo.hex"
        subprocess.run([sys.executable, FIRMWARE, path, "65"], check=True)
        records = [bytes.fromhex(line[1:]) for line in path.read_text(encoding="ascii").splitlines()]
    image, upper = b"", 0
    for record in records:
        count, low, kind = struct.unpack_from(">BHB", record)
        if sum(record) & 0xFF or len(record) != count + 5:
            return [f"bad record {record.hex()}"]
        if kind == 4:
            upper = struct.unpack_from(">H", record, 4)[0] << 16
        elif kind == 0 and upper + low != FLASH + len(image):
            return [f"gap in front of {upper + low:#x}"]
        elif kind == 0:
            image += record[4:-1]
    stack, reset = struct.unpack_from("<II", image)
    good = len(image) == 65 * 1024 and stack % 4 == 0 and reset % 2 == 1 and 0 < reset - FLASH < len(image)
    return [] if good and records[-1][3] == 1 else ["wrong size, vectors or end"]


failed = [f"{PAGE.name}: {problem}" for problem in worked_packet_problems()]
failed += [f"{FIRMWARE.name}: {problem}" for problem in firmware_problems()]
for case in CASES:
    failed += [f"{' '.join(case[0])}: {problem}" for problem in problems(sys.argv[1], *case)]
print("\n".join(failed))
sys.exit(1 if failed else 0)
