#!/usr/bin/env bash
# look.sh OUT.png [SECONDS] [./run options...]: starts ./run on a display without a screen, opens the remembered port as
# a user would (Ctrl+O, Enter), waits SECONDS (default 6) and takes a picture of the window.
set -euo pipefail
top=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
out=$(realpath -m -- "$1")
seconds=${2:-6}
shift "$(($# < 2 ? $# : 2))"

exec {display}< <(exec Xvfb -displayfd 1 -screen 0 "${LOOK_SCREEN:-1366x768x24}" -nolisten tcp 2>/dev/null)
xvfb=$!
run=""
cleanup() {
  [ -z "$run" ] || { kill "$run" 2>/dev/null && wait "$run" 2>/dev/null; } || true
  kill "$xvfb" 2>/dev/null || true
}
trap cleanup EXIT
read -r -t 20 number <&"$display"
export DISPLAY=":$number" QT_QPA_PLATFORM=xcb
# A language, so that the program does not first ask for one. LOOK_LANGUAGE chooses a language other than the last.
settings="$top/build/run/param.ini"
mkdir -p "${settings%/*}" && touch "$settings"
if [ -n "${LOOK_LANGUAGE:-}" ] || ! grep -q '^LANGUAGE=' "$settings"; then
  sed -i '/^LANGUAGE=/d' "$settings"
  grep -q '^\[Main\]' "$settings" || printf '[Main]\n' >>"$settings"
  sed -i "s/^\[Main\]/[Main]\nLANGUAGE=${LOOK_LANGUAGE:-EN}/" "$settings"
fi
openbox &
"$top/run" "$@" &
run=$!
until xdotool search --onlyvisible --name 'ORVEL-IMU' >/dev/null 2>&1; do
  kill -0 "$run" 2>/dev/null || { echo "look: ./run has ended" >&2; exit 1; }
  sleep 0.5
done
sleep 1
[ "${LOOK_OPEN:-1}" = 0 ] || { xdotool key ctrl+o; sleep 1; xdotool key Return; }
sleep "$seconds"
[ -z "${LOOK_KEYS:-}" ] || { xdotool key ${LOOK_KEYS}; sleep 2; }
import -window root "$out"
