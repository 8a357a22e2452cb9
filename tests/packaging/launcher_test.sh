#!/usr/bin/env bash
# launcher_test.sh LAUNCHER: installs the launcher beside a program that reports how it was started, and starts it with
# home folders in various states.
set -euo pipefail
launcher=$(realpath -- "$1")
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder"
install -D "$launcher" tree/bin/kvcenter
mkdir -p tree/libexec/kvcenter tree/share/kvcenter/objModel home
touch tree/share/kvcenter/objModel/jet.obj
printf '#!/bin/sh\npwd\nprintf "%%s\\n" "$@"\n' >tree/libexec/kvcenter/kvcenter
chmod +x tree/libexec/kvcenter/kvcenter
ln -s "$folder/tree/bin/kvcenter" started-by-link

fail() {
  printf 'FAIL: %s: %s\n' "$name" "$1" >&2
  cat out err >&2
  exit 1
}
start() { # NAME [VARIABLE=VALUE...] -- ARGUMENTS...
  name=$1
  shift
  local settings=()
  while [ "$1" != -- ]; do settings+=("$1"); shift; done
  shift
  code=0
  env -u HOME -u XDG_DATA_HOME "${settings[@]}" ./started-by-link "$@" >out 2>err || code=$?
}
runs_in() {
  [ "$code" = 0 ] || fail "exit code $code"
  [ "$(head -n 1 out)" = "$1" ] || fail "not started in $1"
}

start "fresh home, arguments with spaces" HOME="$folder/home" -- -style "two words" ''
runs_in "$folder/home/.local/share/kvcenter"
[ "$(tail -n +2 out)" = "$(printf '%s\n' -style 'two words' '')" ] || fail "arguments changed"
[ "$(stat -c %a home/.local/share/kvcenter)" = 700 ] || fail "others may look into the data folder"
[ -e home/.local/share/kvcenter/objModel/jet.obj ] || fail "no models"
[ ! -s err ] || fail "complains"

ln -sfn /gone home/.local/share/kvcenter/objModel
start "models of an earlier installation" HOME="$folder/home" --
[ -e home/.local/share/kvcenter/objModel/jet.obj ] || fail "link not renewed"

mkdir -p own/kvcenter/objModel
start "folder of models of the user's own" XDG_DATA_HOME="$folder/own" HOME="$folder/home" --
runs_in "$folder/own/kvcenter"
[ "$(find own/kvcenter -type l)" = "" ] || fail "the user's models were touched"

start "relative XDG_DATA_HOME" XDG_DATA_HOME=own HOME="$folder/home" --
runs_in "$folder/home/.local/share/kvcenter"

# From here on no folder is available. The program then runs where the models are, but only if that cannot be written.
start "HOME not set, shared folder writable" --
[ "$code" = 1 ] || fail "exit code $code"
grep -q 'HOME is not set' err || fail "does not say what is wrong"
[ ! -s out ] || fail "started all the same"

touch file
start "HOME is a file" HOME="$folder/file" --
[ "$code" = 1 ] || fail "exit code $code"
grep -q "$folder/file/.local/share/kvcenter cannot be used" err || fail "does not name the folder"
