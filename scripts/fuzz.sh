#!/usr/bin/env bash
# Runs the fuzz targets, one after the other, and reports the results.
#
#   scripts/fuzz.sh                        every target for 20 minutes
#   scripts/fuzz.sh --minutes 5 hex        only the target hex, for 5 minutes
#
# New inputs are kept in build/fuzz/corpus/TARGET for the next run, failing ones in build/fuzz/crashes/TARGET, the
# output in build/fuzz/TARGET.log. A target ends early when an input fails. The exit code shows whether any did.
set -euo pipefail
top=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$top"

minutes=20
targets=()
while [ $# -gt 0 ]; do
  case $1 in
    -h | --help)
      sed -n '2,/^set /{/^set /d;s/^# \{0,1\}//;p}' "${BASH_SOURCE[0]}"
      exit 0
      ;;
    --minutes) minutes=${2:?--minutes needs a number}; shift ;;
    *) targets+=("$1") ;;
  esac
  shift
done
if [ ${#targets[@]} -eq 0 ]; then
  for folder in fuzz/corpus/*/; do
    targets+=("$(basename "$folder")")
  done
fi
for target in "${targets[@]}"; do
  if [ ! -d "fuzz/corpus/$target" ]; then
    echo "fuzz: there is no target $target" >&2
    exit 2
  fi
done

scripts/setup.sh
log=$(mktemp)
trap 'rm -f "$log"' EXIT
if ! { cmake --preset fuzz && cmake --build --preset fuzz; } >"$log" 2>&1; then
  cat "$log" >&2
  echo "fuzz: the build failed, see above" >&2
  exit 1
fi

out="$top/build/fuzz"
failed=0
TIMEFORMAT='%U %S'
printf '%-12s %8s %12s %8s %9s %11s %9s %8s\n' target minutes executions coverage features 'cpu seconds' 'new files' crashes
for target in "${targets[@]}"; do
  mkdir -p "$out/corpus/$target" "$out/crashes/$target" "$out/run/$target"
  options=(-max_total_time=$((minutes * 60)) -timeout=10 -rss_limit_mb=1024 -keep_seed=1 -print_final_stats=1
    "-artifact_prefix=$out/crashes/$target/")
  [ ! -f "fuzz/dictionaries/$target.dict" ] || options+=("-dict=$top/fuzz/dictionaries/$target.dict")
  report="$out/$target.log"
  before=$SECONDS
  cd "$out/run/$target" # files that a target writes stay there
  cpu=$({ time nice -n 5 "$out/bin/kv_fuzz_$target" "${options[@]}" "$out/corpus/$target" "$top/fuzz/corpus/$target" \
    >"$report" 2>&1; } 2>&1) || failed=1
  cd "$top"
  last=$(grep -aE '^#[0-9]+' "$report" | tail -n 1)
  printf '%-12s %8s %12s %8s %9s %11s %9s %8s\n' "$target" "$(awk "BEGIN{printf \"%.1f\", ($SECONDS - $before) / 60}")" \
    "$(sed -n 's/^#\([0-9]*\).*/\1/p' <<<"$last")" \
    "$(sed -n 's/.* cov: \([0-9]*\).*/\1/p' <<<"$last")" "$(sed -n 's/.* ft: \([0-9]*\).*/\1/p' <<<"$last")" \
    "$(tail -n 1 <<<"$cpu" | awk '{printf "%.0f", $1 + $2}')" \
    "$(find "$out/corpus/$target" -type f | wc -l)" "$(find "$out/crashes/$target" -type f | wc -l)"
done
exit "$failed"
