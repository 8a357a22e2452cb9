#!/usr/bin/env bash
# Installs, by name, every Debian package that building, testing and checking KVCenter needs.
# Quiet and quick when nothing is missing. Uses sudo when it is not run as root.
set -euo pipefail

packages=(
  # compilers and build tools
  g++ cmake ninja-build ccache git
  # the toolkit
  qt6-base-dev qt6-serialport-dev libgl-dev libgl1-mesa-dri libzstd-dev zlib1g-dev
  qt6-declarative-dev qt6-declarative-dev-tools qt6-shadertools-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools
  qml6-module-qtquick qml6-module-qtquick-controls qml6-module-qtquick-layouts qml6-module-qtquick-templates
  qml6-module-qtquick-window qml6-module-qtquick-shapes qml6-module-qtqml qml6-module-qtqml-workerscript
  qt6-quick3d-dev qt6-quick3d-dev-tools qml6-module-quick3d qml6-module-quick3d-assetutils
  qml6-module-quick3d-helpers qt6-quick3d-assetimporters-plugin libtinyobjloader-dev qt6-translations-l10n
  # benchmarks, a plotting library to compare with, and the display server's drawing reports
  libbenchmark-dev libqcustomplot-dev libxcb1-dev libxcb-damage0-dev
  # fonts: the interface in Latin and in Chinese, Japanese and Korean, and the two built-in fixed-pitch fonts
  fonts-noto-core fonts-noto-cjk fonts-noto-mono fonts-hack
  # tests: a display without a screen, and a transform and a converter to compare with
  xvfb xauth libfftw3-dev srecord
  # tests of remote devices: a serial server, and networks of their own
  ser2net iproute2 util-linux
  # checks
  clang-format-14 clang-tidy-14 python3
  # the Debian package and its checks; a bare system to install it in, and tools to see and use its windows
  dpkg-dev file desktop-file-utils appstream lintian debootstrap openbox xdotool imagemagick
  # fuzzing
  clang-14 libclang-rt-14-dev
)
# CI also has another implementation read our captures; elsewhere that test is skipped where these are missing.
[ -z "${CI:-}" ] || command -v npm >/dev/null || packages+=(nodejs npm)

missing=()
for package in "${packages[@]}"; do
  status=$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null || true)
  [ "$status" = installed ] || missing+=("$package")
done
[ "${#missing[@]}" -eq 0 ] && exit 0

sudo=()
[ "$(id -u)" -eq 0 ] || sudo=(sudo)
echo "setup: installing ${missing[*]}"
log=$(mktemp)
trap 'rm -f "$log"' EXIT
export DEBIAN_FRONTEND=noninteractive
if ! { "${sudo[@]}" apt-get update -q &&
       "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -qy --no-install-recommends "${missing[@]}"; } \
     >"$log" 2>&1 </dev/null; then
  cat "$log" >&2
  echo "setup: the packages could not be installed, see above" >&2
  exit 1
fi
