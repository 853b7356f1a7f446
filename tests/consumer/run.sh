#!/usr/bin/env bash
# Uses the library the way a project of others finds it, with the shared and the static library.
#
#   run.sh install BUILD TREE               installs BUILD and moves the result to TREE
#   run.sh find_package TREE WORK           builds and runs the consumer against what TREE holds
#   run.sh pkg_config TREE WORK
#   run.sh add_subdirectory SOURCE WORK     ... with the library as a part of its own build
#   run.sh getting_started TREE WORK        builds and runs the page's project, which WORK holds
#
# From the environment: CXX, VERSION of the library, and for Windows WINDOWS=yes, OBJDUMP and WINE,
# the words before a program. A tree from a package may hold a lower directory such as usr/.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
read -ra wine <<<"${WINE-}"
windows=${WINDOWS-}
export LC_ALL=C.UTF-8

fail() {
  echo "run.sh: $*" >&2
  exit 1
}

# The trees' one file by that name.
locate() {
  local found
  found=$(find "$1" -name "$2" -print -quit)
  [[ -n $found ]] || fail "no $2 in $1"
  echo "$found"
}

# needs PROGRAM: the shared libraries that it asks for.
needs() {
  if [[ $windows ]]; then
    "$OBJDUMP" -p "$1" | sed -n 's/.*DLL Name: //p'
  else
    "${OBJDUMP:-objdump}" -p "$1" | sed -n 's/^ *NEEDED *//p'
  fi
}

# check PROGRAM shared|static LIBRARIES: that it runs, says what it should, and asks for the
# library by its major version or not at all.
check() {
  local program=$1 kind=$2 libraries=$3 name said dependency
  if [[ ! -e $program ]]; then program+=.exe; fi
  dependency=$(needs "$program" | grep ortholan || true)
  name=libortholan.so.${VERSION%%.*}
  if [[ $windows ]]; then name=ortholan.dll; fi
  if [[ $kind == static ]]; then name=; fi
  [[ $dependency == "$name" ]] || fail "$program asks for '$dependency', not '$name'"

  if [[ $windows ]]; then
    said=$(WINEPATH="Z:$libraries" "${wine[@]}" "$program" 'CN=Alpha, O=Org, C=RU' | tr -d '\r')
  else
    said=$(LD_LIBRARY_PATH=$libraries "$program" 'CN=Alpha, O=Org, C=RU')
  fi
  [[ $said == "$VERSION C=RU,O=Org,CN=Alpha 3 1" ]] || fail "$program says '$said'"
}

source=$here
# Compiles for Windows without a toolchain file: no more than a stranger would say.
configure() {
  local system=()
  if [[ $windows ]]; then system=(-DCMAKE_SYSTEM_NAME=Windows); fi
  cmake -G Ninja -S "$source" -B "$work" -DCMAKE_CXX_COMPILER="$CXX" -DCMAKE_BUILD_TYPE= \
    ${system[@]+"${system[@]}"} "$@" >"$work.log" || { cat "$work.log" >&2; fail "not configured"; }
}

# build TARGET...
build() {
  cmake --build "$work" -j 2 --target "$@" >"$work.log" ||
    { cat "$work.log" >&2; fail "not built"; }
}

# Where the tree's shared library lies.
library_directory() {
  if [[ $windows ]]; then
    dirname "$(locate "$1" ortholan.dll)"
  else
    dirname "$(locate "$1" 'libortholan.so.?')"
  fi
}

install_tree() {
  local build=$1 tree=$2
  rm -rf "$tree" "$tree first"
  cmake --install "$build" --prefix "$tree first" >/dev/null
  mv "$tree first" "$tree"
  # Text that names the build or the first place would be wrong for everybody else.
  if grep -rIlF -e "$build" -e "$tree first" -e "${here%/tests/*}" "$tree"; then
    fail "a path of this machine was installed"
  fi
  python3 "$here/../documents/links.py" "$tree" || fail "dead links were installed"
}

find_package() {
  local tree=$1
  configure -DCMAKE_PREFIX_PATH="$(dirname "$(locate "$tree" include)")"
  build consumer_shared consumer_static
  check "$work/consumer_shared" shared "$(library_directory "$tree")"
  check "$work/consumer_static" static "$(library_directory "$tree")"
}

pkg_config() {
  local tree=$1 kind words flags
  PKG_CONFIG_LIBDIR=$(dirname "$(locate "$tree" ortholan.pc)")
  export PKG_CONFIG_LIBDIR
  [[ $(pkg-config --modversion ortholan) == "$VERSION" ]] || fail "ortholan.pc has another version"
  for kind in shared static; do
    words=()
    if [[ $kind == static ]]; then words=(--static); fi
    # It escapes blanks as a shell wants them.
    eval "flags=($(pkg-config ${words[@]+"${words[@]}"} --cflags --libs ortholan))"
    if [[ $kind == static ]]; then flags+=(-static); fi
    "$CXX" -std=c++17 "$here/consumer.cpp" -o "$work/$kind" "${flags[@]}"
    check "$work/$kind" $kind "$(library_directory "$tree")"
  done
}

getting_started() {
  local tree=$1 libraries said
  libraries=$(library_directory "$tree")
  source=$work
  work+=/build
  rm -rf "$work"
  configure -DCMAKE_PREFIX_PATH="$(dirname "$(locate "$tree" include)")"
  build app
  if [[ $windows ]]; then
    said=$(WINEPATH="Z:$libraries" "${wine[@]}" "$work/app.exe" | tr -d '\r')
  else
    said=$("$work/app")
  fi
  [[ $said == "$(cat "$source/expected.txt")" ]] || fail "app says '$said'"
}

# The work directory stays, so that only the first run compiles the library. It has no optimisation
# and the compiler's own warnings.
add_subdirectory() {
  configure -DORTHOLAN_SOURCE_DIR="$1" -DCMAKE_UNITY_BUILD=ON
  build consumer_shared consumer_static
  check "$work/consumer_static" static ""
  check "$work/consumer_shared" shared "$work/ortholan"
}

[[ $# -eq 3 ]] ||
  fail "usage: run.sh install|find_package|pkg_config|add_subdirectory|getting_started FROM TO"
work=$3
mkdir -p "$(dirname "$work")"
case $1 in
  install) install_tree "$2" "$3" ;;
  find_package | pkg_config)
    rm -rf "$work"
    mkdir "$work"
    "$1" "$2"
    ;;
  add_subdirectory | getting_started)
    mkdir -p "$work"
    "$1" "$2"
    ;;
  *) fail "no such way: $1" ;;
esac
