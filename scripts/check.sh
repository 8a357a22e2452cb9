#!/usr/bin/env bash
# check.sh: checks of form: the folder graph, colours outside the palette, links of the documents, formatting, qmllint,
# clang-tidy. Needs a configured dev build (./test makes one). Prints only what is wrong, and a line when all is well.
# Takes several minutes.
set -euo pipefail
if [ $# -gt 0 ]; then
  sed -n '2,/^set /{/^set /d;s/^# \{0,1\}//;p}' "${BASH_SOURCE[0]}"
  [ "$1" = --help ] || [ "$1" = -h ] || exit 2
  exit 0
fi
cd "$(dirname "${BASH_SOURCE[0]}")/.."

python3 scripts/check_folders.py
python3 scripts/check_colors.py
python3 scripts/check_links.py

mapfile -t files < <(git ls-files '*.cpp' '*.h')
clang-format-14 --dry-run --Werror "${files[@]}"

lint=$(mktemp)
trap 'rm -f "$lint"' EXIT
if ! cmake --build build/dev --target all_qmllint >"$lint" 2>&1; then
  cat "$lint" >&2
  echo "check: qmllint found problems, see above" >&2
  exit 1
fi

# Files of other systems do not compile here.
mapfile -t sources < <(git ls-files 'src/*.cpp' 'simulator/*.cpp' | grep -v -e '_windows.cpp$' -e '_macos.cpp$')
remarks=$(mktemp) # clang-tidy counts suppressed warnings there; worth reading only when it fails
trap 'rm -f "$lint" "$remarks"' EXIT
if ! printf '%s\0' "${sources[@]}" |
  xargs -0 -P 2 -n 4 clang-tidy-14 -p build/dev --quiet --extra-arg=-Wno-unknown-warning-option 2>"$remarks"; then
  cat "$remarks" >&2
  echo "check: clang-tidy found problems, see above" >&2
  exit 1
fi
echo "check: folders, colours, links, formatting, qmllint and clang-tidy are in order"
