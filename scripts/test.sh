#!/usr/bin/env bash
# Configures, builds and tests each of the given presets, and stops at the first that fails.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

for preset in "$@"; do
  echo "== $preset"
  cmake --preset "$preset"
  cmake --build --preset "$preset"
  ctest --preset "$preset"
done
