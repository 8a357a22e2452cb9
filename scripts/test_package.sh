#!/usr/bin/env bash
# test_package.sh [FOLDER]: builds the Debian package, makes a bare Debian 12 in a temporary folder, installs the
# package there without recommended packages, starts the program as an ordinary user with the installed simulator,
# checks for live data, windows and a recording, and removes the package again. Pictures of the windows, logs and
# figures go into FOLDER (default build/package-test): look at them. Needs root, a Debian mirror and about 1.5 GB; takes
# some minutes. The bare system has its own mounts and processes, which end with this script, however it ends.
set -euo pipefail
top=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
mirror=${KV_DEBIAN_MIRROR:-http://deb.debian.org/debian}

if [ "${1:-}" != --inside ]; then
  out=$(realpath -m -- "${1:-$top/build/package-test}")
  [ "$(id -u)" = 0 ] || { echo "test_package: needs root" >&2; exit 1; }
  mkdir -p "$out"
  rm -f "$out"/*.png "$out"/*.log
  "$top/scripts/setup.sh"
  if ! { cd "$top" && cmake --preset release && cmake --build --preset release --target kvcenter kv_simulator; } \
    >"$out/build.log" 2>&1; then
    cat "$out/build.log" >&2
    exit 1
  fi
  "$top/scripts/check_package.sh"
  root=$(mktemp -d)
  chmod 755 "$root"
  xvfb=""
  cleanup() {
    [ -z "$xvfb" ] || kill "$xvfb" 2>/dev/null || true
    rm -rf --one-file-system "$root"
  }
  trap cleanup EXIT
  trap 'exit 130' INT TERM
  exec {display}< <(exec Xvfb -displayfd 1 -screen 0 1366x768x24 -nolisten tcp 2>/dev/null)
  xvfb=$!
  read -r -t 20 number <&"$display"
  DISPLAY=":$number" unshare --mount --pid --fork --kill-child "$0" --inside "$root" "$out"
  exit 0
fi

root=$2 out=$3
started=$(date +%s)
log=$out/steps.log
step() {
  printf '%4d s  %s\n' "$(($(date +%s) - started))" "$*" | tee -a "$log"
}
fail() {
  step "FAIL: $*" >&2
  import -window root "$out/failed.png" || true
  exit 1
}
inside() { # a command as root
  env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LANG=C.UTF-8 DEBIAN_FRONTEND=noninteractive chroot "$root" "$@"
}
as_user() { # VARIABLE=VALUE... COMMAND...: as the ordinary user, replacing the shell
  exec env -i PATH=/usr/bin:/bin HOME=/home/tester USER=tester LANG=en_US.UTF-8 DISPLAY="$DISPLAY" \
    /usr/sbin/chroot --userspec=tester:tester "$root" env "$@"
}
installed_kb() {
  inside dpkg-query -W -f='${Installed-Size}\n' | awk '{ sum += $1 } END { print sum }'
}
wait_for() { # SECONDS COMMAND...
  local end=$(($(date +%s) + $1))
  shift
  until "$@" >/dev/null 2>&1; do
    [ "$(date +%s)" -lt "$end" ] || return 1
    sleep 0.2
  done
}
visible() { # TITLE: the number of the visible window; a search fails when a tooltip disappears meanwhile
  xdotool search --onlyvisible --name "$1" 2>/dev/null | grep -m 1 .
}
to_front() { # TITLE
  xdotool windowactivate --sync "$(visible "$1")"
}
window() { # TITLE: waits for the visible window, brings it to the front
  wait_for 60 visible "$1" || fail "no window \"$1\""
  wait_for 10 to_front "$1" || fail "window \"$1\" does not come to the front"
}
picture() { # TITLE FILE COLOURS: its picture; one with fewer colours shows nothing
  local colours
  window "$1"
  sleep 4 # until it has drawn a few seconds of data
  import -window "$(visible "$1")" "$out/$2.png" || fail "no picture of \"$1\""
  colours=$(identify -format %k "$out/$2.png")
  step "window \"$1\": $(identify -format '%wx%h' "$out/$2.png"), $colours colours"
  [ "$colours" -ge "$3" ] || fail "window \"$1\" looks empty"
}

mount --make-rprivate /
cp "$(echo "$top"/build/release/kvcenter_*.deb)" "$out/kvcenter.deb"
debootstrap --variant=minbase bookworm "$root" "$mirror" >"$out/debootstrap.log" || fail "debootstrap, see $out"
cp /etc/resolv.conf "$root/etc/"
cp /etc/apt/sources.list.d/debian.sources "$root/etc/apt/sources.list.d/" && : >"$root/etc/apt/sources.list"
apt-config dump Acquire >"$root/etc/apt/apt.conf.d/99way-to-the-mirror" # proxies and the like
mount -t proc proc "$root/proc"
mount -t devpts -o newinstance,ptmxmode=0666,mode=0620,gid=5 devpts "$root/dev/pts"
mount -t tmpfs tmpfs "$root/dev/shm"
mkdir -p "$root/tmp/.X11-unix"
mount --bind /tmp/.X11-unix "$root/tmp/.X11-unix"
inside useradd --create-home tester
inside apt-get update -q >"$out/apt.log" 2>&1 || fail "apt-get update, see $out"
before=$(installed_kb)
step "bare Debian 12: $(inside dpkg-query -W -f='.\n' | wc -l) packages, $((before / 1024)) MiB"

cp "$out/kvcenter.deb" "$root/kvcenter.deb"
inside apt-get install -qy --no-install-recommends /kvcenter.deb >"$out/install.log" 2>&1 || fail "apt-get install, see $out"
rm "$root/kvcenter.deb"
step "installed: $(grep -c '^Setting up' "$out/install.log") packages, $((($(installed_kb) - before) / 1024)) MiB;" \
  "$(grep '^Need to get' "$out/install.log")"
for program in /usr/libexec/kvcenter/kvcenter /usr/bin/kv_simulator; do
  ! inside ldd "$program" | grep 'not found' >&2 || fail "$program lacks libraries"
done

openbox &
data=$root/home/tester/.local/share/kvcenter
as_user kvcenter >"$out/first-start.log" 2>&1 &
program=$!
picture 'Choose Language' 1-first-start 200
xdotool key Return
picture 'ORVEL-IMU' 2-main-window 200
wait_for 10 grep -q '^LANGUAGE=EN' "$data/param.ini" || fail "the language is not kept"
[ "$(stat -c '%a %U' "$data")" = "700 $(stat -c %U "$root/home/tester")" ] || fail "the data folder is open to others"
[ "$(readlink "$data/objModel")" = /usr/share/kvcenter/objModel ] || fail "no link to the models"
xdotool key ctrl+q
wait "$program" || fail "the first run ended with $?"
step "first start: language asked and kept in the data folder"

as_user kv_simulator --link /home/tester/imu --baud 921600 --rate 400 --motion swing \
  --vibration 50:4:z:0.5,0.25 >"$out/simulator.log" 2>&1 &
wait_for 10 test -L "$root/home/tester/imu" || fail "the simulator did not start"
"$top/scripts/remember_port.sh" "$data/param.ini" /home/tester/imu 921600
chown --reference="$data" "$data/param.ini"
as_user kvcenter >"$out/second-start.log" 2>&1 &
program=$!
window 'ORVEL-IMU'
sleep 2
xdotool key ctrl+o
window 'Open serial port'
xdotool key Return
wait_for 20 grep -q 'product-info resolved' "$data/debug.log" || fail "the device is not identified"
step "device: $(grep -ao 'product-info resolved.*' "$data/debug.log" | tr -d '\r')"
xdotool key ctrl+r
picture 'Record to file' 3-record 100
xdotool key alt+s
sleep 1
xdotool key alt+c # the recording continues
picture 'ORVEL-IMU' 4-live 500
xdotool key ctrl+d
picture 'Sensor Dashboard' 5-waves 2500
window 'ORVEL-IMU'
xdotool key ctrl+f
window 'FFT Analysis'
xdotool mousemove --window "$(visible 'FFT Analysis')" 40 28 click 1 # Start
picture 'FFT Analysis' 6-spectrum 2500
window 'ORVEL-IMU'
xdotool key ctrl+3
picture '3D view' 7-threed 2500
window 'ORVEL-IMU'
xdotool key ctrl+w # also ends the recording
sleep 2
xdotool key ctrl+q
wait "$program" || fail "the second run ended with $?"
cp "$data"/*.log "$data/param.ini" "$out/"
rows=$(cat "$data"/*.csv | wc -l)
[ "$rows" -gt 2000 ] || fail "the recording has $rows rows"
step "recording: $(cd "$data" && ls ./*.csv), $rows rows"
! grep -E 'not installed|not found|Cannot|cannot|plugin' "$out/qt6_debug.log" "$out/second-start.log" >&2 ||
  fail "something is missing, see above"

# Homes that cannot be written.
mkdir "$root/home/locked"
as_user HOME=/home/locked kvcenter >"$out/locked-home.log" 2>&1 &
program=$!
window 'Choose Language'
sleep 1
xdotool key Return
picture 'ORVEL-IMU' 8-locked-home 200
grep -q 'folder /home/locked/.local/share/kvcenter cannot be used' "$out/locked-home.log" || fail "does not name the folder"
xdotool key ctrl+q
wait "$program" || fail "the run in a locked home ended with $?"

inside apt-get purge -qy kvcenter >"$out/purge.log" 2>&1 || fail "apt-get purge, see $out"
left=$(find "$root" -xdev \( -iname '*kvcenter*' -o -name 'kv_simulator*' \) ! -path "$root/home/tester/*" -printf '/%P\n')
[ -z "$left" ] || fail "left after purge: $left"
[ -f "$data/param.ini" ] || fail "the user's settings are gone"
step "purged: nothing left but the user's files"
