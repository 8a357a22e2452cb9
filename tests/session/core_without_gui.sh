#!/usr/bin/env bash
# core_without_gui.sh PROGRAM...: fails when one of the programs, each linked with a folder's core, needs a
# window-system library.
set -euo pipefail
faults=0
for program in "$@"; do
  libraries=$(ldd "$program")
  if grep -E 'libQt6(Gui|Widgets|Quick|Qml)|libX11|libGL|libEGL' <<<"$libraries"; then
    echo "core_without_gui: $(basename "$program") needs them" >&2
    faults=1
  fi
done
exit "$faults"
