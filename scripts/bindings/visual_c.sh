#!/usr/bin/env bash
# Builds the DLL for Windows and calls it from C and C++ in Visual C++'s ABI, through Wine.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

cmake --preset windows
cmake --build --preset windows --target ortholan
tests/visual_c/programs.sh build/windows build/windows/visual_c
