#!/usr/bin/env bash
# The npm package and the page to try it, built and tested: build/javascript/.
#
#   ortholan.wasm           the strict layer alone, without files, threads or exceptions caught
#   ortholan/               the package, of which ortholan-VERSION.tgz is made
#   try/                    the page; `make docs` takes it into the site
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

binding=bindings/javascript
out=build/javascript

# Every function of the C interface that the package calls.
exported=_malloc,_free
for name in $(grep -oh 'ortholan_[a-z0-9_]*' "$binding"/src/*.js | sort -u); do
  exported+=,_$name
done

# The sources of one folder are compiled as one unit.
compile() {
  unit=build/javascript/units/${1//\//_}
  printf '#include "%s"\n' "$1"/*.cpp >"$unit.cpp"
  em++ -std=c++17 -Oz -fno-rtti -Wall -Wextra -Wshorten-64-to-32 -Werror -Iinclude -I. \
    -c "$unit.cpp" -o "$unit.o"
}
export -f compile
rm -rf "$out/units"
mkdir -p "$out/units"
printf '%s\0' bytes strict/*/ | xargs -0 -P "$(nproc)" -I{} bash -euc 'compile "${1%/}"' - {}

em++ -Oz --no-entry "$out"/units/*.o -o "$out/ortholan.wasm" \
  -sSTANDALONE_WASM -sALLOW_MEMORY_GROWTH -sFILESYSTEM=0 -sMALLOC=emmalloc \
  -sTOTAL_STACK=1MB -sINITIAL_MEMORY=2MB -sEXPORTED_FUNCTIONS="$exported"

version=$(sed -n '/^project(Ortholan/,/)/s/.*VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
node "$binding/tools/build.js" "$version" "$out/ortholan.wasm" "$out/ortholan"
tar --create --gzip --file "$out/ortholan-$version.tgz" --directory "$out" --sort=name \
  --owner=0 --group=0 --numeric-owner --mtime=@0 --transform 's,^ortholan,package,' ortholan
node "$binding/tools/page.js" "$out/ortholan" docs/site/try "$out/try"

node --test "$binding"/test/*.test.js
echo "The package: $out/ortholan-$version.tgz; the page: $out/try/index.html"
