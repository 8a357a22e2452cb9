#!/usr/bin/env bash
# Has another implementation of the format read a capture: conformity.sh CAPTURE_CHILD NPM_FOLDER. Exit code 77: it
# cannot be installed here.
set -euo pipefail
child=$1
npm=$2
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
packages=(@mcap/core@2.2.2 @mcap/support@1.1.0)

for tool in node npm; do
  if ! command -v "$tool" >/dev/null; then
    echo "SKIPPED: $tool is not installed"
    exit 77
  fi
done
if ! (cd "$npm" 2>/dev/null && npm ls "${packages[@]}" >/dev/null 2>&1); then
  mkdir -p "$npm"
  if ! timeout 120 npm install --prefix "$npm" --no-audit --no-fund --no-save --ignore-scripts --fetch-retries 1 \
    "${packages[@]}" >"$npm/install.log" 2>&1; then
    tail -n 3 "$npm/install.log"
    echo "SKIPPED: npm could not install ${packages[*]}"
    exit 77
  fi
fi

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
read -r path messages < <("$child" whole "$folder")
NODE_PATH="$npm/node_modules" node "$here/read_capture.cjs" "$path" "$messages"
