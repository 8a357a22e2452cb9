#!/usr/bin/env python3
"""Checks that no folder includes one on its own floor or above (src/, and qml/ by its imports), that the simulator
stands alone, that the other programs use nothing of each other, and that no window starts an event loop of its
own: a command that waits for its reply meanwhile would wait for the user as well."""

import pathlib
import re
import sys

FLOORS = {"app": 1, "link": 2, "attitude": 3, "record": 3, "capture": 3, "chart": 3, "device": 4, "session": 5, "wave": 6, "fft": 6,
          "updater": 6, "ui": 7}
INCLUDE = re.compile(r'^\s*#\s*include\s+"([a-z_]+)/')

# Modules of qml/: a view imports floors below its own folder's, and its own. Files at the top are the views that
# windows load by a fixed path.
MODULES = {"controls": 1, "chart": 2, "wave": 3, "fft": 3, "threed": 3, "": 4}
IMPORT = re.compile(r"^\s*import\s+KVCenter\.(\w+)")

# Other programs: what they may include besides src/ and their own files. Nothing in src/ includes them.
BESIDE = {"campaign": {"tests", "support", "e2e"}, "fuzz": {"simulator", "tests"}, "benchmarks": {"support", "e2e"}, "simulator": None}

# What runs a nested event loop. Use open(), show() or popup() and signals.
NESTED = re.compile(
    r"(->|\.|::)exec\(|QFileDialog::get|QMessageBox::(information|warning|critical|question|about|aboutQt)\("
    r"|Q(Input|Color|Font)Dialog::get|InstantPopup|MenuButtonPopup|->setMenu\("
)
LOOPS = {
    "src/main.cpp",  # the program's own loop
    "src/app/initial_language_picker.cpp",  # before there is a window
    "src/device/command_broker.cpp",
    "src/link/kboot_client.cpp",
    "src/record/recording_run.cpp",  # of a thread of its own
}

root = pathlib.Path(__file__).resolve().parent.parent
faults = []


def report(path, number, text):
    faults.append(f"{path.relative_to(root)}:{number}: {text}")


def lines(folder, suffixes):
    """Every line of the folder's files: path, the folder that it lies in, number, text."""
    for path in sorted(root.glob(f"{folder}/**/*")):
        if path.suffix in suffixes:
            own = path.relative_to(root / folder).parts
            for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
                yield path, own[0] if len(own) > 1 else "", number, line


SOURCES = {".h", ".cpp"}
for path, own, number, line in lines("src", SOURCES):
    if own and own not in FLOORS:
        report(path, number, f"folder {own} has no floor")
        continue
    if str(path.relative_to(root)) not in LOOPS and NESTED.search(line.split("//")[0]):
        report(path, number, "starts a nested event loop")
    match = INCLUDE.match(line)
    if match and own and match.group(1) != own and FLOORS.get(match.group(1), 99) >= FLOORS[own]:
        report(path, number, f"{own} may not include {match.group(1)}/")

for folder, others in BESIDE.items():
    for path, own, number, line in lines(folder, SOURCES):
        match = INCLUDE.match(line)
        other = match.group(1) if match else folder
        own_folders = {folder, own} | {p.name for p in (root / folder).iterdir() if p.is_dir()}
        if other in own_folders or (others is not None and (other in FLOORS or other in others)):
            continue
        report(path, number, f"{folder} may not include {other}/")

for path, own, number, line in lines("qml", {".qml", *SOURCES}):
    if own not in MODULES:
        report(path, number, f"folder {own} has no floor")
        continue
    match = IMPORT.match(line)
    other = match.group(1).lower() if match else own
    if other != own and MODULES.get(other, 99) >= MODULES[own]:
        report(path, number, f"qml/{own} may not import {match.group(1)}")

print("\n".join(faults), end="\n" if faults else "")
sys.exit(1 if faults else 0)
