#!/usr/bin/env bash
# Builds the library and the tests of its layers for other machines, and runs them by qemu-user.
#
#   machines.sh [PRESET]...   default: arm64 s390x
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

tests=(foundation platform names generalname extensions strict capi)
(($#)) || set -- arm64 s390x
for preset in "$@"; do
  echo "== $preset"
  cmake --preset "$preset"
  cmake --build --preset "$preset" --target "${tests[@]/%/_tests}"
  ctest --preset "$preset" -R "^($(IFS='|'; echo "${tests[*]}"))_tests$"
done

# What no program can be built for is refused before one is.
refused=build/machine32
if cmake -S . -B "$refused" -D CMAKE_CXX_FLAGS=-m32 -D CMAKE_TRY_COMPILE_TARGET_TYPE=STATIC_LIBRARY \
  >"$refused.log" 2>&1; then
  echo "machines.sh: 32 bits are not refused" >&2
  exit 1
fi
grep -q 'Ortholan is for 64-bit machines' "$refused.log"
