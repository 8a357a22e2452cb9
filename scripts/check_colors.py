#!/usr/bin/env python3
"""Checks that colours are named in one place, src/app/palette.cpp, so that every window follows the appearance. Colours
that a quantity has by its nature stand beside the quantity, and are drawn through Palette::drawn()."""

import pathlib
import re
import sys

PALETTE = {"src/app/palette.cpp"}
# Files with natural colours, and the style sheet that the spectrum window has in the light.
ALLOWED = {
    "src/wave/sensor_types.cpp": re.compile(r"constexpr QColor k(X|Y|Z|Black|Gray)\{"),
    "src/fft/form_fftchart.cpp": re.compile(r'"background-color:white; color:black;"'),
}

NAMES = r"white|black|red|green|blue|cyan|magenta|yellow|gr[ae]y|orange|(dark|light)(gr[ae]y|red|green|blue)"
LITERAL = re.compile(
    r'#(?:[0-9A-Fa-f]{8}|[0-9A-Fa-f]{6}|[0-9A-Fa-f]{3})\b'  # "#RRGGBB", in style sheets too
    r"|QColor(?:\s+\w+)?\s*[({]\s*(?:0x|\d|Qt::|\")"
    r"|QColor::from(?!HslF|String)\w+\(\s*(?:0x|\d)"
    rf"|Qt::({NAMES})\b"
    r"|Qt\.(?:rgba|hsla|hsva|tint)\(\s*[\d.]"
    rf'|[cC]olor\w*\s*:[^;{{}}]*["? ]({NAMES})["; ]',
    re.IGNORECASE,
)
COMMENT = re.compile(r"^\s*(//|\*|#\s*(include|define|if|endif|pragma))|//[^\"]*$")

root = pathlib.Path(__file__).resolve().parent.parent
faults = []
for path in sorted([*root.glob("src/**/*"), *root.glob("qml/**/*")]):
    name = str(path.relative_to(root))
    if path.suffix not in {".h", ".cpp", ".qml", ".ui"} or name in PALETTE:
        continue
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        if name in ALLOWED and ALLOWED[name].search(line):
            continue
        if match := LITERAL.search(COMMENT.sub("", line)):
            faults.append(f"{name}:{number}: {match.group(0).strip()} stands outside the palette")
print("\n".join(faults), end="\n" if faults else "")
sys.exit(1 if faults else 0)
