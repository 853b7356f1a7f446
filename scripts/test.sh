#!/usr/bin/env bash
# Configures, builds and tests each of the given presets. The tests of one run while the next is built,
# because the ones under Wine wait more than they work; a failure is told at the end, or stops the rest
# where something does not build.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
set -m
trap 'kill -- $(jobs -p | sed "s/^/-/") 2>/dev/null || true' EXIT

# Each line with the preset that it is about.
run_tests() {
  ctest --preset "$1" 2>&1 | sed -u "s/^/$1: /"
}

presets=()
tests=()
for preset in "$@"; do
  echo "== $preset"
  cmake --preset "$preset"
  cmake --build --preset "$preset"
  run_tests "$preset" &
  presets+=("$preset")
  tests+=($!)
done

failed=()
for i in "${!tests[@]}"; do
  wait "${tests[i]}" || failed+=("${presets[i]}")
done
if ((${#failed[@]} > 0)); then
  echo "test.sh: failed: ${failed[*]}" >&2
  exit 1
fi
