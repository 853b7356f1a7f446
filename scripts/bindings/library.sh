#!/usr/bin/env bash
# Builds the library and installs it, with its headers and what pkg-config reads, for the bindings.
#
#   library.sh [PREFIX]   default: build/prefix
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

prefix=${1:-$PWD/build/prefix}
cmake --preset release
cmake --build --preset release --target ortholan ortholan_static
for component in runtime development; do
  cmake --install build/release --prefix "$prefix" --component "$component"
done >build/prefix.log
echo "library.sh: installed to $prefix"
