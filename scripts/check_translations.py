#!/usr/bin/env python3
"""Checks that every text of the program is translated into every language, and that each translation can be used:
nothing missing, unfinished or left over, the same placeholders, mnemonics where the source has one, the same blanks at
the ends, and no text left in English by oversight. Prints the faults; ends with 1 when there are any."""

import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as xml

ROOT = pathlib.Path(__file__).resolve().parent.parent
FOLDER = ROOT / "resources" / "translations"
ENGLISH = "KVCenter_en_US.ts"
# Words that are the same everywhere: units, names, abbreviations.
SAME = re.compile(r"^(?:[^A-Za-z]|KVCenter|kv_simulator|X|Y|Z|W|Norm|G|dB|GB|MB|KB|kB|Hz|ms|s|uT|Pa|deg|min|A|B|CSV|PNG|UUID|ID|OK|AT|"
                  r"IMU|ORVEL|baud|UTC|Fn|PPS|Ctrl|Esc|Home|End|F[0-9]+|M|RMS|\bt\b|Δ|%n|RFU|ENU|FLU|NWU|SP|PC|0x|SDID|KBOOT|Ctrl\+(?:Shift\+)?[A-Z0-9])+$")


def messages(path):
    """(context, source, comment) -> (type, translations) of a .ts file."""
    found = {}
    for context in xml.parse(path).getroot().findall("context"):
        for message in context.findall("message"):
            translation = message.find("translation")
            forms = [form.text or "" for form in translation.findall("numerusform")] or [translation.text or ""]
            key = (context.findtext("name"), message.findtext("source"), message.findtext("comment") or "")
            found[key] = (translation.get("type", ""), forms)
    return found


def faults_of(source, kind, forms, english):
    if kind:
        yield kind
    for form in forms:
        if not form.strip():
            yield "empty"
            continue
        if sorted(re.findall(r"%L?[0-9n]", form)) != sorted(re.findall(r"%L?[0-9n]", source)):
            yield f"other placeholders: {form!r}"
        if len(re.findall(r"&(?!amp;)\w", form)) != len(re.findall(r"&(?!amp;)\w", source)):
            yield f"mnemonic: {form!r}"
        if (form[0].isspace(), form[-1].isspace()) != (source[0].isspace(), source[-1].isspace()):
            yield f"blanks at the ends: {form!r}"
        if sorted(re.findall(r"</?\w+>", form)) != sorted(re.findall(r"</?\w+>", source)):
            yield f"other markup: {form!r}"
        if form == source and not english and not SAME.match(source):
            yield "the same as in English"


faults = []
with tempfile.TemporaryDirectory() as fresh:
    for path in FOLDER.glob("*.ts"):
        shutil.copy(path, fresh)
    subprocess.run([ROOT / "scripts" / "update_translations.sh", fresh], check=True)
    for path in sorted(FOLDER.glob("*.ts")):
        ours, wanted = messages(path), messages(pathlib.Path(fresh) / path.name)
        for key in wanted.keys() - ours.keys():
            faults.append(f"{path.name}: {key[0]}: {key[1]!r}: missing, run scripts/update_translations.sh")
        for key in ours.keys() - wanted.keys():
            faults.append(f"{path.name}: {key[0]}: {key[1]!r}: no such text in the program")
        for key, (kind, forms) in ours.items():
            faults += [f"{path.name}: {key[0]}: {key[1]!r}: {fault}"
                       for fault in faults_of(key[1], kind, forms, path.name == ENGLISH)]
print("\n".join(sorted(faults)), end="\n" if faults else "")
print(f"{len(faults)} faults in {len(list(FOLDER.glob('*.ts')))} translations")
sys.exit(1 if faults else 0)
