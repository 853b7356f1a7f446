#!/usr/bin/env bash
# Builds and tests the crates of bindings/rust against the library, by Debian's Rust, and prints the
# name of the environment variable NAME as they see it.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

# A newer Rust in front of the path would hide what Debian's does not have yet.
export PATH=/usr/bin:$PATH
export CARGO_TARGET_DIR=$PWD/build/rust
export PKG_CONFIG_PATH=$PWD/build/prefix/lib/pkgconfig LD_LIBRARY_PATH=$PWD/build/prefix/lib

scripts/bindings/library.sh
scripts/bindings/declarations.py --check
cd bindings/rust
cargo test --offline --quiet
cargo clippy --offline --quiet --all-targets -- -D warnings
# The program that carries the library in it needs no path to it.
ORTHOLAN_STATIC=1 CARGO_TARGET_DIR=$CARGO_TARGET_DIR/static cargo build --offline --quiet --example name
env -u LD_LIBRARY_PATH "$CARGO_TARGET_DIR/static/debug/examples/name" "${NAME:-CN=Alpha,O=Org}"
