#!/usr/bin/env bash
# with_display.sh PROGRAM [ARGUMENTS...]: runs a test with windows on a separate display. Without a window manager the
# keyboard has one owner; with a display each, such tests can run in parallel. KV_SCREEN is its size in pixels.
set -euo pipefail
exec {numbers}< <(exec Xvfb -displayfd 1 -screen 0 "${KV_SCREEN:-1366x768}x24" -nolisten tcp 2>/dev/null)
server=$!
trap 'kill "$server" 2>/dev/null || true' EXIT
if ! read -r -t 20 number <&"$numbers"; then
  echo "with_display: Xvfb did not start" >&2
  exit 1
fi
export DISPLAY=":$number"
"$@"
