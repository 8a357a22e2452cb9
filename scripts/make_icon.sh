#!/usr/bin/env bash
# Draws resources/images/mainicon.png from its source. Needed only after a change of the drawing
# (Debian package librsvg2-bin).
set -euo pipefail
cd "$(dirname "$0")/../resources/images"
rsvg-convert --width 256 --height 256 mainicon.svg --output mainicon.png
