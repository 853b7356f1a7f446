#!/usr/bin/env bash
# Runs each fuzz target for FUZZ_SECONDS (60), and goes on behind one that finds something.
#
#   fuzz.sh <build directory> <target>...
#
# A run starts from fuzz/corpus/<target>, the names, general names and extensions of tests/data and
# whatever earlier runs kept in the build directory. What breaks a law or a sanitizer's rule goes to
# fuzz/findings/<target>, which the tests replay.
set -euo pipefail
build=$(cd "$1" && pwd)
shift
cd "$(dirname "${BASH_SOURCE[0]}")/.."
seconds=${FUZZ_SECONDS:-60}

# One file for each line of hex in tests/data.
samples=$build/fuzz/samples
mkdir -p "$samples"
for list in tests/data/*.txt; do
  name=$(basename "$list" .txt)
  number=0
  while read -r line; do
    number=$((number + 1))
    [[ -z $line || $line == '#'* ]] && continue
    file=$samples/${name}_$number
    [[ -e $file ]] && continue
    hex=${line##* }
    # shellcheck disable=SC2001,SC2059 # The format is the octets.
    printf "$(sed 's/../\\x&/g' <<<"$hex")" >"$file"
  done <"$list"
done

failed=()
for target in "$@"; do
  kept=$build/fuzz/kept/$target
  findings=fuzz/findings/$target
  mkdir -p "$kept" "$findings"
  echo "== $target, $seconds s"
  if ! nice "$build/${target}_fuzz" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 \
    -max_len=4096 -print_final_stats=1 -verbosity=1 -artifact_prefix="$findings/" \
    "$kept" "fuzz/corpus/$target" "$samples" 2>"$build/fuzz/$target.log"; then
    failed+=("$target")
    tail -n 60 "$build/fuzz/$target.log"
  fi
  grep -E '^stat::(number_of_executed_units|average_exec_per_sec)|^Done' "$build/fuzz/$target.log" ||
    true
  # An empty directory is not kept.
  rmdir "$findings" 2>/dev/null || true
done

if ((${#failed[@]} > 0)); then
  echo "fuzz.sh: findings in: ${failed[*]}" >&2
  exit 1
fi
