#!/usr/bin/env bash
# Draws the pictures of resources/images/ and the desktop's icons in resources/icons/ from their sources. Needed only
# after a change of a drawing (Debian package librsvg2-bin).
set -euo pipefail
cd "$(dirname "$0")/../resources/images"
rsvg-convert --width 256 --height 256 mainicon.svg --output mainicon.png
for size in 16 24 32 48 64 128 512; do # 256 exists already
  rsvg-convert --width "$size" --height "$size" mainicon.svg --output "../icons/kvcenter-$size.png"
done
for name in chevron-down chevron-up chevron-dark-down chevron-dark-up check check-dark; do
  rsvg-convert --width 12 --height 12 "$name.svg" --output "$name.png"
  rsvg-convert --width 24 --height 24 "$name.svg" --output "$name@2x.png"
done
