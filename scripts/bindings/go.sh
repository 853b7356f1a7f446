#!/usr/bin/env bash
# Builds and tests the package of bindings/go against the library, and prints the name of the
# environment variable NAME as it sees it.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

root=$PWD
export GOCACHE=$root/build/go GOFLAGS=-mod=mod
export PKG_CONFIG_PATH=$root/build/prefix/lib/pkgconfig LD_LIBRARY_PATH=$root/build/prefix/lib

scripts/bindings/library.sh
cd bindings/go
[[ -z $(gofmt -l .) ]] || { gofmt -d . >&2; exit 1; }
go vet ./...
# The rules about memory that C sees are checked at every call. The cache of results does not know of the
# library.
GODEBUG=cgocheck=2 go test -count=1 ./...
"$root/scripts/bindings/documents.py" go README.md "$root/docs/languages.md" -- go run
go run ./cmd/name "${NAME:-CN=Alpha,O=Org}"
