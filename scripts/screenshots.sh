#!/usr/bin/env bash
# screenshots.sh [NAME...]: retakes the pictures of docs/images, all or those named: the real program with the simulator
# on a display without a screen, driven by keys and mouse as a user would. Each picture starts from fresh settings, so
# that it can be repeated; the figures in it depend on when it was taken.
set -euo pipefail
top=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
images="$top/docs/images"
programs="$top/build/release/bin"
work=/tmp/kvcenter # appears in some pictures
limit=$((150 * 1024))

"$top/scripts/setup.sh"
cd "$top"
mkdir "$work" || { echo "screenshots: $work must not exist" >&2; exit 1; }
desktop=()
program=""
simulator=""

# end_process NAME: ends the process whose id is in that variable, if there is one
end_process() {
  local -n id=$1
  [ -z "$id" ] || { kill "$id" 2>/dev/null && wait "$id" 2>/dev/null; } || true
  id=""
}
end_scene() {
  end_process program
  end_process simulator
}
cleanup() {
  end_scene
  for job in "${desktop[@]}"; do end_process job; done
  rm -rf "$work"
}
trap cleanup EXIT
trap 'exit 130' INT TERM
if ! { cmake --preset release && cmake --build --preset release --target kvcenter kv_simulator; } >"$work/log" 2>&1; then
  cat "$work/log" >&2
  exit 1
fi

exec {display}< <(exec Xvfb -displayfd 1 -screen 0 1366x768x24 -nolisten tcp 2>/dev/null)
desktop+=($!)
read -r -t 20 number <&"$display"
export DISPLAY=":$number" QT_QPA_PLATFORM=xcb LC_ALL=C.UTF-8 XDG_RUNTIME_DIR="$work/runtime"
mkdir -m 700 "$XDG_RUNTIME_DIR"
unset WAYLAND_DISPLAY
openbox 2>/dev/null &
desktop+=($!)

# device OPTIONS...: the simulated device at $work/imu, its controls at descriptor $controls
device() {
  coproc SIMULATOR { exec "$programs/kv_simulator" --link "$work/imu" --control "$@"; }
  simulator=$SIMULATOR_PID
  exec {answers}<&"${SIMULATOR[0]}" {controls}>&"${SIMULATOR[1]}"
  read -r -t 10 _ <&"$answers"
}

# control WORDS...: changes the device while it is running
control() {
  echo "$@" >&"$controls"
  read -r -t 10 _ <&"$answers"
}

# program [KEY=VALUE...]: KVCenter with fresh settings; its window is open and has the focus
program() {
  rm -rf "$work/settings" && mkdir "$work/settings"
  ln -s "$top/build/release/objModel" "$work/settings/objModel"
  printf '[Main]\nLANGUAGE=EN\n[SERIAL]\nPORT=%s\nBAUDRATE=921600\n' "$work/imu" >"$work/settings/param.ini"
  printf '%s\n' "$@" >>"$work/settings/param.ini"
  (cd "$work/settings" && exec "$programs/kvcenter") &
  program=$!
  window '^ORVEL-IMU'
}

# window PATTERN: waits for a window and gives it the focus
window() {
  for _ in $(seq 200); do
    window=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | tail -1) && [ -n "$window" ] && break
    sleep 0.2
  done
  [ -n "$window" ] || { echo "screenshots: no window $1" >&2; exit 1; }
  xdotool windowactivate --sync "$window" 2>/dev/null || true
  sleep 1
}

keys() { for key in "$@"; do xdotool key "$key"; sleep 0.3; done; }
click() { xdotool mousemove --window "$window" "$1" "$2" click 1; sleep 0.3; }
enter() { click "$1" "$2"; keys ctrl+a; xdotool type "$3"; keys Tab; } # X Y TEXT: into the field at that place
rest_mouse() { xdotool mousemove 1365 767; }

# connected: opens the remembered port
connected() {
  keys ctrl+o
  sleep 1
  keys Return
  sleep 3
}

# take NAME [CONVERT OPTIONS...]: takes the picture of the window, with its frame, and ends the scene
take() {
  local file="$images/$1.png"
  shift
  rest_mouse
  sleep 1
  import -frame -window "$window" "$work/picture.png"
  # Few colours are enough, and no time of day goes into the file.
  convert "$work/picture.png" "$@" -strip +dither -colors 200 -define png:exclude-chunks=date,time \
    -define png:compression-level=9 "PNG8:$file"
  [ "$(stat -c %s "$file")" -le "$limit" ] || { echo "screenshots: $file is too large" >&2; exit 1; }
  echo "screenshots: ${file#"$top/"} $(stat -c %s "$file") bytes"
}

scene_language() {
  program
  end_process program
  sed -i '/^LANGUAGE=/d' "$work/settings/param.ini"
  (cd "$work/settings" && exec env LC_ALL=en_US.UTF-8 "$programs/kvcenter") &
  program=$!
  window '^Choose Language'
  take language
}

scene_welcome() {
  program
  take welcome
}

scene_open_port() {
  device
  program
  keys ctrl+o
  window '^Open serial port'
  take open-port
}

scene_main_window() {
  device
  program
  connected
  sleep 6
  take main-window
}

scene_device_settings() {
  device
  program
  connected
  keys ctrl+e
  window '^Device settings'
  take device-settings
}

scene_device_commands() {
  device --device kv104
  program
  connected
  keys ctrl+e
  window '^Device settings'
  keys alt+o
  take device-commands
}

scene_record() {
  device
  program
  connected
  keys ctrl+r
  window '^Record to file'
  keys alt+s
  sleep 6
  take record
}

scene_waves() {
  device
  program
  connected
  keys ctrl+d
  window '^Sensor Dashboard|Wave'
  sleep 9
  take waves
}

scene_gateway() {
  device --device gateway --nodes 16 --layout 62 --rate 50
  program
  connected
  keys ctrl+g
  window '^Wireless Gateway Dashboard'
  click 200 155 # nodes 2 and 16
  click 200 617
  sleep 6
  control nodes 15
  sleep 4
  take gateway
}

scene_overlay() {
  device --device gateway --nodes 15 --layout 62 --rate 50
  program '[WIRELESS_DASHBOARD]' 'NODES=1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15' OVERLAID=true
  connected
  keys ctrl+g
  window '^Wireless Gateway Dashboard'
  sleep 8
  take overlay
}

scene_playback() {
  device --rate 200
  program
  connected
  keys ctrl+F9
  sleep 9
  keys ctrl+F9 ctrl+w
  sleep 1
  keys ctrl+shift+o
  sleep 2
  xdotool type "$(ls "$work"/settings/*.mcap)"
  keys Return
  sleep 5
  take playback
}

scene_link_health() {
  device --device gateway --nodes 4 --rate 50 --noise 0.02
  program
  connected
  keys ctrl+l
  window '^Link health'
  sleep 8
  take link-health
}

spectrum() {
  device --rate 1000 --vibration 62.5:0.05:z:0.5,0.25
  program
  connected
  keys ctrl+f
  window '^FFT Analysis'
  click 45 24 # Start
  sleep 2     # the status text gets its own row
  click 633 102 # Fit
}

scene_spectrum() {
  spectrum
  click 1054 137 # Industrial
  sleep 3
  take spectrum
}

scene_spectrum_rule() {
  spectrum
  click 1054 137 # Industrial
  click 1201 137 # Custom
  sleep 1
  enter 1019 239 30 # watch from
  enter 1174 239 40 # alarm from
  take spectrum-rule
  click 996 322 # Use this rule
  sleep 1
  control vibration off
  control vibration add 62.5:0.035:z:0.5,0.25
  sleep 2
  take spectrum-watch
  control vibration off
  control vibration add 62.5:0.02:z:0.5,0.25
  sleep 2
  take spectrum-cleared
}

firmware() {
  "$top/docs/examples/demo_firmware.py" "$work/demo.hex"
  device --baud 921600 --packet-size 512 "$@"
  program '[UPDATER]' "PATH=$work/demo.hex"
  connected
  keys alt+t f
  window '^Firmware Update'
}

scene_firmware() {
  firmware
  click 591 150 # Connect
  sleep 4
  take firmware-ready
  click 517 263 # Download
  sleep 6
  take firmware-done
}

scene_firmware_wrong() {
  firmware --bootloader "flip 40"
  click 591 150
  sleep 4
  click 517 263
  sleep 8
  take firmware-wrong
}

scene_firmware_doubts() {
  firmware
  head -n 2000 "$work/demo.hex" >"$work/half.hex"
  end_process program
  program '[UPDATER]' "PATH=$work/half.hex"
  connected
  keys alt+t f
  window '^Firmware Update'
  take firmware-doubts
}

scene_firmware_interrupted() {
  firmware
  click 591 150
  sleep 4
  click 517 263
  sleep 0.6
  kill -9 "$program" && wait "$program" 2>/dev/null || true
  (cd "$work/settings" && exec "$programs/kvcenter") &
  program=$!
  window '^ORVEL-IMU'
  sleep 2
  keys Tab Return # "Connect" of the reminder
  window '^Firmware Update'
  take firmware-interrupted
}

scene_firmware_failed() {
  firmware --bootloader "ignore 40:1000000"
  click 591 150
  sleep 4
  click 517 263
  sleep 4
  take firmware-failed
}

scene_threed() {
  device
  program
  connected
  keys ctrl+3
  window '^3D view'
  sleep 2
  take threed
}

scene_about() {
  program
  keys alt+h Return
  window '^About'
  take about
}

scenes=("$@")
[ "${#scenes[@]}" -gt 0 ] || mapfile -t scenes < <(declare -F | sed -n 's/^declare -f scene_//p' | tr _ -)
for scene in "${scenes[@]}"; do
  "scene_${scene//-/_}"
  end_scene
done
