#!/usr/bin/env bash
# campaign.sh [--minutes M | --quick | --table] [--seed N] ...: the faults of firmware updates (kv_update_matrix), the
# program killed in 50 updates, then the fault campaign, on the release build and a separate display; further words go
# to kv_campaign. docs/fault-campaign.md explains them. Ends with 1 when a goal was not met, or with the program's
# signal when it crashed. Its log of actions is campaign.log in the folder that the first line names.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

log=$(mktemp)
xvfb=""
cleanup() {
  [ -z "$xvfb" ] || { kill "$xvfb" 2>/dev/null && wait "$xvfb" 2>/dev/null; } || true
  rm -f "$log"
}
trap cleanup EXIT
trap 'exit 130' INT TERM
if ! { cmake --preset release && cmake --build --preset release --target kv_campaign kv_update_matrix tst_update_kills; } >"$log" 2>&1; then
  cat "$log" >&2
  echo "campaign: the build failed, see above" >&2
  exit 1
fi

build/release/bin/kv_update_matrix || {
  echo "campaign: the faults of firmware updates were not survived, see above" >&2
  exit 1
}

exec {display}< <(exec Xvfb -displayfd 1 -screen 0 1920x1080x24 -nolisten tcp 2>/dev/null)
xvfb=$!
if ! read -r -t 20 number <&"$display"; then
  echo "campaign: Xvfb did not start" >&2
  exit 1
fi
export DISPLAY=":$number" QT_QPA_PLATFORM=xcb LC_ALL=C.UTF-8
unset WAYLAND_DISPLAY
KV_UPDATE_KILLS=50 build/release/bin/tst_update_kills || {
  echo "campaign: a killed update was not survived, see above" >&2
  exit 1
}
code=0
build/release/bin/kv_campaign "$@" || code=$?
[ "$code" -lt 128 ] || echo "campaign: the program crashed by signal $((code - 128))" >&2
exit "$code"
