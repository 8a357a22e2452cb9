#!/usr/bin/env python3
"""Checks that no folder of src/ includes one on its own floor or above, that the simulator stands alone, and that no
window starts an event loop of its own: a command that waits for its reply meanwhile would wait for the user as well."""

import pathlib
import re
import sys

FLOORS = {"app": 1, "link": 2, "attitude": 3, "record": 3, "device": 4, "session": 5, "wave": 6, "fft": 6, "updater": 6,
          "ui": 7}
# fft/ takes its ring of samples from wave/.
ALLOWED = {("fft", "wave")}
INCLUDE = re.compile(r'^\s*#\s*include\s+"([a-z_]+)/')

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
for path in sorted([*root.glob("src/*/**/*"), *root.glob("simulator/**/*")]):
    if path.suffix not in {".h", ".cpp"}:
        continue
    parts = path.relative_to(root).parts
    own = parts[1] if parts[0] == "src" else "simulator"
    if own != "simulator" and own not in FLOORS:
        faults.append(f"{path.relative_to(root)}: folder {own} has no floor")
        continue
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        if own != "simulator" and str(path.relative_to(root)) not in LOOPS and NESTED.search(line.split("//")[0]):
            faults.append(f"{path.relative_to(root)}:{number}: starts a nested event loop")
        match = INCLUDE.match(line)
        other = match.group(1) if match else own
        if other == own or (own, other) in ALLOWED:
            continue
        if own == "simulator" or other not in FLOORS or FLOORS[other] >= FLOORS[own]:
            faults.append(f"{path.relative_to(root)}:{number}: {own} may not include {other}/")
print("\n".join(faults), end="\n" if faults else "")
sys.exit(1 if faults else 0)
