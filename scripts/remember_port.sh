#!/usr/bin/env bash
# remember_port.sh PARAM_INI PORT [BAUD]: makes PORT the one that KVCenter offers first, keeping all other settings.
set -euo pipefail
file=$1 port=$2 baud=${3:-}
touch "$file"
rest=$(awk '/^\[/ { in_serial = ($0 == "[SERIAL]") } !in_serial' "$file")
if [ -z "$baud" ]; then
  baud=$(awk '/^\[/ { in_serial = ($0 == "[SERIAL]") } in_serial && sub(/^BAUDRATE=/, "")' "$file")
fi
escaped=${port//\\/\\\\}
escaped=${escaped//\"/\\\"}
{
  [ -z "$rest" ] || printf '%s\n\n' "$rest"
  printf '[SERIAL]\nPORT="%s"\n' "$escaped"
  [ -z "$baud" ] || printf 'BAUDRATE=%s\n' "$baud"
} >"$file.new"
mv "$file.new" "$file"
