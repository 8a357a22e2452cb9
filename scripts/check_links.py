#!/usr/bin/env python3
"""Rejects dead links in the documents: files, pictures and headings; also pictures that no page shows, or that
are larger than 150 KiB."""
import re
import subprocess
import sys
from pathlib import Path

TOP = Path(__file__).parents[1]
LARGEST_PICTURE = 150 * 1024


def headings(page):
    """Anchors as common viewers generate them: lower case, blanks to dashes, punctuation dropped."""
    text = re.sub(r"^```.*?^```", "", page.read_text(encoding="utf-8"), flags=re.M | re.S)
    titles = re.findall(r"^#+ (.+)$", text, flags=re.M)
    return {re.sub(r"[^\w\- ]", "", title.lower()).replace(" ", "-") for title in titles}


listed = subprocess.run(["git", "ls-files", "-co", "--exclude-standard", "*.md", "docs/images/*"], cwd=TOP, check=True,
                        capture_output=True, text=True).stdout.split("\n")
files = [TOP / name for name in listed if name and (TOP / name).exists()]
problems, shown = [], set()
for page in (file for file in files if file.suffix == ".md"):
    for link in re.findall(r"\]\(([^)\s]+)\)", re.sub(r"`[^`\n]*`", "", page.read_text(encoding="utf-8"))):
        if re.match(r"\w+:", link):
            continue
        name, _, anchor = link.partition("#")
        target = (page.parent / name).resolve() if name else page
        shown.add(target)
        if not target.exists():
            problems.append(f"{page.relative_to(TOP)}: {link} does not exist")
        elif anchor and anchor not in headings(target):
            problems.append(f"{page.relative_to(TOP)}: {link} has no such heading")
for picture in (file for file in files if file.parent.name == "images"):
    if picture not in shown:
        problems.append(f"{picture.relative_to(TOP)}: no page shows it")
    if picture.stat().st_size > LARGEST_PICTURE:
        problems.append(f"{picture.relative_to(TOP)}: larger than {LARGEST_PICTURE} bytes")
print("\n".join(problems), end="\n" if problems else "")
sys.exit(1 if problems else 0)
